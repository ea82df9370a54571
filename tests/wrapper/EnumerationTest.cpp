#include "WrapperScene.h"

#include <algorithm>
#include <iterator>
#include <ranges>

namespace norvepa::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

static_assert(std::ranges::input_range<Enumeration<std::wstring>>);
static_assert(std::ranges::input_range<const Enumeration<BoardUse>>);
static_assert(std::ranges::view<Enumeration<std::wstring>>);
static_assert(std::input_iterator<Enumeration<std::wstring>::iterator>);
static_assert(std::copyable<Enumeration<std::wstring>::iterator>);

using Names = std::vector<std::wstring>;

template <typename Item>
[[nodiscard]] std::vector<Item> ItemsOf(const Enumeration<Item>& items)
{
    std::vector<Item> seen;
    std::ranges::copy(items, std::back_inserter(seen));
    return seen;
}

class WrapperEnumeration : public WrapperScene
{
};

TEST_F(WrapperEnumeration, GoesOverTheLogDevices)
{
    Names seen;
    for (const std::wstring& name : LogDevices())
    {
        seen.push_back(name);
    }

    EXPECT_THAT(seen, SizeIs(12)); // of 14, two hidden
    EXPECT_THAT(seen, Contains(L"F\u00F6rderb\u00E4nder"));
    EXPECT_THAT(seen, Contains(L"Presse#3"));
    EXPECT_THAT(seen, Not(Contains(L"PC internal")));
}

TEST_F(WrapperEnumeration, GoesOverTheLogDevicesOfAType)
{
    EXPECT_THAT(ItemsOf(LogDevices(L"mpi")),
                ElementsAre(L"Abf\u00FCllung Linie 1", L"Abf\u00FCllung Linie 2", L"Presse#3"));
    EXPECT_THAT(ItemsOf(LogDevices(L"none")), IsEmpty());
}

TEST_F(WrapperEnumeration, GoesOverTheLogDevicesOfABoardWithTheirUnits)
{
    const std::vector<BoardUse> uses = ItemsOf(LogDevicesOf(L"afk110"));

    EXPECT_THAT(uses, ElementsAre(BoardUse{L"Kl\u00E4ranlage", L"2"}, BoardUse{L"Presse#3", L"3"}));
    EXPECT_THAT(ItemsOf(LogDevicesOf(L"none")), IsEmpty());
}

TEST_F(WrapperEnumeration, GoesOverTheLogNames)
{
    const Names names = ItemsOf(LogNames());

    EXPECT_THAT(names, SizeIs(15)); // of 16, one hidden
    EXPECT_THAT(names, Contains(L"Kessel#1"));
    EXPECT_THAT(names, Contains(L"F\u00FCllstand < 10"));
}

TEST_F(WrapperEnumeration, GoesOverTheCatalogue)
{
    EXPECT_THAT(ItemsOf(Protocols()), ElementsAre(L"L2", L"MPI", L"SERIAL", L"TCPIP"));
    EXPECT_THAT(ItemsOf(Boards()), ElementsAre(L"AFK110", L"*AFK220", L"ANK300", L"ASK040", L"KQZA010"));
    EXPECT_THAT(ItemsOf(Templates()), Contains(L"MPI-AFK110"));
}

TEST_F(WrapperEnumeration, MayBeGoneOverTwice)
{
    const Enumeration<std::wstring> names = LogNames();
    const Names first = ItemsOf(names);

    LogName::Create(L"Mischer").value();

    EXPECT_THAT(first, Not(Contains(L"Mischer")));
    EXPECT_THAT(ItemsOf(names), Contains(L"Mischer"));
    EXPECT_THAT(names.All().value(), SizeIs(first.size() + 1));
}

TEST_F(WrapperEnumeration, WorksWithTheRangesLibrary)
{
    const auto withP = [](const std::wstring& name) { return name.starts_with(L'P'); };

    const auto count = std::ranges::count_if(LogDevices(), withP);
    Names filtered;
    for (const std::wstring& name : LogDevices() | std::views::filter(withP) | std::views::take(5))
    {
        filtered.push_back(name);
    }

    EXPECT_EQ(count, 1);
    EXPECT_THAT(filtered, ElementsAre(L"Presse#3"));
}

TEST_F(WrapperEnumeration, HasIteratorsThatGoOnByThemselves)
{
    const Enumeration<std::wstring> names = LogDevices(L"mpi");

    auto at = names.begin();
    const auto first = at;
    ++at;
    at++;

    EXPECT_EQ(*first, L"Abf\u00FCllung Linie 1");
    EXPECT_EQ(at->size(), 8U);
    ++at;
    EXPECT_TRUE(at == names.end());
    ++at; // stays there
    EXPECT_TRUE(at == names.end());
    EXPECT_TRUE(Enumeration<std::wstring>::iterator() == names.end());
}

TEST_F(WrapperEnumeration, IsEmptyWhenItHasBeenMovedFrom)
{
    Enumeration<std::wstring> names = Protocols();

    const Enumeration<std::wstring> moved = std::move(names);

    EXPECT_THAT(ItemsOf(moved), SizeIs(4));
    EXPECT_THAT(ItemsOf(names), IsEmpty());                 // NOLINT(bugprone-use-after-move)
    EXPECT_THAT(names.All().value(), IsEmpty());            // NOLINT(bugprone-use-after-move)
    EXPECT_THAT(ItemsOf(names = LogDevices()), SizeIs(12)); // and may be assigned to
}

TEST_F(WrapperEnumeration, TellsOfAFailureByAnException)
{
    TakeDataFolderAway();

    try
    {
        static_cast<void>(ItemsOf(LogNames()));
        FAIL() << "found log names";
    }
    catch (const Failure& failure)
    {
        EXPECT_EQ(failure.error(), Error("LogNameGetEnumBL", PGSP_ERR_FOLDER_NOT_FOUND));
    }
}

TEST_F(WrapperEnumeration, TellsOfAFailureByAResultToWhomWantsOne)
{
    TakeProgramFolderAway();

    EXPECT_EQ(Templates().All().error(), Error("PGSP_TemplateGetEnumNoPrefixBL", PGSP_ERR_FOLDER_NOT_FOUND));
}

TEST(WrapperEnumerationOwn, TellsOfAFailureOnTheWay)
{
    const Enumeration<std::wstring> twoThenNone([](std::uint32_t index) -> Result<std::wstring> {
        return index < 2 ? Result<std::wstring>(std::to_wstring(index)) : Error("Export", 5);
    });

    auto at = twoThenNone.begin();
    ++at;

    EXPECT_THROW(++at, Failure);
    EXPECT_TRUE(at == twoThenNone.end());
    EXPECT_EQ(twoThenNone.All().error(), Error("Export", 5));
}

} // namespace
} // namespace norvepa::test

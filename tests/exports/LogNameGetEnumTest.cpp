#include "LogNameScene.h"
#include "support/Eventually.h"

#include <windows.h>

#include <algorithm>
#include <filesystem>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

using Names = std::vector<std::wstring>;

class LogNameGetEnum : public LogNameScene
{
protected:
    [[nodiscard]] std::int32_t Get(std::uint32_t index, OutputBuffer& name) const
    {
        return library.LogNameGetEnumBL(index, name.data(), &name.length);
    }

    // What index after index gives, up to the end.
    [[nodiscard]] Names All(std::uint32_t capacity = 260) const
    {
        Names names;
        OutputBuffer name(capacity);
        while (Get(static_cast<std::uint32_t>(names.size()), name) == PGSP_OK)
        {
            names.push_back(name.text());
            EXPECT_EQ(name.length, names.back().size());
            name = OutputBuffer(capacity);
        }
        EXPECT_TRUE(name.isUntouched());
        EXPECT_EQ(name.length, capacity);
        return names;
    }

    void WriteHidden(const std::wstring& fileName, const wchar_t* hidden) const
    {
        Write(fileName, XmlContent().Text(L"hidden", hidden));
    }

    // The names of the folder in its own order.
    [[nodiscard]] Names FoldersOrder() const
    {
        Names names;
        WIN32_FIND_DATAW found = {};
        const HANDLE search = FindFirstFileW((folder() + L"\\*.xml").c_str(), &found);
        do
        {
            const std::wstring name = found.cFileName;
            names.push_back(name.substr(0, name.size() - 4));
        } while (FindNextFileW(search, &found) != FALSE);
        FindClose(search);
        return names;
    }
};

TEST_F(LogNameGetEnum, GivesEveryNameInTheFoldersOrder)
{
    for (const wchar_t* const name : {L"m", L"a", L"Z", L"0", L"\u00E4", L"_", L"b2", L"b10", L"B1"})
    {
        Write(name, {});
    }

    EXPECT_EQ(All().size(), 9U);
    EXPECT_EQ(All(), FoldersOrder());
}

TEST_F(LogNameGetEnum, EndsAtOnceInAnEmptyFolder)
{
    EXPECT_THAT(All(), IsEmpty());
}

TEST_F(LogNameGetEnum, EndsAtOnceWithoutTheFolder)
{
    std::filesystem::remove(folder());

    EXPECT_THAT(All(), IsEmpty());
}

TEST_F(LogNameGetEnum, LeavesBufferAndLengthAsTheyWerePastTheEnd)
{
    Write(L"Pumpe", {});
    OutputBuffer name(260);

    EXPECT_EQ(Get(1, name), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(Get(UINT32_MAX, name), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_EQ(name.length, 260U);
}

TEST_F(LogNameGetEnum, LeavesOutWhatIsHidden)
{
    WriteHidden(L"a", L"true");
    WriteHidden(L"b", L"TRUE");
    WriteHidden(L"c", L"false");
    WriteHidden(L"d", L"");
    WriteHidden(L"e", L"true ");
    Write(L"f", XmlContent().Bool(L"HIDDEN", L"True"));
    Write(L"g", XmlContent().Text(L"Station", L"true"));

    EXPECT_THAT(All(), UnorderedElementsAre(L"c", L"d", L"e", L"g"));
}

TEST_F(LogNameGetEnum, CountsWhatIsHiddenNotAtAll)
{
    for (const wchar_t* const name : {L"a", L"b", L"c", L"d"})
    {
        Write(name, {});
    }
    const Names order = FoldersOrder();
    WriteHidden(order[1], L"true");
    OutputBuffer name(260);

    EXPECT_EQ(Get(1, name), PGSP_OK);

    EXPECT_EQ(name.text(), order[2]);
    EXPECT_THAT(All(), ElementsAre(order[0], order[2], order[3]));
}

TEST_F(LogNameGetEnum, SeesAtTheNextCallWhatWasHiddenOrShown)
{
    Write(L"Pumpe", {});
    EXPECT_THAT(All(), ElementsAre(L"Pumpe"));

    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"hidden", L"true"), PGSP_OK);
    EXPECT_THAT(All(), IsEmpty());
    EXPECT_EQ(library.LogNameExistBL(L"Pumpe", 0), PGSP_OK);
    EXPECT_EQ(Value(L"Pumpe", L"hidden"), L"true");

    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"hidden", L"no"), PGSP_OK);
    EXPECT_THAT(All(), ElementsAre(L"Pumpe"));
}

TEST_F(LogNameGetEnum, LeavesOutNothingElse)
{
    Write(L"PGSP_TEMP_LOG_DEVICE____001", XmlContent().Text(L"CP_TYPE", L"MPI"));
    WriteBytes(roots.logName(L"broken"), "no XML");
    WriteBytes(roots.logName(L"empty"), "");
    MakeFolders(roots.logName(L"folder"));
    WriteBytes(roots.logName(L"ahead"), LogNameFile(XmlContent().Raw("<a></b>").Text(L"hidden", L"true")));
    WriteBytes(folder() + L"\\other.txt", "");

    EXPECT_THAT(All(), UnorderedElementsAre(L"PGSP_TEMP_LOG_DEVICE____001", L"broken", L"empty", L"folder",
                                            L"ahead"));
}

TEST_F(LogNameGetEnum, ShowsATemporaryFileThatWasLeftOver)
{
    Write(L"Pumpe", {});
    Write(L"Pumpe(temp)", {});

    EXPECT_THAT(All(), UnorderedElementsAre(L"Pumpe", L"Pumpe(temp)"));
}

TEST_F(LogNameGetEnum, NeedsOneCharacterMoreThanTheName)
{
    Write(L"Pumpe", {});
    OutputBuffer enough(6);

    EXPECT_EQ(Get(0, enough), PGSP_OK);

    EXPECT_EQ(enough.text(), L"Pumpe");
    EXPECT_EQ(enough.length, 5U);
}

TEST_F(LogNameGetEnum, TakesANameThatDoesNotFitForTheEnd)
{
    Write(L"Pumpe", {});

    for (const std::uint32_t capacity : {5U, 1U, 0U})
    {
        OutputBuffer name(capacity);
        EXPECT_EQ(Get(0, name), PGSP_ERR_NO_MORE_ITEMS) << capacity;
        EXPECT_TRUE(name.isUntouched()) << capacity;
        EXPECT_EQ(name.length, capacity) << capacity;
    }
}

TEST_F(LogNameGetEnum, EndsAtANameThatDoesNotFitThoughItIsNotTheOneAskedFor)
{
    for (const wchar_t* const name : {L"a1", L"b1", L"c1", L"d1"})
    {
        Write(name, {});
    }
    const Names order = FoldersOrder();
    const std::wstring longer = order[2] + L"x";
    std::filesystem::rename(roots.logName(order[2]), roots.logName(longer));
    const Names renamed = FoldersOrder();
    const auto place = std::find(renamed.begin(), renamed.end(), longer);

    EXPECT_THAT(All(3), testing::ElementsAreArray(renamed.begin(), place));
    EXPECT_EQ(All(4), renamed);
}

TEST_F(LogNameGetEnum, EndsAtAHiddenNameThatDoesNotFitToo)
{
    for (const wchar_t* const name : {L"a1", L"b1", L"c1"})
    {
        Write(name, {});
    }
    const Names order = FoldersOrder();
    const std::wstring longer = order[1] + L"x";
    std::filesystem::remove(roots.logName(order[1]));
    WriteHidden(longer, L"true");
    const Names changed = FoldersOrder();
    const auto place = std::find(changed.begin(), changed.end(), longer);

    EXPECT_THAT(All(3), testing::ElementsAreArray(changed.begin(), place));
    EXPECT_EQ(All(4).size(), 2U);
}

TEST_F(LogNameGetEnum, ShowsWhatIsMadeAndHidesWhatIsDeleted)
{
    EXPECT_THAT(All(), IsEmpty());
    ASSERT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_OK);
    EXPECT_TRUE(Eventually([&] { return All() == Names{L"Pumpe"}; }));

    ASSERT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_OK);

    EXPECT_TRUE(Eventually([&] { return All().empty(); }));
}

TEST_F(LogNameGetEnum, GoesOnAfterDeinit)
{
    Write(L"Pumpe", {});
    EXPECT_THAT(All(), ElementsAre(L"Pumpe"));

    library.NorvepaBl64x_deinit();
    EXPECT_THAT(All(), ElementsAre(L"Pumpe"));

    Write(L"Presse", {});
    EXPECT_TRUE(Eventually([&] { return All().size() == 2; }));
}

} // namespace
} // namespace norvepa::test

#include "norvctl/report/Changes.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace norvctl::report
{
namespace
{

using Pairs = std::vector<std::pair<std::string, std::string>>;

Object ObjectOf(Kind kind, const std::string& name, const Pairs& values,
                const std::string& section = "Section")
{
    Object object;
    object.kind = kind;
    object.name = name;
    SheetSection& target = object.sections.emplace_back();
    target.name = section;
    for (const auto& [parameter, value] : values)
    {
        target.values.push_back({parameter, value, {}, {}, false});
    }
    return object;
}

Object Device(const std::string& name, const Pairs& values)
{
    return ObjectOf(Kind::LogDevice, name, values);
}

// "+name=value", "name: before -> value" and so on, of the only object.
std::vector<std::string> Marks(const MarkedObjects& objects)
{
    std::vector<std::string> marks;
    for (const MarkedSection& section : objects.at(0).sections)
    {
        for (const MarkedValue& value : section.values)
        {
            const std::string text = value.present.name + "=" + value.present.value;
            switch (value.change)
            {
            case Change::Added:
                marks.push_back("+" + text);
                break;
            case Change::Removed:
                marks.push_back("-" + text);
                break;
            case Change::Changed:
                marks.push_back(value.before + ">" + text);
                break;
            case Change::None:
                marks.push_back(text);
            }
        }
    }
    return marks;
}

using Texts = std::vector<std::string>;

TEST(ReportChanges, OfTheSameStoreAreNone)
{
    const Objects store{Device("a", {{"p", "1"}, {"q", "2"}})};

    const MarkedObjects marked = MarkChanges(store, store);

    EXPECT_EQ(marked.at(0).change, Change::None);
    EXPECT_EQ(Marks(marked), (Texts{"p=1", "q=2"}));
}

TEST(ReportChanges, TellAValueWithWhatItWas)
{
    const MarkedObjects marked =
        MarkChanges({Device("a", {{"p", "1"}, {"q", "2"}})}, {Device("A", {{"p", "1"}, {"q", "3"}})});

    EXPECT_EQ(marked.at(0).change, Change::Changed);
    EXPECT_EQ(Marks(marked), (Texts{"p=1", "2>q=3"}));
}

TEST(ReportChanges, TellAddedAndRemovedValues)
{
    const MarkedObjects marked =
        MarkChanges({Device("a", {{"old", "1"}, {"p", "2"}})}, {Device("a", {{"p", "2"}, {"new", "3"}})});

    EXPECT_EQ(Marks(marked), (Texts{"p=2", "+new=3", "-old=1"}));
}

TEST(ReportChanges, CompareAParameterThatIsThereSeveralTimesInTheOrderOfTheFile)
{
    const MarkedObjects marked = MarkChanges({Device("a", {{"p", "1"}, {"p", "2"}, {"p", "3"}})},
                                             {Device("a", {{"p", "1"}, {"p", "9"}})});

    EXPECT_EQ(Marks(marked), (Texts{"p=1", "2>p=9", "-p=3"}));
}

TEST(ReportChanges, TellTheSectionThatIsGone)
{
    const MarkedObjects marked = MarkChanges({ObjectOf(Kind::LogDevice, "a", {{"p", "1"}}, "Old")},
                                             {ObjectOf(Kind::LogDevice, "a", {{"p", "1"}}, "New")});

    ASSERT_EQ(marked.at(0).sections.size(), 2U);
    EXPECT_EQ(marked.at(0).sections.at(1).name, "Old");
    EXPECT_EQ(Marks(marked), (Texts{"+p=1", "-p=1"}));
}

TEST(ReportChanges, TellObjectsThatCameAndWentBehindThoseOfTheirKind)
{
    const Objects before{ObjectOf(Kind::LogName, "gone", {}), Device("same", {})};
    const Objects after{ObjectOf(Kind::LogName, "new", {}), Device("same", {})};

    const MarkedObjects marked = MarkChanges(before, after);

    ASSERT_EQ(marked.size(), 3U);
    EXPECT_EQ(marked.at(0).object.name, "new");
    EXPECT_EQ(marked.at(0).change, Change::Added);
    EXPECT_EQ(marked.at(1).object.name, "gone");
    EXPECT_EQ(marked.at(1).change, Change::Removed);
    EXPECT_EQ(marked.at(2).change, Change::None);
}

TEST(ReportChanges, LeaveTheCatalogueAloneWhichABackupDoesNotHave)
{
    const MarkedObjects marked =
        MarkChanges({Device("a", {})}, {Device("a", {}), ObjectOf(Kind::Board, "b", {})});

    EXPECT_EQ(marked.at(1).change, Change::None);
}

TEST(ReportChanges, OfAnEmptyStoreAreAllThereIs)
{
    const MarkedObjects marked = MarkChanges({}, {Device("a", {{"p", "1"}})});

    EXPECT_EQ(marked.at(0).change, Change::Added);
    EXPECT_EQ(Marks(marked), (Texts{"+p=1"}));
}

TEST(ReportChanges, AreNoneWithoutAnOlderStore)
{
    const MarkedObjects marked = Unmarked({Device("a", {{"p", "1"}})});

    EXPECT_EQ(marked.at(0).change, Change::None);
    EXPECT_EQ(Marks(marked), (Texts{"p=1"}));
}

} // namespace
} // namespace norvctl::report

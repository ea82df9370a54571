#include "norvctl/Table.h"

#include "norvctl/DisplayText.h"

#include <gmock/gmock.h>
#include <sstream>

namespace norvepa::test
{
namespace
{

using norvctl::Table;
using norvctl::TableForm;

std::vector<std::string> LinesOf(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

Table Stations()
{
    Table table({{"STATION", 10}, {"BOARD", 8}, {"PLACE", 0}});
    table.Add({"F\u00F6rderb\u00E4nder", "AFK220", "Rampe"});
    table.Add({"Presse", "AFK110", "Halle 2, hinter dem Lager"});
    return table;
}

TEST(NorvctlTable, IsAsWideAsItsTextsForAPipe)
{
    EXPECT_EQ(Stations().AsText({}), "F\u00F6rderb\u00E4nder AFK220   Rampe\n"
                                     "Presse       AFK110   Halle 2, hinter dem Lager");
}

TEST(NorvctlTable, HasHeadingsOnlyWhenTheyAreWanted)
{
    const std::string text = Stations().AsText({true, 0});

    EXPECT_EQ(LinesOf(text).front(), "STATION      BOARD    PLACE");
    EXPECT_EQ(LinesOf(text).size(), 3U);
}

TEST(NorvctlTable, CutsItsWidestColumnForATerminal)
{
    const auto lines = LinesOf(Stations().AsText({true, 32}));

    for (const std::string& line : lines)
    {
        EXPECT_LE(norvctl::DisplayWidth(line), 32U) << line;
    }
    EXPECT_EQ(lines.back(), "Presse       AFK110 Halle 2, hi\u2026");
}

TEST(NorvctlTable, KeepsAValueOfSeveralLinesOnOneInATerminalAndAsItIsInAPipe)
{
    Table table({{"NAME", 4}, {"VALUE", 0}});
    table.Add({"text", "first\nsecond"});

    EXPECT_EQ(table.AsText({false, 80}), "text first second");
    EXPECT_EQ(table.AsText({}), "text first\nsecond");
}

TEST(NorvctlTable, LeavesNoBlanksWhereTheLastColumnsAreEmpty)
{
    Table table({{"NAME", 8}, {"PLACE", 8}, {"UNIT", 0}});
    table.Add({"Labor", "", ""});

    EXPECT_EQ(table.AsText({}), "Labor");
}

TEST(NorvctlTable, KeepsALineThatIsEmpty)
{
    Table table({{"VALUE", 0}});
    table.Add({""});
    table.Add({"last"});

    EXPECT_EQ(table.AsText({}), "\nlast");
}

TEST(NorvctlTable, HasTitlesThatNoColumnMakesRoomFor)
{
    Table table({{"NAME", 4}, {"VALUE", 0}});
    table.AddTitle("a title that is longer than its rows");
    table.Add({"one", "1"});

    EXPECT_EQ(table.AsText({}), "a title that is longer than its rows\none  1");
    EXPECT_EQ(table.AsText({false, 10}), "a title t\u2026\none  1");
}

} // namespace
} // namespace norvepa::test

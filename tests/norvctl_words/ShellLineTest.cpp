#include "norvctl/ShellLine.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using norvctl::BashWords;
using norvctl::PowerShellWord;
using norvctl::ReadPowerShellLine;
using norvctl::ShellLine;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view Breaks = " \t\n\"'@><=;|&(:";

ShellLine BashLine(std::string_view line)
{
    return norvctl::ReadBashLine(line, Breaks);
}

TEST(NorvctlBashLine, IsTheWordsBehindTheProgram)
{
    const ShellLine line = BashLine("norvctl  device show Kess");

    EXPECT_THAT(line.words, ElementsAre("device", "show"));
    EXPECT_EQ(line.present, "Kess");
    EXPECT_EQ(line.kept, "");
}

TEST(NorvctlBashLine, BehindABlankHasAnEmptyWord)
{
    EXPECT_THAT(BashLine("norvctl ").words, IsEmpty());
    EXPECT_EQ(BashLine("norvctl device ").present, "");
    EXPECT_EQ(BashLine("").present, "");
}

TEST(NorvctlBashLine, IsReadWithoutItsMarks)
{
    const ShellLine line = BashLine(R"(norvctl a\ b 'c\ "d' "e' \"f\g" '' x'y'"z" ")");

    EXPECT_THAT(line.words, ElementsAre("a b", "c\\ \"d", "e' \"f\\g", "", "xyz"));
    EXPECT_EQ(line.quote, '"');
}

TEST(NorvctlBashLine, KeepsWhatStandsAheadOfAnOpenMarkOrABreak)
{
    EXPECT_EQ(BashLine("norvctl --type=M").kept, "--type=");
    EXPECT_EQ(BashLine("norvctl Halle:2").kept, "Halle:");
    EXPECT_EQ(BashLine("norvctl Kess'el").kept, "Kess");
    EXPECT_EQ(BashLine("norvctl Kess'el'").kept, "");
    EXPECT_EQ(BashLine("norvctl 'Halle:2").kept, "");
    EXPECT_EQ(BashLine("norvctl Halle\\:2").kept, "");
}

TEST(NorvctlBashWords, AreQuotedWhereOneNeedsIt)
{
    EXPECT_THAT(BashWords({"Kesselhaus", "\u00DCbersicht"}, BashLine("norvctl ")),
                ElementsAre("Kesselhaus", "\u00DCbersicht"));
    EXPECT_THAT(BashWords({"Kesselhaus", "Kessel 1"}, BashLine("norvctl Kess")),
                ElementsAre("'Kesselhaus'", "'Kessel 1'"));
    EXPECT_THAT(BashWords({"Presse#3"}, BashLine("norvctl ")), ElementsAre("'Presse#3'"));
    EXPECT_THAT(BashWords({"O'Brien $x"}, BashLine("norvctl ")), ElementsAre(R"('O'\''Brien $x')"));
}

TEST(NorvctlBashWords, InAnOpenMarkFitThatMark)
{
    EXPECT_THAT(BashWords({"Kessel 1"}, BashLine("norvctl 'Kess")), ElementsAre("Kessel 1"));
    EXPECT_THAT(BashWords({"a \"b\" $c `d` \\e"}, BashLine("norvctl \"a")),
                ElementsAre(R"(a \"b\" \$c \`d\` \\e)"));
    EXPECT_THAT(BashWords({"O'Brien"}, BashLine("norvctl 'O")), ElementsAre(R"(O'\''Brien)"));
}

TEST(NorvctlBashWords, AreWithoutWhatIsKept)
{
    EXPECT_THAT(BashWords({"--type=MPI"}, BashLine("norvctl --type=M")), ElementsAre("MPI"));
    EXPECT_THAT(BashWords({"Halle 2: Pumpe"}, BashLine("norvctl Halle\\ 2:")), ElementsAre("' Pumpe'"));
}

TEST(NorvctlPowerShellLine, IsReadWithoutItsMarks)
{
    const ShellLine line = ReadPowerShellLine(R"(norvctl a` b 'c''d `e' "f""g`"h" '' "Kess)");

    EXPECT_THAT(line.words, ElementsAre("a b", "c'd `e", "f\"g\"h", ""));
    EXPECT_EQ(line.present, "Kess");
    EXPECT_EQ(line.kept, "");
}

TEST(NorvctlPowerShellLine, BehindABlankHasAnEmptyWord)
{
    EXPECT_THAT(ReadPowerShellLine("norvctl device ").words, ElementsAre("device"));
    EXPECT_EQ(ReadPowerShellLine("norvctl device ").present, "");
}

TEST(NorvctlPowerShellWord, IsQuotedWhereItNeedsThat)
{
    EXPECT_EQ(PowerShellWord("--type=MPI"), "--type=MPI");
    EXPECT_EQ(PowerShellWord("Kessel 1"), "'Kessel 1'");
    EXPECT_EQ(PowerShellWord("Presse#3"), "'Presse#3'");
    EXPECT_EQ(PowerShellWord("\u00DCbersicht"), "'\u00DCbersicht'");
    EXPECT_EQ(PowerShellWord("O'Brien \u2019s $x"), "'O''Brien '\u2019s $x'");
    EXPECT_EQ(PowerShellWord(""), "''");
}

} // namespace
} // namespace norvepa::test

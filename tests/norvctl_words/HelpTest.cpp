#include "norvctl/Help.h"

#include "norvctl/CommandTree.h"
#include "norvctl/DisplayText.h"
#include "norvctl_words/Tree.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <sstream>

namespace norvepa::test
{
namespace
{

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

TEST(NorvctlHelpText, OfAVerbTellsAllThatItTakes)
{
    Tree tree;

    EXPECT_THAT(norvctl::HelpOf(tree.Command("device get"), 80),
                AllOf(StartsWith("norvctl device get: print one value\n\n"
                                 "Usage:\n  norvctl device get DEVICE [PARAMETER] [--section "),
                      HasSubstr("\nArguments:\n  DEVICE     the log device"),
                      HasSubstr("\nOptions:\n  --section "),
                      HasSubstr("\nOptions of every command:\n  --json "), HasSubstr("-h, --help "),
                      HasSubstr("\nExamples:\n  norvctl device get Kesselhaus baudrate\n")));
}

TEST(NorvctlHelpText, OfASetTellsItsValuesAndTheOneThatItHasWithout)
{
    Tree tree;

    const std::string help = norvctl::HelpOf(tree.Command("trace on"), 100);

    EXPECT_THAT(help, HasSubstr("--format SHORT|LONG|TIME|TEXT"));
    EXPECT_THAT(help, HasSubstr("the line's form (without it LONG)"));
}

TEST(NorvctlHelpText, OfNorvctlNamesTheNounsAndWhereToReadOn)
{
    Tree tree;

    const std::string help = norvctl::HelpOf(tree.root(), 80);

    for (const CLI::App* noun : norvctl::CommandsOf(tree.root()))
    {
        EXPECT_THAT(help, HasSubstr("\n  " + noun->get_name() + ' '));
    }
    EXPECT_THAT(help, AllOf(HasSubstr("\nExamples:\n  norvctl "),
                            HasSubstr("norvctl COMMAND --help, of all: norvctl reference\n")));
}

TEST(NorvctlHelpText, FitsTheWindowExceptWhatIsToBeCopied)
{
    Tree tree;
    const std::string help = norvctl::HelpOf(tree.root(), 40);
    const std::string ofVerb = norvctl::HelpOf(tree.Command("trace on"), 40);

    std::istringstream lines(help + ofVerb);
    for (std::string line; std::getline(lines, line);)
    {
        if (!line.starts_with("  norvctl "))
        {
            EXPECT_LE(norvctl::DisplayWidth(line), 60U) << line; // a term of 26 columns and one word
        }
    }
}

} // namespace
} // namespace norvepa::test

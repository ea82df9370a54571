#include "norvctl/Reference.h"

#include "norvctl/CommandTree.h"
#include "norvctl_words/Tree.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

TEST(NorvctlReference, HasEveryVerbWithItsExamples)
{
    Tree tree;

    const std::string markdown = norvctl::MarkdownReference(tree.root());

    for (const CLI::App* verb : norvctl::VerbsOf(tree.root()))
    {
        EXPECT_THAT(markdown, HasSubstr("## " + norvctl::PathOf(*verb) + '\n'));
        EXPECT_THAT(markdown, HasSubstr("\n```\n" + norvctl::UsageOf(*verb) + "\n```\n"));
        EXPECT_THAT(markdown, HasSubstr('\n' + norvctl::ExamplesOf(*verb).front() + '\n'));
    }
}

TEST(NorvctlReference, LeavesOutWhatIsForScriptsAlone)
{
    Tree tree;

    EXPECT_THAT(norvctl::MarkdownReference(tree.root()), Not(HasSubstr("## norvctl complete\n")));
}

TEST(NorvctlReference, AsAPageOfTheManualHasItsSections)
{
    Tree tree;

    const std::string page = norvctl::ManReference(tree.root());

    EXPECT_THAT(page, StartsWith(".TH NORVCTL 1"));
    for (const char* section :
         {"NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "COMMANDS", "EXIT STATUS", "FILES", "EXAMPLES"})
    {
        EXPECT_THAT(page, HasSubstr(std::string("\n.SH ") + section + '\n'));
    }
}

TEST(NorvctlReference, AsAPageOfTheManualShowsBackslashesAndHyphensAsTheyAre)
{
    Tree tree;

    const std::string page = norvctl::ManReference(tree.root());

    EXPECT_THAT(page, HasSubstr("\nnorvctl board values AFK110 \"Constraints\\ehighest_adr\"\n"));
    EXPECT_THAT(page, HasSubstr("\\fB\\-h, \\-\\-help\\fR\n"));
}

} // namespace
} // namespace norvepa::test

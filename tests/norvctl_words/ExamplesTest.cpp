#include "norvctl/CommandTree.h"
#include "norvctl/ShellLine.h"
#include "norvctl_words/Tree.h"
#include "support/Norvctl.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using testing::IsEmpty;
using testing::Not;

// As a shell splits it; what it is led to is the shell's.
std::vector<std::string> WordsOfExample(const std::string& example)
{
    const std::string line = example.substr(0, example.find(" > ")) + ' ';
    return norvctl::ReadBashLine(line, "").words;
}

// Those that only read end with 0 on any store, and alone.
bool Changes(const CLI::App& verb)
{
    static const std::vector<std::string> verbs{
        "create", "copy",   "delete", "set", "unset", "begin",  "apply",  "discard", "profile", "busparams",
        "link",   "unlink", "on",     "off", "watch", "import", "backup", "restore", "report"};
    return std::find(verbs.begin(), verbs.end(), verb.get_name()) != verbs.end();
}

TEST(NorvctlExamples, AreThereForEveryVerbWithWhatItIsFor)
{
    Tree tree;

    for (const CLI::App* verb : norvctl::VerbsOf(tree.root()))
    {
        EXPECT_THAT(verb->get_description(), Not(IsEmpty())) << norvctl::PathOf(*verb);
        EXPECT_THAT(norvctl::ExamplesOf(*verb), Not(IsEmpty())) << norvctl::PathOf(*verb);
    }
}

TEST(NorvctlExamples, AreCommandLinesOfTheirVerb)
{
    Tree tree;

    for (const CLI::App* verb : norvctl::VerbsOf(tree.root()))
    {
        for (const std::string& example : norvctl::ExamplesOf(*verb))
        {
            Tree parsing;
            const auto words = WordsOfExample(example);

            EXPECT_NO_THROW(parsing.Parse(words)) << example;
            EXPECT_EQ(norvctl::Follow(tree.root(), words).command, verb) << example;
        }
    }
}

class NorvctlExample : public Norvctl
{
};

TEST_F(NorvctlExample, RunsOnTheSampleStoreWhereItOnlyReads)
{
    LayOutTexts();
    Tree tree;

    for (const CLI::App* verb : norvctl::VerbsOf(tree.root()))
    {
        for (const std::string& example :
             Changes(*verb) ? std::vector<std::string>{} : norvctl::ExamplesOf(*verb))
        {
            Words words;
            for (const std::string& word : WordsOfExample(example))
            {
                words.push_back(FromUtf8(word));
            }

            const ProgramEnd end = RunNorvctl(words);

            const bool isDoctor = verb->get_name() == "doctor"; // who finds something on the sample store
            EXPECT_EQ(end.exitCode, isDoctor ? 1U : 0U) << example << '\n' << end.error;
        }
    }
}

} // namespace
} // namespace norvepa::test

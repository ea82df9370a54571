#include "norvctl/Completion.h"

#include "norvctl_words/Tree.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

using Texts = std::vector<std::string>;

// What is asked of the store, as answer.
Texts Asked(const std::string& word, const norvctl::CommandLine& line)
{
    return {word + " of " + line.ValueOf("DEVICE") + line.ValueOf("NAME")};
}

Texts Candidates(const Texts& words, const std::string& present, const norvctl::StoreValues& values)
{
    Tree tree;
    Texts candidates;
    for (const norvctl::Candidate& each : norvctl::CandidatesFor(tree.root(), words, present, values))
    {
        candidates.push_back(each.word);
    }
    return candidates;
}

Texts Candidates(const Texts& words, const std::string& present)
{
    return Candidates(words, present, &Asked);
}

TEST(NorvctlCompletion, OfNothingIsTheNouns)
{
    EXPECT_THAT(Candidates({}, ""),
                AllOf(Contains("device"), Contains("reference"), Not(Contains("complete"))));
}

TEST(NorvctlCompletion, OfACommandIsThoseThatBeginAlike)
{
    EXPECT_THAT(Candidates({}, "dev"), ElementsAre("device"));
    EXPECT_THAT(Candidates({"device"}, "dri"), ElementsAre("driver-read"));
    EXPECT_THAT(Candidates({"device", "edit"}, ""), ElementsAre("begin", "list", "apply", "discard"));
    EXPECT_THAT(Candidates({"--json", "device"}, "li"), ElementsAre("list"));
}

TEST(NorvctlCompletion, BehindAWordThatIsNoneIsEmpty)
{
    EXPECT_THAT(Candidates({"devise"}, ""), IsEmpty());
}

TEST(NorvctlCompletion, OfAnOptionIsThoseThatAreNotGivenYet)
{
    EXPECT_THAT(Candidates({"device", "get", "a"}, "--"),
                ElementsAre("--section", "--json", "--headings", "--help"));
    EXPECT_THAT(Candidates({"device", "get", "--section", "x"}, "--s"), IsEmpty());
    EXPECT_THAT(Candidates({"device", "edit", "begin"}, "--f"), ElementsAre("--from"));
}

TEST(NorvctlCompletion, BehindTheLastArgumentIsTheOptions)
{
    EXPECT_THAT(Candidates({"device", "delete", "a"}, ""), Contains("--force"));
    EXPECT_THAT(Candidates({"device", "delete", "--", "a"}, ""), IsEmpty());
}

TEST(NorvctlCompletion, OfASetIsItsValues)
{
    EXPECT_THAT(Candidates({"completion"}, ""), ElementsAre("bash", "powershell"));
    EXPECT_THAT(Candidates({"trace", "on", "--format"}, ""), ElementsAre("SHORT", "LONG", "TIME", "TEXT"));
    EXPECT_THAT(Candidates({"trace", "on"}, "--format=T"), ElementsAre("--format=TIME", "--format=TEXT"));
}

TEST(NorvctlCompletion, OfAnArgumentAsksTheStoreForWhatItIsCalled)
{
    EXPECT_THAT(Candidates({"device", "show"}, ""), ElementsAre("DEVICE of "));
    EXPECT_THAT(Candidates({"name", "link", "n"}, ""), ElementsAre("DEVICE of n"));
    EXPECT_THAT(Candidates({"device", "set", "Presse#3"}, ""), ElementsAre("PARAMETER of Presse#3"));
    EXPECT_THAT(Candidates({"device", "set", "--", "-a"}, ""), ElementsAre("PARAMETER of -a"));
    EXPECT_THAT(Candidates({"device", "edit", "apply"}, ""), ElementsAre("TEMPORARY of "));
}

TEST(NorvctlCompletion, OfAnOptionsValueAsksTheStoreForWhatItIsCalled)
{
    EXPECT_THAT(Candidates({"device", "create", "a", "--from"}, ""), ElementsAre("TEMPLATE of a"));
    EXPECT_THAT(Candidates({"device", "list"}, "--type=P"), ElementsAre("--type=PROTOCOL of "));
}

TEST(NorvctlCompletion, LooksAtCaseOnlyWhereThatTellsCandidatesApart)
{
    const auto values = [](const std::string&, const norvctl::CommandLine&) {
        return Texts{"\u00DCbung", "\u00FCber", "Ofen"};
    };

    EXPECT_THAT(Candidates({"device", "show"}, "\u00FC", values), ElementsAre("\u00FCber"));
    EXPECT_THAT(Candidates({"device", "show"}, "\u00FCb", values), SizeIs(1));
    EXPECT_THAT(Candidates({"device", "show"}, "\u00FCBU", values), ElementsAre("\u00DCbung"));
    EXPECT_THAT(Candidates({"device", "show"}, "oF", values), ElementsAre("Ofen"));
}

TEST(NorvctlCompletion, TellsWhatACommandIsFor)
{
    Tree tree;

    const auto candidates = norvctl::CandidatesFor(tree.root(), {}, "doc", &Asked);

    ASSERT_THAT(candidates, SizeIs(1));
    EXPECT_EQ(candidates[0].help, tree.Command("doctor").get_description());
}

} // namespace
} // namespace norvepa::test

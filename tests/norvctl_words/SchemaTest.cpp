#include "norvctl/CommandTree.h"
#include "norvctl_words/Tree.h"
#include "support/AnswerSchema.h"
#include "support/Norvctl.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <set>
#include <string>

namespace norvepa::test
{
namespace
{

using testing::HasSubstr;
using testing::StartsWith;

// What prints no answer, but a text of its own.
const std::set<std::string> WithoutAnswer{"completion", "complete", "reference"};

std::string WithoutTool(const std::string& path)
{
    return path.substr(std::string("norvctl ").size());
}

TEST(NorvctlSchema, DefinesTheAnswerOfEveryCommand)
{
    Tree tree;
    std::set<std::string> commands;
    for (const CLI::App* verb : norvctl::VerbsOf(tree.root()))
    {
        commands.insert(WithoutTool(norvctl::PathOf(*verb)));
    }
    for (const std::string& command : WithoutAnswer)
    {
        commands.erase(command);
    }

    const std::vector<std::string> documented = DocumentedCommands();

    EXPECT_EQ(std::set<std::string>(documented.begin(), documented.end()), commands);
}

TEST(NorvctlSchema, IsWhatTheReferencePrints)
{
    EXPECT_THAT(OutputOfNorvctl({L"reference", L"--format", L"json-schema"}),
                StartsWith("{\n  \"$schema\": \"http://json-schema.org/draft-04/schema#\""));
}

TEST(NorvctlSchema, RefusesAnAnswerWithAMemberThatIsNotDocumented)
{
    const Words words{L"--json", L"version"};

    EXPECT_EQ(WhyUndocumented(words, R"({"library": "a", "version": "b"})"), "");
    EXPECT_THAT(WhyUndocumented(words, R"({"library": "a", "version": "b", "more": 1})"),
                HasSubstr("additionalProperties"));
    EXPECT_THAT(WhyUndocumented(words, R"({"library": "a"})"), HasSubstr("required"));
    EXPECT_THAT(WhyUndocumented(words, R"({"library": "a", "version": 1})"), HasSubstr("type"));
    EXPECT_THAT(WhyUndocumented(words, "version"), HasSubstr("no JSON"));
    EXPECT_EQ(WhyUndocumented({L"--json", L"frobnicate"}, "{}"), "no definition");
}

TEST(NorvctlSchema, FollowsWhatADefinitionRefersTo)
{
    const Words words{L"--json", L"device", L"busparams", L"a", L"1"};

    EXPECT_EQ(WhyUndocumented(words, R"([{"name": "a", "old": null, "new": "1"}])"), "");
    EXPECT_THAT(WhyUndocumented(words, R"([{"name": "a", "old": 1, "new": "1"}])"), HasSubstr("type"));
}

TEST(NorvctlSchema, TakesAWatchLineByLine)
{
    const Words words{L"--json", L"watch"};
    const std::string line = R"({"time": "1", "event": "changed", "folder": "meta", "file": ""})";

    EXPECT_EQ(WhyUndocumented(words, line + '\n' + line + '\n'), "");
    EXPECT_THAT(WhyUndocumented(words, line + "\n{}\n"), HasSubstr("oneOf"));
}

} // namespace
} // namespace norvepa::test

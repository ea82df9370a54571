#include "norvctl/Misuse.h"

#include "norvctl_words/Tree.h"

#include <gmock/gmock.h>
#include <ostream>

namespace norvepa::test
{
namespace
{

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

std::string Explained(const std::vector<std::string>& words)
{
    Tree tree;
    try
    {
        tree.Parse(words);
    }
    catch (const CLI::ParseError& error)
    {
        return norvctl::ExplainMisuse(tree.root(), words, error);
    }
    return "nothing is wrong";
}

struct WrongWord
{
    const char* name;
    std::vector<std::string> words;
    const char* answer;  // the first line's begin
    const char* command; // of which the help is named
};

void PrintTo(const WrongWord& wrong, std::ostream* stream)
{
    *stream << wrong.name;
}

class NorvctlWrongWord : public testing::TestWithParam<WrongWord>
{
};

TEST_P(NorvctlWrongWord, IsNamedWithTheRightOneAndWhereToReadOn)
{
    const std::string answer = Explained(GetParam().words);

    EXPECT_THAT(answer, AllOf(StartsWith(std::string("norvctl: ") + GetParam().answer),
                              EndsWith(std::string("\nRun ") + GetParam().command + " --help\n")));
}

INSTANTIATE_TEST_SUITE_P(
    CommandLines, NorvctlWrongWord,
    testing::Values(
        WrongWord{"Nothing", {}, "a command is missing: device, name, board, ", "norvctl"},
        WrongWord{"NothingButAnOption", {"--json"}, "a command is missing: device, ", "norvctl"},
        WrongWord{"FarNoun", {"frobnicate"}, "no such command: frobnicate; there are device, ", "norvctl"},
        WrongWord{"NearNoun", {"devise"}, "no such command: devise; did you mean device?\n", "norvctl"},
        WrongWord{"NounAlone", {"device"}, "device: a command is missing: list, show, ", "norvctl device"},
        WrongWord{"NearVerb",
                  {"device", "lst"},
                  "no such command: device lst; did you mean list?\n",
                  "norvctl device"},
        WrongWord{"NearVerbBelowAVerb",
                  {"device", "edit", "aply", "x"},
                  "no such command: device edit aply; did you mean apply?\n",
                  "norvctl device edit"},
        WrongWord{"NearOptionOfAll",
                  {"--jsn", "name", "list"},
                  "no such option: --jsn; did you mean --json?\n",
                  "norvctl name list"},
        WrongWord{"NearOption",
                  {"device", "list", "--tipe", "MPI"},
                  "no such option: --tipe; did you mean --type?\n",
                  "norvctl device list"},
        WrongWord{"NearOptionWithItsValue",
                  {"device", "list", "--tipe=MPI"},
                  "no such option: --tipe; did you mean --type?\n",
                  "norvctl device list"},
        WrongWord{"OptionOfAnotherVerb",
                  {"device", "show", "a", "--force"},
                  "no such option: --force; values that begin with a hyphen go behind --\n",
                  "norvctl device show"},
        WrongWord{"ValueWithAHyphen",
                  {"name", "set", "a", "b", "-x"},
                  "no such option: -x; values that begin with a hyphen go behind --\n",
                  "norvctl name set"},
        WrongWord{"NearValueOfAnOption",
                  {"trace", "on", "--format", "TEST"},
                  "no such --format: TEST; allowed are TEXT, SHORT, LONG, TIME\n",
                  "norvctl trace on"},
        WrongWord{"FarValueOfAnOption",
                  {"trace", "on", "--format=LOUD"},
                  "no such --format: LOUD; allowed are ",
                  "norvctl trace on"},
        WrongWord{"NearValueOfAnArgument",
                  {"completion", "powershel"},
                  "no such SHELL: powershel; allowed are powershell, bash\n",
                  "norvctl completion"},
        WrongWord{
            "MissingArgument", {"device", "get"}, "device get: DEVICE is required\n", "norvctl device get"},
        WrongWord{
            "ArgumentTooMany", {"device", "show", "a", "b"}, "not expected: b\n", "norvctl device show"}),
    [](const auto& wrong) { return wrong.param.name; });

TEST(NorvctlMisuseText, ShowsHowTheCommandIsTyped)
{
    EXPECT_THAT(Explained({"name", "set", "a"}),
                HasSubstr("\nUsage: norvctl name set NAME PARAMETER VALUE\n"));
}

TEST(NorvctlWords, BehindTwoHyphensAreNoOptions)
{
    EXPECT_EQ(Explained({"name", "set", "--", "a", "b", "-x"}), "nothing is wrong");
}

TEST(NorvctlWords, ThatAreNegativeNumbersAreNoOptions)
{
    EXPECT_EQ(Explained({"name", "set", "a", "b", "-5"}), "nothing is wrong");
    EXPECT_THAT(Explained({"name", "set", "a", "b", "-5", "c"}), HasSubstr("not expected: c\n"));
}

TEST(NorvctlWords, ThatBeginWithASlashAreNoOptions)
{
    EXPECT_EQ(Explained({"name", "set", "a", "port", "/dev/ttyS0"}), "nothing is wrong");
}

} // namespace
} // namespace norvepa::test

#include "support/Norvctl.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;

// What a command line that isn't one is answered with.
struct Misuse
{
    const char* name;
    Words arguments;
    const char* answer;
};

void PrintTo(const Misuse& misuse, std::ostream* stream)
{
    *stream << misuse.name;
}

class NorvctlMisuse : public testing::TestWithParam<Misuse>
{
};

TEST_P(NorvctlMisuse, EndsWithTwoAndSaysWhyOnStandardError)
{
    const ProgramEnd end = RunNorvctl(GetParam().arguments);

    EXPECT_EQ(end.exitCode, 2U);
    EXPECT_EQ(end.output, "");
    EXPECT_THAT(end.error,
                AllOf(HasSubstr(GetParam().answer), HasSubstr("\nRun norvctl "), EndsWith(" --help\n")));
}

INSTANTIATE_TEST_SUITE_P(
    CommandLines, NorvctlMisuse,
    testing::Values(
        Misuse{"Nothing", {}, "a command is missing"},
        Misuse{"UnknownNoun", {L"nix"}, "norvctl: no such command: nix"},
        Misuse{"NounAlone", {L"name"}, "a command is missing"},
        Misuse{"UnknownVerb", {L"name", L"nix"}, "norvctl: no such command: name nix"},
        Misuse{"TraceAlone", {L"trace"}, "a command is missing"},
        Misuse{"ShowWithoutName", {L"name", L"show"}, "NAME is required"},
        Misuse{"CreateWithoutName", {L"name", L"create"}, "NAME is required"},
        Misuse{"DeleteWithoutName", {L"name", L"delete"}, "NAME is required"},
        Misuse{"GetWithoutName", {L"name", L"get"}, "NAME is required"},
        Misuse{"GetWithTooMuch", {L"name", L"get", L"a", L"b", L"c"}, "c"},
        Misuse{"SetWithoutParameter", {L"name", L"set", L"a"}, "PARAMETER is required"},
        Misuse{"SetWithoutValue", {L"name", L"set", L"a", L"b"}, "VALUE is required"},
        Misuse{"UnsetWithoutParameter", {L"name", L"unset", L"a"}, "PARAMETER is required"},
        Misuse{"CreateDeviceFromNothing", {L"device", L"create", L"a"}, "--from is required"},
        Misuse{"CopyDeviceToNothing", {L"device", L"copy", L"a"}, "TO is required"},
        Misuse{"EditAlone", {L"device", L"edit"}, "a command is missing"},
        Misuse{"EditNothing", {L"device", L"edit", L"begin"}, "DEVICE"},
        Misuse{"EditTwo", {L"device", L"edit", L"begin", L"a", L"--from", L"b"}, "DEVICE"},
        Misuse{"ApplyToNothing",
               {L"device", L"edit", L"apply", L"PGSP_TEMP_LOG_DEVICE____000"},
               "DEVICE is required"},
        Misuse{"ApplyWhatIsNotTemporary",
               {L"device", L"edit", L"apply", L"Labor", L"Labor"},
               "this is not a temporary log device"},
        Misuse{"ApplyATemporaryToItself",
               {L"device", L"edit", L"apply", L"PGSP_TEMP_LOG_DEVICE____000", L"pgsp_temp_log_device____000"},
               "this is not a log device that can be replaced"},
        Misuse{"NdiAlone", {L"device", L"ndi"}, "a command is missing"},
        Misuse{"NdiSetWithoutValue", {L"device", L"ndi", L"set", L"a", L"b"}, "VALUE is required"},
        Misuse{"TextOfNothing", {L"device", L"text", L"a"}, "TEXT is required"},
        Misuse{"TextInALongLanguage",
               {L"name", L"text", L"a", L"b", L"--language", L"deu"},
               "a language has two letters"},
        Misuse{"TextInDots",
               {L"board", L"text", L"a", L"b", L"--language", L".."},
               "a language has two letters"},
        Misuse{"DriverReadOfNothing", {L"device", L"driver-read"}, "DEVICE is required"},
        Misuse{"DriverReadOfTwo", {L"device", L"driver-read", L"a", L"b"}, "not expected: b"},
        Misuse{"XmlOfNoDevice", {L"device", L"xml"}, "DEVICE is required"},
        Misuse{"XmlOfNoName", {L"name", L"xml"}, "NAME is required"},
        Misuse{"XmlOfNoBoard", {L"board", L"xml"}, "BOARD is required"},
        Misuse{"XmlOfNoTemplate", {L"template", L"xml"}, "TEMPLATE is required"},
        Misuse{"XmlOfNoProtocol", {L"protocol", L"xml"}, "PROTOCOL is required"},
        Misuse{"TemplateAlone", {L"template"}, "a command is missing"},
        Misuse{"BusparamsWithoutSpeed", {L"device", L"busparams", L"a"}, "BAUD is required"},
        Misuse{"ProfileOfNothing", {L"device", L"profile"}, "DEVICE is required"},
        Misuse{"ChoicesForNothing", {L"device", L"choices", L"a"}, "PARAMETER is required"},
        Misuse{"DescribeTooMuch", {L"device", L"describe", L"a", L"b", L"c", L"d"}, "not expected: d"},
        Misuse{"TemplateSetWithoutValue", {L"template", L"set", L"a", L"b"}, "VALUE is required"},
        Misuse{"TemplateGetOfBothSections",
               {L"template", L"get", L"a", L"b", L"--section", L"Ndi", L"--32"},
               "--section excludes --32"},
        Misuse{"SettingsAlone", {L"settings"}, "a command is missing"},
        Misuse{"SettingsSetWithoutValue", {L"settings", L"set", L"a"}, "VALUE is required"},
        Misuse{"DataAlone", {L"data"}, "a command is missing"},
        Misuse{"DataGetWithoutParameter", {L"data", L"get", L"a"}, "PARAMETER is required"},
        Misuse{"DataSetOfUnknownType",
               {L"data", L"set", L"a", L"b", L"c", L"--type", L"float"},
               "no such --type: float; allowed are "},
        Misuse{
            "DataSetInAnotherFolder", {L"data", L"set", L"a", L"b", L"c", L"--folder", L"meta"}, "--folder"},
        Misuse{"WatchOfUnknownFolder", {L"watch", L"Foo"}, "no such FOLDER: Foo; allowed are "},
        Misuse{"WatchWithoutNumber", {L"watch", L"meta", L"--timeout", L"x"}, "--timeout"},
        Misuse{"WatchForTooLong", {L"watch", L"meta", L"--timeout", L"1e12"}, "not in range"},
        Misuse{"WatchForNegativeTime", {L"watch", L"meta", L"--timeout", L"-1"}, "not in range"},
        Misuse{"TraceInUnknownFormat",
               {L"trace", L"on", L"--format", L"LOUD"},
               "no such --format: LOUD; allowed are "},
        Misuse{"TraceToUnknownOutput",
               {L"trace", L"on", L"--output", L"PIPE"},
               "no such --output: PIPE; allowed are "}),
    [](const auto& misuse) { return misuse.param.name; });

TEST(NorvctlVersion, NamesTheLibraryAndItsVersion)
{
    const ProgramEnd end = RunNorvctl({L"version"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "NorvepaBl64x " NORV_PROJECT_VERSION "\n");
    EXPECT_EQ(end.error, "");
}

TEST(NorvctlVersion, AsJsonIsOneDocument)
{
    const json version = json::parse(OutputOfNorvctl({L"--json", L"version"}));

    EXPECT_EQ(version, (json{{"library", "NorvepaBl64x"}, {"version", NORV_PROJECT_VERSION}}));
}

TEST(NorvctlHelp, NamesEveryVerb)
{
    const std::string nouns = OutputOfNorvctl({L"--help"});
    const std::string names = OutputOfNorvctl({L"name", L"--help"});
    const std::string devices = OutputOfNorvctl({L"device", L"--help"});
    const std::string templates = OutputOfNorvctl({L"template", L"--help"});
    const std::string settings = OutputOfNorvctl({L"settings", L"--help"});
    const std::string data = OutputOfNorvctl({L"data", L"--help"});
    const std::string traces = OutputOfNorvctl({L"trace", L"--help"});

    EXPECT_THAT(nouns,
                AllOf(HasSubstr("name"), HasSubstr("template"), HasSubstr("settings"), HasSubstr("data"),
                      HasSubstr("watch"), HasSubstr("trace"), HasSubstr("version")));
    EXPECT_THAT(names, AllOf(HasSubstr("list"), HasSubstr("show"), HasSubstr("create"), HasSubstr("delete"),
                             HasSubstr("get"), HasSubstr("set"), HasSubstr("unset"), HasSubstr("xml")));
    EXPECT_THAT(devices, AllOf(HasSubstr("create"), HasSubstr("copy"), HasSubstr("delete"), HasSubstr("edit"),
                               HasSubstr("ndi"), HasSubstr("text"), HasSubstr("profile"),
                               HasSubstr("busparams"), HasSubstr("choices"), HasSubstr("describe"),
                               HasSubstr("driver-read"), HasSubstr("xml")));
    EXPECT_THAT(templates, AllOf(HasSubstr("list"), HasSubstr("show"), HasSubstr("get"), HasSubstr("set"),
                                 HasSubstr("text"), HasSubstr("xml")));
    EXPECT_THAT(settings, AllOf(HasSubstr("get"), HasSubstr("set")));
    EXPECT_THAT(data, AllOf(HasSubstr("list"), HasSubstr("get"), HasSubstr("set"), HasSubstr("unset")));
    EXPECT_THAT(traces, AllOf(HasSubstr("status"), HasSubstr("on"), HasSubstr("off")));
}

} // namespace
} // namespace norvepa::test

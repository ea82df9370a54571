#include "DoctorScene.h"

#include <map>
#include <ostream>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;

// Every file of a folder and of those below it, with what it holds.
std::map<std::wstring, std::string> FilesBelow(const std::wstring& folder)
{
    std::map<std::wstring, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
    {
        const std::wstring path = entry.path().wstring();
        files[path] = entry.is_regular_file() ? ReadBytes(path) : "";
    }
    return files;
}

// The sample store as it comes.
class NorvctlDoctorOfTheSample : public Norvctl
{
};

TEST_F(NorvctlDoctorOfTheSample, TellsALineForEachOfTheTwoThingsThatAreWrongOnPurpose)
{
    const ProgramEnd end = RunNorvctl({L"doctor"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(
        end.output,
        "warning: log device Pr\u00FCfstand: the driver cannot read it: the log device does not say what "
        "to load (8516 PGSP_ERR_DRIVER_READ): name its sections in the element Load of its file, if a "
        "driver is to serve it\n"
        "error: log name Altanlage: it is linked to the log device Verdampfer alt, which does not "
        "exist: norvctl name link \"Altanlage\" DEVICE, or norvctl name unlink \"Altanlage\"\n");
    EXPECT_EQ(end.error, "");
}

TEST_F(NorvctlDoctorOfTheSample, AsJsonIsAnArray)
{
    const ProgramEnd end = RunNorvctl({L"--json", L"doctor"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(json::parse(end.output),
              json::array({Finding("warning", "log device", "Pr\u00FCfstand",
                                   "the driver cannot read it: the log device does not say what to load "
                                   "(8516 PGSP_ERR_DRIVER_READ)",
                                   "name its sections in the element Load of its file, if a driver is to "
                                   "serve it"),
                           Finding("error", "log name", "Altanlage",
                                   "it is linked to the log device Verdampfer alt, which does not exist",
                                   "norvctl name link \"Altanlage\" DEVICE, or norvctl name unlink "
                                   "\"Altanlage\"")}));
}

TEST_F(NorvctlDoctor, TellsInOneLineThatNothingIsWrong)
{
    const ProgramEnd end = RunNorvctl({L"doctor"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "nothing is wrong\n");
    EXPECT_EQ(end.error, "");
}

TEST_F(NorvctlDoctor, TellsThatNothingIsWrongAsAnEmptyArray)
{
    const ProgramEnd end = RunNorvctl({L"--json", L"doctor"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(json::parse(end.output), json::array());
}

TEST_F(NorvctlDoctor, LeavesADamagedStoreAsItIs)
{
    ChangeSample(LogDevicePath(L"Kesselhaus"), "<Name>watchdog</Name><Value>200<",
                 "<Name>watchdog</Name><Value>15<");
    WriteBytes(LogDevicePath(L"Labor(temp)"), ReadBytes(LogDevicePath(L"Labor")));
    WriteBytes(LogNamePath(L"Lagerhaus"), "");
    const auto before = FilesBelow(folder.path());

    const ProgramEnd end = RunNorvctl({L"doctor"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(FilesBelow(folder.path()), before);
}

TEST_F(NorvctlDoctor, IsToldToNoWatch)
{
    ChangeSample(LogDevicePath(L"Kesselhaus"), "<Name>watchdog</Name><Value>200<",
                 "<Name>watchdog</Name><Value>15<");
    Watch watch({L"watch", L"LogDevices", L"--count", L"1", L"--timeout", L"2"});

    static_cast<void>(RunNorvctl({L"doctor"}));

    const ProgramEnd end = watch.Finish();
    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
}

TEST_F(NorvctlDoctor, ExplainsItself)
{
    const ProgramEnd end = RunNorvctl({L"doctor", L"--help"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_THAT(end.output, HasSubstr("wrong in the store"));
}

// To anything else but doctor it is 1.
struct DoctorMisuse
{
    const char* name;
    Words arguments;
};

void PrintTo(const DoctorMisuse& misuse, std::ostream* stream)
{
    *stream << misuse.name;
}

class NorvctlDoctorMisuse : public testing::TestWithParam<DoctorMisuse>
{
};

TEST_P(NorvctlDoctorMisuse, EndsWithTwo)
{
    const ProgramEnd end = RunNorvctl(GetParam().arguments);

    EXPECT_EQ(end.exitCode, 2U);
    EXPECT_EQ(end.output, "");
    EXPECT_THAT(end.error, HasSubstr("Run norvctl doctor --help"));
}

INSTANTIATE_TEST_SUITE_P(CommandLines, NorvctlDoctorMisuse,
                         testing::Values(DoctorMisuse{"Argument", {L"doctor", L"Labor"}},
                                         DoctorMisuse{"Option", {L"doctor", L"--repair"}}),
                         [](const auto& misuse) { return misuse.param.name; });

} // namespace
} // namespace norvepa::test

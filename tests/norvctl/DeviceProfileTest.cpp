#include "support/Norvctl.h"
#include "support/SampleChange.h"

#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;

class NorvctlProfile : public Norvctl
{
protected:
    static ProgramEnd SetBusparams(const std::wstring& device, const std::wstring& baudrate)
    {
        return RunNorvctl({L"device", L"busparams", device, baudrate});
    }

    static ProgramEnd ApplyProfile(const std::wstring& device)
    {
        return RunNorvctl({L"device", L"profile", device});
    }

    static std::string Value(const std::wstring& device, const std::wstring& parameter)
    {
        return OutputOfNorvctl({L"device", L"get", device, parameter});
    }

    void RemoveMaxTsdr() const
    {
        ChangeSample(LogDevicePath(L"Presse(nmbr)3"),
                     "<ParameterInt><Name>max_tsdr</Name><Value>60</Value></ParameterInt>", "");
    }
};

TEST_F(NorvctlProfile, BusparamsTellsTheSpeedAndWhatFollowsFromIt)
{
    const ProgramEnd end = SetBusparams(L"Presse#3", L"1500000");

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "baudrate: 187500 -> 1500000\n"
                          "slot_time: 100 -> 300\n"
                          "max_tsdr: 60 -> 150\n");
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(Value(L"Presse#3", L"slot_time"), "300\n");
}

TEST_F(NorvctlProfile, BusparamsFollowsTheBusProfileOfAnL2)
{
    const ProgramEnd end = SetBusparams(L"Kesselhaus", L"187500");

    EXPECT_EQ(end.output, "baudrate: 1500000 -> 187500\n"
                          "slot_time: 600 -> 400\n"
                          "max_tsdr: 300 -> 120\n"
                          "setup_time: 150 -> 80\n"
                          "ttr: 85000 -> 25240\n");
    EXPECT_EQ(end.error, "");
}

TEST_F(NorvctlProfile, BusparamsLeavesItsOwnProfileToAnL2)
{
    const ProgramEnd end = SetBusparams(L"Kl\u00E4ranlage", L"500000");

    EXPECT_EQ(end.output, "baudrate: 187500 -> 500000\n");
    EXPECT_EQ(end.error, "");
}

TEST_F(NorvctlProfile, BusparamsTellsNothingWhenNothingHasChanged)
{
    const ProgramEnd text = SetBusparams(L"Presse#3", L"187500");
    const std::string document =
        OutputOfNorvctl({L"--json", L"device", L"busparams", L"Presse#3", L"187500"});

    EXPECT_EQ(text.exitCode, 0U);
    EXPECT_EQ(text.output, "");
    EXPECT_EQ(text.error, "");
    EXPECT_EQ(json::parse(document), json::array());
}

TEST_F(NorvctlProfile, BusparamsAsJsonIsAnArray)
{
    const json changes =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"busparams", L"Waage Rampe 2", L"19200"}));

    EXPECT_EQ(changes, (json::array({{{"name", "baudrate"}, {"old", "9600"}, {"new", "19200"}},
                                     {{"name", "char_delay"}, {"old", "4"}, {"new", "3"}},
                                     {{"name", "ack_timeout"}, {"old", "1000"}, {"new", "600"}}})));
}

TEST_F(NorvctlProfile, BusparamsTellsAValueThatWasNotThere)
{
    RemoveMaxTsdr();

    const ProgramEnd end = SetBusparams(L"Presse#3", L"1500000");

    EXPECT_THAT(end.output, HasSubstr("max_tsdr: - -> 150\n"));
}

TEST_F(NorvctlProfile, BusparamsAsJsonTellsNullForAValueThatWasNotThere)
{
    RemoveMaxTsdr();

    const json changes =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"busparams", L"Presse#3", L"1500000"}));

    EXPECT_THAT(changes, Contains(json{{"name", "max_tsdr"}, {"old", nullptr}, {"new", "150"}}));
}

TEST_F(NorvctlProfile, BusparamsRefusesASpeedWithoutAProfileAndLeavesTheOldOne)
{
    const ProgramEnd end = SetBusparams(L"Presse#3", L"500000");

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: Presse#3, baudrate: the profile has no value for the parameter (8062 "
                         "PGSP_PROFILE_NO_VALUE): see device choices Presse#3 baudrate --average\n");
    EXPECT_EQ(Value(L"Presse#3", L"baudrate"), "187500\n");
}

TEST_F(NorvctlProfile, BusparamsTellsWhatHasChangedAheadOfAFailure)
{
    ChangeSample(CataloguePath(MpiProtocol), "<Name>max_tsdr</Name><Value>150</Value>",
                 "<Name>max_tsdr</Name><Value>15000</Value>"); // more than its maximum

    const ProgramEnd end = SetBusparams(L"Presse#3", L"1500000");

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_THAT(end.error,
                EndsWith("(8062 PGSP_PROFILE_NO_VALUE): what it wrote stays: slot_time: 100 -> 300\n"));
}

TEST_F(NorvctlProfile, BusparamsRefusesWhatTheLibraryRefuses)
{
    const ProgramEnd notANumber = SetBusparams(L"Kesselhaus", L"schnell");
    const ProgramEnd withoutSpeed = SetBusparams(L"Labor", L"9600");
    const ProgramEnd missing = SetBusparams(L"gone", L"9600");

    EXPECT_EQ(notANumber.exitCode, 1U);
    EXPECT_EQ(notANumber.error, "norvctl: Kesselhaus, baudrate: the name or the value is not acceptable "
                                "(87 PGSP_ERR_INVALID_PARAMETERS)\n");
    EXPECT_EQ(withoutSpeed.exitCode, 1U);
    EXPECT_EQ(withoutSpeed.error,
              "norvctl: Labor, baudrate: there is no such parameter (8513 PGSP_ERR_PARAM_NOT_FOUND)\n");
    EXPECT_EQ(missing.exitCode, 1U);
    EXPECT_EQ(missing.error, "norvctl: gone: there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND)\n");
}

TEST_F(NorvctlProfile, BusparamsIsToldToAWatchInAnotherProcess)
{
    Watch watch({L"watch", L"LogDevices", L"Presse#3", L"--count", L"1", L"--timeout", L"60"});

    SetBusparams(L"Presse#3", L"1500000");

    EXPECT_THAT(watch.Finish().output, EndsWith(" changed LogDevices, Presse#3\n"));
}

TEST_F(NorvctlProfile, BusparamsOfATemporaryCopyLeavesTheOriginal)
{
    const std::wstring copy = L"PGSP_TEMP_LOG_DEVICE____000";
    OutputOfNorvctl({L"device", L"edit", L"begin", L"Presse#3"});

    const ProgramEnd end = SetBusparams(copy, L"1500000");

    EXPECT_THAT(end.output, HasSubstr("baudrate: 187500 -> 1500000\n"));
    EXPECT_EQ(Value(L"Presse#3", L"baudrate"), "187500\n");
}

TEST_F(NorvctlProfile, ProfileWritesWhatBelongsToTheBusProfile)
{
    OutputOfNorvctl({L"device", L"set", L"Kesselhaus", L"baudrate", L"187500"});

    const ProgramEnd first = ApplyProfile(L"Kesselhaus");
    const ProgramEnd second = ApplyProfile(L"Kesselhaus");

    EXPECT_EQ(first.output, "slot_time: 600 -> 400\n"
                            "max_tsdr: 300 -> 120\n"
                            "setup_time: 150 -> 80\n"
                            "ttr: 85000 -> 25240\n");
    EXPECT_EQ(first.error, "");
    EXPECT_EQ(second.exitCode, 0U);
    EXPECT_EQ(second.output, "");
}

TEST_F(NorvctlProfile, ProfileWritesWhatBelongsToTheBaudRate)
{
    OutputOfNorvctl({L"device", L"set", L"Waage Rampe 2", L"baudrate", L"19200"});

    const json changes =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"profile", L"Waage Rampe 2", L"baudrate"}));

    EXPECT_EQ(changes, (json::array({{{"name", "char_delay"}, {"old", "4"}, {"new", "3"}},
                                     {{"name", "ack_timeout"}, {"old", "1000"}, {"new", "600"}}})));
}

TEST_F(NorvctlProfile, ProfileIsToldToAWatchInAnotherProcess)
{
    OutputOfNorvctl({L"device", L"set", L"Kesselhaus", L"baudrate", L"187500"});
    Watch watch({L"watch", L"LogDevices", L"--count", L"1", L"--timeout", L"60"});

    ApplyProfile(L"Kesselhaus");

    EXPECT_THAT(watch.Finish().output, EndsWith(" changed LogDevices\n"));
}

TEST_F(NorvctlProfile, ProfileTellsWhyThereIsNone)
{
    ChangeSample(LogDevicePath(L"Kesselhaus"), "<Name>busparam</Name><Value>1</Value>",
                 "<Name>busparam</Name><Value>7</Value>");

    const ProgramEnd unknown = ApplyProfile(L"Kesselhaus");
    const ProgramEnd without = ApplyProfile(L"Labor");

    EXPECT_EQ(unknown.exitCode, 1U);
    EXPECT_EQ(unknown.output, "");
    EXPECT_EQ(unknown.error,
              "norvctl: Kesselhaus, busparam: the profile has no value for the parameter (8062 "
              "PGSP_PROFILE_NO_VALUE): L2 has no profile for busparam 7\n");
    EXPECT_EQ(without.exitCode, 1U);
    EXPECT_THAT(without.error, EndsWith(": the log device has no value for it\n"));
}

TEST_F(NorvctlProfile, ProfileOfAMissingLogDeviceFails)
{
    const ProgramEnd end = ApplyProfile(L"gone");

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "norvctl: gone: there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND)\n");
}

} // namespace
} // namespace norvepa::test

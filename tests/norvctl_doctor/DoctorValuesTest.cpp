#include "DoctorScene.h"
#include "support/LoadedLibrary.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

using nlohmann::json;

// Puts a value into a log device's file as it stands, past every check.
void StoreRaw(const std::wstring& path, const std::string& name, const std::string& value)
{
    const std::string bytes = ReadBytes(path);
    const std::string start = "<Name>" + name + "</Name><Value>";
    const std::size_t at = bytes.find(start);
    if (at == std::string::npos)
    {
        throw std::runtime_error("the sample store does not hold " + name);
    }
    const std::size_t begin = at + start.size();
    const std::size_t end = bytes.find("</Value>", begin);
    WriteBytes(path, bytes.substr(0, begin) + value + bytes.substr(end));
}

class NorvctlDoctorValues : public NorvctlDoctor
{
};

TEST_F(NorvctlDoctorValues, TellsOfAValueThatIsRefusedUntilItIsSetAsTold)
{
    StoreRaw(LogDevicePath(L"Kesselhaus"), "watchdog", "15");
    const json findings = Findings();
    OutputOfNorvctl({L"device", L"set", L"Kesselhaus", L"watchdog", L"20"});

    EXPECT_EQ(
        findings,
        json::array({Finding("error", "log device", "Kesselhaus",
                             "watchdog is \"15\", which its catalogue refuses: the value lies between "
                             "two steps (8058 PGSP_NOT_IN_STEP)",
                             "norvctl device set \"Kesselhaus\" watchdog VALUE; allowed are 10 to 30000 "
                             "in steps of 10")}));
    ExpectNone();
}

TEST_F(NorvctlDoctorValues, TellsOfAValueThatABoardHasCeasedToAllow)
{
    ChangeSample(CataloguePath(L"Boards\\Automation-OnlineAccess-BT-AFK220"), "<Value>1500000/",
                 "<Value>1500001/");

    const json findings = Findings();

    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].at("name"), "Kesselhaus");
    EXPECT_EQ(findings[0].at("finding"), "baudrate is \"1500000\", which its catalogue refuses: the value is "
                                         "not one of those allowed (8050 PGSP_NOT_IN_LIST)");
}

TEST_F(NorvctlDoctorValues, AreToldOfOnceWhereTwoParametersShareAPlace)
{
    StoreRaw(LogDevicePath(L"Presse(nmbr)3"), "ts", "127"); // "station_adr" is stored there, too

    const json findings = Findings();

    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].at("name"), "Presse#3");
    EXPECT_EQ(findings[0].at("finding"), "ts is \"127\", which its catalogue refuses: the value is over the "
                                         "maximum (8056 PGSP_SET_VAL_BIGGER_THAN_MAX)");
}

TEST_F(NorvctlDoctorValues, LetASubdeviceHaveAny)
{
    ChangeSample(LogDevicePath(L"Kesselhaus"), "<Name>watchdog</Name><Value>400<",
                 "<Name>watchdog</Name><Value>15<"); // of a subdevice

    ExpectNone();
}

TEST_F(NorvctlDoctorValues, LetAParameterOfTheSameNameInAnotherSectionHaveAny)
{
    ChangeSample(LogDevicePath(L"Kesselhaus"), "<SpareSection>",
                 "<SpareSection><ParameterInt><Name>watchdog</Name><Value>15</Value></ParameterInt>");

    ExpectNone();
}

TEST_F(NorvctlDoctorValues, AreLookedAtInASectionThatNoEnumerationTells)
{
    ChangeSample(CataloguePath(MpiProtocol), "<Constraints>",
                 "<Constraints><ParamSection Param=\"Baujahr\"><type>int</type><default>2000</default>"
                 "<min>1990</min><section>Ndi</section><map>YearOfManufacture</map></ParamSection>");
    StoreRaw(LogDevicePath(L"Presse(nmbr)3"), "YearOfManufacture", "1989");

    const json findings = Findings();

    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].at("finding"), "Baujahr is \"1989\", which its catalogue refuses: the value is "
                                         "under the minimum (8054 PGSP_SET_VAL_LESS_THAN_MIN)");
}

// A value of a log device, and what the library says when it is offered it.
struct Offer
{
    const char* parameter;
    const char* storedAs;
    const char* value;
    std::int32_t result;
};

// Offers to copies of one log device, with something else in its catalogue.
struct Offers
{
    const char* name;
    const wchar_t* device; // its file
    std::vector<Offer> offers;
};

void PrintTo(const Offers& offers, std::ostream* stream)
{
    *stream << offers.name;
}

class NorvctlDoctorAndTheLibrary : public NorvctlDoctor, public testing::WithParamInterface<Offers>
{
protected:
    // "Angebot 0", "Angebot 1" ...
    static std::string DeviceOf(std::size_t offer) { return "Angebot " + std::to_string(offer); }

    // Of all that is told of a log device, what is told of its parameter, or of another that is stored there.
    static std::string ToldOf(const json& findings, const std::string& device, const Offer& offer)
    {
        const std::string isWhat = " is \"";
        for (const json& finding : findings)
        {
            const std::string text = finding.at("finding");
            if (finding.at("name") == device &&
                (text.starts_with(offer.parameter + isWhat) || text.starts_with(offer.storedAs + isWhat)))
            {
                return text;
            }
        }
        return "";
    }
};

TEST_P(NorvctlDoctorAndTheLibrary, RefuseTheSameValues)
{
    const std::vector<Offer>& offers = GetParam().offers;
    for (std::size_t i = 0; i < offers.size(); ++i)
    {
        const std::wstring path = LogDevicePath(FromUtf8(DeviceOf(i)));
        WriteBytes(path, ReadBytes(LogDevicePath(GetParam().device)));
        StoreRaw(path, offers[i].storedAs, offers[i].value);
    }

    const json findings = json::parse(RunNorvctl({L"--json", L"doctor"}).output);

    const Exports library;
    for (std::size_t i = 0; i < offers.size(); ++i)
    {
        const Offer& offer = offers[i];
        SCOPED_TRACE(std::string(offer.parameter) + " = " + offer.value);
        const std::wstring device = FromUtf8(DeviceOf(i));
        const std::int32_t result = library.LogDeviceSetValueBL(
            device.c_str(), FromUtf8(offer.parameter).c_str(), FromUtf8(offer.value).c_str());
        EXPECT_EQ(result, offer.result);
        const std::string told = ToldOf(findings, DeviceOf(i), offer);
        if (result == PGSP_OK)
        {
            EXPECT_EQ(told, "");
        }
        else
        {
            EXPECT_THAT(told, testing::HasSubstr("(" + std::to_string(result) + " "));
        }
    }
}

constexpr std::int32_t Refused = PGSP_ERR_INVALID_PARAMETERS;
constexpr std::int32_t NotListed = PGSP_NOT_IN_LIST;
constexpr std::int32_t Under = PGSP_SET_VAL_LESS_THAN_MIN;
constexpr std::int32_t Over = PGSP_SET_VAL_BIGGER_THAN_MAX;
constexpr std::int32_t OffStep = PGSP_NOT_IN_STEP;

INSTANTIATE_TEST_SUITE_P(
    Devices, NorvctlDoctorAndTheLibrary,
    testing::Values(Offers{"Kesselhaus",
                           L"Kesselhaus",
                           {{"watchdog", "watchdog", "30000", PGSP_OK},
                            {"watchdog", "watchdog", "30010", Over},
                            {"watchdog", "watchdog", "15", OffStep},
                            {"watchdog", "watchdog", "5", Under},
                            {"watchdog", "watchdog", "-10", Under},
                            {"watchdog", "watchdog", "", Refused},
                            {"watchdog", "watchdog", "MAX", PGSP_OK},
                            {"watchdog", "watchdog", "default", PGSP_OK},
                            {"watchdog", "watchdog", "20 ms", Refused},
                            {"watchdog", "watchdog", "viel", Under},
                            {"baudrate", "baudrate", "19200", PGSP_OK},
                            {"baudrate", "baudrate", "45450", NotListed},
                            {"baudrate", "baudrate", "min", NotListed},
                            {"baudrate", "baudrate", "", Refused},
                            {"l4_timeout", "l4_timeout", "1000", PGSP_OK},
                            {"l4_timeout", "l4_timeout", "1001", NotListed},
                            {"redundant_master", "redundant_master", "TRUE", PGSP_OK},
                            {"redundant_master", "redundant_master", "1", PGSP_NOT_A_BOOL},
                            {"redundant_master", "redundant_master", "", PGSP_NOT_A_BOOL},
                            {"memory_base", "memory_base", "7FFFF", Under},
                            {"memory_base", "memory_base", "80000", PGSP_OK},
                            {"memory_base", "memory_base", "800000", Over},
                            {"memory_base", "memory_base", "9ABCD", Refused},
                            {"retry_limit", "retry_limit", "1000", PGSP_OK},
                            {"retry_limit", "retry_limit", "min", Refused},
                            {"station_adr", "ts", "126", PGSP_OK},
                            {"station_adr", "ts", "127", Over},
                            {"cable", "cable", "Pappe", PGSP_OK}}},
                    Offers{"Presse",
                           L"Presse(nmbr)3",
                           {{"baudrate", "baudrate", "19200", PGSP_OK},
                            {"baudrate", "baudrate", "45450", NotListed},
                            {"baudrate", "baudrate", "3000000", NotListed},
                            {"l4_timeout", "l4_timeout", "1000", PGSP_OK},
                            {"l4_timeout", "l4_timeout", "500", NotListed},
                            {"highest_adr", "highest_adr", "63", PGSP_OK},
                            {"highest_adr", "highest_adr", "64", Over},
                            {"highest_adr", "highest_adr", "0", Under}}},
                    Offers{"Leitwarte",
                           L"Leitwarte",
                           {{"l4_timeout", "l4_timeout", "5000", PGSP_OK},
                            {"l4_timeout", "l4_timeout", "400", NotListed},
                            {"port", "port", "1024", PGSP_OK},
                            {"port", "port", "1023", Under},
                            {"port", "port", "65536", Over},
                            {"connect_timeout", "connect_timeout", "150", OffStep},
                            {"vlan_id", "vlan_id", "1000", Over},
                            {"vlan_id", "vlan_id", "999", PGSP_OK},
                            {"dhcp", "dhcp", "ja", PGSP_NOT_A_BOOL},
                            {"address", "ip_address", "irgendwo", PGSP_OK}}},
                    Offers{"Waage",
                           L"Waage Rampe 2",
                           {{"io_base", "io_base", "308", PGSP_OK},
                            {"io_base", "io_base", "304", OffStep},
                            {"io_base", "io_base", "400", Over},
                            {"baudrate", "baudrate", "1200", NotListed},
                            {"char_delay", "char_delay", "256", Over}}}),
    [](const auto& offers) { return offers.param.name; });

} // namespace
} // namespace norvepa::test

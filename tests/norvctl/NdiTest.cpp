#include "support/Norvctl.h"
#include "support/XmlFiles.h"

#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::AnyOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class NorvctlNdi : public Norvctl
{
protected:
    static ProgramEnd Set(const std::wstring& parameter, const std::wstring& value)
    {
        return RunNorvctl({L"device", L"ndi", L"set", L"Kesselhaus", parameter, value});
    }

    static std::string Value(const std::wstring& parameter)
    {
        return OutputOfNorvctl({L"device", L"ndi", L"get", L"Kesselhaus", parameter});
    }

    static std::string ValueOf32(const std::wstring& parameter)
    {
        return OutputOfNorvctl({L"device", L"ndi", L"get", L"Kesselhaus", parameter, L"--32"});
    }
};

TEST_F(NorvctlNdi, ListTellsParametersAndLinksToPages)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"ndi", L"list", L"Kesselhaus"}),
              "enable_delete                true\n"
              "hidden                       false\n"
              "DefLogDevice                 L2-AFK220\n"
              "VendorName                   Auental Automation\n"
              "OrderCode                    AFK220-0\n"
              "SerialNumber                 AU-220-00417\n"
              "YearOfManufacture            2019\n"
              "DialogTitle                  Kesselhaus\n"
              "PropSheet                    AuentalSeiten.dll,ShowFeldbusPage\n"
              "Diagnosis                    AuentalSeiten.dll,ShowFeldbusDiagnosis\n");
}

TEST_F(NorvctlNdi, ListFor32BitProcessesTellsTheirLinks)
{
    const std::string list = OutputOfNorvctl({L"device", L"ndi", L"list", L"Kesselhaus", L"--32"});

    EXPECT_THAT(list, HasSubstr("PropSheet                    AuentalSeiten.dll,ShowFeldbusPage32\n"));
}

TEST_F(NorvctlNdi, ListAsJsonNamesTheSection)
{
    const json list =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"ndi", L"list", L"Presse#3", L"--32"}));

    EXPECT_EQ(list.at("device"), "Presse#3");
    EXPECT_EQ(list.at("section"), "UserInterface");
    EXPECT_EQ(list.at("values").at("enable_delete"), "true");
}

TEST_F(NorvctlNdi, GetTellsAParameterOrALinkToAPage)
{
    EXPECT_EQ(Value(L"serialnumber"), "AU-220-00417\n");
    EXPECT_EQ(Value(L"PropSheet"), "AuentalSeiten.dll,ShowFeldbusPage\n");
    EXPECT_EQ(ValueOf32(L"PropSheet"), "AuentalSeiten.dll,ShowFeldbusPage32\n");
}

TEST_F(NorvctlNdi, GetAsJsonNamesTheSection)
{
    const json got =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"ndi", L"get", L"Kesselhaus", L"OrderCode"}));

    EXPECT_EQ(got, (json{{"device", "Kesselhaus"},
                         {"parameter", "OrderCode"},
                         {"section", "UserInterface64"},
                         {"value", "AFK220-0"}}));
}

TEST_F(NorvctlNdi, GetOfALinkToATextTellsTheText)
{
    LayOutTexts();

    EXPECT_THAT(Value(L"DescText"), AnyOf("Dampferzeuger 1 und 2\n", "Steam generators 1 and 2\n"));
}

TEST_F(NorvctlNdi, GetTellsALongValueWhole)
{
    const std::wstring text(5000, L'x');
    WriteBytes(LogDevicePath(L"Labor"),
               LogDeviceFile(XmlContent().Element(L"Ndi", XmlContent().Text(L"Remark", text))));

    EXPECT_EQ(OutputOfNorvctl({L"device", L"ndi", L"get", L"Labor", L"Remark"}), ToUtf8(text) + "\n");
}

TEST_F(NorvctlNdi, GetOfWhatIsNotThereFails)
{
    const ProgramEnd parameter = RunNorvctl({L"device", L"ndi", L"get", L"Kesselhaus", L"gone"});
    const ProgramEnd device = RunNorvctl({L"device", L"ndi", L"get", L"gone", L"hidden"});

    EXPECT_EQ(parameter.exitCode, 1U);
    EXPECT_EQ(parameter.output, "");
    EXPECT_EQ(parameter.error,
              "norvctl: Kesselhaus, gone: there is no such parameter (8513 PGSP_ERR_PARAM_NOT_FOUND)\n");
    EXPECT_EQ(device.exitCode, 1U);
    EXPECT_EQ(device.error, "norvctl: gone, hidden: there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND)\n");
}

TEST_F(NorvctlNdi, GetOfALinkWithoutItsLibraryFails)
{
    const ProgramEnd end = RunNorvctl({L"device", L"ndi", L"get", L"Kesselhaus", L"DescText"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "norvctl: Kesselhaus, DescText: the resource library cannot be loaded (8101 "
                         "PGSP_ERR_CANT_LOAD_DLL)\n");
}

TEST_F(NorvctlNdi, SetStoresAParameterOnce)
{
    const ProgramEnd first = Set(L"SerialNumber", L"AU-220-\u03A9");
    const ProgramEnd second = Set(L"SerialNumber", L"AU-220-\u03A9");

    EXPECT_EQ(first.output, "set Kesselhaus, SerialNumber\n");
    EXPECT_EQ(first.error, "");
    EXPECT_EQ(second.exitCode, 0U);
    EXPECT_EQ(second.output, "unchanged Kesselhaus, SerialNumber\n");
    EXPECT_EQ(Value(L"SerialNumber"), "AU-220-\u03A9\n");
}

TEST_F(NorvctlNdi, SetAsJsonTellsWhatWasDone)
{
    const json done =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"ndi", L"set", L"Kesselhaus", L"Halle", L"3"}));

    EXPECT_EQ(done, (json{{"done", "set"}, {"device", "Kesselhaus"}, {"parameter", "Halle"}}));
}

TEST_F(NorvctlNdi, SetStoresALinkInOneOfTheSections)
{
    OutputOfNorvctl({L"device", L"ndi", L"set", L"Kesselhaus", L"Diagnosis", L"Neu.dll,Zeige", L"--32"});

    EXPECT_EQ(ValueOf32(L"Diagnosis"), "Neu.dll,Zeige\n");
    EXPECT_EQ(Value(L"Diagnosis"), "AuentalSeiten.dll,ShowFeldbusDiagnosis\n");
}

TEST_F(NorvctlNdi, SetTellsALinkThatHasChangedFromOneThatHasNot)
{
    LayOutTexts();
    const ProgramEnd another = Set(L"DescText", L"AuentalTexte.dll,3005");
    const ProgramEnd same = Set(L"DescText", L"AuentalTexte.dll,3005");

    EXPECT_EQ(another.output, "set Kesselhaus, DescText\n");
    EXPECT_EQ(same.output, "unchanged Kesselhaus, DescText\n");
    EXPECT_EQ(Value(L"DescText"), "500 kbit/s\n");
}

TEST_F(NorvctlNdi, SetTellsSoAlsoWithoutTheLibraryOfTheLink)
{
    const ProgramEnd another = Set(L"DescText", L"AuentalTexte.dll,1002");
    const ProgramEnd same = Set(L"DescText", L"AuentalTexte.dll,1002");

    EXPECT_EQ(another.output, "set Kesselhaus, DescText\n");
    EXPECT_EQ(same.output, "unchanged Kesselhaus, DescText\n");
}

TEST_F(NorvctlNdi, SetIsToldToAWatchInAnotherProcess)
{
    Watch watch({L"watch", L"LogDevices", L"Kesselhaus", L"--count", L"1", L"--timeout", L"60"});

    Set(L"Halle", L"3");

    EXPECT_THAT(watch.Finish().output, EndsWith(" changed LogDevices, Kesselhaus\n"));
}

TEST_F(NorvctlNdi, SetRefusesWhatTheLibraryRefuses)
{
    const std::string before = ReadBytes(LogDevicePath(L"Kesselhaus"));

    const ProgramEnd text = Set(L"DescText", L"<Kessel>,1001");
    const ProgramEnd missing = RunNorvctl({L"device", L"ndi", L"set", L"gone", L"Halle", L"3"});

    EXPECT_EQ(text.exitCode, 1U);
    EXPECT_EQ(text.error, "norvctl: Kesselhaus, DescText: the name or the value is not acceptable "
                          "(87 PGSP_ERR_INVALID_PARAMETERS)\n");
    EXPECT_EQ(ReadBytes(LogDevicePath(L"Kesselhaus")), before);
    EXPECT_EQ(missing.exitCode, 1U);
    EXPECT_THAT(missing.error, HasSubstr("norvctl: gone, Halle: there is no such file"));
}

TEST_F(NorvctlNdi, UnsetRemovesAParameter)
{
    const ProgramEnd end = RunNorvctl({L"device", L"ndi", L"unset", L"Kesselhaus", L"SerialNumber"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "unset Kesselhaus, SerialNumber\n");
    EXPECT_EQ(end.error, "");
    EXPECT_THAT(OutputOfNorvctl({L"device", L"ndi", L"list", L"Kesselhaus"}), Not(HasSubstr("SerialNumber")));
}

TEST_F(NorvctlNdi, UnsetRemovesALinkToAPageFromOneOfTheSections)
{
    OutputOfNorvctl({L"device", L"ndi", L"unset", L"Kesselhaus", L"PropSheet", L"--32"});

    EXPECT_EQ(RunNorvctl({L"device", L"ndi", L"get", L"Kesselhaus", L"PropSheet", L"--32"}).exitCode, 1U);
    EXPECT_EQ(Value(L"PropSheet"), "AuentalSeiten.dll,ShowFeldbusPage\n");
}

TEST_F(NorvctlNdi, UnsetAsJsonTellsWhatWasDone)
{
    const json done = json::parse(
        OutputOfNorvctl({L"--json", L"device", L"ndi", L"unset", L"Kesselhaus", L"SerialNumber"}));

    EXPECT_EQ(done, (json{{"done", "unset"}, {"device", "Kesselhaus"}, {"parameter", "SerialNumber"}}));
}

TEST_F(NorvctlNdi, UnsetIsToldToAWatchInAnotherProcess)
{
    Watch watch({L"watch", L"LogDevices", L"Kesselhaus", L"--count", L"1", L"--timeout", L"60"});

    OutputOfNorvctl({L"device", L"ndi", L"unset", L"Kesselhaus", L"SerialNumber"});

    EXPECT_THAT(watch.Finish().output, EndsWith(" changed LogDevices, Kesselhaus\n"));
}

TEST_F(NorvctlNdi, UnsetLeavesLinksToTexts)
{
    const std::string before = ReadBytes(LogDevicePath(L"Kesselhaus"));

    const ProgramEnd end = RunNorvctl({L"device", L"ndi", L"unset", L"Kesselhaus", L"DescText"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error,
              "norvctl: Kesselhaus, DescText: there is no such parameter (8513 PGSP_ERR_PARAM_NOT_FOUND)\n");
    EXPECT_EQ(ReadBytes(LogDevicePath(L"Kesselhaus")), before);
}

TEST_F(NorvctlNdi, OfATemporaryCopyIsSetWithoutAnAnnouncement)
{
    OutputOfNorvctl({L"device", L"edit", L"begin", L"Kesselhaus"});
    const std::wstring copy = L"PGSP_TEMP_LOG_DEVICE____000";

    EXPECT_EQ(OutputOfNorvctl({L"device", L"ndi", L"set", copy, L"Diagnosis", L"Neu.dll,Zeige"}),
              "set PGSP_TEMP_LOG_DEVICE____000, Diagnosis\n");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"ndi", L"get", copy, L"Diagnosis"}), "Neu.dll,Zeige\n");
}

} // namespace
} // namespace norvepa::test

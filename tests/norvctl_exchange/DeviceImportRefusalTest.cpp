#include "ImportScene.h"
#include "support/OpenFile.h"

namespace norvepa::test
{
namespace
{

using testing::HasSubstr;

// Whatever is refused, nothing has changed.
class NorvctlDeviceImportRefused : public NorvctlImport
{
protected:
    ~NorvctlDeviceImportRefused() override
    {
        EXPECT_EQ(BytesOf(L"Kesselhaus"), m_before);
        EXPECT_TRUE(IsNothingLeft());
    }

private:
    std::string m_before = BytesOf(L"Kesselhaus");
};

TEST_F(NorvctlDeviceImportRefused, TellsEachValueThatIsAndWhatIsAllowed)
{
    Document document = Exported(L"Kesselhaus");
    document["sections"]["LocalSettings"]["watchdog"] = "15";
    document["sections"]["LocalSettings"]["redundant_master"] = "ja";
    document["sections"]["LocalSettings"]["cable"] = "LWL"; // which alone would do

    const ProgramEnd end = Import(L"Kesselhaus", document);

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_THAT(end.error,
                HasSubstr("Kesselhaus, LocalSettings\\watchdog 15: the value lies between two steps "
                          "(8058 PGSP_NOT_IN_STEP): allowed are 10 to 30000 in steps of 10\n"));
    EXPECT_THAT(end.error,
                HasSubstr("LocalSettings\\redundant_master ja: the value is neither true nor false"));
    EXPECT_THAT(end.error, HasSubstr("nothing has been imported: 2 of the document's values can't be had\n"));
}

TEST_F(NorvctlDeviceImportRefused, AsJsonTellsCodesAndWhatIsAllowed)
{
    Document document = Exported(L"Kesselhaus");
    document["sections"]["LocalSettings"]["watchdog"] = "15";

    const ProgramEnd end = Import(L"Kesselhaus", document, {L"--json"});

    EXPECT_EQ(end.exitCode, 1U);
    const auto answer = nlohmann::json::parse(end.output);
    EXPECT_EQ(answer["done"], "refused");
    EXPECT_EQ(answer["refused"].size(), 1U);
    EXPECT_EQ(answer["refused"][0]["result"], 8058);
    EXPECT_EQ(answer["refused"][0]["name"], "watchdog");
}

TEST_F(NorvctlDeviceImportRefused, IsADocumentOfAnotherBoard)
{
    Document document = Exported(L"Kesselhaus");
    document["board"] = "AFK110";

    EXPECT_THAT(Import(L"Kesselhaus", document).error, HasSubstr("LogDevice\\DeviceID AFK110: "));
}

TEST_F(NorvctlDeviceImportRefused, IsAValueThatStandsWhereNoneCanBeRemoved)
{
    Document document = Exported(L"Kesselhaus");
    document["sections"]["DeviceHeader"].erase("Unit");
    document["subdevices"]["Brenner 1"].erase("Medium");

    const std::string error = Import(L"Kesselhaus", document).error;

    EXPECT_THAT(error, HasSubstr("DeviceHeader\\Unit -: the file would not satisfy its schema (8506"));
    EXPECT_THAT(error, HasSubstr("subdevices\\Brenner 1\\Medium -: "));
}

TEST_F(NorvctlDeviceImportRefused, IsASubdeviceThatIsNotThere)
{
    Document document = Exported(L"Kesselhaus");
    document["subdevices"]["Brenner 3"]["Medium"] = "Kohle";

    EXPECT_THAT(Import(L"Kesselhaus", document).error,
                HasSubstr("there is no such subdevice, and none can be made"));
}

TEST_F(NorvctlDeviceImportRefused, IsAFurtherValueOfAName)
{
    Document document = Exported(L"Kesselhaus");
    document["sections"]["SpareSection"]["Remark"] = {"eins", "zwei"};

    EXPECT_THAT(Import(L"Kesselhaus", document).error, HasSubstr("only the first can be set"));
}

TEST_F(NorvctlDeviceImportRefused, IsASectionThatIsNotThere)
{
    Document document = Exported(L"Kesselhaus");
    document["sections"]["Anderswo"]["Neu"] = "1";

    EXPECT_THAT(Import(L"Kesselhaus", document).error,
                HasSubstr("Anderswo\\Neu 1: there is no place to store the parameter (8514"));
}

TEST_F(NorvctlDeviceImportRefused, UnderANewNameLeavesNoDevice)
{
    Document document = Exported(L"Presse#3");
    document["sections"]["NetworkSettings"]["slot_time"] = "1";

    EXPECT_EQ(Import(L"Presse#4", document).exitCode, 1U);

    EXPECT_FALSE(Exists(LogDevicePath(L"Presse(nmbr)4")));
}

TEST_F(NorvctlDeviceImportRefused, IsATemplateForADeviceThatIsThere)
{
    const ProgramEnd end = Import(L"Kesselhaus", Exported(L"Kesselhaus"), {L"--from", L"L2-AFK220"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("there is a log device Kesselhaus already"));
}

TEST_F(NorvctlDeviceImportRefused, IsADeviceThatSomebodyHolds)
{
    Document document = Exported(L"Kesselhaus");
    document["sections"]["LocalSettings"]["baudrate"] = "187500";
    const OpenFile held(LogDevicePath(L"Kesselhaus")); // which lets others read

    EXPECT_EQ(Import(L"Kesselhaus", document).exitCode, 1U);
}

TEST_F(NorvctlDeviceImportRefused, IsATemporaryDeviceOrAPartOfOne)
{
    for (const wchar_t* const name : {L"PGSP_TEMP_LOG_DEVICE____000", L"Kesselhaus\\subdevices\\Brenner 1"})
    {
        EXPECT_EQ(ImportBytes(name, "{}").exitCode, 2U);
    }
}

TEST_F(NorvctlDeviceImportRefused, IsAFileThatIsNotThere)
{
    const ProgramEnd end = RunNorvctl({L"device", L"import", L"Kesselhaus", folder / L"nirgends.json"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("nirgends.json: there is no such file"));
}

TEST_F(NorvctlDeviceImportRefused, IsWhatIsNoDocument)
{
    const ProgramEnd end = ImportBytes(L"Kesselhaus", "[1, 2");

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_THAT(end.error, HasSubstr("document.json: this isn't a JSON document"));
}

} // namespace
} // namespace norvepa::test

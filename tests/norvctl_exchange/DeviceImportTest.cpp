#include "ImportScene.h"
#include "support/ProgramStart.h"
#include "support/XmlFiles.h"

#include <windows.h>

#include <memory>
#include <vector>

namespace norvepa::test
{
namespace
{

using testing::EndsWith;
using testing::HasSubstr;

class NorvctlDeviceImport : public NorvctlImport
{
};

struct DeviceAndFile
{
    std::wstring name;
    std::wstring fileName;
};

const std::vector<DeviceAndFile> AllDevices{
    {L"Abf\u00FCllung Linie 1", L"Abf\u00FCllung Linie 1"},
    {L"Abf\u00FCllung Linie 2", L"Abf\u00FCllung Linie 2"},
    {L"Etikettierer", L"Etikettierer"},
    {L"F\u00F6rderb\u00E4nder", L"F\u00F6rderb\u00E4nder"},
    {L"Kesselhaus", L"Kesselhaus"},
    {L"Kl\u00E4ranlage", L"Kl\u00E4ranlage"},
    {L"Labor", L"Labor"},
    {L"Leitwarte", L"Leitwarte"},
    {L"Leitwarte*_/VMDID", L"Leitwarte#2a_#2fVMDID"},
    {L"PC internal", L"PC internal"},
    {L"Presse#3", L"Presse(nmbr)3"},
    {L"Pr\u00FCfstand", L"Pr\u00FCfstand"},
    {L"R\u00FChrwerk Nord", L"R\u00FChrwerk Nord"},
    {L"Waage Rampe 2", L"Waage Rampe 2"},
};

TEST_F(NorvctlDeviceImport, OfWhatWasExportedLeavesEveryDeviceAsItIs)
{
    for (const DeviceAndFile& device : AllDevices)
    {
        const std::string before = BytesOf(device.fileName);
        const std::string document = OutputOfNorvctl({L"device", L"export", device.name});

        const ProgramEnd end = ImportBytes(device.name, document);

        EXPECT_EQ(end.output, "unchanged " + ToUtf8(device.name) + "\n") << end.error;
        EXPECT_EQ(BytesOf(device.fileName), before);
    }
    EXPECT_EQ(FileNames(folder / L"data-root\\data\\LogDevices").size(), AllDevices.size());
}

TEST_F(NorvctlDeviceImport, SetsWhatDiffersAndRemovesWhatTheDocumentDoesNotHave)
{
    Document document = Exported(L"Kesselhaus");
    document["sections"]["LocalSettings"]["baudrate"] = "187500";
    document["sections"]["LocalSettings"]["station_name"] = "KESSELHAUS"; // the same, but for its case
    document["sections"]["Ndi"]["SerialNumber"] = "AU-1";
    document["sections"]["SpareSection"].erase("Remark");
    document["sections"]["SpareSection"]["Neu"] = "\xCE\xA9";
    document["subdevices"]["Brenner 1"]["Medium"] = "Biogas";
    document["links"]["UserInterface64"]["DescText"] = "AuentalTexte.dll,1002";

    const ProgramEnd end = Import(L"Kesselhaus", document);

    EXPECT_EQ(end.error, "");
    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_THAT(end.output, HasSubstr("LocalSettings\n  baudrate: 1500000 -> 187500\n"));
    EXPECT_THAT(end.output, EndsWith("imported Kesselhaus\n"));
    EXPECT_EQ(nlohmann::json(Exported(L"Kesselhaus")), nlohmann::json(document)); // but for the order
    EXPECT_TRUE(IsNothingLeft());
}

TEST_F(NorvctlDeviceImport, LeavesWhatNoProfileOfTheDocumentSays)
{
    Document document = Exported(L"Presse#3");
    document["sections"]["LocalSettings"]["baudrate"] = "1500000"; // with it come a slot_time of 300 ...

    EXPECT_EQ(Import(L"Presse#3", document).exitCode, 0U);

    EXPECT_EQ(Exported(L"Presse#3"), document);
}

TEST_F(NorvctlDeviceImport, UnderANewNameBeginsWithTheFittingTemplate)
{
    Document document = Exported(L"Presse#3");

    const ProgramEnd end = Import(L"Presse#4", document);

    EXPECT_EQ(end.error, "");
    EXPECT_THAT(end.output, EndsWith("created Presse#4\n"));
    document["name"] = "Presse#4";
    document["board"] = Exported(L"Presse#4")["board"]; // with a "*" or without, it's the same
    EXPECT_EQ(nlohmann::json(Exported(L"Presse#4")), nlohmann::json(document));
    EXPECT_TRUE(IsNothingLeft());
}

TEST_F(NorvctlDeviceImport, UnderANewNameBeginsLikeADeviceThatIsNamed)
{
    const std::string document = OutputOfNorvctl({L"device", L"export", L"PC internal"});

    const ProgramEnd end = ImportBytes(L"Zwilling", document, {L"--like", L"PC internal"});

    EXPECT_EQ(end.output, "created Zwilling\n") << end.error;
    EXPECT_EQ(BytesOf(L"Zwilling"), BytesOf(L"PC internal")); // hidden, too
}

TEST_F(NorvctlDeviceImport, UnderANewNameTakesTheTemplateThatIsNamed)
{
    const std::string document = OutputOfNorvctl({L"device", L"export", L"Presse#3"});

    EXPECT_EQ(ImportBytes(L"Presse#4", document, {L"--from", L"MPI-AFK110"}).exitCode, 0U);
    EXPECT_EQ(ImportBytes(L"Presse#5", document, {L"--from", L"MPI-Nirgends"}).exitCode, 1U);

    EXPECT_FALSE(Exists(LogDevicePath(L"Presse(nmbr)5")));
}

TEST_F(NorvctlDeviceImport, DryTellsWhatWouldChangeAndChangesNothing)
{
    const std::string before = BytesOf(L"Kesselhaus");
    Document document = Exported(L"Kesselhaus");
    document["sections"]["LocalSettings"]["baudrate"] = "187500";

    const ProgramEnd end = Import(L"Kesselhaus", document, {L"--dry-run"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "LocalSettings\n  baudrate: 1500000 -> 187500\nwould change Kesselhaus\n");
    EXPECT_EQ(BytesOf(L"Kesselhaus"), before);
    EXPECT_TRUE(IsNothingLeft());
}

TEST_F(NorvctlDeviceImport, AsJsonTellsTheChanges)
{
    Document document = Exported(L"Kesselhaus");
    document["sections"]["LocalSettings"]["baudrate"] = "187500";

    const ProgramEnd end = Import(L"Kesselhaus", document, {L"--json"});

    EXPECT_EQ(nlohmann::json::parse(end.output), (nlohmann::json{{"done", "imported"},
                                                                 {"device", "Kesselhaus"},
                                                                 {"changes",
                                                                  {{{"section", "LocalSettings"},
                                                                    {"name", "baudrate"},
                                                                    {"old", "1500000"},
                                                                    {"new", "187500"}}}}}));
}

TEST_F(NorvctlDeviceImport, IsToldToWatches)
{
    Watch watch({L"watch", L"LogDevices", L"Kesselhaus", L"--count", L"1", L"--timeout", L"60"});
    Document document = Exported(L"Kesselhaus");
    document["sections"]["LocalSettings"]["baudrate"] = "187500";

    EXPECT_EQ(Import(L"Kesselhaus", document).exitCode, 0U);

    EXPECT_THAT(watch.Finish().output, EndsWith(" changed LogDevices, Kesselhaus\n"));
}

TEST_F(NorvctlDeviceImport, ReadsStandardInput)
{
    Document document = Exported(L"Kesselhaus");
    document["sections"]["LocalSettings"]["baudrate"] = "187500";
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const std::unique_ptr<void, decltype(&CloseHandle)> input(
        CreateFileW(Keep(document.dump()).c_str(), GENERIC_READ, FILE_SHARE_READ, &inherited, OPEN_EXISTING,
                    0, nullptr),
        &CloseHandle);

    const StartedProgram program =
        StartProgram(L"\"" + BesideThisProgram(L"norvctl.exe") + L"\" device import Kesselhaus -",
                     input.get(), nullptr, nullptr);
    const std::unique_ptr<void, decltype(&CloseHandle)> process(program.process, &CloseHandle);

    EXPECT_EQ(WaitForSingleObject(process.get(), 60'000), DWORD{WAIT_OBJECT_0});
    EXPECT_EQ(Exported(L"Kesselhaus"), document);
}

} // namespace
} // namespace norvepa::test

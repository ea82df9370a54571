#include "support/FileWriter.h"
#include "support/Norvctl.h"

#include <windows.h>

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <string_view>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;

const std::wstring LongEnough = L"60"; // seconds, for changes that come
const std::wstring Brief = L"2";       // for changes that don't

std::string Replaced(std::string text, std::string_view from, std::string_view to)
{
    const std::size_t at = text.find(from);
    if (at == std::string::npos)
    {
        throw std::runtime_error("there is no " + std::string(from));
    }
    return text.replace(at, from.size(), to);
}

// What other programs do to files, without norvctl and the library.
class NorvctlStoreWatch : public Norvctl
{
protected:
    static Words Following(const Words& more = {})
    {
        Words words{L"watch", L"--timeout", LongEnough};
        words.insert(words.end(), more.begin(), more.end());
        return words;
    }

    [[nodiscard]] std::wstring DataPath(const std::wstring& name) const
    {
        return folder / (L"data-root\\data\\" + name);
    }

    static void Edit(const std::wstring& path, std::string_view from, std::string_view to)
    {
        WriteBytes(path, Replaced(ReadBytes(path), from, to));
    }

    static void Rename(const std::wstring& from, const std::wstring& to)
    {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) == FALSE)
        {
            throw std::runtime_error("cannot rename " + ToUtf8(from));
        }
    }

    // The next line without its time.
    static std::string NextOf(Watch& watch) { return watch.ReadLine().substr(sizeof "HH:MM:SS"); }

    const std::wstring Kesselhaus = LogDevicePath(L"Kesselhaus");
};

TEST_F(NorvctlStoreWatch, TellsAValueThatSomebodyWritesInPlace)
{
    Watch watch(Following({L"--count", L"1"}));

    Edit(Kesselhaus, "1500000", "187500");

    const ProgramEnd end = watch.Finish();
    EXPECT_THAT(watch.firstLine, MatchesRegex("..:..:.. watching the store"));
    EXPECT_THAT(end.output, MatchesRegex("..:..:.. Kesselhaus: baudrate 1500000 -> 187500\n"));
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(end.exitCode, 0U);
}

TEST_F(NorvctlStoreWatch, TellsAValueThatComesByRenaming)
{
    Watch watch(Following());
    WriteBytes(Kesselhaus + L".neu", Replaced(ReadBytes(Kesselhaus), "Erdgas", "Biogas"));

    Rename(Kesselhaus + L".neu", Kesselhaus);

    EXPECT_EQ(NextOf(watch), "Kesselhaus\\subdevices\\Brenner 1: Medium Erdgas -> Biogas");
}

TEST_F(NorvctlStoreWatch, TellsWhatNorvctlChanges)
{
    Watch watch(Following());

    OutputOfNorvctl({L"name", L"link", L"Leitwarte", L"Labor"});
    EXPECT_EQ(NextOf(watch), "log name Leitwarte: LogDevice Leitwarte -> Labor");

    OutputOfNorvctl({L"settings", L"set", L"PlantNumber", L"AU-018"});
    EXPECT_EQ(NextOf(watch), "settings: PlantNumber AU-017 -> AU-018");

    OutputOfNorvctl(
        {L"data", L"set", L"Kesselhaus", L"Dampfdruck", L"40 bar", L"--subfolder", L"ParameterData"});
    EXPECT_EQ(NextOf(watch), "data ParameterData\\Kesselhaus: Dampfdruck 38,5 bar -> 40 bar");

    OutputOfNorvctl({L"device", L"unset", L"Kesselhaus", L"Remark"});
    EXPECT_EQ(NextOf(watch), "Kesselhaus: Remark Nachlauf der Gebl\xC3\xA4se beachten: 90 s -> -");
}

TEST_F(NorvctlStoreWatch, TellsFilesThatComeAndGoAndAreRenamed)
{
    Watch watch(Following());

    WriteBytes(LogDevicePath(L"Presse(nmbr)4"), ReadBytes(LogDevicePath(L"Presse(nmbr)3")));
    EXPECT_EQ(NextOf(watch), "Presse#4: added");

    DeleteFileW(LogDevicePath(L"Presse(nmbr)4").c_str());
    EXPECT_EQ(NextOf(watch), "Presse#4: removed");

    Rename(LogNamePath(L"Verladung"), LogNamePath(L"Verladung 2"));
    EXPECT_EQ(NextOf(watch), "log name Verladung: renamed to Verladung 2");
}

TEST_F(NorvctlStoreWatch, TellsOfTheCatalogueByFile)
{
    Watch watch(Following());

    Edit(CataloguePath(L"Boards\\Automation-OnlineAccess-BT-AFK110"), "AUE_32_B", "AUE_32_C");
    EXPECT_EQ(NextOf(watch), "board AFK110: changed");

    Edit(CataloguePath(L"DefaultLogDevices\\Automation-OnlineAccess-LDT-MPI-AFK110"), "<Load>", "<Load >");
    Edit(CataloguePath(L"Protocols\\Automation-OnlineAccess-PT-MPI"), "MEHRPUNKT", "MP");
    EXPECT_EQ(NextOf(watch), "protocol MPI: changed"); // a blank in a tag is none
}

TEST_F(NorvctlStoreWatch, OfACopyThatIsAppliedTellsWhatItChanges)
{
    const std::wstring temporary = L"PGSP_TEMP_LOG_DEVICE____000";
    Watch watch(Following({L"--count", L"1"}));

    OutputOfNorvctl({L"device", L"edit", L"begin", L"Kesselhaus"});
    OutputOfNorvctl({L"device", L"set", temporary, L"baudrate", L"187500"});
    OutputOfNorvctl({L"device", L"edit", L"apply", temporary, L"Kesselhaus"});

    EXPECT_THAT(watch.Finish().output, EndsWith(" Kesselhaus: baudrate 1500000 -> 187500\n"));
}

TEST_F(NorvctlStoreWatch, WaitsForAFileThatIsHalfWritten)
{
    const std::string whole = Replaced(ReadBytes(Kesselhaus), "1500000", "187500");
    Watch watch(Following({L"--count", L"1"}));
    {
        const FileWriter writer(Kesselhaus);
        writer.Write(whole.substr(0, whole.size() / 2));
        writer.SetLength(static_cast<std::int64_t>(whole.size() / 2));
        writer.Write(whole.substr(whole.size() / 2));
    }

    EXPECT_THAT(watch.Finish().output, EndsWith(" Kesselhaus: baudrate 1500000 -> 187500\n"));
}

TEST_F(NorvctlStoreWatch, TellsAFileThatStaysUnreadableAndWhenItIsBack)
{
    const std::string whole = ReadBytes(Kesselhaus);
    Watch watch(Following());

    WriteBytes(Kesselhaus, whole.substr(0, whole.size() / 2));
    EXPECT_EQ(NextOf(watch), "Kesselhaus: its file cannot be read");

    WriteBytes(Kesselhaus, whole);
    EXPECT_EQ(NextOf(watch), "Kesselhaus: changed");
}

TEST_F(NorvctlStoreWatch, OfManyChangesTellsTheLastState)
{
    const std::string whole = ReadBytes(Kesselhaus);
    Watch watch(Following());

    for (int i = 1; i <= 200; ++i)
    {
        WriteBytes(Kesselhaus, Replaced(whole, "1500000", std::to_string(i)));
    }

    std::string line;
    while (!line.ends_with(" -> 200"))
    {
        line = NextOf(watch); // which throws when there are no more
    }
    EXPECT_THAT(line, MatchesRegex("Kesselhaus: baudrate .* -> 200"));
}

TEST_F(NorvctlStoreWatch, OfChangesOfManyFilesTellsEach)
{
    const std::string whole = ReadBytes(LogNamePath(L"Lagerhaus"));
    Watch watch(Following({L"--count", L"200"}));

    for (int i = 0; i < 200; ++i)
    {
        WriteBytes(LogNamePath(L"Name " + std::to_wstring(i)), whole);
    }

    const std::string output = watch.Finish().output;
    for (int i = 0; i < 200; ++i)
    {
        EXPECT_THAT(output, HasSubstr("log name Name " + std::to_string(i) + ": added\n"));
    }
}

TEST_F(NorvctlStoreWatch, TellsNothingOfWhatIsTheSame)
{
    Watch watch({L"watch", L"--timeout", Brief});

    WriteBytes(Kesselhaus, ReadBytes(Kesselhaus) + "  \n<!-- nothing -->\n");
    WriteBytes(LogDevicePath(L"PGSP_TEMP_LOG_DEVICE____007"), ReadBytes(Kesselhaus));
    WriteBytes(LogDevicePath(L"Kesselhaus(temp)"), ReadBytes(Kesselhaus));
    WriteBytes(DataPath(L"LogDevices\\~Kesselhaus.new"), ReadBytes(Kesselhaus));

    const ProgramEnd end = watch.Finish();
    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: no change of the store within 2 s\n");
}

TEST_F(NorvctlStoreWatch, GoesOnWhenTheDataFolderComesBack)
{
    Watch watch(Following());

    Rename(folder / L"data-root\\data", folder / L"data-root\\fort");
    EXPECT_EQ(NextOf(watch), "store data: the folder is gone");
    Edit(folder / L"data-root\\fort\\LogDevices\\Kesselhaus.xml", "1500000", "187500");
    Rename(folder / L"data-root\\fort", folder / L"data-root\\data");

    EXPECT_EQ(NextOf(watch), "store data: back");
    EXPECT_EQ(NextOf(watch), "Kesselhaus: baudrate 1500000 -> 187500");
}

TEST_F(NorvctlStoreWatch, AsJsonPrintsADocumentALine)
{
    Watch watch(Following({L"--json", L"--count", L"1"}));

    Edit(Kesselhaus, "1500000", "187500");

    json first = json::parse(watch.firstLine);
    json second = json::parse(watch.Finish().output);
    EXPECT_THAT(first.at("time").get<std::string>(), MatchesRegex("..:..:.."));
    EXPECT_EQ(first.at("change"), "watching");
    second.erase("time");
    EXPECT_EQ(second, (json{{"kind", "log device"},
                            {"name", "Kesselhaus"},
                            {"change", "value"},
                            {"parameter", "baudrate"},
                            {"before", "1500000"},
                            {"after", "187500"}}));
}

TEST_F(NorvctlStoreWatch, WithoutADataFolderFails)
{
    Rename(folder / L"data-root\\data", folder / L"data-root\\fort");

    const ProgramEnd end = RunNorvctl(Following());

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_THAT(end.error, HasSubstr("data: the store's folder cannot be found (8517"));
}

} // namespace
} // namespace norvepa::test

#include "StoreScene.h"
#include "norvepa.h"
#include "support/OpenFile.h"

#include <objbase.h>

#include <nlohmann/json.hpp>
#include <stop_token>
#include <thread>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::Contains;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;
using testing::StartsWith;

class NorvctlStoreBackup : public NorvctlStore
{
protected:
    // Of the folder that the archive goes to.
    [[nodiscard]] std::vector<std::wstring> Neighbours() const { return FileNames(folder.path()); }
};

TEST_F(NorvctlStoreBackup, TellsWhatItHasKept)
{
    const ProgramEnd end = RunNorvctl({L"--json", L"store", L"backup", Archive()});

    ASSERT_EQ(end.exitCode, 0U) << end.error;
    EXPECT_EQ(end.error, ""); // no progress where nobody looks
    const json done = json::parse(end.output);
    EXPECT_EQ(done.at("done"), "backed up");
    EXPECT_EQ(done.at("file"), ToUtf8(Archive()));
    const norvctl::StoreSnapshot store = norvctl::ReadSnapshot(Root());
    EXPECT_EQ(done.at("files"), store.files.size());
    EXPECT_EQ(done.at("bytes"), store.Bytes());
}

TEST_F(NorvctlStoreBackup, IsACabinetOfTheSystem)
{
    ASSERT_EQ(BackUp().exitCode, 0U);

    EXPECT_THAT(ReadBytes(Archive()), StartsWith("MSCF"));
}

TEST_F(NorvctlStoreBackup, LeavesAnArchiveThatIsThere)
{
    WriteBytes(Archive(), "older");

    const ProgramEnd end = BackUp();

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("it is there already, --force replaces it"));
    EXPECT_EQ(ReadBytes(Archive()), "older");
}

TEST_F(NorvctlStoreBackup, ByForceReplacesAnArchive)
{
    WriteBytes(Archive(), "older");

    const ProgramEnd end = RunNorvctl({L"store", L"backup", Archive(), L"--force"});

    EXPECT_EQ(end.exitCode, 0U) << end.error;
    EXPECT_THAT(ReadBytes(Archive()), StartsWith("MSCF"));
}

TEST_F(NorvctlStoreBackup, OfAFileThatCannotBeReadNamesItAndLeavesTheOlderArchive)
{
    WriteBytes(Archive(), "older");
    const auto before = Neighbours();
    const OpenFile user(LogDevicePath(L"Labor"), 0);

    const ProgramEnd end = RunNorvctl({L"store", L"backup", Archive(), L"--force"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("Labor.xml: another program has it open (32)"));
    EXPECT_EQ(ReadBytes(Archive()), "older");
    EXPECT_EQ(Neighbours(), before);
}

TEST_F(NorvctlStoreBackup, ThatFailsLeavesNothing)
{
    const auto before = Neighbours();
    const OpenFile user(LogDevicePath(L"Labor"), 0);

    EXPECT_EQ(BackUp().exitCode, 1U);

    EXPECT_EQ(Neighbours(), before);
}

TEST_F(NorvctlStoreBackup, ToAFolderThatIsNotThereFails)
{
    const ProgramEnd end = RunNorvctl({L"store", L"backup", folder / L"gone\\a.cab"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("there is no such folder (3)"));
}

TEST_F(NorvctlStoreBackup, DoesNotGoIntoTheStoreItself)
{
    const ProgramEnd end = RunNorvctl({L"store", L"backup", folder / L"DATA-root\\data\\a.cab"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("an archive must not lie in the store itself"));
}

TEST_F(NorvctlStoreBackup, OfNoStoreFails)
{
    locations.Set(L"Corvane_Oam_Data", folder / L"gone");

    const ProgramEnd end = BackUp();

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("gone: there is no such folder"));
    EXPECT_FALSE(Exists(Archive()));
}

TEST_F(NorvctlStoreBackup, WithoutAFileIsAMisuse)
{
    EXPECT_EQ(RunNorvctl({L"store", L"backup"}).exitCode, 2U);
}

TEST_F(NorvctlStoreBackup, KeepsAllButFilesInTheMaking)
{
    WriteBytes(LogDevicePath(L"~Labor").substr(0, LogDevicePath(L"~Labor").size() - 4) + L".NEW", "half");
    WriteBytes(LogDevicePath(L"Labor(temp)"), "<temp/>");
    WriteBytes(LogDevicePath(L"PGSP_TEMP_LOG_DEVICE____007"), "<edited/>");
    MakeFolders(Root() + L"\\data\\leer");

    ASSERT_EQ(BackUp().exitCode, 0U);

    const norvctl::BackupReader backup(Archive());
    const auto devices = FileNames(backup.DataFolder() + L"\\data\\LogDevices");
    EXPECT_THAT(devices, IsSupersetOf({L"Labor(temp).xml", L"PGSP_TEMP_LOG_DEVICE____007.xml"}));
    EXPECT_THAT(devices, Not(Contains(L"~Labor.NEW")));
    EXPECT_TRUE(Exists(backup.DataFolder() + L"\\data\\leer"));
}

// What the test below has written: one letter over and over.
std::wstring Written()
{
    std::wstring value(4000, L'\0');
    auto length = static_cast<std::uint32_t>(value.size());
    EXPECT_EQ(LogNameGetValueBL(L"Leitwarte", L"Bereich", value.data(), &length), PGSP_OK);
    value.resize(length);
    return value;
}

bool IsOneOfTheValues(const std::wstring& value)
{
    return value == L"Leitwarte" || ((value.size() == 3 || value.size() == 3000) &&
                                     value.find_first_not_of(value.front()) == std::wstring::npos);
}

TEST_F(NorvctlStoreBackup, HoldsWholeFilesWhileAnotherProcessWrites)
{
    std::jthread writer([](const std::stop_token& isEnough) {
        CoInitialize(nullptr);
        for (unsigned i = 0; !isEnough.stop_requested(); ++i)
        {
            const std::wstring value(i % 2 == 0 ? 3 : 3000, static_cast<wchar_t>(L'a' + i % 26));
            LogNameSetValueBL(L"Leitwarte", L"Bereich", value.c_str());
        }
        CoUninitialize();
    });
    std::vector<ProgramEnd> ends;
    for (int i = 0; i < 3; ++i)
    {
        ends.push_back(RunNorvctl({L"store", L"backup", folder / std::to_wstring(i)}));
    }
    writer.request_stop();
    writer.join();

    for (std::size_t i = 0; i < ends.size(); ++i)
    {
        ASSERT_EQ(ends[i].exitCode, 0U) << ends[i].error;
        const norvctl::BackupReader backup(folder / std::to_wstring(i));
        const norvctl::OtherStore other(backup.DataFolder());
        EXPECT_TRUE(IsOneOfTheValues(Written())) << ToUtf8(Written());
        EXPECT_THAT(ReadBytes(backup.DataFolder() + L"\\data\\LogNames\\Leitwarte.xml"),
                    HasSubstr("</LogName>"));
    }
}

} // namespace
} // namespace norvepa::test

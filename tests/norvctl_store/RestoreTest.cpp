#include "StoreScene.h"
#include "norvepa.h"
#include "support/OpenFile.h"

#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;

class NorvctlStoreRestore : public NorvctlStore
{
protected:
    void SetUp() override
    {
        MakeFolders(Root() + L"\\data\\leer\\ganz leer");
        WriteBytes(Root() + L"\\data\\nichts.bin", "");
        WriteBytes(Root() + L"\\data\\Bild\\\u6F22 \U0001F600.bin", std::string(100'000, '\x81'));
        SetFileAttributesW(LogDevicePath(L"Kesselhaus").c_str(), FILE_ATTRIBUTE_READONLY);
        MakeArchive();
        m_kept = StoreTree();
    }

    // The tests' own folders go with all they hold.
    void TearDown() override
    {
        SetFileAttributesW(LogDevicePath(L"Kesselhaus").c_str(), FILE_ATTRIBUTE_NORMAL);
    }

    Tree m_kept;
};

TEST_F(NorvctlStoreRestore, OfAnEmptiedStoreBringsAllBackByteForByteWithItsTimes)
{
    SetFileAttributesW(LogDevicePath(L"Kesselhaus").c_str(), FILE_ATTRIBUTE_NORMAL);
    std::filesystem::remove_all(Root());

    const ProgramEnd end = RunNorvctl({L"store", L"restore", Archive()});

    ASSERT_EQ(end.exitCode, 0U) << end.error; // nothing to ask for
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(StoreTree(), m_kept);
    EXPECT_NE(GetFileAttributesW(LogDevicePath(L"Kesselhaus").c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
    EXPECT_FALSE(Exists(Rescue()));
}

TEST_F(NorvctlStoreRestore, OfAChangedStoreUndoesEachChange)
{
    ChangeStore();

    const ProgramEnd end = RunNorvctl({L"--json", L"store", L"restore", Archive(), L"--yes"});

    ASSERT_EQ(end.exitCode, 0U) << end.error;
    EXPECT_EQ(json::parse(end.output), (json{{"done", "restored"},
                                             {"file", ToUtf8(Archive())},
                                             {"counts", {{"added", 1}, {"changed", 1}, {"removed", 1}}},
                                             {"added", {"data\\LogNames\\Halle 2#3a Pumpe.xml"}},
                                             {"changed", {"data\\LogDevices\\Labor.xml"}},
                                             {"removed", {"data\\LogDevices\\Neu.xml"}}}));
    EXPECT_EQ(StoreTree(), m_kept);
    EXPECT_FALSE(Exists(Rescue()));
}

TEST_F(NorvctlStoreRestore, ReplacesFilesThatAreReadOnly)
{
    SetFileAttributesW(LogDevicePath(L"Kesselhaus").c_str(), FILE_ATTRIBUTE_NORMAL);
    WriteBytes(LogDevicePath(L"Kesselhaus"), "<anders/>");
    SetFileAttributesW(LogDevicePath(L"Kesselhaus").c_str(), FILE_ATTRIBUTE_READONLY);

    const ProgramEnd end = Restore();

    EXPECT_EQ(end.exitCode, 0U) << end.error;
    EXPECT_EQ(StoreTree(), m_kept);
}

TEST_F(NorvctlStoreRestore, TakesAFileForAFolderAndTheOtherWayRound)
{
    std::filesystem::remove_all(Root() + L"\\data\\leer");
    WriteBytes(Root() + L"\\data\\leer", "a file");
    std::filesystem::remove(Root() + L"\\data\\nichts.bin");
    WriteBytes(Root() + L"\\data\\nichts.bin\\~a.new", "left over");

    const ProgramEnd end = Restore();

    EXPECT_EQ(end.exitCode, 0U) << end.error;
    EXPECT_EQ(StoreTree(), m_kept);
}

TEST_F(NorvctlStoreRestore, OfTheSameStoreChangesNothingAndAsksNobody)
{
    const ProgramEnd end = RunNorvctl({L"store", L"restore", Archive()});

    EXPECT_EQ(end.exitCode, 0U) << end.error;
    EXPECT_THAT(end.output, HasSubstr("0 added, 0 changed, 0 removed"));
}

TEST_F(NorvctlStoreRestore, WithoutATerminalIsRefusedWhereThereAreLogDevices)
{
    ChangeStore();
    const Tree before = StoreTree();

    const ProgramEnd end = RunNorvctl({L"store", L"restore", Archive()});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("has log devices, --yes replaces them"));
    EXPECT_EQ(StoreTree(), before);
}

TEST_F(NorvctlStoreRestore, DryTellsWhatWouldChangeAndChangesNothing)
{
    ChangeStore();
    const Tree before = StoreTree();

    const ProgramEnd end = RunNorvctl({L"store", L"restore", Archive(), L"--dry-run"});

    EXPECT_EQ(end.exitCode, 0U) << end.error;
    EXPECT_EQ(end.output, "added    data\\LogNames\\Halle 2#3a Pumpe.xml\n"
                          "changed  data\\LogDevices\\Labor.xml\n"
                          "removed  data\\LogDevices\\Neu.xml\n");
    EXPECT_EQ(StoreTree(), before);
}

TEST_F(NorvctlStoreRestore, CanKeepWhatTheArchiveDoesNotHave)
{
    ChangeStore();

    const ProgramEnd end = RunNorvctl({L"store", L"restore", Archive(), L"--yes", L"--keep-others"});

    EXPECT_EQ(end.exitCode, 0U) << end.error;
    m_kept[L"\\data\\LogDevices\\Neu.xml"] = StoreTree().at(L"\\data\\LogDevices\\Neu.xml");
    EXPECT_EQ(StoreTree(), m_kept);
}

TEST_F(NorvctlStoreRestore, ThatFailsHalfWayLeavesAllAsItWas)
{
    ChangeStore();
    std::filesystem::remove_all(Root() + L"\\data\\leer");
    WriteBytes(LogDevicePath(L"Waage Rampe 2"), "<zuletzt/>"); // behind all others
    const Tree before = StoreTree();
    ProgramEnd end;
    {
        const OpenFile user(LogDevicePath(L"Waage Rampe 2"), FILE_SHARE_READ);
        end = Restore();
    }

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("Waage Rampe 2.xml: "));
    EXPECT_THAT(end.error, HasSubstr("; all is as it was before"));
    EXPECT_EQ(StoreTree(), before);
    EXPECT_FALSE(Exists(Rescue()));
}

TEST_F(NorvctlStoreRestore, ThatMeetsAFileWhichNobodyMayReadChangesNothing)
{
    ChangeStore();
    const Tree before = StoreTree();
    ProgramEnd end;
    {
        const OpenFile user(LogDevicePath(L"Labor"), 0);
        end = Restore();
    }

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("Labor.xml: another program has it open (32)"));
    EXPECT_EQ(StoreTree(), before);
}

TEST_F(NorvctlStoreRestore, BehindOneThatWasBrokenOffKeepsTheStoreAsItWasBeforeThat)
{
    ChangeStore();
    WriteBytes(Rescue(), "as it was");
    const Tree before = StoreTree();

    const ProgramEnd end = Restore();

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("an earlier restore has been broken off"));
    EXPECT_EQ(ReadBytes(Rescue()), "as it was");
    EXPECT_EQ(StoreTree(), before);
}

TEST_F(NorvctlStoreRestore, OfNoArchiveFails)
{
    WriteBytes(Archive(), "no cabinet");

    const ProgramEnd end = Restore();

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("it is not a backup, or its end is missing"));
    EXPECT_EQ(StoreTree(), m_kept);
}

TEST_F(NorvctlStoreRestore, OfAnArchiveThatIsNotThereFails)
{
    const ProgramEnd end = RunNorvctl({L"store", L"restore", folder / L"gone.cab", L"--yes"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("gone.cab: there is no such file (2)"));
}

TEST_F(NorvctlStoreRestore, IsHeardByAProcessThatListsLogDevices)
{
    const auto isThere = [](const wchar_t* wanted) {
        for (std::uint32_t index = 0;; ++index)
        {
            std::array<wchar_t, MAX_PATH> name{};
            auto length = static_cast<std::uint32_t>(name.size());
            if (LogDeviceGetEnumBL(nullptr, index, name.data(), &length) != PGSP_OK)
            {
                return false;
            }
            if (std::wstring_view(name.data()) == wanted)
            {
                return true;
            }
        }
    };
    std::filesystem::remove(LogDevicePath(L"Labor"));
    ASSERT_FALSE(isThere(L"Labor"));

    ASSERT_EQ(Restore().exitCode, 0U);

    EXPECT_TRUE(isThere(L"Labor"));
}

} // namespace
} // namespace norvepa::test

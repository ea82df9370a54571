#include "frame/StoreLocations.h"
#include "support/ShellFolders.h"
#include "support/StoreRoots.h"

#include <windows.h>

#include <cstdint>
#include <gmock/gmock.h>
#include <ostream>
#include <string>

namespace norvepa
{
namespace
{

using test::FixedFolder;
using test::LocationsKey;
using test::SetMachineText;
using test::SetMachineValue;

// Both roots are found the same way: only value and shell folder differ.
struct RootCase
{
    const wchar_t* registryValue;
    std::wstring (*find)();
    void (*setShellFolder)(const std::wstring&);

    friend void PrintTo(const RootCase& each, std::ostream* out) { *out << test::ToUtf8(each.registryValue); }
};

class RootByRegistry : public testing::TestWithParam<RootCase>
{
protected:
    // The fixed folder is there in every test: the registry has to win over it, or to lose.
    RootByRegistry()
    {
        test::MakeFolders(fixedFolder);
        GetParam().setShellFolder(folder.path());
    }

    void SetRoot(const std::wstring& text) { SetMachineText(LocationsKey, GetParam().registryValue, text); }
    void SetRoot(DWORD type, const void* data, DWORD size)
    {
        SetMachineValue(LocationsKey, GetParam().registryValue, type, data, size);
    }
    [[nodiscard]] static std::wstring Find() { return GetParam().find(); }

    test::RedirectedRegistry registry;
    test::TemporaryFolder folder;
    std::wstring fixedFolder = folder / FixedFolder;
};

INSTANTIATE_TEST_SUITE_P(Data, RootByRegistry,
                         testing::Values(RootCase{L"Corvane_Oam_Data", GetDataFolder,
                                                  test::SetCommonApplicationData}));
INSTANTIATE_TEST_SUITE_P(Program, RootByRegistry,
                         testing::Values(RootCase{L"Corvane_Oam", GetProgramFolder,
                                                  test::SetCommonProgramFiles}));

TEST_P(RootByRegistry, IsTheValueAheadOfTheFixedFolder)
{
    SetRoot(folder / L"named");

    EXPECT_EQ(Find(), folder / L"named");
}

TEST_P(RootByRegistry, IsNotTestedForExistence)
{
    SetRoot(L"Q:\\no such folder");

    EXPECT_EQ(Find(), L"Q:\\no such folder");
}

TEST_P(RootByRegistry, KeepsItsTrailingBackslash)
{
    SetRoot(L"C:\\Store\\");

    EXPECT_EQ(Find(), L"C:\\Store\\");
    EXPECT_EQ(JoinPath(Find(), L"data"), L"C:\\Store\\\\data");
}

TEST_P(RootByRegistry, IsLookedUpAnewAtEachCall)
{
    SetRoot(L"C:\\Before");
    EXPECT_EQ(Find(), L"C:\\Before");

    SetRoot(L"C:\\After");
    EXPECT_EQ(Find(), L"C:\\After");
}

TEST_P(RootByRegistry, IsEmptyWithoutFallbackWhenTheValueIsEmpty)
{
    SetRoot(L"");

    EXPECT_EQ(Find(), L"");
}

TEST_P(RootByRegistry, MayBe126CharactersLong)
{
    const std::wstring root = L"C:\\" + std::wstring(123, L'r');
    SetRoot(root);

    EXPECT_EQ(Find(), root);
}

TEST_P(RootByRegistry, Of127CharactersGivesWayToTheFixedFolder)
{
    SetRoot(L"C:\\" + std::wstring(124, L'r'));

    EXPECT_EQ(Find(), fixedFolder);
}

TEST_P(RootByRegistry, IsLimitedInBytesWhateverItsType)
{
    const std::wstring root = L"C:\\" + std::wstring(124, L'r');

    SetRoot(REG_BINARY, root.data(), 254);
    EXPECT_EQ(Find(), root);

    SetRoot(REG_BINARY, root.data(), 256);
    EXPECT_EQ(Find(), fixedFolder);
}

TEST_P(RootByRegistry, OfAnotherNameGivesWayToTheFixedFolder)
{
    SetMachineText(LocationsKey, L"Corvane", L"C:\\Store");

    EXPECT_EQ(Find(), fixedFolder);
}

TEST_P(RootByRegistry, MayBeAnyTypeOfValue)
{
    const std::wstring root = L"C:\\Store";

    SetRoot(REG_BINARY, root.data(), static_cast<DWORD>(root.size() * sizeof(wchar_t)));
    EXPECT_EQ(Find(), root);

    SetRoot(REG_MULTI_SZ, L"C:\\Store\0C:\\Other\0", 38);
    EXPECT_EQ(Find(), root);

    const std::uint32_t number = 0x003A0044;
    SetRoot(REG_DWORD, &number, sizeof number);
    EXPECT_EQ(Find(), L"D:");
}

TEST_P(RootByRegistry, IsExpandedWhenTheValueSaysSo)
{
    SetEnvironmentVariableW(L"NORV_TEST_STORE", L"C:\\Store");
    const std::wstring text = L"%NORV_TEST_STORE%\\Sub";
    SetRoot(REG_EXPAND_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));

    EXPECT_EQ(Find(), L"C:\\Store\\Sub");
}

TEST_P(RootByRegistry, IsNotExpandedWhenTheValueIsPlainText)
{
    SetRoot(L"%TEMP%\\Sub");

    EXPECT_EQ(Find(), L"%TEMP%\\Sub");
}

TEST(RootsByRegistry, AreTwoValues)
{
    const test::StoreRoots roots;

    EXPECT_EQ(GetDataFolder(), roots.data());
    EXPECT_EQ(GetProgramFolder(), roots.program());
}

} // namespace
} // namespace norvepa

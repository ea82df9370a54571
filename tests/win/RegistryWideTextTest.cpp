#include "support/RedirectedRegistry.h"
#include "win/RegistryKey.h"

#include <windows.h>

#include <cstdint>
#include <gmock/gmock.h>
#include <string>

namespace norvepa::win
{
namespace
{

using test::SetMachineText;
using test::SetMachineValue;

constexpr wchar_t Path[] = L"Software\\NorvepaRegistryTest";

class RegistryWideText : public testing::Test
{
protected:
    void SetValue(DWORD type, const void* data, DWORD size)
    {
        SetMachineValue(Path, L"Value", type, data, size);
    }

    [[nodiscard]] static std::optional<std::wstring> Read(DWORD limit)
    {
        return RegistryKey::OpenForReading(HKEY_LOCAL_MACHINE, Path).ReadAnyAsText(L"Value", limit);
    }

    test::RedirectedRegistry registry;
};

TEST_F(RegistryWideText, OfAKeyThatIsNotThereIsMissing)
{
    const RegistryKey key = RegistryKey::OpenForReading(HKEY_LOCAL_MACHINE, Path);

    EXPECT_FALSE(key);
    EXPECT_EQ(key.ReadAnyAsText(L"Value", 100), std::nullopt);
}

TEST_F(RegistryWideText, OfAValueThatIsNotThereIsMissing)
{
    SetMachineText(Path, L"Other", L"text");

    EXPECT_TRUE(RegistryKey::OpenForReading(HKEY_LOCAL_MACHINE, Path));
    EXPECT_EQ(Read(100), std::nullopt);
}

TEST_F(RegistryWideText, IsReadAsItStands)
{
    SetMachineText(Path, L"Value", L" C:\\Gr\u00F6\u00DFe \u03A9\\ ");

    EXPECT_EQ(Read(100), L" C:\\Gr\u00F6\u00DFe \u03A9\\ ");
}

TEST_F(RegistryWideText, MayBeEmpty)
{
    SetMachineText(Path, L"Value", L"");

    EXPECT_EQ(Read(100), L"");
}

TEST_F(RegistryWideText, CountsItsTerminatorInBytesAgainstTheLimit)
{
    SetMachineText(Path, L"Value", L"12345");

    EXPECT_EQ(Read(12), L"12345");
    EXPECT_EQ(Read(11), std::nullopt);
}

TEST_F(RegistryWideText, IsReadWholeWhenStoredWithoutATerminator)
{
    // The system counts a terminator that follows the text in memory as forgotten.
    SetValue(REG_SZ, L"12345?", 10);

    EXPECT_EQ(Read(12), L"12345");
    EXPECT_EQ(Read(9), std::nullopt);
}

TEST_F(RegistryWideText, EndsAtItsFirstTerminator)
{
    SetValue(REG_MULTI_SZ, L"one\0two\0", 18);

    EXPECT_EQ(Read(100), L"one");
}

TEST_F(RegistryWideText, OfAnExpandableValueIsExpanded)
{
    SetEnvironmentVariableW(L"NORV_TEST_FOLDER", L"C:\\Folder");
    const std::wstring text = L"%NORV_TEST_FOLDER%\\Sub";
    SetValue(REG_EXPAND_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));

    EXPECT_EQ(Read(100), L"C:\\Folder\\Sub");
}

TEST_F(RegistryWideText, OfANumberIsItsBytes)
{
    const std::uint32_t number = 0x00420041;
    SetValue(REG_DWORD, &number, sizeof number);

    EXPECT_EQ(Read(100), L"AB");
}

TEST_F(RegistryWideText, OfBinaryDataMayFillTheLimitWithoutATerminator)
{
    const std::wstring characters(6, L'x');
    SetValue(REG_BINARY, characters.data(), 11); // the last character's upper half is missing

    EXPECT_EQ(Read(11), characters);
    EXPECT_EQ(Read(10), std::nullopt);
}

} // namespace
} // namespace norvepa::win

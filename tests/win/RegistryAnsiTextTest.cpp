#include "support/RedirectedRegistry.h"
#include "win/RegistryKey.h"

#include <windows.h>

#include <array>
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

class RegistryAnsiText : public testing::Test
{
protected:
    [[nodiscard]] static std::string Read(std::size_t capacity)
    {
        std::string buffer(capacity, '?');
        return std::string(
            RegistryKey::OpenForReading(HKEY_LOCAL_MACHINE, Path).ReadAnsiText("Value", buffer));
    }

    test::RedirectedRegistry registry;
};

TEST_F(RegistryAnsiText, OfAKeyThatIsNotThereIsEmpty)
{
    EXPECT_EQ(Read(100), "");
}

TEST_F(RegistryAnsiText, OfAValueThatIsNotThereIsEmpty)
{
    SetMachineText(Path, L"Other", L"text");

    EXPECT_EQ(Read(100), "");
}

TEST_F(RegistryAnsiText, IsReadAsItStands)
{
    SetMachineText(Path, L"Value", L" FILE ");

    EXPECT_EQ(Read(100), " FILE ");
}

TEST_F(RegistryAnsiText, MustLeaveOneCharacterOfTheBufferFreeBehindItsTerminator)
{
    SetMachineText(Path, L"Value", L"12345");

    EXPECT_EQ(Read(7), "12345");
    EXPECT_EQ(Read(6), "");
}

TEST_F(RegistryAnsiText, MayLackItsTerminator)
{
    // The system counts a terminator that follows the text in memory as forgotten.
    SetMachineValue(Path, L"Value", REG_SZ, L"12345?", 10);

    EXPECT_EQ(Read(6), "12345");
}

class RegistryAnsiTextOfType : public RegistryAnsiText, public testing::WithParamInterface<DWORD>
{
};

TEST_P(RegistryAnsiTextOfType, OtherThanPlainTextIsEmpty)
{
    SetMachineValue(Path, L"Value", GetParam(), L"A", 4);

    EXPECT_EQ(Read(100), "");
}

INSTANTIATE_TEST_SUITE_P(Types, RegistryAnsiTextOfType,
                         testing::Values(static_cast<DWORD>(REG_NONE), static_cast<DWORD>(REG_EXPAND_SZ),
                                         static_cast<DWORD>(REG_BINARY), static_cast<DWORD>(REG_DWORD),
                                         static_cast<DWORD>(REG_MULTI_SZ)));

} // namespace
} // namespace norvepa::win

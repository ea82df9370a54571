#include "win/RegistryKey.h"

#include "support/RedirectedRegistry.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <utility>

namespace norvepa::win
{
namespace
{

constexpr wchar_t Path[] = L"Software\\NorvepaRegistryTest";

TEST(RegistryKey, IsEmptyAtFirst)
{
    EXPECT_FALSE(RegistryKey());
}

TEST(RegistryKey, GoesWithAMove)
{
    const test::RedirectedRegistry registry;
    test::SetMachineText(Path, L"Value", L"text");
    RegistryKey second;

    {
        RegistryKey first = RegistryKey::OpenForReading(HKEY_LOCAL_MACHINE, Path);
        RegistryKey between(std::move(first));
        second = std::move(between);
    }

    EXPECT_EQ(second.ReadAnyAsText(L"Value", 100), L"text");
}

TEST(RegistryKey, SeesTheValueAsItIsNow)
{
    const test::RedirectedRegistry registry;
    test::SetMachineText(Path, L"Value", L"before");
    const RegistryKey key = RegistryKey::OpenForReading(HKEY_LOCAL_MACHINE, Path);

    test::SetMachineText(Path, L"Value", L"after");

    EXPECT_EQ(key.ReadAnyAsText(L"Value", 100), L"after");
}

} // namespace
} // namespace norvepa::win

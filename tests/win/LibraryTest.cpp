#include "win/Handle.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <utility>

namespace norvepa::win
{
namespace
{

// A library of the system that nothing else in a test loads.
constexpr wchar_t LibraryName[] = L"hlink.dll";

bool IsLoaded()
{
    return GetModuleHandleW(LibraryName) != nullptr;
}

TEST(Library, IsEmptyAtFirst)
{
    EXPECT_FALSE(Library());
    EXPECT_EQ(Library().get(), nullptr);
}

TEST(Library, IsUnloadedWithItsOwner)
{
    ASSERT_FALSE(IsLoaded());

    {
        const Library library(LoadLibraryW(LibraryName));
        EXPECT_TRUE(library);
        EXPECT_TRUE(IsLoaded());
    }

    EXPECT_FALSE(IsLoaded());
}

TEST(Library, StaysLoadedWhenItsOwnerIsMovedFrom)
{
    Library second;

    {
        Library first(LoadLibraryW(LibraryName));
        Library between(std::move(first));
        second = std::move(between);
    }

    EXPECT_TRUE(second);
    EXPECT_TRUE(IsLoaded());
}

TEST(Library, FindsAnExportByItsName)
{
    const Library kernel(LoadLibraryW(L"kernel32.dll"));

    auto* const processId = kernel.Export<DWORD WINAPI()>("GetCurrentProcessId");

    ASSERT_NE(processId, nullptr);
    EXPECT_EQ(processId(), GetCurrentProcessId());
}

TEST(Library, AnswersNullForAnExportThatIsNotThere)
{
    const Library kernel(LoadLibraryW(L"kernel32.dll"));

    EXPECT_EQ(kernel.Export<DWORD WINAPI()>("NoSuchExport"), nullptr);
}

} // namespace
} // namespace norvepa::win

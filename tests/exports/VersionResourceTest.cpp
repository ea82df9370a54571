#include "support/LoadedLibrary.h"
#include "support/TemporaryFolder.h"

#include <windows.h>

#include <cstddef>
#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace norvepa::test
{
namespace
{

class VersionResource : public testing::Test
{
protected:
    VersionResource()
    {
        DWORD ignored = 0;
        m_block.resize(GetFileVersionInfoSizeW(LibraryPath().c_str(), &ignored));
        GetFileVersionInfoW(LibraryPath().c_str(), 0, static_cast<DWORD>(m_block.size()), m_block.data());
    }

    template <typename Value>
    [[nodiscard]] const Value* Query(const std::wstring& path) const
    {
        void* value = nullptr;
        UINT length = 0;
        return VerQueryValueW(m_block.data(), path.c_str(), &value, &length) ? static_cast<Value*>(value)
                                                                             : nullptr;
    }

    [[nodiscard]] std::wstring Text(const std::wstring& name) const
    {
        const auto* const text = Query<wchar_t>(L"\\StringFileInfo\\040904b0\\" + name);
        return text == nullptr ? L"(none)" : text;
    }

private:
    std::vector<std::byte> m_block;
};

TEST_F(VersionResource, TellsTheProjectsVersion)
{
    EXPECT_EQ(Text(L"FileVersion"), FromUtf8(NORV_PROJECT_VERSION));
    EXPECT_EQ(Text(L"ProductVersion"), FromUtf8(NORV_PROJECT_VERSION));
}

TEST_F(VersionResource, TellsTheSameVersionInNumbers)
{
    const auto* const fixed = Query<VS_FIXEDFILEINFO>(L"\\");
    ASSERT_NE(fixed, nullptr);

    const std::string version = std::to_string(HIWORD(fixed->dwFileVersionMS)) + "." +
                                std::to_string(LOWORD(fixed->dwFileVersionMS)) + "." +
                                std::to_string(HIWORD(fixed->dwFileVersionLS));
    EXPECT_EQ(version, NORV_PROJECT_VERSION);
    EXPECT_EQ(fixed->dwProductVersionMS, fixed->dwFileVersionMS);
    EXPECT_EQ(fixed->dwProductVersionLS, fixed->dwFileVersionLS);
}

TEST_F(VersionResource, TellsTheLibrarysName)
{
    EXPECT_EQ(Text(L"InternalName"), L"NorvepaBl64x");
    EXPECT_EQ(Text(L"OriginalFilename"), L"NorvepaBl64x.dll");
}

} // namespace
} // namespace norvepa::test

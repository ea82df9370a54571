#include "LibraryVersion.h"

#include <windows.h>

#include <fmt/format.h>
#include <stdexcept>
#include <vector>

namespace norvctl
{

std::string LibraryVersion()
{
    const wchar_t* const path = L"NorvepaBl64x.dll";
    const DWORD size = GetFileVersionInfoSizeW(path, nullptr);
    std::vector<BYTE> block(size);
    void* found = nullptr;
    UINT length = 0;
    if (size == 0 || !GetFileVersionInfoW(path, 0, size, block.data()) ||
        !VerQueryValueW(block.data(), L"\\", &found, &length))
    {
        throw std::runtime_error("the library has no version resource");
    }
    const auto* const info = static_cast<const VS_FIXEDFILEINFO*>(found);
    return fmt::format("{}.{}.{}", HIWORD(info->dwFileVersionMS), LOWORD(info->dwFileVersionMS),
                       HIWORD(info->dwFileVersionLS));
}

} // namespace norvctl

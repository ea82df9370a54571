#include "Commands.h"

#include <windows.h>

#include <fmt/format.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace norvctl
{

namespace
{

// What the version resource of the library that this process has loaded says.
std::string LibraryVersion(const wchar_t* path)
{
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

} // namespace

void AddVersionCommand(CLI::App& app, const Report& report)
{
    app.add_subcommand("version", "print the version of the library")->callback([&report] {
        const std::string version = LibraryVersion(L"NorvepaBl64x.dll");
        report.Answer("NorvepaBl64x " + version, {{"library", "NorvepaBl64x"}, {"version", version}});
    });
}

} // namespace norvctl

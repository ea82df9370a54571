#include "FileFailure.h"

#include "Text.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <string_view>

namespace norvctl
{

namespace
{

struct Row
{
    std::uint32_t error;
    const char* meaning;
};

constexpr std::array<Row, 13> Table{{
    {ERROR_FILE_NOT_FOUND, "there is no such file"},
    {ERROR_PATH_NOT_FOUND, "there is no such folder"},
    {ERROR_ACCESS_DENIED, "access is denied"},
    {ERROR_WRITE_PROTECT, "the disk is write-protected"},
    {ERROR_SHARING_VIOLATION, "another program has it open"},
    {ERROR_LOCK_VIOLATION, "another program has locked it"},
    {ERROR_HANDLE_DISK_FULL, "the disk is full"},
    {ERROR_DISK_FULL, "the disk is full"},
    {ERROR_FILE_EXISTS, "it is there already"},
    {ERROR_ALREADY_EXISTS, "it is there already"},
    {ERROR_INVALID_NAME, "it is no name of a file"},
    {ERROR_DIRECTORY, "it is no folder"},
    {ERROR_DIR_NOT_EMPTY, "the folder is not empty"},
}};

std::string Meaning(std::uint32_t error)
{
    const auto row = std::ranges::find(Table, error, &Row::error);
    return row == Table.end() ? fmt::format("the system refuses it ({})", error)
                              : fmt::format("{} ({})", row->meaning, error);
}

// Without what lets a path be of any length.
std::wstring_view Plain(std::wstring_view path)
{
    constexpr std::wstring_view anyLength = L"\\\\?\\";
    return path.starts_with(anyLength) ? path.substr(anyLength.size()) : path;
}

} // namespace

FileFailure::FileFailure(const std::wstring& path) : FileFailure(path, GetLastError()) {}

FileFailure::FileFailure(const std::wstring& path, std::uint32_t error)
    : std::runtime_error(fmt::format("{}: {}", ToUtf8(Plain(path)), Meaning(error)))
{
}

} // namespace norvctl

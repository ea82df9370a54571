#include "win/FileTurn.h"

#include <array>
#include <functional>

namespace norvepa::win
{

namespace
{

constexpr std::size_t Places = 64;
constinit std::array<SharedMutex, Places> turns;

} // namespace

FileNumber NumberOfFile(std::wstring_view path) noexcept
{
    return static_cast<FileNumber>(std::hash<std::wstring_view>()(path)) | 1;
}

SharedMutex& TurnAt(FileNumber file) noexcept
{
    return turns[file / 2 % Places]; // whose last bit is always set
}

} // namespace norvepa::win

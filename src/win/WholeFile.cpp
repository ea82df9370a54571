#include "win/WholeFile.h"

#include "win/Handle.h"

#include <cstdint>
#include <limits>

namespace norvepa::win
{

std::optional<std::string> ReadWholeFile(const std::wstring& file)
{
    const Handle handle(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size;
    if (!handle || !GetFileSizeEx(handle.get(), &size) ||
        size.QuadPart > std::numeric_limits<std::int32_t>::max())
    {
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    ReadFile(handle.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    return bytes;
}

} // namespace norvepa::win

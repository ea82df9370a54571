#include "frame/Arguments.h"

#include <algorithm>

namespace norvepa
{

Result CopyOut(std::wstring_view text, wchar_t* buffer, std::uint32_t* length) noexcept
{
    const std::uint32_t capacity = *length;
    *length = static_cast<std::uint32_t>(text.size());
    if (capacity <= text.size())
    {
        return PGSP_ERR_BUFFER_TOO_SHORT;
    }

    // Up to a terminator of its own, if a text should hold one: what lies behind isn't the buffer's text.
    *std::copy(text.begin(), std::find(text.begin(), text.end(), L'\0'), buffer) = L'\0';
    return PGSP_OK;
}

Result CopyOutUntested(std::wstring_view text, wchar_t* buffer, std::uint32_t* length) noexcept
{
    if (length == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    const bool hasNowhereToGo = buffer == nullptr && *length > text.size();
    return hasNowhereToGo ? PGSP_OK : CopyOut(text, buffer, length);
}

} // namespace norvepa

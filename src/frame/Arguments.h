#pragma once

// The tests that exports and store operations begin with, and the output rule they end with.

#include "frame/Result.h"

#include <cstdint>
#include <string_view>

namespace norvepa
{

// True for what is refused as a name: null, or the empty text. Blanks are not trimmed.
[[nodiscard]] inline bool IsMissing(const wchar_t* name) noexcept
{
    return name == nullptr || *name == L'\0';
}

// A text that may be absent: null counts as empty.
[[nodiscard]] inline std::wstring_view TextOrEmpty(const wchar_t* text) noexcept
{
    return text == nullptr ? std::wstring_view{} : std::wstring_view(text);
}

// What a parameter name that is null or empty stands for, but for log devices, which have another.
inline constexpr wchar_t DefaultParameter[] = L"(default)";

[[nodiscard]] inline const wchar_t* ParameterOrDefault(const wchar_t* parameter) noexcept
{
    return IsMissing(parameter) ? DefaultParameter : parameter;
}

// What a length pointer that may be null points to, for the trace.
[[nodiscard]] inline std::uint32_t LengthOrZero(const std::uint32_t* length) noexcept
{
    return length == nullptr ? 0 : *length;
}

// The output rule: copies `text` with its terminator when `*length`, in characters, is greater than its
// length, and otherwise leaves the buffer alone; sets `*length` to the text's length either way.
// PGSP_OK or PGSP_ERR_BUFFER_TOO_SHORT. Buffer and length must be there.
[[nodiscard]] Result CopyOut(std::wstring_view text, wchar_t* buffer, std::uint32_t* length) noexcept;

// The same where neither has been tested. A null buffer may ask for the length; when that has room there is
// nowhere to copy to, which isn't told: PGSP_OK, and the length as it was. PGSP_ERR_INVALID_PARAMETERS for a
// null length.
[[nodiscard]] Result CopyOutUntested(std::wstring_view text, wchar_t* buffer, std::uint32_t* length) noexcept;

} // namespace norvepa

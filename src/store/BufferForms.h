#pragma once

// The forms of the store's operations that answer into a caller's buffers instead of strings.

#include "frame/Arguments.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvepa
{

// What some operations answer for a pair without lengths: there is no code of the table for it.
inline constexpr Result NoLength{-1};

// A caller's buffers for a name and a value, each with its length in and out in characters.
struct PairBuffers
{
    wchar_t* name;
    std::uint32_t* nameLength;
    wchar_t* value;
    std::uint32_t* valueLength;

    [[nodiscard]] bool HasLengths() const noexcept { return nameLength != nullptr && valueLength != nullptr; }
    [[nodiscard]] bool HasBuffers() const noexcept { return name != nullptr && value != nullptr; }
};

// Both by the output rule, the name first: when it doesn't fit, buffer and length of the value stay as they
// are; when only the value doesn't fit, the name has been copied.
[[nodiscard]] inline Result CopyPair(std::wstring_view name, std::wstring_view value,
                                     const PairBuffers& pair) noexcept
{
    const Result result = CopyOut(name, pair.name, pair.nameLength);
    return result == PGSP_OK ? CopyOut(value, pair.value, pair.valueLength) : result;
}

// Of an entry that holds a name, ";" and a value, which may itself hold more of them.
[[nodiscard]] inline Result CopyEntry(std::wstring_view entry, const PairBuffers& pair) noexcept
{
    const std::size_t end = entry.find(L';');
    return CopyPair(entry.substr(0, end), entry.substr(end + 1), pair);
}

// What `read` answers into a string, by the output rule.
template <typename Read>
[[nodiscard]] Result ReadIntoBuffer(const Read& read, wchar_t* buffer, std::uint32_t* length)
{
    if (buffer == nullptr || length == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    std::wstring text;
    const Result result = read(&text);
    return result == PGSP_OK ? CopyOut(text, buffer, length) : result;
}

// What `read` answers into two strings, likewise.
template <typename Read>
[[nodiscard]] Result ReadIntoPair(const Read& read, const PairBuffers& pair)
{
    if (!pair.HasLengths() || !pair.HasBuffers())
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    std::wstring name;
    std::wstring value;
    const Result result = read(&name, &value);
    return result == PGSP_OK ? CopyPair(name, value, pair) : result;
}

} // namespace norvepa

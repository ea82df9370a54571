#pragma once

// Lists of strings as the value lists take them and give them: each string with its terminator, and one more
// behind the last.

#include "support/OutputBuffer.h"

#include <cstdint>
#include <string>
#include <vector>

namespace norvepa::test
{

[[nodiscard]] inline std::wstring Packed(const std::vector<std::wstring>& strings)
{
    std::wstring packed;
    for (const std::wstring& string : strings)
    {
        packed.append(string).push_back(L'\0');
    }
    packed.push_back(L'\0');
    return packed;
}

// What a list that is given has in its length: the last terminator isn't counted.
[[nodiscard]] inline std::int32_t CountOf(const std::wstring& packed)
{
    return static_cast<std::int32_t>(packed.size()) - 1;
}

// As many characters of a buffer as its length says now.
[[nodiscard]] inline std::wstring Written(OutputBuffer& buffer)
{
    return std::wstring(buffer.data(), buffer.length);
}

} // namespace norvepa::test

#pragma once

// What exports answer into buffers, in one word each.

#include "norvepa.h"
#include "support/OutputBuffer.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <string>

namespace norvepa::test
{

[[nodiscard]] inline std::wstring Failed(std::int32_t result)
{
    return L"(result " + std::to_wstring(result) + L")";
}

// What is answered into a buffer with room enough: the text, or "(result N)" for a call that fails and has
// left buffer and length alone. A call takes the buffer and the length.
template <typename Call>
[[nodiscard]] std::wstring TextOf(const Call& call)
{
    constexpr std::uint32_t capacity = 300;
    OutputBuffer buffer(capacity);
    const std::int32_t result = call(buffer.data(), &buffer.length);
    if (result == PGSP_OK)
    {
        EXPECT_EQ(buffer.length, buffer.text().size());
        return buffer.text();
    }
    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, capacity);
    return Failed(result);
}

// What is answered into two buffers with room enough: "name=value", or as above. A call takes two of each.
template <typename Call>
[[nodiscard]] std::wstring PairOf(const Call& call)
{
    std::wstring name;
    const std::wstring value = TextOf([&](wchar_t* valueBuffer, std::uint32_t* valueLength) {
        std::int32_t result = PGSP_OK;
        name = TextOf([&](wchar_t* nameBuffer, std::uint32_t* nameLength) {
            result = call(nameBuffer, nameLength, valueBuffer, valueLength);
            return result;
        });
        return result;
    });
    return name == value && name.starts_with(L"(result") ? name : name + L"=" + value;
}

} // namespace norvepa::test

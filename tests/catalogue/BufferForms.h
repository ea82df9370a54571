#pragma once

// The queries that answer into a caller's buffers, as tables: each asks for something that FileAnswering()
// holds.

#include "store/BufferForms.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace norvepa::test
{

struct TextForm
{
    const char* name;
    Result (*ask)(const wchar_t* filePath, wchar_t* buffer, std::uint32_t* length);
};

struct PairForm
{
    const char* name;
    std::wstring_view answerName; // of the pair; its value is the file's answer
    Result withoutLength;         // for a pair that lacks a length
    Result (*ask)(const wchar_t* filePath, const PairBuffers& pair);
};

[[nodiscard]] const std::vector<TextForm>& TextForms();
[[nodiscard]] const std::vector<PairForm>& PairForms();

} // namespace norvepa::test

#pragma once

// The exports' three kinds of answers as values: a text, a list, and an enumeration.

#include "Report.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace norvctl
{

// A text, or the code for why there is none.
struct ReadResult
{
    int32_t result;
    std::string value;

    bool operator==(const ReadResult&) const = default;
};

struct NameAndValue
{
    std::string name;
    std::string value;
};

// Asks again with a larger buffer when the text turns out to be longer.
[[nodiscard]] ReadResult ReadText(const std::function<int32_t(wchar_t* text, uint32_t* length)>& read);

// The same with a buffer that has room for so many characters at once.
[[nodiscard]] ReadResult ReadTextWithRoom(
    std::size_t room, const std::function<int32_t(wchar_t* text, uint32_t* length)>& read);

constexpr std::size_t LongestValue = 10'000'000; // no file of the store is longer

// A list of texts; a failure is thrown with what was asked for.
[[nodiscard]] std::vector<std::string> ReadTexts(
    const std::string& subject, const std::function<int32_t(wchar_t* list, uint32_t* length)>& read);

// All items of an enumeration, up to its end. Any other failure is thrown with what was asked for.
[[nodiscard]] std::vector<std::string> EnumerateTexts(
    const std::string& subject,
    const std::function<int32_t(uint32_t index, wchar_t* text, uint32_t* length)>& read);

using ReadPair = std::function<int32_t(uint32_t index, wchar_t* name, uint32_t* nameLength, wchar_t* value,
                                       uint32_t* valueLength)>;
[[nodiscard]] std::vector<NameAndValue> EnumeratePairs(const std::string& subject, const ReadPair& read);

// Two columns, of parameters and their values; the same as lines of a pipe, and as an object.
[[nodiscard]] Table AsTable(const std::vector<NameAndValue>& pairs, const char* heading = "PARAMETER");
[[nodiscard]] std::string AsLines(const std::vector<NameAndValue>& pairs);
[[nodiscard]] Json AsObject(const std::vector<NameAndValue>& pairs);

// One text a line, and the same as a column.
[[nodiscard]] Table AsTable(const char* heading, const std::vector<std::string>& texts);
[[nodiscard]] std::string AsLines(const std::vector<std::string>& texts);

} // namespace norvctl

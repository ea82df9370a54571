#pragma once

// The three name operations with a roomy buffer, for tests that look at texts and not at lengths.

#include "frame/FileNames.h"
#include "support/OutputBuffer.h"

#include <cstdint>
#include <ostream>
#include <stdexcept>
#include <string>

namespace norvepa::test
{

using NameOperation = Result (*)(const wchar_t* text, wchar_t* buffer, std::uint32_t* length);

// For tests of what all of them have in common.
struct NamedOperation
{
    const char* name;
    NameOperation convert;

    friend void PrintTo(const NamedOperation& each, std::ostream* out) { *out << each.name; }
};

inline constexpr NamedOperation EscapeName{"EscapeName", NorvXMLEscapeName};
inline constexpr NamedOperation EscapeBareName{"EscapeBareName", NorvXMLEscapeBareName};
inline constexpr NamedOperation UnescapeName{"UnescapeName", NorvXMLUnescapeName};

// The text that came out. Throws when the operation failed or its length isn't that of the text.
[[nodiscard]] inline std::wstring Converted(NameOperation operation, const std::wstring& text)
{
    OutputBuffer buffer(600);
    const Result result = operation(text.c_str(), buffer.data(), &buffer.length);
    std::wstring converted = buffer.text();
    if (result != PGSP_OK || buffer.length != converted.size())
    {
        throw std::runtime_error("conversion failed: " + std::to_string(result));
    }
    return converted;
}

} // namespace norvepa::test

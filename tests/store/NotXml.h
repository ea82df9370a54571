#pragma once

// Texts that XML can't hold, which a file would be lost with.

#include <array>
#include <string>

namespace norvepa::test
{

inline const std::array<std::wstring, 10> TextsThatXmlCannotHold{
    L"\x01",
    L"a\x08z",
    L"\x0B",
    L"\x1B",
    L"\x1F",
    L"\uFFFE",
    L"\uFFFF",
    std::wstring{wchar_t{0xD83D}},
    std::wstring{wchar_t{0xDE00}, L'x'},
    std::wstring{L'x', wchar_t{0xD83D}},
};

} // namespace norvepa::test

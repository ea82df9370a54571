#pragma once

// A resource library with nothing in it but strings, as a whole file:
//
//     WriteBytes(path, TextLibrary().Text(1000, L"Kessel").Text(1001, L"Presse").file());
//
// One without strings is a library all the same.

#include <array>
#include <map>
#include <string>
#include <string_view>

namespace norvepa::test
{

class TextLibrary
{
public:
    TextLibrary& Text(unsigned number, std::wstring_view text);

    // A block as it lies in the file, whatever it may hold: a well-behaved writer's is 16 strings, each a
    // count of characters, in two bytes, and then these. Blocks are numbered from 1, which begins with string
    // 0.
    TextLibrary& Block(unsigned block, std::string_view bytes);

    [[nodiscard]] std::string file() const;

private:
    using Strings = std::array<std::wstring, 16>;

    std::map<unsigned, Strings> m_texts; // by block
    std::map<unsigned, std::string> m_blocks;
};

} // namespace norvepa::test

#pragma once

// A resource library with nothing in it but strings, as a whole file:
//
//     WriteBytes(path, TextLibrary().Text(1000, L"Kessel").Text(1001, L"Presse").file());
//
// One without strings is a library all the same.

#include <array>
#include <cstdint>
#include <map>
#include <optional>
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

    // A block that isn't there, and is told to lie at an address within the loaded library, from its start.
    TextLibrary& BlockAt(unsigned block, std::uint32_t address, std::uint32_t bytes);

    [[nodiscard]] std::string file() const;

    // For the source alone.
    struct Place
    {
        std::uint32_t address;
        std::uint32_t size; // in bytes
    };
    struct StoredBlock
    {
        std::string bytes;
        std::optional<Place> told; // instead of where the bytes lie
    };

private:
    using Strings = std::array<std::wstring, 16>;

    std::map<unsigned, Strings> m_texts; // both by block
    std::map<unsigned, StoredBlock> m_blocks;
};

} // namespace norvepa::test

#pragma once

// Documents that chance makes, of everything that may stand in one, in the encodings that stores have; and
// damage to them. The same number makes the same document and does the same damage every time.

#include <cstddef>
#include <cstdint>
#include <string>

namespace norvepa::test
{

struct RandomDocument
{
    std::string bytes;
    // Of them, from the beginning on: with damage there an engine may end the whole process.
    std::size_t prolog = 0;
};

// Well-formed but for its prefixes, some of which nobody has declared, and now and then an attribute too
// many.
[[nodiscard]] RandomDocument MakeDocument(std::uint32_t number);

// Cut off, or with bytes turned, doubled, lost or zero, behind the prolog.
[[nodiscard]] std::string Damaged(const RandomDocument& document, std::uint32_t number);

} // namespace norvepa::test

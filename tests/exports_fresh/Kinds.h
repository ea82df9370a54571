#pragma once

// The kinds of questions whose answers lie in one file of the store: for each, the file, what is asked of it,
// and what is answered in each state that the file can be in. The two values of a kind make files that differ
// in one byte alone.
//
// What the library keeps of the catalogue for good, whatever becomes of the file, isn't among them.

#include "Place.h"

#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{

struct Value
{
    std::wstring inFile;
    std::wstring answer;
};

struct Kind
{
    const char* name;
    std::wstring (*path)(const StoreRoots& roots, const std::wstring& object);
    std::string (*content)(const std::wstring& object, const std::wstring& value);
    std::string_view mark; // begins what holds the value: what ends ahead of this doesn't have it
    std::wstring (*ask)(const Place& place, const std::wstring& object);
    Value before;
    Value after;
    std::wstring missing;   // there is no such file
    std::wstring held;      // it can't be opened: told, unless the listing of its folder is what is asked
    std::wstring malformed; // it ends or breaks ahead of the value

    friend void PrintTo(const Kind& kind, std::ostream* out);
};

[[nodiscard]] const std::vector<Kind>& Kinds();

// Without those that make files of their own for each question, and so can't be asked by several at once.
[[nodiscard]] std::vector<Kind> KindsAskedAtOnce();

// The one that a test of the name "Test/Kind" is about.
[[nodiscard]] const Kind& KindOf(const std::string& test);

} // namespace norvepa::test

#pragma once

// Questions to the catalogue about the last parameter of a protocol's file. All throw at another answer than
// the store was made to give.

#include <string>

namespace norvepa::bench
{

// The fourth item of its value list.
void AskCollection(const std::wstring& file, std::wstring& item);

// The first pair of its section.
void AskSection(const std::wstring& file);

// One of its constraints, from the memo once it was asked for.
void AskConstraint(const std::wstring& file, std::wstring& value);

// The file made a tree anew.
void Parse(const std::wstring& file);

} // namespace norvepa::bench

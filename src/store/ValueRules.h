#pragma once

// What a parameter may be called and hold, by the type word it is written with, and the element it becomes.

#include "frame/Result.h"

#include <string>
#include <string_view>

namespace norvepa
{

// The element that a type's entries are; any other word than "int", "bool", "string" and none is itself the
// element. Type words compare without regard to case.
[[nodiscard]] std::wstring_view EntryElementOf(std::wstring_view type) noexcept;

// True when the text is empty or a decimal number, with blanks and a sign in front, to its end.
[[nodiscard]] bool IsInteger(const wchar_t* text) noexcept;

// True for "true" and "false" without regard to case.
[[nodiscard]] bool IsBoolean(std::wstring_view text) noexcept;

// True when a string parameter's name, or its value, holds none of the characters that it may not.
[[nodiscard]] bool AreNameCharacters(std::wstring_view parameter) noexcept;
[[nodiscard]] bool AreValueCharacters(std::wstring_view value) noexcept;

// Both of them.
[[nodiscard]] bool AreStringCharacters(std::wstring_view parameter, std::wstring_view value) noexcept;

// "true" or "false" in lower case, for a text that IsBoolean.
[[nodiscard]] std::wstring NormalisedBoolean(std::wstring_view text);

// The rule for a value of this type; an empty type is a string. `stored` becomes what is to be written.
[[nodiscard]] Result CheckTypedValue(std::wstring_view type, std::wstring_view parameter,
                                     const wchar_t* value, std::wstring& stored);

} // namespace norvepa

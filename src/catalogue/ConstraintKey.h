#pragma once

// The keys under which catalogue files list the values of a parameter.

#include <string>
#include <string_view>

namespace norvepa
{

// Of a parameter, of a value of it, of a parameter below that value, and of a value of that one. An empty
// part leaves no trace: the key is that of another place then.
[[nodiscard]] std::wstring ConstraintKey(std::wstring_view parameter);
[[nodiscard]] std::wstring ConstraintKey(std::wstring_view parameter, std::wstring_view value);
[[nodiscard]] std::wstring ConstraintKey(std::wstring_view parameter, std::wstring_view value,
                                         std::wstring_view subParameter);
[[nodiscard]] std::wstring ConstraintKey(std::wstring_view parameter, std::wstring_view value,
                                         std::wstring_view subParameter, std::wstring_view subValue);

} // namespace norvepa

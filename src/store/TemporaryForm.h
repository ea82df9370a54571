#pragma once

// The form that a changed file has until it has been validated: it lies beside the file, under its name with
// "(temp)" behind it.

#include <string>

namespace norvepa
{

inline constexpr wchar_t TemporaryMark[] = L"(temp)";

// Of a path whose name is escaped already.
[[nodiscard]] inline std::wstring TemporaryForm(const std::wstring& escapedPath)
{
    return escapedPath + TemporaryMark + L".xml";
}

} // namespace norvepa

#pragma once

// Free-text names as file names and back: the characters that a file name can't hold, and those that
// the scheme itself uses, are written as codes.
//
// The backslash and the double quote have no code: the first ends a path component, the second passes.
// A name that literally holds a code comes back as the character it stands for.

#include "frame/Result.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvepa
{

class PathText;

// The three operations on a caller's buffer, `length` in and out in characters by the output rule.
// PGSP_ERR_INVALID_PARAMETERS when the text is null or empty, the buffer or the length is null, or the
// length is 0. The first and the last work on what follows the last backslash, the second on the whole.
// The second and third refuse results of PathCapacity characters or more as a buffer too short, whatever
// the buffer; the first knows no limit but the buffer's.
[[nodiscard]] Result NorvXMLEscapeName(const wchar_t* path, wchar_t* buffer, std::uint32_t* length);
[[nodiscard]] Result NorvXMLEscapeBareName(const wchar_t* name, wchar_t* buffer, std::uint32_t* length);
[[nodiscard]] Result NorvXMLUnescapeName(const wchar_t* path, wchar_t* buffer, std::uint32_t* length);

// NorvXMLEscapeName as every store operation begins with it, for paths of less than PathCapacity
// characters. `escaped` is untouched unless the result is PGSP_OK; a PathText must be empty, it is added to.
[[nodiscard]] Result EscapePath(const wchar_t* path, std::wstring& escaped);
[[nodiscard]] Result EscapePath(const wchar_t* path, PathText& escaped);

} // namespace norvepa

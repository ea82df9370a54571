#pragma once

// The text that a file's `Resource` of a name leads to, in a language.

#include "frame/Result.h"

#include <cstdint>

namespace norvepa
{

// `XmlFile` is a store path, `Parameter` the name, or the name of a block of texts, a backslash and a number.
// `Language` is a word of two characters; all else, null too, is the user's own. `flag` chooses the section:
// 0 `UserInterface64`, any other number `UserInterface`. The text goes to the buffer by the output rule for
// outputs that weren't tested.
//
// PGSP_OK, PGSP_ERR_BUFFER_TOO_SHORT, PGSP_ERR_FOLDER_NOT_FOUND without a program folder,
// PGSP_ERR_CANT_LOAD_DLL, PGSP_ERR_CANT_LOAD_RESOURCE, the codes of NorvXMLGetAssemblyLink; and
// PGSP_ERR_INVALID_PARAMETERS for a text without a length to go to.
[[nodiscard]] Result PGSP_LoadResourceString(const wchar_t* XmlFile, const wchar_t* Parameter,
                                             const wchar_t* Language, wchar_t* buffer, std::uint32_t* length,
                                             std::int32_t flag);

} // namespace norvepa

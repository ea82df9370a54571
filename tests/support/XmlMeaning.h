#pragma once

// What a document says, whichever way it is written down: one line a node, elements and attributes with their
// namespaces resolved. A redundant declaration of a namespace, the order of attributes, the quotes, white
// space between tags and the XML declaration make no difference; all else does, comments and processing
// instructions too.
//
// The calling thread must have COM. A document that isn't well-formed gives "not well-formed: " and why.

#include <string>
#include <string_view>

namespace norvepa::test
{

[[nodiscard]] std::string MeaningOf(std::string_view bytes);
[[nodiscard]] std::string MeaningOfFile(const std::wstring& path);

} // namespace norvepa::test

#pragma once

// The store's kinds of documents: a word each, and the namespace of what is created for it.

#include "xml/Document.h"

#include <string>
#include <string_view>

namespace norvepa
{

// The namespace of a kind; empty for a kind without one ("brd", "pro") and for unknown words.
[[nodiscard]] std::wstring NamespaceOfKind(std::wstring_view kind);

// The only way in which the store makes an element. Empty when the engine refuses, as for a name that isn't
// one.
[[nodiscard]] Node NorvXMLCreateElement(std::wstring_view name, std::wstring_view kind,
                                        const Document& document);

} // namespace norvepa

#pragma once

// What the walks over catalogue files have in common: the path, the sections, the elements that hold a value.

#include "catalogue/ConstraintKey.h"
#include "meta/cEpaBlElement.h"
#include "xml/Document.h"

#include <string>
#include <string_view>
#include <vector>

namespace norvepa
{

// A path as catalogue queries take it: the extension added by the anywhere rule, the name not escaped.
[[nodiscard]] std::wstring CatalogueFile(const wchar_t* filePath);

// Document: `ParamSection` of this `Param`.
[[nodiscard]] bool IsParamSectionOf(const Node& node, std::wstring_view param);

// Document: the sections of the values with this `Param` in the collections of a parameter's section.
[[nodiscard]] std::vector<Node> ValueSections(const Node& parameterSection, std::wstring_view param);

// Tree: the element at a path; null when there is none or the path is too long.
[[nodiscard]] const cEpaBlElement* ElementAt(const cEpaBlElement& root, std::wstring_view path);

} // namespace norvepa

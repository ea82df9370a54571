#pragma once

// What the verbs of templates share.

#include "Reads.h"

#include <string>
#include <vector>

namespace norvctl
{

inline constexpr wchar_t TemplatesFolder[] = L"DefaultLogDevices"; // of the catalogue

// All values. Throws when there is no such template.
[[nodiscard]] std::vector<NameAndValue> ValuesOfTemplate(const std::string& name);

} // namespace norvctl

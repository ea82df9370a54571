#pragma once

// Files of parameter data.

#include "support/XmlFiles.h"

#include <string>
#include <string_view>

namespace norvepa::test
{

// Of the kind "x", which new entries have.
inline constexpr std::wstring_view BaseNamespace =
    L"http://www.marvolt.example/Automation/Corvane.Device.Driver";

// Such a file, all in that namespace.
[[nodiscard]] inline std::string DataFile(const XmlContent& content)
{
    return XmlFile(L"ParameterData", {{L"xmlns", BaseNamespace}}, content);
}

} // namespace norvepa::test

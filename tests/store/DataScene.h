#pragma once

// A file of parameter data to ask and to write to.

#include "store/WriteScene.h"

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

class DataScene : public WriteScene
{
protected:
    // The writing operations on that file.
    [[nodiscard]] Result SetData(const wchar_t* name, const wchar_t* value,
                                 const wchar_t* type = L"string") const
    {
        return NorvXMLSetParameterData(path().c_str(), name, value, type);
    }
    [[nodiscard]] Result DelData(const wchar_t* name) const
    {
        return NorvXMLDelParameterData(path().c_str(), name);
    }
};

} // namespace norvepa::test

#include "catalogue/CatalogueWalk.h"

#include "frame/StoreLocations.h"
#include "frame/Text.h"

namespace norvepa
{

std::wstring CatalogueFile(const wchar_t* filePath)
{
    std::wstring file(filePath);
    ExtendByAnywhereRule(file);
    return file;
}

bool IsParamSectionOf(const Node& node, std::wstring_view param)
{
    if (!node.IsNamed(L"ParamSection"))
    {
        return false;
    }
    const Node attribute = node.Attribute(L"Param");
    return attribute && EqualNoCase(attribute.Text().view(), param);
}

std::vector<Node> ValueSections(const Node& parameterSection, std::wstring_view param)
{
    std::vector<Node> sections;
    for (const Node& collection : parameterSection.Children())
    {
        if (!collection.IsNamed(L"ValueCollection"))
        {
            continue;
        }
        for (const Node& section : collection.Children())
        {
            if (IsParamSectionOf(section, param))
            {
                sections.push_back(section);
            }
        }
    }
    return sections;
}

const cEpaBlElement* ElementAt(const cEpaBlElement& root, std::wstring_view path)
{
    const cEpaBlElement* found = nullptr;
    return WalkPath(root, path, found) == PGSP_OK ? found : nullptr;
}

} // namespace norvepa

#include "frame/Arguments.h"
#include "store/DomWalk.h"
#include "store/LinkSection.h"
#include "store/norvxml.h"

namespace norvepa
{

namespace
{

// Links to texts aren't listed.
bool IsListed(const Node& node)
{
    return IsEntry(node) || node.IsNamed(L"ParameterAssemblyLink");
}

// The listed element at an index, over all sections in the document's order; empty past the last.
Node ListedAt(const Document& document, std::wstring_view linkSection, std::uint32_t index)
{
    for (const Node& section : document.Elements())
    {
        if (!section.IsNamed(L"Ndi") && !section.IsNamed(linkSection))
        {
            continue;
        }
        for (const Node& child : section.Children())
        {
            if (IsListed(child) && index-- == 0)
            {
                return child;
            }
        }
    }
    return {};
}

std::wstring ShownValue(const Node& element)
{
    std::wstring value = ChildText(element, L"Value");
    if (!value.empty())
    {
        return value;
    }
    const std::wstring assembly = ChildText(element, L"Assembly");
    return assembly.empty() ? assembly : assembly + L"," + ChildText(element, L"Function");
}

} // namespace

Result NorvXMLEnumNdi(const wchar_t* filePath, std::uint32_t index, std::wstring* name, std::wstring* value,
                      int wide)
{
    if (IsMissing(filePath) || name == nullptr || value == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    std::wstring file;
    Document document;
    if (const Result result = OpenStoreDocument(filePath, file, document); result != PGSP_OK)
    {
        return result;
    }

    const Node element = ListedAt(document, LinkSection(wide), index);
    if (!element)
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    *name = ChildText(element, L"Name");
    *value = ShownValue(element);
    return PGSP_OK;
}

} // namespace norvepa

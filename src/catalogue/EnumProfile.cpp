#include "catalogue/CatalogueWalk.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/Text.h"
#include "meta/cMetaFiles.h"
#include "store/BufferForms.h"
#include "store/DomWalk.h"

namespace norvepa
{

namespace
{

// The child that answers a question by index: counting from 0 in every section of the value, whatever the
// children are, the first that `isWanted` at or behind the index. Empty when there is none.
template <typename Predicate>
Node ChildOfProfile(const Document& document, std::wstring_view parameter, std::wstring_view value,
                    std::uint32_t index, const Predicate& isWanted)
{
    for (const Node& section : document.Elements())
    {
        if (!IsParamSectionOf(section, parameter))
        {
            continue;
        }
        for (const Node& profile : ValueSections(section, value))
        {
            std::uint32_t counter = 0;
            for (const Node& child : profile.Children())
            {
                if (counter < index)
                {
                    ++counter;
                    continue;
                }
                if (isWanted(child))
                {
                    return child;
                }
            }
        }
    }
    return {};
}

// The child number `index` of those that have children.
const cEpaBlElement* NthWithChildren(const cEpaBlElement& section, std::uint32_t index)
{
    std::uint32_t counter = 0;
    for (const auto& [tag, entries] : section.GetChildren())
    {
        for (const auto& entry : entries)
        {
            if (!entry->GetChildren().empty() && counter++ == index)
            {
                return entry.get();
            }
        }
    }
    return nullptr;
}

} // namespace

Result NorvXMLEnumProfileValue(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* value,
                               std::uint32_t index, std::wstring* name, std::wstring* text)
{
    if (IsMissing(filePath) || name == nullptr || text == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    Document document;
    if (const Result result = OpenDocument(CatalogueFile(filePath), document); result != PGSP_OK)
    {
        return result;
    }
    const Node entry = ChildOfProfile(document, TextOrEmpty(parameter), TextOrEmpty(value), index, &IsEntry);
    if (!entry)
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    *name = ChildText(entry, L"Name");
    *text = ChildText(entry, L"Value");
    return PGSP_OK;
}

Result NorvXMLEnumProfileValue(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* value,
                               std::uint32_t index, const PairBuffers& pair)
{
    return ReadIntoPair(
        [&](std::wstring* name, std::wstring* text) {
            return NorvXMLEnumProfileValue(filePath, parameter, value, index, name, text);
        },
        pair);
}

Result NorvXMLEnumSubProfile(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* value,
                             std::uint32_t index, std::wstring* subParameter)
{
    if (IsMissing(filePath) || subParameter == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    Document document;
    if (const Result result = OpenDocument(CatalogueFile(filePath), document); result != PGSP_OK)
    {
        return result;
    }
    const auto isSection = [](const Node& child) { return child.IsNamed(L"ParamSection"); };
    const Node section =
        ChildOfProfile(document, TextOrEmpty(parameter), TextOrEmpty(value), index, isSection);
    if (!section)
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    const Node param = section.Attribute(L"Param");
    *subParameter = param ? param.Text().view() : std::wstring_view{};
    return PGSP_OK;
}

Result NorvXMLEnumSubProfileValue(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* value,
                                  const wchar_t* subParameter, const wchar_t* subValue, std::uint32_t index,
                                  std::wstring* name, std::wstring* text)
{
    if (IsMissing(filePath) || name == nullptr || text == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    const MetaDocument document = MetaGetDocument(filePath);
    if (document == nullptr)
    {
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }
    const std::wstring key = ConstraintKey(TextOrEmpty(parameter), TextOrEmpty(value),
                                           TextOrEmpty(subParameter), TextOrEmpty(subValue));
    const cEpaBlElement* const section = ElementAt(*document, key);
    const cEpaBlElement* const entry = section == nullptr ? nullptr : NthWithChildren(*section, index);
    const cEpaBlElement* const nameElement =
        entry == nullptr ? nullptr : entry->FirstChild(EpaBlElementTag::Name);
    const cEpaBlElement* const valueElement =
        entry == nullptr ? nullptr : entry->FirstChild(EpaBlElementTag::Value);
    if (nameElement == nullptr || valueElement == nullptr)
    {
        return PGSP_ERR_NO_MORE_ITEMS; // an entry that lacks one of the two uses up its number
    }
    *name = nameElement->GetText();
    *text = valueElement->GetText();
    return PGSP_OK;
}

Result NorvXMLEnumSubProfileValue(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* value,
                                  const wchar_t* subParameter, const wchar_t* subValue, std::uint32_t index,
                                  const PairBuffers& pair)
{
    return ReadIntoPair(
        [&](std::wstring* name, std::wstring* text) {
            return NorvXMLEnumSubProfileValue(filePath, parameter, value, subParameter, subValue, index, name,
                                              text);
        },
        pair);
}

} // namespace norvepa

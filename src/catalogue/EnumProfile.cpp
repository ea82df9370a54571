#include "catalogue/CatalogueWalk.h"
#include "catalogue/ProfileWalk.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "meta/cMetaFiles.h"
#include "store/BufferForms.h"

namespace norvepa
{

namespace
{

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
    return ProfileWalk(filePath, TextOrEmpty(parameter), TextOrEmpty(value)).EntryAt(index, *name, *text);
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
    return ProfileWalk(filePath, TextOrEmpty(parameter), TextOrEmpty(value))
        .SubParameterAt(index, *subParameter);
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

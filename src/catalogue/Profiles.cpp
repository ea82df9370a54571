#include "catalogue/CatalogueWalk.h"
#include "catalogue/Collections.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "meta/cMetaFiles.h"

// Queries of the value collections below the constraints of a parsed file, and of what a value selects there.

namespace norvepa
{

namespace
{

constexpr std::wstring_view BaudrateKey = L"Constraints\\baudrate";
constexpr std::wstring_view BusProfileParameter = L"busparam";

// The item of a collection whose items are sections, named by their `Param`.
Result EnumSectionNames(const wchar_t* filePath, std::wstring_view key, std::uint32_t index,
                        std::wstring& item)
{
    const MetaDocument document = MetaGetDocument(filePath);
    if (document == nullptr)
    {
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }
    const cEpaBlElement* const section = ElementAt(*document, key);
    const cEpaBlElement* const collection = section == nullptr ? nullptr : FindCollection(*section);
    if (collection == nullptr || collection->ChildrenOf(EpaBlElementTag::ParamSection).empty())
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }

    const auto& items = collection->ChildrenOf(EpaBlElementTag::ParamSection);
    const std::wstring* const param =
        index < items.size() ? items[index]->AttributeValue(EpaBlAttributeTag::Param) : nullptr;
    if (param == nullptr)
    {
        return PGSP_ERR_NO_MORE_ITEMS; // also for an item without a name, which nothing can stand in for
    }
    item = *param;
    return PGSP_OK;
}

// The element that the path of a value leads to; null for a file that can't be loaded, too. It lives as long
// as `document`.
const cEpaBlElement* SectionAt(const wchar_t* filePath, std::wstring_view key, MetaDocument& document)
{
    document = MetaGetDocument(filePath);
    return document == nullptr ? nullptr : ElementAt(*document, key);
}

} // namespace

Result NorvXMLEnumBaudrate(const wchar_t* filePath, std::uint32_t index, std::wstring* item)
{
    if (IsMissing(filePath) || item == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    return EnumSectionNames(filePath, BaudrateKey, index, *item);
}

Result NorvXMLEnumProfileBaudrate(const wchar_t* filePath, const wchar_t* profile, std::uint32_t index,
                                  std::wstring* item)
{
    if (IsMissing(filePath) || profile == nullptr || item == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    const std::wstring key = ConstraintKey(BusProfileParameter, profile, L"baudrate");
    return EnumSectionNames(filePath, key, index, *item);
}

Result NorvXMLProfileCollectionExists(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* value)
{
    if (IsMissing(filePath) || parameter == nullptr || value == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    const MetaDocument document = MetaGetDocument(filePath);
    if (document == nullptr)
    {
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }
    const cEpaBlElement* const section = ElementAt(*document, ConstraintKey(parameter));
    if (section == nullptr)
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }
    for (const std::wstring& text : GetValueCollection(*section))
    {
        if (EqualWords(std::wstring_view(text).substr(0, text.find(L'/')), value))
        {
            return PGSP_OK;
        }
    }
    return PGSP_ERR_PARAM_NOT_FOUND;
}

Result NorvXMLSubProfileCollectionExists(const wchar_t* filePath, const wchar_t* parameter,
                                         const wchar_t* value, const wchar_t* subParameter,
                                         const wchar_t* subValue)
{
    if (IsMissing(filePath) || parameter == nullptr || value == nullptr || subParameter == nullptr ||
        subValue == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    MetaDocument document;
    const std::wstring key = ConstraintKey(parameter, value, subParameter, subValue);
    return SectionAt(filePath, key, document) == nullptr ? PGSP_ERR_PARAM_NOT_FOUND : PGSP_OK;
}

Result NorvXMLGetParamDesc(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* value,
                           std::wstring* text)
{
    if (IsMissing(filePath) || parameter == nullptr || value == nullptr || text == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    MetaDocument document;
    const cEpaBlElement* const section = SectionAt(filePath, ConstraintKey(parameter, value), document);
    const cEpaBlElement* const description =
        section == nullptr ? nullptr : FindBreadthFirst(section, EpaBlElementTag::ParamDesc);
    if (description == nullptr)
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }
    *text = description->GetText();
    return PGSP_OK;
}

} // namespace norvepa

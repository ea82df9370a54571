#include "catalogue/CatalogueWalk.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "meta/cMetaFiles.h"
#include "store/BufferForms.h"

namespace norvepa
{

Result NorvXMLProfileGetValue(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* value,
                              const wchar_t* word, std::wstring* text)
{
    if (IsMissing(filePath) || text == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    const MetaDocument document = MetaGetDocument(filePath);
    if (document == nullptr)
    {
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }
    const cEpaBlElement* const section =
        ElementAt(*document, ConstraintKey(TextOrEmpty(parameter), TextOrEmpty(value)));
    if (section == nullptr)
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }

    // A name stays matched until another one is met: an entry without a name may bring the value.
    bool matched = false;
    for (const auto& [tag, entries] : section->GetChildren())
    {
        for (const auto& entry : entries)
        {
            if (const cEpaBlElement* const name = entry->FirstChild(EpaBlElementTag::Name))
            {
                matched = EqualWords(name->GetText(), TextOrEmpty(word));
            }
            const cEpaBlElement* const valueElement = entry->FirstChild(EpaBlElementTag::Value);
            if (matched && valueElement != nullptr)
            {
                *text = valueElement->GetText();
                return PGSP_OK;
            }
        }
    }
    return PGSP_ERR_PARAM_NOT_FOUND;
}

Result NorvXMLProfileGetValue(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* value,
                              const wchar_t* word, wchar_t* buffer, std::uint32_t* length)
{
    return ReadIntoBuffer(
        [&](std::wstring* text) { return NorvXMLProfileGetValue(filePath, parameter, value, word, text); },
        buffer, length);
}

} // namespace norvepa

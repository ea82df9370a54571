#include "catalogue/CatalogueWalk.h"
#include "catalogue/Collections.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "meta/cEpaBlCache.h"
#include "meta/cMetaFiles.h"
#include "store/BufferForms.h"
#include "store/PullWalk.h"
#include "trace/TraceStatement.h"

namespace norvepa
{

namespace
{

// An answer from the cache, or worked out by `collect` and stored. PGSP_ERR_CANT_LOAD_XML_FILE, or
// PGSP_ERR_PARAM_NOT_FOUND for an empty one, which isn't stored.
template <typename Collect>
Result FindOrCollect(const std::wstring& file, std::wstring_view key, AnswerKind kind, const Collect& collect,
                     std::shared_ptr<const Answer>& answer)
{
    answer = MetaCacheFind(file, key, kind);
    if (answer != nullptr)
    {
        return PGSP_OK;
    }
    const MetaDocument document = MetaGetDocument(file);
    if (document == nullptr)
    {
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }
    answer = std::make_shared<const Answer>(collect(*document));
    if (answer->empty())
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }
    MetaCacheStore(file, key, kind, answer);
    return PGSP_OK;
}

Answer CollectionAt(const cEpaBlElement& root, std::wstring_view key)
{
    const cEpaBlElement* const section = ElementAt(root, key);
    return section == nullptr ? Answer{} : GetValueCollection(*section);
}

Result EnumValueCollection(const wchar_t* filePath, const wchar_t* key, std::uint32_t index,
                           std::wstring* item)
{
    if (IsMissing(filePath) || key == nullptr || item == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    // Escaped here and once more where the document is opened: a name with one of the coded characters other
    // than "#" isn't found by this query.
    std::wstring file;
    if (const Result result = StoreFile(filePath, file); result != PGSP_OK)
    {
        return result;
    }
    std::shared_ptr<const Answer> answer;
    const auto collect = [&](const cEpaBlElement& root) { return CollectionAt(root, key); };
    const Result result = FindOrCollect(file, key, AnswerKind::ValueCollection, collect, answer);
    return result == PGSP_OK ? ItemOf(*answer, index, *item) : result;
}

Result EnumSectionEntries(const wchar_t* filePath, const wchar_t* parameter, std::uint32_t index,
                          const PairBuffers& pair)
{
    if (IsMissing(filePath) || parameter == nullptr || !pair.HasBuffers())
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    std::shared_ptr<const Answer> answer;
    const auto collect = [&](const cEpaBlElement& root) { return GetSectionEntries(root, parameter); };
    const Result result =
        FindOrCollect(CatalogueFile(filePath), parameter, AnswerKind::Section, collect, answer);
    if (result != PGSP_OK)
    {
        return result;
    }
    if (index >= answer->size())
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    return CopyEntry((*answer)[index], pair);
}

// The (`Param`, `default`) of a section below the root's first `Constraints`.
Result EnumDefaults(const wchar_t* filePath, std::uint32_t index, const PairBuffers& pair)
{
    if (IsMissing(filePath) || !pair.HasBuffers())
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    const MetaDocument document = MetaGetDocument(filePath);
    if (document == nullptr)
    {
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }
    const cEpaBlElement* const constraints = document->FirstChild(EpaBlElementTag::Constraints);
    if (constraints == nullptr || constraints->FirstChild(EpaBlElementTag::ParamSection) == nullptr)
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }

    const auto& sections = constraints->ChildrenOf(EpaBlElementTag::ParamSection);
    if (index >= sections.size())
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    const std::wstring* const param = sections[index]->AttributeValue(EpaBlAttributeTag::Param);
    const cEpaBlElement* const value = sections[index]->FirstChild(EpaBlElementTag::Default);
    if (param == nullptr || value == nullptr)
    {
        return PGSP_ERR_NO_MORE_ITEMS; // looks like the end of the list
    }
    return CopyPair(*param, value->GetText(), pair);
}

} // namespace

Result NorvXMLEnumValueCollectionRaw(const wchar_t* filePath, const wchar_t* key, std::uint32_t index,
                                     std::wstring* item)
{
    constexpr TraceSource source{"NorvXMLEnumValueCollectionRaw: ", " BL"};

    NORV_TRACE(source, TraceEntry, ">> NorvXMLEnumValueCollectionRaw");
    const Result result = EnumValueCollection(filePath, key, index, item);
    NORV_TRACE(source, TraceExit, "<< NorvXMLEnumValueCollectionRaw");
    return result;
}

// Of each of the following two, the second answers a missing length with a code of its own.

Result NorvXMLEnumProtocolValue(const wchar_t* filePath, std::uint32_t index, const PairBuffers& pair)
{
    return pair.HasLengths() ? EnumDefaults(filePath, index, pair) : PGSP_ERR_INVALID_PARAMETERS;
}

Result NorvXMLEnumConstraintDefault(const wchar_t* filePath, std::uint32_t index, const PairBuffers& pair)
{
    return pair.HasLengths() ? EnumDefaults(filePath, index, pair) : NoLength;
}

Result NorvXMLEnumProtocolParameter(const wchar_t* filePath, const wchar_t* parameter, std::uint32_t index,
                                    const PairBuffers& pair)
{
    return pair.HasLengths() ? EnumSectionEntries(filePath, parameter, index, pair)
                             : PGSP_ERR_INVALID_PARAMETERS;
}

Result NorvXMLEnumParamSection(const wchar_t* filePath, const wchar_t* parameter, std::uint32_t index,
                               const PairBuffers& pair)
{
    return pair.HasLengths() ? EnumSectionEntries(filePath, parameter, index, pair) : NoLength;
}

} // namespace norvepa

#include "catalogue/CatalogueWalk.h"
#include "catalogue/Collections.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/FileNames.h"
#include "frame/PathText.h"
#include "meta/cEpaBlCache.h"
#include "meta/cMetaFiles.h"
#include "store/BufferForms.h"
#include "trace/TraceStatement.h"

namespace norvepa
{

namespace
{

// What `collect` finds in a file's tree. PGSP_ERR_CANT_LOAD_XML_FILE, or PGSP_ERR_PARAM_NOT_FOUND when that
// is nothing.
template <typename Collect>
Result CollectFromFile(std::wstring_view file, const Collect& collect, Answer& answer)
{
    const MetaDocument document = MetaGetDocument(file);
    if (document == nullptr)
    {
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }
    answer = collect(*document);
    return answer.empty() ? PGSP_ERR_PARAM_NOT_FOUND : PGSP_OK;
}

// What `use` says to an answer from the cache, or to one that was collected and stored; the result of
// CollectFromFile when there is none.
template <typename Collect, typename Use>
Result UseAnswer(std::wstring_view file, std::wstring_view key, AnswerKind kind, const Collect& collect,
                 const Use& use)
{
    if (const auto known = MetaCacheFind(file, key, kind))
    {
        return use(*known);
    }
    Answer answer;
    if (const Result result = CollectFromFile(file, collect, answer); result != PGSP_OK)
    {
        return result;
    }
    const auto shared = std::make_shared<const Answer>(std::move(answer));
    MetaCacheStore(file, key, kind, shared);
    return use(*shared);
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
    PathText file;
    if (const Result result = EscapePath(filePath, file); result != PGSP_OK)
    {
        return result;
    }
    ExtendByAnywhereRule(file);
    const auto collect = [&](const cEpaBlElement& root) { return CollectionAt(root, key); };
    return UseAnswer(file.view(), key, AnswerKind::ValueCollection, collect,
                     [&](const Answer& answer) { return ItemOf(answer, index, *item); });
}

Result EnumSectionEntries(const wchar_t* filePath, const wchar_t* parameter, std::uint32_t index,
                          const PairBuffers& pair)
{
    if (IsMissing(filePath) || parameter == nullptr || !pair.HasBuffers())
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    PathText file(filePath);
    ExtendByAnywhereRule(file);
    const auto collect = [&](const cEpaBlElement& root) { return GetSectionEntries(root, parameter); };
    return UseAnswer(file.view(), parameter, AnswerKind::Section, collect, [&](const Answer& answer) {
        return index < answer.size() ? CopyEntry(answer[index], pair) : PGSP_ERR_NO_MORE_ITEMS;
    });
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

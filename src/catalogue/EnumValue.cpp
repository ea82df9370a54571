#include "catalogue/norvxmlCatalogue.h"
#include "frame/PathText.h"
#include "meta/cEpaBlCache.h"
#include "meta/cMetaFiles.h"
#include "store/BufferForms.h"

#include <array>
#include <vector>

namespace norvepa
{

namespace
{

// The sections of a flat list, in its order.
constexpr std::array<EpaBlElementTag, 8> ListedSections{
    EpaBlElementTag::DeviceHeader, EpaBlElementTag::LocalSettings, EpaBlElementTag::NetworkSettings,
    EpaBlElementTag::Bindings,     EpaBlElementTag::SpareSection,  EpaBlElementTag::BoardAttributes,
    EpaBlElementTag::Install,      EpaBlElementTag::Parameters,
};

constexpr std::array<EpaBlElementTag, 3> EntryElements{
    EpaBlElementTag::Parameter, EpaBlElementTag::ParameterBool, EpaBlElementTag::ParameterInt};

struct Pair
{
    std::wstring name;
    std::wstring value;
};

void AddEntries(const cEpaBlElement& section, std::vector<Pair>& pairs)
{
    for (const EpaBlElementTag tag : EntryElements)
    {
        for (const auto& entry : section.ChildrenOf(tag))
        {
            const cEpaBlElement* const name = entry->FirstChild(EpaBlElementTag::Name);
            const cEpaBlElement* const value = entry->FirstChild(EpaBlElementTag::Value);
            if (name != nullptr && value != nullptr)
            {
                pairs.push_back({name->GetText(), value->GetText()});
            }
        }
    }
}

// All of a tree: the entries of the sections, then the root's attributes.
std::vector<Pair> ListPairs(const cEpaBlElement& root)
{
    std::vector<Pair> pairs;
    for (const EpaBlElementTag tag : ListedSections)
    {
        if (const cEpaBlElement* const section = FindBreadthFirst(&root, tag))
        {
            AddEntries(*section, pairs);
        }
    }
    for (const auto& [tag, attribute] : root.GetAttributes())
    {
        pairs.push_back({AttributeTagName(tag), attribute.GetValue()});
    }
    return pairs;
}

Result ReadPairs(std::wstring_view file, std::vector<Pair>& pairs)
{
    const MetaDocument document = MetaGetDocument(file);
    if (document == nullptr)
    {
        return PGSP_ERR_FILE_NOT_FOUND;
    }
    pairs = ListPairs(*document);
    return PGSP_OK;
}

void StorePairs(std::wstring_view file, const std::vector<Pair>& pairs)
{
    if (pairs.empty())
    {
        return;
    }
    auto answer = std::make_shared<Answer>();
    for (const Pair& pair : pairs)
    {
        answer->push_back(pair.name + L';' + pair.value);
    }
    MetaCacheStore(file, {}, AnswerKind::WholeFile, std::move(answer));
}

} // namespace

Result NorvXMLEnumValue(const wchar_t* filePath, std::uint32_t index, const PairBuffers& pair)
{
    if (IsMissing(filePath) || !pair.HasLengths() || *pair.nameLength == 0 || *pair.valueLength == 0 ||
        !pair.HasBuffers())
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    PathText path(filePath);
    ExtendByAnywhereRule(path);
    const std::wstring_view file = path.view();
    if (index == 0)
    {
        MetaCacheDropFile(file);
    }
    if (auto known = MetaCacheFind(file, {}, AnswerKind::WholeFile))
    {
        if (index < known->size())
        {
            return CopyEntry((*known)[index], pair);
        }
        // Who has walked to the end has seen the file as it was; the next walk reads it anew. What is dropped
        // goes at once, unless it is borrowed here.
        known = nullptr;
        MetaCacheDropFile(file);
        MetaDropDocument(file);
        return PGSP_ERR_NO_MORE_ITEMS;
    }

    std::vector<Pair> pairs;
    if (const Result result = ReadPairs(file, pairs); result != PGSP_OK)
    {
        return result;
    }
    StorePairs(file, pairs);
    if (index >= pairs.size())
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    return CopyPair(pairs[index].name, pairs[index].value, pair);
}

} // namespace norvepa

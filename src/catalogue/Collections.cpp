#include "catalogue/Collections.h"

namespace norvepa
{

const cEpaBlElement* FindCollection(const cEpaBlElement& start)
{
    return FindBreadthFirst(&start, EpaBlElementTag::ValueCollection);
}

Answer GetValueCollection(const cEpaBlElement& start)
{
    Answer values;
    if (const cEpaBlElement* const collection = FindCollection(start))
    {
        for (const auto& value : collection->ChildrenOf(EpaBlElementTag::Value))
        {
            values.push_back(value->GetText());
        }
    }
    return values;
}

Answer GetSectionEntries(const cEpaBlElement& root, std::wstring_view parameter)
{
    Answer entries;
    const cEpaBlElement* const section =
        FindBreadthFirst(&root, EpaBlElementTag::ParamSection, EpaBlAttributeTag::Param, parameter);
    if (section == nullptr)
    {
        return entries;
    }
    for (const auto& [tag, children] : section->GetChildren())
    {
        if (tag == EpaBlElementTag::ValueCollection)
        {
            continue;
        }
        for (const auto& child : children)
        {
            entries.push_back(ElementTagName(tag) + (L';' + child->GetText()));
        }
    }
    return entries;
}

Result ItemOf(const Answer& answer, std::uint32_t index, std::wstring& item)
{
    if (index >= answer.size())
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    item = answer[index];
    return PGSP_OK;
}

} // namespace norvepa

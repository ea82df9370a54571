#include "meta/cEpaBlElement.h"

#include "frame/StoreLocations.h"
#include "frame/Text.h"

#include <deque>
#include <iterator>

namespace norvepa
{

namespace
{

constexpr std::size_t MaxSegments = 5;

const cEpaBlElement::Siblings noSiblings;

} // namespace

cEpaBlElement::~cEpaBlElement()
{
    // Leaf by leaf and not one inside the other: a file may be nested deeper than the stack is. And without
    // memory of its own: a tree may go because there is none left.
    for (cEpaBlElement* element = this;;)
    {
        while (cEpaBlElement* const child = element->LastChild())
        {
            element = child;
        }
        if (element == this)
        {
            return;
        }
        element = element->m_parent;
        std::prev(element->m_children.end())->second.pop_back();
    }
}

cEpaBlElement* cEpaBlElement::LastChild() noexcept
{
    while (!m_children.empty())
    {
        const auto last = std::prev(m_children.end());
        if (!last->second.empty())
        {
            return last->second.back().get();
        }
        m_children.erase(last);
    }
    return nullptr;
}

cEpaBlElement* cEpaBlElement::AddChild(EpaBlElementTag tag)
{
    return m_children[tag].emplace_back(std::make_unique<cEpaBlElement>(tag, this)).get();
}

void cEpaBlElement::AddAttribute(std::wstring_view word, std::wstring_view value)
{
    const EpaBlAttributeTag tag = AttributeTagFromName(word);
    if (tag != EpaBlAttributeTag::None)
    {
        m_attributes.try_emplace(tag, tag, value);
    }
}

const cEpaBlElement::Siblings& cEpaBlElement::ChildrenOf(EpaBlElementTag tag) const noexcept
{
    const auto found = m_children.find(tag);
    return found == m_children.end() ? noSiblings : found->second;
}

const cEpaBlElement* cEpaBlElement::FirstChild(EpaBlElementTag tag) const noexcept
{
    const Siblings& siblings = ChildrenOf(tag);
    return siblings.empty() ? nullptr : siblings.front().get();
}

const std::wstring* cEpaBlElement::AttributeValue(EpaBlAttributeTag tag) const noexcept
{
    const auto found = m_attributes.find(tag);
    return found == m_attributes.end() ? nullptr : &found->second.GetValue();
}

bool Matches(const cEpaBlElement* element, EpaBlElementTag tag, EpaBlAttributeTag attributeTag,
             std::wstring_view attributeValue) noexcept
{
    if (element == nullptr || element->GetTag() != tag)
    {
        return false;
    }
    if (attributeTag == EpaBlAttributeTag::None)
    {
        return true;
    }
    const std::wstring* const value = element->AttributeValue(attributeTag);
    return value != nullptr && EqualWords(*value, attributeValue);
}

const cEpaBlElement* FindBreadthFirst(const cEpaBlElement* start, EpaBlElementTag tag,
                                      EpaBlAttributeTag attributeTag, std::wstring_view attributeValue)
{
    if (start == nullptr)
    {
        return nullptr;
    }

    std::deque<const cEpaBlElement*> pending{start};
    while (!pending.empty())
    {
        const cEpaBlElement* const element = pending.front();
        pending.pop_front();
        if (Matches(element, tag, attributeTag, attributeValue))
        {
            return element;
        }
        for (const auto& [number, siblings] : element->GetChildren())
        {
            for (const auto& child : siblings)
            {
                pending.push_back(child.get());
            }
        }
    }
    return nullptr;
}

Result WalkPath(const cEpaBlElement& root, std::wstring_view path, const cEpaBlElement*& found)
{
    const std::vector<std::wstring> segments = Tokenize(path);
    if (path.size() >= PathCapacity || segments.size() > MaxSegments)
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }
    if (segments.empty())
    {
        return StepNotFound;
    }

    const cEpaBlElement* element = FindBreadthFirst(&root, ElementTagFromName(segments.front()));
    for (auto segment = std::next(segments.begin()); element != nullptr; ++segment)
    {
        found = element;
        if (segment == segments.end())
        {
            return PGSP_OK;
        }
        element =
            FindBreadthFirst(element, EpaBlElementTag::ParamSection, EpaBlAttributeTag::Param, *segment);
    }
    return StepNotFound;
}

} // namespace norvepa

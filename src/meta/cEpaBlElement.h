#pragma once

// A catalogue file as a tree of elements and attributes whose words have become numbers.
//
// Callers may rely on: a tree that has been parsed is never changed again, so any number of threads may read
// it. Children come by ascending number, and within one number in the file's order; never in the file's order
// across words. Callers must not: keep an element longer than its tree.

#include "frame/Result.h"
#include "meta/Vocabulary.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa
{

class cEpaBlAttribute
{
public:
    cEpaBlAttribute(EpaBlAttributeTag tag, std::wstring_view value) : m_tag(tag), m_value(value) {}

    [[nodiscard]] EpaBlAttributeTag GetTag() const noexcept { return m_tag; }
    [[nodiscard]] const std::wstring& GetValue() const noexcept { return m_value; }

private:
    EpaBlAttributeTag m_tag;
    std::wstring m_value;
};

class cEpaBlElement
{
public:
    using Siblings = std::vector<std::unique_ptr<cEpaBlElement>>;
    using Children = std::map<EpaBlElementTag, Siblings>;
    using Attributes = std::map<EpaBlAttributeTag, cEpaBlAttribute>;

    explicit cEpaBlElement(EpaBlElementTag tag, cEpaBlElement* parent = nullptr) noexcept
        : m_tag(tag), m_parent(parent)
    {
    }
    cEpaBlElement(const cEpaBlElement&) = delete;
    cEpaBlElement& operator=(const cEpaBlElement&) = delete;
    ~cEpaBlElement();

    // While parsing. An attribute's word outside of the vocabulary adds nothing; a second of a word is
    // dropped.
    cEpaBlElement* AddChild(EpaBlElementTag tag);
    void AddAttribute(std::wstring_view word, std::wstring_view value);
    void SetText(std::wstring_view text) { m_text = text; }
    [[nodiscard]] cEpaBlElement* GetParentOrSelf() noexcept { return m_parent ? m_parent : this; }

    [[nodiscard]] EpaBlElementTag GetTag() const noexcept { return m_tag; }
    [[nodiscard]] const std::wstring& GetText() const noexcept { return m_text; }
    [[nodiscard]] const Children& GetChildren() const noexcept { return m_children; }
    [[nodiscard]] const Attributes& GetAttributes() const noexcept { return m_attributes; }

    // The children of one word, in the file's order.
    [[nodiscard]] const Siblings& ChildrenOf(EpaBlElementTag tag) const noexcept;

    // The first child of a word; null when there is none.
    [[nodiscard]] const cEpaBlElement* FirstChild(EpaBlElementTag tag) const noexcept;

    // The value of an attribute; null when there is none.
    [[nodiscard]] const std::wstring* AttributeValue(EpaBlAttributeTag tag) const noexcept;

private:
    [[nodiscard]] cEpaBlElement* LastChild() noexcept; // drops what has become an empty list

    EpaBlElementTag m_tag;
    cEpaBlElement* m_parent;
    std::wstring m_text;
    Attributes m_attributes;
    Children m_children;
};

// True for an element of this number and, unless `attributeTag` is None, with this value of that attribute.
[[nodiscard]] bool Matches(const cEpaBlElement* element, EpaBlElementTag tag, EpaBlAttributeTag attributeTag,
                           std::wstring_view attributeValue) noexcept;

// The nearest match at or below `start`: by level, then by parent, number and the file's order. Null when
// there is none.
[[nodiscard]] const cEpaBlElement* FindBreadthFirst(const cEpaBlElement* start, EpaBlElementTag tag,
                                                    EpaBlAttributeTag attributeTag = EpaBlAttributeTag::None,
                                                    std::wstring_view attributeValue = {});

// What WalkPath answers when a step finds nothing: there is no code of the table for it.
inline constexpr Result StepNotFound{-1};

// The element that a path leads to from the root: its first part is an element's word, each further one the
// `Param` of a `ParamSection` at any depth below. PGSP_OK; StepNotFound; for more than five parts or 260
// characters and more PGSP_ERR_PARAM_NOT_FOUND. `found` is the last element met, untouched when there is
// none.
[[nodiscard]] Result WalkPath(const cEpaBlElement& root, std::wstring_view path, const cEpaBlElement*& found);

} // namespace norvepa

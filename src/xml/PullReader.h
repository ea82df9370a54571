#pragma once

// A forward pass over one XML file, and the primitives that every walk is written with.
//
// Callers may rely on: a reader walks over the image of the file as it was when it was opened (see
// xml/CallImages.h), and holds no file; a DOCTYPE, a malformed place or a file that was cut off stops it for
// good. Callers must not: keep a view that was lent of a name or a value beyond the next step; or ask for the
// node that it stands on when it stands on none.
//
// The primitives don't count depth: a grandchild is found as readily as a child. Text in CDATA is no text
// to them, comments and white space are passed over, and an element written as one empty tag ends a
// search among children.

#include "frame/Result.h"
#include "xml/XmlImage.h"

#include <cstddef>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace norvepa
{

class PullReader
{
public:
    // PGSP_ERR_CANT_LOAD_XML_FILE when the file or the engine can't be opened; `lastStatus` then tells why.
    [[nodiscard]] Result Open(const std::wstring& path);

    // Of the last Open or MoveToFirstAttribute.
    [[nodiscard]] HRESULT lastStatus() const noexcept { return m_lastStatus; }

    // One step. False at the end of the file and at an error.
    [[nodiscard]] bool Read(XmlNodeType& type) noexcept;

    [[nodiscard]] XmlReadState State() const noexcept;
    [[nodiscard]] bool IsEmptyElement() const noexcept; // asked on an attribute it answers false
    [[nodiscard]] std::wstring_view LocalName() const noexcept;
    [[nodiscard]] std::wstring_view Value() const noexcept; // of a text or an attribute, empty of others

    // The attribute that the reader stands on. None when the engine fails to tell any part of it.
    struct Attribute
    {
        std::wstring_view name;
        std::wstring_view value;
    };
    [[nodiscard]] std::optional<Attribute> CurrentAttribute() const noexcept;

    [[nodiscard]] bool MoveToFirstAttribute() noexcept;
    [[nodiscard]] bool MoveToNextAttribute() noexcept;
    void MoveToElement() noexcept { m_attribute = NoAttribute; }

private:
    static constexpr std::size_t NoAttribute = std::numeric_limits<std::size_t>::max();

    [[nodiscard]] const XmlImage::Node& Current() const noexcept
    {
        static constexpr XmlImage::Node nowhere{};
        return m_next - 1 < m_image->size() ? m_image->node(m_next - 1) : nowhere;
    }
    [[nodiscard]] const XmlImage::Attribute& OnAttribute() const noexcept
    {
        return m_image->attribute(m_attribute);
    }

    std::shared_ptr<const XmlImage> m_image;
    std::size_t m_next = 0; // one behind the node that it stands on; behind the last, it has stopped
    std::size_t m_attribute = NoAttribute; // of all the image's
    HRESULT m_lastStatus = S_OK;
};

// True before the first step and while there is more to read.
[[nodiscard]] bool XmlReaderActive(const PullReader& reader) noexcept;

// On to the start of the element `name`. False at any empty element on the way: ask again while active.
[[nodiscard]] bool XmlSeekElement(PullReader& reader, std::wstring_view name) noexcept;

// On to the next element start named `name`. False at the end tag `endName` and at an empty element.
[[nodiscard]] bool XmlSeekChild(PullReader& reader, std::wstring_view endName,
                                std::wstring_view name) noexcept;

// The same for the first of several names; `found` is the one met, as the file spells it.
[[nodiscard]] bool XmlSeekOneOf(PullReader& reader, std::wstring_view endName,
                                std::span<const std::wstring_view> names, std::wstring& found);

// The same for any name.
[[nodiscard]] bool XmlNextChild(PullReader& reader, std::wstring_view endName, std::wstring& found);

// On to the next text. The end tag `name` met first is an empty text.
[[nodiscard]] bool XmlReadText(PullReader& reader, std::wstring_view name, std::wstring& text);

// To the attribute `name` of the present element; back to the element when there is none.
[[nodiscard]] bool XmlSeekAttribute(PullReader& reader, std::wstring_view name) noexcept;

// The value of that attribute, and back to the element.
[[nodiscard]] bool XmlGetAttribute(PullReader& reader, std::wstring_view name, std::wstring& value);

} // namespace norvepa

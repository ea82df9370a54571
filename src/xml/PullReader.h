#pragma once

// A forward pass over one XML file: the pull engine made safe to hold, and the primitives that every
// walk is written with.
//
// Callers may rely on: a reader opens the file for as long as it lives and reads what the file says at
// that time; a DOCTYPE, a malformed place or a file that was cut off stops it for good. Callers must not:
// keep a view that was lent of a name or a value beyond the next step.
//
// The primitives don't count depth: a grandchild is found as readily as a child. Text in CDATA is no text
// to them, comments and white space are passed over, and an element written as one empty tag ends a
// search among children.

#include "frame/Result.h"

#include <wrl/client.h>
#include <xmllite.h>

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
    [[nodiscard]] std::wstring_view Value() const noexcept;

    // The attribute that the reader stands on. None when the engine fails to tell any part of it.
    struct Attribute
    {
        std::wstring_view name;
        std::wstring_view value;
    };
    [[nodiscard]] std::optional<Attribute> CurrentAttribute() noexcept;

    [[nodiscard]] bool MoveToFirstAttribute() noexcept;
    [[nodiscard]] bool MoveToNextAttribute() noexcept;
    void MoveToElement() noexcept;

private:
    struct Place
    {
        XmlNodeType type = XmlNodeType_None;
        UINT line = 0;
        UINT column = 0;

        bool operator==(const Place&) const noexcept = default;
    };

    [[nodiscard]] bool HasMoved(XmlNodeType type) noexcept;

    Microsoft::WRL::ComPtr<IXmlReader> m_reader;
    Place m_place;
    bool m_stopped = false;
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

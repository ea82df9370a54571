#pragma once

// A file's content as one pass of the pull engine saw it, in a compact flat form: its nodes in document
// order, and where and how the engine stopped.
//
// Callers may rely on: an image is never changed once it is made, so any number of threads may read it; it
// holds no engine and no file. The value of a node is kept for texts alone, attributes for elements alone:
// nobody asks for others. Callers must: ask only for nodes and attributes that are there.

#include <windows.h>
#include <xmllite.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa
{

class XmlImage
{
public:
    // A stretch of the image's text.
    struct Span
    {
        std::uint32_t begin = 0;
        std::uint32_t length = 0;
    };

    struct Attribute
    {
        std::uint32_t name : 31;
        std::uint32_t isTold : 1; // every part of it, the prefix too
        Span value;
    };

    struct Node
    {
        std::uint32_t type : 5;
        std::uint32_t isEmpty : 1; // one tag, as it was asked on the element itself
        std::uint32_t name : 26;   // the local one
        Span content;              // the value of a text, or the attributes of an element by their numbers
    };

    [[nodiscard]] std::size_t size() const noexcept { return m_nodes.size(); }
    [[nodiscard]] const Node& node(std::size_t number) const noexcept { return m_nodes[number]; }
    [[nodiscard]] const Attribute& attribute(std::size_t number) const noexcept
    {
        return m_attributes[number];
    }
    [[nodiscard]] std::wstring_view text(Span span) const noexcept
    {
        return {m_text.data() + span.begin, span.length};
    }
    [[nodiscard]] std::wstring_view name(std::uint32_t number) const noexcept
    {
        return text(m_names[number]);
    }

    // Of the engine ahead of the first node, and once it has stopped.
    [[nodiscard]] XmlReadState firstState() const noexcept { return m_firstState; }
    [[nodiscard]] XmlReadState lastState() const noexcept { return m_lastState; }

    // What the engine answered when it was sent to the first attribute of an element that has none.
    [[nodiscard]] static HRESULT noAttribute(const Node& element) noexcept
    {
        return static_cast<HRESULT>(element.content.begin);
    }

    // What the image takes of memory, in bytes.
    [[nodiscard]] std::size_t bytes() const noexcept
    {
        return sizeof *this + m_nodes.capacity() * sizeof(Node) +
               m_attributes.capacity() * sizeof(Attribute) + m_names.capacity() * sizeof(Span) +
               m_text.capacity() * sizeof(wchar_t);
    }

private:
    friend class ImageMaker;

    std::vector<Node> m_nodes;
    std::vector<Attribute> m_attributes;
    std::vector<Span> m_names; // each once
    std::wstring m_text;
    XmlReadState m_firstState = XmlReadState_Closed;
    XmlReadState m_lastState = XmlReadState_Closed;
};

} // namespace norvepa

#pragma once

// A node of a document, and the ranges of nodes that walks run over.
//
// Callers may rely on: a node keeps its document alive; an empty node converts to false. Names are compared
// exactly, as the engine holds them. An engine without memory throws std::bad_alloc wherever it is asked
// something: what is empty or false is so. Callers must not: ask an empty node anything.

#include "xml/Bstr.h"

#include <msxml2.h>
#include <wrl/client.h>

#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>

namespace norvepa
{

class NodeRange;

class Node
{
public:
    Node() noexcept = default;
    explicit Node(Microsoft::WRL::ComPtr<IXMLDOMNode> node) noexcept : m_node(std::move(node)) {}

    explicit operator bool() const noexcept { return m_node.Get() != nullptr; }
    [[nodiscard]] IXMLDOMNode* get() const noexcept { return m_node.Get(); }

    [[nodiscard]] Bstr Name() const;
    [[nodiscard]] bool IsNamed(std::wstring_view name) const;
    [[nodiscard]] bool IsElement() const;

    // Of all that stands inside. Setting it replaces that; a text that XML can't hold is refused.
    [[nodiscard]] Bstr Text() const;
    [[nodiscard]] bool SetText(std::wstring_view text) const;

    [[nodiscard]] NodeRange Children() const;
    [[nodiscard]] Node FirstChild() const;
    [[nodiscard]] Node NextSibling() const;
    [[nodiscard]] Node Parent() const;

    // The attribute of this exact name; empty when there is none. Its text is its value.
    [[nodiscard]] Node Attribute(std::wstring_view name) const;

    // Only for elements.
    [[nodiscard]] bool SetAttribute(std::wstring_view name, std::wstring_view value) const;

    [[nodiscard]] bool Append(const Node& child) const; // as the last child
    [[nodiscard]] bool Remove(const Node& child) const;

private:
    Microsoft::WRL::ComPtr<IXMLDOMNode> m_node;
};

// The children of a node of all types, for a range-based for. A child must stay in place until the walk has
// gone on.
class NodeRange
{
public:
    class Iterator
    {
    public:
        explicit Iterator(Node node) noexcept : m_node(std::move(node)) {}
        const Node& operator*() const noexcept { return m_node; }
        Iterator& operator++()
        {
            m_node = m_node.NextSibling();
            return *this;
        }
        bool operator!=(const Iterator& other) const noexcept { return m_node.get() != other.m_node.get(); }

    private:
        Node m_node;
    };

    explicit NodeRange(Node first) noexcept : m_first(std::move(first)) {}
    [[nodiscard]] Iterator begin() const { return Iterator(m_first); }
    [[nodiscard]] Iterator end() const { return Iterator(Node()); }

private:
    Node m_first;
};

// All elements below a root, in document order, for a range-based for: one at a time, however many there are
// and however deep they lie. The element that a walk stands on, and those around it, must stay in place until
// the walk has gone on or is left.
class ElementRange
{
public:
    class Iterator
    {
    public:
        explicit Iterator(Node root) noexcept : m_element(std::move(root)) {}
        const Node& operator*() const noexcept { return m_element; }
        Iterator& operator++();
        bool operator==(std::default_sentinel_t) const noexcept { return !m_element; }

    private:
        Node m_element;

        // Below the root. A walk is back there by this count: an engine may hand out one node as two objects.
        std::size_t m_depth = 0;
    };

    explicit ElementRange(Node root) noexcept : m_root(std::move(root)) {} // which may be empty
    [[nodiscard]] Iterator begin() const;
    [[nodiscard]] std::default_sentinel_t end() const noexcept { return {}; }

private:
    Node m_root;
};

} // namespace norvepa

#include "xml/Node.h"

#include "xml/Characters.h"
#include "xml/Engine.h"

namespace norvepa
{

using Microsoft::WRL::ComPtr;

namespace
{

// IXMLDOMElement, for which MinGW-w64 has no constant.
constexpr IID ElementInterface = {
    0x2933bf86, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};

// The node itself or the next one beside it that is an element; empty when there is none.
Node ElementFrom(Node node)
{
    while (node && !node.IsElement())
    {
        node = node.NextSibling();
    }
    return node;
}

} // namespace

Bstr Node::Name() const
{
    Bstr name;
    Checked(m_node->get_nodeName(name.out()));
    return name;
}

bool Node::IsNamed(std::wstring_view name) const
{
    return Name().view() == name;
}

bool Node::IsElement() const
{
    DOMNodeType type = NODE_INVALID;
    return SUCCEEDED(Checked(m_node->get_nodeType(&type))) && type == NODE_ELEMENT;
}

Bstr Node::Text() const
{
    Bstr text;
    Checked(m_node->get_text(text.out()));
    return text;
}

bool Node::SetText(std::wstring_view text) const
{
    if (!IsXmlText(text))
    {
        return false;
    }
    // Taken out first: not every engine keeps a child that somebody still holds when a text replaces it.
    while (const Node child = FirstChild())
    {
        if (!Remove(child))
        {
            return false;
        }
    }
    return SUCCEEDED(Checked(m_node->put_text(Bstr(text).get())));
}

NodeRange Node::Children() const
{
    return NodeRange(FirstChild());
}

Node Node::FirstChild() const
{
    ComPtr<IXMLDOMNode> child;
    Checked(m_node->get_firstChild(&child));
    return Node(std::move(child));
}

Node Node::NextSibling() const
{
    ComPtr<IXMLDOMNode> sibling;
    Checked(m_node->get_nextSibling(&sibling));
    return Node(std::move(sibling));
}

Node Node::Parent() const
{
    ComPtr<IXMLDOMNode> parent;
    Checked(m_node->get_parentNode(&parent));
    return Node(std::move(parent));
}

Node Node::Attribute(std::wstring_view name) const
{
    ComPtr<IXMLDOMNamedNodeMap> attributes;
    ComPtr<IXMLDOMNode> attribute;
    if (SUCCEEDED(Checked(m_node->get_attributes(&attributes))) && attributes)
    {
        Checked(attributes->getNamedItem(Bstr(name).get(), &attribute));
    }
    return Node(std::move(attribute));
}

bool Node::SetAttribute(std::wstring_view name, std::wstring_view value) const
{
    ComPtr<IXMLDOMElement> element;
    const Bstr text(value);
    void** const out = reinterpret_cast<void**>(element.GetAddressOf());
    return SUCCEEDED(Checked(m_node->QueryInterface(ElementInterface, out))) &&
           SUCCEEDED(Checked(element->setAttribute(Bstr(name).get(), text.asVariant())));
}

bool Node::Append(const Node& child) const
{
    ComPtr<IXMLDOMNode> appended;
    return SUCCEEDED(Checked(m_node->appendChild(child.get(), &appended)));
}

bool Node::Remove(const Node& child) const
{
    ComPtr<IXMLDOMNode> removed;
    return SUCCEEDED(Checked(m_node->removeChild(child.get(), &removed)));
}

ElementRange::Iterator& ElementRange::Iterator::operator++()
{
    if (Node child = ElementFrom(m_element.FirstChild()))
    {
        m_element = std::move(child);
        ++m_depth;
        return *this;
    }
    for (; m_element && m_depth > 0; --m_depth)
    {
        if (Node sibling = ElementFrom(m_element.NextSibling()))
        {
            m_element = std::move(sibling);
            return *this;
        }
        m_element = m_element.Parent();
    }
    m_element = Node(); // the root, which the walk has come back to
    return *this;
}

ElementRange::Iterator ElementRange::begin() const
{
    Iterator first(m_root);
    return m_root ? ++first : first;
}

} // namespace norvepa

#include "support/XmlMeaning.h"

#include "support/TemporaryFolder.h"

#include <windows.h>
#include <msxml2.h>
#include <objbase.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace norvepa::test
{

namespace
{

using Microsoft::WRL::ComPtr;

// DOMDocument60 and IXMLDOMDocument2, for which MinGW-w64 has no constants.
constexpr CLSID DocumentClass = {
    0x88d96a05, 0xf192, 0x11d4, {0xa6, 0x5f, 0x00, 0x40, 0x96, 0x32, 0x51, 0xe5}};
constexpr IID DocumentInterface = {
    0x2933bf95, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};

std::wstring Taken(BSTR text)
{
    std::wstring taken(text, SysStringLen(text));
    SysFreeString(text);
    return taken;
}

// A property of a node that is a string.
template <typename Getter>
std::wstring Ask(IXMLDOMNode* node, Getter getter)
{
    BSTR text = nullptr;
    (node->*getter)(&text);
    return Taken(text);
}

DOMNodeType TypeOf(IXMLDOMNode* node)
{
    DOMNodeType type = NODE_INVALID;
    node->get_nodeType(&type);
    return type;
}

std::wstring ValueOf(IXMLDOMNode* node)
{
    VARIANT value = {};
    return node->get_nodeValue(&value) == S_OK ? Taken(value.bstrVal) : std::wstring{};
}

std::vector<ComPtr<IXMLDOMNode>> ChildrenOf(IXMLDOMNode* node)
{
    std::vector<ComPtr<IXMLDOMNode>> children;
    ComPtr<IXMLDOMNode> child;
    node->get_firstChild(&child);
    while (child)
    {
        children.push_back(child);
        ComPtr<IXMLDOMNode> next;
        child->get_nextSibling(&next);
        child = next;
    }
    return children;
}

// The name as it counts: "{namespace}name".
std::wstring FullName(IXMLDOMNode* node)
{
    const std::wstring uri = Ask(node, &IXMLDOMNode::get_namespaceURI);
    return (uri.empty() ? L"" : L"{" + uri + L"}") + Ask(node, &IXMLDOMNode::get_baseName);
}

bool DeclaresNamespace(const std::wstring& attributeName)
{
    return attributeName == L"xmlns" || attributeName.starts_with(L"xmlns:");
}

std::vector<std::wstring> AttributesOf(IXMLDOMNode* element)
{
    std::vector<std::wstring> lines;
    ComPtr<IXMLDOMNamedNodeMap> map;
    element->get_attributes(&map);
    ComPtr<IXMLDOMNode> attribute;
    while (map && map->nextNode(&attribute) == S_OK)
    {
        if (!DeclaresNamespace(Ask(attribute.Get(), &IXMLDOMNode::get_nodeName)))
        {
            lines.push_back(L"@" + FullName(attribute.Get()) + L" = " + ValueOf(attribute.Get()));
        }
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

bool IsBlank(const std::wstring& text)
{
    return text.find_first_not_of(L" \t\r\n") == std::wstring::npos;
}

class Dump
{
public:
    void Nodes(IXMLDOMNode* parent, const std::wstring& indent)
    {
        const auto children = ChildrenOf(parent);
        const bool isText = std::all_of(children.begin(), children.end(),
                                        [](const auto& child) { return TypeOf(child.Get()) == NODE_TEXT; });
        for (const auto& child : children)
        {
            Node(child.Get(), indent, isText);
        }
    }

    std::wstring lines;

private:
    void Node(IXMLDOMNode* node, const std::wstring& indent, bool keepBlanks)
    {
        const std::wstring name = Ask(node, &IXMLDOMNode::get_nodeName);
        switch (TypeOf(node))
        {
        case NODE_ELEMENT:
            Line(indent + FullName(node));
            for (const std::wstring& attribute : AttributesOf(node))
            {
                Line(indent + L"  " + attribute);
            }
            Nodes(node, indent + L"  ");
            break;
        case NODE_PROCESSING_INSTRUCTION:
            if (name != L"xml")
            {
                Line(indent + L"<?" + name + L" " + ValueOf(node) + L"?>");
            }
            break;
        case NODE_COMMENT:
            Line(indent + L"<!--" + ValueOf(node) + L"-->");
            break;
        default:
            if (const std::wstring text = ValueOf(node); keepBlanks || !IsBlank(text))
            {
                Line(indent + L"'" + text + L"'");
            }
        }
    }

    void Line(const std::wstring& text) { lines += text + L"\n"; }
};

ComPtr<IXMLDOMDocument2> NewDocument()
{
    ComPtr<IXMLDOMDocument2> document;
    if (FAILED(CoCreateInstance(DocumentClass, nullptr, CLSCTX_INPROC_SERVER, DocumentInterface,
                                reinterpret_cast<void**>(document.GetAddressOf()))))
    {
        throw std::runtime_error("no DOM engine on this thread");
    }
    document->put_async(VARIANT_FALSE);
    document->put_validateOnParse(VARIANT_FALSE);
    document->put_resolveExternals(VARIANT_FALSE);
    document->put_preserveWhiteSpace(VARIANT_TRUE);
    return document;
}

std::string ReasonOf(IXMLDOMDocument2* document)
{
    ComPtr<IXMLDOMParseError> error;
    BSTR reason = nullptr;
    document->get_parseError(&error);
    error->get_reason(&reason);
    return ToUtf8(Taken(reason));
}

} // namespace

std::string MeaningOf(std::string_view bytes)
{
    const TemporaryFolder folder;
    const std::wstring file = folder / L"document.xml";
    WriteBytes(file, bytes);
    return MeaningOfFile(file);
}

std::string MeaningOfFile(const std::wstring& path)
{
    const ComPtr<IXMLDOMDocument2> document = NewDocument();
    VARIANT source = {};
    source.vt = VT_BSTR;
    source.bstrVal = SysAllocString(path.c_str());
    VARIANT_BOOL loaded = VARIANT_FALSE;
    document->load(source, &loaded);
    SysFreeString(source.bstrVal);
    if (loaded != VARIANT_TRUE)
    {
        return "not well-formed: " + ReasonOf(document.Get());
    }

    Dump dump;
    dump.Nodes(document.Get(), L"");
    return ToUtf8(dump.lines);
}

} // namespace norvepa::test

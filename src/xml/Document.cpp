#include "xml/Document.h"

#include "xml/Characters.h"
#include "xml/Engine.h"

#include <objbase.h>
#include <shlwapi.h>

#include <new>

namespace norvepa
{

using Microsoft::WRL::ComPtr;

namespace
{

// DOMDocument60 and the interface we hold it by, for which MinGW-w64 has no constants.
constexpr CLSID DocumentClass = {
    0x88d96a05, 0xf192, 0x11d4, {0xa6, 0x5f, 0x00, 0x40, 0x96, 0x32, 0x51, 0xe5}};
constexpr IID DocumentInterface = {
    0x2933bf95, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};

VARIANT ElementType() noexcept
{
    VARIANT type = {};
    type.vt = VT_I4;
    type.lVal = NODE_ELEMENT;
    return type;
}

} // namespace

HRESULT Document::Create()
{
    m_document.Reset();
    void** const out = reinterpret_cast<void**>(m_document.GetAddressOf());
    const HRESULT status =
        Checked(CoCreateInstance(DocumentClass, nullptr, CLSCTX_INPROC_SERVER, DocumentInterface, out));
    if (SUCCEEDED(status))
    {
        Checked(m_document->put_async(VARIANT_FALSE));
    }
    return status;
}

void Document::LoadAsItStands()
{
    Checked(m_document->put_validateOnParse(VARIANT_FALSE));
    Checked(m_document->put_resolveExternals(VARIANT_FALSE));
    Checked(m_document->put_preserveWhiteSpace(VARIANT_TRUE));
}

bool Document::Load(const std::wstring& file)
{
    return LoadFrom(Bstr(file).asVariant());
}

bool Document::LoadBytes(std::string_view bytes)
{
    // Not by Attach(), which takes a reference of its own in MinGW-w64's form of the class.
    ComPtr<IStream> stream;
    *stream.GetAddressOf() =
        SHCreateMemStream(reinterpret_cast<const BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    if (!stream)
    {
        throw std::bad_alloc();
    }
    VARIANT source = {};
    source.vt = VT_UNKNOWN;
    source.punkVal = stream.Get();
    return LoadFrom(source);
}

bool Document::LoadFrom(VARIANT source)
{
    VARIANT_BOOL loaded = VARIANT_FALSE;
    const HRESULT status = Checked(m_document->load(source, &loaded));
    if (SUCCEEDED(status) && loaded == VARIANT_TRUE)
    {
        return true;
    }
    CheckParseError();
    return false;
}

// A load that fails need not answer why: what memory it lacked stands in its error.
void Document::CheckParseError() const
{
    ComPtr<IXMLDOMParseError> error;
    long code = S_OK;
    if (SUCCEEDED(Checked(m_document->get_parseError(&error))) && error)
    {
        Checked(error->get_errorCode(&code));
    }
    Checked(code);
}

bool Document::Save(const std::wstring& file) const
{
    return SUCCEEDED(Checked(m_document->save(Bstr(file).asVariant())));
}

Node Document::Root() const
{
    ComPtr<IXMLDOMElement> root;
    Checked(m_document->get_documentElement(&root));
    return Node(std::move(root));
}

ElementRange Document::Elements() const
{
    return ElementRange(Root());
}

Node Document::CreateElement(std::wstring_view name, std::wstring_view namespaceUri) const
{
    ComPtr<IXMLDOMNode> element;
    if (!IsXmlName(name))
    {
        return {};
    }
    Checked(m_document->createNode(ElementType(), Bstr(name).get(), Bstr(namespaceUri).get(), &element));
    return Node(std::move(element));
}

Node Document::CreateComment(std::wstring_view text) const
{
    ComPtr<IXMLDOMComment> comment;
    Checked(m_document->createComment(Bstr(text).get(), &comment));
    return Node(std::move(comment));
}

Node Document::CreateInstruction(std::wstring_view target, std::wstring_view text) const
{
    ComPtr<IXMLDOMProcessingInstruction> instruction;
    Checked(m_document->createProcessingInstruction(Bstr(target).get(), Bstr(text).get(), &instruction));
    return Node(std::move(instruction));
}

bool Document::Append(const Node& child) const
{
    ComPtr<IXMLDOMNode> appended;
    return SUCCEEDED(Checked(m_document->appendChild(child.get(), &appended)));
}

} // namespace norvepa

#include "xml/Document.h"

#include "win/WholeFile.h"
#include "xml/CallImages.h"
#include "xml/Characters.h"
#include "xml/Engine.h"

#include <objbase.h>
#include <shlwapi.h>

#include <new>
#include <utility>

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

// Throws when memory runs out.
ComPtr<IStream> MakeStream(std::string_view bytes)
{
    // Not by Attach(), which takes a reference of its own in MinGW-w64's form of the class.
    ComPtr<IStream> stream;
    *stream.GetAddressOf() =
        SHCreateMemStream(reinterpret_cast<const BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    if (!stream)
    {
        throw std::bad_alloc();
    }
    return stream;
}

// Lent for the length of a call.
VARIANT AsVariant(const ComPtr<IStream>& stream) noexcept
{
    VARIANT variant = {};
    variant.vt = VT_UNKNOWN;
    variant.punkVal = stream.Get();
    return variant;
}

// A blank as it is written in the encoding of a document, which begins with "<" or a byte order mark.
std::string_view BlankOf(std::string_view document) noexcept
{
    using namespace std::string_view_literals;

    const std::string_view begin = document.substr(0, 2);
    if (begin == "\xFF\xFE"sv || begin == "<\0"sv)
    {
        return " \0"sv;
    }
    if (begin == "\xFE\xFF"sv || begin == "\0<"sv)
    {
        return "\0 "sv;
    }
    return " "sv;
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

bool Document::LoadWithNeighbours(const std::wstring& file)
{
    return LoadFrom(Bstr(file).asVariant());
}

bool Document::Load(const std::wstring& file)
{
    const auto bytes = win::ReadWholeFile(file);
    return bytes && LoadBytes(*bytes);
}

bool Document::LoadBytes(std::string_view bytes)
{
    const ComPtr<IStream> stream = MakeStream(bytes);
    return LoadFrom(AsVariant(stream));
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
    ForgetImages();
    const auto bytes = Bytes();
    return bytes && win::WriteWholeFile(file, *bytes, BlankOf(*bytes));
}

std::optional<std::string> Document::Bytes() const
{
    const ComPtr<IStream> stream = MakeStream({});
    STATSTG extent{};
    if (FAILED(Checked(m_document->save(AsVariant(stream)))) ||
        FAILED(Checked(stream->Stat(&extent, STATFLAG_NONAME))) ||
        FAILED(Checked(stream->Seek({}, STREAM_SEEK_SET, nullptr))))
    {
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(extent.cbSize.QuadPart), '\0');
    ULONG read = 0;
    const HRESULT status = Checked(stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &read));
    return SUCCEEDED(status) && read == bytes.size() ? std::optional(std::move(bytes)) : std::nullopt;
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

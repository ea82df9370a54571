#include "BareEngines.h"

#include "win/Handle.h"

#include <windows.h>
#include <comutil.h>
#include <msxml2.h>
#include <oleauto.h>
#include <shlwapi.h>
#include <wrl/client.h>
#include <xmllite.h>

#include <array>
#include <stdexcept>

namespace norvepa::bench
{

using Microsoft::WRL::ComPtr;

namespace
{

constexpr CLSID DocumentClass = {
    0x88d96a05, 0xf192, 0x11d4, {0xa6, 0x5f, 0x00, 0x40, 0x96, 0x32, 0x51, 0xe5}};
constexpr IID DocumentInterface = {
    0x2933bf95, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};
constexpr CLSID CollectionClass = {
    0x88d96a07, 0xf192, 0x11d4, {0xa6, 0x5f, 0x00, 0x40, 0x96, 0x32, 0x51, 0xe5}};
constexpr IID CollectionInterface = {
    0x373984c8, 0xb845, 0x449b, {0x91, 0xe7, 0x45, 0xac, 0x83, 0x03, 0x6a, 0xde}};

void Require(bool succeeded, const char* what)
{
    if (!succeeded)
    {
        throw std::runtime_error(what);
    }
}

ComPtr<IXmlReader> OpenReader(const std::wstring& file)
{
    ComPtr<IStream> stream;
    Require(SUCCEEDED(SHCreateStreamOnFileW(file.c_str(), STGM_READ, &stream)), "no stream");
    ComPtr<IXmlReader> reader;
    Require(SUCCEEDED(CreateXmlReader(__uuidof(IXmlReader), reinterpret_cast<void**>(reader.GetAddressOf()),
                                      nullptr)) &&
                SUCCEEDED(reader->SetInput(stream.Get())),
            "no reader");
    return reader;
}

std::wstring_view NameOf(IXmlReader& reader)
{
    const wchar_t* name = nullptr;
    UINT length = 0;
    reader.GetLocalName(&name, &length);
    return {name, length};
}

std::wstring_view ValueOf(IXmlReader& reader)
{
    const wchar_t* value = nullptr;
    UINT length = 0;
    reader.GetValue(&value, &length);
    return {value, length};
}

ComPtr<IXMLDOMDocument2> MakeDocument()
{
    ComPtr<IXMLDOMDocument2> document;
    Require(SUCCEEDED(CoCreateInstance(DocumentClass, nullptr, CLSCTX_INPROC_SERVER, DocumentInterface,
                                       reinterpret_cast<void**>(document.GetAddressOf()))),
            "no document");
    document->put_async(VARIANT_FALSE);
    return document;
}

void Load(IXMLDOMDocument2& document, const std::wstring& file)
{
    VARIANT_BOOL loaded = VARIANT_FALSE;
    document.load(_variant_t(file.c_str()), &loaded);
    Require(loaded == VARIANT_TRUE, "not loaded");
}

ComPtr<IXMLDOMDocument2> LoadDocument(const std::wstring& file)
{
    ComPtr<IXMLDOMDocument2> document = MakeDocument();
    Load(*document.Get(), file);
    return document;
}

ComPtr<IXMLDOMDocument2> LoadAsItStands(const std::wstring& file)
{
    ComPtr<IXMLDOMDocument2> document = MakeDocument();
    document->put_validateOnParse(VARIANT_FALSE);
    document->put_resolveExternals(VARIANT_FALSE);
    document->put_preserveWhiteSpace(VARIANT_TRUE);
    Load(*document.Get(), file);
    return document;
}

ComPtr<IXMLDOMNode> FindValue(IXMLDOMDocument2& document, const std::wstring& parameter)
{
    const std::wstring path = L"//*[local-name()='Name'][.='" + parameter + L"']/../*[local-name()='Value']";
    ComPtr<IXMLDOMNode> node;
    Require(document.selectSingleNode(_bstr_t(path.c_str()), &node) == S_OK, "no such entry");
    return node;
}

win::Handle WriteOver(const std::wstring& file, std::string_view bytes)
{
    win::Handle handle(CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                                   FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    Require(handle &&
                WriteFile(handle.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
                written == bytes.size(),
            "not written");
    return handle;
}

} // namespace

std::wstring ReadWithXmlLite(const std::wstring& file, const std::wstring& parameter)
{
    const ComPtr<IXmlReader> reader = OpenReader(file);
    bool isName = false;
    bool isValue = false;
    bool matched = false;
    XmlNodeType type = XmlNodeType_None;
    while (reader->Read(&type) == S_OK)
    {
        if (type == XmlNodeType_Element)
        {
            isName = NameOf(*reader.Get()) == L"Name";
            isValue = NameOf(*reader.Get()) == L"Value";
        }
        else if (type == XmlNodeType_Text && isName)
        {
            matched = ValueOf(*reader.Get()) == parameter;
        }
        else if (type == XmlNodeType_Text && isValue && matched)
        {
            return std::wstring(ValueOf(*reader.Get()));
        }
    }
    throw std::runtime_error("no such entry");
}

std::size_t CountNodesWithXmlLite(const std::wstring& file)
{
    const ComPtr<IXmlReader> reader = OpenReader(file);
    std::size_t nodes = 0;
    XmlNodeType type = XmlNodeType_None;
    while (reader->Read(&type) == S_OK)
    {
        ++nodes;
    }
    return nodes;
}

std::wstring ReadWithMsxml(const std::wstring& file, const std::wstring& parameter)
{
    const ComPtr<IXMLDOMDocument2> document = LoadDocument(file);
    _bstr_t text;
    FindValue(*document.Get(), parameter)->get_text(text.GetAddress());
    return static_cast<const wchar_t*>(text);
}

void WriteWithMsxml(const std::wstring& file, const std::wstring& parameter, const std::wstring& value)
{
    const ComPtr<IXMLDOMDocument2> document = LoadDocument(file);
    FindValue(*document.Get(), parameter)->put_text(_bstr_t(value.c_str()));
    Require(SUCCEEDED(document->save(_variant_t(file.c_str()))), "not saved");
}

void ValidateWithMsxml(const std::wstring& schema, const std::wstring& namespaceUri, const std::wstring& file)
{
    const ComPtr<IXMLDOMDocument2> schemaDocument = LoadAsItStands(schema);
    const ComPtr<IXMLDOMDocument2> document = LoadAsItStands(file);
    ComPtr<IXMLDOMSchemaCollection> collection;
    Require(SUCCEEDED(CoCreateInstance(CollectionClass, nullptr, CLSCTX_INPROC_SERVER, CollectionInterface,
                                       reinterpret_cast<void**>(collection.GetAddressOf()))),
            "no collection");
    collection->add(_bstr_t(namespaceUri.c_str()), _variant_t(schemaDocument.Get()));
    document->putref_schemas(_variant_t(collection.Get()));
    ComPtr<IXMLDOMParseError> error;
    long code = -1;
    Require(SUCCEEDED(document->validate(&error)) && SUCCEEDED(error->get_errorCode(&code)) && code == 0,
            "not valid");
}

std::wstring ReadWithRegistry(const std::wstring& key, const std::wstring& parameter)
{
    HKEY opened = nullptr;
    Require(RegOpenKeyExW(HKEY_LOCAL_MACHINE, key.c_str(), 0, KEY_READ, &opened) == ERROR_SUCCESS, "no key");
    std::array<wchar_t, 64> value{};
    DWORD size = sizeof(value);
    const LSTATUS status =
        RegGetValueW(opened, nullptr, parameter.c_str(), RRF_RT_REG_SZ, nullptr, value.data(), &size);
    RegCloseKey(opened);
    Require(status == ERROR_SUCCESS, "no value");
    return value.data();
}

std::wstring ReadWithPrivateProfile(const std::wstring& file, const std::wstring& parameter)
{
    std::array<wchar_t, 64> value{};
    GetPrivateProfileStringW(L"LocalSettings", parameter.c_str(), L"", value.data(),
                             static_cast<DWORD>(value.size()), file.c_str());
    return value.data();
}

void OverwriteFile(const std::wstring& file, std::string_view bytes)
{
    static_cast<void>(WriteOver(file, bytes));
}

void OverwriteFileAndFlush(const std::wstring& file, std::string_view bytes)
{
    const win::Handle handle = WriteOver(file, bytes);
    Require(FlushFileBuffers(handle.get()) != FALSE, "not flushed");
}

} // namespace norvepa::bench

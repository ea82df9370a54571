#include "xml/SchemaCollection.h"

#include "xml/Engine.h"

#include <objbase.h>

namespace norvepa
{

using Microsoft::WRL::ComPtr;

namespace
{

// XMLSchemaCache60 and the interface we hold it by, for which MinGW-w64 has no constants.
constexpr CLSID CollectionClass = {
    0x88d96a07, 0xf192, 0x11d4, {0xa6, 0x5f, 0x00, 0x40, 0x96, 0x32, 0x51, 0xe5}};
constexpr IID CollectionInterface = {
    0x373984c8, 0xb845, 0x449b, {0x91, 0xe7, 0x45, 0xac, 0x83, 0x03, 0x6a, 0xde}};

VARIANT AsVariant(IDispatch* object) noexcept
{
    VARIANT variant = {};
    variant.vt = VT_DISPATCH;
    variant.pdispVal = object;
    return variant;
}

} // namespace

HRESULT SchemaCollection::Create()
{
    m_collection.Reset();
    void** const out = reinterpret_cast<void**>(m_collection.GetAddressOf());
    return Checked(
        CoCreateInstance(CollectionClass, nullptr, CLSCTX_INPROC_SERVER, CollectionInterface, out));
}

void SchemaCollection::Add(std::wstring_view namespaceUri, const Document& schema) const
{
    Checked(m_collection->add(Bstr(namespaceUri).get(), AsVariant(schema.get())));
}

ValidationOutcome SchemaCollection::Validate(const Document& document) const
{
    ComPtr<IXMLDOMParseError> error;
    Checked(document.get()->putref_schemas(AsVariant(m_collection.Get())));
    Checked(document.get()->validate(&error));
    if (!error)
    {
        return {};
    }

    long code = 0;
    Bstr reason;
    Checked(error->get_errorCode(&code));
    Checked(code); // a validation without memory ends with it as its error
    Checked(error->get_reason(reason.out()));
    return {code == 0, std::wstring(reason.view())};
}

} // namespace norvepa

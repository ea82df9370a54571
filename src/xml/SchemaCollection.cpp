#include "xml/SchemaCollection.h"

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

HRESULT SchemaCollection::Create() noexcept
{
    m_collection.Reset();
    return CoCreateInstance(CollectionClass, nullptr, CLSCTX_INPROC_SERVER, CollectionInterface,
                            reinterpret_cast<void**>(m_collection.ReleaseAndGetAddressOf()));
}

void SchemaCollection::Add(std::wstring_view namespaceUri, const Document& schema) const
{
    m_collection->add(Bstr(namespaceUri).get(), AsVariant(schema.get()));
}

ValidationOutcome SchemaCollection::Validate(const Document& document) const
{
    ComPtr<IXMLDOMParseError> error;
    document.get()->putref_schemas(AsVariant(m_collection.Get()));
    document.get()->validate(&error);
    if (!error)
    {
        return {};
    }

    long code = 0;
    Bstr reason;
    error->get_errorCode(&code);
    error->get_reason(reason.out());
    return {code == 0, std::wstring(reason.view())};
}

} // namespace norvepa

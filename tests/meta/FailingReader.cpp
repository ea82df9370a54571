#include "meta/FailingReader.h"

#include <wrl/client.h>

#include <atomic>
#include <utility>

namespace norvepa::test
{

namespace
{

AttributePart failingPart{};
std::wstring failingAttribute;

class Reader : public IXmlReader
{
public:
    explicit Reader(Microsoft::WRL::ComPtr<IXmlReader> engine) : m_engine(std::move(engine)) {}
    virtual ~Reader() = default;

    HRESULT WINAPI GetPrefix(const wchar_t** prefix, UINT* length) override
    {
        return FailsAt(AttributePart::Prefix) ? E_FAIL : m_engine->GetPrefix(prefix, length);
    }
    HRESULT WINAPI GetLocalName(const wchar_t** name, UINT* length) override
    {
        return FailsAt(AttributePart::Name) ? E_FAIL : m_engine->GetLocalName(name, length);
    }
    HRESULT WINAPI GetValue(const wchar_t** value, UINT* length) override
    {
        return FailsAt(AttributePart::Value) ? E_FAIL : m_engine->GetValue(value, length);
    }

    HRESULT WINAPI QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG WINAPI AddRef() override { return ++m_references; }
    ULONG WINAPI Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
        {
            delete this;
        }
        return left;
    }
    HRESULT WINAPI SetInput(IUnknown* input) override { return m_engine->SetInput(input); }
    HRESULT WINAPI GetProperty(UINT property, LONG_PTR* value) override
    {
        return m_engine->GetProperty(property, value);
    }
    HRESULT WINAPI SetProperty(UINT property, LONG_PTR value) override
    {
        return m_engine->SetProperty(property, value);
    }
    HRESULT WINAPI Read(XmlNodeType* type) override { return m_engine->Read(type); }
    HRESULT WINAPI GetNodeType(XmlNodeType* type) override { return m_engine->GetNodeType(type); }
    HRESULT WINAPI MoveToFirstAttribute() override { return m_engine->MoveToFirstAttribute(); }
    HRESULT WINAPI MoveToNextAttribute() override { return m_engine->MoveToNextAttribute(); }
    HRESULT WINAPI MoveToAttributeByName(const wchar_t* name, const wchar_t* uri) override
    {
        return m_engine->MoveToAttributeByName(name, uri);
    }
    HRESULT WINAPI MoveToElement() override { return m_engine->MoveToElement(); }
    HRESULT WINAPI GetQualifiedName(const wchar_t** name, UINT* length) override
    {
        return m_engine->GetQualifiedName(name, length);
    }
    HRESULT WINAPI GetNamespaceUri(const wchar_t** uri, UINT* length) override
    {
        return m_engine->GetNamespaceUri(uri, length);
    }
    HRESULT WINAPI ReadValueChunk(wchar_t* buffer, UINT size, UINT* read) override
    {
        return m_engine->ReadValueChunk(buffer, size, read);
    }
    HRESULT WINAPI GetBaseUri(const wchar_t** uri, UINT* length) override
    {
        return m_engine->GetBaseUri(uri, length);
    }
    BOOL WINAPI IsDefault() override { return m_engine->IsDefault(); }
    BOOL WINAPI IsEmptyElement() override { return m_engine->IsEmptyElement(); }
    HRESULT WINAPI GetLineNumber(UINT* line) override { return m_engine->GetLineNumber(line); }
    HRESULT WINAPI GetLinePosition(UINT* position) override { return m_engine->GetLinePosition(position); }
    HRESULT WINAPI GetAttributeCount(UINT* count) override { return m_engine->GetAttributeCount(count); }
    HRESULT WINAPI GetDepth(UINT* depth) override { return m_engine->GetDepth(depth); }
    BOOL WINAPI IsEOF() override { return m_engine->IsEOF(); }

private:
    [[nodiscard]] bool FailsAt(AttributePart part)
    {
        XmlNodeType type = XmlNodeType_None;
        const wchar_t* name = L"";
        m_engine->GetNodeType(&type);
        m_engine->GetLocalName(&name, nullptr);
        return part == failingPart && type == XmlNodeType_Attribute && failingAttribute == name;
    }

    Microsoft::WRL::ComPtr<IXmlReader> m_engine;
    std::atomic<ULONG> m_references{1};
};

HRESULT WINAPI Create(REFIID interfaceId, void** object, IMalloc* allocator)
{
    // Not by its name here, which leads back to this function.
    static const auto createReader = reinterpret_cast<decltype(&CreateXmlReader)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"xmllite.dll"), "CreateXmlReader")));
    Microsoft::WRL::ComPtr<IXmlReader> engine;
    const HRESULT status =
        createReader(interfaceId, reinterpret_cast<void**>(engine.GetAddressOf()), allocator);
    if (SUCCEEDED(status))
    {
        *object = static_cast<IXmlReader*>(new Reader(std::move(engine)));
    }
    return status;
}

} // namespace

FailingReader::FailingReader(AttributePart part, std::wstring attribute) : m_hook("CreateXmlReader", Create)
{
    failingPart = part;
    failingAttribute = std::move(attribute);
}

} // namespace norvepa::test

#include "store/DomWalk.h"

#include "frame/Text.h"
#include "store/Kinds.h"
#include "store/PullWalk.h"
#include "store/norvxml.h"
#include "xml/Engine.h"

#include <windows.h>
#include <objbase.h>

namespace norvepa
{

namespace
{

Result LoadDocument(const TraceSource& source, const std::wstring& file, Document& document)
{
    if (const Result result = CheckFileSize(file); result != PGSP_OK)
    {
        return result;
    }
    if (!document.Load(file))
    {
        NORV_TRACE(source, TraceEntry, "<< Return PGSP_ERR_CANT_LOAD_XML_FILE (%s)",
                   TraceToAnsi(file.c_str()));
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }
    return PGSP_OK;
}

} // namespace

Result CreateDocument(const TraceSource& source, Document& document)
{
    if (FAILED(document.Create()))
    {
        NORV_TRACE(source, TraceInfo, "ERROR : CreateInstance");
        return PGSP_ERR_CANT_CREATE_XML_ENGINE;
    }
    return PGSP_OK;
}

Result OpenDocument(const TraceSource& source, const std::wstring& file, Document& document)
{
    const Result result = CreateDocument(source, document);
    return result == PGSP_OK ? LoadDocument(source, file, document) : result;
}

Result OpenDocument(const std::wstring& file, Document& document)
{
    if (FAILED(document.Create()))
    {
        return PGSP_ERR_CANT_CREATE_XML_ENGINE;
    }
    if (const Result result = CheckFileSize(file); result != PGSP_OK)
    {
        return result;
    }
    return document.Load(file) ? PGSP_OK : PGSP_ERR_CANT_LOAD_XML_FILE;
}

Result OpenStoreDocument(const wchar_t* filePath, std::wstring& file, Document& document)
{
    const Result result = StoreFile(filePath, file);
    return result == PGSP_OK ? OpenDocument(file, document) : result;
}

ComForOneCall::~ComForOneCall()
{
    if (m_ours)
    {
        CoUninitialize();
    }
}

Result ComForOneCall::OpenDocument(const TraceSource& source, const std::wstring& file, Document& document)
{
    if (const Result result = CreateDocument(source, document); result != PGSP_OK)
    {
        return result;
    }
    const Result result = LoadDocument(source, file, document);
    m_ours = m_ours && result == PGSP_OK;
    return result;
}

Result ComForOneCall::CreateDocument(const TraceSource& source, Document& document)
{
    const HRESULT status = document.Create();
    if (SUCCEEDED(status))
    {
        return PGSP_OK;
    }
    if (status == CO_E_NOTINITIALIZED)
    {
        m_ours = SUCCEEDED(Checked(CoInitialize(nullptr)));
        return norvepa::CreateDocument(source, document);
    }
    NORV_TRACE(source, TraceInfo, "ERROR : CreateInstance");
    return PGSP_ERR_CANT_CREATE_XML_ENGINE;
}

Node FirstElement(const Document& document, std::wstring_view name)
{
    for (const Node& element : document.Elements())
    {
        if (element.IsNamed(name))
        {
            return element;
        }
    }
    return {};
}

bool IsEntry(const Node& node)
{
    const Bstr name = node.Name();
    return name.view() == L"Parameter" || name.view() == L"ParameterInt" || name.view() == L"ParameterBool";
}

Node ChildNamed(const Node& parent, std::wstring_view name)
{
    for (const Node& child : parent.Children())
    {
        if (child.IsNamed(name))
        {
            return child;
        }
    }
    return {};
}

std::wstring ChildText(const Node& parent, std::wstring_view name)
{
    const Node child = ChildNamed(parent, name);
    return child ? std::wstring(child.Text().view()) : std::wstring{};
}

bool IsCalled(const Node& element, std::wstring_view parameter)
{
    for (const Node& child : element.Children())
    {
        if (child.IsNamed(L"Name") && EqualNoCase(child.Text().view(), parameter))
        {
            return true;
        }
    }
    return false;
}

Node ChildCalled(const Node& parent, std::wstring_view element, std::wstring_view parameter)
{
    for (const Node& child : parent.Children())
    {
        if (child.IsNamed(element) && IsCalled(child, parameter))
        {
            return child;
        }
    }
    return {};
}

Node ValueOfEntry(const Node& entry, std::wstring_view parameter)
{
    bool matched = false;
    for (const Node& child : entry.Children())
    {
        const Bstr name = child.Name();
        if (matched && name.view() == L"Value")
        {
            return child;
        }
        matched = matched || (name.view() == L"Name" && EqualNoCase(child.Text().view(), parameter));
    }
    return {};
}

bool AppendEntry(const Document& document, const Node& parent, std::wstring_view element,
                 std::wstring_view kind, std::wstring_view parameter, std::wstring_view value)
{
    const Node entry = NorvXMLCreateElement(element, kind, document);
    if (!entry || !parent.Append(entry))
    {
        return false;
    }
    const Node name = NorvXMLCreateElement(L"Name", kind, document);
    if (!name || !name.SetText(parameter) || !entry.Append(name))
    {
        return false;
    }
    const Node valueNode = NorvXMLCreateElement(L"Value", kind, document);
    return valueNode && valueNode.SetText(value) && entry.Append(valueNode);
}

Result ReplaceValue(const Document& document, const std::wstring& file, const Node& valueNode,
                    std::wstring_view value)
{
    if (EqualNoCase(valueNode.Text().view(), value))
    {
        return PGSP_ERR_SAME_VALUE;
    }
    if (!valueNode.SetText(value))
    {
        return PGSP_ERR_CANT_SET_VALUE;
    }
    static_cast<void>(document.Save(file));
    return PGSP_OK;
}

} // namespace norvepa

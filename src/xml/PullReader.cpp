#include "xml/PullReader.h"

#include <shlwapi.h>

#include <utility>

namespace norvepa
{

Result PullReader::Open(const std::wstring& path)
{
    m_reader.Reset();
    m_place = {};
    m_stopped = false;

    Microsoft::WRL::ComPtr<IStream> stream;
    m_lastStatus = SHCreateStreamOnFileW(path.c_str(), STGM_READ, &stream);
    if (FAILED(m_lastStatus))
    {
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }

    Microsoft::WRL::ComPtr<IXmlReader> reader;
    m_lastStatus =
        CreateXmlReader(__uuidof(IXmlReader), reinterpret_cast<void**>(reader.GetAddressOf()), nullptr);
    if (FAILED(m_lastStatus))
    {
        return PGSP_ERR_CANT_LOAD_XML_FILE;
    }

    // A reader that refuses either of these doesn't become active, which every walk tests.
    reader->SetProperty(XmlReaderProperty_DtdProcessing, DtdProcessing_Prohibit);
    m_lastStatus = reader->SetInput(stream.Get());
    m_reader = reader;
    return PGSP_OK;
}

bool PullReader::Read(XmlNodeType& type) noexcept
{
    if (m_stopped || !m_reader)
    {
        return false;
    }
    m_stopped = m_reader->Read(&type) != S_OK || !HasMoved(type);
    return !m_stopped;
}

// Every node of a document has a place of its own. An engine that delivers one twice has come upon the
// end of a file that was cut off, and would go on delivering it.
bool PullReader::HasMoved(XmlNodeType type) noexcept
{
    Place place{type};
    m_reader->GetLineNumber(&place.line);
    m_reader->GetLinePosition(&place.column);
    return place != std::exchange(m_place, place);
}

XmlReadState PullReader::State() const noexcept
{
    LONG_PTR state = XmlReadState_Closed;
    if (!m_reader || FAILED(m_reader->GetProperty(XmlReaderProperty_ReadState, &state)))
    {
        return XmlReadState_Closed;
    }
    // An engine that gives up ahead of the first node may still call itself at its beginning.
    const bool activeAsItSays = state == XmlReadState_Initial || state == XmlReadState_Interactive;
    return m_stopped && activeAsItSays ? XmlReadState_Error : static_cast<XmlReadState>(state);
}

bool PullReader::IsEmptyElement() const noexcept
{
    return m_reader->IsEmptyElement() != FALSE;
}

std::wstring_view PullReader::LocalName() const noexcept
{
    const wchar_t* name = nullptr;
    UINT length = 0;
    return SUCCEEDED(m_reader->GetLocalName(&name, &length)) && name ? std::wstring_view(name, length)
                                                                     : std::wstring_view{};
}

std::wstring_view PullReader::Value() const noexcept
{
    const wchar_t* value = nullptr;
    UINT length = 0;
    return SUCCEEDED(m_reader->GetValue(&value, &length)) && value ? std::wstring_view(value, length)
                                                                   : std::wstring_view{};
}

std::optional<PullReader::Attribute> PullReader::CurrentAttribute() noexcept
{
    // Asked for as well: an attribute whose prefix is out of order has no name.
    const wchar_t* prefix = nullptr;
    const wchar_t* name = nullptr;
    const wchar_t* value = nullptr;
    UINT nameLength = 0;
    UINT valueLength = 0;
    if (FAILED(m_reader->GetPrefix(&prefix, nullptr)) || FAILED(m_reader->GetLocalName(&name, &nameLength)) ||
        FAILED(m_reader->GetValue(&value, &valueLength)))
    {
        return std::nullopt;
    }
    return Attribute{{name, nameLength}, {value, valueLength}};
}

bool PullReader::MoveToFirstAttribute() noexcept
{
    m_lastStatus = m_reader->MoveToFirstAttribute();
    return m_lastStatus == S_OK;
}

bool PullReader::MoveToNextAttribute() noexcept
{
    return m_reader->MoveToNextAttribute() == S_OK;
}

void PullReader::MoveToElement() noexcept
{
    m_reader->MoveToElement();
}

} // namespace norvepa

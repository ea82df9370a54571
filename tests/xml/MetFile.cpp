#include "xml/MetFile.h"

#include "support/TemporaryFolder.h"

#include <shlwapi.h>
#include <wrl/client.h>

#include <stdexcept>
#include <tuple>

namespace norvepa::test
{

namespace
{

using Microsoft::WRL::ComPtr;

std::wstring Text(HRESULT status, const wchar_t* text, UINT length)
{
    return SUCCEEDED(status) && text != nullptr ? std::wstring(text, length) : std::wstring();
}

// The engine on a file, without any of the library's care.
class BareEngine
{
public:
    explicit BareEngine(const std::wstring& path)
    {
        ComPtr<IStream> stream;
        if (FAILED(SHCreateStreamOnFileW(path.c_str(), STGM_READ, &stream)) ||
            FAILED(CreateXmlReader(__uuidof(IXmlReader), reinterpret_cast<void**>(m_engine.GetAddressOf()),
                                   nullptr)) ||
            FAILED(m_engine->SetProperty(XmlReaderProperty_DtdProcessing, DtdProcessing_Prohibit)))
        {
            throw std::runtime_error("no engine on " + ToUtf8(path));
        }
        static_cast<void>(m_engine->SetInput(stream.Get()));
    }

    // False at the end of the file and at an error; and where a node comes twice, which is how one engine
    // tells that a file was cut off.
    [[nodiscard]] bool Read(XmlNodeType& type)
    {
        m_stopped = m_engine->Read(&type) != S_OK || HasEndedMoreThanBegun(type) || !HasMoved(type);
        return !m_stopped;
    }

    [[nodiscard]] bool IsActive() const
    {
        LONG_PTR state = XmlReadState_Closed;
        m_engine->GetProperty(XmlReaderProperty_ReadState, &state);
        return !m_stopped && (state == XmlReadState_Initial || state == XmlReadState_Interactive);
    }

    [[nodiscard]] std::wstring LocalName() const
    {
        const wchar_t* text = nullptr;
        UINT length = 0;
        const HRESULT status = m_engine->GetLocalName(&text, &length);
        return Text(status, text, length);
    }

    [[nodiscard]] std::wstring Value() const
    {
        const wchar_t* text = nullptr;
        UINT length = 0;
        const HRESULT status = m_engine->GetValue(&text, &length);
        return Text(status, text, length);
    }

    [[nodiscard]] bool IsEmptyElement() const { return m_engine->IsEmptyElement() != FALSE; }

    void ReadAttributes(MetNode& node)
    {
        HRESULT there = m_engine->MoveToFirstAttribute();
        for (; there == S_OK; there = m_engine->MoveToNextAttribute())
        {
            const wchar_t* text = nullptr;
            UINT length = 0;
            const bool isTold = SUCCEEDED(m_engine->GetPrefix(&text, nullptr)) &&
                                SUCCEEDED(m_engine->GetLocalName(&text, &length)) &&
                                SUCCEEDED(m_engine->GetValue(&text, &length));
            node.attributes.push_back(isTold ? std::optional(std::pair(LocalName(), Value())) : std::nullopt);
        }
        m_engine->MoveToElement();
    }

private:
    // One engine tells the end of the root twice, and then can't be asked where it is.
    [[nodiscard]] bool HasEndedMoreThanBegun(XmlNodeType type)
    {
        m_open += type == XmlNodeType_Element && m_engine->IsEmptyElement() == FALSE ? 1 : 0;
        m_open -= type == XmlNodeType_EndElement ? 1 : 0;
        return m_open < 0;
    }

    [[nodiscard]] bool HasMoved(XmlNodeType type)
    {
        UINT line = 0;
        UINT column = 0;
        m_engine->GetLineNumber(&line);
        m_engine->GetLinePosition(&column);
        const std::tuple place(type, line, column);
        return place != std::exchange(m_place, place);
    }

    ComPtr<IXmlReader> m_engine;
    int m_open = 0; // elements
    std::tuple<XmlNodeType, UINT, UINT> m_place{XmlNodeType_None, 0, 0};
    bool m_stopped = false;
};

// The same of a reader.
class LibrarysReader
{
public:
    explicit LibrarysReader(const std::wstring& path)
    {
        if (m_reader.Open(path) != PGSP_OK)
        {
            throw std::runtime_error("no reader on " + ToUtf8(path));
        }
    }

    [[nodiscard]] bool Read(XmlNodeType& type) { return m_reader.Read(type); }
    [[nodiscard]] bool IsActive() const { return XmlReaderActive(m_reader); }
    [[nodiscard]] std::wstring LocalName() const { return std::wstring(m_reader.LocalName()); }
    [[nodiscard]] std::wstring Value() const { return std::wstring(m_reader.Value()); }
    [[nodiscard]] bool IsEmptyElement() const { return m_reader.IsEmptyElement(); }

    void ReadAttributes(MetNode& node)
    {
        for (bool there = m_reader.MoveToFirstAttribute(); there; there = m_reader.MoveToNextAttribute())
        {
            const auto attribute = m_reader.CurrentAttribute();
            node.attributes.push_back(attribute ? std::optional(std::pair(std::wstring(attribute->name),
                                                                          std::wstring(attribute->value)))
                                                : std::nullopt);
        }
        m_reader.MoveToElement();
    }

private:
    PullReader m_reader;
};

// Asked is only what means something of a node of its type.
template <typename Reader>
MetNode Meet(Reader& reader, XmlNodeType type)
{
    MetNode node{.type = type, .isActive = reader.IsActive()};
    if (type == XmlNodeType_Element || type == XmlNodeType_EndElement)
    {
        node.name = reader.LocalName();
    }
    if (type == XmlNodeType_Element)
    {
        node.isEmpty = reader.IsEmptyElement();
        reader.ReadAttributes(node);
    }
    if (type == XmlNodeType_Text)
    {
        node.value = reader.Value();
    }
    return node;
}

template <typename Reader>
MetFile WalkBy(Reader reader)
{
    MetFile file;
    file.isActiveAhead = reader.IsActive();
    XmlNodeType type = XmlNodeType_None;
    while (reader.Read(type))
    {
        file.nodes.push_back(Meet(reader, type));
    }
    file.isActiveBehind = reader.IsActive();
    return file;
}

} // namespace

MetFile WalkByTheEngine(const std::wstring& path)
{
    return WalkBy(BareEngine(path));
}

MetFile WalkByAReader(const std::wstring& path)
{
    return WalkBy(LibrarysReader(path));
}

void PrintTo(const MetNode& node, std::ostream* out)
{
    *out << node.type << " " << ToUtf8(node.name) << (node.isEmpty ? "/" : "");
    for (const auto& attribute : node.attributes)
    {
        *out << " "
             << (attribute ? ToUtf8(attribute->first) + "='" + ToUtf8(attribute->second) + "'" : "(untold)");
    }
    *out << " \"" << ToUtf8(node.value) << "\"" << (node.isActive ? "" : " (not active)");
}

void PrintTo(const MetFile& file, std::ostream* out)
{
    *out << (file.isActiveAhead ? "active\n" : "not active\n");
    for (const MetNode& node : file.nodes)
    {
        PrintTo(node, out);
        *out << "\n";
    }
    *out << (file.isActiveBehind ? "active" : "not active");
}

} // namespace norvepa::test

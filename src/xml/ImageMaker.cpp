#include "xml/ImageMaker.h"

#include "xml/ByteStream.h"
#include "xml/Engine.h"
#include "xml/EngineMemory.h"
#include "xml/HarmlessBytes.h"

#include <wrl/client.h>

#include <algorithm>
#include <new>
#include <utility>

namespace norvepa
{

namespace
{

constexpr std::uint32_t MostNames = 1U << 26; // what a node has room for the number of

constexpr std::uint32_t NameMask = MostNames - 1;

// What is kept for long has no spare room.
template <typename Container>
void Fit(Container& container)
{
    container = Container(container.begin(), container.end());
}

} // namespace

std::shared_ptr<const XmlImage> ImageMaker::Make(std::string_view bytes, HRESULT& status)
{
    const std::string harmless = HarmlessBytes(bytes);
    ByteStream stream(harmless.empty() ? bytes : std::string_view(harmless));
    EngineMemory memory(std::max(bytes.size(), harmless.size()));
    Microsoft::WRL::ComPtr<IXmlReader> engine;
    status = CreateXmlReader(__uuidof(IXmlReader), reinterpret_cast<void**>(engine.GetAddressOf()), &memory);
    if (FAILED(status))
    {
        return nullptr;
    }

    // An engine that refuses either of these doesn't become active, which every walk tests.
    Checked(engine->SetProperty(XmlReaderProperty_DtdProcessing, DtdProcessing_Prohibit));
    Checked(engine->SetInput(&stream));
    ImageMaker maker(*engine.Get());
    maker.ReadAll();
    return maker.m_image;
}

// The empty name is number 0: the one of all that have none.
ImageMaker::ImageMaker(IXmlReader& engine) : m_engine(engine)
{
    m_image->m_names.push_back(AddText({}));
    m_numbers.emplace(std::wstring(), 0);
}

void ImageMaker::ReadAll()
{
    m_image->m_firstState = State();
    XmlNodeType type = XmlNodeType_None;
    while (Checked(m_engine.Read(&type)) == S_OK && IsWithinRoot(type) && HasMoved(type))
    {
        AddNode(type);
    }

    // An engine that gives up ahead of the first node may still call itself at its beginning.
    const XmlReadState state = State();
    const bool activeAsItSays = state == XmlReadState_Initial || state == XmlReadState_Interactive;
    m_image->m_lastState = activeAsItSays ? XmlReadState_Error : state;
    Fit(m_image->m_nodes);
    Fit(m_image->m_attributes);
    Fit(m_image->m_names);
    Fit(m_image->m_text);
}

// An engine that delivers the end of the root twice has come upon the end of a file that was cut off, and
// can't be asked for the place.
bool ImageMaker::IsWithinRoot(XmlNodeType type) noexcept
{
    if (type == XmlNodeType_Element && !m_engine.IsEmptyElement())
    {
        ++m_depth;
    }
    return type != XmlNodeType_EndElement || m_depth-- > 0;
}

// Every node of a document has a place of its own. An engine that delivers one twice has come upon the
// end of a file that was cut off, and would go on delivering it.
bool ImageMaker::HasMoved(XmlNodeType type) noexcept
{
    Place place{type};
    m_engine.GetLineNumber(&place.line);
    m_engine.GetLinePosition(&place.column);
    return place != std::exchange(m_place, place);
}

void ImageMaker::AddNode(XmlNodeType type)
{
    XmlImage::Node node{};
    node.type = static_cast<std::uint32_t>(type) & 0x1F;
    switch (type)
    {
    case XmlNodeType_Element:
        node.name = NumberOfName() & NameMask;
        node.isEmpty = m_engine.IsEmptyElement() ? 1 : 0;
        node.content = AddAttributes();
        break;
    case XmlNodeType_EndElement:
        node.name = NumberOfName() & NameMask;
        break;
    case XmlNodeType_Text:
        node.content = AddText(Value());
        break;
    default:
        break;
    }
    m_image->m_nodes.push_back(node);
}

XmlImage::Span ImageMaker::AddAttributes()
{
    std::vector<XmlImage::Attribute>& attributes = m_image->m_attributes;
    const std::size_t begin = attributes.size();
    const HRESULT first = Checked(m_engine.MoveToFirstAttribute());
    if (first != S_OK)
    {
        return {static_cast<std::uint32_t>(first), 0};
    }
    do
    {
        // The prefix is asked for as well: an attribute whose prefix is out of order has no name.
        const wchar_t* text = nullptr;
        UINT length = 0;
        XmlImage::Attribute attribute{};
        attribute.isTold = SUCCEEDED(Checked(m_engine.GetPrefix(&text, nullptr))) &&
                           SUCCEEDED(Checked(m_engine.GetLocalName(&text, &length))) &&
                           SUCCEEDED(Checked(m_engine.GetValue(&text, &length)));
        attribute.name = NumberOfName() & NameMask;
        attribute.value = AddText(Value());
        attributes.push_back(attribute);
    } while (Checked(m_engine.MoveToNextAttribute()) == S_OK);
    Checked(m_engine.MoveToElement());
    return {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(attributes.size() - begin)};
}

XmlImage::Span ImageMaker::AddText(std::wstring_view text)
{
    const XmlImage::Span span{static_cast<std::uint32_t>(m_image->m_text.size()),
                              static_cast<std::uint32_t>(text.size())};
    m_image->m_text += text;
    return span;
}

// A document has many elements and few names.
std::uint32_t ImageMaker::NumberOfName()
{
    const wchar_t* text = nullptr;
    UINT length = 0;
    const bool isTold = SUCCEEDED(Checked(m_engine.GetLocalName(&text, &length))) && text != nullptr;
    const std::wstring_view name = isTold ? std::wstring_view(text, length) : std::wstring_view{};
    if (const auto known = m_numbers.find(name); known != m_numbers.end())
    {
        return known->second;
    }
    const auto number = static_cast<std::uint32_t>(m_image->m_names.size());
    if (number == MostNames)
    {
        throw std::bad_alloc(); // memory has run out long before on most machines
    }
    m_numbers.emplace(name, number);
    m_image->m_names.push_back(AddText(name));
    return number;
}

std::wstring_view ImageMaker::Value()
{
    const wchar_t* value = nullptr;
    UINT length = 0;
    return SUCCEEDED(Checked(m_engine.GetValue(&value, &length))) && value ? std::wstring_view(value, length)
                                                                           : std::wstring_view{};
}

XmlReadState ImageMaker::State() noexcept
{
    LONG_PTR state = XmlReadState_Closed;
    return SUCCEEDED(m_engine.GetProperty(XmlReaderProperty_ReadState, &state))
               ? static_cast<XmlReadState>(state)
               : XmlReadState_Closed;
}

} // namespace norvepa

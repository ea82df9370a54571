#include "xml/PullReader.h"

#include "xml/CallImages.h"

namespace norvepa
{

Result PullReader::Open(const std::wstring& path)
{
    *this = {};
    m_image = ImageOf(path, m_lastStatus);
    return m_image == nullptr ? PGSP_ERR_CANT_LOAD_XML_FILE : PGSP_OK;
}

bool PullReader::Read(XmlNodeType& type) noexcept
{
    MoveToElement();
    if (m_image == nullptr || m_next > m_image->size())
    {
        return false;
    }
    if (m_next++ == m_image->size())
    {
        return false;
    }
    type = static_cast<XmlNodeType>(Current().type);
    return true;
}

XmlReadState PullReader::State() const noexcept
{
    if (m_image == nullptr)
    {
        return XmlReadState_Closed;
    }
    if (m_next == 0)
    {
        return m_image->firstState();
    }
    return m_next > m_image->size() ? m_image->lastState() : XmlReadState_Interactive;
}

bool PullReader::IsEmptyElement() const noexcept
{
    return m_attribute == NoAttribute && Current().isEmpty;
}

std::wstring_view PullReader::LocalName() const noexcept
{
    const bool isOnAttribute = m_attribute != NoAttribute;
    return m_image->name(isOnAttribute ? OnAttribute().name : Current().name);
}

std::wstring_view PullReader::Value() const noexcept
{
    if (m_attribute != NoAttribute)
    {
        return m_image->text(OnAttribute().value);
    }
    return Current().type == XmlNodeType_Text ? m_image->text(Current().content) : std::wstring_view{};
}

std::optional<PullReader::Attribute> PullReader::CurrentAttribute() const noexcept
{
    if (!OnAttribute().isTold)
    {
        return std::nullopt;
    }
    return Attribute{m_image->name(OnAttribute().name), m_image->text(OnAttribute().value)};
}

bool PullReader::MoveToFirstAttribute() noexcept
{
    const XmlImage::Node& element = Current();
    if (element.type != XmlNodeType_Element || element.content.length == 0)
    {
        m_lastStatus = element.type == XmlNodeType_Element ? XmlImage::noAttribute(element) : S_FALSE;
        return false;
    }
    m_attribute = element.content.begin;
    m_lastStatus = S_OK;
    return true;
}

bool PullReader::MoveToNextAttribute() noexcept
{
    if (m_attribute == NoAttribute)
    {
        return MoveToFirstAttribute();
    }
    const XmlImage::Span attributes = Current().content;
    if (m_attribute + 1 == attributes.begin + attributes.length)
    {
        return false;
    }
    ++m_attribute;
    return true;
}

} // namespace norvepa

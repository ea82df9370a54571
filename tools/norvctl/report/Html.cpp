#include "report/Html.h"

#include <fmt/format.h>
#include <iterator>

namespace norvctl::report
{

namespace
{

void AppendEscaped(std::string& page, std::string_view text)
{
    for (const char character : text)
    {
        switch (character)
        {
        case '&':
            page += "&amp;";
            break;
        case '<':
            page += "&lt;";
            break;
        case '>':
            page += "&gt;";
            break;
        case '"':
            page += "&quot;";
            break;
        case '\'':
            page += "&#39;";
            break;
        default:
            page += character;
        }
    }
}

bool IsPlain(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '-';
}

} // namespace

std::string Escaped(std::string_view text)
{
    std::string escaped;
    AppendEscaped(escaped, text);
    return escaped;
}

std::string AsAnchor(std::string_view name)
{
    std::string anchor;
    for (const char character : name)
    {
        if (IsPlain(character))
        {
            anchor += character;
            continue;
        }
        fmt::format_to(std::back_inserter(anchor), "_{:02x}", static_cast<unsigned char>(character));
    }
    return anchor;
}

Html& Html::Open(std::string_view tag, Attributes attributes)
{
    m_page.append("<").append(tag);
    for (const auto& [name, value] : attributes)
    {
        m_page.append(" ").append(name).append("=\"");
        AppendEscaped(m_page, value);
        m_page += '"';
    }
    m_page += '>';
    return *this;
}

Html& Html::Close(std::string_view tag)
{
    m_page.append("</").append(tag).append(">");
    return *this;
}

Html& Html::Text(std::string_view text)
{
    AppendEscaped(m_page, text);
    return *this;
}

Html& Html::Element(std::string_view tag, std::string_view text, Attributes attributes)
{
    return Open(tag, attributes).Text(text).Close(tag);
}

Html& Html::Verbatim(std::string_view ours)
{
    m_page += ours;
    return *this;
}

} // namespace norvctl::report

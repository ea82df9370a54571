#include "frame/Text.h"
#include "xml/PullReader.h"

#include <algorithm>

namespace norvepa
{

namespace
{

// On to the next element start whose name is `wanted`. False at the end tag `endName`, at an empty element
// of any name, and where the reader stops.
template <typename Wanted>
bool NextChildThat(PullReader& reader, std::wstring_view endName, const Wanted& wanted)
{
    XmlNodeType type = XmlNodeType_None;
    while (reader.Read(type))
    {
        if (type == XmlNodeType_EndElement && EqualNoCase(reader.LocalName(), endName))
        {
            return false;
        }
        if (type != XmlNodeType_Element)
        {
            continue;
        }
        if (reader.IsEmptyElement())
        {
            return false;
        }
        if (wanted(reader.LocalName()))
        {
            return true;
        }
    }
    return false;
}

} // namespace

bool XmlReaderActive(const PullReader& reader) noexcept
{
    const XmlReadState state = reader.State();
    return state == XmlReadState_Initial || state == XmlReadState_Interactive;
}

bool XmlSeekElement(PullReader& reader, std::wstring_view name) noexcept
{
    XmlNodeType type = XmlNodeType_None;
    while (reader.Read(type))
    {
        if (type != XmlNodeType_Element)
        {
            continue;
        }
        if (reader.IsEmptyElement())
        {
            return false;
        }
        if (EqualNoCase(reader.LocalName(), name))
        {
            return true;
        }
    }
    return false;
}

bool XmlSeekChild(PullReader& reader, std::wstring_view endName, std::wstring_view name) noexcept
{
    const auto isNamed = [&](std::wstring_view met) { return EqualNoCase(met, name); };
    return NextChildThat(reader, endName, isNamed);
}

bool XmlSeekOneOf(PullReader& reader, std::wstring_view endName, std::span<const std::wstring_view> names,
                  std::wstring& found)
{
    const auto isOneOf = [&](std::wstring_view met) {
        return std::any_of(names.begin(), names.end(), [&](auto name) { return EqualNoCase(met, name); });
    };
    if (!NextChildThat(reader, endName, isOneOf))
    {
        return false;
    }
    found = reader.LocalName();
    return true;
}

bool XmlNextChild(PullReader& reader, std::wstring_view endName, std::wstring& found)
{
    const auto isAny = [](std::wstring_view) { return true; };
    if (!NextChildThat(reader, endName, isAny))
    {
        return false;
    }
    found = reader.LocalName();
    return true;
}

bool XmlReadText(PullReader& reader, std::wstring_view name, std::wstring& text)
{
    XmlNodeType type = XmlNodeType_None;
    while (reader.Read(type))
    {
        // A text node without a character stands where a file was cut off: it is no text to go by.
        if (type == XmlNodeType_Text && !reader.Value().empty())
        {
            text = reader.Value();
            return true;
        }
        if (type == XmlNodeType_EndElement && EqualNoCase(reader.LocalName(), name))
        {
            text.clear();
            return true;
        }
    }
    return false;
}

bool XmlSeekAttribute(PullReader& reader, std::wstring_view name) noexcept
{
    for (bool met = reader.MoveToFirstAttribute(); met; met = reader.MoveToNextAttribute())
    {
        if (EqualNoCase(reader.LocalName(), name))
        {
            return true;
        }
    }
    reader.MoveToElement();
    return false;
}

bool XmlGetAttribute(PullReader& reader, std::wstring_view name, std::wstring& value)
{
    if (!XmlSeekAttribute(reader, name))
    {
        return false;
    }
    value = reader.Value();
    reader.MoveToElement();
    return true;
}

} // namespace norvepa

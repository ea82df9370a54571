#include "support/XmlFiles.h"

#include "support/TemporaryFolder.h"

namespace norvepa::test
{

namespace
{

std::wstring NamespaceOf(std::wstring_view kind)
{
    return L"http://www.marvolt.example/Automation/Corvane.Device.Driver/" + std::wstring(kind);
}

std::string Escaped(std::wstring_view text)
{
    std::wstring escaped;
    for (const wchar_t character : text)
    {
        switch (character)
        {
        case L'&':
            escaped += L"&amp;";
            break;
        case L'<':
            escaped += L"&lt;";
            break;
        case L'>':
            escaped += L"&gt;";
            break;
        case L'"':
            escaped += L"&quot;";
            break;
        default:
            escaped += character;
        }
    }
    return ToUtf8(escaped);
}

std::string OpenTag(std::wstring_view name, XmlAttributes attributes, std::string_view end)
{
    std::string tag = "<" + ToUtf8(name);
    for (const XmlAttribute& attribute : attributes)
    {
        tag += " " + ToUtf8(attribute.name) + "=\"" + Escaped(attribute.value) + "\"";
    }
    return tag.append(end);
}

} // namespace

XmlContent& XmlContent::Text(std::wstring_view name, std::wstring_view value)
{
    return Entry(L"Parameter", name, value);
}

XmlContent& XmlContent::Int(std::wstring_view name, std::wstring_view value)
{
    return Entry(L"ParameterInt", name, value);
}

XmlContent& XmlContent::Bool(std::wstring_view name, std::wstring_view value)
{
    return Entry(L"ParameterBool", name, value);
}

XmlContent& XmlContent::Entry(std::wstring_view element, std::wstring_view name, std::wstring_view value)
{
    return Element(element, XmlContent().Element(L"Name", name).Element(L"Value", value));
}

XmlContent& XmlContent::Element(std::wstring_view name, const XmlContent& content)
{
    return Element(name, {}, content);
}

XmlContent& XmlContent::Element(std::wstring_view name, XmlAttributes attributes, const XmlContent& content)
{
    m_utf8 += OpenTag(name, attributes, ">") + content.m_utf8 + "</" + ToUtf8(name) + ">\r\n";
    return *this;
}

XmlContent& XmlContent::Element(std::wstring_view name, std::wstring_view text)
{
    return Element(name, XmlContent().Characters(text));
}

XmlContent& XmlContent::EmptyTag(std::wstring_view name, XmlAttributes attributes)
{
    return Raw(OpenTag(name, attributes, "/>"));
}

XmlContent& XmlContent::Subdevice(std::wstring_view name, const XmlContent& content)
{
    return Element(L"Subdevice", {{L"SubdevName", name}}, content);
}

XmlContent& XmlContent::Resource(const Link& link)
{
    return LinkElement(L"Resource", link);
}

XmlContent& XmlContent::ParameterAssemblyLink(const Link& link)
{
    return LinkElement(L"ParameterAssemblyLink", link);
}

XmlContent& XmlContent::LinkElement(std::wstring_view element, const Link& link)
{
    XmlContent children;
    const auto add = [&](std::wstring_view child, const std::optional<std::wstring_view>& text) {
        if (text)
        {
            children.Element(child, *text);
        }
    };
    add(L"Name", link.name);
    add(L"Assembly", link.assembly);
    add(L"Path", link.path);
    add(L"ResourceId", link.resourceId);
    add(L"NameSpace", link.nameSpace);
    add(L"Function", link.function);
    return Element(element, children);
}

XmlContent& XmlContent::Load(Texts sections)
{
    XmlContent items;
    for (const std::wstring_view section : sections)
    {
        items.Element(L"section", section);
    }
    return Element(L"Load", items);
}

XmlContent& XmlContent::ParamSection(std::wstring_view param, const XmlContent& content)
{
    return Element(L"ParamSection", {{L"Param", param}}, content);
}

XmlContent& XmlContent::ValueCollection(Texts values)
{
    XmlContent items;
    for (const std::wstring_view value : values)
    {
        items.Element(L"Value", value);
    }
    return Element(L"ValueCollection", items);
}

XmlContent& XmlContent::Comment(std::wstring_view text)
{
    return Raw("<!--" + ToUtf8(text) + "-->");
}

XmlContent& XmlContent::CData(std::wstring_view text)
{
    return Raw("<![CDATA[" + ToUtf8(text) + "]]>");
}

XmlContent& XmlContent::Characters(std::wstring_view text)
{
    return Raw(Escaped(text));
}

XmlContent& XmlContent::Raw(std::string_view bytes)
{
    m_utf8 += bytes;
    return *this;
}

std::string XmlFile(std::wstring_view root, XmlAttributes attributes, const XmlContent& content)
{
    return std::string(XmlDeclaration) + XmlContent().Element(root, attributes, content).utf8();
}

std::string LogDeviceFile(const XmlContent& content, std::wstring_view deviceId, std::wstring_view cpType)
{
    return XmlFile(L"LogDevice",
                   {{L"xmlns", NamespaceOf(L"LogDevice")}, {L"DeviceID", deviceId}, {L"CP_TYPE", cpType}},
                   content);
}

std::string LogNameFile(const XmlContent& parameters)
{
    return XmlFile(L"LogName", {{L"xmlns", NamespaceOf(L"LogName")}},
                   XmlContent().Element(L"Parameters", parameters));
}

std::string SettingsFile(const XmlContent& settings, const XmlContent& dates)
{
    return XmlFile(L"PGSP", {{L"xmlns", NamespaceOf(L"PGSP")}},
                   XmlContent()
                       .Element(L"PGSP_Section", settings)
                       .Element(L"Updates", XmlContent())
                       .Element(L"DateTimeSection", dates));
}

std::string BoardFile(const XmlContent& content, std::wstring_view deviceId, std::wstring_view cpType)
{
    return XmlFile(L"Device",
                   {{L"xmlns", NamespaceOf(L"Boards")}, {L"DeviceID", deviceId}, {L"CP_TYPE", cpType}},
                   content);
}

std::string ProtocolFile(const XmlContent& content, std::wstring_view cpType)
{
    return XmlFile(L"Profile", {{L"xmlns", NamespaceOf(L"Protocols")}, {L"CP_TYPE", cpType}}, content);
}

} // namespace norvepa::test

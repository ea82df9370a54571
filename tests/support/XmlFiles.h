#pragma once

// Documents of the store's forms, so that a test shows only what matters in them.
//
// XmlContent is a run of nodes, each call appending one:
//
//     LogDeviceFile(XmlContent().Element(L"LocalSettings", XmlContent().Int(L"baudrate", L"187500")))
//
// Names, values and texts are escaped; Raw() is for what a well-behaved writer would never write. What
// the functions at the end answer is a whole file in UTF-8, to be written with WriteBytes().

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace norvepa::test
{

using Texts = std::initializer_list<std::wstring_view>;

struct XmlAttribute
{
    std::wstring_view name;
    std::wstring_view value;
};
using XmlAttributes = std::initializer_list<XmlAttribute>;

// The children of a link, in this order; those left out aren't written.
struct Link
{
    std::optional<std::wstring_view> name = {};
    std::optional<std::wstring_view> assembly = {};
    std::optional<std::wstring_view> path = {};
    std::optional<std::wstring_view> resourceId = {};
    std::optional<std::wstring_view> nameSpace = {};
    std::optional<std::wstring_view> function = {};
};

class XmlContent
{
public:
    // Entries: an element with a `Name` and a `Value`.
    XmlContent& Text(std::wstring_view name, std::wstring_view value); // Parameter
    XmlContent& Int(std::wstring_view name, std::wstring_view value);  // ParameterInt
    XmlContent& Bool(std::wstring_view name, std::wstring_view value); // ParameterBool
    XmlContent& Entry(std::wstring_view element, std::wstring_view name, std::wstring_view value);

    // Any element: sections, and all that has no function of its own. An empty one has two tags.
    XmlContent& Element(std::wstring_view name, const XmlContent& content);
    XmlContent& Element(std::wstring_view name, XmlAttributes attributes, const XmlContent& content);
    XmlContent& Element(std::wstring_view name, std::wstring_view text);
    XmlContent& EmptyTag(std::wstring_view name, XmlAttributes attributes = {}); // <name/>

    // What log devices and templates hold beside entries.
    XmlContent& Subdevice(std::wstring_view name, const XmlContent& content);
    XmlContent& Resource(const Link& link);
    XmlContent& ParameterAssemblyLink(const Link& link);
    XmlContent& Load(Texts sections);

    // What catalogue files hold beside entries.
    XmlContent& ParamSection(std::wstring_view param, const XmlContent& content);
    XmlContent& ValueCollection(Texts values);

    XmlContent& Comment(std::wstring_view text);
    XmlContent& CData(std::wstring_view text);
    XmlContent& Characters(std::wstring_view text);
    XmlContent& Raw(std::string_view bytes);

    [[nodiscard]] const std::string& utf8() const { return m_utf8; }

private:
    XmlContent& LinkElement(std::wstring_view element, const Link& link);

    std::string m_utf8;
};

inline constexpr std::string_view XmlDeclaration = "<?xml version='1.0' encoding='UTF-8'?>\r\n";

// The declaration and one root element without namespace.
[[nodiscard]] std::string XmlFile(std::wstring_view root, XmlAttributes attributes,
                                  const XmlContent& content);

// The store's own kinds, each with the root and the namespace it has in a store.
[[nodiscard]] std::string LogDeviceFile(const XmlContent& content, std::wstring_view deviceId = L"AFK110",
                                        std::wstring_view cpType = L"MPI"); // templates too
[[nodiscard]] std::string LogNameFile(const XmlContent& parameters);
[[nodiscard]] std::string SettingsFile(const XmlContent& settings, const XmlContent& dates = {});
[[nodiscard]] std::string BoardFile(const XmlContent& content, std::wstring_view deviceId = L"AFK110",
                                    std::wstring_view cpType = L"MPI");
[[nodiscard]] std::string ProtocolFile(const XmlContent& content, std::wstring_view cpType = L"MPI");

} // namespace norvepa::test

#include "XmlTree.h"

#include "Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>

namespace norvctl
{

namespace
{

constexpr int DeepestLevel = 100;
constexpr std::string_view Blanks = " \t\r\n";
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view Utf16Mark = "\xFF\xFE";

struct Malformed
{
};

void Require(bool isRight)
{
    if (!isRight)
    {
        throw Malformed{};
    }
}

struct EntityRow
{
    std::string_view name;
    char character;
};

constexpr std::array<EntityRow, 5> EntityTable{
    {{"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}}};

std::string FromNumber(std::string_view digits)
{
    const bool isHex = digits.starts_with('x');
    digits.remove_prefix(isHex ? 1 : 0);
    std::uint32_t code = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), code, isHex ? 16 : 10);
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    Require(error == std::errc{} && end == digits.data() + digits.size() && code != 0 && code <= 0x10FFFF &&
            !isSurrogate);
    if (code <= 0xFFFF)
    {
        return ToUtf8(std::wstring(1, static_cast<wchar_t>(code)));
    }
    const std::uint32_t beyond = code - 0x10000;
    return ToUtf8(std::wstring{static_cast<wchar_t>(0xD800 + (beyond >> 10)),
                               static_cast<wchar_t>(0xDC00 + (beyond & 0x3FF))});
}

std::string FromEntity(std::string_view name)
{
    if (name.starts_with('#'))
    {
        return FromNumber(name.substr(1));
    }
    const auto row = std::find_if(EntityTable.begin(), EntityTable.end(),
                                  [=](const EntityRow& each) { return each.name == name; });
    Require(row != EntityTable.end());
    return {row->character};
}

// Line ends become line feeds, as XML has it.
std::string WithLineFeeds(std::string_view text)
{
    std::string lines;
    lines.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        const bool isReturn = text[at] == '\r';
        const bool isPair = isReturn && at + 1 < text.size() && text[at + 1] == '\n';
        if (!isPair)
        {
            lines += isReturn ? '\n' : text[at];
        }
    }
    return lines;
}

std::string Unescaped(std::string_view raw)
{
    Require(raw.find('\0') == std::string_view::npos);
    std::string text;
    for (;;)
    {
        const std::size_t at = raw.find('&');
        text += WithLineFeeds(raw.substr(0, at));
        if (at == std::string_view::npos)
        {
            return text;
        }
        const std::size_t end = raw.find(';', at);
        Require(end != std::string_view::npos);
        text += FromEntity(raw.substr(at + 1, end - at - 1));
        raw.remove_prefix(end + 1);
    }
}

// Of what hasn't been read yet.
class Scanner
{
public:
    explicit Scanner(std::string_view rest) : m_rest(rest) {}

    [[nodiscard]] bool IsAtEnd() const { return m_rest.empty(); }

    bool Skip(std::string_view word)
    {
        const bool isThere = m_rest.starts_with(word);
        m_rest.remove_prefix(isThere ? word.size() : 0);
        return isThere;
    }

    bool SkipBlanks()
    {
        const std::size_t count = std::min(m_rest.find_first_not_of(Blanks), m_rest.size());
        m_rest.remove_prefix(count);
        return count > 0;
    }

    // What stands ahead of the word, which is passed over.
    std::string_view Until(std::string_view word)
    {
        const std::size_t at = m_rest.find(word);
        Require(at != std::string_view::npos);
        const std::string_view ahead = m_rest.substr(0, at);
        m_rest.remove_prefix(at + word.size());
        return ahead;
    }

    // What stands ahead of the next tag.
    std::string_view Text()
    {
        const std::size_t at = m_rest.find('<');
        Require(at != std::string_view::npos);
        const std::string_view text = m_rest.substr(0, at);
        m_rest.remove_prefix(at);
        return text;
    }

    std::string_view Name()
    {
        const std::size_t length = std::min(m_rest.find_first_of(" \t\r\n/>=<\"'&"), m_rest.size());
        Require(length > 0);
        const std::string_view name = m_rest.substr(0, length);
        m_rest.remove_prefix(length);
        return name;
    }

    // Comments and instructions; false when there is none here.
    bool SkipAside()
    {
        if (Skip("<!--"))
        {
            Until("-->");
            return true;
        }
        if (Skip("<?"))
        {
            Until("?>");
            return true;
        }
        return false;
    }

    void SkipAsides()
    {
        while (SkipBlanks() || SkipAside())
        {
        }
    }

    NameAndValue Attribute()
    {
        NameAndValue attribute{std::string(Name()), {}};
        SkipBlanks();
        Require(Skip("="));
        SkipBlanks();
        const bool isDouble = Skip("\"");
        Require(isDouble || Skip("'"));
        const std::string_view raw = Until(isDouble ? "\"" : "'");
        Require(raw.find('<') == std::string_view::npos);
        attribute.value = Unescaped(raw);
        return attribute;
    }

private:
    std::string_view m_rest;
};

std::string WithoutPrefix(std::string_view name)
{
    const std::size_t colon = name.find(':');
    return std::string(colon == std::string_view::npos ? name : name.substr(colon + 1));
}

XmlElement ReadElement(Scanner& scanner, int level);

// Up to the end tag, which is taken too.
void ReadContent(Scanner& scanner, XmlElement& element, std::string_view tag, int level)
{
    for (;;)
    {
        element.text += Unescaped(scanner.Text());
        if (scanner.Skip("</"))
        {
            Require(scanner.Name() == tag);
            scanner.SkipBlanks();
            Require(scanner.Skip(">"));
            return;
        }
        if (scanner.Skip("<![CDATA["))
        {
            element.text += WithLineFeeds(scanner.Until("]]>"));
        }
        else if (!scanner.SkipAside())
        {
            element.children.push_back(ReadElement(scanner, level + 1));
        }
    }
}

XmlElement ReadElement(Scanner& scanner, int level)
{
    Require(level < DeepestLevel && scanner.Skip("<"));
    const std::string_view tag = scanner.Name();
    XmlElement element;
    element.name = WithoutPrefix(tag);
    for (;;)
    {
        const bool isApart = scanner.SkipBlanks();
        if (scanner.Skip("/>"))
        {
            return element;
        }
        if (scanner.Skip(">"))
        {
            ReadContent(scanner, element, tag, level);
            return element;
        }
        Require(isApart);
        element.attributes.push_back(scanner.Attribute());
    }
}

XmlElement ReadDocument(std::string_view utf8)
{
    Scanner scanner(utf8);
    scanner.SkipAsides();
    XmlElement root = ReadElement(scanner, 0);
    scanner.SkipAsides();
    Require(scanner.IsAtEnd());
    return root;
}

std::string AsUtf8(std::string_view bytes)
{
    if (!bytes.starts_with(Utf16Mark))
    {
        bytes.remove_prefix(bytes.starts_with(Utf8Mark) ? Utf8Mark.size() : 0);
        Require(IsUtf8(bytes));
        return std::string(bytes);
    }
    bytes.remove_prefix(Utf16Mark.size());
    Require(bytes.size() % sizeof(wchar_t) == 0);
    std::wstring wide(bytes.size() / sizeof(wchar_t), L'\0');
    std::memcpy(wide.data(), bytes.data(), bytes.size());
    return ToUtf8(wide);
}

} // namespace

std::optional<XmlElement> ParseXml(std::string_view bytes)
{
    try
    {
        return ReadDocument(AsUtf8(bytes));
    }
    catch (const Malformed&)
    {
        return std::nullopt;
    }
}

} // namespace norvctl

#include "xml/PlainReader.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <utility>

namespace norvepa
{

namespace
{

constexpr std::array<std::pair<std::string_view, wchar_t>, 5> References{
    {{"&lt;", L'<'}, {"&gt;", L'>'}, {"&amp;", L'&'}, {"&quot;", L'"'}, {"&apos;", L'\''}}};

bool IsForeign(char byte) noexcept
{
    return static_cast<unsigned char>(byte) >= 0x80;
}

bool IsSpace(char byte) noexcept
{
    return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
}

// Takes bytes off the front of `rest` until one ends it.
template <typename Ends>
std::string_view TakeUntil(std::string_view& rest, const Ends& ends)
{
    const auto size = static_cast<std::size_t>(std::find_if(rest.begin(), rest.end(), ends) - rest.begin());
    const std::string_view taken = rest.substr(0, size);
    rest.remove_prefix(size);
    return taken;
}

void AppendAscii(std::string_view bytes, std::wstring& text)
{
    const std::size_t end = text.size();
    text.resize(end + bytes.size());
    std::copy(bytes.begin(), bytes.end(), text.data() + end);
}

bool AppendReference(std::string_view& rest, std::wstring& text)
{
    const auto row = std::find_if(References.begin(), References.end(),
                                  [=](const auto& each) { return rest.starts_with(each.first); });
    if (row == References.end())
    {
        return false;
    }
    text += row->second;
    rest.remove_prefix(row->first.size());
    return true;
}

bool AppendForeign(std::string_view bytes, std::wstring& text)
{
    const int size = static_cast<int>(bytes.size());
    const int room = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes.data(), size, nullptr, 0);
    const std::size_t end = text.size();
    text.resize(end + static_cast<std::size_t>(room));
    return MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes.data(), size, text.data() + end, room) >
           0;
}

// What the bytes between two tags or two quotes stand for.
bool AppendText(std::string_view bytes, std::wstring& text)
{
    while (!bytes.empty())
    {
        const std::string_view plain =
            TakeUntil(bytes, [](char byte) { return IsForeign(byte) || byte == '&' || byte == '\r'; });
        AppendAscii(plain, text);
        if (bytes.empty())
        {
            return true;
        }
        const std::string_view foreign = TakeUntil(bytes, [](char byte) { return !IsForeign(byte); });
        const bool read = foreign.empty() ? AppendReference(bytes, text) : AppendForeign(foreign, text);
        if (!read)
        {
            return false;
        }
    }
    return true;
}

// The raw value of an attribute; none when it isn't there.
std::optional<std::string_view> FindAttribute(std::string_view attributes, std::string_view name)
{
    for (;;)
    {
        TakeUntil(attributes, [](char byte) { return !IsSpace(byte); });
        const std::string_view called =
            TakeUntil(attributes, [](char byte) { return IsSpace(byte) || byte == '='; });
        TakeUntil(attributes, [](char byte) { return byte == '"' || byte == '\''; });
        if (attributes.empty())
        {
            return std::nullopt;
        }
        const char quote = attributes.front();
        attributes.remove_prefix(1);
        const std::string_view value = TakeUntil(attributes, [=](char byte) { return byte == quote; });
        if (called == name)
        {
            return value;
        }
        attributes.remove_prefix(std::min<std::size_t>(attributes.size(), 1));
    }
}

} // namespace

PlainReader::PlainReader(std::string_view bytes) : m_rest(bytes), m_isPlain(SkipPrologue()) {}

// Past the mark of the encoding and the declaration.
bool PlainReader::SkipPrologue()
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    constexpr std::string_view declaration = "<?xml";
    constexpr std::string_view zeroTag("<\0", 2);

    m_rest.remove_prefix(m_rest.starts_with(mark) ? mark.size() : 0);
    if (m_rest.starts_with(declaration))
    {
        return SkipDeclaration();
    }
    // In other encodings the first tag begins otherwise, or has a zero.
    TakeUntil(m_rest, [](char byte) { return !IsSpace(byte); });
    return m_rest.starts_with('<') && !m_rest.starts_with(zeroTag);
}

bool PlainReader::SkipDeclaration()
{
    const std::string_view begin = m_rest;
    if (!SkipPast("?>"))
    {
        return false;
    }
    std::string_view attributes = begin.substr(0, begin.size() - m_rest.size());
    const std::string_view word = TakeUntil(attributes, IsSpace);
    const std::string_view encoding = FindAttribute(attributes, "encoding").value_or("UTF-8");
    return word == "<?xml" && FindAttribute(attributes, "version") == "1.0" &&
           (encoding == "UTF-8" || encoding == "utf-8");
}

bool PlainReader::SkipPast(std::string_view mark)
{
    const std::size_t place = m_rest.find(mark);
    if (place == std::string_view::npos)
    {
        return false;
    }
    m_rest.remove_prefix(place + mark.size());
    return true;
}

PlainReader::Token PlainReader::Read()
{
    while (m_isPlain)
    {
        TakeUntil(m_rest, [](char byte) { return byte == '<'; });
        if (m_rest.empty())
        {
            return Token::End;
        }
        if (m_rest.starts_with("<!--"))
        {
            m_isPlain = SkipPast("<!--") && SkipPast("-->"); // which share no dash
        }
        else if (m_rest.starts_with("<!") || m_rest.starts_with("<?"))
        {
            m_isPlain = false;
        }
        else if (m_rest.starts_with("</"))
        {
            m_isPlain = SkipPast(">");
            return m_isPlain ? Token::EndTag : Token::NotPlain;
        }
        else
        {
            return ReadBeginTag();
        }
    }
    return Token::NotPlain;
}

PlainReader::Token PlainReader::ReadBeginTag()
{
    char quote = '\0';
    m_rest.remove_prefix(1);
    std::string_view tag = TakeUntil(m_rest, [&](char byte) {
        if (quote == '\0' && (byte == '"' || byte == '\''))
        {
            quote = byte;
            return false;
        }
        quote = byte == quote ? '\0' : quote;
        return byte == '>' && quote == '\0';
    });
    m_isPlain = !m_rest.empty();
    if (!m_isPlain)
    {
        return Token::NotPlain;
    }
    m_rest.remove_prefix(1);

    const bool isEmpty = tag.ends_with('/');
    tag.remove_suffix(isEmpty ? 1 : 0);
    m_word = TakeUntil(tag, IsSpace);
    m_attributes = tag;
    // A prefix that isn't declared an engine may leave out.
    m_isPlain = m_word.find(':') == std::string_view::npos && tag.find("xml:space") == std::string_view::npos;
    if (!m_isPlain)
    {
        return Token::NotPlain;
    }
    return isEmpty ? Token::EmptyTag : Token::BeginTag;
}

bool PlainReader::ReadAttribute(std::string_view name, std::optional<std::wstring>& text) const
{
    // Behind a prefix that isn't declared, an engine may take it for the one without.
    if (m_attributes.find(std::string(":").append(name)) != std::string_view::npos)
    {
        return false;
    }
    const auto value = FindAttribute(m_attributes, name);
    if (!value)
    {
        return true;
    }
    // White space other than blanks is normalised there.
    return value->find_first_of("\t\n") == std::string_view::npos && AppendText(*value, text.emplace());
}

bool PlainReader::ReadText(std::wstring& text)
{
    const std::string_view bytes = TakeUntil(m_rest, [](char byte) { return byte == '<'; });
    const bool isBlank = !bytes.empty() && std::all_of(bytes.begin(), bytes.end(), IsSpace);
    return !isBlank && m_rest.starts_with("</") && SkipPast(">") && AppendText(bytes, text);
}

} // namespace norvepa

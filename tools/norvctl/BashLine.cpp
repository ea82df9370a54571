#include "ShellWords.h"

#include <algorithm>

namespace norvctl
{

namespace
{

constexpr char Single = '\'';
constexpr char Double = '"';

// A backslash between double marks stands for itself ahead of any other character.
bool IsEscapableInDouble(char c)
{
    return std::string_view("\"\\$`").find(c) != std::string_view::npos;
}

bool IsPlain(char c)
{
    const bool isLetterOrDigit = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    const bool isOfLongerCharacter = static_cast<unsigned char>(c) >= 0x80;
    return isLetterOrDigit || isOfLongerCharacter ||
           std::string_view("_-./,:=@%+").find(c) != std::string_view::npos;
}

bool IsPlainWord(const std::string& word)
{
    return std::all_of(word.begin(), word.end(), IsPlain);
}

std::string InSingle(const std::string& word)
{
    std::string inside;
    for (const char c : word)
    {
        inside += c == Single ? "'\\''" : std::string(1, c);
    }
    return inside;
}

std::string InDouble(const std::string& word)
{
    std::string inside;
    for (const char c : word)
    {
        inside += IsEscapableInDouble(c) ? std::string{'\\', c} : std::string(1, c);
    }
    return inside;
}

class BashReader
{
public:
    explicit BashReader(std::string_view breaks) : m_breaks(breaks) {}

    void Take(char c)
    {
        if (m_isEscaped)
        {
            TakeEscaped(c);
        }
        else if (c == '\\' && m_words.quote() != Single)
        {
            m_isEscaped = true;
        }
        else if (m_words.quote() != '\0')
        {
            c == m_words.quote() ? m_words.Close() : m_words.Add(c);
        }
        else
        {
            TakeUnquoted(c);
        }
    }

    [[nodiscard]] ShellLine Line() const { return m_words.Line(); }

private:
    void TakeEscaped(char c)
    {
        if (m_words.quote() == Double && !IsEscapableInDouble(c))
        {
            m_words.Add('\\');
        }
        m_words.Add(c);
        m_isEscaped = false;
    }

    void TakeUnquoted(char c)
    {
        if (c == Single || c == Double)
        {
            m_words.Open(c, true);
        }
        else if (c == ' ' || c == '\t' || c == '\n')
        {
            m_words.EndWord();
        }
        else
        {
            m_words.Add(c);
            if (m_breaks.find(c) != std::string_view::npos)
            {
                m_words.Keep();
            }
        }
    }

    ShellWords m_words;
    std::string_view m_breaks;
    bool m_isEscaped = false;
};

} // namespace

ShellLine ReadBashLine(std::string_view line, std::string_view breaks)
{
    BashReader reader(breaks);
    for (const char c : line)
    {
        reader.Take(c);
    }
    return reader.Line();
}

std::vector<std::string> BashWords(const std::vector<std::string>& words, const ShellLine& line)
{
    std::vector<std::string> rests;
    for (const std::string& word : words)
    {
        rests.push_back(word.substr(line.kept.size()));
    }
    const bool arePlain = std::all_of(rests.begin(), rests.end(), IsPlainWord);
    for (std::string& rest : rests)
    {
        if (line.quote != '\0') // bash itself puts the closing mark
        {
            rest = line.quote == Single ? InSingle(rest) : InDouble(rest);
        }
        else if (!arePlain)
        {
            rest = Single + InSingle(rest) + Single;
        }
    }
    return rests;
}

} // namespace norvctl

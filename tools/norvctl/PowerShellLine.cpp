#include "ShellWords.h"

#include <algorithm>

namespace norvctl
{

namespace
{

constexpr char Single = '\'';
constexpr char Double = '"';
constexpr char Escape = '`';

// Typographic marks, to PowerShell the same as an apostrophe.
constexpr std::string_view TypographicMarks[] = {"\u2018", "\u2019", "\u201A", "\u201B"};

bool IsMarkAt(const std::string& word, std::size_t position)
{
    const std::string_view rest = std::string_view(word).substr(position);
    return rest[0] == Single || std::any_of(std::begin(TypographicMarks), std::end(TypographicMarks),
                                            [&](std::string_view mark) { return rest.starts_with(mark); });
}

bool IsPlain(char c)
{
    const bool isLetterOrDigit = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    return isLetterOrDigit || std::string_view("_-./\\:=").find(c) != std::string_view::npos;
}

class PowerShellReader
{
public:
    void Take(char c)
    {
        if (m_isEscaped)
        {
            m_words.Add(c);
            m_isEscaped = false;
        }
        else if (c == Escape && m_words.quote() != Single)
        {
            m_isEscaped = true;
        }
        else if (m_words.quote() != '\0')
        {
            TakeQuoted(c);
        }
        else
        {
            TakeUnquoted(c);
        }
    }

    [[nodiscard]] ShellLine Line() const { return m_words.Line(); }

private:
    void TakeQuoted(char c)
    {
        m_closed = c == m_words.quote() ? c : '\0';
        m_closed != '\0' ? m_words.Close() : m_words.Add(c);
    }

    void TakeUnquoted(char c)
    {
        const char closed = std::exchange(m_closed, '\0');
        if (c == Single || c == Double)
        {
            if (c == closed) // twice between marks it stands for itself
            {
                m_words.Add(c);
            }
            m_words.Open(c, false);
        }
        else if (c == ' ' || c == '\t' || c == '\r' || c == '\n')
        {
            m_words.EndWord();
        }
        else
        {
            m_words.Add(c);
        }
    }

    ShellWords m_words;
    char m_closed = '\0'; // the mark that was the last character, and a closing one
    bool m_isEscaped = false;
};

} // namespace

ShellLine ReadPowerShellLine(std::string_view line)
{
    PowerShellReader reader;
    for (const char c : line)
    {
        reader.Take(c);
    }
    return reader.Line();
}

std::string PowerShellWord(const std::string& word)
{
    if (!word.empty() && std::all_of(word.begin(), word.end(), IsPlain))
    {
        return word;
    }
    std::string quoted(1, Single);
    for (std::size_t position = 0; position < word.size(); ++position)
    {
        if (IsMarkAt(word, position))
        {
            quoted += Single; // one ahead of it has it stand for itself, whichever it is
        }
        quoted += word[position];
    }
    return quoted + Single;
}

} // namespace norvctl

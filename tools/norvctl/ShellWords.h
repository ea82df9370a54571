#pragma once

// The words of a shell's command line as they are read, character by character.

#include "ShellLine.h"

#include <utility>

namespace norvctl
{

class ShellWords
{
public:
    void Add(char c)
    {
        m_present += c;
        m_isWord = true;
    }

    void Open(char quote, bool replacesBehind)
    {
        m_quote = quote;
        m_isWord = true;
        m_keptAhead = std::exchange(m_kept, replacesBehind ? m_present.size() : m_kept);
    }

    void Close()
    {
        m_quote = '\0';
        m_kept = m_keptAhead;
    }

    // All up to here stays as it is.
    void Keep() { m_kept = m_present.size(); }

    void EndWord()
    {
        if (m_isWord)
        {
            m_words.push_back(std::exchange(m_present, {}));
        }
        m_isWord = false;
        m_kept = 0;
    }

    [[nodiscard]] char quote() const { return m_quote; }

    // The first word is the program's.
    [[nodiscard]] ShellLine Line() const
    {
        ShellLine line{m_words, m_present, m_present.substr(0, m_kept), m_quote};
        if (!line.words.empty())
        {
            line.words.erase(line.words.begin());
        }
        return line;
    }

private:
    std::vector<std::string> m_words;
    std::string m_present;
    std::size_t m_kept = 0;
    std::size_t m_keptAhead = 0; // of the mark that is open
    char m_quote = '\0';
    bool m_isWord = false; // also an empty one between marks
};

} // namespace norvctl

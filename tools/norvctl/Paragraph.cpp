#include "Paragraph.h"

#include "DisplayText.h"

#include <algorithm>
#include <sstream>

namespace norvctl
{

namespace
{

constexpr std::size_t Margin = 2;
constexpr std::size_t WidestTerm = 26; // the text of a term that is wider begins on the next line

} // namespace

std::string Wrapped(const std::string& text, std::size_t width, std::size_t indent)
{
    std::istringstream words(text);
    std::string wrapped;
    std::size_t column = 0; // of the line, behind its indentation
    for (std::string word; words >> word;)
    {
        const std::size_t columns = DisplayWidth(word);
        if (column != 0 && indent + column + 1 + columns > width)
        {
            wrapped += '\n' + std::string(indent, ' ');
            column = 0;
        }
        if (column != 0)
        {
            wrapped += ' ';
            ++column;
        }
        wrapped += word;
        column += columns;
    }
    return wrapped;
}

std::string AsText(const std::vector<Definition>& definitions, std::size_t width)
{
    std::size_t widest = 0;
    for (const Definition& definition : definitions)
    {
        const std::size_t columns = DisplayWidth(definition.term);
        widest = columns > WidestTerm ? widest : std::max(widest, columns);
    }
    const std::size_t indent = Margin + widest + Margin;
    std::string text;
    for (const Definition& definition : definitions)
    {
        text += std::string(Margin, ' ') + Padded(definition.term, widest);
        text += DisplayWidth(definition.term) > widest ? '\n' + std::string(indent, ' ')
                                                       : std::string(Margin, ' ');
        text += Wrapped(definition.text, width, indent) + '\n';
    }
    return text;
}

} // namespace norvctl

#include "Report.h"

#include "Console.h"

#include <iostream>

namespace norvctl
{

void Report::Answer(std::string_view text, const Json& document) const
{
    if (json)
    {
        std::cout << document.dump(2) << '\n';
    }
    else
    {
        std::cout << text << '\n';
    }
}

void Report::Answer(const Table& table, const Json& document) const
{
    Answer(table.AsText(Form()), document);
}

TableForm Report::Form() const
{
    return IsOutputConsole() ? TableForm{true, ConsoleWidth()} : TableForm{headings, 0};
}

} // namespace norvctl

#include "Report.h"

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

} // namespace norvctl

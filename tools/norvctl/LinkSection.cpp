#include "LinkSection.h"

namespace norvctl
{

void AddLinkSection(CLI::App& command, LinkSection& section)
{
    command.add_flag("--32", section.is32,
                     "links of 32-bit processes: from UserInterface, not UserInterface64");
}

} // namespace norvctl

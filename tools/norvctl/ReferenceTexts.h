#pragma once

// What the reference says beside the commands.

#include <array>
#include <string_view>

namespace norvctl
{

struct NamedText
{
    std::string_view name;
    std::string_view text;
};

inline constexpr std::array<std::string_view, 4> AboutNorvctl{
    "norvctl reads and changes the configuration of this machine's communication stack, through the same "
    "library as every other client of it. norvctl watch follows what changes.",
    "A command line names a noun and a verb, arguments by their position, and options, which may stand "
    "anywhere. Behind -- nothing is an option: a value that begins with a hyphen and is no number goes "
    "there. Commands and options are case-sensitive; the names of the store aren't.",
    "An answer goes to standard output, as UTF-8, or to a console as it shows it. With --json it is one JSON "
    "document, of watch one a line. Why something wasn't done stands on standard error, with the library's "
    "code and its name.",
    "norvctl completion prints what makes bash or PowerShell complete commands, options and the names of the "
    "store.",
};

inline constexpr std::array<NamedText, 3> FilesOfNorvctl{{
    {"HKEY_LOCAL_MACHINE\\SOFTWARE\\Marvolt\\Shared Tools\\NorvDOS64",
     "the registry key that says where the store lies"},
    {"Corvane_Oam_Data", "its value for what users and tools change: data\\LogDevices, data\\LogNames and "
                         "data\\PGSP.xml below; without "
                         "it, Marvolt\\Automation\\Corvane OAM below the common application data"},
    {"Corvane_Oam", "its value for what is shipped: the catalogue in meta and the schemas in Schemes below; "
                    "without it, the same "
                    "folder below the common program files"},
}};

} // namespace norvctl

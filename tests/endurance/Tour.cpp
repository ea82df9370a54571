#include "endurance/Tour.h"

#include "endurance/Words.h"

#include <array>
#include <vector>

namespace norvepa::test
{

namespace
{

struct File
{
    const wchar_t* folder;
    const wchar_t* name;
};

constexpr std::array Files{
    File{L"Boards", L"Automation-OnlineAccess-BT-AFK110"},
    File{L"Boards", L"Automation-OnlineAccess-BT-AFK220"},
    File{L"Boards", L"Automation-OnlineAccess-BT-ANK300"},
    File{L"Boards", L"Automation-OnlineAccess-BT-ASK040"},
    File{L"Boards", L"Automation-OnlineAccess-BT-KQZA010"},
    File{L"Protocols", L"Automation-OnlineAccess-PT-L2"},
    File{L"Protocols", L"Automation-OnlineAccess-PT-MPI"},
    File{L"Protocols", L"Automation-OnlineAccess-PT-TCPIP"},
    File{L"Protocols", L"Automation-OnlineAccess-PT-SERIAL"},
};

// What the library asks for by itself.
constexpr std::array Rules{L"type", L"default", L"base", L"section", L"map", L"min", L"max", L"step"};

// What profiles write, and copies and templates set.
constexpr std::array Followers{L"min_tsdr",   L"max_tsdr",    L"setup_time", L"quiet_time",
                               L"gap_factor", L"retry_limit", L"ttr",        L"DefLogDevice"};

std::vector<const wchar_t*> AskedParameters()
{
    std::vector<const wchar_t*> names(Followers.begin(), Followers.end());
    for (const Texts texts :
         {Parameters.usual, Parameters.odd, BusParameters.usual, BusParameters.odd, Hostile})
    {
        names.insert(names.end(), texts.begin(), texts.end());
    }
    return names;
}

} // namespace

void AskForAllRules(const Exports& library)
{
    std::array<wchar_t, 260> text{};
    for (const wchar_t* const parameter : AskedParameters())
    {
        for (const File& file : Files)
        {
            for (const wchar_t* const rule : Rules)
            {
                std::uint32_t length = text.size();
                library.PGSP_TemplateGetConstraintBL(file.folder, file.name, parameter, rule, text.data(),
                                                     &length);
            }
        }
    }
}

} // namespace norvepa::test

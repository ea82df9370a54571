#include "Examples.h"

#include "Example.h"

#include <fmt/format.h>
#include <sstream>
#include <string>

namespace norvctl
{

namespace
{

// Quotation marks as here serve in every shell.
struct VerbExample
{
    const char* verb;
    const char* arguments;
};

constexpr VerbExample Examples[] = {
    {"device list", "--type MPI"},
    {"device list", "--by-id AFK110 --json"},
    {"device show", "Kesselhaus"},
    {"device get", "Kesselhaus baudrate"},
    {"device get", "Kesselhaus slot_time --section NetworkSettings"},
    {"device set", "Kesselhaus watchdog 400"},
    {"device set", "Kesselhaus watchdog max"},
    {"device unset", "Labor Remark"},
    {"device create", R"("Presse 4" --from MPI-AFK110)"},
    {"device copy", R"(Kesselhaus "Kesselhaus 2")"},
    {"device delete", R"("Abfüllung Linie 1" --force)"},
    {"device edit begin", "Kesselhaus"},
    {"device edit begin", "--from MPI-AFK110"},
    {"device edit list", ""},
    {"device edit apply", "PGSP_TEMP_LOG_DEVICE____000 Kesselhaus"},
    {"device edit discard", "PGSP_TEMP_LOG_DEVICE____000"},
    {"device profile", "Kläranlage"},
    {"device busparams", R"("Presse#3" 1500000)"},
    {"device choices", R"("Presse#3" l4_timeout --average)"},
    {"device describe", R"("Presse#3" watchdog)"},
    {"device describe", R"("Presse#3" "baudrate\1500000")"},
    {"device ndi list", "Kesselhaus --32"},
    {"device ndi get", "Kesselhaus OrderCode"},
    {"device ndi set", R"(Kesselhaus Remark "Heißwasserkessel 2")"},
    {"device ndi unset", "Kesselhaus OrderCode"},
    {"device text", R"(Kesselhaus "BaudrateResource\3" --language en)"},
    {"device driver-read", R"("Waage Rampe 2")"},
    {"device driver-read", R"("Waage Rampe 2" --hex)"},
    {"device xml", "Kesselhaus"},

    {"name list", ""},
    {"name show", "Leitwarte"},
    {"name create", R"("Mischer Süd #2")"},
    {"name delete", "Altanlage"},
    {"name get", R"("Kessel#1" LogDevice)"},
    {"name set", R"(Leitwarte Station "Bedienplatz 2")"},
    {"name unset", "Leitwarte Station"},
    {"name link", "Altanlage Kesselhaus"},
    {"name unlink", "Altanlage"},
    {"name text", R"("Kessel#1" DescText)"},
    {"name xml", R"("Kessel#1")"},

    {"board list", ""},
    {"board show", "AFK110"},
    {"board values", R"(AFK110 "Constraints\highest_adr")"},
    {"board get", "AFK110 BusType"},
    {"board get", R"(AFK110 max --path "Constraints\highest_adr")"},
    {"board text", "AFK220 DescDefault --language de"},
    {"board xml", "AFK110"},

    {"protocol list", ""},
    {"protocol show", "SERIAL char_delay"},
    {"protocol profiles", "L2"},
    {"protocol baudrates", "L2 --profile 1"},
    {"protocol get", "SERIAL char_delay max"},
    {"protocol get", "SERIAL baudrate ack_timeout --value 19200"},
    {"protocol xml", "SERIAL"},

    {"template list", ""},
    {"template show", "MPI-AFK110"},
    {"template get", "MPI-AFK110 PropSheet"},
    {"template set", "MPI-AFK110 baudrate 19200"},
    {"template text", "MPI-AFK110 DescText --language en"},
    {"template xml", "MPI-AFK110"},

    {"settings get", "PlantName"},
    {"settings set", R"(PlantName "Zuckerfabrik Auental")"},

    {"data list", "Kesselhaus --subfolder ParameterData"},
    {"data get", "Kesselhaus Dampfdruck --subfolder ParameterData"},
    {"data set", R"(Kesselhaus Dampfdruck "40 bar" --subfolder ParameterData)"},
    {"data unset", "Kesselhaus Freigabe --subfolder ParameterData"},

    {"trace status", ""},
    {"trace on", R"(--folder "C:\TMP" --file Demo)"},
    {"trace off", ""},
    {"doctor", ""},
    {"version", ""},
};

CLI::App& VerbNamed(CLI::App& app, const char* verb)
{
    CLI::App* command = &app;
    std::istringstream words(verb);
    for (std::string word; words >> word;)
    {
        command = command->get_subcommand(word);
    }
    return *command;
}

} // namespace

void ShowExamples(CLI::App& app)
{
    for (const VerbExample& example : Examples)
    {
        const bool isBare = *example.arguments == '\0';
        ShowExample(VerbNamed(app, example.verb),
                    fmt::format("norvctl {}{}{}", example.verb, isBare ? "" : " ", example.arguments));
    }
}

} // namespace norvctl

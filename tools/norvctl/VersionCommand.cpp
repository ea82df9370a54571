#include "Commands.h"
#include "LibraryVersion.h"

#include <string>

namespace norvctl
{

void AddVersionCommand(CLI::App& app, const Report& report)
{
    app.add_subcommand("version", "print the version of the library")->callback([&report] {
        const std::string version = LibraryVersion();
        report.Answer("NorvepaBl64x " + version, {{"library", "NorvepaBl64x"}, {"version", version}});
    });
}

} // namespace norvctl

#include "Commands.h"
#include "Example.h"
#include "RawOutput.h"
#include "Reference.h"

#include <memory>

namespace norvctl
{

void AddReferenceCommand(CLI::App& app)
{
    const auto format = std::make_shared<std::string>("markdown");
    CLI::App* const reference = app.add_subcommand("reference", "print the reference of all commands");
    reference->add_option("--format", *format, "its form")
        ->check(CLI::IsMember({"markdown", "man"}))
        ->capture_default_str();
    reference->callback(
        [=, &app] { RawOutput().Write(*format == "man" ? ManReference(app) : MarkdownReference(app)); });
    ShowExample(*reference, "norvctl reference --format man");
}

} // namespace norvctl

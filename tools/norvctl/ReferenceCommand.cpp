#include "Commands.h"
#include "Example.h"
#include "RawOutput.h"
#include "Reference.h"
#include "Resources.h"

#include <memory>

namespace norvctl
{

namespace
{

void Print(const CLI::App& app, const std::string& format)
{
    RawOutput output;
    if (format == "json-schema")
    {
        output.Write(AnswerSchema());
        return;
    }
    output.Write(format == "man" ? ManReference(app) : MarkdownReference(app));
}

} // namespace

void AddReferenceCommand(CLI::App& app)
{
    const auto format = std::make_shared<std::string>("markdown");
    CLI::App* const reference = app.add_subcommand("reference", "print the reference of all commands");
    reference->add_option("--format", *format, "its form; json-schema is that of the answers of --json")
        ->check(CLI::IsMember({"markdown", "man", "json-schema"}))
        ->capture_default_str();
    reference->callback([=, &app] { Print(app, *format); });
    ShowExample(*reference, "norvctl reference --format man");
}

} // namespace norvctl

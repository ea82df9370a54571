#include "Commands.h"
#include "Reads.h"
#include "norvepa.h"

#include <string>
#include <vector>

namespace norvctl
{

namespace
{

void List(const Report& report)
{
    const std::vector<std::string> names =
        EnumerateTexts("the templates", [](uint32_t index, wchar_t* name, uint32_t* length) {
            return PGSP_TemplateGetEnumNoPrefixBL(L"DefaultLogDevices", index, name, length);
        });
    report.Answer(AsLines(names), names);
}

} // namespace

void AddTemplateCommands(CLI::App& app, const Report& report)
{
    CLI::App* const noun = app.add_subcommand("template", "templates that log devices are made from");
    noun->require_subcommand(1);
    noun->add_subcommand("list", "list them")->callback([&report] { List(report); });
    AddTemplateTextCommand(*noun, report);
}

} // namespace norvctl

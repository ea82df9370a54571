#include "Changes.h"
#include "Commands.h"
#include "LinkSection.h"
#include "Reads.h"
#include "Result.h"
#include "SheetAnswer.h"
#include "Template.h"
#include "Text.h"
#include "norvepa.h"

#include <fmt/format.h>
#include <memory>
#include <string>
#include <vector>

namespace norvctl
{

namespace
{

constexpr wchar_t CatalogueWord[] = L"meta"; // the folder word of changes of the catalogue

struct Arguments
{
    std::string name;
    std::string parameter;
    std::string value;
    std::string section;
    LinkSection links;
};

std::string SubjectOf(const Arguments& arguments)
{
    return fmt::format("{}, {}", arguments.name, arguments.parameter);
}

void List(const Report& report)
{
    const std::vector<std::string> names =
        EnumerateTexts("the templates", [](uint32_t index, wchar_t* name, uint32_t* length) {
            return PGSP_TemplateGetEnumNoPrefixBL(TemplatesFolder, index, name, length);
        });
    report.Answer(AsTable("TEMPLATE", names), names);
}

void Show(const Report& report, const Arguments& arguments)
{
    const auto sections = SectionsOfTemplate(arguments.name);
    report.Answer(AsTable(sections), {{"template", arguments.name},
                                      {"values", AsObject(ValuesOfTemplate(arguments.name))},
                                      {"sections", AsArray(sections)}});
}

// Where no section is named, a value that doesn't fit is passed over, and its length never told.
ReadResult Read(const Arguments& arguments)
{
    const std::wstring name = ToWide(arguments.name);
    const std::wstring parameter = ToWide(arguments.parameter);
    if (arguments.section.empty())
    {
        return ReadTextWithRoom(LongestValue, [&](wchar_t* value, uint32_t* length) {
            return PGSP_DefDeviceGetValueBL(name.c_str(), parameter.c_str(), value, length,
                                            arguments.links.Flag());
        });
    }
    const std::wstring section = ToWide(arguments.section);
    return ReadText([&](wchar_t* value, uint32_t* length) {
        return PGSP_DefDeviceGetValueRawBL(name.c_str(), section.c_str(), parameter.c_str(), value, length);
    });
}

void Get(const Report& report, const Arguments& arguments)
{
    const ReadResult read = Read(arguments);
    Require(read.result, SubjectOf(arguments));
    report.Answer(read.value,
                  {{"template", arguments.name}, {"parameter", arguments.parameter}, {"value", read.value}});
}

void Set(const Report& report, const Arguments& arguments)
{
    const bool changed = MakesDifference(
        CatalogueWord, ToWide(arguments.name), [&] { return Read(arguments); },
        [&] {
            Require(PGSP_TemplateSetValueBL(TemplatesFolder, ToWide(arguments.name).c_str(),
                                            ToWide(arguments.parameter).c_str(),
                                            ToWide(arguments.value).c_str()),
                    SubjectOf(arguments));
        });
    const char* const what = changed ? "set" : "unchanged";
    report.Answer(fmt::format("{} {}", what, SubjectOf(arguments)),
                  {{"done", what}, {"template", arguments.name}, {"parameter", arguments.parameter}});
}

} // namespace

void AddTemplateCommands(CLI::App& app, const Report& report)
{
    CLI::App* const noun = app.add_subcommand("template", "templates that log devices are made from");
    noun->require_subcommand(1);
    const auto arguments = std::make_shared<Arguments>();
    const auto addVerb = [&](const char* verb, const char* help, auto action) {
        CLI::App* const command = noun->add_subcommand(verb, help);
        command->add_option("TEMPLATE", arguments->name, "the template")->required();
        command->callback([=, &report] { action(report, *arguments); });
        return command;
    };
    const auto addParameterVerb = [&](const char* verb, const char* help, auto action) {
        CLI::App* const command = addVerb(verb, help, action);
        command->add_option("PARAMETER", arguments->parameter, "the parameter")->required();
        return command;
    };

    noun->add_subcommand("list", "list them")->callback([&report] { List(report); });
    addVerb("show", "print all values of one, by the sections of its file", &Show);
    CLI::App* const get = addParameterVerb("get", "print one value", &Get);
    CLI::Option* const section = get->add_option("--section", arguments->section, "from this section");
    AddLinkSection(*get, arguments->links);
    section->excludes("--32");
    addParameterVerb("set", "set one value that is there, for all log devices made from then on", &Set)
        ->add_option("VALUE", arguments->value, "the value")
        ->required();
    AddTemplateTextCommand(*noun, report);
    AddTemplateXmlCommand(*noun, report);
}

} // namespace norvctl

#include "Commands.h"
#include "Reads.h"
#include "Result.h"
#include "Text.h"
#include "ValueChanges.h"
#include "norvepa.h"

#include <fmt/format.h>
#include <memory>
#include <string>
#include <vector>

// Nobody is told of what happens here, so that there is nothing to wait for.

namespace norvctl
{

namespace
{

constexpr char WrittenFolder[] = "data"; // what is written lies there

struct Arguments
{
    std::string folder = WrittenFolder;
    std::string subfolder;
    std::string file;
    std::string parameter;
    std::string value;
    std::string type = "string";
};

std::string SubjectOf(const Arguments& arguments)
{
    return fmt::format("{}, {}", arguments.file, arguments.parameter);
}

std::vector<NameAndValue> ValuesOf(const Arguments& arguments, const std::string& inFolder)
{
    const std::wstring folder = ToWide(inFolder);
    const std::wstring subfolder = ToWide(arguments.subfolder);
    const std::wstring file = ToWide(arguments.file);
    return EnumeratePairs(arguments.file, [&](uint32_t index, wchar_t* parameter, uint32_t* parameterLength,
                                              wchar_t* value, uint32_t* valueLength) {
        return PGSP_EnumParameterMetaDataBL(folder.c_str(), subfolder.c_str(), file.c_str(), index, parameter,
                                            parameterLength, value, valueLength);
    });
}

void List(const Report& report, const Arguments& arguments)
{
    const auto values = ValuesOf(arguments, arguments.folder);
    report.Answer(AsTable(values), {{"file", arguments.file}, {"values", AsObject(values)}});
}

void Get(const Report& report, const Arguments& arguments)
{
    const std::wstring folder = ToWide(arguments.folder);
    const std::wstring subfolder = ToWide(arguments.subfolder);
    const std::wstring file = ToWide(arguments.file);
    const std::wstring parameter = ToWide(arguments.parameter);
    const ReadResult read = ReadText([&](wchar_t* value, uint32_t* length) {
        return PGSP_GetParameterMetaDataBL(folder.c_str(), subfolder.c_str(), file.c_str(), parameter.c_str(),
                                           value, length);
    });
    Require(read.result, SubjectOf(arguments));
    report.Answer(read.value,
                  {{"file", arguments.file}, {"parameter", arguments.parameter}, {"value", read.value}});
}

void AnswerDone(const Report& report, const Arguments& arguments, const char* what)
{
    report.Answer(fmt::format("{} {}", what, SubjectOf(arguments)),
                  {{"done", what}, {"file", arguments.file}, {"parameter", arguments.parameter}});
}

// A file may hold a name once for each type, of which reading finds the first alone: so all values are
// compared.
void Set(const Report& report, const Arguments& arguments)
{
    const auto before = ValuesOf(arguments, WrittenFolder);
    Require(PGSP_SetParameterDataBL(ToWide(arguments.subfolder).c_str(), ToWide(arguments.file).c_str(),
                                    ToWide(arguments.parameter).c_str(), ToWide(arguments.value).c_str(),
                                    ToWide(arguments.type).c_str()),
            SubjectOf(arguments));
    const auto changes = ChangesBetween(before, ValuesOf(arguments, WrittenFolder));
    AnswerDone(report, arguments, changes.empty() ? "unchanged" : "set");
}

void Unset(const Report& report, const Arguments& arguments)
{
    Require(PGSP_DelParameterDataBL(ToWide(arguments.subfolder).c_str(), ToWide(arguments.file).c_str(),
                                    ToWide(arguments.parameter).c_str()),
            SubjectOf(arguments));
    AnswerDone(report, arguments, "unset");
}

} // namespace

void AddDataCommands(CLI::App& app, const Report& report)
{
    CLI::App* const data = app.add_subcommand("data", "parameter data: flat files of named parameters");
    data->require_subcommand(1);
    const auto arguments = std::make_shared<Arguments>();
    const auto addVerb = [&](const char* verb, const char* help, auto action) {
        CLI::App* const command = data->add_subcommand(verb, help);
        command->add_option("DATAFILE", arguments->file, "the file, without extension")->required();
        command->add_option("--subfolder", arguments->subfolder, "the folder that it lies in");
        command->callback([=, &report] { action(report, *arguments); });
        return command;
    };
    const auto addFolder = [&](CLI::App* command) {
        command->add_option("--folder", arguments->folder,
                            "meta, of the catalogue, or a folder of the data: without it, data");
    };
    const auto addParameter = [&](CLI::App* command) {
        command->add_option("PARAMETER", arguments->parameter, "the parameter")->required();
    };

    addFolder(addVerb("list", "print all values of one", &List));
    CLI::App* const get = addVerb("get", "print one value", &Get);
    addParameter(get);
    addFolder(get);
    CLI::App* const set = addVerb("set", "set one value in a file below data that is there", &Set);
    addParameter(set);
    set->add_option("VALUE", arguments->value, "the value")->required();
    set->add_option("--type", arguments->type, "without it, string; a value of another type is another one")
        ->check(CLI::IsMember({"int", "bool", "string"}));
    addParameter(addVerb("unset", "remove one value, the first of this name", &Unset));
}

} // namespace norvctl

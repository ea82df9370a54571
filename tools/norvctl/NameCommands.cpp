#include "Changes.h"
#include "Commands.h"
#include "Reads.h"
#include "Result.h"
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

constexpr wchar_t FolderWord[] = L"LogNames";

struct Arguments
{
    std::string name;
    std::string parameter;
    std::string value;
};

std::string Subject(const Arguments& arguments)
{
    return arguments.parameter.empty() ? arguments.name
                                       : fmt::format("{}, {}", arguments.name, arguments.parameter);
}

ReadResult Read(const Arguments& arguments)
{
    const std::wstring name = ToWide(arguments.name);
    const std::wstring parameter = ToWide(arguments.parameter);
    return ReadText([&](wchar_t* value, uint32_t* length) {
        return LogNameGetValueBL(name.c_str(), parameter.c_str(), value, length);
    });
}

std::vector<std::string> AllNames()
{
    return EnumerateTexts("the log names", [](uint32_t index, wchar_t* name, uint32_t* length) {
        return LogNameGetEnumBL(index, name, length);
    });
}

void List(const Report& report)
{
    Table table({{"NAME", 32}, {"DEVICE", 24}, {"PROTOCOL", 0}});
    Json document = Json::array();
    for (const std::string& name : AllNames())
    {
        const std::string device = Read({name, "LogDevice", {}}).value;
        const std::string type = Read({name, "CP_TYPE", {}}).value;
        table.Add({name, device.empty() ? "-" : device, type.empty() ? "-" : type});
        document.push_back({{"name", name}, {"logDevice", device}, {"type", type}});
    }
    report.Answer(table, document);
}

void Show(const Report& report, const Arguments& arguments)
{
    const std::wstring name = ToWide(arguments.name);
    Require(LogNameExistBL(name.c_str(), 0), Subject(arguments));
    const auto values =
        EnumeratePairs(arguments.name, [&](uint32_t index, wchar_t* parameter, uint32_t* parameterLength,
                                           wchar_t* value, uint32_t* valueLength) {
            return LogNameGetEnumValueBL(name.c_str(), index, parameter, parameterLength, value, valueLength);
        });
    std::string text = arguments.name;
    for (const NameAndValue& pair : values)
    {
        text += fmt::format("\n  {:<28} {}", pair.name, pair.value);
    }
    report.Answer(text, {{"name", arguments.name}, {"values", AsObject(values)}});
}

void Get(const Report& report, const Arguments& arguments)
{
    const ReadResult read = Read(arguments);
    Require(read.result, Subject(arguments));
    report.Answer(read.value, {{"name", arguments.name},
                               {"parameter", arguments.parameter.empty() ? "(default)" : arguments.parameter},
                               {"value", read.value}});
}

void Done(const Report& report, const Arguments& arguments, const char* what)
{
    report.Answer(fmt::format("{} {}", what, Subject(arguments)),
                  {{"done", what}, {"name", arguments.name}, {"parameter", arguments.parameter}});
}

// A change that always is one, and what has been done then.
void Change(const Report& report, const Arguments& arguments, const std::function<int32_t()>& change,
            const char* done)
{
    MakeChange(FolderWord, ToWide(arguments.name), [&] { Require(change(), Subject(arguments)); });
    Done(report, arguments, done);
}

void Create(const Report& report, const Arguments& arguments)
{
    const auto create = [&] { return LogNameCreateBL(ToWide(arguments.name).c_str()); };
    Change(report, arguments, create, "created");
}

void Delete(const Report& report, const Arguments& arguments)
{
    const auto remove = [&] { return LogNameDeleteBL(ToWide(arguments.name).c_str()); };
    Change(report, arguments, remove, "deleted");
}

void Unset(const Report& report, const Arguments& arguments)
{
    const auto unset = [&] {
        return LogNameDelValueBL(ToWide(arguments.name).c_str(), ToWide(arguments.parameter).c_str());
    };
    Change(report, arguments, unset, "unset");
}

// A change that may turn out to be none.
void ChangeValue(const Report& report, const Arguments& arguments, const std::function<int32_t()>& change,
                 const char* done)
{
    const bool changed = MakesDifference(
        FolderWord, ToWide(arguments.name), [&] { return Read(arguments); },
        [&] { Require(change(), Subject(arguments)); });
    Done(report, arguments, changed ? done : "unchanged");
}

void Set(const Report& report, const Arguments& arguments)
{
    const auto set = [&] {
        return LogNameSetValueBL(ToWide(arguments.name).c_str(), ToWide(arguments.parameter).c_str(),
                                 ToWide(arguments.value).c_str());
    };
    ChangeValue(report, arguments, set, "set");
}

void LinkTo(const Report& report, const Arguments& arguments, const char* done)
{
    const auto link = [&] {
        return LogNameSetLogDeviceBL(ToWide(arguments.name).c_str(), ToWide(arguments.value).c_str());
    };
    ChangeValue(report, {arguments.name, "LogDevice", arguments.value}, link, done);
}

void Link(const Report& report, const Arguments& arguments)
{
    LinkTo(report, arguments, "linked");
}

void Unlink(const Report& report, const Arguments& arguments)
{
    LinkTo(report, {arguments.name, {}, {}}, "unlinked");
}

using Action = void (*)(const Report&, const Arguments&);

// The library takes an empty name for a file beside the folder, which no list would show.
std::string RefuseEmpty(const std::string& name)
{
    return name.empty() ? "a log name is not empty" : "";
}

// A verb on one log name.
CLI::App& AddVerb(CLI::App& parent, const Report& report, const char* verb, const char* help,
                  const std::shared_ptr<Arguments>& arguments, Action action)
{
    CLI::App* const command = parent.add_subcommand(verb, help);
    command->add_option("NAME", arguments->name, "the log name")->required()->check(RefuseEmpty);
    command->callback([=, &report] { action(report, *arguments); });
    return *command;
}

} // namespace

void AddNameCommands(CLI::App& app, const Report& report)
{
    CLI::App* const name = app.add_subcommand("name", "log names: the access points");
    name->require_subcommand(1);
    const auto arguments = std::make_shared<Arguments>();

    name->add_subcommand("list", "list them with what they are linked to; hidden ones are left out")
        ->callback([&report] { List(report); });
    AddVerb(*name, report, "show", "print what is known of one", arguments, &Show);
    AddVerb(*name, report, "create", "make one", arguments, &Create);
    AddVerb(*name, report, "delete", "remove one with all its values", arguments, &Delete);
    AddVerb(*name, report, "get", "print one value", arguments, &Get)
        .add_option("PARAMETER", arguments->parameter, "the parameter; without it, \"(default)\"");
    CLI::App& set = AddVerb(*name, report, "set", "set one value", arguments, &Set);
    set.add_option("PARAMETER", arguments->parameter, "the parameter")->required();
    set.add_option("VALUE", arguments->value, "the value")->required();
    AddVerb(*name, report, "unset", "remove one value", arguments, &Unset)
        .add_option("PARAMETER", arguments->parameter, "the parameter")
        ->required();
    AddVerb(*name, report, "link", "link one to a log device", arguments, &Link)
        .add_option("DEVICE", arguments->value, "the log device")
        ->required();
    AddVerb(*name, report, "unlink", "take its link away", arguments, &Unlink);
    AddNameTextCommand(*name, report);
    AddNameXmlCommand(*name, report);
}

} // namespace norvctl

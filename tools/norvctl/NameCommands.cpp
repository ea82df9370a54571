#include "Commands.h"
#include "Result.h"
#include "Text.h"
#include "WatchEvents.h"
#include "norvepa.h"

#include <array>
#include <fmt/format.h>
#include <memory>
#include <string>
#include <vector>

namespace norvctl
{

namespace
{

constexpr wchar_t FolderWord[] = L"LogNames";

// What the parameters of a log name mean that have a fixed meaning.
constexpr std::array<const char*, 6> KnownParameters{"LogDevice", "CP_TYPE",   "enable_delete",
                                                     "hidden",    "(default)", "LOCKED_BY_THREAD_POINTER"};

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

// The value, or the code for why there is none.
struct ReadResult
{
    int32_t result;
    std::string value;
};

ReadResult Read(const Arguments& arguments)
{
    const std::wstring name = ToWide(arguments.name);
    const std::wstring parameter = ToWide(arguments.parameter);
    std::wstring value(256, L'\0');
    for (;;)
    {
        auto length = static_cast<uint32_t>(value.size() + 1); // the string's own terminator is room, too
        const int32_t result = LogNameGetValueBL(name.c_str(), parameter.c_str(), value.data(), &length);
        const bool grows = result == PGSP_ERR_BUFFER_TOO_SHORT && length > value.size();
        if (result != PGSP_OK && !grows)
        {
            return {result, {}};
        }
        value.resize(length);
        if (result == PGSP_OK)
        {
            return {PGSP_OK, ToUtf8(value)};
        }
    }
}

void Require(int32_t result, const Arguments& arguments)
{
    if (result != PGSP_OK)
    {
        throw Failure(Subject(arguments), result);
    }
}

std::vector<std::string> AllNames()
{
    std::vector<std::string> names;
    std::wstring name(MAX_PATH, L'\0');
    for (uint32_t index = 0;; ++index)
    {
        auto length = static_cast<uint32_t>(name.size());
        const int32_t result = LogNameGetEnumBL(index, name.data(), &length);
        if (result == PGSP_ERR_NO_MORE_ITEMS)
        {
            return names;
        }
        if (result != PGSP_OK)
        {
            throw Failure("the log names", result);
        }
        names.push_back(ToUtf8(std::wstring_view(name).substr(0, length)));
    }
}

void List(const Report& report)
{
    std::string text;
    Json document = Json::array();
    for (const std::string& name : AllNames())
    {
        const std::string device = Read({name, "LogDevice", {}}).value;
        const std::string type = Read({name, "CP_TYPE", {}}).value;
        text +=
            fmt::format("{:<32} {:<24} {}\n", name, device.empty() ? "-" : device, type.empty() ? "-" : type);
        document.push_back({{"name", name}, {"logDevice", device}, {"type", type}});
    }
    if (!text.empty())
    {
        text.pop_back();
    }
    report.Answer(text, document);
}

void Show(const Report& report, const Arguments& arguments)
{
    Require(LogNameExistBL(ToWide(arguments.name).c_str(), 0), arguments);
    std::string text = arguments.name;
    Json values = Json::object();
    for (const char* const parameter : KnownParameters)
    {
        const ReadResult read = Read({arguments.name, parameter, {}});
        if (read.result == PGSP_OK)
        {
            text += fmt::format("\n  {:<28} {}", parameter, read.value);
            values[parameter] = read.value;
        }
    }
    report.Answer(text, {{"name", arguments.name}, {"values", values}});
}

void Get(const Report& report, const Arguments& arguments)
{
    const ReadResult read = Read(arguments);
    Require(read.result, arguments);
    report.Answer(read.value, {{"name", arguments.name},
                               {"parameter", arguments.parameter.empty() ? "(default)" : arguments.parameter},
                               {"value", read.value}});
}

void Done(const Report& report, const Arguments& arguments, const char* what)
{
    report.Answer(fmt::format("{} {}", what, Subject(arguments)),
                  {{"done", what}, {"name", arguments.name}, {"parameter", arguments.parameter}});
}

void Create(const Report& report, const Arguments& arguments)
{
    const std::wstring name = ToWide(arguments.name);
    const Announcement announcement(FolderWord, name);
    Require(LogNameCreateBL(name.c_str()), arguments);
    announcement.Wait();
    Done(report, arguments, "created");
}

void Delete(const Report& report, const Arguments& arguments)
{
    const std::wstring name = ToWide(arguments.name);
    const Announcement announcement(FolderWord, name);
    Require(LogNameDeleteBL(name.c_str()), arguments);
    announcement.Wait();
    Done(report, arguments, "deleted");
}

void Set(const Report& report, const Arguments& arguments)
{
    const std::wstring name = ToWide(arguments.name);
    const std::wstring value = ToWide(arguments.value);
    const ReadResult before = Read(arguments);
    const Announcement announcement(FolderWord, name);
    Require(LogNameSetValueBL(name.c_str(), ToWide(arguments.parameter).c_str(), value.c_str()), arguments);
    const ReadResult after = Read(arguments);
    const bool differs = before.result != after.result || before.value != after.value;
    const bool isKnownSame = !differs && after.result == PGSP_OK;
    // What can't be read, as an empty value, may have changed all the same: then it has been announced.
    const bool announced = !isKnownSame && announcement.Wait();
    const bool changed = differs || announced;
    Done(report, arguments, changed ? "set" : "unchanged");
}

void Unset(const Report& report, const Arguments& arguments)
{
    const std::wstring name = ToWide(arguments.name);
    const Announcement announcement(FolderWord, name);
    Require(LogNameDelValueBL(name.c_str(), ToWide(arguments.parameter).c_str()), arguments);
    announcement.Wait();
    Done(report, arguments, "unset");
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
}

} // namespace norvctl

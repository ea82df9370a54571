#include "Changes.h"
#include "Commands.h"
#include "Device.h"
#include "LinkSection.h"
#include "Reads.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace norvctl
{

namespace
{

struct Arguments
{
    std::string device;
    std::string parameter;
    std::string value;
    LinkSection section;
};

std::string SubjectOf(const Arguments& arguments)
{
    return DeviceSubject(arguments.device, arguments.parameter);
}

void List(const Report& report, const Arguments& arguments)
{
    const std::wstring device = ToWide(arguments.device);
    const auto values =
        EnumeratePairs(arguments.device, [&](uint32_t index, wchar_t* name, uint32_t* nameLength,
                                             wchar_t* value, uint32_t* valueLength) {
            return PGSP_LogDeviceEnumNdiValueBL(device.c_str(), index, name, nameLength, value, valueLength,
                                                arguments.section.Flag());
        });
    report.Answer(
        AsTable(values),
        {{"device", arguments.device}, {"section", arguments.section.Name()}, {"values", AsObject(values)}});
}

// A value of the section Ndi that doesn't fit is passed over, and its length never told.
ReadResult Read(const Arguments& arguments)
{
    const std::wstring device = ToWide(arguments.device);
    const std::wstring parameter = ToWide(arguments.parameter);
    return ReadTextWithRoom(LongestValue, [&](wchar_t* value, uint32_t* length) {
        return PGSP_LogDeviceGetNdiBL(device.c_str(), parameter.c_str(), value, length,
                                      arguments.section.Flag());
    });
}

void Get(const Report& report, const Arguments& arguments)
{
    const ReadResult read = Read(arguments);
    Require(read.result, SubjectOf(arguments));
    report.Answer(read.value, {{"device", arguments.device},
                               {"parameter", arguments.parameter},
                               {"section", arguments.section.Name()},
                               {"value", read.value}});
}

// A link is read as something else than it is set as: as the text that it leads to, or not at all behind a
// plain parameter of its name.
bool MayBeLink(const std::string& parameter)
{
    constexpr std::array<const char*, 4> Names{"DescDefault", "DescText", "PropSheet", "Diagnosis"};
    return std::any_of(Names.begin(), Names.end(),
                       [&](const char* name) { return _stricmp(name, parameter.c_str()) == 0; });
}

// What setting would replace. Where that can't be read, the announcement tells whether it was replaced.
ReadResult ReadToCompare(const Arguments& arguments)
{
    return MayBeLink(arguments.parameter) ? ReadResult{PGSP_ERR_PARAM_NOT_FOUND, {}} : Read(arguments);
}

void Set(const Report& report, const Arguments& arguments)
{
    const bool changed = MakesDifference(
        LogDevicesWord, ToWide(arguments.device), [&] { return ReadToCompare(arguments); },
        [&] {
            Require(PGSP_LogDeviceSetNdiBL(ToWide(arguments.device).c_str(),
                                           ToWide(arguments.parameter).c_str(),
                                           ToWide(arguments.value).c_str(), arguments.section.Flag()),
                    SubjectOf(arguments));
        });
    AnswerDone(report, changed ? "set" : "unchanged", arguments.device, arguments.parameter);
}

void Unset(const Report& report, const Arguments& arguments)
{
    MakeChange(LogDevicesWord, ToWide(arguments.device), [&] {
        Require(PGSP_LogDeviceDelNdiBL(ToWide(arguments.device).c_str(), ToWide(arguments.parameter).c_str(),
                                       arguments.section.Flag()),
                SubjectOf(arguments));
    });
    AnswerDone(report, "unset", arguments.device, arguments.parameter);
}

} // namespace

void AddNdiCommands(CLI::App& device, const Report& report)
{
    CLI::App* const ndi = device.add_subcommand(
        "ndi", "what tools show of one: network device identity and links to libraries");
    ndi->require_subcommand(1);
    const auto arguments = std::make_shared<Arguments>();
    const auto addVerb = [&](const char* verb, const char* help, auto action) {
        CLI::App* const command = ndi->add_subcommand(verb, help);
        command->add_option("DEVICE", arguments->device, "the log device")->required();
        AddLinkSection(*command, arguments->section);
        command->callback([=, &report] { action(report, *arguments); });
        return command;
    };
    const auto addParameterVerb = [&](const char* verb, const char* help, auto action) {
        CLI::App* const command = addVerb(verb, help, action);
        command->add_option("PARAMETER", arguments->parameter, "the parameter")->required();
        return command;
    };

    addVerb("list", "list the parameters and the links to pages, not those to texts", &List);
    addParameterVerb("get", "print one value; of a link to a text, the text itself", &Get);
    addParameterVerb("set", "set one value; links are library,number or library,function", &Set)
        ->add_option("VALUE", arguments->value, "the value")
        ->required();
    addParameterVerb("unset", "remove one value", &Unset);
}

} // namespace norvctl

#include "Changes.h"
#include "Commands.h"
#include "Device.h"
#include "Reads.h"
#include "Refusal.h"
#include "Result.h"
#include "SheetAnswer.h"
#include "Suggestions.h"
#include "Text.h"
#include "norvepa.h"

#include <iostream>

#include <fmt/format.h>
#include <memory>

namespace norvctl
{

namespace
{

struct Arguments
{
    std::string device;
    std::string parameter;
    std::string value;
    std::string section;
    std::string type;
    std::string boardId;
    bool limits = false;
};

std::string SubjectOf(const Arguments& arguments)
{
    return DeviceSubject(arguments.device, arguments.parameter);
}

// Of log devices that have a unit, those of a board come from the index of the library.
std::vector<std::string> NamesOfBoard(const std::string& boardId)
{
    const std::wstring id = ToWide(boardId);
    std::vector<std::string> names;
    for (const NameAndValue& pair :
         EnumeratePairs("the log devices", [&](uint32_t index, wchar_t*name, uint32_t*nameLength,
                                               wchar_t*unit, uint32_t*unitLength) {
             return LogDeviceGetEnumByDeviceIdBL(id.c_str(), index, name, nameLength, unit, unitLength);
         }))
    {
        names.push_back(pair.name);
    }
    return names;
}

std::vector<std::string> NamesOfType(const std::string& type)
{
    const std::wstring filter = ToWide(type);
    return EnumerateTexts("the log devices", [&](uint32_t index, wchar_t* name, uint32_t* length) {
        return LogDeviceGetEnumBL(filter.empty() ? nullptr : filter.c_str(), index, name, length);
    });
}

void List(const Report& report, const Arguments& arguments)
{
    Table table({{"DEVICE", 28}, {"PROTOCOL", 10}, {"BOARD", 12}, {"UNIT", 0}});
    Json document = Json::array();
    const auto names =
        arguments.boardId.empty() ? NamesOfType(arguments.type) : NamesOfBoard(arguments.boardId);
    for (const std::string& name : names)
    {
        const std::string type = ReadDevice(name, "CP_TYPE").value;
        const std::string board = ReadDevice(name, "DeviceID").value;
        const std::string unit = ReadDevice(name, "Unit").value;
        table.Add({name, type, board, unit});
        document.push_back({{"name", name}, {"type", type}, {"deviceId", board}, {"unit", unit}});
    }
    report.Answer(table, document);
}

// As they are enumerated. No export enumerates a subdevice, whose values are those of its one section.
std::vector<NameAndValue> ValuesToShow(const std::string& device, const std::vector<SheetSection>& sections)
{
    if (!IsSubdevice(device))
    {
        return ValuesOfDevice(device);
    }
    std::vector<NameAndValue> values;
    for (const SheetSection& section : sections)
    {
        for (const SheetValue& value : section.values)
        {
            values.push_back({value.name, value.value});
        }
    }
    return values;
}

void Show(const Report& report, const Arguments& arguments)
{
    std::vector<SheetSection> sections = SectionsOfDevice(arguments.device);
    if (arguments.limits)
    {
        CatalogueLimits limits;
        AddLimits(arguments.device, limits, sections);
    }
    report.Answer(arguments.limits ? AsTableWithLimits(sections) : AsTable(sections),
                  {{"device", arguments.device},
                   {"values", AsObject(ValuesToShow(arguments.device, sections))},
                   {"sections", arguments.limits ? AsArrayWithLimits(sections) : AsArray(sections)}});
}

void Get(const Report& report, const Arguments& arguments)
{
    const std::wstring name = ToWide(arguments.device);
    const std::wstring section = ToWide(arguments.section);
    const std::wstring parameter = ToWide(arguments.parameter);
    const ReadResult read = arguments.section.empty()
                                ? ReadDevice(arguments.device, arguments.parameter)
                                : ReadText([&](wchar_t* value, uint32_t* length) {
                                      return LogDeviceGetValueExBL(name.c_str(), section.c_str(),
                                                                   parameter.c_str(), value, length);
                                  });
    Require(read.result, SubjectOf(arguments));
    report.Answer(read.value, {{"device", arguments.device},
                               {"parameter", arguments.parameter.empty() ? "default" : arguments.parameter},
                               {"value", read.value}});
}

void SetOrExplain(const Arguments& arguments)
{
    const std::wstring device = ToWide(arguments.device);
    const std::wstring parameter = ToWide(arguments.parameter);
    const int32_t result =
        LogDeviceSetValueBL(device.c_str(), parameter.c_str(), ToWide(arguments.value).c_str());
    Require(result, SubjectOf(arguments), AllowedValues(device, parameter, result));
}

// The library takes a parameter that nobody knew, and keeps it.
void TellOfSlip(const Arguments& arguments)
{
    const std::string suggestion = SuggestionForNew(arguments.device, arguments.parameter);
    if (!suggestion.empty())
    {
        std::cerr << fmt::format("norvctl: {} is new to {}{}\n", arguments.parameter, arguments.device,
                                 suggestion);
    }
}

void Set(const Report& report, const Arguments& arguments)
{
    const bool wasThere = ReadDevice(arguments.device, arguments.parameter).result == PGSP_OK;
    const bool changed = MakesDifference(
        LogDevicesWord, FileOfDevice(arguments.device),
        [&] { return ReadDevice(arguments.device, arguments.parameter); }, [&] { SetOrExplain(arguments); });
    AnswerDone(report, changed ? "set" : "unchanged", arguments.device, arguments.parameter);
    if (!wasThere)
    {
        TellOfSlip(arguments);
    }
}

void Unset(const Report& report, const Arguments& arguments)
{
    MakeChange(LogDevicesWord, FileOfDevice(arguments.device), [&] {
        Require(LogDeviceDelValueBL(ToWide(arguments.device).c_str(), ToWide(arguments.parameter).c_str()),
                SubjectOf(arguments));
    });
    AnswerDone(report, "unset", arguments.device, arguments.parameter);
}

} // namespace

void AddDeviceCommands(CLI::App& app, const Report& report)
{
    CLI::App* const device = app.add_subcommand("device", "log devices: the access paths");
    device->require_subcommand(1);
    const auto arguments = std::make_shared<Arguments>();
    const auto addVerb = [&](const char* verb, const char* help, auto action) {
        CLI::App* const command = device->add_subcommand(verb, help);
        command->add_option("DEVICE", arguments->device, "the log device, or DEVICE\\subdevices\\SUB")
            ->required();
        command->callback([=, &report] { action(report, *arguments); });
        return command;
    };

    CLI::App* const list =
        device->add_subcommand("list", "list them with protocol, board and unit; hidden ones are left out");
    CLI::Option* const type =
        list->add_option("--type", arguments->type, "only of this CP_TYPE")->type_name("PROTOCOL");
    list->add_option("--by-id", arguments->boardId, "only of the board with this DeviceID")
        ->excludes(type)
        ->type_name("BOARD");
    list->callback([=, &report] { List(report, *arguments); });

    addVerb("show", "print all values of one, by the sections of its file", &Show)
        ->add_flag(
            "--limits", arguments->limits,
            "tell also what the catalogue allows, its defaults, and by * which values differ from them");
    CLI::App* const get = addVerb("get", "print one value", &Get);
    get->add_option("PARAMETER", arguments->parameter, "the parameter; without it, \"default\"");
    get->add_option("--section", arguments->section, "from this section, and without defaults");
    CLI::App* const set = addVerb("set", "set one value, if the catalogue allows it", &Set);
    set->add_option("PARAMETER", arguments->parameter, "the parameter")->required();
    set->add_option("VALUE", arguments->value, "the value; min, max and default stand for the catalogue's")
        ->required();
    addVerb("unset", "remove one value", &Unset)
        ->add_option("PARAMETER", arguments->parameter, "the parameter")
        ->required();

    AddDeviceLifeCommands(*device, report);
    AddDeviceEditCommands(*device, report);
    AddDeviceProfileCommands(*device, report);
    AddDeviceCatalogueCommands(*device, report);
    AddNdiCommands(*device, report);
    AddDeviceTextCommand(*device, report);
    AddDriverReadCommand(*device, report);
    AddDeviceXmlCommand(*device, report);
    AddDeviceDiffCommand(*device, report);
    AddDeviceExportCommand(*device);
    AddDeviceImportCommand(*device, report);
}

} // namespace norvctl

#include "Commands.h"
#include "Reads.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <fmt/format.h>
#include <memory>

namespace norvctl
{

namespace
{

struct Arguments
{
    std::string protocol;
    std::string parameter;
    std::string word;
    std::string profile; // a value of the parameter
    std::string subParameter;
    std::string subValue;
};

// The same in the library's characters; what wasn't given is empty, which the exports take for not given.
struct WideArguments
{
    explicit WideArguments(const Arguments& arguments)
        : protocol(ToWide(arguments.protocol)),
          parameter(ToWide(arguments.parameter)),
          word(ToWide(arguments.word)),
          profile(ToWide(arguments.profile)),
          subParameter(ToWide(arguments.subParameter)),
          subValue(ToWide(arguments.subValue))
    {
    }

    std::wstring protocol;
    std::wstring parameter;
    std::wstring word;
    std::wstring profile;
    std::wstring subParameter;
    std::wstring subValue;
};

void List(const Report& report)
{
    Table table({{"PROTOCOL", 16}, {"NAME", 0}});
    Json document = Json::array();
    const auto protocols =
        EnumerateTexts("the protocols", [](uint32_t index, wchar_t* name, uint32_t* length) {
            return PGSP_TemplateGetEnumNoPrefixBL(L"Protocols", index, name, length);
        });
    for (const std::string& protocol : protocols)
    {
        const std::wstring type = ToWide(protocol);
        const std::string name =
            ReadText([&](wchar_t* text, uint32_t* length) {
                return PGSP_ProtocolGetValueRawBL(type.c_str(), nullptr, L"Name", text, length);
            }).value;
        table.Add({protocol, name});
        document.push_back({{"type", protocol}, {"name", name}});
    }
    report.Answer(table, document);
}

void Show(const Report& report, const Arguments& arguments)
{
    const WideArguments wide(arguments);
    const auto pairs =
        EnumeratePairs(arguments.protocol, [&](uint32_t index, wchar_t* name, uint32_t* nameLength,
                                               wchar_t* value, uint32_t* valueLength) {
            return PGSP_ProtocolGetEnumValueBL(wide.protocol.c_str(), wide.parameter.c_str(),
                                               wide.profile.c_str(), wide.subParameter.c_str(),
                                               wide.subValue.c_str(), index, name, nameLength, value,
                                               valueLength);
        });
    if (pairs.empty() && !arguments.parameter.empty())
    {
        throw Failure(fmt::format("{}, {}", arguments.protocol, arguments.parameter),
                      PGSP_ERR_PARAM_NOT_FOUND);
    }
    report.Answer(
        AsTable(pairs),
        {{"protocol", arguments.protocol}, {"parameter", arguments.parameter}, {"values", AsObject(pairs)}});
}

void Profiles(const Report& report, const Arguments& arguments)
{
    const std::wstring protocol = ToWide(arguments.protocol);
    const auto profiles =
        EnumerateTexts(arguments.protocol, [&](uint32_t index, wchar_t* text, uint32_t* length) {
            return PGSP_ProtocolGetEnumBusprofilesBL(protocol.c_str(), index, text, length);
        });
    report.Answer(AsTable("PROFILE", profiles), {{"protocol", arguments.protocol}, {"profiles", profiles}});
}

void Baudrates(const Report& report, const Arguments& arguments)
{
    const WideArguments wide(arguments);
    const auto baudrates =
        EnumerateTexts(arguments.protocol, [&](uint32_t index, wchar_t* text, uint32_t* length) {
            return PGSP_ProtocolGetEnumBaudrateBL(wide.protocol.c_str(), wide.profile.c_str(), index, text,
                                                  length);
        });
    report.Answer(
        AsTable("BAUD RATE", baudrates),
        {{"protocol", arguments.protocol}, {"profile", arguments.profile}, {"baudrates", baudrates}});
}

void Get(const Report& report, const Arguments& arguments)
{
    const WideArguments wide(arguments);
    const ReadResult read = ReadText([&](wchar_t* text, uint32_t* length) {
        return PGSP_ProtocolGetValueBL(wide.protocol.c_str(), wide.parameter.c_str(), wide.profile.c_str(),
                                       wide.subParameter.c_str(), wide.subValue.c_str(), wide.word.c_str(),
                                       text, length);
    });
    Require(read.result, fmt::format("{}, {}, {}", arguments.protocol, arguments.parameter, arguments.word));
    report.Answer(read.value, {{"protocol", arguments.protocol},
                               {"parameter", arguments.parameter},
                               {"word", arguments.word},
                               {"value", read.value}});
}

void AddSubValue(CLI::App& command, Arguments& arguments)
{
    CLI::Option* const parameter =
        command.add_option("--sub-parameter", arguments.subParameter, "a parameter below the value");
    CLI::Option* const value = command.add_option("--sub-value", arguments.subValue, "a value of that one");
    parameter->needs(value);
    value->needs(parameter);
}

} // namespace

void AddProtocolCommands(CLI::App& app, const Report& report)
{
    CLI::App* const protocol = app.add_subcommand("protocol", "protocols of the catalogue");
    protocol->require_subcommand(1);
    const auto arguments = std::make_shared<Arguments>();
    const auto addVerb = [&](const char* verb, const char* help, auto action) {
        CLI::App* const command = protocol->add_subcommand(verb, help);
        command->add_option("PROTOCOL", arguments->protocol, "its CP_TYPE or file name")->required();
        command->callback([=, &report] { action(report, *arguments); });
        return command;
    };

    protocol->add_subcommand("list", "list them by CP_TYPE, with name")->callback([&report] {
        List(report);
    });
    CLI::App* const show =
        addVerb("show", "print all parameters with their defaults, or what is known of one", &Show);
    show->add_option("PARAMETER", arguments->parameter, "a parameter: its constraint");
    show->add_option("--value", arguments->profile,
                     "a value of the parameter: what it gives to others; a bus profile may be DP, Std, Uni, "
                     "User");
    AddSubValue(*show, *arguments);
    addVerb("profiles", "print the bus profiles", &Profiles);
    addVerb("baudrates", "print the baud rates", &Baudrates)
        ->add_option("--profile", arguments->profile, "of one bus profile, by its number");
    CLI::App* const get = addVerb("get", "print one thing that is known of a parameter", &Get);
    get->add_option("PARAMETER", arguments->parameter, "the parameter")->required();
    get->add_option("WORD", arguments->word, "type, default, min ..., or with --value another parameter")
        ->required();
    get->add_option("--value", arguments->profile, "a value of the parameter");
    AddSubValue(*get, *arguments);
    AddProtocolXmlCommand(*protocol, report);
}

} // namespace norvctl

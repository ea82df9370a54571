#include "Choices.h"
#include "Commands.h"
#include "Device.h"
#include "Reads.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace norvctl
{

namespace
{

// What the catalogue may say of a parameter.
constexpr std::array<const char*, 8> Words{"type", "min", "max", "step", "base", "default", "section", "map"};

struct Arguments
{
    std::string device;
    std::string parameter;
    std::string word;
    bool isAverage = false;
};

void Choices(const Report& report, const Arguments& arguments)
{
    RequireDevice(arguments.device);
    const auto choices = arguments.isAverage ? &CommonChoicesOf : &ChoicesOf;
    const auto values = choices(arguments.device, arguments.parameter);
    report.Answer(AsTable("VALUE", values),
                  {{"device", arguments.device}, {"parameter", arguments.parameter}, {"values", values}});
}

void DescribeDevice(const Report& report, const Arguments& arguments)
{
    const std::wstring device = ToWide(arguments.device);
    const ReadResult asic = ReadText([&](wchar_t* value, uint32_t* length) {
        return LogDeviceGetAsicTypeBL(device.c_str(), value, length);
    });
    Require(asic.result, DeviceSubject(arguments.device, "Asic_Type"));
    std::vector<NameAndValue> values{{"Asic_Type", asic.value}};
    for (const char* attribute : {"DeviceID", "CP_TYPE"})
    {
        const ReadResult read = ReadDevice(arguments.device, attribute);
        Require(read.result, DeviceSubject(arguments.device, attribute));
        values.push_back({attribute, read.value});
    }
    report.Answer(AsTable(values), {{"device", arguments.device}, {"values", AsObject(values)}});
}

// For a text of the board's that doesn't fit the protocol would answer.
ReadResult ReadWord(const Arguments& arguments, const std::string& word)
{
    const std::wstring device = ToWide(arguments.device);
    const std::wstring parameter = ToWide(arguments.parameter);
    const std::wstring asked = ToWide(word);
    return ReadTextWithRoom(LongestValue, [&](wchar_t* value, uint32_t* length) {
        return LogDeviceGetParamDescBL(device.c_str(), parameter.c_str(), asked.c_str(), value, length);
    });
}

void DescribeParameter(const Report& report, const Arguments& arguments)
{
    const std::string subject = DeviceSubject(arguments.device, arguments.parameter);
    std::vector<NameAndValue> words;
    for (const char* word : Words)
    {
        const ReadResult read = ReadWord(arguments, word);
        if (read.result == PGSP_ERR_PARAM_DESC_NOT_FOUND)
        {
            continue;
        }
        Require(read.result, subject);
        words.push_back({word, read.value});
    }
    if (words.empty())
    {
        throw Failure(subject, PGSP_ERR_PARAM_DESC_NOT_FOUND);
    }
    report.Answer(
        AsTable(words, "WORD"),
        {{"device", arguments.device}, {"parameter", arguments.parameter}, {"values", AsObject(words)}});
}

// A value that is asked for has one word only, whichever is named.
void DescribeWord(const Report& report, const Arguments& arguments)
{
    const std::string word = arguments.word.empty() ? "ParamDesc" : arguments.word;
    const ReadResult read = ReadWord(arguments, word);
    Require(read.result, DeviceSubject(arguments.device, arguments.parameter + ", " + word));
    report.Answer(read.value, {{"device", arguments.device},
                               {"parameter", arguments.parameter},
                               {"word", word},
                               {"value", read.value}});
}

void Describe(const Report& report, const Arguments& arguments)
{
    RequireDevice(arguments.device);
    const bool isOfValue = arguments.parameter.find('\\') != std::string::npos;
    if (arguments.parameter.empty())
    {
        DescribeDevice(report, arguments);
    }
    else if (arguments.word.empty() && !isOfValue)
    {
        DescribeParameter(report, arguments);
    }
    else
    {
        DescribeWord(report, arguments);
    }
}

} // namespace

void AddDeviceCatalogueCommands(CLI::App& device, const Report& report)
{
    const auto arguments = std::make_shared<Arguments>();
    const auto addVerb = [&](const char* verb, const char* help, auto action) {
        CLI::App* const command = device.add_subcommand(verb, help);
        command->add_option("DEVICE", arguments->device, "the log device")->required();
        command->callback([=, &report] { action(report, *arguments); });
        return command;
    };

    CLI::App* const choices =
        addVerb("choices", "print the values to choose from: its board's, or else its protocol's", &Choices);
    choices->add_option("PARAMETER", arguments->parameter, "the parameter")->required();
    choices->add_flag("--average", arguments->isAverage, "those that the board and the protocol both have");

    CLI::App* const describe =
        addVerb("describe", "print what the catalogue says of one, of a parameter, or of a value", &Describe);
    describe->add_option("PARAMETER", arguments->parameter,
                         "a parameter, or PARAMETER\\VALUE for the description of that value");
    describe->add_option("WORD", arguments->word, "one word: type, default, min, ParamDesc ...");
}

} // namespace norvctl

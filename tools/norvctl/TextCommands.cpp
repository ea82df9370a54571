#include "Commands.h"
#include "LinkSection.h"
#include "Reads.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <algorithm>
#include <fmt/format.h>
#include <memory>
#include <string>

namespace norvctl
{

namespace
{

struct Arguments
{
    std::string object;
    std::string text;
    std::string language;
    LinkSection section;
};

// How the text of an object is read, and what the object is called.
struct Kind
{
    const char* argument;
    const char* key;
    const char* help;
    int32_t (*read)(const wchar_t* object, const wchar_t* parameter, const wchar_t* language, wchar_t* value,
                    uint32_t* length, int32_t flag);
};

constexpr Kind DeviceKind{"DEVICE", "device", "the log device", &PGSP_LogDeviceGetResourceStringBL};
constexpr Kind NameKind{"NAME", "name", "the log name", &PGSP_LogNameGetResourceStringBL};
constexpr Kind BoardKind{"BOARD", "board", "its DeviceID or file name", &PGSP_BoardGetResourceStringBL};
constexpr Kind TemplateKind{"TEMPLATE", "template", "the template",
                            [](const wchar_t* object, const wchar_t* parameter, const wchar_t* language,
                               wchar_t* value, uint32_t* length, int32_t flag) {
                                return PGSP_TemplateGetResourceStringBL(
                                    L"DefaultLogDevices", object, parameter, language, value, length, flag);
                            }};

void Text(const Report& report, const Kind& kind, const Arguments& arguments)
{
    const std::wstring object = ToWide(arguments.object);
    const std::wstring text = ToWide(arguments.text);
    const std::wstring language = ToWide(arguments.language);
    const ReadResult read = ReadText([&](wchar_t* value, uint32_t* length) {
        return kind.read(object.c_str(), text.c_str(), language.c_str(), value, length,
                         arguments.section.Flag());
    });
    Require(read.result, fmt::format("{}, {}", arguments.object, arguments.text));
    report.Answer(read.value,
                  {{kind.key, arguments.object}, {"text", arguments.text}, {"value", read.value}});
}

// The library would take the user's own language for any other word.
std::string RefuseUnlessTwoLetters(const std::string& language)
{
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const bool isLanguage = language.size() == 2 && std::all_of(language.begin(), language.end(), isLetter);
    return isLanguage ? "" : "a language has two letters";
}

void AddTextVerb(CLI::App& noun, const Report& report, const Kind& kind)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* const command =
        noun.add_subcommand("text", "print a text that people are shown of one, in their language");
    command->add_option(kind.argument, arguments->object, kind.help)->required();
    command
        ->add_option("TEXT", arguments->text,
                     "the link's name: DescText, DescDefault ...; \"\\3\" behind it, the third text after")
        ->required();
    command->add_option("--language", arguments->language, "de, en ...; without it the user's own")
        ->check(RefuseUnlessTwoLetters);
    AddLinkSection(*command, arguments->section);
    command->callback([=, &report, &kind] { Text(report, kind, *arguments); });
}

} // namespace

void AddDeviceTextCommand(CLI::App& device, const Report& report)
{
    AddTextVerb(device, report, DeviceKind);
}

void AddNameTextCommand(CLI::App& name, const Report& report)
{
    AddTextVerb(name, report, NameKind);
}

void AddBoardTextCommand(CLI::App& board, const Report& report)
{
    AddTextVerb(board, report, BoardKind);
}

void AddTemplateTextCommand(CLI::App& noun, const Report& report)
{
    AddTextVerb(noun, report, TemplateKind);
}

} // namespace norvctl

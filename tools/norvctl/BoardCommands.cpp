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
    std::string board;
    std::string collection;
    std::string parameter;
    std::string path;
};

ReadResult Read(const std::string& board, const wchar_t* parameter)
{
    const std::wstring name = ToWide(board);
    return ReadText([&](wchar_t* value, uint32_t* length) {
        return PGSP_BoardGetValueBL(name.c_str(), parameter, value, length);
    });
}

std::vector<NameAndValue> Enumerate(const std::string& board)
{
    const std::wstring name = ToWide(board);
    return EnumeratePairs(board, [&](uint32_t index, wchar_t* parameter, uint32_t* parameterLength,
                                     wchar_t* value, uint32_t* valueLength) {
        return PGSP_BoardGetEnumValueBL(name.c_str(), index, parameter, parameterLength, value, valueLength);
    });
}

void List(const Report& report)
{
    Table table({{"BOARD", 16}, {"PROTOCOL", 10}, {"NAME", 0}});
    Json document = Json::array();
    const auto boards = EnumerateTexts("the boards", [](uint32_t index, wchar_t* name, uint32_t* length) {
        return PGSP_TemplateGetEnumNoPrefixBL(L"Boards", index, name, length);
    });
    for (const std::string& board : boards)
    {
        const std::string type = Read(board, L"CP_TYPE").value;
        const std::string name = Read(board, L"Name").value;
        table.Add({board, type, name});
        document.push_back({{"deviceId", board}, {"type", type}, {"name", name}});
    }
    report.Answer(table, document);
}

void Show(const Report& report, const Arguments& arguments)
{
    const auto values = Enumerate(arguments.board);
    const auto defaults = Enumerate(arguments.board + "\\ConstraintsWithDefault");
    const TableForm form = report.Form();
    std::string text = AsTable(values).AsText(form);
    if (!defaults.empty())
    {
        text += "\n\ndefaults of parameters\n" + AsTable(defaults).AsText(form);
    }
    report.Answer(
        text, {{"board", arguments.board}, {"values", AsObject(values)}, {"defaults", AsObject(defaults)}});
}

void Values(const Report& report, const Arguments& arguments)
{
    const std::wstring board = ToWide(arguments.board);
    const std::wstring collection = ToWide(arguments.collection);
    const auto values = ReadTexts(arguments.board, [&](wchar_t* list, uint32_t* length) -> int32_t {
        const int32_t result =
            PGSP_BoardGetValueCollectionBL(collection.c_str(), board.c_str(), list, length);
        // All but the last terminator had room: the result is then that of the enumeration's end.
        return result == PGSP_ERR_NO_MORE_ITEMS ? PGSP_ERR_BUFFER_TOO_SHORT : result;
    });
    if (values.empty())
    {
        static_cast<void>(Enumerate(arguments.board)); // the list of a board that isn't there is empty, too
    }
    report.Answer(AsTable("VALUE", values),
                  {{"board", arguments.board}, {"collection", arguments.collection}, {"values", values}});
}

void Get(const Report& report, const Arguments& arguments)
{
    const std::wstring board = ToWide(arguments.board);
    const std::wstring path = ToWide(arguments.path);
    const std::wstring parameter = ToWide(arguments.parameter);
    const ReadResult read = ReadText([&](wchar_t* value, uint32_t* length) {
        return PGSP_BoardGetValueRawBL(board.c_str(), path.c_str(), parameter.c_str(), value, length);
    });
    Require(read.result, fmt::format("{}, {}", arguments.board, arguments.parameter));
    report.Answer(read.value, {{"board", arguments.board},
                               {"path", arguments.path},
                               {"parameter", arguments.parameter},
                               {"value", read.value}});
}

} // namespace

void AddBoardCommands(CLI::App& app, const Report& report)
{
    CLI::App* const board = app.add_subcommand("board", "boards of the catalogue");
    board->require_subcommand(1);
    const auto arguments = std::make_shared<Arguments>();
    const auto addVerb = [&](const char* verb, const char* help, auto action) {
        CLI::App* const command = board->add_subcommand(verb, help);
        command->add_option("BOARD", arguments->board, "its DeviceID or file name")->required();
        command->callback([=, &report] { action(report, *arguments); });
        return command;
    };

    board->add_subcommand("list", "list them by DeviceID, with protocol and name")->callback([&report] {
        List(report);
    });
    addVerb("show", "print all values of one, and the defaults it has for parameters", &Show);
    addVerb("values", "print a list of values", &Values)
        ->add_option("COLLECTION", arguments->collection, "NotSupported, or Constraints\\PARAMETER")
        ->required();
    CLI::App* const get = addVerb("get", "print one value", &Get);
    get->add_option("PARAMETER", arguments->parameter, "the parameter, or a word of a constraint")
        ->required();
    get->add_option("--path", arguments->path, "where it stands: a section, or Constraints\\PARAMETER");
    AddBoardTextCommand(*board, report);
    AddBoardXmlCommand(*board, report);
}

} // namespace norvctl

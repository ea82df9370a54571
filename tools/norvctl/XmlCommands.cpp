#include "Commands.h"
#include "RawOutput.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace norvctl
{

namespace
{

struct Kind
{
    uint16_t number; // as the library takes it
    const char* argument;
    const char* key;
    const char* help;
    const char* what; // one of them, for a message
};

constexpr Kind NameKind{1, "NAME", "name", "the log name", "log name"};
constexpr Kind DeviceKind{2, "DEVICE", "device", "the log device", "log device"};
constexpr Kind BoardKind{3, "BOARD", "board", "its DeviceID or file name", "board"};
constexpr Kind TemplateKind{4, "TEMPLATE", "template", "the template", "template"};
constexpr Kind ProtocolKind{5, "PROTOCOL", "protocol", "its CP_TYPE or file name", "protocol"};

using Piece = std::array<uint8_t, 4096>;

constexpr uint8_t Unset = 0xFF; // no document begins with a row of these, in whatever encoding

// For a name that makes too long a path the library says the same as when more is to come, and leaves the
// first piece alone.
bool IsLeftAlone(const Piece& piece)
{
    return std::all_of(piece.begin(), piece.end(), [](uint8_t byte) { return byte == Unset; });
}

[[noreturn]] void Refuse(const Kind& kind, const std::string& object, int32_t result)
{
    if (result == PGSP_ERR_NO_MORE_ITEMS)
    {
        throw Failure(object, result, fmt::format("there is no such {}, or it cannot be read", kind.what));
    }
    throw Failure(object, result);
}

// One piece; false when it is the last one. The zero byte that the library adds to the file isn't given on.
bool ReadPiece(const Kind& kind, const std::string& object, uint32_t index,
               const std::function<void(std::string_view)>& take)
{
    Piece piece;
    piece.fill(Unset);
    auto length = static_cast<uint32_t>(piece.size());
    const int32_t result = LogDeviceGetXmlBL(GetCurrentProcessId(), kind.number, ToWide(object).c_str(),
                                             index, piece.data(), &length);
    const bool isRefused = index == 0 && IsLeftAlone(piece);
    const bool isMoreToCome = result == PGSP_ERR_BUFFER_TOO_SHORT && !isRefused;
    if (result != PGSP_OK && !isMoreToCome)
    {
        Refuse(kind, object, result);
    }
    take({reinterpret_cast<const char*>(piece.data()), isMoreToCome ? length : length - 1});
    return isMoreToCome;
}

void ReadPieces(const Kind& kind, const std::string& object,
                const std::function<void(std::string_view)>& take)
{
    uint32_t index = 0;
    while (ReadPiece(kind, object, index, take))
    {
        ++index;
    }
}

void PrintFile(const Kind& kind, const std::string& object)
{
    RawOutput output;
    ReadPieces(kind, object, [&](std::string_view bytes) { output.Write(bytes); });
    output.EndLine();
}

void AnswerDocument(const Report& report, const Kind& kind, const std::string& object)
{
    std::string file;
    ReadPieces(kind, object, [&](std::string_view bytes) { file += bytes; });
    if (!IsUtf8(file))
    {
        throw std::runtime_error(object + ": the file is not UTF-8, as a JSON document has to be");
    }
    report.Answer(file, {{kind.key, object}, {"xml", file}});
}

void AddXmlVerb(CLI::App& noun, const Report& report, const Kind& kind)
{
    const auto object = std::make_shared<std::string>();
    CLI::App* const command =
        noun.add_subcommand("xml", "print its file, without what stands blank between the tags");
    command->add_option(kind.argument, *object, kind.help)->required();
    command->callback([=, &report, &kind] {
        if (report.json)
        {
            AnswerDocument(report, kind, *object);
        }
        else
        {
            PrintFile(kind, *object);
        }
    });
}

} // namespace

void AddNameXmlCommand(CLI::App& name, const Report& report)
{
    AddXmlVerb(name, report, NameKind);
}

void AddDeviceXmlCommand(CLI::App& device, const Report& report)
{
    AddXmlVerb(device, report, DeviceKind);
}

void AddBoardXmlCommand(CLI::App& board, const Report& report)
{
    AddXmlVerb(board, report, BoardKind);
}

void AddTemplateXmlCommand(CLI::App& noun, const Report& report)
{
    AddXmlVerb(noun, report, TemplateKind);
}

void AddProtocolXmlCommand(CLI::App& protocol, const Report& report)
{
    AddXmlVerb(protocol, report, ProtocolKind);
}

} // namespace norvctl

#include "Commands.h"
#include "RawOutput.h"
#include "Text.h"
#include "XmlTransfer.h"

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
    const XmlKind& xml;
    const char* argument;
    const char* key;
    const char* help;
};

constexpr Kind NameKind{NameXml, "NAME", "name", "the log name"};
constexpr Kind DeviceKind{DeviceXml, "DEVICE", "device", "the log device"};
constexpr Kind BoardKind{BoardXml, "BOARD", "board", "its DeviceID or file name"};
constexpr Kind TemplateKind{TemplateXml, "TEMPLATE", "template", "the template"};
constexpr Kind ProtocolKind{ProtocolXml, "PROTOCOL", "protocol", "its CP_TYPE or file name"};

void PrintFile(const Kind& kind, const std::string& object)
{
    RawOutput output;
    TransferXml(kind.xml, object, [&](std::string_view bytes) { output.Write(bytes); });
    output.EndLine();
}

void AnswerDocument(const Report& report, const Kind& kind, const std::string& object)
{
    const std::string file = ReadXml(kind.xml, object);
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

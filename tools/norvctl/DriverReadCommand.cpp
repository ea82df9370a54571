#include "Commands.h"
#include "DriverRecords.h"
#include "HexDump.h"
#include "Reads.h"
#include "Result.h"
#include "Text.h"
#include "norvepa.h"

#include <windows.h>

#include <fmt/format.h>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace norvctl
{

namespace
{

struct Arguments
{
    std::string device;
    bool isHex = false;
};

// The block that the library hands out, and that its caller has to release.
class DriverBlock
{
public:
    explicit DriverBlock(const std::string& device)
    {
        Require(norvDriverReadLogDevice(ToWide(device).c_str(), &m_bytes, &m_length), device);
    }

    DriverBlock(const DriverBlock&) = delete;
    DriverBlock& operator=(const DriverBlock&) = delete;
    ~DriverBlock() { GlobalFree(m_bytes); }

    [[nodiscard]] std::span<const std::uint8_t> bytes() const { return {m_bytes, m_length}; }

private:
    std::uint8_t* m_bytes = nullptr;
    std::uint32_t m_length = 0;
};

Json AsJson(bool value)
{
    return value;
}

Json AsJson(std::int32_t value)
{
    return value;
}

Json AsJson(const std::wstring& value)
{
    return ToUtf8(value);
}

std::string AsText(const Json& value)
{
    return value.is_string() ? value.get<std::string>() : value.dump();
}

void PrintBytes(const Report& report, const Arguments& arguments)
{
    const DriverBlock block(arguments.device);
    report.Answer(HexDump(block.bytes()), {{"device", arguments.device},
                                           {"length", block.bytes().size()},
                                           {"bytes", HexDigits(block.bytes())}});
}

void PrintRecords(const Report& report, const Arguments& arguments)
{
    const DriverBlock block(arguments.device);
    Table table({{"PARAMETER", 32}, {"TYPE", 8}, {"VALUE", 0}});
    Json document = Json::array();
    for (const DriverRecord& record : DecodeDriverRecords(arguments.device, block.bytes()))
    {
        const std::string name = ToUtf8(record.name);
        const char* const type = TypeWord(record.value);
        const Json value = std::visit([](const auto& each) { return AsJson(each); }, record.value);
        table.Add({name, type, AsText(value)});
        document.push_back({{"name", name}, {"type", type}, {"value", value}});
    }
    report.Answer(table, document);
}

} // namespace

void AddDriverReadCommand(CLI::App& device, const Report& report)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App* const command = device.add_subcommand(
        "driver-read", "print what its driver receives of one: the records of the sections in its Load");
    command->add_option("DEVICE", arguments->device, "the log device")->required();
    command->add_flag("--hex", arguments->isHex, "the bytes themselves, not decoded");
    command->callback([=, &report] {
        const auto print = arguments->isHex ? &PrintBytes : &PrintRecords;
        print(report, *arguments);
    });
}

} // namespace norvctl

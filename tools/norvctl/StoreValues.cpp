#include "StoreValues.h"

#include "Choices.h"
#include "CommandTree.h"
#include "Device.h"
#include "Reads.h"
#include "Template.h"
#include "Text.h"
#include "norvepa.h"

#include <algorithm>
#include <array>

namespace norvctl
{

namespace
{

using Texts = std::vector<std::string>;
using Pairs = std::vector<NameAndValue>;

Texts Devices(const CommandLine&)
{
    return EnumerateTexts("the log devices", [](uint32_t index, wchar_t* name, uint32_t* length) {
        return LogDeviceGetEnumBL(nullptr, index, name, length);
    });
}

Texts Temporaries(const CommandLine&)
{
    return TemporaryDevices();
}

Texts Names(const CommandLine&)
{
    return EnumerateTexts("the log names", [](uint32_t index, wchar_t* name, uint32_t* length) {
        return LogNameGetEnumBL(index, name, length);
    });
}

// Boards, protocols and templates lie in a folder of the catalogue each.
template <wchar_t const* folder>
Texts OfCatalogue(const CommandLine&)
{
    return EnumerateTexts("the catalogue", [](uint32_t index, wchar_t* name, uint32_t* length) {
        return PGSP_TemplateGetEnumNoPrefixBL(folder, index, name, length);
    });
}

constexpr wchar_t Boards[] = L"Boards";
constexpr wchar_t Protocols[] = L"Protocols";

Pairs IdentityOfDevice(const std::string& device)
{
    const std::wstring wide = ToWide(device);
    return EnumeratePairs(device, [&](uint32_t index, wchar_t* name, uint32_t* nameLength, wchar_t* value,
                                      uint32_t* valueLength) {
        return PGSP_LogDeviceEnumNdiValueBL(wide.c_str(), index, name, nameLength, value, valueLength, 0);
    });
}

Pairs ValuesOfName(const std::string& logName)
{
    const std::wstring wide = ToWide(logName);
    return EnumeratePairs(logName, [&](uint32_t index, wchar_t* name, uint32_t* nameLength, wchar_t* value,
                                       uint32_t* valueLength) {
        return LogNameGetEnumValueBL(wide.c_str(), index, name, nameLength, value, valueLength);
    });
}

Pairs ValuesOfBoard(const std::string& board)
{
    const std::wstring wide = ToWide(board);
    return EnumeratePairs(board, [&](uint32_t index, wchar_t* name, uint32_t* nameLength, wchar_t* value,
                                     uint32_t* valueLength) {
        return PGSP_BoardGetEnumValueBL(wide.c_str(), index, name, nameLength, value, valueLength);
    });
}

Pairs ValuesOfProtocol(const std::string& protocol)
{
    const std::wstring wide = ToWide(protocol);
    return EnumeratePairs(protocol, [&](uint32_t index, wchar_t* name, uint32_t* nameLength, wchar_t* value,
                                        uint32_t* valueLength) {
        return PGSP_ProtocolGetEnumValueBL(wide.c_str(), L"", L"", L"", L"", index, name, nameLength, value,
                                           valueLength);
    });
}

// Whose parameters are meant: what stands ahead of them.
struct Owner
{
    const char* word;
    Pairs (*values)(const std::string& owner);
};
constexpr std::array<Owner, 5> Owners{{
    {"DEVICE", &ValuesOfDevice},
    {"NAME", &ValuesOfName},
    {"TEMPLATE", &ValuesOfTemplate},
    {"BOARD", &ValuesOfBoard},
    {"PROTOCOL", &ValuesOfProtocol},
}};

Pairs PairsOfOwner(const CommandLine& line)
{
    if (PathOf(*line.command).starts_with("norvctl device ndi "))
    {
        return IdentityOfDevice(line.ValueOf("DEVICE"));
    }
    const auto owner = std::find_if(Owners.begin(), Owners.end(),
                                    [&](const Owner& each) { return !line.ValueOf(each.word).empty(); });
    return owner == Owners.end() ? Pairs{} : owner->values(line.ValueOf(owner->word));
}

// Each once: a file may hold a parameter several times.
Texts Parameters(const CommandLine& line)
{
    Texts names;
    for (const NameAndValue& pair : PairsOfOwner(line))
    {
        if (std::find(names.begin(), names.end(), pair.name) == names.end())
        {
            names.push_back(pair.name);
        }
    }
    return names;
}

// A choice is a value, or "93750/93,75 kbit/s": a value and what people are shown of it.
Texts WithoutTexts(Texts choices)
{
    for (std::string& choice : choices)
    {
        choice.erase(std::min(choice.find('/'), choice.size()));
    }
    return choices;
}

Texts ParameterChoices(const CommandLine& line)
{
    const std::string device = line.ValueOf("DEVICE");
    return device.empty() ? Texts{} : WithoutTexts(ChoicesOf(device, line.ValueOf("PARAMETER")));
}

Texts Baudrates(const CommandLine& line)
{
    return WithoutTexts(CommonChoicesOf(line.ValueOf("DEVICE"), "baudrate"));
}

// What a watch may be of: a file of the folder that is named.
Texts FilesOfFolder(const CommandLine& line)
{
    const std::string folder = line.ValueOf("FOLDER");
    return folder == "LogDevices" ? Devices(line)
           : folder == "LogNames" ? Names(line)
           : folder == "meta"     ? OfCatalogue<TemplatesFolder>(line)
                                  : Texts{};
}

struct Source
{
    const char* word;
    Texts (*values)(const CommandLine& line);
};
constexpr std::array<Source, 13> Sources{{
    {"DEVICE", &Devices},
    {"FROM", &Devices},
    {"A", &Devices},
    {"B", &Devices},
    {"TEMPORARY", &Temporaries},
    {"NAME", &Names},
    {"BOARD", &OfCatalogue<Boards>},
    {"PROTOCOL", &OfCatalogue<Protocols>},
    {"TEMPLATE", &OfCatalogue<TemplatesFolder>},
    {"PARAMETER", &Parameters},
    {"VALUE", &ParameterChoices},
    {"BAUD", &Baudrates},
    {"OBJECT", &FilesOfFolder},
}};

constexpr std::array<const char*, 3> PathWords{"PATH", "FILE", "FOLDER"};

} // namespace

std::vector<std::string> ValuesFromStore(const std::string& word, const CommandLine& line)
{
    const auto source =
        std::find_if(Sources.begin(), Sources.end(), [&](const Source& each) { return word == each.word; });
    return source == Sources.end() ? Texts{} : source->values(line);
}

bool IsPathOfMachine(const std::string& word)
{
    return std::find(PathWords.begin(), PathWords.end(), word) != PathWords.end();
}

} // namespace norvctl

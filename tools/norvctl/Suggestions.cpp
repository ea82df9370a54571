#include "Suggestions.h"

#include "CommandLine.h"
#include "CommandTree.h"
#include "Device.h"
#include "DeviceSheet.h"
#include "Nearest.h"
#include "StoreValues.h"
#include "Text.h"
#include "norvepa.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace norvctl
{

namespace
{

using Texts = std::vector<std::string>;

// The results that a name which isn't there may have.
constexpr std::array<int32_t, 8> NotThere{PGSP_ERR_NO_MORE_ITEMS,        PGSP_ERR_LOG_DEVICE_NOT_EXISTS,
                                          PGSP_ERR_PARAM_DESC_NOT_FOUND, PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND,
                                          PGSP_ERR_FILE_NOT_FOUND,       PGSP_ERR_CANT_LOAD_XML_FILE,
                                          PGSP_ERR_PARAM_NOT_FOUND,      PGSP_ERR_CANT_SET_VALUE};

// The arguments that name something of the store, in the order in which they depend on each other.
constexpr std::array<const char*, 9> Nouns{"DEVICE",   "FROM",  "A",        "B",        "NAME",
                                           "TEMPLATE", "BOARD", "PROTOCOL", "PARAMETER"};

// Verbs whose first name is one that is still to be made.
constexpr std::array<const char*, 3> Makers{"norvctl device create", "norvctl device import",
                                            "norvctl name create"};

bool IsToBeMade(const std::string& noun, const CommandLine& line)
{
    return (noun == "DEVICE" || noun == "NAME") &&
           std::find(Makers.begin(), Makers.end(), PathOf(*line.command)) != Makers.end();
}

bool IsAmong(const Texts& candidates, const std::string& word)
{
    const std::wstring wide = ToWide(word);
    return std::any_of(candidates.begin(), candidates.end(),
                       [&](const std::string& each) { return EqualNoCase(ToWide(each), wide); });
}

// Subdevices are told with their device, as they are to be typed.
Texts SubdevicesOf(const std::string& device)
{
    const std::string file = ToUtf8(FileOfDevice(device));
    Texts names;
    for (const SheetSection& section : SectionsOfDevice(file))
    {
        if (section.name.starts_with("subdevices\\"))
        {
            names.push_back(file + '\\' + section.name);
        }
    }
    return names;
}

// Those that the catalogue knows; the file of the log device needs none of them.
void AddParametersOfCatalogue(const std::string& device, Texts& parameters)
{
    const ValueCheck check(ReadDevice(device, "DeviceID").value, ReadDevice(device, "CP_TYPE").value);
    for (const std::wstring& parameter : check.Parameters())
    {
        parameters.push_back(ToUtf8(parameter));
    }
}

// As the library takes the names of boards: with or without "*".
std::string WithoutStar(const std::string& name)
{
    return name.starts_with('*') ? name.substr(1) : name;
}

// Where a parameter may be followed by one of its values, PARAMETER\VALUE.
std::string WithoutValue(const std::string& parameter)
{
    return parameter.substr(0, parameter.find('\\'));
}

std::optional<std::string> NearestDevice(const std::string& device, const CommandLine& line)
{
    if (IsDeviceThere(device)) // hidden ones aren't enumerated
    {
        return std::nullopt;
    }
    if (!IsSubdevice(device))
    {
        return NearestTo(device, ValuesFromStore("DEVICE", line));
    }
    const std::string file = ToUtf8(FileOfDevice(device));
    return IsDeviceThere(file) ? NearestTo(device, SubdevicesOf(device))
                               : NearestTo(file, ValuesFromStore("DEVICE", line));
}

std::optional<std::string> NearestName(const std::string& noun, const std::string& given,
                                       const CommandLine& line)
{
    const bool isLogName = noun == "NAME" && LogNameExistBL(ToWide(given).c_str(), 0) == PGSP_OK;
    if (isLogName) // hidden ones aren't enumerated
    {
        return std::nullopt;
    }
    Texts candidates = ValuesFromStore(noun, line);
    const std::string device = line.ValueOf("DEVICE");
    if (noun == "PARAMETER" && IsDeviceThere(device) && !IsSubdevice(device))
    {
        AddParametersOfCatalogue(device, candidates);
    }
    std::transform(candidates.begin(), candidates.end(), candidates.begin(), &WithoutStar);
    const std::string name = noun == "PARAMETER" ? WithoutValue(given) : WithoutStar(given);
    return IsAmong(candidates, name) ? std::nullopt : NearestTo(name, candidates);
}

std::optional<std::string> NearestOf(const std::string& noun, const std::string& given,
                                     const CommandLine& line)
{
    const bool isDevice = noun == "DEVICE" || noun == "FROM" || noun == "A" || noun == "B";
    return isDevice ? NearestDevice(given, line) : NearestName(noun, given, line);
}

std::optional<std::string> NearestOfLine(const CommandLine& line)
{
    for (const char* noun : Nouns)
    {
        const std::string given = line.ValueOf(noun);
        const bool isNone = given.empty() || IsToBeMade(noun, line);
        const auto nearest = isNone ? std::nullopt : NearestOf(noun, given, line);
        if (nearest)
        {
            return nearest;
        }
    }
    return std::nullopt;
}

std::string AsQuestion(const std::optional<std::string>& nearest)
{
    return nearest ? "; did you mean " + *nearest + '?' : "";
}

} // namespace

std::string SuggestionFor(const CLI::App& root, const std::vector<std::string>& words, const Failure& failure)
{
    if (std::find(NotThere.begin(), NotThere.end(), failure.result()) == NotThere.end())
    {
        return "";
    }
    try
    {
        return AsQuestion(NearestOfLine(Follow(root, words)));
    }
    catch (const Failure&) // of what there is nothing can be read either
    {
        return "";
    }
}

std::string SuggestionForNew(const std::string& device, const std::string& parameter)
{
    try
    {
        Texts known;
        AddParametersOfCatalogue(device, known);
        if (IsAmong(known, parameter))
        {
            return "";
        }
        for (const NameAndValue& value : ValuesOfDevice(device))
        {
            if (value.name != parameter)
            {
                known.push_back(value.name);
            }
        }
        return AsQuestion(NearestTo(parameter, known));
    }
    catch (const Failure&) // it has been set all the same
    {
        return "";
    }
}

} // namespace norvctl

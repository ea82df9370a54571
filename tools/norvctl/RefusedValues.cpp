#include "RefusedValues.h"

#include "Device.h"
#include "FileOutline.h"
#include "Text.h"
#include "norvepa.h"

#include <algorithm>
#include <optional>
#include <set>

namespace norvctl
{

namespace
{

bool IsEnumerated(const std::wstring& section)
{
    return section.empty() || std::any_of(EnumeratedSections.begin(), EnumeratedSections.end(),
                                          [&](const wchar_t* each) { return EqualNoCase(each, section); });
}

// What is stored in the parameter's own place; without a section, the first value of its name.
std::optional<std::string> StoredAt(const std::string& device, const Place& place,
                                    const std::vector<NameAndValue>& values)
{
    const auto named = std::find_if(values.begin(), values.end(), [&](const NameAndValue& pair) {
        return EqualNoCase(ToWide(pair.name), place.name);
    });
    if (place.section.empty() && named != values.end())
    {
        return named->value;
    }
    const std::wstring name = ToWide(device);
    const ReadResult read = ReadText([&](wchar_t* value, uint32_t* length) {
        return LogDeviceGetValueExBL(name.c_str(), place.section.c_str(), place.name.c_str(), value, length);
    });
    return read.result == PGSP_OK ? std::optional(read.value) : std::nullopt;
}

// Reading a place reads the file: nothing is read of parameters that none of the values can be a fault of.
bool MayBeRefused(const std::wstring& parameter, const Place& place, const std::vector<NameAndValue>& values,
                  const ValueCheck& check)
{
    return !IsEnumerated(place.section) ||
           std::any_of(values.begin(), values.end(), [&](const NameAndValue& pair) {
               return EqualNoCase(ToWide(pair.name), place.name) &&
                      check.Check(parameter, ToWide(pair.value)) != PGSP_OK;
           });
}

// Those of the file, and those that the catalogue stores under another name.
std::vector<std::wstring> ParametersOf(const std::vector<NameAndValue>& values, const ValueCheck& check)
{
    std::vector<std::wstring> parameters;
    parameters.reserve(values.size() + check.Parameters().size());
    for (const NameAndValue& pair : values)
    {
        parameters.push_back(ToWide(pair.name));
    }
    parameters.insert(parameters.end(), check.Parameters().begin(), check.Parameters().end());
    return parameters;
}

} // namespace

std::vector<RefusedValue> RefusedValues(const std::string& device, const ValueCheck& check)
{
    const std::vector<NameAndValue> values = ValuesOfDevice(device);
    std::vector<RefusedValue> refused;
    std::set<std::wstring> seen;
    std::set<std::wstring> told; // places: two parameters may have one in common
    for (const std::wstring& parameter : ParametersOf(values, check))
    {
        if (!seen.insert(ToLower(parameter)).second || !check.HasLimits(parameter))
        {
            continue;
        }
        const Place& place = check.PlaceOf(parameter);
        if (!MayBeRefused(parameter, place, values, check))
        {
            continue;
        }
        const std::optional<std::string> value = StoredAt(device, place, values);
        if (!value)
        {
            continue;
        }
        const int32_t result = check.Check(parameter, ToWide(*value));
        if (result != PGSP_OK && told.insert(ToLower(place.section + L'\\' + place.name)).second)
        {
            refused.push_back({ToUtf8(parameter), *value, result});
        }
    }
    return refused;
}

} // namespace norvctl

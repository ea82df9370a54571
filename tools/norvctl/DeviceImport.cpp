#include "DeviceImport.h"

#include "Refusal.h"
#include "Result.h"
#include "Text.h"
#include "ValueCheck.h"
#include "norvepa.h"

#include <algorithm>
#include <fmt/format.h>
#include <optional>

namespace norvctl
{

namespace
{

constexpr char NdiSection[] = "Ndi";
constexpr char SpareSection[] = "SpareSection";
constexpr char LinksOf32[] = "UserInterface";

bool IsSameBoard(const Difference& difference)
{
    const ValueChange& change = difference.change;
    return difference.kind == GroupKind::Attribute && change.name == "DeviceID" && change.before &&
           change.after &&
           EqualNoCase(ToWide(WithoutStar(*change.before)), ToWide(WithoutStar(*change.after)));
}

bool IsSameButForCase(const ValueChange& change)
{
    return change.before && change.after && EqualNoCase(ToWide(*change.before), ToWide(*change.after));
}

// Offers the document's values to the library, in the names that it knows them by.
class Importer
{
public:
    Importer(const std::string& device, const FileValues& wanted)
        : m_device(device), m_check(AttributeOf(wanted, "DeviceID"), AttributeOf(wanted, "CP_TYPE"))
    {
    }

    [[nodiscard]] std::optional<ImportRefusal> Make(const Difference& difference) const
    {
        if (difference.kind == GroupKind::Attribute)
        {
            return ImportRefusal{difference, PGSP_ERR_CANT_SET_VALUE,
                                 "a log device's board and protocol are never set"};
        }
        if (difference.occurrence > 0)
        {
            return ImportRefusal{difference, PGSP_ERR_CANT_SET_VALUE,
                                 "of several values of one name only the first can be set"};
        }
        return difference.change.after ? Set(difference) : Remove(difference);
    }

private:
    [[nodiscard]] std::optional<ImportRefusal> Set(const Difference& difference) const
    {
        const std::string parameter = ParameterOf(difference);
        if (IsSameButForCase(difference.change))
        {
            // To the library the new value is the old one: another has to come in between.
            static_cast<void>(Offer(difference, parameter, *difference.change.after + "_"));
        }
        int32_t result = Offer(difference, parameter, *difference.change.after);
        if (result == PGSP_OK && IsSpareAndAsBefore(difference))
        {
            result = ReplaceSpare(difference);
        }
        if (result == PGSP_OK)
        {
            return std::nullopt;
        }
        const bool hasNoPlace = difference.kind == GroupKind::Subdevice && result == PGSP_ERR_CANT_SET_VALUE;
        return ImportRefusal{difference, result,
                             hasNoPlace ? "there is no such subdevice, and none can be made"
                                        : AllowedValues(ToWide(m_device), ToWide(parameter), result)};
    }

    // The library doesn't look there for a number's type: it has made a text of the same name behind it.
    [[nodiscard]] bool IsSpareAndAsBefore(const Difference& difference) const
    {
        return difference.kind == GroupKind::Section && difference.group == SpareSection &&
               difference.change.before && SpareValue(difference.change.name) == difference.change.before;
    }

    [[nodiscard]] std::optional<std::string> SpareValue(const std::string& name) const
    {
        const std::wstring device = ToWide(m_device);
        const std::wstring parameter = ToWide(name);
        const ReadResult read = ReadText([&](wchar_t* value, uint32_t* length) {
            return LogDeviceGetValueExBL(device.c_str(), ToWide(SpareSection).c_str(), parameter.c_str(),
                                         value, length);
        });
        return read.result == PGSP_OK ? std::optional(read.value) : std::nullopt;
    }

    [[nodiscard]] int32_t ReplaceSpare(const Difference& difference) const
    {
        const int32_t result =
            LogDeviceDelValueBL(ToWide(m_device).c_str(), ToWide(difference.change.name).c_str());
        return result == PGSP_OK && !SpareValue(difference.change.name)
                   ? Offer(difference, difference.change.name, *difference.change.after)
                   : result;
    }

    [[nodiscard]] int32_t Offer(const Difference& difference, const std::string& parameter,
                                const std::string& value) const
    {
        const std::wstring name = ToWide(parameter);
        const std::wstring text = ToWide(value);
        if (IsOfNdi(difference))
        {
            return PGSP_LogDeviceSetNdiBL(ToWide(m_device).c_str(), name.c_str(), text.c_str(),
                                          FlagOf(difference));
        }
        return LogDeviceSetValueBL(ToWide(TargetOf(difference)).c_str(), name.c_str(), text.c_str());
    }

    [[nodiscard]] std::optional<ImportRefusal> Remove(const Difference& difference) const
    {
        if (difference.kind == GroupKind::Subdevice)
        {
            return ImportRefusal{difference, PGSP_ERR_CANT_SET_VALUE,
                                 "the values of a subdevice can be set, not removed"};
        }
        const std::wstring device = ToWide(m_device);
        const std::wstring name = ToWide(difference.change.name);
        const int32_t result = IsOfNdi(difference)
                                   ? PGSP_LogDeviceDelNdiBL(device.c_str(), name.c_str(), FlagOf(difference))
                                   : LogDeviceDelValueBL(device.c_str(), name.c_str());
        return result == PGSP_OK ? std::nullopt
                                 : std::optional(ImportRefusal{difference, result,
                                                               "the document doesn't have it, and it "
                                                               "can't be removed"});
    }

    static bool IsOfNdi(const Difference& difference)
    {
        return difference.kind == GroupKind::Link ||
               (difference.kind == GroupKind::Section && difference.group == NdiSection);
    }

    static int32_t FlagOf(const Difference& difference) { return difference.group == LinksOf32 ? 1 : 0; }

    [[nodiscard]] std::string TargetOf(const Difference& difference) const
    {
        return difference.kind == GroupKind::Subdevice ? m_device + '\\' + WordsFor(difference) : m_device;
    }

    // A value that is stored under another name than its parameter's is checked under the parameter's alone.
    [[nodiscard]] std::string ParameterOf(const Difference& difference) const
    {
        const std::wstring stored = ToWide(difference.change.name);
        if (difference.kind != GroupKind::Section || m_check.HasLimits(stored))
        {
            return difference.change.name;
        }
        const std::vector<std::wstring> parameters = KnownParameters();
        const std::wstring section = ToWide(difference.group);
        const auto parameter =
            std::find_if(parameters.begin(), parameters.end(), [&](const std::wstring& each) {
                const Place& place = m_check.PlaceOf(each);
                return EqualNoCase(place.name, stored) &&
                       (place.section.empty() || EqualNoCase(place.section, section));
            });
        return parameter == parameters.end() ? difference.change.name : ToUtf8(*parameter);
    }

    // None without the board's or the protocol's file: then the library doesn't know of any, either.
    [[nodiscard]] std::vector<std::wstring> KnownParameters() const
    {
        try
        {
            return m_check.Parameters();
        }
        catch (const Failure&)
        {
            return {};
        }
    }

    const std::string& m_device;
    ValueCheck m_check;
};

// What the library took, and made something else of.
std::vector<ImportRefusal> LeftDifferences(const std::string& device, const FileValues& wanted)
{
    std::vector<ImportRefusal> left;
    for (const Difference& difference : ImportChanges(device, wanted))
    {
        // A value in another case, which the library takes for the same, may be all that can be had.
        if (!IsSameButForCase(difference.change))
        {
            left.push_back({difference, PGSP_ERR_CANT_SET_VALUE,
                            fmt::format("it would be {} instead", difference.change.before.value_or("-"))});
        }
    }
    return left;
}

} // namespace

std::vector<ImportRefusal> MakeEqual(const std::string& device, const FileValues& wanted,
                                     const std::function<void()>& look)
{
    Importer importer(device, wanted);
    std::vector<ImportRefusal> refused;
    for (const Difference& difference : ImportChanges(device, wanted))
    {
        look();
        if (const std::optional<ImportRefusal> refusal = importer.Make(difference))
        {
            refused.push_back(*refusal);
        }
    }
    return refused.empty() ? LeftDifferences(device, wanted) : refused;
}

std::vector<Difference> ImportChanges(const std::string& device, const FileValues& wanted)
{
    std::vector<Difference> differences = DifferencesBetween(TransferredPart(ReadDeviceFile(device)), wanted);
    std::erase_if(differences, &IsSameBoard);
    return differences;
}

std::string WithoutStar(const std::string& deviceId)
{
    return deviceId.starts_with('*') ? deviceId.substr(1) : deviceId;
}

} // namespace norvctl

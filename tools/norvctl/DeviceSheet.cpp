#include "DeviceSheet.h"

#include "Device.h"
#include "StorePaths.h"
#include "Template.h"
#include "Text.h"
#include "XmlTransfer.h"

#include <algorithm>

namespace norvctl
{

namespace
{

constexpr char SubdevicesPart[] = "subdevices\\";

SheetSection AsSection(const SectionValues& group)
{
    SheetSection section{group.name, {}};
    section.values.reserve(group.values.size());
    for (const NameAndValue& pair : group.values)
    {
        section.values.push_back({.name = pair.name, .value = pair.value, .allowed = {}, .standard = {}});
    }
    return section;
}

std::vector<SheetSection> AsSections(const std::vector<NameAndValue>& enumerated,
                                     const std::optional<FileOutline>& outline)
{
    std::vector<SheetSection> sections;
    for (const SectionValues& group : Grouped(enumerated, outline))
    {
        sections.push_back(AsSection(group));
    }
    return sections;
}

// No export enumerates a subdevice, and to ask for each value would take longer than all else.
SheetSection AsSection(const OutlineSection& subdevice)
{
    SectionValues group{SubdevicesPart + subdevice.name, {}};
    for (const OutlineEntry& entry : subdevice.entries)
    {
        group.values.push_back({entry.name, entry.value});
    }
    return AsSection(group);
}

// As it stands; the library leaves blanks out where it hands a file out.
std::optional<FileOutline> OutlineOfDevice(const std::string& device)
{
    const std::optional<std::string> bytes = BytesOf(PathOfDevice(device));
    return OutlineOf(bytes ? *bytes : ReadXml(DeviceXml, device));
}

bool IsOfSubdevice(const SheetSection& section)
{
    return section.name.starts_with(SubdevicesPart);
}

// The part of a subdevice's name behind that of its device; empty for a device.
std::string SubdevicePart(const std::string& device)
{
    return IsSubdevice(device) ? device.substr(ToUtf8(FileOfDevice(device)).size() + 1) : "";
}

// Of all that its file holds, what is the subdevice's.
void KeepSubdevice(const std::string& part, std::vector<SheetSection>& sections)
{
    std::erase_if(sections, [&](const SheetSection& section) {
        return !EqualNoCase(ToWide(section.name), ToWide(part));
    });
}

void AddLimitsTo(SheetSection& section, LimitsOfPair& limits)
{
    for (SheetValue& value : section.values)
    {
        const ParameterLimits& known = limits.Of(section.name, value.name);
        value.allowed = known.allowed;
        value.standard = known.standard;
        value.differs = known.standard && !limits.check().IsSame(ToWide(value.name), ToWide(value.value),
                                                                 ToWide(*known.standard));
    }
}

} // namespace

std::vector<SheetSection> SectionsOfDevice(const std::string& device)
{
    const std::string part = SubdevicePart(device);
    if (!part.empty())
    {
        RequireDevice(device);
    }
    const std::string whole = ToUtf8(FileOfDevice(device));
    const std::vector<NameAndValue> enumerated = ValuesOfDevice(whole);
    const std::optional<FileOutline> outline = OutlineOfDevice(whole);
    std::vector<SheetSection> sections = AsSections(enumerated, outline);
    for (const OutlineSection& subdevice : outline ? outline->subdevices : std::vector<OutlineSection>{})
    {
        sections.push_back(AsSection(subdevice));
    }
    if (!part.empty())
    {
        KeepSubdevice(part, sections);
    }
    return sections;
}

std::vector<SheetSection> SectionsOfTemplate(const std::string& name)
{
    const std::vector<NameAndValue> enumerated = ValuesOfTemplate(name);
    return AsSections(enumerated, OutlineOf(ReadXml(TemplateXml, name)));
}

void AddLimits(const std::string& device, CatalogueLimits& limits, std::vector<SheetSection>& sections)
{
    const std::string file = ToUtf8(FileOfDevice(device));
    LimitsOfPair& pair = limits.Of(ReadDevice(file, "DeviceID").value, ReadDevice(file, "CP_TYPE").value);
    for (SheetSection& section : sections)
    {
        if (!IsOfSubdevice(section)) // whose values are never checked
        {
            AddLimitsTo(section, pair);
        }
    }
}

} // namespace norvctl

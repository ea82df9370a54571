#include "FileOutline.h"

#include "Text.h"
#include "XmlTree.h"

#include <algorithm>
#include <string_view>

namespace norvctl
{

namespace
{

constexpr std::array<std::string_view, 3> EntryWords{"Parameter", "ParameterBool", "ParameterInt"};
constexpr std::size_t NoKind = EntryWords.size();

std::size_t KindOf(std::string_view word)
{
    const auto found = std::find(EntryWords.begin(), EntryWords.end(), word);
    return static_cast<std::size_t>(found - EntryWords.begin());
}

const XmlElement* ChildOf(const XmlElement& element, std::string_view word)
{
    const auto child = std::find_if(element.children.begin(), element.children.end(),
                                    [=](const XmlElement& each) { return each.name == word; });
    return child == element.children.end() ? nullptr : &*child;
}

// An entry counts when it has both a name and a value.
std::vector<OutlineEntry> EntriesOf(const XmlElement& section)
{
    std::vector<OutlineEntry> entries;
    for (const XmlElement& element : section.children)
    {
        const std::size_t kind = KindOf(element.name);
        const XmlElement* const name = ChildOf(element, "Name");
        const XmlElement* const value = ChildOf(element, "Value");
        if (kind != NoKind && name != nullptr && value != nullptr)
        {
            entries.push_back({name->text, value->text, kind});
        }
    }
    return entries;
}

std::string NameOfSubdevice(const XmlElement& subdevice)
{
    const auto name =
        std::find_if(subdevice.attributes.begin(), subdevice.attributes.end(),
                     [](const NameAndValue& attribute) { return attribute.name == "SubdevName"; });
    return name == subdevice.attributes.end() ? "" : name->value;
}

// They stand in a section, or in an element Subdevices of it.
void AddSubdevices(const XmlElement& parent, std::vector<OutlineSection>& subdevices)
{
    for (const XmlElement& element : parent.children)
    {
        if (element.name == "Subdevice")
        {
            subdevices.push_back({NameOfSubdevice(element), EntriesOf(element)});
        }
        else if (element.name == "Subdevices")
        {
            AddSubdevices(element, subdevices);
        }
    }
}

std::size_t RankOf(const std::string& section)
{
    const auto found = std::find_if(EnumeratedSections.begin(), EnumeratedSections.end(),
                                    [wide = ToWide(section)](const wchar_t* each) { return each == wide; });
    return static_cast<std::size_t>(found - EnumeratedSections.begin());
}

bool IsThere(const std::vector<OutlineSection>& sections, const std::string& name)
{
    return std::any_of(sections.begin(), sections.end(),
                       [&](const OutlineSection& section) { return section.name == name; });
}

// Where an enumerated value stands in the file.
struct Spot
{
    std::size_t section;
    std::size_t entry;
};

// In the order of the enumeration.
std::vector<Spot> SpotsOf(const FileOutline& outline)
{
    std::vector<Spot> spots;
    for (std::size_t section = 0; section < outline.sections.size(); ++section)
    {
        for (std::size_t entry = 0; entry < outline.sections[section].entries.size(); ++entry)
        {
            spots.push_back({section, entry});
        }
    }
    const auto order = [&](const Spot& spot) {
        const OutlineSection& section = outline.sections[spot.section];
        return std::pair(RankOf(section.name), section.entries[spot.entry].kind);
    };
    std::stable_sort(spots.begin(), spots.end(),
                     [&](const Spot& left, const Spot& right) { return order(left) < order(right); });
    return spots;
}

// Blanks ahead of a text are lost where a file is handed out.
std::string_view WithoutBlanksAhead(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
}

bool AreOfOneFile(const std::vector<NameAndValue>& enumerated, const FileOutline& outline,
                  const std::vector<Spot>& spots)
{
    const auto isSame = [&](const Spot& spot, const NameAndValue& pair) {
        return WithoutBlanksAhead(outline.sections[spot.section].entries[spot.entry].name) ==
               WithoutBlanksAhead(pair.name);
    };
    return spots.size() <= enumerated.size() &&
           std::equal(spots.begin(), spots.end(), enumerated.begin(), isSame);
}

} // namespace

std::optional<FileOutline> OutlineOf(const std::string& xml)
{
    const std::optional<XmlElement> root = ParseXml(xml);
    if (!root)
    {
        return std::nullopt;
    }
    FileOutline outline{root->name, {}, {}};
    for (const XmlElement& section : root->children)
    {
        if (RankOf(section.name) == EnumeratedSections.size() || IsThere(outline.sections, section.name))
        {
            continue;
        }
        outline.sections.push_back({section.name, EntriesOf(section)});
        AddSubdevices(section, outline.subdevices);
    }
    return outline;
}

std::vector<SectionValues> Grouped(const std::vector<NameAndValue>& enumerated,
                                   const std::optional<FileOutline>& outline)
{
    const std::vector<Spot> spots = outline ? SpotsOf(*outline) : std::vector<Spot>{};
    if (!outline || !AreOfOneFile(enumerated, *outline, spots))
    {
        return {{"", enumerated}};
    }
    const auto attributes = enumerated.begin() + static_cast<std::ptrdiff_t>(spots.size());
    std::vector<SectionValues> groups{{outline->root, {attributes, enumerated.end()}}};
    for (const OutlineSection& section : outline->sections)
    {
        groups.push_back({section.name, std::vector<NameAndValue>(section.entries.size())});
    }
    for (std::size_t i = 0; i < spots.size(); ++i)
    {
        groups[spots[i].section + 1].values[spots[i].entry] = enumerated[i];
    }
    std::erase_if(groups, [](const SectionValues& group) { return group.values.empty(); });
    return groups;
}

} // namespace norvctl

#include "DeviceDocument.h"

#include "DocumentReader.h"
#include "Text.h"

#include <algorithm>
#include <fmt/format.h>
#include <set>
#include <stdexcept>

namespace norvctl
{

namespace
{

constexpr std::string_view Format = "norvctl log device";
constexpr int Version = 1;
// of containers within containers
constexpr std::size_t LongestDocument = 20'000'000; // bytes

constexpr std::array<const char*, 8> Keys{"format",   "version",  "name",       "board",
                                          "protocol", "sections", "subdevices", "links"};

bool IsTransferredLink(const NameAndValue& link)
{
    return std::any_of(TransferredLinks.begin(), TransferredLinks.end(),
                       [&](std::string_view name) { return EqualNoCase(ToWide(name), ToWide(link.name)); });
}

std::vector<std::string> ValuesCalled(const ValueGroup& group, const std::string& name)
{
    std::vector<std::string> values;
    for (const NameAndValue& each : group.values)
    {
        if (EqualNoCase(ToWide(each.name), ToWide(name)))
        {
            values.push_back(each.value);
        }
    }
    return values;
}

Json AsObject(const ValueGroup& group)
{
    Json object = Json::object();
    std::set<std::wstring> told;
    for (const NameAndValue& each : group.values)
    {
        if (told.insert(ToLower(ToWide(each.name))).second)
        {
            const std::vector<std::string> values = ValuesCalled(group, each.name);
            object[each.name] = values.size() == 1 ? Json(values.front()) : Json(values);
        }
    }
    return object;
}

Json AsObject(const std::vector<ValueGroup>& groups)
{
    Json object = Json::object();
    for (const ValueGroup& group : groups)
    {
        object[group.name] = AsObject(group);
    }
    return object;
}

void RequireFormat(const DocumentReader& reader, const Json& root)
{
    constexpr const char* notOurs = "this isn't a log device as device export writes it";
    reader.Require(root.is_object() && root.contains("format") && root["format"] == Format, {}, notOurs);
    const Json& version = reader.Member(root, "version");
    reader.Require(version.is_number_integer() && version >= 1, "version", "this isn't a version");
    reader.Require(version <= Version, "version",
                   fmt::format("this is {}, and this norvctl knows {} and older", version.dump(), Version));
    for (const auto& [key, value] : root.items())
    {
        reader.Require(std::find(Keys.begin(), Keys.end(), key) != Keys.end(), key, "no log device has this");
    }
}

void RequireLinks(const DocumentReader& reader, const std::vector<ValueGroup>& links)
{
    for (const ValueGroup& section : links)
    {
        const std::string place = "links/" + section.name;
        reader.Require(section.name == "UserInterface" || section.name == "UserInterface64", place,
                       "links stand in UserInterface and UserInterface64 only");
        for (const NameAndValue& link : section.values)
        {
            reader.Require(IsTransferredLink(link), place + '/' + link.name,
                           fmt::format("of links only {} can be set", fmt::join(TransferredLinks, ", ")));
        }
    }
}

} // namespace

FileValues TransferredPart(const FileValues& file)
{
    FileValues part = file;
    part.fingerprint = 0;
    part.attributes = {{"DeviceID", AttributeOf(file, "DeviceID")},
                       {"CP_TYPE", AttributeOf(file, "CP_TYPE")}};
    for (ValueGroup& section : part.links)
    {
        std::erase_if(section.values, [](const NameAndValue& link) { return !IsTransferredLink(link); });
    }
    // Links stand there, and no value of theirs can be set.
    std::erase_if(part.sections, [](const ValueGroup& section) {
        return section.name == "UserInterface" || section.name == "UserInterface64";
    });
    const auto isEmpty = [](const ValueGroup& group) { return group.values.empty(); };
    std::erase_if(part.links, isEmpty);
    std::erase_if(part.sections, isEmpty);
    return part;
}

std::string AttributeOf(const FileValues& file, std::string_view name)
{
    const auto attribute = std::find_if(file.attributes.begin(), file.attributes.end(),
                                        [=](const NameAndValue& each) { return each.name == name; });
    return attribute == file.attributes.end() ? std::string{} : attribute->value;
}

Json AsJson(const DeviceDocument& document)
{
    return {{"format", Format},
            {"version", Version},
            {"name", document.name},
            {"board", AttributeOf(document.content, "DeviceID")},
            {"protocol", AttributeOf(document.content, "CP_TYPE")},
            {"sections", AsObject(document.content.sections)},
            {"subdevices", AsObject(document.content.subdevices)},
            {"links", AsObject(document.content.links)}};
}

DeviceDocument ParseDeviceDocument(const std::string& source, const std::string& bytes)
{
    const DocumentReader reader(source);
    reader.Require(bytes.size() <= LongestDocument, {}, "this is longer than any log device");
    const Json root = reader.Parse(bytes);
    RequireFormat(reader, root);
    DeviceDocument document{reader.Text(reader.Member(root, "name"), "name"), {}};
    document.content.attributes = {
        {"DeviceID", reader.Text(reader.Member(root, "board"), "board")},
        {"CP_TYPE", reader.Text(reader.Member(root, "protocol"), "protocol")},
    };
    document.content.sections = reader.Groups(root, "sections");
    document.content.subdevices = reader.Groups(root, "subdevices");
    document.content.links = reader.Groups(root, "links");
    RequireLinks(reader, document.content.links);
    return document;
}

} // namespace norvctl

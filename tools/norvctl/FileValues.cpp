#include "FileValues.h"

#include "Device.h"
#include "Result.h"
#include "StorePaths.h"
#include "Text.h"
#include "XmlTree.h"
#include "norvepa.h"

#include <algorithm>
#include <iterator>

namespace norvctl
{

namespace
{

class Fingerprint // FNV-1a
{
public:
    void Add(std::string_view text)
    {
        for (const char byte : text)
        {
            AddByte(static_cast<unsigned char>(byte));
        }
        AddByte(0); // no text of a file holds it
    }

    void Add(const XmlElement& element)
    {
        Add(element.name);
        for (const NameAndValue& attribute : element.attributes)
        {
            Add(attribute.name);
            Add(attribute.value);
        }
        Add(element.children.empty() ? std::string_view(element.text) : std::string_view{});
        for (const XmlElement& child : element.children)
        {
            Add(child);
        }
        Add("/");
    }

    [[nodiscard]] std::uint64_t value() const { return m_value; }

private:
    void AddByte(unsigned char byte) { m_value = (m_value ^ byte) * 0x100000001b3; }

    std::uint64_t m_value = 0xcbf29ce484222325;
};

const XmlElement* ChildOf(const XmlElement& element, std::string_view name)
{
    const auto child = std::find_if(element.children.begin(), element.children.end(),
                                    [=](const XmlElement& each) { return each.name == name; });
    return child == element.children.end() ? nullptr : &*child;
}

std::string TextOf(const XmlElement& element, std::string_view child)
{
    const XmlElement* const found = ChildOf(element, child);
    return found == nullptr ? std::string{} : found->text;
}

std::string AttributeOf(const XmlElement& element, std::string_view name)
{
    const auto attribute = std::find_if(element.attributes.begin(), element.attributes.end(),
                                        [=](const NameAndValue& each) { return each.name == name; });
    return attribute == element.attributes.end() ? std::string{} : attribute->value;
}

// What the file holds again further down belongs to what it holds first.
ValueGroup& GroupCalled(std::vector<ValueGroup>& groups, const std::string& name)
{
    const auto group =
        std::find_if(groups.begin(), groups.end(), [&](const ValueGroup& each) { return each.name == name; });
    return group == groups.end() ? groups.emplace_back(ValueGroup{name, {}}) : *group;
}

bool IsLink(const XmlElement& element)
{
    return element.name == "Resource" || element.name == "ParameterAssemblyLink";
}

bool IsEntry(const XmlElement& element)
{
    return element.name == "Parameter" || element.name == "ParameterInt" || element.name == "ParameterBool";
}

std::string ValueOfLink(const XmlElement& link)
{
    const XmlElement* const number = ChildOf(link, "ResourceId");
    return TextOf(link, "Assembly") + ',' + (number == nullptr ? TextOf(link, "Function") : number->text);
}

void TakeValues(FileValues& file, const XmlElement& element, std::vector<ValueGroup>& groups,
                const std::string& name)
{
    for (const XmlElement& child : element.children)
    {
        if (IsEntry(child))
        {
            GroupCalled(groups, name).values.push_back({TextOf(child, "Name"), TextOf(child, "Value")});
        }
        else if (IsLink(child))
        {
            GroupCalled(file.links, name).values.push_back({TextOf(child, "Name"), ValueOfLink(child)});
        }
        else if (child.name == "Subdevice")
        {
            const std::string subdevice = AttributeOf(child, "SubdevName");
            static_cast<void>(GroupCalled(file.subdevices, subdevice));
            TakeValues(file, child, file.subdevices, subdevice);
        }
        else if (child.name == "Subdevices")
        {
            TakeValues(file, child, groups, name);
        }
    }
}

bool IsOfNamespaces(const NameAndValue& attribute)
{
    return attribute.name == "xmlns" || attribute.name.find(':') != std::string::npos;
}

bool IsSection(const XmlElement& element)
{
    return !IsEntry(element) && !IsLink(element);
}

} // namespace

std::optional<FileValues> ParseFileValues(std::string_view bytes)
{
    const std::optional<XmlElement> root = ParseXml(bytes);
    if (!root)
    {
        return std::nullopt;
    }
    FileValues file;
    std::remove_copy_if(root->attributes.begin(), root->attributes.end(), std::back_inserter(file.attributes),
                        &IsOfNamespaces);
    TakeValues(file, *root, file.sections, {});
    for (const XmlElement& child : root->children)
    {
        if (IsSection(child))
        {
            static_cast<void>(GroupCalled(file.sections, child.name));
            TakeValues(file, child, file.sections, child.name);
        }
    }
    Fingerprint fingerprint;
    fingerprint.Add(*root);
    file.fingerprint = fingerprint.value();
    return file;
}

FileValues ReadDeviceFile(const std::string& device)
{
    RequireDevice(device);
    const std::optional<std::string> bytes = BytesOf(PathOfDevice(device));
    const std::optional<FileValues> file = bytes ? ParseFileValues(*bytes) : std::nullopt;
    Require(file ? PGSP_OK : PGSP_ERR_CANT_LOAD_XML_FILE, device);
    return *file;
}

} // namespace norvctl

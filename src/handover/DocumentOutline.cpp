#include "handover/DeviceOutline.h"

#include <utility>

namespace norvepa
{

namespace
{

DeviceOutline::Text Keep(DeviceOutline& outline, std::wstring_view text)
{
    const std::size_t begin = outline.texts.size();
    outline.texts += text;
    return {begin, text.size()};
}

DeviceOutline::Parameter ReadParameter(DeviceOutline& outline, const Node& entry, DriverType type)
{
    DeviceOutline::Parameter parameter{type, std::nullopt, std::nullopt};
    for (const Node& part : entry.Children())
    {
        const Bstr word = part.Name();
        if (word.view() == L"Name")
        {
            parameter.name = Keep(outline, part.Text().view());
        }
        else if (word.view() == L"Value")
        {
            parameter.value = Keep(outline, part.Text().view());
        }
    }
    return parameter;
}

std::optional<std::wstring> SubdeviceOf(const Node& element, std::wstring_view word)
{
    if (word != L"Subdevice")
    {
        return std::nullopt;
    }
    const Node name = element.Attribute(L"SubdevName");
    return name ? std::optional<std::wstring>(name.Text().view()) : std::nullopt;
}

void AddLoadEntries(DeviceOutline& outline, const Node& load)
{
    for (const Node& entry : load.Children())
    {
        if (entry.IsElement())
        {
            outline.load.emplace_back(entry.Text().view());
        }
    }
}

void AddSection(DeviceOutline& outline, const Node& element, std::wstring_view word)
{
    DeviceOutline::Section section;
    for (const Node& child : element.Children())
    {
        if (const auto type = DriverTypeOf(child.Name().view()))
        {
            section.parameters.push_back(ReadParameter(outline, child, *type));
        }
    }
    if (!section.parameters.empty())
    {
        section.word = word;
        section.subdevice = SubdeviceOf(element, word);
        outline.sections.push_back(std::move(section));
    }
}

} // namespace

DeviceOutline OutlineOf(const Document& document)
{
    DeviceOutline outline;
    for (const Node& element : document.Elements())
    {
        const Bstr word = element.Name();
        if (word.view() == L"Load")
        {
            AddLoadEntries(outline, element);
        }
        AddSection(outline, element, word.view());
    }
    return outline;
}

} // namespace norvepa

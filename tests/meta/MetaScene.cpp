#include "meta/MetaScene.h"

#include <stdexcept>

namespace norvepa::test
{

namespace
{

std::string AttributesOf(const cEpaBlElement& element)
{
    std::string text;
    for (const auto& [tag, attribute] : element.GetAttributes())
    {
        text +=
            (text.empty() ? "" : " ") + ToUtf8(AttributeTagName(tag)) + "=" + ToUtf8(attribute.GetValue());
    }
    return text.empty() ? "" : "{" + text + "}";
}

std::string ChildrenOf(const cEpaBlElement& element)
{
    std::string text;
    for (const auto& [tag, siblings] : element.GetChildren())
    {
        for (const auto& child : siblings)
        {
            text += (text.empty() ? "" : " ") + Outline(child.get());
        }
    }
    return text.empty() ? "" : "[" + text + "]";
}

} // namespace

std::string Outline(const cEpaBlElement* element)
{
    if (element == nullptr)
    {
        return "absent";
    }
    const std::string text = ToUtf8(element->GetText());
    return ToUtf8(ElementTagName(element->GetTag())) + AttributesOf(*element) +
           (text.empty() ? "" : "=\"" + text + "\"") + ChildrenOf(*element);
}

std::wstring MetaScene::File(std::wstring_view name, std::string_view bytes) const
{
    const std::wstring path = m_folder / name;
    WriteBytes(path, bytes);
    return path;
}

ParsedTree MetaScene::Parsed(std::string_view bytes) const
{
    PullReader reader;
    if (reader.Open(File(L"parsed.xml", bytes)) != PGSP_OK)
    {
        throw std::runtime_error("cannot open a file that holds " + std::string(bytes));
    }
    return cEpaBlXmlParser().Parse(reader);
}

std::string MetaScene::Document(std::string_view bytes) const
{
    const ParsedTree tree = Parsed(bytes);
    return Outline(tree.document);
}

} // namespace norvepa::test

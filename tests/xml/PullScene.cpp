#include "xml/PullScene.h"

#include <stdexcept>

namespace norvepa::test
{

PullReader PullScene::Reading(std::string_view bytes) const
{
    WriteBytes(file(), bytes);
    PullReader reader;
    if (reader.Open(file()) != PGSP_OK)
    {
        throw std::runtime_error("cannot open " + ToUtf8(file()));
    }
    return reader;
}

PullReader PullScene::InsideRoot(std::string_view bytes) const
{
    PullReader reader = Reading(bytes);
    XmlNodeType type = XmlNodeType_None;
    while (reader.Read(type))
    {
        if (type == XmlNodeType_Element)
        {
            return reader;
        }
    }
    throw std::runtime_error("no root in " + std::string(bytes));
}

std::string NextNode(PullReader& reader)
{
    XmlNodeType type = XmlNodeType_None;
    if (!reader.Read(type))
    {
        return {};
    }
    switch (type)
    {
    case XmlNodeType_Element:
        return "<" + NameAt(reader) + (reader.IsEmptyElement() ? "/>" : ">");
    case XmlNodeType_EndElement:
        return "</" + NameAt(reader) + ">";
    case XmlNodeType_Text:
        return ToUtf8(reader.Value());
    default:
        return std::to_string(type);
    }
}

std::string RestOf(PullReader& reader)
{
    std::string rest;
    for (std::string node = NextNode(reader); !node.empty(); node = NextNode(reader))
    {
        rest += (rest.empty() ? "" : " ") + node;
    }
    return rest;
}

std::string NameAt(const PullReader& reader)
{
    return ToUtf8(reader.LocalName());
}

} // namespace norvepa::test

#include "meta/cEpaBlXmlParser.h"

#include <cstdio>
#include <utility>

namespace norvepa
{

ParsedTree cEpaBlXmlParser::Parse(PullReader& reader)
{
    XmlNodeType type = XmlNodeType_None;
    while (reader.Read(type))
    {
        switch (type)
        {
        case XmlNodeType_Element:
            OpenElement(reader);
            break;
        case XmlNodeType_Text:
            // The last one wins. One without characters is what an engine delivers where a file was cut off.
            if (m_current != nullptr && !reader.Value().empty())
            {
                m_current->SetText(reader.Value());
            }
            break;
        case XmlNodeType_EndElement:
            if (m_current != nullptr)
            {
                m_current = m_current->GetParentOrSelf();
            }
            break;
        default:
            break; // the declaration's attributes aren't in the vocabulary, and the rest leaves no trace
        }
    }
    return {std::move(m_root), std::exchange(m_current, nullptr)};
}

void cEpaBlXmlParser::OpenElement(PullReader& reader)
{
    const EpaBlElementTag tag = ElementTagFromName(reader.LocalName());
    if (tag == EpaBlElementTag::None)
    {
        return;
    }

    std::unique_ptr<cEpaBlElement> alone;
    cEpaBlElement* element = nullptr;
    if (m_current == nullptr)
    {
        alone = std::make_unique<cEpaBlElement>(tag);
        element = alone.get();
    }
    else
    {
        element = m_current->AddChild(tag);
    }

    ReadAttributes(reader, *element);
    // Asked where the reader stands, which is on the last attribute if there is one, and an attribute isn't
    // empty: an empty element with attributes stays open until the next end tag.
    if (reader.IsEmptyElement())
    {
        return;
    }
    m_current = element;
    if (alone)
    {
        m_root = std::move(alone);
    }
}

void cEpaBlXmlParser::ReadAttributes(PullReader& reader, cEpaBlElement& element)
{
    bool met = reader.MoveToFirstAttribute();
    if (!met && reader.lastStatus() != S_FALSE) // which is an element without attributes
    {
        std::printf("Error moving to first attribute, error is %08lx",
                    static_cast<unsigned long>(reader.lastStatus()));
        return;
    }
    for (; met; met = reader.MoveToNextAttribute())
    {
        const auto attribute = reader.CurrentAttribute();
        if (!attribute)
        {
            return; // those ahead of it stay
        }
        element.AddAttribute(attribute->name, attribute->value);
    }
}

} // namespace norvepa

#include "catalogue/ProfileWalk.h"

#include "catalogue/CatalogueWalk.h"
#include "store/DomWalk.h"

namespace norvepa
{

namespace
{

bool IsSection(const Node& child)
{
    return child.IsNamed(L"ParamSection");
}

// The first child that is wanted, at or behind an index; empty when there is none.
Node ChildOf(const Node& profile, std::uint32_t index, bool (*isWanted)(const Node& child))
{
    std::uint32_t counter = 0;
    for (const Node& child : profile.Children())
    {
        if (counter < index)
        {
            ++counter;
            continue;
        }
        if (isWanted(child))
        {
            return child;
        }
    }
    return {};
}

} // namespace

ProfileWalk::ProfileWalk(const wchar_t* filePath, std::wstring_view parameter, std::wstring_view value)
    : m_file(CatalogueFile(filePath)), m_parameter(parameter), m_value(value)
{
}

Result ProfileWalk::EntryAt(std::uint32_t index, std::wstring& name, std::wstring& text)
{
    if (const Result result = Load(); result != PGSP_OK)
    {
        return result;
    }
    const Node entry = ChildAt(index, &IsEntry);
    if (!entry)
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    name = ChildText(entry, L"Name");
    text = ChildText(entry, L"Value");
    return PGSP_OK;
}

Result ProfileWalk::SubParameterAt(std::uint32_t index, std::wstring& subParameter)
{
    if (const Result result = Load(); result != PGSP_OK)
    {
        return result;
    }
    const Node section = ChildAt(index, &IsSection);
    if (!section)
    {
        return PGSP_ERR_NO_MORE_ITEMS;
    }
    const Node param = section.Attribute(L"Param");
    subParameter = param ? param.Text().view() : std::wstring_view{};
    return PGSP_OK;
}

Result ProfileWalk::Load()
{
    const auto stamp = win::FileStamp::Of(m_file);
    if (m_stamp && stamp == m_stamp)
    {
        return PGSP_OK;
    }
    m_stamp.reset();
    m_profiles.clear();
    m_next = ElementRange::Iterator(Node());
    const Result result = OpenDocument(m_file, m_document);
    if (result == PGSP_OK)
    {
        m_next = m_document.Elements().begin();
        m_stamp = stamp && stamp->IsCertain() ? stamp : std::nullopt;
    }
    return result;
}

Node ProfileWalk::ChildAt(std::uint32_t index, IsWanted isWanted)
{
    for (std::size_t number = 0; number < m_profiles.size() || FindMore(); ++number)
    {
        if (Node child = ChildOf(m_profiles[number], index, isWanted))
        {
            return child;
        }
    }
    return {};
}

// Goes on to the parameter's next section that has the value, and no further: most files have one, and what
// lies behind it is many.
bool ProfileWalk::FindMore()
{
    const std::size_t known = m_profiles.size();
    for (; m_next != std::default_sentinel && m_profiles.size() == known; ++m_next)
    {
        if (!IsParamSectionOf(*m_next, m_parameter))
        {
            continue;
        }
        for (Node& profile : ValueSections(*m_next, m_value))
        {
            m_profiles.push_back(std::move(profile));
        }
    }
    return m_profiles.size() > known;
}

} // namespace norvepa

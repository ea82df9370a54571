#include "catalogue/CatalogueWalk.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/Text.h"
#include "store/DomWalk.h"

#include <algorithm>
#include <optional>
#include <span>
#include <vector>

namespace norvepa
{

namespace
{

constexpr std::size_t MaxSegments = 8;

struct ParameterPath
{
    bool underConstraints = false;
    std::vector<std::wstring> segments; // parameter, value, sub-parameter, sub-value
};

ParameterPath SplitPath(std::wstring_view text)
{
    const auto isConstraints = [](const std::wstring& segment) {
        return EqualNoCase(segment, L"Constraints");
    };
    ParameterPath path;
    path.segments = Tokenize(text);
    path.segments.resize(std::min(path.segments.size(), MaxSegments));
    path.underConstraints = std::erase_if(path.segments, isConstraints) > 0;
    return path;
}

std::optional<std::wstring> ValueInSection(const Node& section, std::wstring_view name)
{
    for (const Node& entry : section.Children())
    {
        if (!IsEntry(entry))
        {
            continue;
        }
        const Node nameNode = ChildNamed(entry, L"Name");
        const Node valueNode = ChildNamed(entry, L"Value");
        if (nameNode && valueNode && EqualNoCase(nameNode.Text().view(), name))
        {
            return std::wstring(valueNode.Text().view());
        }
    }
    return std::nullopt;
}

// Through a parameter's section to a value's section, for each pair of segments in turn.
std::optional<std::wstring> ValueAtPath(const Node& parent, std::span<const std::wstring> segments,
                                        std::wstring_view name)
{
    if (segments.empty())
    {
        return ValueInSection(parent, name);
    }
    for (const Node& parameterSection : parent.Children())
    {
        if (!IsParamSectionOf(parameterSection, segments[0]))
        {
            continue;
        }
        for (const Node& valueSection : ValueSections(parameterSection, segments[1]))
        {
            if (auto found = ValueAtPath(valueSection, segments.subspan(2), name))
            {
                return found;
            }
        }
    }
    return std::nullopt;
}

} // namespace

Result NorvXMLProtocolGetValueRaw(const wchar_t* filePath, const wchar_t* parameterPath, const wchar_t* name,
                                  std::wstring* value)
{
    if (IsMissing(filePath) || parameterPath == nullptr || value == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    Document document;
    if (const Result result = OpenDocument(CatalogueFile(filePath), document); result != PGSP_OK)
    {
        return result;
    }

    const ParameterPath path = SplitPath(parameterPath);
    const Node start = path.underConstraints ? ChildNamed(document.Root(), L"Constraints") : document.Root();
    const std::size_t used = std::min<std::size_t>(path.segments.size(), 4);
    if (!start || (used != 2 && used != 4))
    {
        return PGSP_ERR_PARAM_NOT_FOUND; // a parameter without its value leads nowhere
    }
    const auto found = ValueAtPath(start, std::span(path.segments).first(used), TextOrEmpty(name));
    if (!found)
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }
    *value = *found;
    return PGSP_OK;
}

} // namespace norvepa

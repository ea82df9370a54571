#include "CatalogueLimits.h"

#include "Text.h"

#include <fmt/format.h>
#include <vector>

namespace norvctl
{

namespace
{

std::string AsList(const std::vector<std::wstring>& values)
{
    std::vector<std::string> texts;
    texts.reserve(values.size());
    for (const std::wstring& value : values)
    {
        texts.push_back(ToUtf8(value));
    }
    return fmt::format("{}", fmt::join(texts, ", "));
}

bool IsKeptIn(const Place& place, const std::string& section, const std::wstring& parameter)
{
    return EqualNoCase(place.name, parameter) &&
           (place.section.empty() || EqualNoCase(place.section, ToWide(section)));
}

} // namespace

std::string AllowedInWords(const ValueCheck& check, const std::wstring& parameter)
{
    switch (check.KindOf(parameter))
    {
    case ValueKind::Bool:
        return "true, false";
    case ValueKind::Integer:
        return AsRange(check.LimitsOf(parameter));
    case ValueKind::Listed:
        return AsList(check.ListOf(parameter));
    default:
        return "";
    }
}

const ParameterLimits& LimitsOfPair::Of(const std::string& section, const std::string& parameter)
{
    const auto known = m_known.try_emplace({section, parameter});
    if (known.second)
    {
        known.first->second = Read(section, ToWide(parameter));
    }
    return known.first->second;
}

ParameterLimits LimitsOfPair::Read(const std::string& section, const std::wstring& parameter) const
{
    if (!IsKeptIn(m_check.PlaceOf(parameter), section, parameter))
    {
        return {};
    }
    const std::string standard = ToUtf8(m_check.LimitsOf(parameter).standard);
    return {AllowedInWords(m_check, parameter),
            standard.empty() ? std::nullopt : std::optional<std::string>(standard)};
}

LimitsOfPair& CatalogueLimits::Of(const std::string& deviceId, const std::string& cpType)
{
    std::unique_ptr<LimitsOfPair>& pair = m_pairs[{deviceId, cpType}];
    if (!pair)
    {
        pair = std::make_unique<LimitsOfPair>(deviceId, cpType);
    }
    return *pair;
}

} // namespace norvctl

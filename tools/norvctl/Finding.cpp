#include "Finding.h"

#include "Reads.h"

#include <fmt/format.h>

namespace norvctl
{

namespace
{

const char* WordOf(Severity severity)
{
    return severity == Severity::Error ? "error" : "warning";
}

} // namespace

std::string AsLines(const Findings& findings)
{
    std::vector<std::string> lines;
    lines.reserve(findings.size());
    for (const Finding& finding : findings)
    {
        lines.push_back(fmt::format("{}: {} {}: {}: {}", WordOf(finding.severity), finding.kind, finding.name,
                                    finding.what, finding.advice));
    }
    return AsLines(lines);
}

Json AsArray(const Findings& findings)
{
    Json array = Json::array();
    for (const Finding& finding : findings)
    {
        array.push_back({{"severity", WordOf(finding.severity)},
                         {"kind", finding.kind},
                         {"name", finding.name},
                         {"finding", finding.what},
                         {"advice", finding.advice}});
    }
    return array;
}

} // namespace norvctl

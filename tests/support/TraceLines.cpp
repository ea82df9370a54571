#include "support/TraceLines.h"

#include "support/StoreRoots.h"

#include <map>
#include <sstream>

namespace norvepa::test
{

namespace
{

// The columns of the format "SHORT" that come ahead of the tag.
constexpr std::size_t LevelColumn = 11;
constexpr std::size_t TagColumn = 27;

std::string LevelOf(const std::string& line)
{
    static const std::map<std::string, std::string> names{
        {"FA", "entry"}, {"FR", "warning"}, {"FM", "information"}, {"FE", "exit"}};
    return names.at(line.substr(LevelColumn, 2));
}

} // namespace

TraceLines::TraceLines(const std::wstring& level, const std::wstring& format)
{
    SetMachineText(TraceKey, L"Level", level);
    SetMachineText(TraceKey, L"Format", format);
    SetMachineText(TraceKey, L"Output", L"FILE");
    SetMachineText(TraceKey, L"Path", m_folder.path());
    SetMachineText(TraceKey, L"FileName", L"trace");
}

std::vector<std::string> TraceLines::read() const
{
    std::vector<std::string> lines;
    const std::wstring file = m_folder / L"trace1.TRC"; // the first of the two, of which nothing is full
    if (Exists(file))
    {
        std::istringstream text(ReadBytes(file));
        for (std::string line; std::getline(text, line);)
        {
            lines.push_back(line);
        }
    }
    return lines;
}

std::vector<std::string> LinesTagged(const std::vector<std::string>& lines, std::string_view tag)
{
    return LinesTaggedAnyOf(lines, {tag});
}

std::vector<std::string> LinesTaggedAnyOf(const std::vector<std::string>& lines,
                                          std::initializer_list<std::string_view> tags)
{
    std::vector<std::string> found;
    for (const std::string& line : lines)
    {
        for (const std::string_view tag : tags)
        {
            const std::string start = std::string(tag) + " ";
            if (line.compare(TagColumn, start.size(), start) == 0)
            {
                found.push_back(LevelOf(line) + ": " + line.substr(TagColumn + start.size()));
            }
        }
    }
    return found;
}

std::string TraceLine(std::string_view tag, std::string_view message)
{
    return std::string(tag) + " " + std::string(message) + " ";
}

} // namespace norvepa::test

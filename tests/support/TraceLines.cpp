#include "support/TraceLines.h"

#include "support/StoreRoots.h"

#include <sstream>

namespace norvepa::test
{

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

std::string TraceLine(std::string_view tag, std::string_view message)
{
    return std::string(tag) + " " + std::string(message) + " ";
}

} // namespace norvepa::test

#include "LogNameTraceScene.h"

#include "support/ShellFolders.h"

#include <windows.h>

#include <map>

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

LogNameTraceScene::LogNameTraceScene()
{
    CopyTree(FromUtf8(NORV_SAMPLE_STORE) + L"\\program-root\\Schemes", roots.program() + L"\\Schemes");
    WriteBytes(roots.logName(L"Pumpe"),
               LogNameFile(XmlContent().Text(L"LogDevice", L"MPI_1").Text(L"Station", L"Halle 2")));
}

LogNameTraceScene::~LogNameTraceScene()
{
    if (m_library)
    {
        m_library->NorvepaBl64x_deinit(); // a folder that is watched can't be removed
    }
}

void LogNameTraceScene::TakeDataFolderAway() const
{
    DeleteMachineValue(LocationsKey, L"Corvane_Oam_Data");
    SetCommonApplicationData(roots.folder().path());
}

void LogNameTraceScene::Load()
{
    m_lines.emplace(AllTraceLevels, L"SHORT");
    m_library.emplace();
    m_workers.emplace(m_library->module());
}

std::vector<std::string> LogNameTraceScene::LinesOf(std::string_view operation) const
{
    return LinesTagged(std::string(operation) + ": ");
}

std::vector<std::string> LogNameTraceScene::LinesTagged(std::string_view tag) const
{
    m_workers->Await();
    const std::string start = std::string(tag) + " ";
    std::vector<std::string> lines;
    for (const std::string& line : m_lines->read())
    {
        if (line.compare(TagColumn, start.size(), start) == 0)
        {
            lines.push_back(LevelOf(line) + ": " + line.substr(TagColumn + start.size()));
        }
    }
    return lines;
}

std::string ToAnsi(const std::wstring& text)
{
    char ansi[300] = "";
    WideCharToMultiByte(CP_ACP, 0, text.c_str(), -1, ansi, sizeof ansi, nullptr, nullptr);
    return ansi;
}

} // namespace norvepa::test

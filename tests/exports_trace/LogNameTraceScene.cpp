#include "LogNameTraceScene.h"

#include "support/ShellFolders.h"

#include <windows.h>

namespace norvepa::test
{

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
    return test::LinesTagged(m_lines->read(), tag);
}

std::vector<std::string> LogNameTraceScene::LinesTaggedAnyOf(
    std::initializer_list<std::string_view> tags) const
{
    m_workers->Await();
    return test::LinesTaggedAnyOf(m_lines->read(), tags);
}

std::string ToAnsi(const std::wstring& text)
{
    char ansi[300] = "";
    WideCharToMultiByte(CP_ACP, 0, text.c_str(), -1, ansi, sizeof ansi, nullptr, nullptr);
    return ansi;
}

} // namespace norvepa::test

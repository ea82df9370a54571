#include "LogNameScene.h"

#include "support/ShellFolders.h"
#include "support/XmlMeaning.h"

#include <stdexcept>

namespace norvepa::test
{

LogNameScene::~LogNameScene()
{
    library.NorvepaBl64x_deinit(); // a folder that is watched can't be removed
}

void LogNameScene::UseOurSchemas() const
{
    CopyTree(FromUtf8(NORV_SAMPLE_STORE) + L"\\program-root\\Schemes", roots.program() + L"\\Schemes");
}

void LogNameScene::TakeDataFolderAway() const
{
    DeleteMachineValue(LocationsKey, L"Corvane_Oam_Data");
    SetCommonApplicationData(roots.folder().path());
}

std::wstring LogNameScene::NameForPathOf(std::size_t length) const
{
    return std::wstring(length - folder().size() - 1, L'n');
}

std::vector<std::wstring> LogNameScene::Files() const
{
    return FileNames(folder());
}

std::string LogNameScene::Saved(const std::wstring& fileName) const
{
    return MeaningOfFile(roots.logName(fileName));
}

std::string LogNameScene::Bytes(const std::wstring& fileName) const
{
    return ReadBytes(roots.logName(fileName));
}

void LogNameScene::Register(const NamedEvent& event, const wchar_t* logName, const wchar_t* folderWord) const
{
    if (library.RegisterNotification(folderWord, logName, event.c_str()) != PGSP_OK)
    {
        throw std::runtime_error("the event isn't registered");
    }
}

bool LogNameScene::IsTold(const NamedEvent& event) const
{
    workers.Await();
    return event.IsSet();
}

} // namespace norvepa::test

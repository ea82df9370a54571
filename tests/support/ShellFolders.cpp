#include "support/ShellFolders.h"

#include "support/RedirectedRegistry.h"

namespace norvepa::test
{

namespace
{

const std::wstring CurrentVersion = L"Software\\Microsoft\\Windows\\CurrentVersion";

} // namespace

void SetCommonApplicationData(const std::wstring& folder)
{
    SetMachineText(CurrentVersion + L"\\Explorer\\User Shell Folders", L"Common AppData", folder);
}

void SetCommonProgramFiles(const std::wstring& folder)
{
    SetMachineText(CurrentVersion, L"CommonFilesDir", folder);
}

} // namespace norvepa::test

#include "Doctor.h"
#include "Result.h"
#include "StoreRoots.h"
#include "Text.h"
#include "norvepa.h"

#include <windows.h>

#include <fmt/format.h>

namespace norvctl
{

namespace
{

constexpr wchar_t DriversSchema[] = L"Schemes\\Corvane.Device.Driver.Logdevice.xsd";
constexpr wchar_t NamesSchema[] = L"Schemes\\Corvane.Device.Driver.Logname.xsd";

// The driver's schema is loaded ahead of any log device, also of one that isn't there.
constexpr wchar_t NoLogDevice[] = L"norvctl doctor";

bool CheckRoot(const StoreRoot& root, const std::wstring& path, Findings& findings)
{
    const std::string value =
        fmt::format("{} below HKEY_LOCAL_MACHINE\\{}", ToUtf8(root.value), ToUtf8(LocationsKey));
    if (path.empty())
    {
        findings.push_back({Severity::Error, "folder", root.what,
                            fmt::format("neither the registry nor {} has it", root.shellWord),
                            fmt::format("name it by the value {}", value)});
        return false;
    }
    if (!IsFolder(path))
    {
        findings.push_back({Severity::Error, "folder", ToUtf8(path),
                            fmt::format("the {} folder is not there", root.what),
                            fmt::format("make it, or correct the value {}", value)});
        return false;
    }
    return true;
}

bool CheckFolder(const std::wstring& root, const std::wstring& folder, const char* advice, Findings& findings)
{
    const std::wstring path = root + L'\\' + folder;
    if (IsFolder(path))
    {
        return true;
    }
    findings.push_back({Severity::Error, "folder", ToUtf8(path), "it is not there", advice});
    return false;
}

Finding SchemaFinding(const wchar_t* schema, const char* what)
{
    return {Severity::Error, "schema", ToUtf8(schema), what, "install it anew"};
}

// Only a change of a log name loads the schema of log names.
void CheckNamesSchema(const std::wstring& path, Findings& findings)
{
    WIN32_FILE_ATTRIBUTE_DATA file{};
    if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &file) == FALSE)
    {
        findings.push_back(SchemaFinding(NamesSchema, "it is not there: log names cannot lose a value"));
    }
    else if (file.nFileSizeHigh == 0 && file.nFileSizeLow == 0)
    {
        findings.push_back(SchemaFinding(NamesSchema, "its file is empty: log names cannot lose a value"));
    }
}

} // namespace

StoreFolders CheckFolders(Findings& findings)
{
    constexpr const char* make = "make the folder";
    constexpr const char* install = "install it anew";

    StoreFolders folders;
    const std::wstring data = PathOf(DataRoot);
    if (CheckRoot(DataRoot, data, findings))
    {
        folders.logDevices = CheckFolder(data, FolderOf(DeviceKind), make, findings);
        folders.logNames = CheckFolder(data, FolderOf(NameKind), make, findings);
    }
    const std::wstring program = PathOf(ProgramRoot);
    if (CheckRoot(ProgramRoot, program, findings))
    {
        folders.boards = CheckFolder(program, FolderOf(BoardKind), install, findings);
        folders.protocols = CheckFolder(program, FolderOf(ProtocolKind), install, findings);
        folders.templates = CheckFolder(program, FolderOf(TemplateKind), install, findings);
        folders.schemas = CheckFolder(program, L"Schemes", install, findings);
    }
    return folders;
}

void CheckSchemas(Findings& findings)
{
    uint8_t* records = nullptr;
    uint32_t length = 0;
    if (norvDriverReadLogDevice(NoLogDevice, &records, &length) == PGSP_ERR_CANT_LOAD_SCHEMA)
    {
        findings.push_back(
            SchemaFinding(DriversSchema, "it cannot be loaded: no driver can read a log device"));
    }
    CheckNamesSchema(PathOf(ProgramRoot) + L'\\' + NamesSchema, findings);
}

} // namespace norvctl

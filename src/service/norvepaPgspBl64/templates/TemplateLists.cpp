#include "frame/Arguments.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "store/FileWalk.h"
#include "store/norvxml.h"

#include <vector>

using namespace norvepa;

namespace
{

std::vector<std::wstring> AllFiles(const std::wstring& folder, const std::wstring& dataFolder)
{
    std::vector<std::wstring> names;
    std::wstring name;
    FileWalk files(folder, dataFolder);
    for (std::uint32_t index = 0; files.At(index, &name) == PGSP_OK; ++index)
    {
        names.push_back(name);
    }
    return names;
}

// Step by step from the first name: what ends the walk is the answer.
Result StepToFile(const std::wstring& folder, std::uint32_t index, std::wstring& name)
{
    FileWalk files(folder, GetDataFolder());
    Result result = files.At(0, &name);
    for (std::uint32_t step = 0; result == PGSP_OK && step < index;)
    {
        result = files.At(++step, &name);
    }
    return result;
}

Result ReturnStoreFiles(const ExportFrame& frame, std::wstring_view folder, wchar_t* buffer,
                        std::uint32_t* length, TracePlace place = TracePlace::current())
{
    if (buffer == nullptr || length == nullptr)
    {
        return frame.InvalidParameters(place);
    }
    const std::wstring dataFolder = GetDataFolder();
    if (dataFolder.empty())
    {
        return frame.FolderNotFound("Can not get ProgramData Path", place);
    }
    const std::wstring path = MakeStoreFolder(dataFolder, L"data", folder);
    return ReturnStringList(frame, AllFiles(path, dataFolder), buffer, length, place);
}

std::wstring WithoutAny(std::wstring name, std::wstring_view prefix)
{
    for (std::size_t at = name.find(prefix); at != std::wstring::npos; at = name.find(prefix, at))
    {
        name.erase(at, prefix.size());
    }
    return name;
}

// What a person knows a board by; a board that doesn't tell is known by its file.
std::wstring BoardShown(const std::wstring& name)
{
    std::wstring deviceId(PathCapacity, L'\0');
    auto length = static_cast<std::uint32_t>(deviceId.size());
    if (AnswerOf(PGSP_BoardGetValueBL(name.c_str(), L"DeviceID", deviceId.data(), &length)) != PGSP_OK)
    {
        return WithoutAny(name, BoardPrefix);
    }
    deviceId.resize(length);
    return deviceId;
}

std::wstring NameShown(std::wstring_view folder, const std::wstring& name)
{
    if (EqualNoCase(folder, ProtocolsWord))
    {
        return WithoutAny(name, ProtocolPrefix);
    }
    if (EqualNoCase(folder, TemplatesWord))
    {
        return WithoutAny(name, TemplatePrefix);
    }
    return EqualNoCase(folder, BoardsWord) ? BoardShown(name) : name;
}

} // namespace

int32_t PGSP_TemplateGetListBL(const wchar_t* FolderName, wchar_t* Templates, uint32_t* dwTemplates)
{
    return RunExport("PGSP_TemplateGetListBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> FolderName = %s", TraceToAnsi(FolderName));
        if (IsMissing(FolderName) || Templates == nullptr || dwTemplates == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }
        const std::wstring folder = CatalogueFolder(programFolder, FolderName);
        return ReturnStringList(frame, AllFiles(folder, GetDataFolder()), Templates, dwTemplates);
    });
}

int32_t PGSP_TemplateGetEnumBL(const wchar_t* FolderName, uint32_t index, wchar_t* TemplateName,
                               uint32_t* TemplateLen)
{
    return RunExport("PGSP_TemplateGetEnumBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> FolderName = %s, index = %d", TraceToAnsi(FolderName), index);
        if (IsMissing(FolderName))
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring folder = CatalogueFolder(programFolder, FolderName);
        NORV_TRACE(frame, TraceInfo, "Enumerating templates from: %s", TraceToAnsi(folder.c_str()));
        const std::uint32_t capacity = LengthOrZero(TemplateLen);
        if (const Result result = NorvXMLEnumFileName(folder.c_str(), index, TemplateName, TemplateLen);
            result != PGSP_OK)
        {
            return frame.Return(result);
        }
        // The index of the next one, unlike in the form without prefix.
        NORV_TRACE(frame, TraceExit, "<< return TemplateName = %s, TemplateLen = %d, index = %d",
                   TraceToAnsi(TemplateName, capacity), *TemplateLen, index + 1);
        return PGSP_OK;
    });
}

int32_t PGSP_TemplateGetEnumNoPrefixBL(const wchar_t* FolderName, uint32_t index, wchar_t* TemplateName,
                                       uint32_t* TemplateLen)
{
    return RunExport("PGSP_TemplateGetEnumNoPrefixBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> FolderName = %s, index = %d", TraceToAnsi(FolderName), index);
        if (IsMissing(FolderName)) // the outputs aren't looked at before there is a name
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring folder = CatalogueFolder(programFolder, FolderName);
        NORV_TRACE(frame, TraceInfo, "Enumerating templates from: %s", TraceToAnsi(folder.c_str()));
        std::wstring name;
        if (const Result result = StepToFile(folder, index, name); result != PGSP_OK)
        {
            return frame.Return(result);
        }
        const std::wstring shown = NameShown(FolderName, name);
        if (const Result result = CopyOutUntested(shown, TemplateName, TemplateLen); result != PGSP_OK)
        {
            return frame.Return(result);
        }
        NORV_TRACE(frame, TraceExit, "<< return TemplateName = %s, TemplateLen = %d, index = %d",
                   TraceToAnsi(shown.c_str()), *TemplateLen, index);
        return PGSP_OK;
    });
}

int32_t PGSP_GetLogDeviceListBL(wchar_t* LogDevices, uint32_t* dwLogDevices)
{
    return RunExport("PGSP_GetLogDeviceListBL: ", [&](const ExportFrame& frame) {
        return ReturnStoreFiles(frame, L"LogDevices", LogDevices, dwLogDevices);
    });
}

int32_t PGSP_GetLogNameListBL(wchar_t* LogNames, uint32_t* dwLogNames)
{
    return RunExport("GetLogNameListBL", [&](const ExportFrame& frame) {
        return ReturnStoreFiles(frame, L"LogNames", LogNames, dwLogNames);
    });
}

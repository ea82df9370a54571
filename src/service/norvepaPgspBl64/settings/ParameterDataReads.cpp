#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "frame/StoreLocations.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "store/norvxml.h"

#include <string>

using namespace norvepa;

namespace
{

// A buffer is seen to be empty whatever becomes of the call, also when its capacity is 0.
void ClearFirst(wchar_t* buffer)
{
    if (buffer != nullptr)
    {
        *buffer = L'\0';
    }
}

// The root that a folder word lies in; empty when it can't be found.
std::wstring RootOf(const wchar_t* folder)
{
    return EqualNoCase(folder, L"meta") ? GetProgramFolder() : GetDataFolder();
}

std::wstring FileAt(const std::wstring& root, const wchar_t* folder, const wchar_t* subfolder,
                    const wchar_t* file)
{
    return JoinPath(JoinPath(JoinPath(root, folder), TextOrEmpty(subfolder)), file);
}

} // namespace

int32_t PGSP_GetParameterMetaDataBL(const wchar_t* Folder, const wchar_t* Subfolder, const wchar_t* File,
                                    const wchar_t* Parameter, wchar_t* Value, uint32_t* dwValue)
{
    return RunExport("PGSP_GetParameterMetaDataBL: ", [&](const ExportFrame& frame) -> Result {
        ClearFirst(Value);
        NORV_TRACE(frame, TraceEntry, ">> Folder = %s, Subfolder = %s, File = %s, Parameter = %s",
                   TraceToAnsi(Folder), TraceToAnsi(Subfolder), TraceToAnsi(File), TraceToAnsi(Parameter));
        if (IsMissing(Folder) || IsMissing(File) || IsMissing(Parameter) || Value == nullptr ||
            dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring root = RootOf(Folder);
        if (root.empty())
        {
            return frame.FolderNotFound("Can not get ProgramPath");
        }

        const std::wstring file = FileAt(root, Folder, Subfolder, File);
        std::wstring text;
        Result result = NorvXMLGetParameterData(file.c_str(), Parameter, &text);
        if (result == PGSP_OK)
        {
            result = CopyOut(text, Value, dwValue);
        }
        if (result == PGSP_ERR_BUFFER_TOO_SHORT)
        {
            return result; // without an exit trace
        }
        NORV_TRACE(frame, TraceExit, "<< return lRet = %d, Value = %s, dwValue = %d", result,
                   TraceToAnsi(Value), *dwValue);
        return result;
    });
}

int32_t PGSP_EnumParameterMetaDataBL(const wchar_t* Folder, const wchar_t* Subfolder, const wchar_t* File,
                                     uint32_t index, wchar_t* Parameter, uint32_t* parLen, wchar_t* Value,
                                     uint32_t* valLen)
{
    return RunExport("PGSP_EnumParameterMetaDataBL: ", [&](const ExportFrame& frame) -> Result {
        ClearFirst(Value);
        NORV_TRACE(frame, TraceEntry, ">> Folder = %s, Subfolder = %s, File = %s", TraceToAnsi(Folder),
                   TraceToAnsi(Subfolder), TraceToAnsi(File));
        if (IsMissing(Folder) || IsMissing(File))
        {
            return frame.InvalidParameters();
        }
        const std::wstring root = RootOf(Folder);
        if (root.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const std::wstring file = FileAt(root, Folder, Subfolder, File);
        std::wstring name;
        std::wstring text;
        Result result = NorvXMLEnumParameterData(file.c_str(), index, &name, &text);
        if (result == PGSP_OK)
        {
            result = CopyOutUntested(text, Value, valLen); // ahead of the name, unlike in every other pair
        }
        if (result == PGSP_OK)
        {
            result = CopyOutUntested(name, Parameter, parLen);
        }
        return frame.Return(result);
    });
}

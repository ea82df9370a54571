#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "frame/StoreLocations.h"
#include "norvepa.h"
#include "store/norvxml.h"

#include <string>
#include <string_view>

using namespace norvepa;

namespace
{

// Always below the data folder: what is shipped isn't written.
std::wstring DataFile(std::wstring_view dataFolder, const wchar_t* subfolder, const wchar_t* file)
{
    return JoinPath(MakeStoreFolder(dataFolder, L"data", TextOrEmpty(subfolder)), file);
}

Result ReturnChange(const ExportFrame& frame, Result result, TracePlace place = TracePlace::current())
{
    if (result != PGSP_ERR_SAME_VALUE)
    {
        return frame.Return(result, place);
    }
    NORV_TRACE_AT(place, frame, TraceInfo, "Parameter with same Value already exists");
    return frame.Return(PGSP_OK, place);
}

} // namespace

int32_t PGSP_SetParameterDataBL(const wchar_t* Subfolder, const wchar_t* File, const wchar_t* Parameter,
                                const wchar_t* Value, const wchar_t* Type)
{
    return RunExport("PGSP_SetParameterDataBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> Subfolder = %s, File = %s, Parameter = %s, Value = %s",
                   TraceToAnsi(Subfolder), TraceToAnsi(File), TraceToAnsi(Parameter), TraceToAnsi(Value));
        if (IsMissing(File) || IsMissing(Parameter) || Value == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const std::wstring file = DataFile(dataFolder, Subfolder, File);
        return ReturnChange(frame, NorvXMLSetParameterData(file.c_str(), Parameter, Value, Type));
    });
}

int32_t PGSP_DelParameterDataBL(const wchar_t* Subfolder, const wchar_t* File, const wchar_t* Parameter)
{
    return RunExport("PGSP_DelParameterDataBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> Subfolder = %s, File = %s, Parameter = %s", TraceToAnsi(Subfolder),
                   TraceToAnsi(File), TraceToAnsi(Parameter));
        if (IsMissing(File) || IsMissing(Parameter))
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const std::wstring file = DataFile(dataFolder, Subfolder, File);
        return ReturnChange(frame, NorvXMLDelParameterData(file.c_str(), Parameter));
    });
}

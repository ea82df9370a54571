#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/PackStringList.h"
#include "norvepa.h"
#include "service/ValueList.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "store/norvxml.h"

using namespace norvepa;

namespace
{

Result ReadRequest(const std::wstring& file, const wchar_t* section, const std::wstring& request,
                   std::wstring& value)
{
    if (IsRootAttribute(request))
    {
        return NorvXMLElementGetAttribute(file.c_str(), request.c_str(), &value);
    }
    if (!IsMissing(section))
    {
        return NorvXMLGetValue(file.c_str(), section, request.c_str(), &value);
    }
    Result result = PGSP_ERR_PARAM_NOT_FOUND;
    for (const wchar_t* const searched : SearchedSections)
    {
        result = NorvXMLGetValue(file.c_str(), searched, request.c_str(), &value);
        if (result == PGSP_OK)
        {
            return PGSP_OK;
        }
    }
    return result;
}

} // namespace

int32_t LogDeviceGetValueListBL(const wchar_t* LogDevice, const wchar_t* Section,
                                const wchar_t* ParameterList, int32_t paramListLength, wchar_t* Value,
                                uint32_t* dwValue)
{
    return RunExport("LogDeviceGetValueListBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry,
                   ">> LogDevice = %s, Section = %s, ParameterList = %s, paramListLength = %d",
                   TraceToAnsi(LogDevice), TraceToAnsi(Section), TraceToAnsi(ParameterList), paramListLength);
        if (IsMissing(LogDevice) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        NORV_TRACE(frame, TraceInfo, "dwValue=%d", *dwValue);
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const std::wstring file = LogDeviceFile(dataFolder, LogDevice);
        if (ParameterList == nullptr || paramListLength == 0)
        {
            return ReturnValueList(frame, EnumerateAll(frame, file), Value, dwValue);
        }

        NORV_TRACE(frame, TraceInfo, "Enumerate the ParameterList");
        std::vector<std::wstring> values;
        for (const std::wstring& request : SplitStringList(ParameterList, paramListLength))
        {
            // Whatever the cause, and without a default: one that isn't there is a bad request.
            if (ReadRequest(file, Section, request, values.emplace_back()) != PGSP_OK)
            {
                return frame.InvalidParameters();
            }
        }
        return ReturnValueList(frame, values, Value, dwValue);
    });
}

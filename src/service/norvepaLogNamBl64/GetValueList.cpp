#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/PackStringList.h"
#include "norvepa.h"
#include "service/ValueList.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaLogNamBl64/norvepaLogNamBl64.h"
#include "store/norvxml.h"

using namespace norvepa;

namespace
{

// `CP_TYPE` is the root's attribute here, and not the parameter that linking writes.
Result ReadRequest(const std::wstring& file, const std::wstring& request, std::wstring& value)
{
    return IsRootAttribute(request)
               ? NorvXMLElementGetAttribute(file.c_str(), request.c_str(), &value)
               : NorvXMLGetValue(file.c_str(), ParametersSection, request.c_str(), &value);
}

} // namespace

int32_t LogNameGetValueListBL(const wchar_t* LogName, const wchar_t* Section, const wchar_t* ParameterList,
                              int32_t paramListLength, wchar_t* Value, uint32_t* dwValue)
{
    return RunExport("LogNameGetValueListBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry,
                   ">> LogName = %s, Section = %s, ParameterList = %s, paramListLength = %d",
                   TraceToAnsi(LogName), TraceToAnsi(Section), TraceToAnsi(ParameterList), paramListLength);
        if (IsMissing(LogName) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        NORV_TRACE(frame, TraceInfo, "dwValue=%d", *dwValue);
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const std::wstring file = LogNameFile(dataFolder, LogName);
        if (ParameterList == nullptr || paramListLength == 0)
        {
            return ReturnValueList(frame, EnumerateAll(frame, file), Value, dwValue);
        }

        NORV_TRACE(frame, TraceInfo, "Enumerate the ParameterList");
        std::vector<std::wstring> values;
        for (const std::wstring& request : SplitStringList(ParameterList, paramListLength))
        {
            if (ReadRequest(file, request, values.emplace_back()) != PGSP_OK)
            {
                return frame.InvalidParameters();
            }
        }
        return ReturnValueList(frame, values, Value, dwValue);
    });
}

#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "norvepa.h"
#include "notify/SendNotification.h"
#include "service/norvepaLogNamBl64/norvepaLogNamBl64.h"
#include "store/norvxml.h"

#include <string>

using namespace norvepa;

int32_t LogNameSetValueBL(const wchar_t* LogName, const wchar_t* Parameter, const wchar_t* Value)
{
    return RunExport("LogNameSetValueBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogName = %s, Parameter = %s, Value = %s", TraceToAnsi(LogName),
                   TraceToAnsi(Parameter), TraceToAnsi(Value));
        if (IsMissing(LogName) || Value == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        // No word is protected and nothing is checked against the catalogue; the type is always the string.
        const wchar_t* const parameter = ParameterOrDefault(Parameter);
        const std::wstring file = LogNameFile(dataFolder, LogName);
        const Result result = NorvXMLSetValue(file.c_str(), ParametersSection, parameter, Value, L"string");
        if (result == PGSP_OK)
        {
            SendNotificationBL(LogNamesWord, LogName, L"5");
        }
        return frame.Return(result == PGSP_ERR_SAME_VALUE ? PGSP_OK : result);
    });
}

int32_t LogNameDelValueBL(const wchar_t* LogName, const wchar_t* Parameter)
{
    return RunExport("LogNameDelValueBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogName = %s, Parameter = %s", TraceToAnsi(LogName),
                   TraceToAnsi(Parameter));
        if (IsMissing(LogName) || IsMissing(Parameter))
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const Result result =
            DelValueAndCommit(LogNameFolder(dataFolder), LogName, L"Corvane.Device.Driver.Logname",
                              ParametersSection, Parameter);
        if (result == PGSP_OK)
        {
            SendNotificationBL(LogNamesWord, LogName, L"6");
        }
        return frame.Return(result);
    });
}

#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "norvepa.h"
#include "service/norvepaLogNamBl64/norvepaLogNamBl64.h"
#include "store/norvxml.h"

#include <string>

using namespace norvepa;

int32_t LogNameGetValueBL(const wchar_t* LogName, const wchar_t* Parameter, wchar_t* Value, uint32_t* dwValue)
{
    return RunExport("LogNameGetValueBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogName = %s, Parameter = %s", TraceToAnsi(LogName),
                   TraceToAnsi(Parameter));
        if (IsMissing(LogName) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const wchar_t* const parameter = ParameterOrDefault(Parameter);
        const std::wstring file = LogNameFile(dataFolder, LogName);
        const std::uint32_t capacity = *dwValue;
        Result result = NorvXMLGetValueBuffer(file.c_str(), ParametersSection, parameter, Value, dwValue);
        if (result == PGSP_ERR_CANT_LOAD_XML_FILE)
        {
            result = PGSP_ERR_FILE_NOT_FOUND; // as a log name that doesn't exist reads
        }

        NORV_TRACE(frame, TraceInfo, "Value = %s, dwValue = %d", TraceToAnsi(Value, capacity), *dwValue);
        return frame.Return(result);
    });
}

int32_t LogNameGetLogDeviceBL(const wchar_t* LogName, wchar_t* LogDevice, uint32_t* dwValue)
{
    return RunExport("LogNameGetLogDeviceBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogName = %s", TraceToAnsi(LogName));
        if (IsMissing(LogName) || LogDevice == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        // A file that can't be loaded stays what it is here, unlike in the read of any other value.
        const std::wstring file = LogNameFile(dataFolder, LogName);
        const std::uint32_t capacity = *dwValue;
        const Result result =
            NorvXMLGetValueBuffer(file.c_str(), ParametersSection, L"LogDevice", LogDevice, dwValue);

        NORV_TRACE(frame, TraceInfo, "LogDevice = %s, dwValue = %d", TraceToAnsi(LogDevice, capacity),
                   *dwValue);
        return frame.Return(result);
    });
}

namespace norvepa
{

Result PGSP_LogNameGetValue(const wchar_t* LogName, const wchar_t* Parameter, std::wstring* Value)
{
    const ExportFrame frame{"PGSP_LogNameGetValue: "};

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

    const std::wstring file = LogNameFile(dataFolder, LogName);
    const Result result = NorvXMLGetValue(file.c_str(), ParametersSection, Parameter, Value);
    NORV_TRACE(frame, TraceExit, "<< return lRet = %d, Value = %s", result, TraceToAnsi(Value->c_str()));
    return result;
}

} // namespace norvepa

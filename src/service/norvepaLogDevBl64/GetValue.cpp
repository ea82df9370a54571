#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/SectionSearch.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "store/norvxml.h"

using namespace norvepa;

namespace
{

// From where the catalogue says, or else from the first section that holds the parameter.
Result ReadParameter(DeviceCatalogue& catalogue, const std::wstring& file, const wchar_t* parameter,
                     wchar_t* value, std::uint32_t* length)
{
    std::wstring section = ConstraintOrEmpty(catalogue, parameter, L"section");
    if (section.empty())
    {
        section = FindEntry(file, parameter, LastReadSection).section;
    }
    const std::wstring map = ConstraintOrEmpty(catalogue, parameter, L"map");
    return NorvXMLGetValueBuffer(file.c_str(), section.c_str(), map.empty() ? parameter : map.c_str(), value,
                                 length);
}

// What has been read into a string goes out, with the code that a caller knows for a log device that can't be
// loaded.
Result Deliver(const ExportFrame& frame, const wchar_t* logDevice, Result result, const std::wstring& text,
               wchar_t* value, std::uint32_t* length)
{
    if (result == PGSP_OK)
    {
        result = CopyOut(text, value, length);
    }
    if (result == PGSP_ERR_CANT_LOAD_XML_FILE)
    {
        NORV_TRACE(frame, TraceInfo, "Can't load logdevice %s", TraceToAnsi(logDevice));
        result = PGSP_ERR_LOG_DEVICE_NOT_EXISTS;
    }
    return frame.Return(result);
}

Result DeliverDefault(const ExportFrame& frame, DeviceCatalogue& catalogue, const wchar_t* parameter,
                      wchar_t* value, std::uint32_t* length)
{
    std::wstring text;
    const Result result = LogDeviceGetConstraint(catalogue, parameter, L"default", &text);
    if (result != PGSP_OK)
    {
        NORV_TRACE(frame, TraceExit, "<< return PGSP_ERR_PARAM_NOT_FOUND");
        return PGSP_ERR_PARAM_NOT_FOUND;
    }
    NORV_TRACE(frame, TraceInfo, "Parameter was not found lRet = %d", result);
    NORV_TRACE(frame, TraceInfo, "Use default value: %s", TraceToAnsi(text.c_str()));
    return Deliver(frame, catalogue.logDevice(), result, text, value, length);
}

} // namespace

int32_t LogDeviceGetValueBL(const wchar_t* LogDevice, const wchar_t* Parameter, wchar_t* Value,
                            uint32_t* dwValue)
{
    return RunExport("LogDeviceGetValueBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s", TraceToAnsi(LogDevice),
                   TraceToAnsi(Parameter));
        if (IsMissing(LogDevice) || Value == nullptr || dwValue == nullptr || *dwValue == 0)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const wchar_t* const parameter = IsMissing(Parameter) ? DefaultDeviceParameter : Parameter;
        if (const auto name = SplitSubdevice(LogDevice))
        {
            std::wstring text;
            const Result result = ReadSubdevice(frame, dataFolder, *name, parameter, text);
            return Deliver(frame, LogDevice, result, text, Value, dwValue);
        }

        const std::wstring file = LogDeviceFile(dataFolder, LogDevice);
        DeviceCatalogue catalogue(LogDevice, dataFolder);
        const Result result = IsRootAttribute(parameter)
                                  ? NorvXMLElementGetAttribute(file.c_str(), parameter, Value, dwValue)
                                  : ReadParameter(catalogue, file, parameter, Value, dwValue);
        switch (result)
        {
        case PGSP_OK:
            NORV_TRACE(frame, TraceExit, "<< return lRet = %d, Value = %s, dwValue = %d", result,
                       TraceToAnsi(Value), *dwValue);
            return PGSP_OK;
        case PGSP_ERR_BUFFER_TOO_SHORT:
            return frame.BufferTooShort();
        case PGSP_ERR_CANT_LOAD_XML_FILE:
            return Deliver(frame, LogDevice, result, {}, Value, dwValue);
        default:
            return DeliverDefault(frame, catalogue, parameter, Value, dwValue);
        }
    });
}

#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "store/norvxml.h"

using namespace norvepa;

namespace
{

// Each section is asked with the caller's own capacity, and only when the one ahead of it had no answer that
// fits.
Result SearchSections(const std::wstring& file, const wchar_t* parameter, wchar_t* value,
                      std::uint32_t* length)
{
    const std::uint32_t capacity = *length;
    Result result = PGSP_ERR_PARAM_NOT_FOUND;
    for (const wchar_t* const section : SearchedSections)
    {
        *length = capacity;
        result = NorvXMLGetValueBuffer(file.c_str(), section, parameter, value, length);
        if (result == PGSP_OK)
        {
            return PGSP_OK;
        }
    }
    return result;
}

Result ReadParameter(const std::wstring& file, const wchar_t* section, const wchar_t* parameter,
                     wchar_t* value, std::uint32_t* length)
{
    if (IsRootAttribute(parameter))
    {
        return NorvXMLElementGetAttribute(file.c_str(), parameter, value, length);
    }
    return IsMissing(section) ? SearchSections(file, parameter, value, length)
                              : NorvXMLGetValueBuffer(file.c_str(), section, parameter, value, length);
}

// What the local string holds goes out whatever the result: a failed read empties the caller's buffer.
Result DeliverAnyway(const ExportFrame& frame, Result result, const std::wstring& text, wchar_t* value,
                     std::uint32_t* length)
{
    const bool fits = CopyOut(text, value, length) == PGSP_OK;
    return frame.Return(fits ? result : PGSP_ERR_BUFFER_TOO_SHORT);
}

} // namespace

int32_t LogDeviceGetValueExBL(const wchar_t* LogDevice, const wchar_t* Section, const wchar_t* Parameter,
                              wchar_t* Value, uint32_t* dwValue)
{
    return RunExport("PGSP_LogDeviceGetValueExBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Section = %s, Parameter = %s",
                   TraceToAnsi(LogDevice), TraceToAnsi(Section), TraceToAnsi(Parameter));
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
            return DeliverAnyway(frame, result, text, Value, dwValue);
        }

        const Result result =
            ReadParameter(LogDeviceFile(dataFolder, LogDevice), Section, parameter, Value, dwValue);
        if (result == PGSP_OK || result == PGSP_ERR_BUFFER_TOO_SHORT)
        {
            return frame.Return(result);
        }
        return DeliverAnyway(frame, result, {}, Value, dwValue);
    });
}

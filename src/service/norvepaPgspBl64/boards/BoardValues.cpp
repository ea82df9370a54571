#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "store/norvxml.h"

using namespace norvepa;

namespace
{

// The three places of a board's value: each is asked with the caller's own capacity, and only when the one
// ahead of it had no answer that fits. The last result is the answer.
Result ReadBoardValue(const std::wstring& file, const wchar_t* parameter, wchar_t* value,
                      std::uint32_t* length)
{
    const std::uint32_t capacity = *length;
    Result result = NorvXMLElementGetAttribute(file.c_str(), parameter, value, length);
    for (const wchar_t* const section : {L"Install", L"BoardAttributes"})
    {
        if (result == PGSP_OK)
        {
            return PGSP_OK;
        }
        *length = capacity;
        result = NorvXMLGetValueBuffer(file.c_str(), section, parameter, value, length);
    }
    return result;
}

Result ReadBoardValueRaw(const ExportFrame& frame, const std::wstring& file, const wchar_t* path,
                         const wchar_t* parameter, wchar_t* value, std::uint32_t* length)
{
    NORV_TRACE(frame, TraceInfo, "NorvXMLGetValueRaw");
    std::wstring text;
    const Result result = NorvXMLGetValueRaw(file.c_str(), path, parameter, &text);
    return result == PGSP_OK ? CopyOut(text, value, length) : result;
}

} // namespace

int32_t PGSP_BoardGetValueBL(const wchar_t* DeviceID, const wchar_t* Parameter, wchar_t* Value,
                             uint32_t* dwValue)
{
    return RunExport("PGSP_BoardGetValueBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> DeviceID = %s, Parameter = %s", TraceToAnsi(DeviceID),
                   TraceToAnsi(Parameter));
        if (IsMissing(DeviceID) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = BoardFile(programFolder, MakeBoardNameTestFirst(DeviceID));
        const std::uint32_t capacity = *dwValue;
        const Result result = ReadBoardValue(file, ParameterOrDefault(Parameter), Value, dwValue);

        NORV_TRACE(frame, TraceInfo, "Value = %s, dwValue = %d", TraceToAnsi(Value, capacity), *dwValue);
        return frame.Return(result);
    });
}

int32_t PGSP_BoardGetValueRawBL(const wchar_t* DeviceID, const wchar_t* ParameterPath,
                                const wchar_t* Parameter, wchar_t* Value, uint32_t* dwValue)
{
    return RunExport("PGSP_BoardGetValueRawBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> DeviceID = %s, Parameter = %s", TraceToAnsi(DeviceID),
                   TraceToAnsi(Parameter));
        if (IsMissing(DeviceID) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = BoardFile(programFolder, MakeBoardNameTestFirst(DeviceID));
        const wchar_t* const parameter = ParameterOrDefault(Parameter);
        const std::uint32_t capacity = *dwValue;
        const Result result = IsMissing(ParameterPath)
                                  ? ReadBoardValue(file, parameter, Value, dwValue)
                                  : ReadBoardValueRaw(frame, file, ParameterPath, parameter, Value, dwValue);

        NORV_TRACE(frame, TraceInfo, "Value = %s, dwValue = %d", TraceToAnsi(Value, capacity), *dwValue);
        return frame.Return(result);
    });
}

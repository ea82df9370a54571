#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "store/BufferForms.h"
#include "store/norvxml.h"

using namespace norvepa;

namespace
{

// As a caller sees a link to a page; empty for one that leads nowhere.
Result ReadLink(const std::wstring& file, const wchar_t* parameter, int wide, std::wstring& value)
{
    std::wstring assembly;
    std::wstring path;
    std::wstring function;
    const Result result =
        NorvXMLGetParameterAssemblyLink(file.c_str(), parameter, &assembly, &path, &function, wide);
    if (result == PGSP_OK && !(assembly.empty() && function.empty()))
    {
        value = assembly + L"," + function;
    }
    return result;
}

} // namespace

int32_t PGSP_LogDeviceEnumNdiValueBL(const wchar_t* LogDevice, uint32_t index, wchar_t* Parameter,
                                     uint32_t* parLen, wchar_t* Value, uint32_t* valLen, int32_t flag)
{
    return RunExport("PGSP_LogDeviceEnumNdiValueBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, index = %d", TraceToAnsi(LogDevice), index);
        const PairBuffers pair{Parameter, parLen, Value, valLen};
        if (IsMissing(LogDevice) || !pair.HasBuffers() || !pair.HasLengths())
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const std::wstring file = LogDeviceFile(dataFolder, LogDevice);
        const auto enumerate = [&](std::wstring* name, std::wstring* value) {
            return NorvXMLEnumNdi(file.c_str(), index, name, value, flag);
        };
        if (const Result result = ReadIntoPair(enumerate, pair); result != PGSP_OK)
        {
            return frame.Return(result);
        }
        NORV_TRACE(frame, TraceInfo, "Parameter = %s, parLen = %d, Value = %s, valLen = %d",
                   TraceToAnsi(Parameter), *parLen, TraceToAnsi(Value), *valLen);
        return PGSP_OK; // without an exit trace
    });
}

int32_t PGSP_LogDeviceGetNdiBL(const wchar_t* LogDevice, const wchar_t* Parameter, wchar_t* Value,
                               uint32_t* dwValue, int32_t flag)
{
    return RunExport("PGSP_LogDeviceGetNdiBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s", TraceToAnsi(LogDevice),
                   TraceToAnsi(Parameter));
        if (IsMissing(LogDevice) || IsMissing(Parameter) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const std::uint32_t capacity = *dwValue;
        const auto answer = [&](Result result) {
            NORV_TRACE(frame, TraceExit, "<< return lRet = %d, Value = %s, dwValue = %d", result,
                       TraceToAnsi(Value, capacity), *dwValue);
            return result;
        };
        const std::wstring file = LogDeviceFile(dataFolder, LogDevice);
        const Result result = NorvXMLGetValueBuffer(file.c_str(), L"Ndi", Parameter, Value, dwValue);
        if (result == PGSP_OK)
        {
            return answer(PGSP_OK);
        }
        if (result == PGSP_ERR_CANT_LOAD_XML_FILE)
        {
            return answer(PGSP_ERR_FILE_NOT_FOUND);
        }

        // Whatever else came of it, a value that didn't fit too, the links are asked next.
        *dwValue = capacity;
        std::wstring link;
        if (ReadLink(file, Parameter, flag, link) != PGSP_OK)
        {
            return answer(AnswerOf(
                PGSP_LogDeviceGetResourceStringBL(LogDevice, Parameter, nullptr, Value, dwValue, flag)));
        }
        if (CopyOut(link, Value, dwValue) != PGSP_OK)
        {
            return PGSP_ERR_BUFFER_TOO_SHORT; // without an exit trace
        }
        return answer(PGSP_OK);
    });
}

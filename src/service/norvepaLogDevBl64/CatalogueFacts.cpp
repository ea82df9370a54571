#include "frame/Arguments.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"

#include <cstdint>
#include <string>

using namespace norvepa;

namespace
{

// The files that a log device's own words name: the prefix goes ahead of whatever they are.
std::wstring BoardNamed(std::wstring_view deviceId)
{
    return std::wstring(BoardPrefix).append(WithoutStar(deviceId));
}

std::wstring ProtocolNamed(std::wstring_view cpType)
{
    return std::wstring(ProtocolPrefix).append(cpType);
}

// What is asked of a log device's catalogue, and where the answer goes.
struct DescriptionAsked
{
    const wchar_t* logDevice;
    const wchar_t* parameter;
    const wchar_t* description;
    wchar_t* text;
    std::uint32_t* length;
};

Result AskBoard(const DescriptionAsked& asked)
{
    std::wstring deviceId;
    if (const Result result = LogDeviceGetValue(asked.logDevice, L"DeviceID", &deviceId); result != PGSP_OK)
    {
        return result;
    }
    return AnswerOf(PGSP_TemplateGetConstraintBL(BoardsWord, BoardNamed(deviceId).c_str(), asked.parameter,
                                                 asked.description, asked.text, asked.length));
}

// A parameter with a backslash is a parameter and a value of it, whose one description is meant.
Result AskProtocol(const DescriptionAsked& asked)
{
    std::wstring cpType;
    if (const Result result = LogDeviceGetValue(asked.logDevice, L"CP_TYPE", &cpType); result != PGSP_OK)
    {
        return result;
    }
    const std::wstring protocol = ProtocolNamed(cpType);
    const Result result =
        AnswerOf(Holds(asked.parameter, L"\\")
                     ? PGSP_GetParamDescBL(protocol.c_str(), asked.parameter, asked.text, asked.length)
                     : PGSP_TemplateGetConstraintBL(ProtocolsWord, protocol.c_str(), asked.parameter,
                                                    asked.description, asked.text, asked.length));
    return result == PGSP_ERR_PARAM_NOT_FOUND ? PGSP_ERR_PARAM_DESC_NOT_FOUND : result;
}

} // namespace

int32_t LogDeviceGetAsicTypeBL(const wchar_t* LogDevice, wchar_t* AsicType, uint32_t* dwAsicType)
{
    return RunExport("LogDeviceGetAsicTypeBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s", TraceToAnsi(LogDevice));
        if (LogDevice == nullptr || AsicType == nullptr || dwAsicType == nullptr)
        {
            return frame.InvalidParameters();
        }

        // Both failures are told without an exit trace. Parameters of the log device's own play no part.
        std::wstring deviceId;
        if (const Result result = PGSP_LogDeviceGetValue(LogDevice, L"DeviceID", &deviceId);
            result != PGSP_OK)
        {
            return result;
        }
        if (const Result result = AnswerOf(
                PGSP_BoardGetValueBL(BoardNamed(deviceId).c_str(), L"Asic_Type", AsicType, dwAsicType));
            result != PGSP_OK)
        {
            return result;
        }
        NORV_TRACE(frame, TraceExit, "<< return PGSP_OK. ASIC = %s", TraceToAnsi(AsicType));
        return PGSP_OK;
    });
}

int32_t LogDeviceGetParamDescBL(const wchar_t* LogDevice, const wchar_t* Parameter, const wchar_t* ParamDesc,
                                wchar_t* Value, uint32_t* dwValue)
{
    return RunExport("LogDeviceGetParamDescBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s, ParamDesc = %s",
                   TraceToAnsi(LogDevice), TraceToAnsi(Parameter), TraceToAnsi(ParamDesc));
        if (IsMissing(LogDevice) || IsMissing(Parameter) || IsMissing(ParamDesc) || Value == nullptr ||
            dwValue == nullptr || *dwValue == 0)
        {
            return frame.InvalidParameters();
        }

        const std::uint32_t capacity = *dwValue;
        const DescriptionAsked asked{LogDevice, Parameter, ParamDesc, Value, dwValue};
        Result result = AnswerOf(LogDeviceExistBL(LogDevice, 4));
        if (result == PGSP_ERR_FILE_NOT_FOUND)
        {
            result = PGSP_ERR_LOG_DEVICE_NOT_EXISTS;
        }
        else if (result == PGSP_OK && AskBoard(asked) != PGSP_OK)
        {
            *dwValue = capacity; // each place is asked with what the caller offered
            result = AskProtocol(asked);
        }

        if (result != PGSP_OK)
        {
            NORV_TRACE(frame, TraceExit, "<< return %d", result);
            return result;
        }
        NORV_TRACE(frame, TraceExit, "<< return PGSP_OK, Value = %s", TraceToAnsi(Value));
        return PGSP_OK;
    });
}

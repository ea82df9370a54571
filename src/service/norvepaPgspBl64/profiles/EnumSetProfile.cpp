#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/profiles/profiles.h"

#include <cstdint>
#include <optional>

namespace norvepa
{

namespace
{

// The value of a parameter as a caller reads it; none also for one that doesn't fit.
std::optional<std::wstring> ReadOldValue(const wchar_t* logDevice, const wchar_t* parameter)
{
    constexpr std::uint32_t capacity = 256;
    std::wstring value(capacity, L'\0');
    std::uint32_t length = capacity;
    if (AnswerOf(LogDeviceGetValueBL(logDevice, parameter, value.data(), &length)) != PGSP_OK)
    {
        return std::nullopt;
    }
    value.resize(length);
    return value;
}

} // namespace

Result PGSP_LogDeviceEnumSetProfileBL(const wchar_t* LogDevice, const wchar_t* Parameter,
                                      const wchar_t* Value) noexcept
{
    return Result{RunExport("PGSP_LogDeviceEnumSetProfileBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s, Value = %s", TraceToAnsi(LogDevice),
                   TraceToAnsi(Parameter), TraceToAnsi(Value));
        if (IsMissing(LogDevice) || IsMissing(Parameter) || Value == nullptr)
        {
            return frame.InvalidParameters();
        }
        const auto oldValue = ReadOldValue(LogDevice, Parameter);
        if (!oldValue)
        {
            NORV_TRACE(frame, TraceExit, "<< return PGSP_ERR_PARAM_NOT_FOUND");
            return PGSP_ERR_PARAM_NOT_FOUND;
        }
        if (AnswerOf(LogDeviceSetValueBL(LogDevice, Parameter, Value)) != PGSP_OK)
        {
            return ReturnNoValue(frame);
        }

        std::wstring protocol;
        const Result known = ResultOf([&] { return LogDeviceGetValue(LogDevice, L"CP_TYPE", &protocol); });
        if (known != PGSP_OK && known != OutOfMemory)
        {
            return ReturnNoValue(frame); // the new value stays
        }
        const Result applied =
            known == PGSP_OK ? Result{PGSP_LogDeviceSetProfileRBL(LogDevice, protocol.c_str(), Parameter)}
                             : known;
        if (applied == PGSP_OK)
        {
            return frame.Return(PGSP_OK);
        }
        static_cast<void>(LogDeviceSetValueBL(LogDevice, Parameter, oldValue->c_str()));
        return applied == OutOfMemory ? frame.Return(applied) : ReturnNoValue(frame);
    })};
}

} // namespace norvepa

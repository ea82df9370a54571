#include "frame/Arguments.h"
#include "frame/Text.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"

#include <windows.h>

#include <cmath>
#include <cwchar>

namespace norvepa
{

namespace
{

constexpr int DecimalBase = 10;

// What the catalogue says of an "int".
struct Limits
{
    std::wstring type;
    std::wstring min;
    std::wstring max;
    std::wstring step;
    std::wstring base;
};

Limits LimitsOf(DeviceCatalogue& catalogue, const wchar_t* parameter, const std::wstring& type)
{
    Limits limits{type, ConstraintOrEmpty(catalogue, parameter, L"min"),
                  ConstraintOrEmpty(catalogue, parameter, L"max"),
                  ConstraintOrEmpty(catalogue, parameter, L"step"), L"10"};
    std::wstring base;
    if (LogDeviceGetConstraint(catalogue, parameter, L"base", &base) == PGSP_OK)
    {
        limits.base = base;
    }
    return limits;
}

// The words that stand for a value of the catalogue's.
std::wstring Replaced(DeviceCatalogue& catalogue, const wchar_t* parameter, const Limits& limits,
                      const std::wstring& value)
{
    if (EqualNoCase(value, L"min"))
    {
        return limits.min;
    }
    if (EqualNoCase(value, L"max"))
    {
        return limits.max;
    }
    return EqualNoCase(value, L"default") ? ConstraintOrEmpty(catalogue, parameter, L"default") : value;
}

// The user's language compares here, unlike anywhere else: what it passes over, such as a soft hyphen,
// doesn't count.
bool IsWord(const std::wstring& value, const wchar_t* word)
{
    return lstrcmpiW(value.c_str(), word) == 0;
}

Result CheckBool(const ExportFrame& frame, const std::wstring& value)
{
    if (!IsWord(value, L"true") && !IsWord(value, L"false"))
    {
        NORV_TRACE(frame, TraceExit, "<< return PGSP_NOT_A_BOOL");
        return PGSP_NOT_A_BOOL;
    }
    return frame.Ok();
}

Result CheckBounds(const ExportFrame& frame, const Limits& limits, const std::wstring& text)
{
    // Without a minimum the value isn't looked at: a maximum alone is compared with 0.
    double value = 0;
    double minimum = 0;
    if (!limits.min.empty())
    {
        value = ConstraintTextToNumber(text, limits.type, limits.base);
        minimum = ConstraintTextToNumber(limits.min, limits.type, limits.base);
        if (minimum > value)
        {
            NORV_TRACE(frame, TraceExit, "<< return PGSP_SET_VAL_LESS_THAN_MIN");
            return PGSP_SET_VAL_LESS_THAN_MIN;
        }
    }
    if (!limits.max.empty() && value > ConstraintTextToNumber(limits.max, limits.type, limits.base))
    {
        NORV_TRACE(frame, TraceExit, "<< return PGSP_SET_VAL_BIGGER_THAN_MAX");
        return PGSP_SET_VAL_BIGGER_THAN_MAX;
    }
    if (!limits.step.empty() && !limits.min.empty())
    {
        const double step = ConstraintTextToNumber(limits.step, limits.type, limits.base);
        if (step >= 2.0 && std::fmod(value - minimum, step) != 0.0)
        {
            NORV_TRACE(frame, TraceExit, "<< return PGSP_NOT_IN_STEP");
            return PGSP_NOT_IN_STEP;
        }
    }
    return frame.Ok();
}

} // namespace

double ConstraintTextToNumber(const std::wstring& text, std::wstring_view type, const std::wstring& base)
{
    const long given = std::wcstol(base.c_str(), nullptr, DecimalBase);
    const int radix = given < 2 || given > 35 ? DecimalBase : static_cast<int>(given);
    return EqualNoCase(type, L"int") ? static_cast<double>(std::wcstol(text.c_str(), nullptr, radix))
                                     : static_cast<double>(std::wcstoul(text.c_str(), nullptr, radix));
}

Result LogDeviceCheckValue(DeviceCatalogue& catalogue, const wchar_t* Parameter, std::wstring* value)
{
    const ExportFrame frame{"LogDeviceCheckValue: "};

    if (value == nullptr)
    {
        NORV_TRACE(frame, TraceExit, "<< return PGSP_ERR_INVALID_PARAMETERS, invalid parameter sValue");
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s, Value = %s",
               TraceToAnsi(catalogue.logDevice()), TraceToAnsi(Parameter), TraceToAnsi(value->c_str()));
    if (IsMissing(catalogue.logDevice()) || IsMissing(Parameter))
    {
        return frame.InvalidParameters();
    }

    std::wstring type;
    if (LogDeviceGetConstraint(catalogue, Parameter, L"type", &type) != PGSP_OK)
    {
        NORV_TRACE(frame, TraceExit,
                   "<< return PGSP_OK. Constraint not found, set value without Parameter Control");
        return PGSP_OK;
    }
    if (EqualNoCase(type, L"bool"))
    {
        return CheckBool(frame, *value);
    }
    if (!EqualNoCase(type, L"int"))
    {
        return frame.Ok(); // a "string", or a word that nobody knows
    }

    const Limits limits = LimitsOf(catalogue, Parameter, type);
    if (EqualNoCase(Parameter, L"baudrate") || EqualNoCase(Parameter, L"l4_timeout"))
    {
        const Result result = LogDeviceCheckConstraintList(catalogue, Parameter, value->c_str());
        NORV_TRACE(frame, TraceExit, "<< return 0x%x", static_cast<unsigned>(result));
        return result;
    }
    *value = Replaced(catalogue, Parameter, limits, *value);
    if (value->empty())
    {
        return frame.InvalidParameters();
    }
    return CheckBounds(frame, limits, *value);
}

Result LogDeviceCheckValue(const wchar_t* LogDevice, const wchar_t* Parameter, std::wstring* value)
{
    DeviceCatalogue catalogue(LogDevice);
    return LogDeviceCheckValue(catalogue, Parameter, value);
}

} // namespace norvepa

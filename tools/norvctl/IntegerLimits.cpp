#include "IntegerLimits.h"

#include "Text.h"
#include "norvepa.h"

#include <cmath>
#include <cwchar>
#include <optional>

namespace norvctl
{

namespace
{

constexpr int DecimalBase = 10;

int RadixOf(const std::wstring& base)
{
    const long given = std::wcstol(base.c_str(), nullptr, DecimalBase);
    return given < 2 || given > 35 ? DecimalBase : static_cast<int>(given);
}

// A text counts by its leading digits, and without any as 0.
double ToNumber(const std::wstring& text, const std::wstring& base)
{
    return static_cast<double>(std::wcstol(text.c_str(), nullptr, RadixOf(base)));
}

// Of a text that is a number as a whole.
std::optional<long> WholeNumber(const std::wstring& text, const std::wstring& base)
{
    wchar_t* end = nullptr;
    const long number = std::wcstol(text.c_str(), &end, RadixOf(base));
    return text.empty() || *end != L'\0' ? std::nullopt : std::optional(number);
}

// The step counts from two on, and from the minimum.
bool HasSteps(const ValueLimits& limits)
{
    return !limits.min.empty() && ToNumber(limits.step, limits.base) >= 2;
}

// In any base it is stored as a decimal one.
bool IsStorable(const std::wstring& value)
{
    wchar_t* end = nullptr;
    static_cast<void>(std::wcstol(value.c_str(), &end, DecimalBase));
    return *end == L'\0';
}

// Words stand for values of the catalogue's.
std::wstring Replaced(const ValueLimits& limits, const std::wstring& value)
{
    if (EqualNoCase(value, L"min"))
    {
        return limits.min;
    }
    if (EqualNoCase(value, L"max"))
    {
        return limits.max;
    }
    return EqualNoCase(value, L"default") ? limits.standard : value;
}

} // namespace

int32_t CheckInteger(const ValueLimits& limits, const std::wstring& given)
{
    const std::wstring value = Replaced(limits, given);
    if (value.empty())
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    // Without a minimum the value isn't looked at: a maximum alone is compared with 0.
    const bool hasMin = !limits.min.empty();
    const double number = hasMin ? ToNumber(value, limits.base) : 0;
    const double minimum = hasMin ? ToNumber(limits.min, limits.base) : 0;
    if (number < minimum)
    {
        return PGSP_SET_VAL_LESS_THAN_MIN;
    }
    if (!limits.max.empty() && number > ToNumber(limits.max, limits.base))
    {
        return PGSP_SET_VAL_BIGGER_THAN_MAX;
    }
    if (HasSteps(limits) && std::fmod(number - minimum, ToNumber(limits.step, limits.base)) != 0)
    {
        return PGSP_NOT_IN_STEP;
    }
    return IsStorable(value) ? PGSP_OK : PGSP_ERR_INVALID_PARAMETERS;
}

bool IsSameInteger(const ValueLimits& limits, const std::wstring& left, const std::wstring& right)
{
    const std::optional<long> first = WholeNumber(left, limits.base);
    const std::optional<long> second = WholeNumber(right, limits.base);
    return first && second ? *first == *second : EqualNoCase(left, right);
}

std::string AsRange(const ValueLimits& limits)
{
    if (limits.min.empty()) // then the maximum isn't looked at
    {
        return "whole numbers";
    }
    std::string text = ToUtf8(limits.min);
    text += limits.max.empty() ? " and more" : " to " + ToUtf8(limits.max);
    text += HasSteps(limits) ? " in steps of " + ToUtf8(limits.step) : "";
    text += RadixOf(limits.base) == DecimalBase ? "" : ", all to the base " + ToUtf8(limits.base);
    return text;
}

} // namespace norvctl

#include "catalogue/ConstraintKey.h"

#include "frame/StoreLocations.h"

namespace norvepa
{

std::wstring ConstraintKey(std::wstring_view parameter)
{
    return JoinPath(L"Constraints", parameter);
}

std::wstring ConstraintKey(std::wstring_view parameter, std::wstring_view value)
{
    return JoinPath(ConstraintKey(parameter), value);
}

std::wstring ConstraintKey(std::wstring_view parameter, std::wstring_view value,
                           std::wstring_view subParameter)
{
    return JoinPath(ConstraintKey(parameter, value), subParameter);
}

std::wstring ConstraintKey(std::wstring_view parameter, std::wstring_view value,
                           std::wstring_view subParameter, std::wstring_view subValue)
{
    return JoinPath(ConstraintKey(parameter, value, subParameter), subValue);
}

} // namespace norvepa

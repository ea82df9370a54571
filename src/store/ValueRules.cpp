#include "store/ValueRules.h"

#include "frame/Arguments.h"
#include "frame/Text.h"

#include <array>
#include <cwchar>

namespace norvepa
{

namespace
{

struct TypeRow
{
    std::wstring_view type;
    std::wstring_view element;
};

constexpr std::array<TypeRow, 4> TypeTable{{
    {L"int", L"ParameterInt"},
    {L"bool", L"ParameterBool"},
    {L"string", L"Parameter"},
    {L"", L"Parameter"},
}};

constexpr std::wstring_view ForbiddenInNames = L" []^!\"\u00A7$%&()=?\u00B4'#+><*|;,";
constexpr std::wstring_view ForbiddenInValues = L"<>";

} // namespace

std::wstring_view EntryElementOf(std::wstring_view type) noexcept
{
    for (const TypeRow& row : TypeTable)
    {
        if (EqualNoCase(row.type, type))
        {
            return row.element;
        }
    }
    return type;
}

bool IsInteger(const wchar_t* text) noexcept
{
    wchar_t* end = nullptr;
    static_cast<void>(std::wcstol(text, &end, 10));
    return *end == L'\0';
}

bool IsBoolean(std::wstring_view text) noexcept
{
    return EqualNoCase(text, L"true") || EqualNoCase(text, L"false");
}

bool AreNameCharacters(std::wstring_view parameter) noexcept
{
    return parameter.find_first_of(ForbiddenInNames) == std::wstring_view::npos;
}

bool AreValueCharacters(std::wstring_view value) noexcept
{
    return value.find_first_of(ForbiddenInValues) == std::wstring_view::npos;
}

bool AreStringCharacters(std::wstring_view parameter, std::wstring_view value) noexcept
{
    return AreNameCharacters(parameter) && AreValueCharacters(value);
}

std::wstring NormalisedBoolean(std::wstring_view text)
{
    return EqualNoCase(text, L"true") ? L"true" : L"false";
}

Result CheckTypedValue(std::wstring_view type, std::wstring_view parameter, const wchar_t* value,
                       std::wstring& stored)
{
    stored = TextOrEmpty(value);
    if (EqualNoCase(type, L"int"))
    {
        return IsInteger(stored.c_str()) ? PGSP_OK : PGSP_ERR_INVALID_PARAMETERS;
    }
    if (EqualNoCase(type, L"bool"))
    {
        if (!IsBoolean(stored))
        {
            return PGSP_ERR_INVALID_PARAMETERS;
        }
        stored = NormalisedBoolean(stored);
        return PGSP_OK;
    }
    if (type.empty() || EqualNoCase(type, L"string"))
    {
        return AreStringCharacters(parameter, stored) ? PGSP_OK : PGSP_ERR_INVALID_PARAMETERS;
    }
    return PGSP_OK;
}

} // namespace norvepa

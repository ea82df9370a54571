#include "support/UserLanguage.h"

namespace norvepa::test
{

namespace
{

std::wstring name;

int WINAPI Tell(LCID locale, LCTYPE type, wchar_t* buffer, int capacity)
{
    if (locale != LOCALE_USER_DEFAULT || type != LOCALE_SNAME)
    {
        return GetLocaleInfoW(locale, type, buffer, capacity);
    }
    const int needed = static_cast<int>(name.size()) + 1;
    if (name.empty() || needed > capacity)
    {
        SetLastError(ERROR_INSUFFICIENT_BUFFER);
        return 0;
    }
    name.copy(buffer, name.size());
    buffer[name.size()] = L'\0';
    return needed;
}

} // namespace

UserLanguage::UserLanguage(const std::wstring& locale, HMODULE module)
    : m_hook("GetLocaleInfoW", &Tell, module)
{
    name = locale;
}

UserLanguage::~UserLanguage() = default;

} // namespace norvepa::test

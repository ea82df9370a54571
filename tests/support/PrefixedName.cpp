#include "support/PrefixedName.h"

#include <algorithm>
#include <cwctype>

namespace norvepa::test
{

namespace
{

std::wstring Cased(std::wstring_view text, std::wint_t (*letter)(std::wint_t))
{
    std::wstring cased(text);
    std::transform(cased.begin(), cased.end(), cased.begin(),
                   [=](wchar_t each) { return static_cast<wchar_t>(letter(each)); });
    return cased;
}

void Replace(std::wstring& text, std::wstring_view part, const std::wstring& by)
{
    for (std::size_t at = text.find(part); at != std::wstring::npos; at = text.find(part, at + by.size()))
    {
        text.replace(at, part.size(), by);
    }
}

} // namespace

std::wstring PrefixedName(std::wstring_view name, std::wstring_view prefix)
{
    std::wstring whole(name);
    Replace(whole, L"{Prefix}", std::wstring(prefix));
    Replace(whole, L"{prefix}", Cased(prefix, std::towlower));
    Replace(whole, L"{PREFIX}", Cased(prefix, std::towupper));
    return whole;
}

} // namespace norvepa::test

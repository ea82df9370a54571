#include "frame/Text.h"

#include <windows.h>

namespace norvepa
{

namespace
{

constexpr wchar_t FirstOutsideAscii = 0x80;

constexpr wchar_t FoldAscii(wchar_t character) noexcept
{
    return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character + (L'a' - L'A'))
                                                  : character;
}

bool EqualBySystemTable(std::wstring_view left, std::wstring_view right) noexcept
{
    return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                                static_cast<int>(right.size()), TRUE) == CSTR_EQUAL;
}

} // namespace

bool EqualNoCase(std::wstring_view left, std::wstring_view right) noexcept
{
    if (left.size() != right.size())
    {
        return false;
    }

    // Nearly all names are ASCII, and the system's comparison costs more than the walk around it.
    for (std::size_t i = 0; i < left.size(); ++i)
    {
        if (left[i] >= FirstOutsideAscii || right[i] >= FirstOutsideAscii)
        {
            return EqualBySystemTable(left.substr(i), right.substr(i));
        }
        if (FoldAscii(left[i]) != FoldAscii(right[i]))
        {
            return false;
        }
    }
    return true;
}

bool EqualNoCase(std::wstring_view left, std::wstring_view right, std::size_t limit) noexcept
{
    return EqualNoCase(left.substr(0, limit), right.substr(0, limit));
}

std::wstring ToLower(std::wstring_view text)
{
    std::wstring lower(text);
    const auto size = static_cast<int>(lower.size());
    if (size > 0)
    {
        LCMapStringW(LOCALE_INVARIANT, LCMAP_LOWERCASE, text.data(), size, lower.data(), size);
    }
    return lower;
}

std::vector<std::wstring> Tokenize(std::wstring_view text)
{
    std::vector<std::wstring> tokens;
    for (std::size_t begin = text.find_first_not_of(L'\\'); begin != std::wstring_view::npos;)
    {
        const std::size_t end = text.find(L'\\', begin);
        tokens.emplace_back(text.substr(begin, end - begin));
        begin = text.find_first_not_of(L'\\', end);
    }
    return tokens;
}

} // namespace norvepa

#include "StoreNames.h"

#include "Text.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace norvctl
{

namespace
{

constexpr wchar_t Separator = L'\\';
constexpr std::size_t LongestPart = 255; // of every file system
constexpr std::size_t LongestName = 30'000;

// Names of devices, in every folder and with any extension.
constexpr std::array<std::wstring_view, 6> Devices{L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"};
constexpr std::array<std::wstring_view, 2> NumberedDevices{L"COM", L"LPT"};
constexpr std::wstring_view DeviceNumbers = L"0123456789\u00B9\u00B2\u00B3";

bool IsNumberedDevice(std::wstring_view stem)
{
    return stem.size() == 4 && DeviceNumbers.find(stem.back()) != std::wstring_view::npos &&
           std::ranges::any_of(NumberedDevices,
                               [=](std::wstring_view each) { return EqualNoCase(each, stem.substr(0, 3)); });
}

bool IsDevice(std::wstring_view part)
{
    std::wstring_view stem = part.substr(0, part.find(L'.'));
    stem = stem.substr(0, stem.find_last_not_of(L' ') + 1);
    return IsNumberedDevice(stem) ||
           std::ranges::any_of(Devices, [=](std::wstring_view each) { return EqualNoCase(each, stem); });
}

bool IsForbidden(wchar_t character)
{
    constexpr std::wstring_view forbidden = L"<>:\"/|?*";
    return character < L' ' || forbidden.find(character) != std::wstring_view::npos;
}

const char* WhyPartIsRefused(std::wstring_view part)
{
    if (part.empty())
    {
        return "a part of it is empty";
    }
    if (part.size() > LongestPart)
    {
        return "a part of it is too long";
    }
    if (std::ranges::any_of(part, IsForbidden))
    {
        return "it holds a character that no file name holds";
    }
    if (part.back() == L'.' || part.back() == L' ') // "." and ".." too
    {
        return "a part of it ends with a dot or a blank";
    }
    return IsDevice(part) ? "it is the name of a device" : "";
}

} // namespace

bool NameOrder::operator()(std::wstring_view left, std::wstring_view right) const
{
    return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                                static_cast<int>(right.size()), TRUE) == CSTR_LESS_THAN;
}

std::string WhyRefused(std::wstring_view name)
{
    if (name.size() > LongestName)
    {
        return "it is too long";
    }
    if (ToWide(ToUtf8(name)) != name)
    {
        return "it is not Unicode";
    }
    if (IsLeftOver(name))
    {
        return "it is that of a file in the making";
    }
    for (std::size_t begin = 0;;)
    {
        const std::size_t end = name.find(Separator, begin);
        const char* const why = WhyPartIsRefused(name.substr(begin, end - begin));
        if (*why != '\0' || end == std::wstring_view::npos)
        {
            return why;
        }
        begin = end + 1;
    }
}

bool IsLeftOver(std::wstring_view name)
{
    constexpr std::wstring_view mark = L"~";
    constexpr std::wstring_view extension = L".new";
    const std::wstring_view last = LastPartOf(name);
    return last.starts_with(mark) && last.size() > extension.size() &&
           EqualNoCase(last.substr(last.size() - extension.size()), extension);
}

std::wstring_view ParentOf(std::wstring_view name)
{
    const std::size_t end = name.rfind(Separator);
    return end == std::wstring_view::npos ? std::wstring_view{} : name.substr(0, end);
}

std::wstring_view LastPartOf(std::wstring_view name)
{
    return name.substr(name.rfind(Separator) + 1); // npos + 1 is 0
}

} // namespace norvctl

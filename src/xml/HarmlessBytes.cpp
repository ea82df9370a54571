#include "xml/HarmlessBytes.h"

#include <windows.h>

#include <algorithm>
#include <cstring>

namespace norvepa
{

namespace
{

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view Utf16Mark = "\xFF\xFE";
constexpr std::string_view Declaration = "<?xml"; // its beginning
constexpr std::size_t ShortestLong = 4'000;       // bytes: half of what that engine reads at once

std::string_view DeclarationOf(std::string_view text)
{
    const std::size_t end = text.starts_with(Declaration) ? text.find("?>") : text.npos;
    return end == text.npos ? std::string_view{} : text.substr(0, end + 2);
}

// Blanks in the place of the encoding that a declaration names.
void DropEncoding(std::string& text)
{
    const std::string_view declaration = DeclarationOf(text);
    const std::size_t name = declaration.find("encoding");
    const std::size_t quote = declaration.find_first_of("'\"", name);
    if (name == declaration.npos || quote == declaration.npos)
    {
        return;
    }
    const std::size_t end = declaration.find(declaration[quote], quote + 1);
    if (end != declaration.npos)
    {
        std::fill(text.begin() + static_cast<std::ptrdiff_t>(name),
                  text.begin() + static_cast<std::ptrdiff_t>(end + 1), ' ');
    }
}

std::string Utf8Of(std::string_view bytes)
{
    std::wstring wide(bytes.size() / sizeof(wchar_t), L'\0');
    std::memcpy(wide.data(), bytes.data(), wide.size() * sizeof(wchar_t));
    const auto units = static_cast<int>(wide.size());
    std::string text(wide.size() * 3, '\0'); // at most
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, text.data(),
                                         static_cast<int>(text.size()), nullptr, nullptr);
    text.resize(static_cast<std::size_t>(size));
    DropEncoding(text);
    return text;
}

} // namespace

std::string HarmlessBytes(std::string_view bytes)
{
    constexpr std::size_t longest = 0x7FFFFFFF / 3; // whose UTF-8 the system still counts

    if (bytes.starts_with(Utf16Mark) && bytes.size() >= ShortestLong && bytes.size() <= longest)
    {
        return Utf8Of(bytes.substr(Utf16Mark.size()));
    }
    const std::string_view text = bytes.substr(bytes.starts_with(Utf8Mark) ? Utf8Mark.size() : 0);
    if (text.size() != bytes.size() && Declaration.starts_with(text))
    {
        return std::string(text) + ' ';
    }
    const std::string_view declaration = DeclarationOf(text);
    const bool endsThere =
        !declaration.empty() && (declaration.size() == text.size() || text[declaration.size()] == '\0');
    return endsThere ? std::string(declaration) + ' ' : std::string{};
}

} // namespace norvepa

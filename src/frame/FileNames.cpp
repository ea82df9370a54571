#include "frame/FileNames.h"

#include "frame/Arguments.h"
#include "frame/PathText.h"
#include "frame/StoreLocations.h"

#include <algorithm>
#include <array>

namespace norvepa
{

namespace
{

struct EscapeRow
{
    wchar_t character;
    std::wstring_view code;
};

// The "#" that begins the codes is itself written as a word. No code holds a character of another row, so
// that one pass over the name gives what a replacement row by row, this one first, would give.
constexpr std::array<EscapeRow, 9> EscapeTable{{
    {L'#', L"(nmbr)"},
    {L'%', L"#25"},
    {L':', L"#3a"},
    {L'*', L"#2a"},
    {L'?', L"#3f"},
    {L'<', L"#3c"},
    {L'>', L"#3e"},
    {L'|', L"#7c"},
    {L'/', L"#2f"},
}};

auto RowOf(wchar_t character) noexcept
{
    return std::find_if(EscapeTable.begin(), EscapeTable.end(),
                        [=](const EscapeRow& each) { return each.character == character; });
}

void AppendEscaped(PathText& text, std::wstring_view name)
{
    for (;;)
    {
        const auto coded = std::find_if(name.begin(), name.end(), [](wchar_t character) {
            return RowOf(character) != EscapeTable.end();
        });
        text.Append({name.begin(), coded});
        if (coded == name.end())
        {
            return;
        }
        text.Append(RowOf(*coded)->code);
        name = {coded + 1, name.end()};
    }
}

void AppendUnescaped(std::wstring& text, std::wstring_view name)
{
    while (!name.empty())
    {
        const auto row = std::find_if(EscapeTable.begin(), EscapeTable.end(),
                                      [=](const EscapeRow& each) { return name.starts_with(each.code); });
        const bool isCode = row != EscapeTable.end();
        text += isCode ? row->character : name.front();
        name.remove_prefix(isCode ? row->code.size() : 1);
    }
}

// The folder with its backslash, or nothing.
std::wstring_view FolderOf(std::wstring_view path)
{
    return path.substr(0, path.find_last_of(L'\\') + 1);
}

// A bare or an unescaped name is at most a path long, however much the caller's buffer holds.
Result CopyOutAtMostPath(std::wstring_view text, wchar_t* buffer, std::uint32_t* length)
{
    *length = std::min(*length, std::uint32_t{PathCapacity});
    return CopyOut(text, buffer, length);
}

bool AreBadArguments(const wchar_t* text, const wchar_t* buffer, const std::uint32_t* length)
{
    return IsMissing(text) || buffer == nullptr || length == nullptr || *length == 0;
}

} // namespace

Result NorvXMLEscapeName(const wchar_t* path, wchar_t* buffer, std::uint32_t* length)
{
    if (AreBadArguments(path, buffer, length))
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    const std::wstring_view whole(path);
    const std::wstring_view folder = FolderOf(whole);
    PathText escaped(folder);
    AppendEscaped(escaped, whole.substr(folder.size()));
    return CopyOut(escaped.view(), buffer, length);
}

Result NorvXMLEscapeBareName(const wchar_t* name, wchar_t* buffer, std::uint32_t* length)
{
    if (AreBadArguments(name, buffer, length))
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    PathText escaped;
    AppendEscaped(escaped, name);
    return CopyOutAtMostPath(escaped.view(), buffer, length);
}

Result NorvXMLUnescapeName(const wchar_t* path, wchar_t* buffer, std::uint32_t* length)
{
    if (AreBadArguments(path, buffer, length))
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    const std::wstring_view whole(path);
    std::wstring unescaped(FolderOf(whole));
    AppendUnescaped(unescaped, whole.substr(unescaped.size()));
    return CopyOutAtMostPath(unescaped, buffer, length);
}

Result EscapePath(const wchar_t* path, std::wstring& escaped)
{
    PathText text;
    const Result result = EscapePath(path, text);
    if (result == PGSP_OK)
    {
        escaped = text.view();
    }
    return result;
}

Result EscapePath(const wchar_t* path, PathText& escaped)
{
    std::array<wchar_t, PathCapacity> buffer;
    std::uint32_t length = PathCapacity;
    const Result result = NorvXMLEscapeName(path, buffer.data(), &length);
    if (result == PGSP_OK)
    {
        escaped.Append({buffer.data(), length});
    }
    return result;
}

} // namespace norvepa

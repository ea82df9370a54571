#include "StorePaths.h"

#include "StoreRoots.h"
#include "Text.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

namespace norvctl
{

namespace
{

constexpr LONGLONG LongestFile = 50'000'000; // bytes; the library takes no file that is longer than a fifth

struct EscapeRow
{
    wchar_t character;
    std::wstring_view code;
};

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

struct CloseHandleOf
{
    void operator()(void* handle) const { CloseHandle(handle); }
};

struct CloseSearch
{
    void operator()(void* search) const { FindClose(search); }
};

bool IsDotted(const wchar_t* name)
{
    return std::wstring_view(name) == L"." || std::wstring_view(name) == L"..";
}

// Paths below `root`; `below` ends with a backslash, or is empty.
void AppendFiles(std::vector<std::wstring>& paths, const std::wstring& root, const std::wstring& below)
{
    WIN32_FIND_DATAW found{};
    HANDLE const search = FindFirstFileW((root + L'\\' + below + L'*').c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
    {
        return;
    }
    const std::unique_ptr<void, CloseSearch> owned(search);
    do
    {
        const std::wstring path = below + found.cFileName;
        const bool isLink = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
        {
            paths.push_back(path);
        }
        else if (!IsDotted(found.cFileName) && !isLink)
        {
            AppendFiles(paths, root, path + L'\\');
        }
    } while (FindNextFileW(search, &found) != FALSE);
}

} // namespace

std::optional<std::string> BytesOf(const std::wstring& path)
{
    HANDLE const opened =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
    {
        return std::nullopt;
    }
    const std::unique_ptr<void, CloseHandleOf> file(opened);
    LARGE_INTEGER size{};
    if (GetFileSizeEx(file.get(), &size) == FALSE || size.QuadPart > LongestFile)
    {
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr) == FALSE)
    {
        return std::nullopt;
    }
    bytes.resize(read);
    return bytes;
}

std::wstring FileNameOf(const std::wstring& name)
{
    std::wstring fileName;
    for (const wchar_t character : name)
    {
        const auto row = std::find_if(EscapeTable.begin(), EscapeTable.end(),
                                      [=](const EscapeRow& each) { return each.character == character; });
        fileName += row == EscapeTable.end() ? std::wstring(1, character) : std::wstring(row->code);
    }
    return fileName;
}

std::wstring NameOfFile(const std::wstring& fileName)
{
    std::wstring name;
    std::wstring_view rest = fileName;
    while (!rest.empty())
    {
        const auto row = std::find_if(EscapeTable.begin(), EscapeTable.end(),
                                      [=](const EscapeRow& each) { return rest.starts_with(each.code); });
        const bool isCode = row != EscapeTable.end();
        name += isCode ? row->character : rest.front();
        rest.remove_prefix(isCode ? row->code.size() : 1);
    }
    return name;
}

std::wstring PathOfDevice(const std::string& device)
{
    return PathOf(DataRoot) + L"\\data\\LogDevices\\" + FileNameOf(ToWide(device)) + L".xml";
}

std::vector<std::wstring> FilesBelow(const std::wstring& folder)
{
    std::vector<std::wstring> paths;
    AppendFiles(paths, folder, {});
    return paths;
}

} // namespace norvctl

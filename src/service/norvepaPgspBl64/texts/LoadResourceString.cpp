#include "service/norvepaPgspBl64/texts/LoadResourceString.h"

#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "frame/StoreLocations.h"
#include "frame/Text.h"
#include "service/norvmfc/ResourceLibrary.h"
#include "store/norvxml.h"

#include <windows.h>

#include <array>
#include <cstdint>
#include <cwchar>
#include <optional>
#include <string>
#include <string_view>

namespace norvepa
{

namespace
{

// What a `Resource` says: a library's file, where it lies, and the number of a text in it.
struct Link
{
    std::wstring assembly;
    std::wstring path;
    std::int64_t number = 0;
};

// One `Resource` may stand for a block of texts: what follows the backslash counts from its own number. The
// numbers are what the texts begin with, or 0.
Result ReadLink(const wchar_t* file, std::wstring_view parameter, int wide, Link& link)
{
    const std::size_t backslash = parameter.find(L'\\');
    const std::wstring name(parameter.substr(0, backslash));
    const std::wstring offset(backslash == std::wstring_view::npos ? L"" : parameter.substr(backslash + 1));

    std::wstring resourceId;
    std::wstring nameSpace;
    const Result result =
        NorvXMLGetAssemblyLink(file, name.c_str(), &link.assembly, &link.path, &resourceId, &nameSpace, wide);
    if (result == PGSP_OK)
    {
        link.number = std::int64_t{_wtoi(resourceId.c_str())} + _wtoi(offset.c_str());
    }
    return result;
}

// The two letters that a folder of libraries is called by: the caller's, or else the user's.
std::wstring LanguageWord(const wchar_t* language)
{
    const std::wstring_view given = TextOrEmpty(language);
    if (given.size() == 2)
    {
        return ToLower(given);
    }
    std::array<wchar_t, 16> locale{}; // stays empty for a name that is longer
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SNAME, locale.data(), static_cast<int>(locale.size()));
    return ToLower(std::wstring_view(locale.data()).substr(0, 2));
}

std::optional<std::wstring> ExpandedPath(const std::wstring& path)
{
    std::array<wchar_t, PathCapacity> expanded{};
    const DWORD written =
        ExpandEnvironmentStringsW(path.c_str(), expanded.data(), static_cast<DWORD>(expanded.size()));
    if (written == 0 || written > expanded.size())
    {
        return std::nullopt;
    }
    return expanded.data();
}

struct Root
{
    std::wstring folder;
    const char* howFound; // for the trace, with the library's path
};

// The link's path names the root, unless it leaves that to us.
Root RootOf(const ExportFrame& frame, const std::wstring& path, const std::wstring& standard)
{
    constexpr const char* byVariables = "Using ExpandEnvironmentStrings = %s";

    if (path.empty() || Holds(path, L"%commonpath%"))
    {
        return {standard, byVariables};
    }
    if (!Holds(path, L"%"))
    {
        return {path, "Using AssemblyPath = %s"};
    }
    NORV_TRACE(frame, TraceInfo, "Search for ExpandEnvironmentStrings = %s", TraceToAnsi(path.c_str()));
    const auto expanded = ExpandedPath(path);
    return expanded ? Root{*expanded, byVariables} : Root{standard, "Using std-path = %s"};
}

// With the backslash also where the file's name is empty: that names a folder, which can't be loaded, and not
// the library that might lie beside it.
std::wstring LibraryPath(const Root& root, std::wstring_view language, std::wstring_view assembly)
{
    return JoinPath(root.folder, language).append(L"\\").append(assembly);
}

// The library of the language, or else the English one below the same root.
ResourceLibrary LoadLibraryOf(const ExportFrame& frame, const Root& root, std::wstring_view language,
                              std::wstring_view assembly)
{
    std::wstring dllPath = LibraryPath(root, language, assembly);
    std::wstring fallback = LibraryPath(root, L"en", assembly);
    NORV_TRACE(frame, TraceInfo, root.howFound, TraceToAnsi(dllPath.c_str()));
    if (dllPath.size() > PathCapacity)
    {
        NORV_TRACE(frame, TraceWarning, "Path too long: DllPath=%s", TraceToAnsi(dllPath.c_str()));
        dllPath.clear();
    }
    ResourceLibrary library(dllPath);
    if (library)
    {
        return library;
    }

    NORV_TRACE(frame, TraceExit, "Can not load DLL: DllPath=%s, %d", TraceToAnsi(dllPath.c_str()),
               static_cast<int>(library.error()));
    if (fallback.size() > PathCapacity)
    {
        // Names the first path, though the other is meant.
        NORV_TRACE(frame, TraceWarning, "Backup path too long: DllPath=%s", TraceToAnsi(dllPath.c_str()));
        fallback.clear();
    }
    ResourceLibrary english(fallback);
    if (!english)
    {
        NORV_TRACE(frame, TraceWarning, "Can not load DLL: DllPath=%s, %d", TraceToAnsi(fallback.c_str()),
                   static_cast<int>(english.error()));
    }
    return english;
}

// The library is let go of before anything else is done: while it is loaded its file can't be replaced.
Result LoadText(const ExportFrame& frame, const Root& root, std::wstring_view language, const Link& link,
                std::wstring& text)
{
    const ResourceLibrary library = LoadLibraryOf(frame, root, language, link.assembly);
    if (!library)
    {
        return PGSP_ERR_CANT_LOAD_DLL;
    }
    text = library.TextOf(link.number);
    return text.empty() ? PGSP_ERR_CANT_LOAD_RESOURCE : PGSP_OK;
}

} // namespace

Result PGSP_LoadResourceString(const wchar_t* XmlFile, const wchar_t* Parameter, const wchar_t* Language,
                               wchar_t* buffer, std::uint32_t* length, std::int32_t flag)
{
    const ExportFrame frame{"PGSP_LoadResourceString: "};

    NORV_TRACE(frame, TraceEntry, ">> XmlFile = %s", TraceToAnsi(XmlFile));
    const std::wstring programFolder = GetProgramFolder();
    if (programFolder.empty())
    {
        NORV_TRACE(frame, TraceInfo, "Can not get ProgramFile Path");
        return PGSP_ERR_FOLDER_NOT_FOUND;
    }
    Link link;
    if (const Result result = ReadLink(XmlFile, TextOrEmpty(Parameter), flag, link); result != PGSP_OK)
    {
        return result;
    }

    const std::wstring language = LanguageWord(Language);
    if (Holds(link.assembly, L"\\"))
    {
        NORV_TRACE(frame, TraceWarning, "Backslash in AssemblyName is not allowed: AssemblyName=%s",
                   TraceToAnsi(link.assembly.c_str()));
        link.assembly.clear();
    }
    const Root root = RootOf(frame, link.path, JoinPath(programFolder, L"bin"));
    std::wstring text;
    Result result = LoadText(frame, root, language, link, text);
    if (result == PGSP_ERR_CANT_LOAD_RESOURCE)
    {
        NORV_TRACE(frame, TraceWarning, "Can not load Resource resourceNumber = %d",
                   static_cast<int>(link.number));
    }
    if (result != PGSP_OK)
    {
        return result;
    }
    result = CopyOutUntested(text, buffer, length);
    return result == PGSP_ERR_INVALID_PARAMETERS ? result : frame.Return(result);
}

} // namespace norvepa

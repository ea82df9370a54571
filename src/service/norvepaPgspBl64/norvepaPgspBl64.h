#pragma once

// What the exports of the catalogue share: where its files lie, and the forms of a catalogue name.
//
// The forms differ from export to export on purpose: each names the one that it uses.

#include "frame/ExportFrame.h"
#include "frame/PackStringList.h"
#include "frame/StoreLocations.h"

#include <string>
#include <string_view>

namespace norvepa
{

// Folder words of the catalogue.
inline constexpr wchar_t BoardsWord[] = L"Boards";
inline constexpr wchar_t ProtocolsWord[] = L"Protocols";
inline constexpr wchar_t TemplatesWord[] = L"DefaultLogDevices";

// What the names of the files begin with.
inline constexpr std::wstring_view BoardPrefix = L"Automation-OnlineAccess-BT-";
inline constexpr std::wstring_view ProtocolPrefix = L"Automation-OnlineAccess-PT-";
inline constexpr std::wstring_view TemplatePrefix = L"Automation-OnlineAccess-LDT-";

// A name without the "*" with which a log device's `DeviceID` may begin.
[[nodiscard]] std::wstring_view WithoutStar(std::wstring_view name);

// The file name of a board. A "*" is dropped; but a name that holds the prefix anywhere keeps it in the first
// form.
[[nodiscard]] std::wstring MakeBoardNameTestFirst(std::wstring_view board);
[[nodiscard]] std::wstring MakeBoardNameStripFirst(std::wstring_view board);

// The file name of a protocol, of which nothing is dropped.
[[nodiscard]] std::wstring MakeProtocolName(std::wstring_view protocol);

// The file name of a template. The second form escapes a name that lacks the prefix, the third any name; they
// answer the codes of that, and `made` is untouched then.
[[nodiscard]] std::wstring MakeTemplateName(std::wstring_view name);
[[nodiscard]] Result MakeTemplateNameEscaping(const wchar_t* name, std::wstring& made);
[[nodiscard]] Result MakeEscapedTemplateName(const wchar_t* name, std::wstring& made);

// The number of a bus profile that a caller may name by a word instead; any other text as it is.
[[nodiscard]] std::wstring MapProfileWord(std::wstring_view profile);

// The store paths: of one of the catalogue's folders, and of the files in three of them.
[[nodiscard]] std::wstring CatalogueFolder(std::wstring_view programFolder, std::wstring_view folder);
[[nodiscard]] std::wstring BoardFile(std::wstring_view programFolder, std::wstring_view name);
[[nodiscard]] std::wstring ProtocolFile(std::wstring_view programFolder, std::wstring_view name);
[[nodiscard]] std::wstring TemplateFile(std::wstring_view programFolder, std::wstring_view name);

} // namespace norvepa

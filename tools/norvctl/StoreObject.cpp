#include "StoreObject.h"

#include "Device.h"
#include "StorePaths.h"
#include "Text.h"
#include "ValueCheck.h"

#include <algorithm>
#include <array>

namespace norvctl
{

namespace
{

constexpr std::wstring_view Extension = L".xml";
constexpr std::wstring_view FormOfChange = L"(temp)"; // what is saved beside a file ahead of taking its place
constexpr std::wstring_view SettingsFile = L"PGSP.xml";

struct FolderRow
{
    StorePart part;
    std::wstring_view folder;
    std::wstring_view prefix; // of its file names
    const char* kind;
};

constexpr std::array<FolderRow, 5> FolderTable{{
    {StorePart::Data, L"LogDevices", L"", "log device"},
    {StorePart::Data, L"LogNames", L"", "log name"},
    {StorePart::Catalogue, L"Boards", BoardPrefix, "board"},
    {StorePart::Catalogue, L"Protocols", ProtocolPrefix, "protocol"},
    {StorePart::Catalogue, L"DefaultLogDevices", L"Automation-OnlineAccess-LDT-", "template"},
}};

bool EndsWith(std::wstring_view text, std::wstring_view end)
{
    return text.size() >= end.size() && EqualNoCase(text.substr(text.size() - end.size()), end);
}

bool BeginsWith(std::wstring_view text, std::wstring_view begin)
{
    return text.size() >= begin.size() && EqualNoCase(text.substr(0, begin.size()), begin);
}

bool IsAside(std::wstring_view fileName)
{
    return fileName.empty() || EndsWith(fileName, FormOfChange);
}

} // namespace

std::optional<StoreObject> ObjectAt(StorePart part, std::wstring_view path)
{
    if (part == StorePart::Data && EqualNoCase(path, SettingsFile))
    {
        return StoreObject{"settings", {}};
    }
    if (!EndsWith(path, Extension))
    {
        return std::nullopt;
    }
    const std::wstring_view whole = path.substr(0, path.size() - Extension.size());
    const std::size_t slash = whole.rfind(L'\\');
    const std::wstring_view folder = slash == std::wstring_view::npos ? L"" : whole.substr(0, slash);
    std::wstring_view fileName = slash == std::wstring_view::npos ? whole : whole.substr(slash + 1);
    if (IsAside(fileName))
    {
        return std::nullopt;
    }
    const auto row = std::find_if(FolderTable.begin(), FolderTable.end(), [&](const FolderRow& each) {
        return each.part == part && EqualNoCase(each.folder, folder);
    });
    if (row == FolderTable.end())
    {
        const char* const kind = part == StorePart::Data ? "data" : "catalogue";
        return StoreObject{kind, ToUtf8(NameOfFile(std::wstring(whole)))};
    }
    fileName.remove_prefix(BeginsWith(fileName, row->prefix) ? row->prefix.size() : 0);
    if (BeginsWith(fileName, TemporaryPrefix))
    {
        return std::nullopt;
    }
    return StoreObject{row->kind, ToUtf8(NameOfFile(std::wstring(fileName)))};
}

std::string InWords(const StoreObject& object)
{
    if (object.kind == "log device")
    {
        return object.name;
    }
    return object.name.empty() ? object.kind : object.kind + ' ' + object.name;
}

} // namespace norvctl

#include "Doctor.h"
#include "Reads.h"
#include "Text.h"
#include "norvepa.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <set>

namespace norvctl
{

namespace
{

constexpr std::string_view LeftOverMark = "(temp)"; // behind the name of what has been changed
constexpr std::uint32_t OurTransfer = 1;

// The first piece of an empty file is the zero byte that follows its last one.
bool IsEmpty(const FileKind& kind, const std::string& name)
{
    std::array<std::uint8_t, 2> bytes{};
    auto size = static_cast<std::uint32_t>(bytes.size());
    const int32_t result =
        LogDeviceGetXmlBL(OurTransfer, kind.number, ToWide(name).c_str(), 0, bytes.data(), &size);
    return result == PGSP_OK && size == 1;
}

Finding LeftOver(const FileKind& kind, const std::string& name, const std::string& original,
                 bool isOriginalThere)
{
    if (isOriginalThere)
    {
        return {Severity::Warning, kind.word, name,
                fmt::format("it is left over from a change of {} that was broken off", original),
                "remove it: " + HowToRemove(kind, name)};
    }
    return {
        Severity::Error, kind.word, name,
        fmt::format("it is all that is left of {}, whose change was broken off", original),
        fmt::format("rename its file below {}, so that \"{}\" goes", ToUtf8(FolderOf(kind)), LeftOverMark)};
}

} // namespace

const FileKind DeviceKind{"log device", 2, L"data", L"LogDevices", L"", "norvctl device delete --force"};
const FileKind NameKind{"log name", 1, L"data", L"LogNames", L"", "norvctl name delete"};
const FileKind BoardKind{"board", 3, L"meta", L"Boards", BoardPrefix, ""};
const FileKind ProtocolKind{"protocol", 5, L"meta", L"Protocols", ProtocolPrefix, ""};
const FileKind TemplateKind{"template", 4, L"meta", L"DefaultLogDevices", L"Automation-OnlineAccess-LDT-",
                            ""};

std::string HowToRemove(const FileKind& kind, const std::string& name)
{
    const std::string_view removal = kind.removal;
    return removal.empty() ? fmt::format("delete its file below {}", ToUtf8(FolderOf(kind)))
                           : fmt::format("{} \"{}\"", removal, name);
}

std::wstring FolderOf(const FileKind& kind)
{
    return std::wstring(kind.root) + L'\\' + kind.folder;
}

// Asked for a parameter as a flat file would have it, the library loads the whole of whatever file it is.
bool IsWellFormed(const FileKind& kind, const std::string& file)
{
    const ReadResult read = ReadText([&](wchar_t* value, uint32_t* length) {
        return PGSP_GetParameterMetaDataBL(kind.root, kind.folder, ToWide(file).c_str(), L"none", value,
                                           length);
    });
    return read.result != PGSP_ERR_CANT_LOAD_XML_FILE && read.result != PGSP_ERR_FILE_NOT_FOUND;
}

Finding UnreadableFile(const FileKind& kind, const std::string& name)
{
    return {Severity::Error, kind.word, name,
            IsEmpty(kind, name) ? "its file is empty" : "its file cannot be opened or parsed",
            fmt::format("put a copy of its file back, or remove it: {}", HowToRemove(kind, name))};
}

Finding MisnamedFile(const FileKind& kind, const std::string& name)
{
    return {Severity::Error, kind.word, name, "its file is not called what it is looked for as",
            fmt::format("rename its file below {}: # is written (nmbr) there, and % is written #25",
                        ToUtf8(FolderOf(kind)))};
}

void TakeLeftOvers(const FileKind& kind, std::vector<std::string>& names, Findings& findings)
{
    std::set<std::wstring> known;
    for (const std::string& name : names)
    {
        known.insert(ToLower(ToWide(name)));
    }
    std::erase_if(names, [&](const std::string& name) {
        if (!name.ends_with(LeftOverMark))
        {
            return false;
        }
        const std::string original = name.substr(0, name.size() - LeftOverMark.size());
        findings.push_back(LeftOver(kind, name, original, known.contains(ToLower(ToWide(original)))));
        return true;
    });
}

} // namespace norvctl

#include "Doctor.h"
#include "Reads.h"
#include "Text.h"
#include "norvepa.h"

#include <fmt/format.h>

namespace norvctl
{

namespace
{

constexpr wchar_t BoardsFolder[] = L"Boards";
constexpr wchar_t ProtocolsFolder[] = L"Protocols";
constexpr wchar_t TemplatesFolder[] = L"DefaultLogDevices";
constexpr wchar_t TemplatePrefix[] = L"Automation-OnlineAccess-LDT-";

// As the files are called.
std::vector<std::string> FilesOf(const wchar_t* folder)
{
    return ReadTexts(ToUtf8(folder), [&](wchar_t* list, uint32_t* length) {
        return PGSP_TemplateGetListBL(folder, list, length);
    });
}

std::string WithoutPrefix(const std::string& file, const wchar_t* prefix)
{
    const std::string start = ToUtf8(prefix);
    return file.starts_with(start) ? file.substr(start.size()) : file;
}

// The first of its values is read, which takes the whole file.
using ReadFirst = int32_t (*)(const wchar_t* file, wchar_t* name, uint32_t* nameLength, wchar_t* value,
                              uint32_t* valueLength);

int32_t FirstOfBoard(const wchar_t* file, wchar_t* name, uint32_t* nameLength, wchar_t* value,
                     uint32_t* valueLength)
{
    return PGSP_BoardGetEnumValueBL(file, 0, name, nameLength, value, valueLength);
}

int32_t FirstOfProtocol(const wchar_t* file, wchar_t* name, uint32_t* nameLength, wchar_t* value,
                        uint32_t* valueLength)
{
    return PGSP_ProtocolGetEnumValueBL(file, nullptr, nullptr, nullptr, nullptr, 0, name, nameLength, value,
                                       valueLength);
}

int32_t FirstOfTemplate(const wchar_t* file, wchar_t* name, uint32_t* nameLength, wchar_t* value,
                        uint32_t* valueLength)
{
    return PGSP_DefDeviceGetEnumValueBL(file, 0, name, nameLength, value, valueLength);
}

bool CanBeParsed(const std::string& file, ReadFirst read)
{
    constexpr std::uint32_t room = 1024;

    std::vector<wchar_t> name(room);
    std::vector<wchar_t> value(room);
    std::uint32_t nameLength = room;
    std::uint32_t valueLength = room;
    const int32_t result = read(ToWide(file).c_str(), name.data(), &nameLength, value.data(), &valueLength);
    return result != PGSP_ERR_FILE_NOT_FOUND && result != PGSP_ERR_CANT_LOAD_XML_FILE;
}

struct CatalogueFolder
{
    const FileKind& kind;
    const wchar_t* folder;
    const wchar_t* prefix;
    ReadFirst read;
};

const CatalogueFolder Boards{BoardKind, BoardsFolder, BoardPrefix, &FirstOfBoard};
const CatalogueFolder Protocols{ProtocolKind, ProtocolsFolder, ProtocolPrefix, &FirstOfProtocol};
const CatalogueFolder Templates{TemplateKind, TemplatesFolder, TemplatePrefix, &FirstOfTemplate};

// The files of a folder and whether they can be parsed; those that can't are told of.
std::map<std::string, bool> CheckFiles(const CatalogueFolder& folder, Findings& findings)
{
    std::map<std::string, bool> checked;
    std::vector<std::string> files = FilesOf(folder.folder);
    TakeLeftOvers(folder.kind, files, findings);
    for (const std::string& file : files)
    {
        const bool isParsed = CanBeParsed(file, folder.read);
        checked.emplace(file, isParsed);
        if (!isParsed)
        {
            findings.push_back(UnreadableFile(folder.kind, WithoutPrefix(file, folder.prefix)));
        }
    }
    return checked;
}

std::string ValueOfTemplate(const std::string& file, const wchar_t* attribute)
{
    const std::wstring name = ToWide(file);
    return ReadText([&](wchar_t* value, uint32_t* length) {
               return PGSP_DefDeviceGetValueBL(name.c_str(), attribute, value, length, 0);
           })
        .value;
}

Finding MissingEntry(const std::string& kind, const std::string& name, const FileKind& of,
                     const std::string& word, const wchar_t* attribute, const wchar_t* prefix)
{
    if (word.empty())
    {
        return {
            Severity::Error, kind, name, fmt::format("it names no {}", of.word),
            fmt::format("write the attribute {} into its file, which norvctl never does", ToUtf8(attribute))};
    }
    const std::string bare = word.starts_with('*') ? word.substr(1) : word;
    return {Severity::Error, kind, name, fmt::format("its {} {} is not in the catalogue", of.word, word),
            fmt::format("install {}\\{}{}.xml, or correct the attribute {} of its file", ToUtf8(of.folder),
                        ToUtf8(prefix), bare, ToUtf8(attribute))};
}

} // namespace

Catalogue::Catalogue(const StoreFolders& folders, Findings& findings)
    : m_hasBoards(folders.boards), m_hasProtocols(folders.protocols)
{
    const auto check = [&](const CatalogueFolder& folder, Entries& entries) {
        for (const auto& [file, isParsed] : CheckFiles(folder, findings))
        {
            entries[ToLower(ToWide(file))] = isParsed ? Entry::Usable : Entry::Told;
        }
    };
    if (folders.boards)
    {
        check(Boards, m_boards);
    }
    if (folders.protocols)
    {
        check(Protocols, m_protocols);
    }
    if (!folders.templates)
    {
        return;
    }
    for (const auto& [file, isParsed] : CheckFiles(Templates, findings))
    {
        if (isParsed)
        {
            static_cast<void>(CheckNames(TemplateKind.word, WithoutPrefix(file, TemplatePrefix),
                                         ValueOfTemplate(file, L"DeviceID"),
                                         ValueOfTemplate(file, L"CP_TYPE"), findings));
        }
    }
}

Catalogue::Entry Catalogue::Board(const std::string& deviceId) const
{
    if (!m_hasBoards)
    {
        return Entry::Told;
    }
    const std::string bare = deviceId.starts_with('*') ? deviceId.substr(1) : deviceId;
    const auto entry = m_boards.find(ToLower(BoardPrefix + ToWide(bare)));
    return entry == m_boards.end() ? Entry::Missing : entry->second;
}

Catalogue::Entry Catalogue::Protocol(const std::string& cpType) const
{
    if (!m_hasProtocols)
    {
        return Entry::Told;
    }
    const auto entry = m_protocols.find(ToLower(ProtocolPrefix + ToWide(cpType)));
    return entry == m_protocols.end() ? Entry::Missing : entry->second;
}

bool Catalogue::CheckNames(const std::string& kind, const std::string& name, const std::string& deviceId,
                           const std::string& cpType, Findings& findings) const
{
    const Entry board = Board(deviceId);
    const Entry protocol = Protocol(cpType);
    if (board == Entry::Missing)
    {
        findings.push_back(MissingEntry(kind, name, BoardKind, deviceId, L"DeviceID", BoardPrefix));
    }
    if (protocol == Entry::Missing)
    {
        findings.push_back(MissingEntry(kind, name, ProtocolKind, cpType, L"CP_TYPE", ProtocolPrefix));
    }
    return board == Entry::Usable && protocol == Entry::Usable;
}

const ValueCheck& Catalogue::ChecksOf(const std::string& deviceId, const std::string& cpType)
{
    std::unique_ptr<ValueCheck>& check = m_checks[{deviceId, cpType}];
    if (check == nullptr)
    {
        check = std::make_unique<ValueCheck>(deviceId, cpType);
    }
    return *check;
}

} // namespace norvctl

#include "Doctor.h"
#include "Reads.h"
#include "Text.h"
#include "norvepa.h"

#include <fmt/format.h>

namespace norvctl
{

namespace
{

// As the files are called.
std::vector<std::string> FilesOf(const wchar_t* folder)
{
    return ReadTexts(ToUtf8(folder), [&](wchar_t* list, uint32_t* length) {
        return PGSP_TemplateGetListBL(folder, list, length);
    });
}

std::string NameOf(const FileKind& kind, const std::string& file)
{
    const std::string start = ToUtf8(kind.prefix);
    return file.starts_with(start) ? file.substr(start.size()) : file;
}

// The files of a folder and whether they can be parsed; those that can't are told of.
std::map<std::string, bool> CheckFiles(const FileKind& kind, Findings& findings)
{
    std::map<std::string, bool> checked;
    std::vector<std::string> files = FilesOf(kind.folder);
    TakeLeftOvers(kind, files, findings);
    for (const std::string& file : files)
    {
        const bool isParsed = IsWellFormed(kind, file);
        checked.emplace(file, isParsed);
        if (!isParsed)
        {
            findings.push_back(UnreadableFile(kind, NameOf(kind, file)));
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
                     const std::string& word, const wchar_t* attribute)
{
    if (word.empty())
    {
        return {
            Severity::Error, kind, name, fmt::format("it names no {}", of.word),
            fmt::format("write the attribute {} into its file, which norvctl never does", ToUtf8(attribute))};
    }
    const std::string bare = word.starts_with('*') ? word.substr(1) : word;
    return {Severity::Error, kind, name, fmt::format("its {} {} is not in the catalogue", of.word, word),
            fmt::format("install {}\\{}{}.xml, or correct the attribute {} of its file", ToUtf8(FolderOf(of)),
                        ToUtf8(of.prefix), bare, ToUtf8(attribute))};
}

} // namespace

Catalogue::Catalogue(const StoreFolders& folders, Findings& findings)
    : m_hasBoards(folders.boards), m_hasProtocols(folders.protocols)
{
    const auto check = [&](const FileKind& kind, Entries& entries) {
        for (const auto& [file, isParsed] : CheckFiles(kind, findings))
        {
            entries[ToLower(ToWide(file))] = isParsed ? Entry::Usable : Entry::Told;
        }
    };
    if (folders.boards)
    {
        check(BoardKind, m_boards);
    }
    if (folders.protocols)
    {
        check(ProtocolKind, m_protocols);
    }
    if (!folders.templates)
    {
        return;
    }
    for (const auto& [file, isParsed] : CheckFiles(TemplateKind, findings))
    {
        if (isParsed)
        {
            static_cast<void>(CheckEntries(TemplateKind.word, NameOf(TemplateKind, file),
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

bool Catalogue::CheckEntries(const std::string& kind, const std::string& name, const std::string& deviceId,
                             const std::string& cpType, Findings& findings) const
{
    const Entry board = Board(deviceId);
    const Entry protocol = Protocol(cpType);
    if (board == Entry::Missing)
    {
        findings.push_back(MissingEntry(kind, name, BoardKind, deviceId, L"DeviceID"));
    }
    if (protocol == Entry::Missing)
    {
        findings.push_back(MissingEntry(kind, name, ProtocolKind, cpType, L"CP_TYPE"));
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

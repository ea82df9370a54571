#pragma once

// What `norvctl doctor` looks at, each function a part of the store. What is missing as a whole is told once,
// and nothing that lies in it or needs it is told of.

#include "Finding.h"
#include "Progress.h"
#include "ValueCheck.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvctl
{

// DoctorCommand.cpp: all that is wrong.
[[nodiscard]] Findings ExamineStore();

// Which folders are there.
struct StoreFolders
{
    bool logDevices = false;
    bool logNames = false;
    bool boards = false;
    bool protocols = false;
    bool templates = false;
    bool schemas = false;
};

// DoctorFolders.cpp
[[nodiscard]] StoreFolders CheckFolders(Findings& findings);
void CheckSchemas(Findings& findings);

// The boards and protocols that there are, and the checks of values that follow from them.
class Catalogue
{
public:
    enum class Entry
    {
        Usable,
        Missing,
        Told // it can't be used, and that has been told
    };

    // Reads the files and tells of those that can't be used, templates too.
    Catalogue(const StoreFolders& folders, Findings& findings);

    // By the DeviceID and the CP_TYPE of a log device.
    [[nodiscard]] Entry Board(const std::string& deviceId) const;
    [[nodiscard]] Entry Protocol(const std::string& cpType) const;

    // Tells when a log device's or a template's board or protocol is missing. True when both can be used.
    [[nodiscard]] bool CheckEntries(const std::string& kind, const std::string& name,
                                    const std::string& deviceId, const std::string& cpType,
                                    Findings& findings) const;

    // Of two that can be used.
    [[nodiscard]] const ValueCheck& ChecksOf(const std::string& deviceId, const std::string& cpType);

private:
    using Entries = std::map<std::wstring, Entry>; // by the file's name in small letters

    Entries m_boards;
    Entries m_protocols;
    bool m_hasBoards;
    bool m_hasProtocols;
    std::map<std::pair<std::string, std::string>, std::unique_ptr<ValueCheck>> m_checks;
};

// DoctorDevices.cpp, DoctorNames.cpp
void CheckDevices(Catalogue& catalogue, const StoreFolders& folders, Progress& progress, Findings& findings);
void CheckNames(const StoreFolders& folders, Findings& findings);

// DoctorFiles.cpp: what holds for files of every kind.

struct FileKind
{
    const char* word;     // "log device"
    std::uint16_t number; // LogDeviceGetXmlBL's
    const wchar_t* root;  // the word of the root that its folder lies in, and a part of the path
    const wchar_t* folder;
    const wchar_t* prefix; // what its file names begin with
    const char* removal;   // the verb that removes one; empty when there is none
};
extern const FileKind DeviceKind;
extern const FileKind NameKind;
extern const FileKind BoardKind;
extern const FileKind ProtocolKind;
extern const FileKind TemplateKind;

// `norvctl device delete --force "Labor"`, or the file to be removed by hand.
[[nodiscard]] std::string HowToRemove(const FileKind& kind, const std::string& name);

// "data\LogDevices".
[[nodiscard]] std::wstring FolderOf(const FileKind& kind);

// Whether a file can be parsed to its end: most reads end at what they look for. By its name as it is listed.
[[nodiscard]] bool IsWellFormed(const FileKind& kind, const std::string& file);

// A file that can't be parsed, perhaps because there is nothing in it.
[[nodiscard]] Finding UnreadableFile(const FileKind& kind, const std::string& name);

// A file that is there, and not found by the name that it is listed with.
[[nodiscard]] Finding MisnamedFile(const FileKind& kind, const std::string& name);

// Takes the names of left-over "(temp)" forms out of a list of files and tells of them.
void TakeLeftOvers(const FileKind& kind, std::vector<std::string>& names, Findings& findings);

} // namespace norvctl

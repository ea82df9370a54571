#include "BackupFile.h"
#include "Device.h"
#include "Interruption.h"
#include "StoreCommands.h"
#include "StoreFiles.h"
#include "StoreReplacement.h"
#include "StoreRoots.h"
#include "Text.h"

#include <windows.h>
#include <iostream>

#include <algorithm>
#include <filesystem>
#include <fmt/format.h>

namespace norvctl
{

namespace
{

constexpr wchar_t RescueEnding[] = L".before-restore.cab"; // of a name beside the data folder

bool HasLogDevices(const StoreSnapshot& store)
{
    const std::wstring folder = std::wstring(L"data\\") + LogDevicesWord;
    return std::ranges::any_of(store.files,
                               [&](const auto& file) { return EqualNoCase(ParentOf(file.first), folder); });
}

bool IsInputConsole()
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_INPUT_HANDLE), &mode) != 0;
}

bool SaysYes(const std::string& question)
{
    std::cerr << question << " Type yes: " << std::flush;
    std::string answer;
    std::getline(std::cin, answer);
    if (answer.ends_with('\r'))
    {
        answer.pop_back();
    }
    return answer == "yes";
}

void RequireConsent(const std::wstring& root, const StoreDifference& difference)
{
    const std::string what = fmt::format("{} has log devices", ToUtf8(root));
    if (!IsInputConsole())
    {
        throw std::runtime_error(what + ", --yes replaces them");
    }
    if (!SaysYes(fmt::format("{}. Restore ({})?", what, InShort(difference))))
    {
        throw std::runtime_error("nothing has been restored");
    }
}

// The store as it was, beside the data folder, for as long as it may be wanted: also by those who find that
// somebody has ended the process.
class Rescue
{
public:
    Rescue(const std::wstring& root, const StoreBackup& was) : m_file(PlaceFor(root))
    {
        if (GetFileAttributesW(m_file.c_str()) != INVALID_FILE_ATTRIBUTES)
        {
            throw std::runtime_error(fmt::format(
                "{}: an earlier restore has been broken off, this is the store as it was before: move it "
                "elsewhere, and restore it if it is wanted",
                ToUtf8(m_file)));
        }
        WriteBackupFile(m_file, was, Existing::Stays);
    }
    Rescue(const Rescue&) = delete;
    Rescue& operator=(const Rescue&) = delete;
    ~Rescue()
    {
        if (!m_isWanted)
        {
            DeleteFileW(m_file.c_str());
        }
    }

    // Nobody needs it any more.
    void Drop() { m_isWanted = false; }
    [[nodiscard]] std::string Name() const { return ToUtf8(m_file); }

private:
    static std::wstring PlaceFor(std::wstring root)
    {
        while (root.ends_with(L'\\'))
        {
            root.pop_back();
        }
        if (root.ends_with(L':'))
        {
            throw std::runtime_error(ToUtf8(root) + ": a whole volume is no store that can be restored");
        }
        return root + RescueEnding;
    }

    std::wstring m_file;
    bool m_isWanted = true;
};

void Replace(const std::wstring& root, const StoreBackup& now, const StoreSnapshot& then,
             const StoreDifference& difference)
{
    const Interruption interruption; // also between the rescue's making and the first step
    std::filesystem::create_directories(root);
    Rescue rescue(root, now);
    try
    {
        ReplaceStore(root, now.store, then, difference);
    }
    catch (const BrokenReplacement& error)
    {
        throw std::runtime_error(
            fmt::format("{}; the store as it was is in {}", error.what(), rescue.Name()));
    }
    catch (const std::runtime_error&)
    {
        rescue.Drop(); // all is as it was
        throw;
    }
    rescue.Drop();
}

// The answer may take its time, and what others save meanwhile must not be lost.
void RequireTheSame(const std::wstring& root, const StoreBackup& now)
{
    const StoreBackup present = BackupOf(root);
    if (present.store.folders != now.store.folders || present.store.files != now.store.files)
    {
        throw std::runtime_error("the store has changed meanwhile: nothing has been restored");
    }
}

void TellWhatWouldChange(const Report& report, const std::string& file, const StoreDifference& difference)
{
    Json document = {{"done", "compared"}, {"file", file}};
    AddTo(document, difference);
    if (difference.IsEmpty())
    {
        report.Answer("nothing would change", document);
        return;
    }
    report.Answer(AsTable(difference), document);
}

} // namespace

void RestoreStore(const Report& report, const RestoreArguments& arguments)
{
    const std::wstring file = ToWide(arguments.file);
    const std::wstring root = DataFolderFor(file);
    const StoreBackup backup = ReadBackupFile(file);
    const StoreBackup now = BackupOf(root);
    const StoreDifference difference =
        DifferenceOf(now.store, backup.store, arguments.keepsOthers ? Others::AreKept : Others::AreRemoved);
    if (arguments.isDryRun)
    {
        TellWhatWouldChange(report, arguments.file, difference);
        return;
    }
    if (!difference.IsEmpty())
    {
        if (!arguments.yes && HasLogDevices(now.store))
        {
            RequireConsent(root, difference);
            RequireTheSame(root, now);
        }
        Replace(root, now, backup.store, difference);
    }
    Json document = {{"done", "restored"}, {"file", arguments.file}};
    AddTo(document, difference);
    report.Answer(fmt::format("restored {}: {}", arguments.file, InShort(difference)), document);
}

} // namespace norvctl

#include "SmallStore.h"

#include "meta/cMetaFiles.h"
#include "norvepa.h"
#include "notify/DeviceIdIndex.h"
#include "notify/directoryCache.h"
#include "support/TemporaryFolder.h"
#include "support/WatchedEngine.h"

#include <filesystem>

namespace norvepa::test
{

namespace fs = std::filesystem;

namespace
{

// A store's folders have no dots in their names.
bool IsFile(const std::wstring& name)
{
    return name.find(L'.') != std::wstring::npos;
}

// What a test shows of a buffer.
std::string Shown(const std::wstring& buffer, std::uint32_t length)
{
    return "\"" + ToUtf8(buffer.substr(0, buffer.find(L'#'))) + "\", length " + std::to_string(length);
}

} // namespace

SmallStore::SmallStore()
{
    store.UseOurSchemas();
    CopyTree(FromUtf8(NORV_SAMPLE_RESOURCES), roots.program() + L"\\bin");
    WriteStore();
    if (RegisterNotification(L"LogDevices", nullptr, event.c_str()) != PGSP_OK)
    {
        throw std::runtime_error("the event can't be registered");
    }
}

SmallStore::~SmallStore()
{
    UnRegisterNotification(L"LogDevices", nullptr, event.c_str());
    deinitWatchDirectories();
}

// Only what differs is written: most questions of a test leave the store as it is.
void SmallStore::WriteStore() const
{
    const Files stored = StoredFiles();
    for (const auto& [name, bytes] : stored)
    {
        if (!Beginning().contains(name))
        {
            fs::remove(PathOf(name));
        }
    }
    for (const auto& [name, bytes] : Beginning())
    {
        const auto there = stored.find(name);
        if (there == stored.end() || there->second != bytes)
        {
            WriteBytes(PathOf(name), bytes);
        }
    }
}

Files SmallStore::StoredFiles() const
{
    Files files;
    for (const wchar_t* const folder : Folders)
    {
        const std::wstring whole = PathOf(folder);
        if (!Exists(whole))
        {
            continue; // ahead of the first file
        }
        for (const std::wstring& name : FileNames(whole))
        {
            if (IsFile(name))
            {
                files[std::wstring(folder) + L"\\" + name] = ReadBytes(whole + L"\\" + name);
            }
        }
    }
    return files;
}

std::wstring SmallStore::PathOf(const std::wstring& name) const
{
    return roots.folder() / name;
}

void SmallStore::DropWhatIsKept()
{
    MetaDropAllDocuments();
    deinitWatchDirectories();
    deviceIdIndex.MarkStale(); // as a change of the folder does
}

Outcome SmallStore::Ask(const Question& question)
{
    Outcome outcome;
    outcome.result = question.ask(outcome.outputs);
    return outcome;
}

void SmallStore::AskWithEachAllocationFailing(const Question& question, Shortage shortage,
                                              const std::function<void()>& prepare,
                                              const std::function<void(const Outcome&)>& look)
{
    bool hasFailed = true;
    for (std::size_t nth = 1; hasFailed; ++nth)
    {
        SCOPED_TRACE("allocation " + std::to_string(nth));
        prepare();
        Outcome outcome;
        {
            const FailingNew failing(nth, shortage);
            outcome.result = question.ask(outcome.outputs);
            hasFailed = failing.hasFailed();
        }
        look(outcome);
    }
}

void SmallStore::AskWithEachEngineCallFailing(const Question& question, const std::function<void()>& prepare,
                                              const std::function<void(const Outcome&, bool)>& look)
{
    bool hasFailed = true;
    for (std::size_t nth = 1; hasFailed; ++nth)
    {
        SCOPED_TRACE("engine's call " + std::to_string(nth));
        prepare();
        Outcome outcome;
        {
            WatchedEngine engine;
            engine.FailAtCall(nth);
            outcome = Ask(question);
            hasFailed = engine.hasFailed();
        }
        look(outcome, hasFailed);
    }
}

void PrintTo(const Outcome& outcome, std::ostream* out)
{
    const Outputs& outputs = outcome.outputs;
    *out << outcome.result << ", " << Shown(outputs.first, outputs.firstLength) << ", "
         << Shown(outputs.second, outputs.secondLength);
}

void PrintTo(const Question& question, std::ostream* out)
{
    *out << question.name;
}

} // namespace norvepa::test

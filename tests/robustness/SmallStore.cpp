#include "SmallStore.h"

#include "meta/cMetaFiles.h"
#include "norvepa.h"
#include "notify/DeviceIdIndex.h"
#include "notify/directoryCache.h"
#include "support/TemporaryFolder.h"

#include <filesystem>

namespace norvepa::test
{

namespace fs = std::filesystem;

namespace
{

XmlContent DeviceContent()
{
    return XmlContent()
        .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"7"))
        .Element(L"LocalSettings", XmlContent().Int(L"Stufe", L"3").Text(L"Ort", L"Halle 2"))
        .Element(L"Bindings",
                 XmlContent().Element(L"Subdevices",
                                      XmlContent().Subdevice(L"Achse", XmlContent().Int(L"Weg", L"5"))));
}

XmlContent ProtocolContent()
{
    const XmlContent rates = XmlContent().ParamSection(L"187500", XmlContent().Int(L"gap", L"1"));
    const XmlContent profiles =
        XmlContent().Element(L"Value", L"1/DP").ParamSection(L"1", XmlContent().Int(L"slot", L"100"));
    return XmlContent().Element(
        L"Constraints",
        XmlContent()
            .ParamSection(L"busparam", XmlContent().Element(L"ValueCollection", profiles))
            .ParamSection(L"baudrate",
                          XmlContent().Element(L"default", L"187500").Element(L"ValueCollection", rates)));
}

XmlContent BoardContent()
{
    const XmlContent stufe = XmlContent()
                                 .Element(L"type", L"int")
                                 .Element(L"min", L"0")
                                 .Element(L"max", L"9")
                                 .Element(L"section", L"LocalSettings");
    return XmlContent()
        .Element(L"Install", XmlContent().Text(L"Treiber", L"afk110x"))
        .Element(L"NotSupported", XmlContent().ValueCollection({L"slot", L"gap"}))
        .Element(L"Constraints", XmlContent().ParamSection(L"Stufe", stufe));
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
    // Its own word for itself is not its file's: who falls back on the file is seen.
    WriteBytes(roots.board(L"AFK110"), BoardFile(BoardContent(), L"AFK 110"));
    WriteBytes(roots.protocol(L"MPI"), ProtocolFile(ProtocolContent()));
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

void SmallStore::WriteStore() const
{
    for (const auto& [name, bytes] : StoredFiles())
    {
        fs::remove(roots.data() + L"\\data\\" + name);
    }
    store.WriteDevice(L"Ofen", DeviceContent());
    store.WriteDevice(L"Presse", DeviceContent());
    WriteBytes(roots.logName(L"Pumpe"),
               LogNameFile(XmlContent().Text(L"LogDevice", L"Alt").Text(L"Ort", L"Halle 2")));
}

Files SmallStore::StoredFiles() const
{
    const fs::path folder = roots.data() + L"\\data";
    Files files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
    {
        if (entry.is_regular_file())
        {
            files[fs::relative(entry.path(), folder).wstring()] = ReadBytes(entry.path().wstring());
        }
    }
    return files;
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

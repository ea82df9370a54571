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

// A number of the sample store's texts, under the name that all files have it.
Link LinkToText(std::wstring_view number)
{
    return {L"DescText", L"AuentalTexte.dll", L"%commonpath%", number};
}

XmlContent DeviceContent(std::wstring_view unit)
{
    const Link page{
        .name = L"PropSheet", .assembly = L"Seiten.dll", .path = L"%commonpath%", .function = L"Zeige"};
    return XmlContent()
        .Element(L"DeviceHeader", XmlContent().Int(L"Unit", unit))
        .Element(L"LocalSettings", XmlContent().Int(L"Stufe", L"3").Text(L"Ort", L"Halle 2"))
        .Element(L"Bindings",
                 XmlContent().Element(L"Subdevices",
                                      XmlContent().Subdevice(L"Achse", XmlContent().Int(L"Weg", L"5"))))
        .Element(L"Ndi", XmlContent().Bool(L"enable_delete", L"true").Text(L"Typ", L"einstufig"))
        .Element(
            L"UserInterface",
            XmlContent().Text(L"Titel", L"Presse").Resource(LinkToText(L"1005")).ParameterAssemblyLink(page));
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
        .Element(L"Constraints", XmlContent().ParamSection(L"Stufe", stufe))
        .Element(L"UserInterface", XmlContent().Resource(LinkToText(L"3000")));
}

XmlContent NameContent()
{
    return XmlContent()
        .Element(L"Parameters", XmlContent().Text(L"Ort", L"Halle 1"))
        .Element(L"UserInterface", XmlContent().Resource(LinkToText(L"1008")));
}

// What users and tools have written: all that the library may change.
Files Beginning()
{
    return {
        {L"LogDevices\\Ofen.xml", LogDeviceFile(DeviceContent(L"7"))},
        {L"LogDevices\\Presse.xml", LogDeviceFile(DeviceContent(L"7"))},
        {L"LogDevices\\PGSP_TEMP_LOG_DEVICE____007.xml", LogDeviceFile(DeviceContent(L"8"))},
        {L"LogDevices\\PGSP_TEMP_LOG_DEVICE____008.xml", LogDeviceFile(DeviceContent(L"9"))},
        {L"LogNames\\Pumpe.xml",
         LogNameFile(XmlContent().Text(L"LogDevice", L"Alt").Text(L"Ort", L"Halle 2"))},
        {L"LogNames\\Warte.xml", XmlFile(L"LogName", {}, NameContent())},
    };
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
    WriteBytes(roots.deviceTemplate(L"MPI-AFK110"), LogDeviceFile(DeviceContent(L"1")));
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
    static const Files beginning = Beginning();
    const Files stored = StoredFiles();
    const std::wstring folder = roots.data() + L"\\data\\";
    for (const auto& [name, bytes] : stored)
    {
        if (!beginning.contains(name))
        {
            fs::remove(folder + name);
        }
    }
    for (const auto& [name, bytes] : beginning)
    {
        const auto there = stored.find(name);
        if (there == stored.end() || there->second != bytes)
        {
            WriteBytes(folder + name, bytes);
        }
    }
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

#include "Beginning.h"

#include "support/XmlFiles.h"

namespace norvepa::test
{

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
            XmlContent().Text(L"Titel", L"Presse").Resource(LinkToText(L"1005")).ParameterAssemblyLink(page))
        .Element(L"Load", XmlContent().Element(L"section", L"Busparameter").Element(L"section", L"Bindings"));
}

// All of its bus parameters differ from those of its speed's profile.
XmlContent BusDeviceContent()
{
    return XmlContent()
        .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"7"))
        .Element(L"LocalSettings", XmlContent()
                                       .Int(L"baudrate", L"187500")
                                       .Int(L"busparam", L"1")
                                       .Int(L"gap", L"9")
                                       .Int(L"slot", L"900")
                                       .Int(L"highest_adr", L"126")
                                       .Int(L"ttr", L"10"));
}

// The speeds, and what each gives to other bus parameters.
XmlContent Speeds()
{
    const XmlContent slow = XmlContent().Int(L"gap", L"1").Int(L"slot", L"100");
    const XmlContent fast = XmlContent().Int(L"gap", L"2").Int(L"slot", L"200");
    return XmlContent().Element(L"ValueCollection", XmlContent()
                                                        .Element(L"Value", L"187500")
                                                        .Element(L"Value", L"500000")
                                                        .ParamSection(L"187500", slow)
                                                        .ParamSection(L"500000", fast));
}

XmlContent Profiles(const XmlContent& profile)
{
    const XmlContent values = XmlContent().Element(L"Value", L"1/DP").ParamSection(L"1", profile);
    return XmlContent().ParamSection(
        L"busparam", XmlContent().Element(L"section", L"LocalSettings").Element(L"ValueCollection", values));
}

// The speeds of this one stand by themselves.
XmlContent MpiContent()
{
    const XmlContent baudrate = XmlContent()
                                    .Element(L"default", L"187500")
                                    .Element(L"section", L"LocalSettings")
                                    .Raw(Speeds().utf8());
    return XmlContent().Element(L"Constraints",
                                XmlContent()
                                    .ParamSection(L"baudrate", baudrate)
                                    .ParamSection(L"Takt", XmlContent().ValueCollection({L"1", L"2"}))
                                    .Raw(Profiles(XmlContent().Int(L"slot", L"100")).utf8()));
}

// Those of this one stand within a profile. A section that is looked for by its name alone stands ahead of
// its namesake there.
XmlContent L2Content()
{
    const XmlContent profile =
        XmlContent().Element(L"ParamDesc", L"Dezentrale Peripherie").ParamSection(L"baudrate", Speeds());
    return XmlContent().Element(
        L"Constraints", XmlContent()
                            .ParamSection(L"baudrate", XmlContent().Element(L"section", L"LocalSettings"))
                            .Raw(Profiles(profile).utf8()));
}

XmlContent BoardContent()
{
    const XmlContent stufe = XmlContent()
                                 .Element(L"type", L"int")
                                 .Element(L"min", L"0")
                                 .Element(L"max", L"9")
                                 .Element(L"section", L"LocalSettings");
    return XmlContent()
        .Element(L"Install", XmlContent().Text(L"Treiber", L"afk110x").Text(L"Asic_Type", L"ASPC2"))
        .Element(L"NotSupported", XmlContent().ValueCollection({L"slot", L"gap"}))
        .Element(L"Constraints", XmlContent()
                                     .ParamSection(L"Stufe", stufe)
                                     .ParamSection(L"Takt", XmlContent().ValueCollection({L"1/kurz", L"3"})))
        .Element(L"UserInterface", XmlContent().Resource(LinkToText(L"3000")));
}

XmlContent NameContent()
{
    return XmlContent()
        .Element(L"Parameters", XmlContent().Text(L"Ort", L"Halle 1"))
        .Element(L"UserInterface", XmlContent().Resource(LinkToText(L"1008")));
}

std::string ParameterDataFile()
{
    return XmlFile(L"ParameterData",
                   {{L"xmlns", L"http://www.marvolt.example/Automation/Corvane.Device.Driver"}},
                   XmlContent().Text(L"Druck", L"38 bar").Int(L"Stunden", L"48213"));
}

// What users and tools have written.
Files BeginningOfData()
{
    return {
        {DeviceName(L"Ofen"), LogDeviceFile(BusDeviceContent())},
        {DeviceName(L"PC internal"), LogDeviceFile(BusDeviceContent(), L"AFK110", L"L2")},
        {DeviceName(L"Presse"), LogDeviceFile(DeviceContent(L"7"))},
        {DeviceName(L"PGSP_TEMP_LOG_DEVICE____007"), LogDeviceFile(DeviceContent(L"8"))},
        {DeviceName(L"PGSP_TEMP_LOG_DEVICE____008"), LogDeviceFile(DeviceContent(L"9"))},
        {L"data-root\\data\\LogNames\\Pumpe.xml",
         LogNameFile(XmlContent().Text(L"LogDevice", L"Alt").Text(L"Ort", L"Halle 2"))},
        {L"data-root\\data\\LogNames\\Warte.xml", XmlFile(L"LogName", {}, NameContent())},
        {L"data-root\\data\\Werte\\Kessel.xml", ParameterDataFile()},
        {SettingsName, SettingsFile(XmlContent().Text(L"Sprache", L"de"),
                                    XmlContent().Text(L"LastChangeDate", L"24.12.2025"))},
    };
}

// What is shipped. The board's word for itself is not its file's: who falls back on the file is seen.
Files BeginningOfCatalogue()
{
    const std::wstring meta = L"program-root\\meta\\";
    return {
        {meta + L"Boards\\Automation-OnlineAccess-BT-AFK110.xml", BoardFile(BoardContent(), L"AFK 110")},
        {meta + L"Protocols\\Automation-OnlineAccess-PT-MPI.xml", ProtocolFile(MpiContent())},
        {meta + L"Protocols\\Automation-OnlineAccess-PT-L2.xml", ProtocolFile(L2Content(), L"L2")},
        {meta + L"DefaultLogDevices\\Automation-OnlineAccess-LDT-MPI-AFK110.xml",
         LogDeviceFile(DeviceContent(L"1"))},
    };
}

} // namespace

const Files& Beginning()
{
    static const Files all = [] {
        Files files = BeginningOfData();
        files.merge(BeginningOfCatalogue());
        return files;
    }();
    return all;
}

std::wstring DeviceName(std::wstring_view logDevice)
{
    return L"data-root\\data\\LogDevices\\" + std::wstring(logDevice) + L".xml";
}

} // namespace norvepa::test

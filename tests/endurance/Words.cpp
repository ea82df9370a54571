#include "endurance/Words.h"

#include <algorithm>
#include <string>
#include <vector>

namespace norvepa::test
{

namespace
{

using Text = const wchar_t*;

// Names of 255 to 300 characters, around all the lengths that names and paths may have.
const std::vector<std::wstring> LongNames{
    std::wstring(255, L'l'), std::wstring(258, L'#'), std::wstring(259, L'm'),
    std::wstring(260, L'n'), std::wstring(300, L'/'),
};

const Text HostileTexts[] = {
    nullptr,
    nullptr,
    L"",
    L"",
    L" ",
    L"\xD800",
    L"\x01\x1F",
    L"\xFFFF",
    LongNames[0].c_str(),
    LongNames[1].c_str(),
    LongNames[2].c_str(),
    LongNames[3].c_str(),
    LongNames[4].c_str(),
    L"\\",
    L"\\\\",
    L".",
    L"..",
    L"NUL",
    L"*",
    L"a\nb",
    L"%TEMP%",
    L"<&>\"'",
    L"\\subdevices\\",
};

const Text UsualDevices[] = {
    L"Kesselhaus",
    L"Förderbänder",
    L"Rührwerk Nord",
    L"Kläranlage",
    L"Presse#3",
    L"Abfüllung Linie 1",
    L"Abfüllung Linie 2",
    L"Leitwarte",
    L"Labor",
    L"Leitwarte*_/VMDID",
    L"PC internal",
    L"Waage Rampe 2",
    L"Etikettierer",
    L"Prüfstand",
    L"Kesselhaus\\subdevices\\Brenner 1",
    L"kesselhaus",
    L"Kopie 1",
    L"Kopie/2",
    L"PGSP_TEMP_LOG_DEVICE____000",
    L"PGSP_TEMP_LOG_DEVICE____001",
};
const Text OddDevices[] = {
    L"Fehlt",
    L"Kesselhaus\\subdevices\\Fehlt",
    L"Fehlt\\subdevices\\Brenner 1",
    L"Kesselhaus\\subdevices\\",
    L"Kesselhaus\\subdevices\\Überhitzer\\mehr",
    L"Presse(nmbr)3",
    L"Presse#",
    L"Neu <|>:?*",
    L"Labor.xml",
    L"..\\LogNames\\Leitwarte",
    L"PGSP_TEMP_LOG_DEVICE____254",
    L"PGSP_TEMP_LOG_DEVICE",
    L"x*_/VMDID",
    L"Kesselhaus.",
    L"Kopie\x2592",
};

const Text UsualLogNames[] = {
    L"Altanlage",       L"Leitwarte",      L"Störung?",
    L"Presse|links",    L"Füllstand < 10", L"Silo 1/2",
    L"Verladung",       L"Druck > 6 bar",  L"Linie #3: 100% <A|B>",
    L"Rührwerk *Nord*", L"Halle 2: Pumpe", L"Förderband 50%",
    L"Kessel#1",        L"Wartung",        L"Größe µΩ",
    L"LAGERHAUS",       L"Neu 1",          L"Neu/2",
};
const Text OddLogNames[] = {
    L"Fehlt",       L"Kessel(nmbr)1",          L"Kessel#",
    L"Kessel#3",    L"..\\LogDevices\\Labor",  L"Silo 1#2f2",
    L"Wartung.xml", L"Wartung\\subdevices\\x",
};

const Text UsualBoards[] = {
    L"AFK220", L"*AFK110", L"ANK300", L"ASK040", L"*KQZA010", L"Automation-OnlineAccess-BT-AFK110",
};
const Text OddBoards[] = {L"Fehlt",      L"afk220",       L"**AFK220", L"Automation-OnlineAccess-BT-",
                          L"AFK220.xml", L"AFK110\\Fehlt"};
const Text UsualBoardSections[] = {
    L"AFK220",
    L"*AFK110",
    L"Automation-OnlineAccess-BT-ANK300",
    L"AFK220\\ConstraintsWithDefault",
    L"AFK220\\baudrate",
    L"ASK040\\io_base",
    L"KQZA010\\watchdog",
    L"ANK300\\ConstraintsWithDefault",
};
const Text OddBoardSections[] = {L"AFK220\\", L"\\baudrate", L"AFK220\\baudrate\\Value", L"Fehlt\\baudrate",
                                 L"AFK220\\Fehlt"};

const Text UsualProtocols[] = {L"L2", L"MPI", L"TCPIP", L"SERIAL", L"Automation-OnlineAccess-PT-MPI"};
const Text OddProtocols[] = {L"Fehlt", L"mpi", L"Automation-OnlineAccess-PT-", L"MPI.xml", L"L2\\busparam"};

const Text UsualTemplates[] = {
    L"L2-AFK220",
    L"L2-AFK110",
    L"MPI-AFK110",
    L"MPI-KQZA010",
    L"SERIAL-ASK040",
    L"TCPIP-ANK300",
    L"Automation-OnlineAccess-LDT-MPI-AFK110",
    L"Automation-OnlineAccess-LDT-L2-AFK220",
};
const Text OddTemplates[] = {L"Fehlt", L"Automation-OnlineAccess-LDT-", L"mpi-afk110", L"MPI#AFK110",
                             L"Automation-OnlineAccess-LDT-L2-AFK220\\subdevices\\Teilnehmer 1"};

const Text UsualFolders[] = {L"Boards", L"Protocols", L"DefaultLogDevices"};
const Text OddFolders[] = {L"boards", L"PROTOCOLS", L"Fehlt", L"..\\Schemes", L"..\\meta\\Boards"};

const Text UsualCatalogueFiles[] = {
    L"AFK220",
    L"*AFK110",
    L"Automation-OnlineAccess-BT-ASK040",
    L"L2",
    L"MPI",
    L"Automation-OnlineAccess-PT-TCPIP",
    L"MPI-AFK110",
    L"Automation-OnlineAccess-LDT-L2-AFK220",
};
const Text OddCatalogueFiles[] = {
    L"Fehlt",         L"afk220",
    L"MPI.xml",       L"Automation-OnlineAccess-",
    L"Boards.Schema", L"Automation-OnlineAccess-LDT-L2-AFK220\\subdevices\\Teilnehmer 1"};

const Text UsualSections[] = {
    L"DeviceHeader",
    L"LocalSettings",
    L"NetworkSettings",
    L"Bindings",
    L"Ndi",
    L"SpareSection",
    L"",
    nullptr,
    L"Install",
    L"BoardAttributes",
    L"baudrate",
    L"BoardAttributes\\DualPortRam",
};
const Text OddSections[] = {L"Fehlt",     L"UserInterface64",         L"Load", L"LogDevice", L"*",
                            L"Parameter", L"DeviceHeader\\Subdevices"};

const Text UsualParameters[] = {
    L"baudrate",    L"busparam",      L"Unit",      L"Device",    L"DeviceID",
    L"CP_TYPE",     L"enable_delete", L"hidden",    L"watchdog",  L"l4_timeout",
    L"highest_adr", L"station_adr",   L"ts",        L"slot_time", L"station_name",
    L"Remark",      L"DescText",      L"PropSheet", L"mtu",       L"dhcp",
    L"io_base",     L"Station",       L"LogDevice", L"Asic_Type", L"Neuer",
};
const Text OddParameters[] = {
    L"default",
    L"(default)",
    L"Fehlt",
    L"zwei Worte",
    L"a<b",
    L"BAUDRATE",
    L"baudrate\\1500000",
    L"Name",
    L"LOCKED_BY_THREAD_POINTER",
    L"§´",
    L"Neu*",
};

const Text UsualConstraints[] = {L"type", L"min",     L"max", L"default",
                                 L"step", L"section", L"map", L"ParamDesc"};
const Text OddConstraints[] = {L"Fehlt", L"TYPE", L"ValueCollection", L"base"};

const Text UsualKeys[] = {
    L"Constraints\\baudrate",
    L"Constraints\\l4_timeout",
    L"Constraints\\highest_adr",
    L"NotSupported",
    L"BaseSupported",
    L"Constraints\\busparam",
    L"baudrate\\1500000",
    L"busparam\\1",
    L"Constraints\\busparam\\1\\baudrate",
    L"busparam\\1\\baudrate\\187500",
    L"service_class\\Echtzeit",
};
const Text OddKeys[] = {L"Constraints",   L"Fehlt",      L"Constraints\\Fehlt", L"a\\b\\c\\d\\e\\f",
                        L"busparam\\1\\", L"\\baudrate", L"baudrate\\",         L"CONSTRAINTS\\BAUDRATE"};

const Text UsualValues[] = {
    L"0",
    L"1",
    L"2",
    L"3",
    L"10",
    L"200",
    L"2000",
    L"31",
    L"126",
    L"true",
    L"false",
    L"187500",
    L"1500000",
    L"Halle 2",
    L"Größe µΩ",
    L"min",
    L"max",
    L"default",
    L"AuentalTexte.dll,1005",
    L"AuentalSeiten.dll,ShowFeldbusPage",
    L"Leitwarte",
};
const Text OddValues[] = {
    L"-1",   L"99999999999999999999",
    L"FFE",  L"15",
    L"<x>",  L"1 ",
    L"TRUE", L"1,5",
    L",",    L",1",
    L"x,",   L"&amp;",
    L"]]>",  L"zwei\nZeilen",
};

const Text UsualBusParameters[] = {
    L"baudrate", L"busparam", L"baudrate\\1500000", L"busparam\\1\\baudrate", L"service_class", L"BUSPARAM"};
const Text OddBusParameters[] = {L"watchdog", L"Fehlt", L"busparam\\1", L"\\", L"a\\b\\c\\d"};

const Text UsualSpeeds[] = {L"9600", L"19200", L"187500", L"500000", L"1500000", L"12000000"};
const Text OddSpeeds[] = {L"0", L"-1", L"schnell", L"45450", L"99999999999", L"187500 "};

const Text UsualLinks[] = {L"DescText", L"DescDefault", L"BaudrateResource", L"BaudrateResource\\3",
                           L"DescText\\-1"};
const Text OddLinks[] = {L"Fehlt",       L"PropSheet", L"DescText\\", L"DescText\\99999999999",
                         L"DescText\\x", L"\\1"};

const Text UsualLanguages[] = {L"de", L"en", L"DE", nullptr, L""};
const Text OddLanguages[] = {L"fr", L"deutsch", L"..", L"d", L"\xD800\xD800"};

const Text UsualSettings[] = {L"PlantName",       L"Language",       L"LastUpdate",
                              L"LastStartupTime", L"LastChangeDate", L"Neue"};
const Text OddSettings[] = {L"Fehlt", L"plantname", L"laststartuptime", L"zwei Worte", L"a;b"};

const Text UsualDataFolders[] = {L"data", L"meta", L"META"};
const Text OddDataFolders[] = {L"Fehlt", L"..\\data", L"data\\LogDevices"};
const Text UsualDataSubfolders[] = {L"ParameterData", L"parameterdata", L"Boards"};
const Text OddDataSubfolders[] = {nullptr, L"", L"Fehlt", L"ParameterData\\", L"LogDevices"};
const Text UsualDataTypes[] = {L"int", L"BOOL", L"string", nullptr};
const Text OddDataTypes[] = {L"Int", L"Fehlt"};
const Text UsualDataFiles[] = {L"Kesselhaus", L"KESSELHAUS"};
const Text OddDataFiles[] = {L"Fehlt", L"..\\PGSP", L"Kesselhaus.xml", L"Automation-OnlineAccess-BT-AFK110"};
const Text UsualDataParameters[] = {L"Dampfdruck", L"Brennstunden", L"Freigabe", L"Leitfähigkeit", L"Neuer"};
const Text OddDataParameters[] = {L"Fehlt", L"dampfdruck", L"a<b", L"zwei Worte"};

const Text UsualNotifyFolders[] = {L"LogDevices", L"LogNames", L"meta"};
const Text OddNotifyFolders[] = {L"logdevices", L"Fehlt", L"data"};

const Text UsualEvents[] = {L"norvepa-endurance-1", L"norvepa-endurance-2", L"norvepa-endurance-3"};
const Text OddEvents[] = {L"norvepa-endurance-nobody", L"Global\\norvepa-endurance", L"NORVEPA-ENDURANCE-1"};

} // namespace

const Words Devices{UsualDevices, OddDevices};
const Words LogNames{UsualLogNames, OddLogNames};
const Words Boards{UsualBoards, OddBoards};
const Words BoardSections{UsualBoardSections, OddBoardSections};
const Words Protocols{UsualProtocols, OddProtocols};
const Words Templates{UsualTemplates, OddTemplates};
const Words Folders{UsualFolders, OddFolders};
const Words CatalogueFiles{UsualCatalogueFiles, OddCatalogueFiles};
const Words Sections{UsualSections, OddSections};
const Words Parameters{UsualParameters, OddParameters};
const Words Constraints{UsualConstraints, OddConstraints};
const Words Keys{UsualKeys, OddKeys};
const Words Values{UsualValues, OddValues};
const Words BusParameters{UsualBusParameters, OddBusParameters};
const Words Speeds{UsualSpeeds, OddSpeeds};
const Words Links{UsualLinks, OddLinks};
const Words Languages{UsualLanguages, OddLanguages};
const Words Settings{UsualSettings, OddSettings};
const Words DataFolders{UsualDataFolders, OddDataFolders};
const Words DataSubfolders{UsualDataSubfolders, OddDataSubfolders};
const Words DataTypes{UsualDataTypes, OddDataTypes};
const Words DataFiles{UsualDataFiles, OddDataFiles};
const Words DataParameters{UsualDataParameters, OddDataParameters};
const Words NotifyFolders{UsualNotifyFolders, OddNotifyFolders};
const Words Events{UsualEvents, OddEvents};

const Texts Hostile{HostileTexts};
const Texts OwnedEvents{UsualEvents};

} // namespace norvepa::test

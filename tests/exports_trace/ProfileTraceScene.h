#pragma once

// The trace of choices that a log device "Presse" makes in its protocol "P", and the writes that they lead
// to.

#include "CatalogueTraceScene.h"
#include "support/DeviceStore.h"

#include <string>
#include <vector>

namespace norvepa::test
{

class ProfileTraceScene : public CatalogueTraceScene
{
protected:
    // The protocol's speed 9600 has two parameters, its profile 1 those of that speed, its profile 3 none;
    // the speed 1200 has one that can't be written. The protocols "L2" and "MPI" are the same.
    ProfileTraceScene()
    {
        const XmlContent pairs = XmlContent().Text(L"slot", L"9").Text(L"gap", L"8");
        const XmlContent speeds = XmlContent()
                                      .Element(L"Value", L"9600")
                                      .Element(L"Value", L"1200")
                                      .ParamSection(L"9600", pairs)
                                      .ParamSection(L"1200", XmlContent().Text(L"CP_TYPE", L"1"));
        const XmlContent baudrate = XmlContent().Element(L"ValueCollection", speeds);
        const XmlContent profiles = XmlContent()
                                        .Element(L"Value", L"1/DP")
                                        .Element(L"Value", L"3/User")
                                        .ParamSection(L"1", XmlContent().ParamSection(L"baudrate", baudrate));
        const XmlContent section = XmlContent().Element(L"section", L"LocalSettings");
        const std::string file = ProtocolFile(XmlContent().Element(
            L"Constraints",
            XmlContent()
                .ParamSection(L"baudrate", XmlContent(section).Raw(baudrate.utf8()))
                .ParamSection(L"busparam", XmlContent(section).Element(L"ValueCollection", profiles))));
        for (const wchar_t* const name : {L"P", L"L2", L"MPI"})
        {
            WriteBytes(roots.protocol(name), file);
        }
    }

    void WriteDevice(std::wstring_view speed, std::wstring_view profile,
                     std::wstring_view protocol = L"P") const
    {
        const XmlContent settings = XmlContent()
                                        .Int(L"baudrate", speed)
                                        .Text(L"busparam", profile)
                                        .Text(L"highest_adr", L"126")
                                        .Text(L"ttr", L"0")
                                        .Text(L"slot", L"0")
                                        .Text(L"gap", L"0");
        store.WriteDevice(L"Presse", XmlContent().Element(L"LocalSettings", settings), L"X", protocol);
    }

    // The lines of a change of one of the device's parameters.
    static void AddSet(std::vector<std::string>& lines, const std::string& parameter,
                       const std::string& value)
    {
        lines.push_back("entry: >> LogDevice = Presse, Parameter = " + parameter + ", Value = " + value);
        lines.push_back("information: No Subdevice");
        lines.push_back("exit: << return lRet = 0");
    }

    const DeviceStore store{roots};
};

inline const std::string NoValue = "exit: << return PGSP_PROFILE_NO_VALUE";
inline const std::string OfTheValueItself =
    "information: sParam=PGSP_PARAM_BAUDRATE or (sParam=PGSP_PARAM_PROFILES and "
    "sParamValue=PGSP_PARAM_PROFILES_USER)";
inline const std::string OfAnotherParameter =
    "information: sParam=PGSP_PARAM_PROFILES  sParamValue=PGSP_PARAM_PROFILES_USER";
inline const std::string AskForTheCollection = "information: >> NorvXMLProfileCollectionExists";

} // namespace norvepa::test

#include "CatalogueTraceScene.h"

#include "support/ShellFolders.h"

namespace norvepa::test
{

CatalogueTraceScene::CatalogueTraceScene()
{
    const XmlContent words = XmlContent().Element(L"default", L"1");
    WriteBytes(roots.board(L"X"),
               BoardFile(XmlContent()
                             .Element(L"Install", XmlContent().Text(L"a", L"abc").Text(L"(default)", L"def"))
                             .Element(L"NotSupported", XmlContent().ValueCollection({L"abc", L"def"}))
                             .Element(L"Constraints", XmlContent().ParamSection(L"s", words))));

    const XmlContent rates = XmlContent().ParamSection(L"9600", XmlContent().Text(L"slot", L"9"));
    const XmlContent baudrate =
        XmlContent().ParamSection(L"baudrate", XmlContent().Element(L"ValueCollection", rates));
    const XmlContent profiles =
        XmlContent()
            .Element(L"Value", L"3/User")
            .ParamSection(L"3", XmlContent().Text(L"slot", L"103").Raw(baudrate.utf8()));
    const XmlContent busparam = XmlContent().Element(L"default", L"3").Element(L"ValueCollection", profiles);
    WriteBytes(roots.protocol(L"X"),
               ProtocolFile(XmlContent().Element(
                   L"Constraints", XmlContent().ParamSection(L"busparam", busparam).Raw(baudrate.utf8()))));
}

void CatalogueTraceScene::TakeProgramFolderAway() const
{
    DeleteMachineValue(LocationsKey, L"Corvane_Oam");
    SetCommonProgramFiles(roots.folder().path());
}

} // namespace norvepa::test

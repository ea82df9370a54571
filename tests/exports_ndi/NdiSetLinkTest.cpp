#include "NdiScene.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{
namespace
{

class NdiSetLink : public NdiScene
{
protected:
    NdiSetLink() { WriteLinks({}); }

    // Beside a section Ndi that links have no business with.
    [[nodiscard]] static XmlContent Device(const XmlContent& links)
    {
        return Identity(XmlContent().Text(L"DescText", L"plain").Text(L"PropSheet", L"plain"), links);
    }

    void WriteLinks(const XmlContent& links) const { Write(Device(links)); }
    void ExpectLinks(const XmlContent& links) const { ExpectSaved(Device(links)); }
};

TEST_F(NdiSetLink, WritesATextAsLibraryStandardPathAndNumber)
{
    EXPECT_EQ(SetNdi(L"DescText", L"Texte.dll,7"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"DescDefault", L"Texte.dll,8"), PGSP_OK);

    ExpectLinks(XmlContent().Resource(DescText).Resource(
        {.name = L"DescDefault", .assembly = L"Texte.dll", .path = L"%commonpath%", .resourceId = L"8"}));
}

TEST_F(NdiSetLink, WritesAPageAsLibraryStandardPathAndFunction)
{
    EXPECT_EQ(SetNdi(L"PropSheet", L"Seiten.dll,ShowPage"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Diagnosis", L"Seiten.dll,Diagnose"), PGSP_OK);

    ExpectLinks(XmlContent().ParameterAssemblyLink(PropSheet).ParameterAssemblyLink(
        {.name = L"Diagnosis", .assembly = L"Seiten.dll", .path = L"%commonpath%", .function = L"Diagnose"}));
}

TEST_F(NdiSetLink, KnowsTheNamesInAnyCaseAndWritesThemAsTheyCome)
{
    EXPECT_EQ(SetNdi(L"desctext", L"Texte.dll,7"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"DESCDEFAULT", L"8"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"propsheet", L"Seiten.dll,ShowPage"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"DIAGNOSIS", L"Seiten.dll,Diagnose"), PGSP_OK);

    ExpectLinks(
        XmlContent()
            .Resource(
                {.name = L"desctext", .assembly = L"Texte.dll", .path = L"%commonpath%", .resourceId = L"7"})
            .Resource({.name = L"DESCDEFAULT", .resourceId = L"8"})
            .ParameterAssemblyLink({.name = L"propsheet",
                                    .assembly = L"Seiten.dll",
                                    .path = L"%commonpath%",
                                    .function = L"ShowPage"})
            .ParameterAssemblyLink({.name = L"DIAGNOSIS",
                                    .assembly = L"Seiten.dll",
                                    .path = L"%commonpath%",
                                    .function = L"Diagnose"}));
}

TEST_F(NdiSetLink, MeetsALinkThatIsThereInAnyCaseAndKeepsItsSpelling)
{
    WriteLinks(XmlContent().Resource(DescText).ParameterAssemblyLink(PropSheet));

    EXPECT_EQ(SetNdi(L"DESCTEXT", L"Texte.dll,8"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"propsheet", L"Seiten.dll,Other"), PGSP_OK);

    ExpectLinks(
        XmlContent()
            .Resource(
                {.name = L"DescText", .assembly = L"Texte.dll", .path = L"%commonpath%", .resourceId = L"8"})
            .ParameterAssemblyLink({.name = L"PropSheet",
                                    .assembly = L"Seiten.dll",
                                    .path = L"%commonpath%",
                                    .function = L"Other"}));
}

TEST_F(NdiSetLink, SplitsAtTheFirstCommaOnly)
{
    EXPECT_EQ(SetNdi(L"DescText", L"Texte.dll,7,8,"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"PropSheet", L"Seiten.dll,Show,Page"), PGSP_OK);

    ExpectLinks(XmlContent()
                    .Resource({.name = L"DescText",
                               .assembly = L"Texte.dll",
                               .path = L"%commonpath%",
                               .resourceId = L"7,8,"})
                    .ParameterAssemblyLink({.name = L"PropSheet",
                                            .assembly = L"Seiten.dll",
                                            .path = L"%commonpath%",
                                            .function = L"Show,Page"}));
}

TEST_F(NdiSetLink, WritesPartsAroundACommaThatMayBeEmpty)
{
    EXPECT_EQ(SetNdi(L"DescText", L","), PGSP_OK);
    EXPECT_EQ(SetNdi(L"DescDefault", L"Texte.dll,"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"PropSheet", L","), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Diagnosis", L",Diagnose"), PGSP_OK);

    const std::wstring_view path = L"%commonpath%";
    ExpectLinks(
        XmlContent()
            .Resource({.name = L"DescText", .assembly = L"", .path = path, .resourceId = L""})
            .Resource({.name = L"DescDefault", .assembly = L"Texte.dll", .path = path, .resourceId = L""})
            .ParameterAssemblyLink({.name = L"PropSheet", .assembly = L"", .path = path, .function = L""})
            .ParameterAssemblyLink(
                {.name = L"Diagnosis", .assembly = L"", .path = path, .function = L"Diagnose"}));
}

TEST_F(NdiSetLink, WritesABareNumberWithNeitherLibraryNorPath)
{
    EXPECT_EQ(SetNdi(L"DescText", L"7"), PGSP_OK);

    ExpectLinks(XmlContent().Resource({.name = L"DescText", .resourceId = L"7"}));
}

TEST_F(NdiSetLink, TakesAnyTextWithoutACommaForABareNumber)
{
    EXPECT_EQ(SetNdi(L"DescText", L"Texte.dll;7"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"DescDefault", L""), PGSP_OK);

    ExpectLinks(XmlContent()
                    .Resource({.name = L"DescText", .resourceId = L"Texte.dll;7"})
                    .Resource({.name = L"DescDefault", .resourceId = L""}));
}

TEST_F(NdiSetLink, ReplacesTheNumberAloneByABareOne)
{
    WriteLinks(XmlContent().Resource({.name = L"DescText",
                                      .assembly = L"Texte.dll",
                                      .path = L"C:\\Texte",
                                      .resourceId = L"7",
                                      .nameSpace = L"Texte"}));

    EXPECT_EQ(SetNdi(L"DescText", L"8"), PGSP_OK);

    ExpectLinks(XmlContent().Resource({.name = L"DescText",
                                       .assembly = L"Texte.dll",
                                       .path = L"C:\\Texte",
                                       .resourceId = L"8",
                                       .nameSpace = L"Texte"}));
}

TEST_F(NdiSetLink, ReplacesLibraryPathAndNumberOrFunction)
{
    WriteLinks(
        XmlContent()
            .Resource({.name = L"DescText",
                       .assembly = L"Alt.dll",
                       .path = L"C:\\Texte",
                       .resourceId = L"1",
                       .nameSpace = L"Texte"})
            .ParameterAssemblyLink(
                {.name = L"PropSheet", .assembly = L"Alt.dll", .path = L"C:\\Seiten", .function = L"Old"}));

    EXPECT_EQ(SetNdi(L"DescText", L"Texte.dll,7"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"PropSheet", L"Seiten.dll,ShowPage"), PGSP_OK);

    ExpectLinks(XmlContent()
                    .Resource({.name = L"DescText",
                               .assembly = L"Texte.dll",
                               .path = L"%commonpath%",
                               .resourceId = L"7",
                               .nameSpace = L"Texte"})
                    .ParameterAssemblyLink(PropSheet));
}

TEST_F(NdiSetLink, MovesALinkOfAnotherPathToTheStandardPath)
{
    WriteLinks(XmlContent().Resource(
        {.name = L"DescText", .assembly = L"Texte.dll", .path = L"C:\\Texte", .resourceId = L"7"}));

    EXPECT_EQ(SetNdi(L"DescText", L"Texte.dll,7"), PGSP_OK);

    ExpectLinks(XmlContent().Resource(DescText));
}

TEST_F(NdiSetLink, PassesOverLinksOfTheOtherKind)
{
    const Link text{.name = L"PropSheet", .assembly = L"a", .path = L"b", .resourceId = L"c"};
    const Link page{.name = L"DescText", .assembly = L"a", .path = L"b", .function = L"c"};
    WriteLinks(XmlContent().Resource(text).ParameterAssemblyLink(page));

    EXPECT_EQ(SetNdi(L"PropSheet", L"Seiten.dll,ShowPage"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"DescText", L"Texte.dll,7"), PGSP_OK);

    ExpectLinks(
        XmlContent().Resource(text).ParameterAssemblyLink(page).ParameterAssemblyLink(PropSheet).Resource(
            DescText));
}

TEST_F(NdiSetLink, OfTheSameValueWritesNothing)
{
    WriteLinks(XmlContent().Resource(DescText).ParameterAssemblyLink(PropSheet));

    for (const std::int32_t round : {1, 2})
    {
        SCOPED_TRACE(round);
        ExpectSetNdiChangesNothing(L"DescText", L"Texte.dll,7", PGSP_OK);
        ExpectSetNdiChangesNothing(L"desctext", L"TEXTE.DLL,7", PGSP_OK);
        ExpectSetNdiChangesNothing(L"DescText", L"7", PGSP_OK);
        ExpectSetNdiChangesNothing(L"PropSheet", L"Seiten.dll,ShowPage", PGSP_OK);
        ExpectSetNdiChangesNothing(L"PROPSHEET", L"seiten.dll,showpage", PGSP_OK);
    }
}

TEST_F(NdiSetLink, RefusesPointedBrackets)
{
    for (const wchar_t* const value : {L"<", L"7>", L"a<b,7", L"Texte.dll,>"})
    {
        ExpectSetNdiChangesNothing(L"DescText", value, PGSP_ERR_INVALID_PARAMETERS);
    }
    ExpectSetNdiChangesNothing(L"PropSheet", L"a>b,Show", PGSP_ERR_INVALID_PARAMETERS);
    ExpectSetNdiChangesNothing(L"Diagnosis", L"Seiten.dll,<", PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(NdiSetLink, TakesEveryOtherCharacterThatXmlHolds)
{
    EXPECT_EQ(SetNdi(L"DescText", L"Gr\u00F6\u00DFe & \"50%\" #.dll,[=!']"), PGSP_OK);
    ExpectSetNdiChangesNothing(L"DescText", L"\x01,7", PGSP_ERR_CANT_SET_VALUE);
    ExpectSetNdiChangesNothing(L"PropSheet", L"Seiten.dll,\x1F", PGSP_ERR_CANT_SET_VALUE);

    ExpectLinks(XmlContent().Resource({.name = L"DescText",
                                       .assembly = L"Gr\u00F6\u00DFe & \"50%\" #.dll",
                                       .path = L"%commonpath%",
                                       .resourceId = L"[=!']"}));
}

// A change that can't be saved is no failure.
TEST_F(NdiSetLink, SucceedsOnAFileThatCanNotBeWritten)
{
    const OpenFile inUse(roots.logDevice(L"Presse"));

    ExpectSetNdiChangesNothing(L"DescText", L"Texte.dll,7", PGSP_OK);
}

TEST_F(NdiSetLink, MakesNoLinkInAFileThatCanNotBeRead)
{
    WriteBytes(roots.logDevice(L"broken"), "<LogDevice><UserInterface64></LogDevice>");
    const std::wstring tooLong = store.DeviceForPathOf(260);

    for (const wchar_t* const parameter : {L"DescText", L"PropSheet"})
    {
        EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(L"gone", parameter, L"a,b", In64), PGSP_ERR_FILE_NOT_FOUND);
        EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(L"broken", parameter, L"a,b", In64),
                  PGSP_ERR_CANT_LOAD_XML_FILE);
        EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(tooLong.c_str(), parameter, L"a,b", In64),
                  PGSP_ERR_BUFFER_TOO_SHORT);
    }
    EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(L"gone", L"DescText", L"7", In64), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_EQ(Files().size(), 2U); // those that were there
}

TEST_F(NdiSetLink, NeedsCom)
{
    OnFreshThread([&] {
        ExpectSetNdiChangesNothing(L"DescText", L"7", PGSP_ERR_CANT_CREATE_XML_ENGINE);
        ExpectSetNdiChangesNothing(L"DescText", L"Texte.dll,7", PGSP_ERR_CANT_CREATE_XML_ENGINE);
        ExpectSetNdiChangesNothing(L"PropSheet", L"Seiten.dll,f", PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_FALSE(ThisThreadHasCom());
    });
}

TEST_F(NdiSetLink, WritesIntoDevicesWithCodedNames)
{
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, Links({}));

        EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(coded.name, L"DescText", L"Texte.dll,7", In64), PGSP_OK);
        EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(coded.name, L"PropSheet", L"Seiten.dll,ShowPage", In64),
                  PGSP_OK);

        EXPECT_EQ(
            store.Saved(coded.fileName),
            MeaningOf(LogDeviceFile(Links(XmlContent().Resource(DescText).ParameterAssemblyLink(PropSheet)))))
            << ToUtf8(coded.name);
    }
}

} // namespace
} // namespace norvepa::test

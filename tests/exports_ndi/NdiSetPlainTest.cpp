#include "NdiScene.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{
namespace
{

class NdiSetPlain : public NdiScene
{
protected:
    NdiSetPlain() { WriteNdi({}); }

    // Beside a section of links that plain values have no business with.
    [[nodiscard]] static XmlContent Device(const XmlContent& ndi)
    {
        return Identity(
            ndi, XmlContent().ParameterAssemblyLink(PropSheet).Resource(DescText).Text(L"Ort", L"links"));
    }

    void WriteNdi(const XmlContent& ndi) const { Write(Device(ndi)); }
    void ExpectNdi(const XmlContent& ndi) const { ExpectSaved(Device(ndi)); }
};

TEST_F(NdiSetPlain, WritesAnyOtherNameIntoTheSectionNdi)
{
    EXPECT_EQ(SetNdi(L"VendorName", L"Auental & S\u00F6hne, 50%"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"BaudrateResource", L"Texte.dll,3000"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"BusparamResource", L"3100", In32), PGSP_OK);
    EXPECT_EQ(SetNdi(L"DescTexts", L"a,b"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Ort", L"Halle 2", In32), PGSP_OK);

    ExpectNdi(XmlContent()
                  .Text(L"VendorName", L"Auental & S\u00F6hne, 50%")
                  .Text(L"BaudrateResource", L"Texte.dll,3000")
                  .Text(L"BusparamResource", L"3100")
                  .Text(L"DescTexts", L"a,b")
                  .Text(L"Ort", L"Halle 2"));
}

TEST_F(NdiSetPlain, WritesAPageWithoutACommaIntoTheSectionNdi)
{
    EXPECT_EQ(SetNdi(L"PropSheet", L"ShowPage"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"diagnosis", L""), PGSP_OK);

    ExpectNdi(XmlContent().Text(L"PropSheet", L"ShowPage").Text(L"diagnosis", L""));
    EXPECT_EQ(Value(L"PropSheet"), L"ShowPage");
}

TEST_F(NdiSetPlain, WritesAPageWithoutACommaInTheTypeOfTheCatalogue)
{
    store.WriteBoard(Catalogue()
                         .Parameter(L"PropSheet", {{L"type", L"int"}})
                         .Parameter(L"Diagnosis", {{L"type", L"string"}}));

    EXPECT_EQ(SetNdi(L"PropSheet", L"3"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Diagnosis", L"true"), PGSP_OK);

    ExpectNdi(XmlContent().Int(L"PropSheet", L"3").Text(L"Diagnosis", L"true"));
}

TEST_F(NdiSetPlain, RefusesWhatIsMalformedForTheTypeOfTheCatalogue)
{
    store.WriteBoard(
        Catalogue().Parameter(L"Stufe", {{L"type", L"int"}}).Parameter(L"Aktiv", {{L"type", L"bool"}}));

    ExpectSetNdiChangesNothing(L"Stufe", L"drei", PGSP_ERR_INVALID_PARAMETERS);
    ExpectSetNdiChangesNothing(L"Stufe", L"true", PGSP_ERR_INVALID_PARAMETERS);
    ExpectSetNdiChangesNothing(L"Aktiv", L"1", PGSP_ERR_INVALID_PARAMETERS);
    ExpectSetNdiChangesNothing(L"Aktiv", L"", PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(NdiSetPlain, AsksTheCatalogueForTheTypeAlone)
{
    const ConstraintWords words = {{L"type", L"int"}, {L"min", L"1"},  {L"max", L"8"},
                                   {L"step", L"2"},   {L"map", L"st"}, {L"section", L"LocalSettings"}};
    store.WriteBoard(Catalogue().Parameter(L"Stufe", words, XmlContent().ValueCollection({L"3", L"5"})));

    EXPECT_EQ(SetNdi(L"Stufe", L"10"), PGSP_OK);

    ExpectNdi(XmlContent().Int(L"Stufe", L"10"));
}

TEST_F(NdiSetPlain, WritesTheWordsOfRangesAsTheyStand)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"default", L"3"}, {L"max", L"8"}}));

    EXPECT_EQ(SetNdi(L"Stufe", L"default"), PGSP_OK);

    ExpectNdi(XmlContent().Text(L"Stufe", L"default"));
}

TEST_F(NdiSetPlain, ReplacesAValueThatIsThereInAnyCaseOfItsName)
{
    WriteNdi(XmlContent().Bool(L"hidden", L"true").Text(L"VendorName", L"a"));

    EXPECT_EQ(SetNdi(L"HIDDEN", L"false"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"vendorname", L"b"), PGSP_OK);

    ExpectNdi(XmlContent().Bool(L"hidden", L"false").Text(L"VendorName", L"b"));
}

TEST_F(NdiSetPlain, MakesASecondEntryForAValueOfAnotherType)
{
    WriteNdi(XmlContent().Bool(L"hidden", L"true"));

    EXPECT_EQ(SetNdi(L"hidden", L"TRUE"), PGSP_OK);

    ExpectNdi(XmlContent().Bool(L"hidden", L"true").Text(L"hidden", L"TRUE"));
}

TEST_F(NdiSetPlain, OfTheSameValueWritesNothing)
{
    WriteNdi(XmlContent().Bool(L"hidden", L"true").Text(L"VendorName", L"Auental"));

    for (const std::int32_t round : {1, 2})
    {
        SCOPED_TRACE(round);
        ExpectSetNdiChangesNothing(L"hidden", L"true", PGSP_OK);
        ExpectSetNdiChangesNothing(L"VendorName", L"Auental", PGSP_OK);
        ExpectSetNdiChangesNothing(L"VENDORNAME", L"AUENTAL", PGSP_OK, In32);
    }
}

TEST_F(NdiSetPlain, ProtectsNoName)
{
    EXPECT_EQ(SetNdi(L"DeviceID", L"AFK220"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"CP_TYPE", L"L2"), PGSP_OK);

    ExpectNdi(XmlContent().Text(L"DeviceID", L"AFK220").Text(L"CP_TYPE", L"L2"));
}

TEST_F(NdiSetPlain, RefusesCharactersInTheNamesOfTexts)
{
    for (const wchar_t character : std::wstring_view(L" []^!\"\u00A7$%&()=?\u00B4'#+><*|;,"))
    {
        ExpectSetNdiChangesNothing((std::wstring(L"a") + character).c_str(), L"1",
                                   PGSP_ERR_INVALID_PARAMETERS);
    }
    ExpectSetNdiChangesNothing(L"Ort", L"<", PGSP_ERR_INVALID_PARAMETERS);
    ExpectSetNdiChangesNothing(L"Ort", L"a>b", PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(NdiSetPlain, TakesEveryCharacterInTheNamesOfTruthValues)
{
    EXPECT_EQ(SetNdi(L"a b;c", L"true"), PGSP_OK);

    ExpectNdi(XmlContent().Bool(L"a b;c", L"true"));
}

TEST_F(NdiSetPlain, RefusesWhatXmlCanNotHold)
{
    ExpectSetNdiChangesNothing(L"Ort", L"\x01", PGSP_ERR_CANT_SET_VALUE);
    ExpectSetNdiChangesNothing(L"\x1F", L"1", PGSP_ERR_CANT_SET_VALUE);
}

// Unlike that of links, this section isn't made.
TEST_F(NdiSetPlain, NeedsTheSectionNdi)
{
    Write(Links(XmlContent().ParameterAssemblyLink(PropSheet)));

    ExpectSetNdiChangesNothing(L"Ort", L"Halle", PGSP_ERR_CANT_SET_VALUE);
    ExpectSetNdiChangesNothing(L"PropSheet", L"ShowPage", PGSP_ERR_CANT_SET_VALUE);
    ExpectSetNdiChangesNothing(L"hidden", L"true", PGSP_ERR_CANT_SET_VALUE);
}

// A change that can't be saved is no failure.
TEST_F(NdiSetPlain, SucceedsOnAFileThatCanNotBeWritten)
{
    const OpenFile inUse(roots.logDevice(L"Presse"));

    ExpectSetNdiChangesNothing(L"Ort", L"Halle", PGSP_OK);
}

TEST_F(NdiSetPlain, BringsComWithItWhereThereIsNone)
{
    OnFreshThread([&] {
        EXPECT_EQ(SetNdi(L"VendorName", L"Auental"), PGSP_OK);
        EXPECT_EQ(SetNdi(L"VendorName", L"AUENTAL"), PGSP_OK);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    ExpectNdi(XmlContent().Text(L"VendorName", L"Auental"));
}

TEST_F(NdiSetPlain, WritesNothingIntoAFileThatCanNotBeRead)
{
    WriteBytes(roots.logDevice(L"broken"), "<LogDevice><Ndi></LogDevice>");

    EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(L"gone", L"Ort", L"1", In64), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(L"broken", L"Ort", L"1", In64), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(store.DeviceForPathOf(260).c_str(), L"Ort", L"1", In64),
              PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(L"Presse\\subdevices\\Ventil", L"Ort", L"1", In64),
              PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_EQ(Files().size(), 2U); // those that were there
}

TEST_F(NdiSetPlain, WritesIntoDevicesWithCodedNames)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L"int"}}));
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, Ndi({}));

        EXPECT_EQ(library.PGSP_LogDeviceSetNdiBL(coded.name, L"Stufe", L"3", In64), PGSP_OK);

        EXPECT_EQ(store.Saved(coded.fileName),
                  MeaningOf(LogDeviceFile(Ndi(XmlContent().Int(L"Stufe", L"3")))))
            << ToUtf8(coded.name);
    }
}

} // namespace
} // namespace norvepa::test

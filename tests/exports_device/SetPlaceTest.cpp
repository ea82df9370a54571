#include "SetScene.h"
#include "support/OutputBuffer.h"

namespace norvepa::test
{
namespace
{

// One section with one number.
XmlContent Section(std::wstring_view section, std::wstring_view value, std::wstring_view name = L"Stufe")
{
    return XmlContent().Element(section, XmlContent().Int(name, value));
}

XmlContent operator+(XmlContent left, const XmlContent& right)
{
    return left.Raw(right.utf8());
}

class SetPlace : public SetScene
{
protected:
    void WriteStufe(ConstraintWords words) const { store.WriteBoard(Catalogue().Parameter(L"Stufe", words)); }
};

TEST_F(SetPlace, IsTheCataloguesSectionWhereverElseTheParameterStands)
{
    WriteStufe({{L"type", L"int"}, {L"section", L"UserInterface"}});
    Write(Section(L"DeviceHeader", L"1") + Section(L"UserInterface", L"1") + Section(L"SpareSection", L"1"));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSaved(Section(L"DeviceHeader", L"1") + Section(L"UserInterface", L"2") +
                Section(L"SpareSection", L"1"));
}

TEST_F(SetPlace, IsTheCataloguesSectionAlsoForAParameterThatStandsElsewhereOnly)
{
    WriteStufe({{L"type", L"int"}, {L"section", L"Bindings"}});
    Write(Section(L"DeviceHeader", L"1") + Section(L"Bindings", L"1", L"Takt"));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSaved(Section(L"DeviceHeader", L"1") +
                XmlContent().Element(L"Bindings", XmlContent().Int(L"Takt", L"1").Int(L"Stufe", L"2")));
}

TEST_F(SetPlace, IsTheProtocolsSectionWhenTheBoardNamesNone)
{
    WriteStufe({{L"type", L"int"}});
    store.WriteProtocol(Catalogue().Parameter(L"Stufe", {{L"section", L"Ndi"}}));
    Write(Section(L"DeviceHeader", L"1") + Section(L"Ndi", L"1"));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSaved(Section(L"DeviceHeader", L"1") + Section(L"Ndi", L"2"));
}

TEST_F(SetPlace, IsNoneWhenTheFileLacksTheCataloguesSection)
{
    WriteStufe({{L"type", L"int"}, {L"section", L"Bindings"}});
    Write(Section(L"DeviceHeader", L"1") + Section(L"SpareSection", L"1"));

    ExpectSetChangesNothing(L"Stufe", L"2", PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(SetPlace, IsNoneWhenTheCatalogueSpellsTheSectionInAnotherCase)
{
    WriteStufe({{L"type", L"int"}, {L"section", L"deviceheader"}});
    Write(Section(L"DeviceHeader", L"1"));

    ExpectSetChangesNothing(L"Stufe", L"2", PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(SetPlace, IsSearchedInFiveSectionsWithoutAWordOfTheCatalogue)
{
    for (const wchar_t* const section :
         {L"DeviceHeader", L"LocalSettings", L"NetworkSettings", L"Bindings", L"Ndi"})
    {
        Write(Section(section, L"1") + Section(L"SpareSection", L"1"));

        EXPECT_EQ(Set(L"STUFE", L"2"), PGSP_OK);

        ExpectSaved(Section(section, L"2") + Section(L"SpareSection", L"1"));
    }
}

TEST_F(SetPlace, IsTheFirstOfTheTableAndNotOfTheFile)
{
    Write(Section(L"Ndi", L"1") + Section(L"Bindings", L"1") + Section(L"NetworkSettings", L"1") +
          Section(L"LocalSettings", L"1"));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSaved(Section(L"Ndi", L"1") + Section(L"Bindings", L"1") + Section(L"NetworkSettings", L"1") +
                Section(L"LocalSettings", L"2"));
}

TEST_F(SetPlace, IsSpareSectionForAParameterThatStandsNowhere)
{
    Write(Section(L"DeviceHeader", L"1", L"Unit") + Section(L"SpareSection", L"1", L"Takt"));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSaved(Section(L"DeviceHeader", L"1", L"Unit") +
                XmlContent().Element(L"SpareSection", XmlContent().Int(L"Takt", L"1").Text(L"Stufe", L"2")));
}

TEST_F(SetPlace, IsNoneForAParameterThatStandsNowhereWithoutASpareSection)
{
    Write(Section(L"DeviceHeader", L"1", L"Unit"));

    ExpectSetChangesNothing(L"Stufe", L"2", PGSP_ERR_CANT_SET_VALUE);
}

// Reading goes on to look there, and so goes on to find what was there before.
TEST_F(SetPlace, IsSpareSectionForAParameterOfTheUserInterface)
{
    const XmlContent spare = XmlContent().Element(L"SpareSection", XmlContent());
    for (const wchar_t* const section : {L"UserInterface", L"UserInterface64"})
    {
        Write(Section(section, L"1") + spare);

        EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

        ExpectSaved(Section(section, L"1") +
                    XmlContent().Element(L"SpareSection", XmlContent().Text(L"Stufe", L"2")));
        OutputBuffer value(10);
        EXPECT_EQ(library.LogDeviceGetValueBL(L"Presse", L"Stufe", value.data(), &value.length), PGSP_OK);
        EXPECT_EQ(value.text(), L"1");
    }
}

// The search meets what stands deeper in a section, too; the write doesn't.
TEST_F(SetPlace, IsTheSectionAroundASubdeviceThatHasAParameterOfTheName)
{
    const XmlContent valve = XmlContent().Subdevice(L"Ventil", XmlContent().Int(L"Stufe", L"1"));
    Write(XmlContent().Element(L"Bindings", valve) + Section(L"SpareSection", L"1"));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSaved(XmlContent().Element(L"Bindings", XmlContent(valve).Int(L"Stufe", L"2")) +
                Section(L"SpareSection", L"1"));
}

TEST_F(SetPlace, HasTheNameThatTheCatalogueMapsTo)
{
    WriteStufe({{L"type", L"int"}, {L"section", L"LocalSettings"}, {L"map", L"stage"}});
    Write(XmlContent().Element(L"LocalSettings", XmlContent().Int(L"Stufe", L"1").Int(L"Stage", L"1")));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSaved(XmlContent().Element(L"LocalSettings", XmlContent().Int(L"Stufe", L"1").Int(L"Stage", L"2")));
}

TEST_F(SetPlace, IsMadeUnderTheNameThatTheCatalogueMapsTo)
{
    WriteStufe({{L"type", L"int"}, {L"section", L"LocalSettings"}, {L"map", L"stage"}});
    Write(XmlContent().Element(L"LocalSettings", XmlContent()));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSaved(Section(L"LocalSettings", L"2", L"stage"));
}

TEST_F(SetPlace, IsSearchedByTheNameThatTheCatalogueMapsTo)
{
    WriteStufe({{L"type", L"int"}, {L"map", L"stage"}});
    Write(Section(L"DeviceHeader", L"1") + Section(L"NetworkSettings", L"1", L"stage"));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSaved(Section(L"DeviceHeader", L"1") + Section(L"NetworkSettings", L"2", L"stage"));
}

TEST_F(SetPlace, HasTheCallersNameWhenTheCataloguesIsEmpty)
{
    // The one word of the file that has no text, and no other behind it.
    WriteBytes(roots.board(L"AFK110"),
               "<Device><Constraints><ParamSection Param=\"Stufe\"><type>int</type><map/></ParamSection>"
               "</Constraints></Device>");
    Write(Section(L"DeviceHeader", L"1"));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSaved(Section(L"DeviceHeader", L"2"));
}

TEST_F(SetPlace, IsFoundOfDevicesWithCodedNames)
{
    WriteStufe({{L"type", L"int"}, {L"max", L"8"}, {L"min", L"0"}});
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, Section(L"DeviceHeader", L"1"));

        EXPECT_EQ(library.LogDeviceSetValueBL(coded.name, L"Stufe", L"9"), PGSP_SET_VAL_BIGGER_THAN_MAX);
        EXPECT_EQ(library.LogDeviceSetValueBL(coded.name, L"Stufe", L"2"), PGSP_OK);

        EXPECT_THAT(store.Bytes(coded.fileName), testing::HasSubstr("<Value>2</Value>"));
    }
    EXPECT_EQ(Files().size(), std::size(CodedNames));
}

} // namespace
} // namespace norvepa::test

#include "SetScene.h"

namespace norvepa::test
{
namespace
{

class SetType : public SetScene
{
protected:
    SetType() { Write(XmlContent().Element(L"SpareSection", XmlContent())); }

    void WriteStufe(ConstraintWords words) const { store.WriteBoard(Catalogue().Parameter(L"Stufe", words)); }

    void ExpectSpare(const XmlContent& entries) const
    {
        ExpectSaved(XmlContent().Element(L"SpareSection", entries));
    }
};

TEST_F(SetType, OfTheCatalogueMakesTheEntryOfItsKind)
{
    store.WriteBoard(Catalogue()
                         .Parameter(L"Stufe", {{L"type", L"INT"}})
                         .Parameter(L"Aktiv", {{L"type", L"Bool"}})
                         .Parameter(L"Ort", {{L"type", L"String"}}));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);
    EXPECT_EQ(Set(L"Aktiv", L"false"), PGSP_OK);
    EXPECT_EQ(Set(L"Ort", L"Halle 2"), PGSP_OK);

    ExpectSpare(XmlContent().Int(L"Stufe", L"2").Bool(L"Aktiv", L"false").Text(L"Ort", L"Halle 2"));
}

// The check lets any case pass; what is stored is in small letters.
TEST_F(SetType, BoolIsStoredInSmallLetters)
{
    WriteStufe({{L"type", L"bool"}});

    EXPECT_EQ(Set(L"Stufe", L"TRUE"), PGSP_OK);

    ExpectSpare(XmlContent().Bool(L"Stufe", L"true"));
}

TEST_F(SetType, OfTheCatalogueThatIsAnotherWordIsTheEntrysElement)
{
    WriteStufe({{L"type", L"ParameterByte"}});

    EXPECT_EQ(Set(L"Stufe", L"a<b"), PGSP_OK);

    ExpectSpare(XmlContent().Element(L"ParameterByte",
                                     XmlContent().Element(L"Name", L"Stufe").Element(L"Value", L"a<b")));
}

TEST_F(SetType, OfTheCatalogueMakesASecondEntryBesideOneOfAnotherKind)
{
    WriteStufe({{L"type", L"int"}});
    Write(XmlContent().Element(L"LocalSettings", XmlContent().Text(L"Stufe", L"1")));

    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSaved(
        XmlContent().Element(L"LocalSettings", XmlContent().Text(L"Stufe", L"1").Int(L"Stufe", L"2")));
}

TEST_F(SetType, OfNobodyMakesAText)
{
    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);

    ExpectSpare(XmlContent().Text(L"Stufe", L"2"));
}

TEST_F(SetType, OfNobodyRefusesWhatATextMayNotHold)
{
    ExpectSetChangesNothing(L"Stufe", L"a<b", PGSP_ERR_INVALID_PARAMETERS);
    ExpectSetChangesNothing(L"Stufe", L"a>b", PGSP_ERR_INVALID_PARAMETERS);
    ExpectSetChangesNothing(L"Stufe 2", L"1", PGSP_ERR_INVALID_PARAMETERS);
    ExpectSetChangesNothing(L"(default)", L"1", PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(SetType, StringRefusesWhatATextMayNotHold)
{
    WriteStufe({{L"type", L"string"}});

    ExpectSetChangesNothing(L"Stufe", L"a<b", PGSP_ERR_INVALID_PARAMETERS);
}

// An entry's own element isn't a type that anything is tested by.
TEST_F(SetType, OfTheEntryIsItsElementAndTestsNothing)
{
    Write(XmlContent().Element(
        L"LocalSettings", XmlContent().Int(L"Stufe", L"1").Bool(L"Aktiv", L"true").Text(L"Ort", L"Halle 2")));

    EXPECT_EQ(Set(L"Stufe", L"two"), PGSP_OK);
    EXPECT_EQ(Set(L"Aktiv", L"FALSE"), PGSP_OK);
    EXPECT_EQ(Set(L"Ort", L"<hall>"), PGSP_OK);

    ExpectSaved(XmlContent().Element(
        L"LocalSettings",
        XmlContent().Int(L"Stufe", L"two").Bool(L"Aktiv", L"FALSE").Text(L"Ort", L"<hall>")));
}

TEST_F(SetType, OfTheEntryIsThatOfTheFirstSectionOfTheTable)
{
    Write(XmlContent()
              .Element(L"Ndi", XmlContent().Text(L"Stufe", L"1"))
              .Element(L"Bindings", XmlContent().Int(L"Stufe", L"1")));

    EXPECT_EQ(Set(L"Stufe", L"two"), PGSP_OK);

    ExpectSaved(XmlContent()
                    .Element(L"Ndi", XmlContent().Text(L"Stufe", L"1"))
                    .Element(L"Bindings", XmlContent().Int(L"Stufe", L"two")));
}

TEST_F(SetType, OfTheEntryIsNotSearchedInTheUserInterface)
{
    const XmlContent user = XmlContent().Element(L"UserInterface", XmlContent().Int(L"Stufe", L"1"));
    Write(XmlContent(user).Element(L"SpareSection", XmlContent()));

    EXPECT_EQ(Set(L"Stufe", L"two"), PGSP_OK);

    ExpectSaved(XmlContent(user).Element(L"SpareSection", XmlContent().Text(L"Stufe", L"two")));
}

// The section is that of the mapped name, the type that of the caller's.
TEST_F(SetType, OfTheEntryIsSearchedByTheCallersNameAlsoWhenTheCatalogueMapsIt)
{
    WriteStufe({{L"map", L"stage"}});
    Write(XmlContent().Element(L"LocalSettings", XmlContent().Int(L"stage", L"1")));
    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);
    ExpectSaved(
        XmlContent().Element(L"LocalSettings", XmlContent().Int(L"stage", L"1").Text(L"stage", L"2")));

    Write(XmlContent()
              .Element(L"DeviceHeader", XmlContent().Int(L"Stufe", L"1"))
              .Element(L"LocalSettings", XmlContent().Int(L"stage", L"1")));
    EXPECT_EQ(Set(L"Stufe", L"2"), PGSP_OK);
    ExpectSaved(XmlContent()
                    .Element(L"DeviceHeader", XmlContent().Int(L"Stufe", L"1"))
                    .Element(L"LocalSettings", XmlContent().Int(L"stage", L"2")));
}

TEST_F(SetType, IntOfAnotherBasePassesTheCheckAndIsRefusedByTheStore)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"10"}, {L"base", L"16"}});

    ExpectSetChangesNothing(L"Stufe", L"F", PGSP_SET_VAL_LESS_THAN_MIN);
    ExpectSetChangesNothing(L"Stufe", L"1F", PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"Stufe", L"11"), PGSP_OK);

    ExpectSpare(XmlContent().Int(L"Stufe", L"11"));
}

TEST_F(SetType, IntWithTrailingTextPassesTheCheckAndIsRefusedByTheStore)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"1"}});

    ExpectSetChangesNothing(L"Stufe", L"2 bar", PGSP_ERR_INVALID_PARAMETERS);
}

} // namespace
} // namespace norvepa::test

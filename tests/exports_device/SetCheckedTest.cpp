#include "SetScene.h"

namespace norvepa::test
{
namespace
{

class SetChecked : public SetScene
{
protected:
    SetChecked() { Write(XmlContent().Element(L"LocalSettings", XmlContent().Int(L"Stufe", L"1"))); }

    void WriteStufe(ConstraintWords words) const { store.WriteBoard(Catalogue().Parameter(L"Stufe", words)); }

    void ExpectStufe(const wchar_t* value) const
    {
        ExpectSaved(XmlContent().Element(L"LocalSettings", XmlContent().Int(L"Stufe", value)));
    }
};

TEST_F(SetChecked, StoresWhatAKeywordStandsFor)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"10"}, {L"max", L"20"}, {L"default", L"15"}});

    EXPECT_EQ(Set(L"Stufe", L"max"), PGSP_OK);
    ExpectStufe(L"20");
    EXPECT_EQ(Set(L"Stufe", L"MIN"), PGSP_OK);
    ExpectStufe(L"10");
    EXPECT_EQ(Set(L"Stufe", L"Default"), PGSP_OK);
    ExpectStufe(L"15");
}

TEST_F(SetChecked, StoresAKeywordAsItIsWithoutATypeInt)
{
    WriteStufe({{L"type", L"string"}, {L"max", L"20"}});
    Write(XmlContent().Element(L"LocalSettings", XmlContent().Text(L"Stufe", L"1")));

    EXPECT_EQ(Set(L"Stufe", L"max"), PGSP_OK);

    ExpectSaved(XmlContent().Element(L"LocalSettings", XmlContent().Text(L"Stufe", L"max")));
}

TEST_F(SetChecked, StoresAnythingThatNobodyDescribes)
{
    EXPECT_EQ(Set(L"Stufe", L"default"), PGSP_OK);

    ExpectStufe(L"default");
}

TEST_F(SetChecked, StoresAWordThatStandsForTheValueThatIsThereAsASuccess)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"1"}});

    ExpectSetChangesNothing(L"Stufe", L"min", PGSP_OK);
}

TEST_F(SetChecked, LeavesTheFileForEachValueThatIsRefused)
{
    const XmlContent list = XmlContent().ValueCollection({L"9600/slow"});
    store.WriteBoard(
        Catalogue()
            .Parameter(L"Stufe", {{L"type", L"int"}, {L"min", L"1"}, {L"max", L"9"}, {L"step", L"2"}})
            .Parameter(L"Takt", {{L"type", L"int"}})
            .Parameter(L"Aktiv", {{L"type", L"bool"}})
            .Parameter(L"baudrate", {{L"type", L"int"}}, list)
            .Parameter(L"l4_timeout", {{L"type", L"int"}}, list));

    ExpectSetChangesNothing(L"Stufe", L"0", PGSP_SET_VAL_LESS_THAN_MIN);
    ExpectSetChangesNothing(L"Stufe", L"10", PGSP_SET_VAL_BIGGER_THAN_MAX);
    ExpectSetChangesNothing(L"Stufe", L"2", PGSP_NOT_IN_STEP);
    ExpectSetChangesNothing(L"Stufe", L"", PGSP_ERR_INVALID_PARAMETERS);
    ExpectSetChangesNothing(L"Takt", L"max", PGSP_ERR_INVALID_PARAMETERS);
    ExpectSetChangesNothing(L"Aktiv", L"1", PGSP_NOT_A_BOOL);
    ExpectSetChangesNothing(L"baudrate", L"slow", PGSP_NOT_IN_LIST);
    ExpectSetChangesNothing(L"l4_timeout", L"min", PGSP_NOT_IN_LIST);
    ExpectSetChangesNothing(L"baudrate", L"", PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(SetChecked, ChecksTheValueAheadOfTheFile)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L"bool"}}), L"");

    EXPECT_EQ(library.LogDeviceSetValueBL(L"gone", L"Stufe", L"1"), PGSP_NOT_A_BOOL);
    EXPECT_EQ(library.LogDeviceSetValueBL(L"gone", L"Stufe", L"true"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(SetChecked, StoresAListedBaudrateAsTheCallerSpellsIt)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}, {L"section", L"LocalSettings"}},
                                           XmlContent().ValueCollection({L"9600/slow", L"19200"})));

    EXPECT_EQ(Set(L"Baudrate", L"9600"), PGSP_OK);

    ExpectSaved(
        XmlContent().Element(L"LocalSettings", XmlContent().Int(L"Stufe", L"1").Int(L"Baudrate", L"9600")));
}

TEST_F(SetChecked, GoesByWhatTheCatalogueSaidFirst)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"1"}, {L"max", L"9"}});
    ExpectSetChangesNothing(L"Stufe", L"10", PGSP_SET_VAL_BIGGER_THAN_MAX);

    WriteStufe({{L"type", L"int"}, {L"min", L"1"}, {L"max", L"20"}});

    ExpectSetChangesNothing(L"Stufe", L"10", PGSP_SET_VAL_BIGGER_THAN_MAX);
}

TEST_F(SetChecked, OfTheSampleStoreGoesByItsBoard)
{
    roots.FillWithSampleStore();

    EXPECT_EQ(library.LogDeviceSetValueBL(L"Presse#3", L"baudrate", L"187501"), PGSP_NOT_IN_LIST);
    EXPECT_EQ(library.LogDeviceSetValueBL(L"Presse#3", L"baudrate", L"187500"), PGSP_OK);
}

} // namespace
} // namespace norvepa::test

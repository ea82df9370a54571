#include "NdiScene.h"

namespace norvepa::test
{
namespace
{

// The type that a plain value is written in.
class NdiSetType : public NdiScene
{
protected:
    NdiSetType() { Write(Ndi({})); }

    void ExpectNdi(const XmlContent& ndi) const { ExpectSaved(Ndi(ndi)); }
};

TEST_F(NdiSetType, IsThatOfTruthValuesForTrueAndFalseWithoutAWordOfTheCatalogue)
{
    EXPECT_EQ(SetNdi(L"hidden", L"true"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"enable_delete", L"false"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"PropSheet", L"true"), PGSP_OK);

    ExpectNdi(
        XmlContent().Bool(L"hidden", L"true").Bool(L"enable_delete", L"false").Bool(L"PropSheet", L"true"));
}

TEST_F(NdiSetType, IsThatOfTextsForAllElseWithoutAWordOfTheCatalogue)
{
    EXPECT_EQ(SetNdi(L"1", L"TRUE"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"2", L"False"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"3", L"true "), PGSP_OK);
    EXPECT_EQ(SetNdi(L"4", L"1"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"5", L""), PGSP_OK);

    ExpectNdi(XmlContent()
                  .Text(L"1", L"TRUE")
                  .Text(L"2", L"False")
                  .Text(L"3", L"true ")
                  .Text(L"4", L"1")
                  .Text(L"5", L""));
}

TEST_F(NdiSetType, IsTheBoards)
{
    store.WriteBoard(Catalogue()
                         .Parameter(L"Stufe", {{L"type", L"int"}})
                         .Parameter(L"Aktiv", {{L"type", L"bool"}})
                         .Parameter(L"Antwort", {{L"type", L"string"}}));

    EXPECT_EQ(SetNdi(L"STUFE", L"3"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Aktiv", L"TRUE"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Antwort", L"true"), PGSP_OK);

    ExpectNdi(XmlContent().Int(L"STUFE", L"3").Bool(L"Aktiv", L"true").Text(L"Antwort", L"true"));
}

TEST_F(NdiSetType, IsKnownInAnyCaseAndAnElementsNameWhereItIsUnknown)
{
    store.WriteBoard(Catalogue()
                         .Parameter(L"Stufe", {{L"type", L"INT"}})
                         .Parameter(L"Druck", {{L"type", L"ParameterFloat"}}));

    EXPECT_EQ(SetNdi(L"Stufe", L"3"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Druck", L"true"), PGSP_OK);

    ExpectNdi(XmlContent().Int(L"Stufe", L"3").Entry(L"ParameterFloat", L"Druck", L"true"));
}

TEST_F(NdiSetType, IsTheProtocolsBehindTheBoards)
{
    store.WriteBoard(
        Catalogue().Parameter(L"Stufe", {{L"type", L"int"}}).Parameter(L"Aktiv", {{L"default", L"true"}}));
    store.WriteProtocol(
        Catalogue().Parameter(L"Stufe", {{L"type", L"bool"}}).Parameter(L"Aktiv", {{L"type", L"string"}}));

    EXPECT_EQ(SetNdi(L"Stufe", L"3"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Aktiv", L"true"), PGSP_OK);

    ExpectNdi(XmlContent().Int(L"Stufe", L"3").Text(L"Aktiv", L"true"));
}

TEST_F(NdiSetType, IsAskedOfNoCatalogueWithoutTheProgramFolder)
{
    store.WriteBoard(
        Catalogue().Parameter(L"hidden", {{L"type", L"string"}}).Parameter(L"Stufe", {{L"type", L"int"}}));
    store.TakeProgramFolderAway();

    EXPECT_EQ(SetNdi(L"hidden", L"true"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Stufe", L"3"), PGSP_OK);

    ExpectNdi(XmlContent().Bool(L"hidden", L"true").Text(L"Stufe", L"3"));
}

TEST_F(NdiSetType, IsThatOfTheValueWhereTheCatalogueHasAnEmptyWord)
{
    store.WriteBoard(Catalogue().Parameter(L"hidden", {{L"type", L""}}));

    EXPECT_EQ(SetNdi(L"hidden", L"true"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"hidden", L"3"), PGSP_OK);

    ExpectNdi(XmlContent().Bool(L"hidden", L"true").Text(L"hidden", L"3"));
}

// The empty word is found once; what is remembered of it is that there is none.
TEST_F(NdiSetType, IsTheProtocolsBehindAnEmptyWordOfTheBoardFromTheSecondTimeOn)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L""}}));
    store.WriteProtocol(Catalogue().Parameter(L"Stufe", {{L"type", L"int"}}));

    EXPECT_EQ(SetNdi(L"Stufe", L"3"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Stufe", L"4"), PGSP_OK);

    ExpectNdi(XmlContent().Text(L"Stufe", L"3").Int(L"Stufe", L"4"));
}

// The next text of the file is taken for that of a word without one.
TEST_F(NdiSetType, IsWhatFollowsAnEmptyWord)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L""}, {L"default", L"int"}}));

    EXPECT_EQ(SetNdi(L"Stufe", L"3"), PGSP_OK);

    ExpectNdi(XmlContent().Int(L"Stufe", L"3"));
}

} // namespace
} // namespace norvepa::test

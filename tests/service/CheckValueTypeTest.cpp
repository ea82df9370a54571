#include "DeviceScene.h"

namespace norvepa::test
{
namespace
{

class CheckValueType : public DeviceScene
{
protected:
    void WriteStufe(ConstraintWords words) const { store.WriteBoard(Catalogue().Parameter(L"Stufe", words)); }
};

TEST_F(CheckValueType, IsNotAskedForWithoutAValue)
{
    EXPECT_EQ(LogDeviceCheckValue(L"Presse", L"Stufe", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceCheckValue(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(CheckValueType, NeedsDeviceAndParameter)
{
    std::wstring value = L"1";

    EXPECT_EQ(LogDeviceCheckValue(nullptr, L"Stufe", &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceCheckValue(L"", L"Stufe", &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceCheckValue(L"Presse", nullptr, &value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LogDeviceCheckValue(L"Presse", L"", &value), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(value, L"1");
}

TEST_F(CheckValueType, ThatNobodyGivesLetsEverythingPass)
{
    WriteStufe({{L"min", L"10"}, {L"max", L"20"}, {L"default", L"15"}});

    EXPECT_EQ(Checked(L"Stufe", L"1000"), L"1000");
    EXPECT_EQ(Checked(L"Stufe", L"max"), L"max");
    EXPECT_EQ(Checked(L"Stufe", L"default"), L"default");
    EXPECT_EQ(Checked(L"Stufe", L""), L"");
    EXPECT_EQ(Checked(L"unknown", L"<&>"), L"<&>");
}

TEST_F(CheckValueType, OfADeviceWithoutCatalogueFilesIsNone)
{
    EXPECT_EQ(Checked(L"baudrate", L""), L"");
    EXPECT_EQ(Checked(L"Stufe", L"min"), L"min");
    EXPECT_EQ(Check(L"Stufe", L"1", L"gone"), PGSP_OK);
}

TEST_F(CheckValueType, StringLetsEverythingPassAsItIs)
{
    WriteStufe({{L"type", L"STRING"}, {L"min", L"10"}, {L"max", L"20"}, {L"default", L"15"}});

    EXPECT_EQ(Checked(L"Stufe", L"1000"), L"1000");
    EXPECT_EQ(Checked(L"Stufe", L"max"), L"max");
    EXPECT_EQ(Checked(L"Stufe", L""), L"");
}

TEST_F(CheckValueType, ThatIsAnotherWordIsLikeAString)
{
    for (const wchar_t* const type : {L"word", L"integer", L"boolean", L"int "})
    {
        store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", type}, {L"min", L"10"}}), type);
        store.WriteDevice(L"Presse", {}, type);
        EXPECT_EQ(Checked(L"Stufe", L"9"), L"9");
        EXPECT_EQ(Checked(L"Stufe", L"min"), L"min");
        EXPECT_EQ(Checked(L"Stufe", L""), L"");
    }
}

TEST_F(CheckValueType, BoolTakesTwoWordsInAnyCaseAndLeavesThemSo)
{
    WriteStufe({{L"type", L"Bool"}});

    EXPECT_EQ(Checked(L"Stufe", L"true"), L"true");
    EXPECT_EQ(Checked(L"Stufe", L"TRUE"), L"TRUE");
    EXPECT_EQ(Checked(L"Stufe", L"False"), L"False");
}

TEST_F(CheckValueType, BoolTakesNothingElse)
{
    WriteStufe({{L"type", L"bool"}});

    for (const wchar_t* const value : {L"1", L"0", L"", L"yes", L" true", L"true ", L"tru"})
    {
        EXPECT_EQ(Check(L"Stufe", value), PGSP_NOT_A_BOOL);
    }
}

TEST_F(CheckValueType, BoolIsComparedByTheUsersLanguageWhichPassesOverASoftHyphen)
{
    WriteStufe({{L"type", L"bool"}});

    EXPECT_EQ(Checked(L"Stufe", L"tr\u00ADue"), L"tr\u00ADue");
    EXPECT_EQ(Checked(L"Stufe", L"FALSE\u00AD"), L"FALSE\u00AD");
}

// A bool knows neither bounds nor the words that stand for them.
TEST_F(CheckValueType, BoolComesAheadOfBoundsAndKeywords)
{
    WriteStufe({{L"type", L"bool"}, {L"min", L"true"}, {L"max", L"true"}, {L"default", L"true"}});

    EXPECT_EQ(Check(L"Stufe", L"min"), PGSP_NOT_A_BOOL);
    EXPECT_EQ(Check(L"Stufe", L"max"), PGSP_NOT_A_BOOL);
    EXPECT_EQ(Check(L"Stufe", L"default"), PGSP_NOT_A_BOOL);
    EXPECT_EQ(Checked(L"Stufe", L"false"), L"false");
}

TEST_F(CheckValueType, ComesAheadOfTheListOfABaudrate)
{
    const XmlContent list = XmlContent().ValueCollection({L"9600"});
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"string"}}, list));
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"bool"}}, list), L"bool");

    EXPECT_EQ(Checked(L"baudrate", L"19200"), L"19200");
    store.WriteDevice(L"Presse", {}, L"bool");
    EXPECT_EQ(Check(L"baudrate", L"9600"), PGSP_NOT_A_BOOL);
}

TEST_F(CheckValueType, OfTheBoardWinsOverTheProtocols)
{
    WriteStufe({{L"type", L"string"}});
    store.WriteProtocol(Catalogue().Parameter(L"Stufe", {{L"type", L"bool"}}));

    EXPECT_EQ(Checked(L"Stufe", L"1"), L"1");
}

TEST_F(CheckValueType, CanComeFromTheBoardAndTheBoundsFromTheProtocol)
{
    WriteStufe({{L"type", L"int"}, {L"max", L"8"}});
    store.WriteProtocol(
        Catalogue().Parameter(L"Stufe", {{L"type", L"string"}, {L"min", L"2"}, {L"max", L"99"}}));

    EXPECT_EQ(Check(L"Stufe", L"1"), PGSP_SET_VAL_LESS_THAN_MIN);
    EXPECT_EQ(Check(L"Stufe", L"2"), PGSP_OK);
    EXPECT_EQ(Check(L"Stufe", L"8"), PGSP_OK);
    EXPECT_EQ(Check(L"Stufe", L"9"), PGSP_SET_VAL_BIGGER_THAN_MAX);
}

TEST_F(CheckValueType, OfAStarredBoardIsThatOfTheBoard)
{
    WriteStufe({{L"type", L"bool"}});
    store.WriteDevice(L"Presse", {}, L"*AFK110");

    EXPECT_EQ(Check(L"Stufe", L"1"), PGSP_NOT_A_BOOL);
}

TEST_F(CheckValueType, IsNoneWithoutEitherFolder)
{
    WriteStufe({{L"type", L"bool"}});

    store.TakeProgramFolderAway();
    EXPECT_EQ(Checked(L"Stufe", L"1"), L"1");
    store.TakeDataFolderAway();
    EXPECT_EQ(Checked(L"Stufe", L"1"), L"1");
}

} // namespace
} // namespace norvepa::test

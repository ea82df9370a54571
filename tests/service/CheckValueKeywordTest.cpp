#include "DeviceScene.h"

namespace norvepa::test
{
namespace
{

class CheckValueKeyword : public DeviceScene
{
protected:
    void WriteStufe(ConstraintWords words) const { store.WriteBoard(Catalogue().Parameter(L"Stufe", words)); }
};

TEST_F(CheckValueKeyword, BecomesWhatItStandsFor)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"10"}, {L"max", L"20"}, {L"default", L"15"}});

    EXPECT_EQ(Checked(L"Stufe", L"min"), L"10");
    EXPECT_EQ(Checked(L"Stufe", L"MIN"), L"10");
    EXPECT_EQ(Checked(L"Stufe", L"max"), L"20");
    EXPECT_EQ(Checked(L"Stufe", L"Max"), L"20");
    EXPECT_EQ(Checked(L"Stufe", L"default"), L"15");
    EXPECT_EQ(Checked(L"Stufe", L"DEFAULT"), L"15");
}

TEST_F(CheckValueKeyword, IsTheWholeValue)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"10"}});

    EXPECT_EQ(Check(L"Stufe", L" min"), PGSP_SET_VAL_LESS_THAN_MIN);
    EXPECT_EQ(Check(L"Stufe", L"minimum"), PGSP_SET_VAL_LESS_THAN_MIN);
}

TEST_F(CheckValueKeyword, BecomesEmptyAndIsRefusedWithoutItsWord)
{
    WriteStufe({{L"type", L"int"}});

    EXPECT_EQ(Check(L"Stufe", L"min"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Check(L"Stufe", L"max"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Check(L"Stufe", L"default"), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(CheckValueKeyword, IsEmptyInTheStringOfTheCallerWhenItIsRefusedSo)
{
    WriteStufe({{L"type", L"int"}});
    std::wstring value = L"default";

    EXPECT_EQ(LogDeviceCheckValue(L"Presse", L"Stufe", &value), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(value, L"");
}

TEST_F(CheckValueKeyword, IsReplacedAheadOfTheTestForAnEmptyValueAndThatAheadOfTheBounds)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"10"}, {L"max", L"-1"}});

    EXPECT_EQ(Check(L"Stufe", L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Check(L"Stufe", L"default"), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(CheckValueKeyword, IsReplacedAheadOfTheBounds)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"10"}, {L"max", L"20"}, {L"step", L"4"}, {L"default", L"30"}});

    EXPECT_EQ(Check(L"Stufe", L"default"), PGSP_SET_VAL_BIGGER_THAN_MAX);
    EXPECT_EQ(Check(L"Stufe", L"max"), PGSP_NOT_IN_STEP);
    EXPECT_EQ(Check(L"Stufe", L"min"), PGSP_OK);
}

TEST_F(CheckValueKeyword, IsReplacedOnce)
{
    WriteStufe({{L"type", L"int"}, {L"default", L"max"}, {L"max", L"20"}});

    EXPECT_EQ(Checked(L"Stufe", L"default"), L"max");
}

TEST_F(CheckValueKeyword, OfTheProtocolStandsInForTheBoards)
{
    WriteStufe({{L"type", L"int"}, {L"max", L"20"}});
    store.WriteProtocol(Catalogue().Parameter(L"Stufe", {{L"max", L"30"}, {L"default", L"15"}}));

    EXPECT_EQ(Checked(L"Stufe", L"default"), L"15");
    EXPECT_EQ(Checked(L"Stufe", L"max"), L"20");
}

// The two with a list are looked up in it as they stand, and know neither bounds nor an empty value.
TEST_F(CheckValueKeyword, IsNoneForAParameterWithAList)
{
    for (const wchar_t* const parameter : {L"baudrate", L"L4_TIMEOUT"})
    {
        store.WriteBoard(Catalogue().Parameter(
                             parameter,
                             {{L"type", L"int"}, {L"min", L"9600"}, {L"max", L"9600"}, {L"default", L"9600"}},
                             XmlContent().ValueCollection({L"9600", L"19200"})),
                         parameter);
        store.WriteDevice(L"Presse", {}, parameter);
        EXPECT_EQ(Check(parameter, L"min"), PGSP_NOT_IN_LIST);
        EXPECT_EQ(Check(parameter, L"max"), PGSP_NOT_IN_LIST);
        EXPECT_EQ(Check(parameter, L"default"), PGSP_NOT_IN_LIST);
        EXPECT_EQ(Check(parameter, L""), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(Checked(parameter, L"19200"), L"19200");
    }
}

TEST_F(CheckValueKeyword, ThatStandsInAListIsAValueLikeAnother)
{
    store.WriteBoard(Catalogue().Parameter(L"baudrate", {{L"type", L"int"}, {L"max", L"19200"}},
                                           XmlContent().ValueCollection({L"9600", L"max"})));

    EXPECT_EQ(Checked(L"baudrate", L"MAX"), L"MAX");
}

} // namespace
} // namespace norvepa::test

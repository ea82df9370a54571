#include "DeviceParamDescScene.h"

namespace norvepa::test
{
namespace
{

using DeviceParamDesc = DeviceParamDescScene;

TEST_F(DeviceParamDesc, IsTheBoardsWord)
{
    store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"min", L"1"}, {L"ParamDesc", L"\u00DCber <&>"}}));
    store.WriteProtocol(Catalogue().Parameter(L"Takt", {{L"min", L"5"}}));

    EXPECT_EQ(Text(L"Takt", L"min"), L"1");
    EXPECT_EQ(Text(L"Takt", L"ParamDesc"), L"\u00DCber <&>");
    EXPECT_EQ(Text(L"TAKT", L"MIN"), L"1");
}

TEST_F(DeviceParamDesc, IsTheProtocolsWordWhereTheBoardHasNone)
{
    store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"min", L"1"}}));
    store.WriteProtocol(Catalogue()
                            .Parameter(L"Takt", {{L"min", L"5"}, {L"max", L"9"}})
                            .Parameter(L"Stufe", {{L"min", L"7"}}));

    EXPECT_EQ(Text(L"Takt", L"max"), L"9");
    EXPECT_EQ(Text(L"Stufe", L"min"), L"7");
}

TEST_F(DeviceParamDesc, IsTheProtocolsWordWithoutABoard)
{
    store.WriteProtocol(Catalogue().Parameter(L"Takt", {{L"min", L"5"}}));

    EXPECT_EQ(Text(L"Takt", L"min"), L"5");
}

TEST_F(DeviceParamDesc, IsTheProtocolsWordForALogDeviceThatNamesNoBoard)
{
    store.WriteProtocol(Catalogue().Parameter(L"Takt", {{L"min", L"5"}}));
    WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", {{L"CP_TYPE", OurProtocol}}, {}));

    EXPECT_EQ(Text(L"Takt", L"min"), L"5");
}

TEST_F(DeviceParamDesc, IsOfTheBoardWithoutItsStar)
{
    store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"min", L"1"}}));
    store.WriteDevice(L"Presse", {}, L"*" + std::wstring(OurBoard), L"gone");

    EXPECT_EQ(Text(L"Takt", L"min"), L"1");
}

// The prefixes are put in front of whatever the log device names.
TEST_F(DeviceParamDesc, IsOfNoFilesThatAreNamedWithTheirPrefixes)
{
    const std::wstring board = L"Automation-OnlineAccess-BT-AFK110";
    const std::wstring protocol = L"Automation-OnlineAccess-PT-MPI";
    store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"min", L"1"}}));
    store.WriteProtocol(Catalogue().Parameter(L"Takt", {{L"min", L"5"}}));
    store.WriteDevice(L"Presse", {}, board, protocol);
    EXPECT_EQ(Text(L"Takt", L"min"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));

    store.WriteProtocol(
        Catalogue().Parameter(L"Takt", {{L"min", L"6"}}).Parameter(L"baudrate", {{L"ParamDesc", L"8"}}),
        protocol);
    EXPECT_EQ(Text(L"Takt", L"min"), L"6");
    EXPECT_EQ(Text(L"\\baudrate", L"min"), L"8");

    store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"min", L"2"}}), board);
    EXPECT_EQ(Text(L"Takt", L"min"), L"2");
}

TEST_F(DeviceParamDesc, IsNotFoundWhereNeitherHasIt)
{
    store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"min", L"1"}}));
    store.WriteProtocol(Catalogue().Parameter(L"Takt", {{L"max", L"9"}}));

    EXPECT_EQ(Text(L"Takt", L"step"), Failed(PGSP_ERR_PARAM_DESC_NOT_FOUND));
    EXPECT_EQ(Text(L"Stufe", L"min"), Failed(PGSP_ERR_PARAM_DESC_NOT_FOUND));
}

TEST_F(DeviceParamDesc, NeedsTheProtocolWhereTheBoardHasNone)
{
    store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"min", L"1"}}));

    EXPECT_EQ(Text(L"Takt", L"min"), L"1");
    EXPECT_EQ(Text(L"Takt", L"max"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
}

TEST_F(DeviceParamDesc, NeedsAProtocolsNameWhereTheBoardHasNone)
{
    store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"min", L"1"}}));
    WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", {{L"DeviceID", OurBoard}}, {}));

    EXPECT_EQ(Text(L"Takt", L"min"), L"1");
    EXPECT_EQ(Text(L"Takt", L"max"), Failed(PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND));
}

TEST_F(DeviceParamDesc, OfAParameterWithABackslashIsTheProtocolsOfThatValueWhateverTheWord)
{
    store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"ParamDesc", L"of the board"}},
                                           Profiles({{L"1", XmlContent().Element(L"ParamDesc", L"x")}})));
    WriteDescribedValue(L"of the value");

    EXPECT_EQ(Text(L"Takt\\1", L"ParamDesc"), L"of the value");
    EXPECT_EQ(Text(L"Takt\\1", L"no word at all"), L"of the value");
}

TEST_F(DeviceParamDesc, OfAParameterWithABackslashIsNotFoundWhereTheProtocolHasNoneOrIsNotThere)
{
    WriteDescribedValue(L"of the value");
    EXPECT_EQ(Text(L"Takt\\2", L"ParamDesc"), Failed(PGSP_ERR_PARAM_DESC_NOT_FOUND));

    store.WriteDevice(L"Presse", {}, OurBoard, L"gone");
    EXPECT_EQ(Text(L"Takt\\1", L"ParamDesc"), Failed(PGSP_ERR_PARAM_DESC_NOT_FOUND));
}

// To the board it's a name like any other.
TEST_F(DeviceParamDesc, OfAParameterWithABackslashIsTheBoardsWordIfItHasSuchAParameter)
{
    store.WriteBoard(Catalogue().Parameter(L"Takt\\1", {{L"min", L"1"}}));
    WriteDescribedValue(L"of the value");

    EXPECT_EQ(Text(L"Takt\\1", L"min"), L"1");
    EXPECT_EQ(Text(L"Takt\\1", L"max"), L"of the value");
}

} // namespace
} // namespace norvepa::test

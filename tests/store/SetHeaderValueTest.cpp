#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

using SetHeaderValueTest = WriteScene;

std::string DeviceOf(std::wstring_view section, const XmlContent& content)
{
    return LogDeviceFile(XmlContent().Element(section, content));
}

TEST_F(SetHeaderValueTest, EntriesOfAnyElementAreSet)
{
    for (const std::wstring_view element : {L"Parameter", L"ParameterInt", L"ParameterBool", L"anything"})
    {
        GivenFile(DeviceOf(L"Ndi", EntryIn(element, L"a", L"1")));

        EXPECT_EQ(SetHeader(L"A", L"2"), PGSP_OK);

        EXPECT_EQ(Saved(), MeaningOf(DeviceOf(L"Ndi", EntryIn(element, L"a", L"2"))));
    }
}

TEST_F(SetHeaderValueTest, NothingIsEverCreated)
{
    GivenFile(DeviceOf(L"Ndi", XmlContent().Text(L"a", L"1")));
    const std::string before = Bytes();

    EXPECT_EQ(SetHeader(L"b", L"2"), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_EQ(Bytes(), before);
}

TEST_F(SetHeaderValueTest, AValueAheadOfItsNameIsNotFound)
{
    GivenFile(
        DeviceOf(L"Ndi", XmlContent().Element(L"Parameter",
                                              XmlContent().Element(L"Value", L"1").Element(L"Name", L"a"))));

    EXPECT_EQ(SetHeader(L"a", L"2"), PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(SetHeaderValueTest, NameAndValueAreOfExactCase)
{
    const XmlContent name = XmlContent().Element(L"name", L"a").Element(L"Value", L"1");
    const XmlContent value = XmlContent().Element(L"Name", L"a").Element(L"value", L"1");
    GivenFile(DeviceOf(L"Ndi", XmlContent().Element(L"Parameter", name).Element(L"Parameter", value)));
    const std::string before = Bytes();

    EXPECT_EQ(SetHeader(L"a", L"2"), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_EQ(Bytes(), before);
}

TEST_F(SetHeaderValueTest, OfTwoEntriesOfANameTheFirstIsSet)
{
    const auto device = [](std::wstring_view value) {
        return DeviceOf(L"Ndi", XmlContent().Text(L"a", value).Int(L"A", L"8").Text(L"a", L"9"));
    };
    GivenFile(device(L"1"));

    EXPECT_EQ(SetHeader(L"a", L"2"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(device(L"2")));
}

TEST_F(SetHeaderValueTest, TheSameValueWritesNothing)
{
    GivenFile(DeviceOf(L"Ndi", XmlContent().Text(L"a", L"Text").Bool(L"b", L"TRUE")));
    const std::string before = Bytes();

    EXPECT_EQ(SetHeader(L"a", L"TEXT"), PGSP_ERR_SAME_VALUE);
    EXPECT_EQ(SetHeader(L"b", L"True"), PGSP_ERR_SAME_VALUE);

    EXPECT_EQ(Bytes(), before);
}

TEST_F(SetHeaderValueTest, BooleansAreStoredInLowerCase)
{
    GivenFile(DeviceOf(L"Ndi", XmlContent().Text(L"my flag", L"1")));

    EXPECT_EQ(SetHeader(L"my flag", L"FALSE"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceOf(L"Ndi", XmlContent().Text(L"my flag", L"false"))));
}

TEST_F(SetHeaderValueTest, NumbersAndBooleansNeedNoNameTest)
{
    GivenFile(DeviceOf(L"Ndi", XmlContent().Text(L"my param", L"x")));

    EXPECT_EQ(SetHeader(L"my param", L" -12"), PGSP_OK);
    EXPECT_EQ(SetHeader(L"my param", L""), PGSP_OK);
    EXPECT_EQ(SetHeader(L"my param", L"True"), PGSP_OK);
    EXPECT_EQ(SetHeader(L"my param", nullptr), PGSP_OK);
}

TEST_F(SetHeaderValueTest, AllElseIsTestedAsAString)
{
    GivenFile(DeviceOf(L"Ndi", XmlContent().Text(L"my param", L"x").Text(L"a", L"x")));
    const std::string before = Bytes();

    EXPECT_EQ(SetHeader(L"my param", L"12a"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetHeader(L"my param", L"trueish"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetHeader(L"a", L"<"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetHeader(L"a", L"12>"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(SetHeader(L"a", L"12a"), PGSP_OK);
}

// What a reader of the section gets decides whether the value is new.
TEST_F(SetHeaderValueTest, TheValueIsComparedWithWhatAReadGets)
{
    const auto device = [](std::wstring_view value) {
        return DeviceOf(L"Ndi", EntryIn(L"anything", L"a", value).Text(L"a", L"read"));
    };
    GivenFile(device(L"found"));

    EXPECT_EQ(SetHeader(L"a", L"read"), PGSP_ERR_SAME_VALUE);
    EXPECT_EQ(SetHeader(L"a", L"found"), PGSP_OK);
    EXPECT_EQ(SetHeader(L"a", L"new"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(device(L"new")));
}

TEST_F(SetHeaderValueTest, WhatNoReadGetsCountsAsEmpty)
{
    const auto device = [](std::wstring_view value) {
        return DeviceOf(L"Ndi", EntryIn(L"anything", L"a", value));
    };
    GivenFile(device(L"found"));
    const std::string before = Bytes();

    EXPECT_EQ(SetHeader(L"a", L""), PGSP_ERR_SAME_VALUE);
    EXPECT_EQ(Bytes(), before);

    EXPECT_EQ(SetHeader(L"a", L"found"), PGSP_OK);
}

TEST_F(SetHeaderValueTest, ABoardIsSetToo)
{
    const auto board = [](std::wstring_view value) {
        return BoardFile(XmlContent()
                             .Element(L"Install", XmlContent().Text(L"b", L"1"))
                             .Element(L"BoardAttributes", XmlContent().Text(L"Asic_Type", value)));
    };
    GivenFile(board(L"AUE_32"));

    EXPECT_EQ(SetHeader(L"asic_type", L"AUE_64"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(board(L"AUE_64")));
}

} // namespace
} // namespace norvepa::test

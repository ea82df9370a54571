#include "store/ReadScene.h"

namespace norvepa::test
{
namespace
{

// What holds whatever folder the file lies in.
using GetValueRawTest = ReadScene;

TEST_F(GetValueRawTest, WithoutSubSectionReadsLikeAnyFile)
{
    const std::wstring file =
        File(BoardFile(XmlContent()
                           .Element(L"Install", XmlContent().Text(L"DriverName", L"afk110x.sys"))
                           .Element(L"install", XmlContent().Bool(L"PlugAndPlay", L"true"))));

    EXPECT_EQ(GetValueRaw(file, L"INSTALL", L"drivername"), Found(L"afk110x.sys"));
    EXPECT_EQ(GetValueRaw(file, L"Install", L"PlugAndPlay"), Found(L"true"));
    EXPECT_EQ(GetValueRaw(file, L"Install", L"other"), NotFound());
    EXPECT_EQ(GetValueRaw(file, L"other", L"DriverName"), NotFound());
}

TEST_F(GetValueRawTest, AnEmptyValueTagIsNoValueAndTwoTagsAreTheEmptyText)
{
    const std::wstring file = File(BoardFile(XmlContent().Element(
        L"Install", XmlContent()
                        .Text(L"empty", L"")
                        .Element(L"Parameter", XmlContent().Element(L"Name", L"none").EmptyTag(L"Value")))));

    EXPECT_EQ(GetValueRaw(file, L"Install", L"empty"), Found(L""));
    EXPECT_EQ(GetValueRaw(file, L"Install", L"none"), NotFound());
}

TEST_F(GetValueRawTest, OnlyNoSectionPathMeansTheSpareSection)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent().Element(L"SpareSection", XmlContent().Text(L"a", L"spare"))));

    EXPECT_EQ(GetValueRaw(file, nullptr, L"a"), Found(L"spare"));
    EXPECT_EQ(GetValueRaw(file, L"SpareSection", L"a"), Found(L"spare"));
    EXPECT_EQ(GetValueRaw(file, L"", L"a"), NotFound());
    EXPECT_EQ(GetValueRaw(file, L"\\", L"a"), NotFound());
}

TEST_F(GetValueRawTest, NoParameterIsTheEntryWithTheEmptyName)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent().Element(L"S", XmlContent().Text(L"a", L"1").Text(L"", L"2"))));

    EXPECT_EQ(GetValueRaw(file, L"S", L""), Found(L"2"));
    EXPECT_EQ(GetValueRaw(file, L"S", nullptr), Found(L"2"));
}

TEST_F(GetValueRawTest, BackslashesAroundTheSectionAreNoSubSection)
{
    const std::wstring file = File(LogDeviceFile(XmlContent().Element(L"S", XmlContent().Text(L"a", L"1"))));

    EXPECT_EQ(GetValueRaw(file, L"S\\", L"a"), Found(L"1"));
    EXPECT_EQ(GetValueRaw(file, L"\\S", L"a"), Found(L"1"));
    EXPECT_EQ(GetValueRaw(file, L"\\\\S\\\\\\", L"a"), Found(L"1"));
}

TEST_F(GetValueRawTest, ASubSectionOfAFileInAnyOtherFolderIsNeverFound)
{
    const std::wstring file = File(LogDeviceFile(XmlContent().Element(
                                       L"S", XmlContent()
                                                 .Text(L"a", L"1")
                                                 .Element(L"Sub", XmlContent().Text(L"a", L"2"))
                                                 .ParamSection(L"Sub", XmlContent().Element(L"a", L"3")))),
                                   L"LogDevices\\file");

    EXPECT_EQ(GetValueRaw(file, L"S\\Sub", L"a"), NotFound());
}

TEST_F(GetValueRawTest, AMalformedPlaceHidesWhatStandsBehindItAndNothingElse)
{
    const std::wstring file = File("<Device><S><Parameter><Name>a</Name><Value>1</Value></Parameter></wrong>"
                                   "<S><Parameter><Name>b</Name><Value>2</Value></Parameter></S></Device>");

    EXPECT_EQ(GetValueRaw(file, L"S", L"a"), Found(L"1"));
    EXPECT_EQ(GetValueRaw(file, L"S", L"b"), NotFound());
}

} // namespace
} // namespace norvepa::test

#include "support/XmlFiles.h"
#include "xml/PullScene.h"

namespace norvepa::test
{
namespace
{

using BrokenFile = PullScene;

// Two texts, two empty tags, comments, white space: what a file may be cut off in.
std::string WholeFile()
{
    return LogDeviceFile(
        XmlContent()
            .Comment(L"made by hand")
            .Element(L"LocalSettings", XmlContent().Text(L"station", L"Größe & Ω").EmptyTag(L"odd"))
            .Element(L"Bindings", XmlContent().CData(L"text").Raw("<?odd data?>").EmptyTag(L"odd")));
}

// More nodes than any part of the file has.
constexpr int TooManyNodes = 1'000;

int NodesOf(PullReader& reader)
{
    XmlNodeType type = XmlNodeType_None;
    int nodes = 0;
    while (nodes < TooManyNodes && reader.Read(type))
    {
        ++nodes;
    }
    return nodes;
}

TEST_F(BrokenFile, AFileCutOffAnywhereComesToAnEnd)
{
    const std::string whole = WholeFile();
    // Not within or right behind the declaration: there an engine may end the whole process.
    for (std::size_t length = XmlDeclaration.size() + 1; length < whole.size(); ++length)
    {
        PullReader reader = Reading(whole.substr(0, length));

        ASSERT_LT(NodesOf(reader), TooManyNodes) << "cut off after " << whole.substr(0, length);
        ASSERT_FALSE(XmlReaderActive(reader)) << "cut off after " << whole.substr(0, length);
    }
}

TEST_F(BrokenFile, AZeroByteAnywhereComesToAnEnd)
{
    const std::string whole = WholeFile();
    for (std::size_t at = XmlDeclaration.size() + 1; at < whole.size(); ++at)
    {
        std::string bytes = whole;
        bytes[at] = '\0';
        PullReader reader = Reading(bytes);

        ASSERT_LT(NodesOf(reader), TooManyNodes) << "zero byte at " << at;
        ASSERT_FALSE(XmlReaderActive(reader)) << "zero byte at " << at;
    }
}

TEST_F(BrokenFile, ATextThatWasCutOffIsNoText)
{
    PullReader reader = InsideRoot("<a>1920");
    std::wstring text = L"before";

    EXPECT_FALSE(XmlReadText(reader, L"a", text));

    EXPECT_EQ(text, L"before");
}

TEST_F(BrokenFile, NodesAheadOfTheMalformedPlaceAreDelivered)
{
    PullReader reader = Reading("<a><b>1</b><c>2</wrong></a>");

    EXPECT_EQ(RestOf(reader), "<a> <b> 1 </b> <c> 2");
}

TEST_F(BrokenFile, AnEndTagInAnotherCaseIsAWrongOne)
{
    PullReader reader = Reading("<a><b>1</B></a>");

    EXPECT_EQ(RestOf(reader), "<a> <b> 1");
}

TEST_F(BrokenFile, ASecondRootStopsTheReader)
{
    PullReader reader = Reading("<a>1</a><b>2</b>");

    EXPECT_EQ(RestOf(reader), "<a> 1 </a>");
}

TEST_F(BrokenFile, ADoctypeStopsTheReaderAlsoBehindTheDeclaration)
{
    PullReader reader = Reading("<?xml version='1.0'?><!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>");

    EXPECT_FALSE(XmlSeekElement(reader, L"a"));

    EXPECT_FALSE(XmlReaderActive(reader));
}

TEST_F(BrokenFile, NeighboursAlikeAreDeliveredEach)
{
    PullReader reader = Reading("<a><b/><b/><b></b>\n<b>\n</b>\n<b/><b>1</b></a>");

    EXPECT_EQ(RestOf(reader), "<a> <b/> <b/> <b> </b> 13 <b> 13 </b> 13 <b/> <b> 1 </b> </a>");
}

} // namespace
} // namespace norvepa::test

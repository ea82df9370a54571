#include "handover/norvepaFileCache.h"

#include <gmock/gmock.h>
#include <string>

namespace norvepa
{
namespace
{

// A text that holds zero bytes.
template <std::size_t Size>
std::string Bytes(const char (&literal)[Size])
{
    return {literal, Size - 1};
}

TEST(StripInterTagWhitespace, DropsWhatStandsBetweenTags)
{
    EXPECT_EQ(StripInterTagWhitespace("<a> \t\r\n<b/>\n</a>"), "<a><b/></a>");
}

TEST(StripInterTagWhitespace, DropsEachOfTheFourAndAnyNumberOfThem)
{
    EXPECT_EQ(StripInterTagWhitespace("> <"), "><");
    EXPECT_EQ(StripInterTagWhitespace(">\t<"), "><");
    EXPECT_EQ(StripInterTagWhitespace(">\n<"), "><");
    EXPECT_EQ(StripInterTagWhitespace(">\r<"), "><");
    EXPECT_EQ(StripInterTagWhitespace(">" + std::string(5000, '\n') + "<"), "><");
}

TEST(StripInterTagWhitespace, DropsNoOther)
{
    EXPECT_EQ(StripInterTagWhitespace(">\f<"), ">\f<");
    EXPECT_EQ(StripInterTagWhitespace(">\v<"), ">\v<");
    EXPECT_EQ(StripInterTagWhitespace(">\xA0<"), ">\xA0<");
    EXPECT_EQ(StripInterTagWhitespace(">\xC2\x85<"), ">\xC2\x85<");
    EXPECT_EQ(StripInterTagWhitespace("> \f <"), ">\f <");
}

TEST(StripInterTagWhitespace, DropsTheBlanksThatBeginAText)
{
    EXPECT_EQ(StripInterTagWhitespace("<a>  zwei Worte </a>"), "<a>zwei Worte </a>");
}

TEST(StripInterTagWhitespace, KeepsWhatBeginsTheFile)
{
    EXPECT_EQ(StripInterTagWhitespace(" \t\r\n<a> </a>"), " \t\r\n<a></a>");
}

TEST(StripInterTagWhitespace, DropsWhatEndsTheFileBehindATag)
{
    EXPECT_EQ(StripInterTagWhitespace("</a>\r\n"), "</a>");
    EXPECT_EQ(StripInterTagWhitespace("</a>"), "</a>");
    EXPECT_EQ(StripInterTagWhitespace("</a\r\n"), "</a\r\n");
}

TEST(StripInterTagWhitespace, KeepsWhatStandsWithinATag)
{
    EXPECT_EQ(StripInterTagWhitespace("<a  b = 'c'\r\n/>"), "<a  b = 'c'\r\n/>");
}

TEST(StripInterTagWhitespace, TakesTheSecondOfTwoInARowForText)
{
    EXPECT_EQ(StripInterTagWhitespace(">> <"), ">> <");
    EXPECT_EQ(StripInterTagWhitespace("> > <"), ">> <");
    EXPECT_EQ(StripInterTagWhitespace(">"), ">");
    EXPECT_EQ(StripInterTagWhitespace(">>"), ">>");
}

TEST(StripInterTagWhitespace, TakesTheThirdOfThreeInARowForATagsEnd)
{
    EXPECT_EQ(StripInterTagWhitespace(">>> <"), ">>><");
    EXPECT_EQ(StripInterTagWhitespace(">>>> <"), ">>>> <");
}

TEST(StripInterTagWhitespace, KnowsNoQuotesNorComments)
{
    EXPECT_EQ(StripInterTagWhitespace("<a b='x >  y'/>"), "<a b='x >y'/>");
    EXPECT_EQ(StripInterTagWhitespace("<!-- a ->  b -->"), "<!-- a ->b -->");
    EXPECT_EQ(StripInterTagWhitespace("<![CDATA[a >  b]]>"), "<![CDATA[a >b]]>");
    EXPECT_EQ(StripInterTagWhitespace("a &gt;  b"), "a &gt;  b");
}

TEST(StripInterTagWhitespace, TakesAZeroByteForAnyOther)
{
    EXPECT_EQ(StripInterTagWhitespace(Bytes("a\0 b\0")), Bytes("a\0 b\0"));
    EXPECT_EQ(StripInterTagWhitespace(Bytes(">\0 <")), Bytes(">\0 <"));
    EXPECT_EQ(StripInterTagWhitespace(Bytes("> \0<")), Bytes(">\0<"));
}

// Whose characters are two bytes each.
TEST(StripInterTagWhitespace, LeavesAFileInUtf16Alone)
{
    const std::string bytes = Bytes("\xFF\xFE<\0a\0>\0 \0<\0/\0a\0>\0");

    EXPECT_EQ(StripInterTagWhitespace(bytes), bytes);
}

TEST(StripInterTagWhitespace, MakesNothingOfNothing)
{
    EXPECT_EQ(StripInterTagWhitespace(""), "");
    EXPECT_EQ(StripInterTagWhitespace(" "), " ");
}

} // namespace
} // namespace norvepa

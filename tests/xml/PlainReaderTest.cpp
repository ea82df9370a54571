#include "xml/PlainReader.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using Token = PlainReader::Token;

// The tags up to the end, and whether they end there: "<a> <b/> </>" and " ?" when the rest isn't plain.
std::string TagsOf(std::string_view bytes)
{
    PlainReader reader(bytes);
    std::string tags;
    for (;;)
    {
        switch (reader.Read())
        {
        case Token::BeginTag:
            tags += '<' + std::string(reader.word()) + '>';
            break;
        case Token::EmptyTag:
            tags += '<' + std::string(reader.word()) + "/>";
            break;
        case Token::EndTag:
            tags += "</>";
            break;
        case Token::End:
            return tags;
        case Token::NotPlain:
            return tags + '?';
        }
    }
}

TEST(PlainReader, GoesFromTagToTag)
{
    EXPECT_EQ(TagsOf("<a>text<b/> <c d='1'>more</c></a>"), "<a><b/><c></></>");
}

TEST(PlainReader, TakesAWordAsItsBytesAre)
{
    EXPECT_EQ(TagsOf("<a_1-2.B><Größe\t/><b\r\n></b></a_1-2.B>"), "<a_1-2.B><Größe/><b></></>");
}

TEST(PlainReader, LeavesAWordWithAPrefixAlone)
{
    EXPECT_EQ(TagsOf("<p:a/>"), "?");
    EXPECT_EQ(TagsOf("<a xmlns:p='urn:p' p:b=':'><c>:</c><p:d></p:d></a>"), "<a><c></>?");
}

TEST(PlainReader, FindsTheEndOfATagBehindItsAttributes)
{
    EXPECT_EQ(TagsOf("<a b='>' c=\"/>\" d='\"' e=\"'\"><f g='/'/></a>"), "<a><f/></>");
}

TEST(PlainReader, PassesOverComments)
{
    EXPECT_EQ(TagsOf("<!----><a><!-- <b> --><c/><!-- - -> ' --></a><!-- > -->"), "<a><c/></>");
}

TEST(PlainReader, TakesNoDashOfACommentForTwo)
{
    EXPECT_EQ(TagsOf("<a><!--><b/>--><!---><c/>--></a>"), "<a></>");
    EXPECT_EQ(TagsOf("<a><!--></a>"), "<a>?");
}

TEST(PlainReader, SkipsWhatStandsAheadOfTheRoot)
{
    for (const char* ahead :
         {"", "\uFEFF", " \t\r\n", "<?xml version='1.0'?>", "<?xml version='1.0' encoding='UTF-8'?>\r\n",
          "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>",
          "\uFEFF<?xml\n\tversion\t=\r\n'1.0' encoding = 'UTF-8' ?> "})
    {
        EXPECT_EQ(TagsOf(ahead + std::string("<a encoding='UTF-16'/>")), "<a/>") << ahead;
    }
}

TEST(PlainReader, LeavesOtherBeginningsAlone)
{
    for (const char* ahead :
         {"text", "\uFEFF\uFEFF", "\xFF\xFE", "\xFE\xFF", "<?xml version='1.0' encoding='ISO-8859-1'?>",
          "<?xml version='1.0' encoding=\"windows-1252\"?>", "<?xml version='1.0' encoding='UTF-16'?>",
          "<?xml version='1.0' encoding=''?>", "<?xml version='1.1'?>", "<?xml encoding='UTF-8'?>",
          "<?xml ?>", "<?xml?>", "<?xml", "<?xml version='1.0'>", "<?xml-stylesheet version='1.0'?>",
          " <?xml version='1.0'?>"})
    {
        EXPECT_EQ(TagsOf(ahead + std::string("<a/>")), "?") << ahead;
    }
}

TEST(PlainReader, LeavesOtherMarkupAlone)
{
    for (const char* markup :
         {"<!DOCTYPE a>", "<![CDATA[b]]>", "<?p q?>", "<?p?>", "<!ELEMENT b>", "<!", "<?", "<!-"})
    {
        EXPECT_EQ(TagsOf("<a>" + std::string(markup) + "</a>"), "<a>?") << markup;
    }
}

TEST(PlainReader, LeavesWhiteSpaceOfADocumentsOwnAlone)
{
    EXPECT_EQ(TagsOf("<a xml:space='preserve'></a>"), "?");
    EXPECT_EQ(TagsOf("<a><b c='d'\txml:space = 'default'/></a>"), "<a>?");
}

TEST(PlainReader, LeavesEncodingsWithZerosAlone)
{
    using namespace std::string_view_literals;
    for (const std::string_view bytes :
         {"<\0a\0/\0>\0"sv, "\0<\0a\0/\0>"sv, "\n\0<\0a\0/\0>\0"sv, "\0\n\0<\0a\0/\0>"sv, "<\0\0\0a\0\0\0"sv,
          "\0\0\0<"sv, "\xFF\xFE<\0a\0/\0>\0"sv, "<\0?\0x\0m\0l\0"sv})
    {
        EXPECT_EQ(TagsOf(bytes), "?") << bytes;
    }
}

TEST(PlainReader, LeavesAloneWhatEndsWithinMarkup)
{
    EXPECT_EQ(TagsOf("<a><b c='"), "<a>?");
    EXPECT_EQ(TagsOf("<a><b c='>'"), "<a>?");
    EXPECT_EQ(TagsOf("<a><"), "<a>?");
    EXPECT_EQ(TagsOf("<a></a"), "<a>?");
    EXPECT_EQ(TagsOf("<a><!-- --"), "<a>?");
}

TEST(PlainReader, OfNothingReadsNothing)
{
    for (const char* bytes : {"", " ", "\uFEFF", "text"})
    {
        EXPECT_EQ(TagsOf(bytes), "?") << bytes;
    }
}

TEST(PlainReader, StaysWhereItStopped)
{
    PlainReader reader("<a><?p?><b/></a>");
    ASSERT_EQ(reader.Read(), Token::BeginTag);

    EXPECT_EQ(reader.Read(), Token::NotPlain);
    EXPECT_EQ(reader.Read(), Token::NotPlain);
}

TEST(PlainReader, StaysAtTheEnd)
{
    PlainReader reader("<a/>");
    ASSERT_EQ(reader.Read(), Token::EmptyTag);

    EXPECT_EQ(reader.Read(), Token::End);
    EXPECT_EQ(reader.Read(), Token::End);
}

} // namespace
} // namespace norvepa::test

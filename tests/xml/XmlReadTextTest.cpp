#include "xml/PullScene.h"

namespace norvepa::test
{
namespace
{

class XmlReadTextTest : public PullScene
{
protected:
    // The text of the element `v`, which is all that the file holds; null when there is none.
    [[nodiscard]] std::optional<std::wstring> TextOf(std::string_view bytes) const
    {
        PullReader reader = InsideRoot(bytes);
        std::wstring text = L"before";
        return XmlReadText(reader, L"v", text) ? std::optional(text) : std::nullopt;
    }
};

TEST_F(XmlReadTextTest, ReadsTheTextAsItStands)
{
    EXPECT_EQ(TextOf("<v> 19200 / 19,2 kBit  </v>"), L" 19200 / 19,2 kBit  ");
}

TEST_F(XmlReadTextTest, StopsOnTheTextItself)
{
    PullReader reader = InsideRoot("<v>1</v>");
    std::wstring text;

    ASSERT_TRUE(XmlReadText(reader, L"v", text));

    EXPECT_EQ(NextNode(reader), "</v>");
}

TEST_F(XmlReadTextTest, AnElementOfTwoTagsIsEmpty)
{
    EXPECT_EQ(TextOf("<v></v>"), L"");
}

TEST_F(XmlReadTextTest, TheEndTagComparesWithoutRegardToCase)
{
    EXPECT_EQ(TextOf("<V></V>"), L"");
}

TEST_F(XmlReadTextTest, WhiteSpaceAloneIsNoText)
{
    EXPECT_EQ(TextOf("<v> \t\r\n </v>"), L"");
}

TEST_F(XmlReadTextTest, ACommentAheadIsPassedOver)
{
    EXPECT_EQ(TextOf("<v><!--0-->1</v>"), L"1");
}

TEST_F(XmlReadTextTest, ACommentInTheMiddleEndsTheText)
{
    EXPECT_EQ(TextOf("<v>one<!--and-->two</v>"), L"one");
}

TEST_F(XmlReadTextTest, ACommentAloneIsNoText)
{
    EXPECT_EQ(TextOf("<v><!--1--></v>"), L"");
}

TEST_F(XmlReadTextTest, AProcessingInstructionIsPassedOver)
{
    EXPECT_EQ(TextOf("<v><?a b?>1</v>"), L"1");
}

TEST_F(XmlReadTextTest, CharacterDataSectionsAreNoText)
{
    EXPECT_EQ(TextOf("<v><![CDATA[1]]></v>"), L"");
}

TEST_F(XmlReadTextTest, ATextBehindACharacterDataSectionIsRead)
{
    EXPECT_EQ(TextOf("<v><![CDATA[1]]>2</v>"), L"2");
}

TEST_F(XmlReadTextTest, EntitiesComeAsWhatTheyStandFor)
{
    EXPECT_EQ(TextOf("<v>&lt;a&gt; &amp; &quot;b&quot; &apos;c&apos;</v>"), L"<a> & \"b\" 'c'");
}

TEST_F(XmlReadTextTest, CharacterReferencesComeAsWhatTheyStandFor)
{
    EXPECT_EQ(TextOf("<v>&#49;&#x32;&#xE4;&#x3A9;</v>"), L"12äΩ");
}

TEST_F(XmlReadTextTest, LettersOfAllAlphabetsComeAsTheyStand)
{
    EXPECT_EQ(TextOf("<v>Größe µΩ Ελλάδα 温度 😀</v>"), L"Größe µΩ Ελλάδα 温度 😀");
}

TEST_F(XmlReadTextTest, ALongTextComesWhole)
{
    const std::string longText(300'000, 'x');

    EXPECT_EQ(TextOf("<v>" + longText + "</v>"), std::wstring(300'000, L'x'));
}

TEST_F(XmlReadTextTest, TheTextOfANestedElementIsRead)
{
    EXPECT_EQ(TextOf("<v><w>1</w>2</v>"), L"1");
}

TEST_F(XmlReadTextTest, ANestedElementWrittenAsOneTagIsPassedOver)
{
    EXPECT_EQ(TextOf("<v><w/>1</v>"), L"1");
}

TEST_F(XmlReadTextTest, RunsOnToALaterTextWhenTheEndTagIsAnothers)
{
    PullReader reader = InsideRoot("<root><a></a><v>1</v></root>");
    ASSERT_TRUE(XmlSeekElement(reader, L"a"));
    std::wstring text;

    EXPECT_TRUE(XmlReadText(reader, L"v", text));

    EXPECT_EQ(text, L"1");
}

TEST_F(XmlReadTextTest, IsFalseAtTheEndOfTheFileAndLeavesTheTextAlone)
{
    PullReader reader = InsideRoot("<root><v></v></root>");
    std::wstring text = L"before";

    EXPECT_FALSE(XmlReadText(reader, L"other", text));

    EXPECT_EQ(text, L"before");
    EXPECT_EQ(reader.State(), XmlReadState_EndOfFile);
}

TEST_F(XmlReadTextTest, IsFalseAtAMalformedPlaceAndLeavesTheTextAlone)
{
    PullReader reader = InsideRoot("<v></w>1</v>");
    std::wstring text = L"before";

    EXPECT_FALSE(XmlReadText(reader, L"v", text));

    EXPECT_EQ(text, L"before");
    EXPECT_FALSE(XmlReaderActive(reader));
}

} // namespace
} // namespace norvepa::test

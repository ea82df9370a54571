#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

// What a save keeps of all that it wasn't asked to change, beside what every write is tested for.
class SetValueKeepsTest : public WriteScene
{
protected:
    // What is said after a set, in a document with `content` beside the parameter that is set.
    void ExpectKept(std::string_view content) const
    {
        GivenFile(Document(content, "1"));

        ASSERT_EQ(Set(L"LocalSettings", L"a", L"2", L"int"), PGSP_OK);

        EXPECT_EQ(Saved(), MeaningOf(Document(content, "2")));
    }

    [[nodiscard]] static std::string Document(std::string_view content, std::string_view value)
    {
        return std::string("<?xml version='1.0' encoding='UTF-8'?>"
                           "<LogDevice xmlns='urn:d' DeviceID='*AFK110' CP_TYPE='MPI'><LocalSettings>"
                           "<ParameterInt xmlns='http://www.marvolt.example/Automation/Corvane.Device.Driver/"
                           "LogDevice'><Name>a</Name><Value>")
            .append(value)
            .append("</Value></ParameterInt></LocalSettings>")
            .append(content)
            .append("</LogDevice>");
    }
};

TEST_F(SetValueKeepsTest, Attributes)
{
    ExpectKept("<Subdevice SubdevName='Brenner &quot;1&quot; &lt;&amp;&gt; &#xE4;' empty='' b=\"'\"/>");
}

TEST_F(SetValueKeepsTest, TextWithMetacharacters)
{
    ExpectKept("<Remark>a &lt; b &amp;&amp; c &gt; d &quot;&apos; ]]&gt; &#38;lt;</Remark>");
}

TEST_F(SetValueKeepsTest, TextOutsideOfTheFirstPlane)
{
    ExpectKept("<Remark>\xF0\x9F\x98\x80 \xC3\xA4 \xE2\x89\xA4 \xC2\xA0 \xE2\x80\xA8</Remark>");
}

TEST_F(SetValueKeepsTest, CharacterData)
{
    ExpectKept("<Remark><![CDATA[<not> & markup]]></Remark>");
}

TEST_F(SetValueKeepsTest, TextBetweenElements)
{
    ExpectKept("<Remark>one<b>two</b>three</Remark>");
}

TEST_F(SetValueKeepsTest, LineEndsInsideOfText)
{
    ExpectKept("<Remark>one\ntwo\t three</Remark>");
}

TEST_F(SetValueKeepsTest, BlanksAheadOfText)
{
    ExpectKept("<Remark>  two blanks</Remark>");
}

TEST_F(SetValueKeepsTest, UnknownSectionsAndEntries)
{
    ExpectKept(
        "<Bindings><Parameter><Value>reversed</Value><Name>a</Name></Parameter><unit>V</unit></Bindings>"
        "<Load><section>Bindings</section><section/></Load><Bindings/>");
}

TEST_F(SetValueKeepsTest, WhiteSpaceThatIsMarkedAsMeant)
{
    ExpectKept("<Remark xml:space='preserve'>  </Remark>");
}

TEST_F(SetValueKeepsTest, NoPrefixIsBoundAnewByWhatIsAdded)
{
    GivenFile("<d:LogDevice xmlns:d='urn:d' xmlns='urn:e'><LocalSettings/><d:b/><c/></d:LogDevice>");

    ASSERT_EQ(Set(L"LocalSettings", L"a", L"1", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(),
              MeaningOf("<d:LogDevice xmlns:d='urn:d' xmlns='urn:e'><LocalSettings><ParameterInt xmlns="
                        "'http://www.marvolt.example/Automation/Corvane.Device.Driver/LogDevice'>"
                        "<Name>a</Name><Value>1</Value></ParameterInt></LocalSettings><d:b/><c/>"
                        "</d:LogDevice>"));
}

TEST_F(SetValueKeepsTest, SavingAgainAndAgainAddsNothing)
{
    GivenFile(Document("<!--c-->", "1"));
    ASSERT_EQ(Set(L"LocalSettings", L"a", L"2", L"int"), PGSP_OK);
    const std::string once = Bytes();

    for (const wchar_t* value : {L"3", L"4", L"2"})
    {
        ASSERT_EQ(Set(L"LocalSettings", L"a", value, L"int"), PGSP_OK);
    }

    EXPECT_EQ(Bytes(), once);
}

} // namespace
} // namespace norvepa::test

#include "xml/PlainReader.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using testing::Eq;
using testing::Optional;

using Token = PlainReader::Token;

// A reader on the first tag.
PlainReader Begun(std::string_view bytes)
{
    PlainReader reader(bytes);
    (void)reader.Read();
    return reader;
}

// Of the first element; none when it isn't read.
std::optional<std::wstring> TextOf(std::string_view raw)
{
    const std::string bytes = "<a>" + std::string(raw) + "</a>";
    PlainReader reader = Begun(bytes);
    std::wstring text;
    return reader.ReadText(text) ? std::optional(text) : std::nullopt;
}

bool ReadsAttribute(std::string_view tag, std::optional<std::wstring>& text)
{
    return Begun(tag).ReadAttribute("name", text);
}

TEST(PlainReaderText, IsWhatStandsThere)
{
    EXPECT_THAT(TextOf("a b"), Optional(Eq(L"a b")));
    EXPECT_THAT(TextOf("\n a\tb \n"), Optional(Eq(L"\n a\tb \n")));
    EXPECT_THAT(TextOf("Größe \U0001F600"), Optional(Eq(L"Gr\u00F6\u00DFe \U0001F600")));
    EXPECT_THAT(TextOf("\u00A0"), Optional(Eq(L"\u00A0")));
    EXPECT_THAT(TextOf("a > b"), Optional(Eq(L"a > b")));
}

TEST(PlainReaderText, MayBeEmpty)
{
    EXPECT_THAT(TextOf(""), Optional(Eq(L"")));
}

TEST(PlainReaderText, HasTheFiveReferencesResolved)
{
    EXPECT_THAT(TextOf("&lt;&gt;&amp;&quot;&apos;"), Optional(Eq(L"<>&\"'")));
    EXPECT_THAT(TextOf(" &amp; "), Optional(Eq(L" & ")));
    EXPECT_THAT(TextOf("&amp;lt;"), Optional(Eq(L"&lt;")));
}

TEST(PlainReaderText, WithAnyOtherReferenceIsNotRead)
{
    for (const char* text : {"&auml;", "&#65;", "&#x41;", "&LT;", "&lt", "&", "& ", "a&", "&;", "&ltt;"})
    {
        EXPECT_EQ(TextOf(text), std::nullopt) << text;
    }
}

TEST(PlainReaderText, OfWhiteSpaceOnlyIsNotRead)
{
    for (const char* text : {" ", "\n", "\t \n"})
    {
        EXPECT_EQ(TextOf(text), std::nullopt) << text;
    }
}

TEST(PlainReaderText, WithACarriageReturnIsNotRead)
{
    for (const char* text : {"\r", "a\r", "a\r\nb", "\xC3\xA4\r", "&lt;\r"})
    {
        EXPECT_EQ(TextOf(text), std::nullopt) << text;
    }
}

TEST(PlainReaderText, ThatIsNoUtf8IsNotRead)
{
    for (const char* text :
         {"\xC3", "a\xE4z", "\xC0\x80", "\xE2\x82", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xA4"})
    {
        EXPECT_EQ(TextOf(text), std::nullopt) << text;
    }
}

TEST(PlainReaderText, AroundMarkupIsNotRead)
{
    for (const char* text : {"a<b/>", "<b/>a", "a<b>c</b>", "a<!---->", "<!-- -->", "<![CDATA[a]]>", "<?p?>"})
    {
        EXPECT_EQ(TextOf(text), std::nullopt) << text;
    }
}

TEST(PlainReaderText, IsAddedToWhatIsThere)
{
    PlainReader reader = Begun("<a>b</a>");
    std::wstring text = L"a";

    ASSERT_TRUE(reader.ReadText(text));

    EXPECT_EQ(text, L"ab");
}

TEST(PlainReaderText, LeavesTheReaderBehindTheEndTag)
{
    PlainReader reader("<r><a>1</a ><b/></r>");
    std::wstring text;
    ASSERT_EQ(reader.Read(), Token::BeginTag);
    ASSERT_EQ(reader.Read(), Token::BeginTag);

    ASSERT_TRUE(reader.ReadText(text));

    EXPECT_EQ(reader.Read(), Token::EmptyTag);
    EXPECT_EQ(reader.word(), "b");
}

TEST(PlainReaderText, OfAnAttributeIsFoundByItsExactName)
{
    for (const char* tag : {"<a name='x'>", "<a name='x'/>", "<a b='1' name=\"x\" c='2'>",
                            "<a\n\tname\r\n=\t'x'\n>", "<a b=' name=\"y\" ' name='x'>",
                            "<a Name='y' names='z' nam='w' name='x'>", "<a Größe='1' name='x'>"})
    {
        std::optional<std::wstring> text;

        EXPECT_TRUE(ReadsAttribute(tag, text)) << tag;
        EXPECT_THAT(text, Optional(Eq(L"x"))) << tag;
    }
}

TEST(PlainReaderText, OfAnAttributeThatIsNotThereIsNone)
{
    for (const char* tag :
         {"<a>", "<a/>", "<name>", "<a Name='x' names='y'>", "<a b='name=\"x\"'>", "<a b=\"name='x'\"/>"})
    {
        std::optional<std::wstring> text;

        EXPECT_TRUE(ReadsAttribute(tag, text)) << tag;
        EXPECT_EQ(text, std::nullopt) << tag;
    }
}

TEST(PlainReaderText, OfAnAttributeIsWhatStandsThere)
{
    const std::pair<const char*, const wchar_t*> rows[]{{"<a name=''>", L""},
                                                        {"<a name=' '>", L" "},
                                                        {"<a name=' a  b '>", L" a  b "},
                                                        {"<a name='>/'>", L">/"},
                                                        {"<a name='\"'>", L"\""},
                                                        {"<a name=\"'\">", L"'"},
                                                        {"<a name='&lt;&amp;&quot;'>", L"<&\""},
                                                        {"<a name='Prüfstand'>", L"Pr\u00FCfstand"}};
    for (const auto& [tag, expected] : rows)
    {
        std::optional<std::wstring> text;

        EXPECT_TRUE(ReadsAttribute(tag, text)) << tag;
        EXPECT_THAT(text, Optional(Eq(expected))) << tag;
    }
}

TEST(PlainReaderText, OfAnAttributeThatAnEngineChangesIsNotRead)
{
    for (const char* tag : {"<a name='b\tc'>", "<a name='\n'>", "<a name='b\r'>", "<a name='&#65;'>",
                            "<a name='&b;'>", "<a name='\xFF'>"})
    {
        std::optional<std::wstring> text;

        EXPECT_FALSE(ReadsAttribute(tag, text)) << tag;
    }
}

TEST(PlainReaderText, OfAnAttributeBesideOneWithAPrefixIsNotRead)
{
    for (const char* tag : {"<a p:name='x'>", "<a p:name='x' name='y'>", "<a name='y' p:name='x'/>"})
    {
        std::optional<std::wstring> text;

        EXPECT_FALSE(ReadsAttribute(tag, text)) << tag;
    }
}

} // namespace
} // namespace norvepa::test

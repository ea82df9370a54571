#include "handover/OutlineScene.h"

namespace norvepa::test
{
namespace
{

PlainDocument Value(const char* name, std::string_view raw, const std::string& value)
{
    return {name, WithValue(raw), "load S{2 'n'='" + value + "'}"};
}

OtherDocument OtherValue(const char* name, std::string_view raw)
{
    return {name, WithValue(raw)};
}

std::string Subdevice(std::string_view attributes)
{
    return "<d><Bindings><Subdevices><Subdevice" + std::string(attributes) +
           "><Parameter><Name>n</Name><Value>v</Value></Parameter></Subdevice></Subdevices></Bindings></d>";
}

PlainDocument Named(const char* name, std::string_view attributes, const std::string& subdevice)
{
    return {name, Subdevice(attributes), "load Subdevice" + subdevice + "{2 'n'='v'}"};
}

OtherDocument OtherNamed(const char* name, std::string_view attributes)
{
    return {name, Subdevice(attributes)};
}

INSTANTIATE_TEST_SUITE_P(
    Texts, AlikeBothWays,
    testing::Values(
        Value("Ascii", "afk110x", "afk110x"), Value("BlanksAround", "  two words ", "  two words "),
        Value("LineFeedsAround", "\n\ta\n", "\n\ta\n"), Value("LineFeedWithin", "a\nb\n\nc", "a\nb\n\nc"),
        Value("TabWithin", "a\tb", "a\tb"),
        Value("TheFiveReferences", "&lt;&gt;&amp;&quot;&apos;", "<>&\"\\'"),
        Value("ReferenceAmongLetters", "a &lt; b", "a < b"),
        Value("ReferenceTwiceEscaped", "&amp;lt;&amp;#65;", "&lt;&#65;"),
        Value("BlanksAroundAReference", " &amp; ", " & "),
        Value("QuotesAndGreaterThan", "a > b \"c\" /", "a > b \"c\" /"),
        Value("TwoEndsOfCDataApart", "]] >]>", "]] >]>"), Value("Umlauts", "Größe µΩ", "Größe µΩ"),
        Value("UmlautAlone", "ä", "ä"), Value("UmlautBehindAReference", "&amp;ä&lt;", "&ä<"),
        Value("BeyondTheFirstPlane", "a\U0001F600\U0010FFFD", "a\U0001F600\U0010FFFD"),
        Value("MarkOfTheEncodingWithin", "\uFEFFa\uFEFF", "\uFEFFa\uFEFF"),
        Value("ForeignSpacesAlone", "\u00A0\u3000", "\u00A0\u3000"),
        Value("ForeignLineEnds", "a\u0085b\u2028c", "a\u0085b\u2028c"), Value("Delete", "a\x7F", "a\x7F"),
        Value("Long", std::string(5'000, 'x'), std::string(5'000, 'x')),
        Value("LongAndForeign", "x" + std::string(40, '\n') + "ä", "x" + std::string(40, '\n') + "ä"),
        Value("Nothing", "", "")),
    NameOf<PlainDocument>);

INSTANTIATE_TEST_SUITE_P(
    Texts, LeftToTheEngine,
    testing::Values(OtherValue("DecimalReference", "a&#65;"), OtherValue("HexadecimalReference", "&#x20AC;"),
                    OtherValue("ReferenceToALineEnd", "a&#13;&#10;b"),
                    OtherValue("ReferenceToABlank", "&#32;"), OtherValue("CarriageReturn", "a\rb"),
                    OtherValue("CarriageReturnAndLineFeed", "a\r\nb"),
                    OtherValue("CarriageReturnAtTheEnd", "ä\r"), OtherValue("Blank", " "),
                    OtherValue("WhiteSpaceOnly", " \t\n\r\n "), OtherValue("LineFeedOnly", "\n")),
    NameOf<OtherDocument>);

INSTANTIATE_TEST_SUITE_P(
    Subdevices, AlikeBothWays,
    testing::Values(Named("Plain", " SubdevName='x1'", "@'x1'"),
                    Named("DoubleQuotes", " SubdevName=\"it's\"", "@'it\\'s'"), Named("Missing", "", ""),
                    Named("MissingAmongOthers", " Name='x' subdevName='y' SubdevNames='z'", ""),
                    Named("Empty", " SubdevName=''", "@''"),
                    Named("Last", " a='1' b='2' SubdevName='x'", "@'x'"),
                    Named("First", " SubdevName='x' a='1'", "@'x'"),
                    Named("WordWithinAValue", " a=' SubdevName=\"y\" ' SubdevName='x'", "@'x'"),
                    Named("WordOnlyWithinAValue", " a='SubdevName=\"y\"'", ""),
                    Named("SpacesAroundTheSign", "\n  SubdevName\t=\n 'x' ", "@'x'"),
                    Named("GreaterThanWithin", " a='>' SubdevName='a>b/>'", "@'a>b/>'"),
                    Named("SlashAtTheEnd", " SubdevName='a/'", "@'a/'"),
                    Named("References", " SubdevName='&lt;&amp;&quot;&apos;&gt;'", "@'<&\"\\'>'"),
                    Named("Umlauts", " SubdevName='Prüfstand Ω'", "@'Prüfstand Ω'"),
                    Named("BlanksAround", " SubdevName='  a  b '", "@'  a  b '"),
                    Named("BlankOnly", " SubdevName=' '", "@' '"),
                    Named("WordOfManyBytes", " Gerät='y' SubdevName='x'", "@'x'")),
    NameOf<PlainDocument>);

INSTANTIATE_TEST_SUITE_P(
    Subdevices, LeftToTheEngine,
    testing::Values(OtherNamed("Tab", " SubdevName='a\tb'"), OtherNamed("LineFeed", " SubdevName='a\nb'"),
                    OtherNamed("CarriageReturn", " SubdevName='a\rb'"),
                    OtherNamed("CharacterReference", " SubdevName='&#65;'"),
                    OtherNamed("Prefixed", " xmlns:p='urn:p' p:SubdevName='y'"),
                    OtherNamed("PrefixedAhead", " xmlns:p='urn:p' p:SubdevName='y' SubdevName='x'"),
                    OtherNamed("PrefixedBehind", " xmlns:p='urn:p' SubdevName='x' p:SubdevName='y'"),
                    OtherNamed("WhiteSpaceOfItsOwn", " xml:space='default' SubdevName='x'")),
    NameOf<OtherDocument>);

using OutlineText = OutlineScene;

TEST_F(OutlineText, IsReadInEachPlace)
{
    ExpectAlike("<d><S><Parameter><Value> a&amp;ä</Value><Name>\tb&lt;ö </Name></Parameter></S>"
                "<Load><e> c&gt;ü </e></Load></d>",
                "load ' c>ü ' S{2 '\tb<ö '=' a&ä'}");
}

TEST_F(OutlineText, OfWhiteSpaceOnlyIsLeftToTheEngineInEachPlace)
{
    ExpectLeftToTheEngine("<d><S><Parameter><Name> </Name></Parameter></S></d>");
    ExpectLeftToTheEngine("<d><Load><e> </e></Load></d>");
}

TEST_F(OutlineText, ThatNobodyWantsMayBeAnything)
{
    ExpectAlike("<d>&#65;\r\n<S>a\r&#x20;<Parameter>\r\n<Name>n</Name>&#9;<Value>v</Value>\t</Parameter>b</S>"
                "<Load>\r\n<e>S</e>&#10;</Load></d>",
                "load 'S' S{2 'n'='v'}");
}

TEST_F(OutlineText, WithAReferenceThatIsNotKnownIsReadByNobody)
{
    EXPECT_EQ(ByTheEngine(WithValue("&auml;")), std::nullopt);
    EXPECT_EQ(ByTheBytes(WithValue("&auml;")), std::nullopt);
}

TEST_F(OutlineText, OfAttributesThatNobodyWantsMayBeAnything)
{
    ExpectAlike("<d a='&#65;\r\n\t'><S SubdevName='\t&#10;'><Parameter b='/Parameter>' c=\"'/>\">"
                "<Name d=\"'\">n</Name></Parameter></S></d>",
                "load S{2 'n'=-}");
}

} // namespace
} // namespace norvepa::test

#include "handover/OutlineScene.h"

namespace norvepa::test
{
namespace
{

constexpr char LineOfAll[] = "load 'S' S{2 'n'='v'}";

// With a piece put in wherever a star is.
std::string Starred(std::string_view document, std::string_view piece)
{
    std::string bytes;
    for (const char each : document)
    {
        bytes += each == '*' ? piece : std::string_view(&each, 1);
    }
    return bytes;
}

// All that an outline is made of, with something put between its tags.
std::string With(std::string_view piece)
{
    return Starred("<d>*<S>*<Parameter>*<Name>n</Name>*<Value>v</Value>*</Parameter>*</S>*"
                   "<Load>*<e>S</e>*</Load>*</d>",
                   piece);
}

// The same but for the load list, where each element is an entry.
std::string WithElements(std::string_view piece)
{
    return Starred("<d>*<S>*<Parameter>*<Name>n</Name>*<Value>v</Value>*</Parameter>*</S>*"
                   "<Load><e>S</e></Load>*</d>",
                   piece);
}

PlainDocument All(const char* name, std::string bytes)
{
    return {name, std::move(bytes), LineOfAll};
}

INSTANTIATE_TEST_SUITE_P(
    Comments, AlikeBothWays,
    testing::Values(All("None", With("")), All("Empty", With("<!---->")),
                    All("WithText", With("<!-- made by hand -->")),
                    All("WithTags", With("<!-- <S><Parameter><Name>x</Name></Parameter></S></d> -->")),
                    All("WithHalfTags", With("<!-- < > </ <a b='> -->")),
                    All("WithQuotes", With("<!-- it's \" -->")),
                    All("WithGreaterThanAtItsBegin", With("<!--><Parameter/>-->")),
                    All("WithDashAndGreaterThanAtItsBegin", With("<!---><Parameter/>-->")),
                    All("WithDashesApart", With("<!-- - -> ->-->")),
                    All("WithOtherMarkup", With("<!-- <![CDATA[ ]]> <?p ?> <!DOCTYPE a> <! -->")),
                    All("Foreign", With("<!-- Größe -->")), All("OverLines", With("<!--\r\n\t-->\r\n")),
                    All("AroundTheRoot", "<!-- < --><!-- > -->\r\n" + With("") + "\r\n<!-- <a> --><!---->"),
                    All("BehindTheDeclaration", "<?xml version='1.0'?><!--?>-->" + With(""))),
    NameOf<PlainDocument>);

INSTANTIATE_TEST_SUITE_P(
    Tags, AlikeBothWays,
    testing::Values(All("WhiteSpaceBetween", With(" \t\r\n ")),
                    All("SpacesWithin",
                        "<d ><S\r\n><Parameter\t><Name\n>n</Name ><Value >v</Value\r\n></Parameter\t></S >"
                        "<Load ><e >S</e ></Load ></d >"),
                    All("ElementsBetween", WithElements("<x y='z'/><x><y/></x>")),
                    All("SpacesAheadOfTheSlash", WithElements("<x /><x\n/><x a='b'\t/>")),
                    All("SlashesInAttributes", WithElements("<x a='/'/><x a='/'></x><x a=\"//\" b='/ ' />")),
                    All("GreaterThanInAttributes",
                        WithElements("<x a='>'/><x a='/>'></x><x a=\">\" b='/>'/>")),
                    All("TagsInAttributes", WithElements("<x a='/d>' b=\"-->\" c='&lt;Load>'/>")),
                    All("QuotesInAttributes", WithElements("<x a='\"' b=\"'\" c='\"\"' d=\"''\"/>"))),
    NameOf<PlainDocument>);

INSTANTIATE_TEST_SUITE_P(
    Markup, LeftToTheEngine,
    testing::Values(
        OtherDocument{"CDataInAText", WithValue("<![CDATA[v]]>")},
        OtherDocument{"CDataBehindAText", WithValue("v<![CDATA[<b>]]>")},
        OtherDocument{"CDataBetween", "<d><S><![CDATA[</S><S>]]></S></d>"},
        OtherDocument{"CommentInAName", "<d><S><Parameter><Name>a<!-- < -->b</Name></Parameter></S></d>"},
        OtherDocument{"CommentInAValue", WithValue("a<!-- > -->")},
        OtherDocument{"CommentAloneInAValue", WithValue("<!--v-->")},
        OtherDocument{"CommentInALoadEntry", "<d><Load><e><!-- < -->S</e></Load></d>"},
        OtherDocument{"InstructionAheadOfTheRoot", "<?p?><d><Load><e>S</e></Load></d>"},
        OtherDocument{"InstructionBehindTheRoot", "<d><Load><e>S</e></Load></d><?p?>"},
        OtherDocument{"InstructionInASection", "<d><S><?p <Parameter> ?><Parameter/></S></d>"},
        OtherDocument{"InstructionInAValue", WithValue("a<?p q?>b")},
        OtherDocument{"InstructionNamedParameter", "<d><S><?Parameter <Name>n</Name>?></S></d>"},
        OtherDocument{"InstructionNamedName", "<d><S><Parameter><?Name n?></Parameter></S></d>"},
        OtherDocument{"InstructionNamedLoad", "<d><?Load <e>S</e>?></d>"},
        OtherDocument{"InstructionInLoad", "<d><Load><?e S?><e>S</e></Load></d>"},
        OtherDocument{"WhiteSpaceOfARootsOwn", "<d xml:space='preserve'><Load><e>S</e></Load></d>"},
        OtherDocument{"WhiteSpaceOfAnElementsOwn", "<d><S xml:space='default'><Parameter/></S></d>"},
        OtherDocument{"WhiteSpaceOfAnEmptyElementsOwn", "<d><x xml:space='default'/></d>"}),
    NameOf<OtherDocument>);

using OutlineMarkup = OutlineScene;

// Not every engine loads them.
TEST_F(OutlineMarkup, OfADocumentTypeIsLeftToTheEngine)
{
    for (const char* type : {"<!DOCTYPE d>", "<!DOCTYPE d []>", "<!DOCTYPE d [<!ENTITY e 'S'>]>",
                             "<!DOCTYPE d [<!ATTLIST Subdevice SubdevName CDATA 'x'>]>",
                             "<!DOCTYPE d SYSTEM 'd.dtd'>", "<!-- --><!DOCTYPE d [<!-- > -->]>"})
    {
        EXPECT_EQ(ByTheBytes(std::string(type) + With("")), std::nullopt) << type;
    }
}

TEST_F(OutlineMarkup, ThatAnEntityBringsInIsNotMissed)
{
    const std::string bytes = "<!DOCTYPE d [<!ENTITY e '<Load><e>S</e></Load>'>]><d>&e;</d>";

    EXPECT_EQ(ByTheBytes(bytes), std::nullopt);
}

TEST_F(OutlineMarkup, BehindTheRootIsReadByNobody)
{
    for (const char* rest : {"<d/>", "<S><Parameter/></S>", "<d><Load><e>S</e></Load></d>", "</d>"})
    {
        const std::string bytes = With("") + rest;

        EXPECT_EQ(ByTheEngine(bytes), std::nullopt) << rest;
        EXPECT_EQ(ByTheBytes(bytes), std::nullopt) << rest;
    }
}

} // namespace
} // namespace norvepa::test

#include "handover/OutlineScene.h"

namespace norvepa::test
{
namespace
{

constexpr std::string_view OneParameter = "<Parameter><Name>n</Name><Value>v</Value></Parameter>";

std::string Root(std::string_view content)
{
    return "<d>" + std::string(content) + "</d>";
}

std::string Section(std::string_view content, std::string_view word = "S")
{
    const std::string tag(word);
    return "<" + tag + ">" + std::string(content) + "</" + tag + ">";
}

INSTANTIATE_TEST_SUITE_P(
    Parameters, AlikeBothWays,
    testing::Values(
        PlainDocument{"OfAllTypes",
                      Root(Section("<Parameter><Name>a</Name><Value>1</Value></Parameter>"
                                   "<ParameterInt><Name>b</Name><Value>2</Value></ParameterInt>"
                                   "<ParameterBool><Name>c</Name><Value>true</Value></ParameterBool>")),
                      "load S{2 'a'='1', 1 'b'='2', 0 'c'='true'}"},
        PlainDocument{"ValueAheadOfName",
                      Root(Section("<Parameter><Value>v</Value><Name>n</Name></Parameter>")),
                      "load S{2 'n'='v'}"},
        PlainDocument{"WithoutName", Root(Section("<Parameter><Value>v</Value></Parameter>")),
                      "load S{2 -='v'}"},
        PlainDocument{"WithoutValue", Root(Section("<Parameter><Name>n</Name></Parameter>")),
                      "load S{2 'n'=-}"},
        PlainDocument{"WithNothing", Root(Section("<ParameterInt/><ParameterBool></ParameterBool>")),
                      "load S{1 -=-, 0 -=-}"},
        PlainDocument{"WithTextOnly", Root(Section("<Parameter>text</Parameter>")), "load S{2 -=-}"},
        PlainDocument{"EmptyNameAndValue", Root(Section("<Parameter><Name/><Value></Value></Parameter>")),
                      "load S{2 ''=''}"},
        PlainDocument{"SeveralNamesAndValues",
                      Root(Section("<Parameter><Name>a</Name><Value>1</Value><Name>b</Name><Name>c</Name>"
                                   "<Value>2</Value></Parameter>")),
                      "load S{2 'c'='2'}"},
        PlainDocument{"LastNameEmpty", Root(Section("<Parameter><Name>a</Name><Name/></Parameter>")),
                      "load S{2 ''=-}"},
        PlainDocument{"WordsInOtherCases",
                      Root(Section("<parameter/><PARAMETER/><parameterInt/><ParameterBOOL/><Parameters/>"
                                   "<ParameterIn/><Parameter><name>a</name><VALUE>b</VALUE></Parameter>")),
                      "load S{2 -=-}"},
        PlainDocument{"WordsInAnotherNamespace",
                      "<d><S><Parameter xmlns='urn:q'><Name>n</Name></Parameter></S></d>", "load S{2 'n'=-}"},
        PlainDocument{"DirectlyBelowTheEmptyRoot", "<Parameter/>", "load"},
        PlainDocument{"AsTheRoot", "<Parameter><Name>n</Name><Value>v</Value></Parameter>", "load"},
        PlainDocument{"NameElsewhere",
                      "<d><Name>a</Name><S><Name>b</Name><Value>c</Value>" + std::string(OneParameter) +
                          "</S></d>",
                      "load S{2 'n'='v'}"},
        PlainDocument{
            "UnknownChild",
            Root(Section("<Parameter><Name>n</Name><Unit>mm</Unit><Unit/><Value>v</Value></Parameter>")),
            "load S{2 'n'='v'}"},
        PlainDocument{
            "UnknownChildWithNameAndValue",
            Root(Section("<Parameter><Name>n</Name><U><Name>a</Name><Value>b</Value></U></Parameter>")),
            "load S{2 'n'=-}"},
        PlainDocument{"UnknownChildWithParameters",
                      Root(Section("<Parameter><Name>n</Name><U>" + std::string(OneParameter) +
                                   "</U><Value>w</Value></Parameter><Parameter><Name>m</Name></Parameter>")),
                      "load S{2 'n'='w', 2 'm'=-} U{2 'n'='v'}"}),
    NameOf<PlainDocument>);

INSTANTIATE_TEST_SUITE_P(
    Sections, AlikeBothWays,
    testing::Values(
        PlainDocument{"Several",
                      Root(Section(OneParameter) + Section(OneParameter, "T") + Section(OneParameter)),
                      "load S{2 'n'='v'} T{2 'n'='v'} S{2 'n'='v'}"},
        PlainDocument{"WithoutParameters", "<d><S/><T></T><U>text</U></d>", "load"},
        PlainDocument{"InUnusualLetters", Root(Section(OneParameter, "s_1-2.X")), "load s_1-2.X{2 'n'='v'}"},
        PlainDocument{"ForeignWithoutParameters",
                      "<Gerät><Größe a='1'/>" + Section(OneParameter) + "</Gerät>", "load S{2 'n'='v'}"},
        PlainDocument{"OuterParameterBehindInnerSection",
                      Root(Section(Section(OneParameter, "T") + "<ParameterInt/>")),
                      "load S{1 -=-} T{2 'n'='v'}"},
        PlainDocument{"OuterParametersAroundInnerSections",
                      Root(Section("<ParameterInt/>" + Section(Section(OneParameter, "U"), "T") +
                                   "<ParameterBool/>" + Section(OneParameter, "V") + "<Parameter/>")),
                      "load S{1 -=-, 0 -=-, 2 -=-} U{2 'n'='v'} V{2 'n'='v'}"},
        PlainDocument{"ThreeDeepFromTheInside",
                      Root(Section(Section(Section("<Parameter/>", "U") + "<ParameterBool/>", "T") +
                                   "<ParameterInt/>")),
                      "load S{1 -=-} T{0 -=-} U{2 -=-}"},
        PlainDocument{"NamedNameOrValue",
                      Root(Section(OneParameter, "Name") + Section(OneParameter, "Value")),
                      "load Name{2 'n'='v'} Value{2 'n'='v'}"},
        PlainDocument{"SubdeviceInItsPlace",
                      Root("<Bindings>" + std::string(OneParameter) +
                           "<Subdevices><Subdevice SubdevName='x'>" + std::string(OneParameter) +
                           "</Subdevice><Subdevice SubdevName='y'>" + std::string(OneParameter) +
                           "</Subdevice></Subdevices></Bindings>"),
                      "load Bindings{2 'n'='v'} Subdevice@'x'{2 'n'='v'} Subdevice@'y'{2 'n'='v'}"},
        PlainDocument{"SubdeviceInSubdevice",
                      Root("<Subdevice SubdevName='x'><Subdevice SubdevName='y'>" +
                           std::string(OneParameter) + "</Subdevice>" + std::string(OneParameter) +
                           "</Subdevice>"),
                      "load Subdevice@'x'{2 'n'='v'} Subdevice@'y'{2 'n'='v'}"},
        PlainDocument{"SubdeviceByWordOnly",
                      "<d><subdevice SubdevName='x'><Parameter/></subdevice>"
                      "<Subdevices SubdevName='x'><Parameter/></Subdevices></d>",
                      "load subdevice{2 -=-} Subdevices{2 -=-}"},
        PlainDocument{"SubdeviceAsTheRoot", "<Subdevice SubdevName='x'><S><Parameter/></S></Subdevice>",
                      "load S{2 -=-}"}),
    NameOf<PlainDocument>);

INSTANTIATE_TEST_SUITE_P(
    Loads, AlikeBothWays,
    testing::Values(
        PlainDocument{"InOrder",
                      "<d><Load><section>B</section><section>A</section><section>B</section></Load></d>",
                      "load 'B' 'A' 'B'"},
        PlainDocument{"Several",
                      "<d><Load><e>A</e></Load><S><Load><e>B</e></Load></S><Load><e>C</e></Load></d>",
                      "load 'A' 'B' 'C'"},
        PlainDocument{
            "EntriesOfAnyName",
            "<d><Load><section>A</section><Name>B</Name><Value>C</Value><Größe>D</Größe></Load></d>",
            "load 'A' 'B' 'C' 'D'"},
        PlainDocument{"EmptyEntries", "<d><Load><a/><b></b><c d='e'/></Load></d>", "load '' '' ''"},
        PlainDocument{"WithTextOnly", "<d><Load>DeviceHeader</Load></d>", "load"},
        PlainDocument{"WithTextBetween", "<d><Load>x<a>A</a>y<b>B</b>z</Load></d>", "load 'A' 'B'"},
        PlainDocument{"Empty", "<d><Load/><Load></Load></d>", "load"},
        PlainDocument{"AsTheRoot", "<Load><section>A</section></Load>", "load"},
        PlainDocument{"BelowLoadAsTheRoot", "<Load><Load><section>A</section></Load></Load>", "load 'A'"},
        PlainDocument{"InOtherCases",
                      "<d><load><e>A</e></load><LOAD><e>B</e></LOAD><Loads><e>C</e></Loads></d>", "load"},
        PlainDocument{"InAParameter", Root(Section("<Parameter><Load><e>A</e></Load></Parameter>")),
                      "load 'A' S{2 -=-}"},
        PlainDocument{"InAnEmptyDocument", "<d/>", "load"}),
    NameOf<PlainDocument>);

INSTANTIATE_TEST_SUITE_P(
    Shapes, LeftToTheEngine,
    testing::Values(
        OtherDocument{"ParameterInAParameter", Root(Section("<Parameter><Name>a</Name>" +
                                                            std::string(OneParameter) + "</Parameter>"))},
        OtherDocument{"ParameterDirectlyBelowTheRoot", Root(OneParameter)},
        OtherDocument{"EmptyParameterDirectlyBelowTheRoot", Root("<ParameterInt/>")},
        OtherDocument{"ForeignSectionWithParameters", Root(Section(OneParameter, "Größe"))},
        OtherDocument{"LoadInLoad", "<d><Load><Load><e>A</e></Load></Load></d>"},
        OtherDocument{"EmptyLoadInLoad", "<d><Load><Load/></Load></d>"},
        OtherDocument{"EntryWithElements", "<d><Load><e>A<f>B</f></e></Load></d>"},
        OtherDocument{"ParameterInLoad", "<d><Load>" + std::string(OneParameter) + "</Load></d>"},
        OtherDocument{"NameWithElements", Root(Section("<Parameter><Name><b>n</b></Name></Parameter>"))},
        OtherDocument{"ValueWithElements", Root(Section("<Parameter><Value>a<b/>c</Value></Parameter>"))}),
    NameOf<OtherDocument>);

using OutlineShape = OutlineScene;

TEST_F(OutlineShape, OfWordsWithAPrefixIsTheEnginesOnly)
{
    const std::string bytes =
        "<d xmlns:p='urn:p'><p:S><Parameter/></p:S>"
        "<p:Subdevice SubdevName='x'><Parameter/></p:Subdevice>"
        "<S><p:Parameter><Name>a</Name></p:Parameter>"
        "<Parameter><p:Name>b</p:Name><Value>v</Value><p:Value>c</p:Value></Parameter></S>"
        "<p:Load><e>A</e></p:Load><Load><p:Load>B</p:Load></Load></d>";

    EXPECT_EQ(ByTheEngine(bytes), "load 'B' p:S{2 -=-} p:Subdevice{2 -=-} S{2 -='v'}");
    EXPECT_EQ(ByTheBytes(bytes), std::nullopt);
}

// Some engines load them, and leave the prefix out.
TEST_F(OutlineShape, OfPrefixesThatAreNotDeclaredIsLeftToTheEngine)
{
    for (const char* content : {"<S><q:Parameter/></S>", "<S><Parameter><q:Name>a</q:Name></Parameter></S>",
                                "<q:Load><e>S</e></q:Load>", "<q:S><Parameter/></q:S>",
                                "<Subdevice q:SubdevName='x'><Parameter/></Subdevice>"})
    {
        EXPECT_EQ(ByTheBytes(Root(content)), std::nullopt) << content;
    }
}

} // namespace
} // namespace norvepa::test

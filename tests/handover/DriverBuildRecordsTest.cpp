#include "handover/BuildScene.h"
#include "support/TemporaryFolder.h"

#include <array>
#include <cwchar>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class DriverBuildRecordsTest : public BuildScene
{
};

// Sections, each with a parameter that is called like it.
XmlContent Sections(Texts words)
{
    XmlContent sections;
    for (const std::wstring_view word : words)
    {
        sections.Element(word, XmlContent().Text(word, L""));
    }
    return sections;
}

TEST_F(DriverBuildRecordsTest, TellThreeTypes)
{
    const XmlContent settings =
        XmlContent().Text(L"station_name", L"Presse 3").Int(L"baudrate", L"187500").Bool(L"Active", L"true");

    EXPECT_THAT(Build(XmlContent().Element(L"LocalSettings", settings).Load({L"LocalSettings"})),
                ElementsAre(TextRecord(L"station_name", L"Presse 3"), IntRecord(L"baudrate", 187500),
                            BoolRecord(L"Active", 1)));
}

TEST_F(DriverBuildRecordsTest, AreInTheOrderOfTheLoad)
{
    const XmlContent sections = Sections({L"A", L"B", L"C"});

    EXPECT_THAT(Build(XmlContent(sections).Load({L"C", L"A"})),
                ElementsAre(TextRecord(L"C", L""), TextRecord(L"A", L"")));
}

TEST_F(DriverBuildRecordsTest, AreThereAsOftenAsTheLoadNamesTheirSection)
{
    const XmlContent sections = Sections({L"A", L"B"});

    EXPECT_THAT(Build(XmlContent(sections).Load({L"A", L"B", L"A"})),
                ElementsAre(TextRecord(L"A", L""), TextRecord(L"B", L""), TextRecord(L"A", L"")));
}

TEST_F(DriverBuildRecordsTest, AreThoseOfEverySectionOfAName)
{
    const XmlContent content = XmlContent()
                                   .Element(L"A", XmlContent().Int(L"first", L"1"))
                                   .Element(L"B", XmlContent().Int(L"other", L"2"))
                                   .Element(L"A", XmlContent().Int(L"second", L"3"))
                                   .Load({L"A"});

    EXPECT_THAT(Build(content), ElementsAre(IntRecord(L"first", 1), IntRecord(L"second", 3)));
}

TEST_F(DriverBuildRecordsTest, AreNamedByEveryLoadWhereverItStands)
{
    const XmlContent content = XmlContent()
                                   .Load({L"B"})
                                   .Element(L"A", XmlContent().Int(L"a", L"1").Load({L"A"}))
                                   .Element(L"B", XmlContent().Int(L"b", L"2"))
                                   .Load({L"B"});

    EXPECT_THAT(Build(content), ElementsAre(IntRecord(L"b", 2), IntRecord(L"a", 1), IntRecord(L"b", 2)));
}

TEST_F(DriverBuildRecordsTest, AreNamedByTheTextOfAnEntryWhateverItIsCalled)
{
    const XmlContent load = XmlContent().Element(L"x", L"A").Characters(L"B").Element(L"Name", L"C");
    const XmlContent sections = Sections({L"A", L"B", L"C", L"x"});

    EXPECT_THAT(Build(XmlContent(sections).Element(L"Load", load)),
                ElementsAre(TextRecord(L"A", L""), TextRecord(L"C", L"")));
}

TEST_F(DriverBuildRecordsTest, OfSectionsWithoutParametersAreNone)
{
    const XmlContent content = XmlContent().Element(L"A", XmlContent()).EmptyTag(L"B");

    EXPECT_THAT(Build(XmlContent(content).Load({L"A", L"B", L"gone", L""})), IsEmpty());
    EXPECT_EQ(ResultOf(XmlContent(content).Load({L"A"})), PGSP_OK);
}

// Blanks count as well.
TEST_F(DriverBuildRecordsTest, AreThoseOfTheExactWordOnly)
{
    const XmlContent sections = Sections({L"localSettings", L"LocalSetting", L"LocalSettingsX"});

    EXPECT_THAT(Build(XmlContent(sections).Load({L"LocalSettings"})), IsEmpty());
    EXPECT_THAT(Build(Sections({L"A"}).Load({L"a", L"A ", L" A", L"AA"})), IsEmpty());
}

TEST_F(DriverBuildRecordsTest, AreThoseOfASectionsOwnChildren)
{
    const XmlContent inner = XmlContent().Int(L"inner", L"1");
    const XmlContent content =
        XmlContent().Element(L"A", XmlContent().Element(L"B", inner).Int(L"outer", L"2"));

    EXPECT_THAT(Build(XmlContent(content).Load({L"A"})), ElementsAre(IntRecord(L"outer", 2)));
    EXPECT_THAT(Build(XmlContent(content).Load({L"B"})), ElementsAre(IntRecord(L"inner", 1)));
}

TEST_F(DriverBuildRecordsTest, AreOfThreeElementsOnly)
{
    const XmlContent section = XmlContent()
                                   .Entry(L"parameter", L"a", L"1")
                                   .Entry(L"ParameterINT", L"b", L"2")
                                   .Entry(L"Parameterbool", L"c", L"true")
                                   .Entry(L"ParameterString", L"d", L"4")
                                   .Entry(L"ParameterAssemblyLink", L"e", L"5")
                                   .Comment(L" nothing ")
                                   .Text(L"f", L"6");

    EXPECT_THAT(Build(XmlContent().Element(L"A", section).Load({L"A"})), ElementsAre(TextRecord(L"f", L"6")));
}

TEST_F(DriverBuildRecordsTest, AreOfNamesAndValuesInExactCase)
{
    const XmlContent entry = XmlContent()
                                 .Element(L"Name", L"n")
                                 .Element(L"Value", L"v")
                                 .Element(L"name", L"x")
                                 .Element(L"VALUE", L"y")
                                 .Element(L"Type", L"z");

    EXPECT_THAT(Build(XmlContent().Element(L"A", XmlContent().Element(L"Parameter", entry)).Load({L"A"})),
                ElementsAre(TextRecord(L"n", L"v")));
}

TEST_F(DriverBuildRecordsTest, TakeTheLastOfSeveralNamesAndValuesInAnyOrder)
{
    const XmlContent entry = XmlContent()
                                 .Element(L"Value", L"first")
                                 .Element(L"Value", L"last")
                                 .Element(L"Name", L"a")
                                 .Element(L"Name", L"b");

    EXPECT_THAT(Build(XmlContent().Element(L"A", XmlContent().Element(L"Parameter", entry)).Load({L"A"})),
                ElementsAre(TextRecord(L"b", L"last")));
}

TEST_F(DriverBuildRecordsTest, OfBusparameterAreThoseOfTwoSectionsAsTheyStand)
{
    const XmlContent content =
        Sections({L"NetworkSettings", L"Bindings", L"LocalSettings", L"NetworkSettings"});

    EXPECT_THAT(Build(XmlContent(content).Load({L"Busparameter"})),
                ElementsAre(TextRecord(L"NetworkSettings", L""), TextRecord(L"LocalSettings", L""),
                            TextRecord(L"NetworkSettings", L"")));
}

TEST_F(DriverBuildRecordsTest, OfBusparameterAreNotThoseOfAnElementCalledSo)
{
    EXPECT_THAT(Build(Sections({L"Busparameter"}).Load({L"Busparameter"})), IsEmpty());
}

TEST_F(DriverBuildRecordsTest, OfBusparameterInAnotherCaseAreThoseOfAnElementCalledSo)
{
    EXPECT_THAT(Build(Sections({L"LocalSettings", L"busparameter"}).Load({L"busparameter"})),
                ElementsAre(TextRecord(L"busparameter", L"")));
}

// The word stands for whatever an entry doesn't ask for.
TEST_F(DriverBuildRecordsTest, OfAnElementCalledNoSectionComeWithEveryEntry)
{
    const XmlContent content = Sections({L"A", L"Bindings", L"LocalSettings", L"no_section"});
    const ReceivedRecord always = TextRecord(L"no_section", L"");

    EXPECT_THAT(Build(XmlContent(content).Load({L"Busparameter", L"A", L"Bindings", L"no_section", L"gone"})),
                ElementsAre(TextRecord(L"LocalSettings", L""), always, TextRecord(L"A", L""), always,
                            TextRecord(L"Bindings", L""), always, always, always));
}

struct NumberText
{
    std::wstring_view text;
    std::int32_t number;
};

constexpr std::array NumberTexts{NumberText{L"0", 0},
                                 NumberText{L"-5", -5},
                                 NumberText{L"+3", 3},
                                 NumberText{L"007", 7},
                                 NumberText{L" 7", 7},
                                 NumberText{L"12abc", 12},
                                 NumberText{L"3.9", 3},
                                 NumberText{L"0x10", 0},
                                 NumberText{L"abc", 0},
                                 NumberText{L"- 5", 0},
                                 NumberText{L"", 0},
                                 NumberText{L"2147483647", 2147483647},
                                 NumberText{L"-2147483648", -2147483647 - 1}};

TEST_F(DriverBuildRecordsTest, TellTheNumberThatATextBeginsWith)
{
    for (const auto& [text, number] : NumberTexts)
    {
        EXPECT_THAT(Build(XmlContent().Element(L"A", XmlContent().Int(L"n", text)).Load({L"A"})),
                    ElementsAre(IntRecord(L"n", number)))
            << ToUtf8(text);
    }
}

// Run-time libraries differ in it.
TEST_F(DriverBuildRecordsTest, TellANumberOfMoreBitsAsTheRunTimeDoes)
{
    for (const wchar_t* const text : {L"2147483648", L"-2147483649", L"4294967295", L"4294967296",
                                      L"9223372036854775808", L"99999999999999999999999"})
    {
        EXPECT_THAT(Build(XmlContent().Element(L"A", XmlContent().Int(L"n", text)).Load({L"A"})),
                    ElementsAre(IntRecord(L"n", _wtoi(text))))
            << ToUtf8(text);
    }
}

TEST_F(DriverBuildRecordsTest, TellABooleanByExactlyOneWord)
{
    for (const wchar_t* const text : {L"True", L"TRUE", L"1", L"", L"false", L"true.", L" true", L"tru"})
    {
        EXPECT_THAT(Build(XmlContent().Element(L"A", XmlContent().Bool(L"b", text)).Load({L"A"})),
                    ElementsAre(BoolRecord(L"b", 0)))
            << ToUtf8(text);
    }
}

TEST_F(DriverBuildRecordsTest, GoBeyondAFirstThousandBytes)
{
    ReceivedRecords expected;
    XmlContent section;
    for (int number = 0; number < 500; ++number)
    {
        const std::wstring name = L"Parameter " + std::to_wstring(number);
        expected.push_back(TextRecord(name, std::wstring(static_cast<std::size_t>(number) % 50, L'x')));
        section.Text(name, std::get<std::wstring>(expected.back().value));
    }

    EXPECT_EQ(Build(XmlContent().Element(L"A", section).Load({L"A"})), expected);
}

TEST_F(DriverBuildRecordsTest, HoldCharactersBeyondAscii)
{
    const XmlContent section = XmlContent().Text(L"Gr\u00F6\u00DFe", L"150 \u03A9 <&> \U0001F3ED");

    EXPECT_THAT(Build(XmlContent().Element(L"A", section).Load({L"A"})),
                ElementsAre(TextRecord(L"Gr\u00F6\u00DFe", L"150 \u03A9 <&> \U0001F3ED")));
}

} // namespace
} // namespace norvepa::test

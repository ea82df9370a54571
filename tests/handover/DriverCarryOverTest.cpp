#include "handover/BuildScene.h"

#include <algorithm>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

// What a parameter leaves out is what the one ahead of it had.
class DriverCarryOver : public BuildScene
{
};

TEST_F(DriverCarryOver, BeginsWithNothing)
{
    const XmlContent section = XmlContent()
                                   .Element(L"Parameter", XmlContent())
                                   .EmptyTag(L"ParameterInt")
                                   .Element(L"ParameterBool", OnlyName(L"b"));

    EXPECT_THAT(Build(XmlContent().Element(L"A", section).Load({L"A"})),
                ElementsAre(TextRecord(L"", L""), IntRecord(L"", 0), BoolRecord(L"b", 0)));
}

TEST_F(DriverCarryOver, GoesFromParameterToParameter)
{
    const XmlContent section = XmlContent()
                                   .Text(L"n", L"17")
                                   .Element(L"ParameterInt", OnlyValue(L"18"))
                                   .Element(L"ParameterInt", OnlyName(L"m"))
                                   .EmptyTag(L"Parameter");

    EXPECT_THAT(Build(XmlContent().Element(L"A", section).Load({L"A"})),
                ElementsAre(TextRecord(L"n", L"17"), IntRecord(L"n", 18), IntRecord(L"m", 18),
                            TextRecord(L"m", L"18")));
}

TEST_F(DriverCarryOver, IsEndedByAnEmptyText)
{
    const XmlContent section =
        XmlContent().Text(L"n", L"v").Text(L"", L"w").Element(L"Parameter", XmlContent().EmptyTag(L"Value"));

    EXPECT_THAT(Build(XmlContent().Element(L"A", section).Load({L"A"})),
                ElementsAre(TextRecord(L"n", L"v"), TextRecord(L"", L"w"), TextRecord(L"", L"")));
}

TEST_F(DriverCarryOver, GoesFromSectionToSection)
{
    const XmlContent content = XmlContent()
                                   .Element(L"A", XmlContent().Text(L"n", L"1"))
                                   .Element(L"B", XmlContent().Text(L"other", L"2"))
                                   .Element(L"A", XmlContent().Element(L"ParameterInt", OnlyName(L"m")))
                                   .Load({L"A"});

    EXPECT_THAT(Build(content), ElementsAre(TextRecord(L"n", L"1"), IntRecord(L"m", 1)));
}

TEST_F(DriverCarryOver, GoesFromEntryToEntry)
{
    const XmlContent content = XmlContent()
                                   .Element(L"A", XmlContent().Element(L"Parameter", OnlyName(L"a")))
                                   .Element(L"B", XmlContent().Element(L"Parameter", OnlyValue(L"b")));

    EXPECT_THAT(Build(XmlContent(content).Load({L"A", L"B", L"A"})),
                ElementsAre(TextRecord(L"a", L""), TextRecord(L"a", L"b"), TextRecord(L"a", L"b")));
    EXPECT_THAT(Build(XmlContent(content).Load({L"B", L"A"})),
                ElementsAre(TextRecord(L"", L"b"), TextRecord(L"a", L"b")));
}

TEST_F(DriverCarryOver, KeepsWhatARecordHasCut)
{
    const std::wstring longest(130, L'x');
    const XmlContent section =
        XmlContent().Int(longest, longest).Element(L"Parameter", XmlContent()).Text(L"n", L"7");

    EXPECT_THAT(Build(XmlContent().Element(L"A", section).Load({L"A"})),
                ElementsAre(IntRecord(L"xx", 0), TextRecord(L"xx", L"xx"), TextRecord(L"n", L"7")));
}

// Of the section Bindings with what it holds, and of the elements Subdevice wherever they are.
class DriverSubdevices : public BuildScene
{
};

TEST_F(DriverSubdevices, AreLoadedWithTheBindings)
{
    const XmlContent subdevices = XmlContent()
                                      .Subdevice(L"Achse", XmlContent().Int(L"Adresse", L"5"))
                                      .Subdevice(L"Band", XmlContent().Bool(L"Aktiv", L"true"));
    const XmlContent bindings = XmlContent()
                                    .Text(L"Adapter", L"afk110x")
                                    .Element(L"Subdevices", subdevices)
                                    .Text(L"Service", L"SCP_MPI");

    EXPECT_THAT(Build(XmlContent().Element(L"Bindings", bindings).Load({L"Bindings"})),
                ElementsAre(TextRecord(L"Adapter", L"afk110x"), TextRecord(L"Service", L"SCP_MPI"),
                            IntRecord(L"Achse/Adresse", 5), BoolRecord(L"Band/Aktiv", 1)));
}

TEST_F(DriverSubdevices, AreLoadedWhereTheyStand)
{
    const XmlContent content =
        XmlContent()
            .Element(L"LocalSettings", XmlContent().Subdevice(L"X", XmlContent().Int(L"a", L"1")))
            .Element(L"Bindings", XmlContent().Int(L"b", L"2"))
            .Subdevice(L"Y", XmlContent().Int(L"c", L"3"));

    EXPECT_THAT(Build(XmlContent(content).Load({L"Bindings"})),
                ElementsAre(IntRecord(L"X/a", 1), IntRecord(L"b", 2), IntRecord(L"Y/c", 3)));
}

TEST_F(DriverSubdevices, CanBeNamedThemselves)
{
    const XmlContent bindings =
        XmlContent().Int(L"b", L"1").Subdevice(L"Achse", XmlContent().Int(L"a", L"2"));

    EXPECT_THAT(Build(XmlContent().Element(L"Bindings", bindings).Load({L"Subdevice"})),
                ElementsAre(IntRecord(L"Achse/a", 2)));
}

TEST_F(DriverSubdevices, AreNotLoadedWithWhatIsAroundThem)
{
    const XmlContent subdevices = XmlContent().Subdevice(L"Achse", XmlContent().Int(L"a", L"2"));
    const XmlContent content =
        XmlContent().Element(L"Bindings", XmlContent().Element(L"Subdevices", subdevices));

    EXPECT_THAT(Build(XmlContent(content).Load({L"Subdevices", L"bindings", L"subdevice"})),
                testing::IsEmpty());
}

TEST_F(DriverSubdevices, WithoutANameLeaveTheirParametersTheirs)
{
    const XmlContent parameter = XmlContent().Int(L"a", L"1");
    const XmlContent content = XmlContent()
                                   .Element(L"Subdevice", parameter)
                                   .Element(L"Subdevice", {{L"subdevname", L"x"}, {L"Name", L"y"}}, parameter)
                                   .Load({L"Bindings"});

    EXPECT_THAT(Build(content), ElementsAre(IntRecord(L"a", 1), IntRecord(L"a", 1)));
}

TEST_F(DriverSubdevices, WithAnEmptyNameLeaveTheSlash)
{
    const XmlContent content = XmlContent().Subdevice(L"", XmlContent().Int(L"a", L"1")).Load({L"Bindings"});

    EXPECT_THAT(Build(content), ElementsAre(IntRecord(L"/a", 1)));
}

TEST_F(DriverSubdevices, AreFoundAmongOtherAttributes)
{
    const XmlContent content =
        XmlContent()
            .Element(L"Subdevice", {{L"Alias", L"SubdevName"}, {L"SubdevName", L"<\u00C4&'\">"}},
                     XmlContent().Int(L"a", L"1"))
            .Load({L"Bindings"});

    EXPECT_THAT(Build(content), ElementsAre(IntRecord(L"<\u00C4&'\">/a", 1)));
}

TEST_F(DriverSubdevices, AloneAreTakenByTheirAttribute)
{
    const XmlContent content =
        XmlContent()
            .Element(L"Bindings", {{L"SubdevName", L"x"}}, XmlContent().Int(L"a", L"1"))
            .Element(L"SUBDEVICE", {{L"SubdevName", L"y"}}, XmlContent().Int(L"b", L"2"))
            .Load({L"Bindings", L"SUBDEVICE"});

    EXPECT_THAT(Build(content), ElementsAre(IntRecord(L"a", 1), IntRecord(L"b", 2)));
}

TEST_F(DriverSubdevices, ExtendTheNameThatIsCarriedOver)
{
    const XmlContent nameless = XmlContent().Element(L"ParameterInt", OnlyValue(L"9"));
    const XmlContent content =
        XmlContent()
            .Subdevice(L"X", XmlContent().Int(L"a", L"1").Raw(nameless.utf8()).Raw(nameless.utf8()))
            .Subdevice(L"Y", nameless)
            .Element(L"Bindings", nameless);

    EXPECT_THAT(Build(XmlContent(content).Load({L"Bindings"})),
                ElementsAre(IntRecord(L"X/a", 1), IntRecord(L"X/X/a", 9), IntRecord(L"X/X/X/a", 9),
                            IntRecord(L"Y/X/X/X/a", 9), IntRecord(L"Y/X/X/X/a", 9)));
}

TEST_F(DriverSubdevices, ExtendTheNameBeyondWhatARecordShows)
{
    const std::string nameless = XmlContent().Element(L"ParameterInt", OnlyValue(L"9")).utf8();
    XmlContent parameters;
    ReceivedRecords expected;
    std::wstring name;
    for (int parameter = 0; parameter < 300; ++parameter)
    {
        parameters.Raw(nameless);
        name.insert(0, L"X/");
        expected.push_back(IntRecord(name.substr(0, std::min<std::size_t>(name.size(), 260) % 128), 9));
    }
    expected.push_back(expected.back());

    EXPECT_EQ(Build(XmlContent()
                        .Subdevice(L"X", parameters)
                        .Element(L"Bindings", XmlContent().Raw(nameless))
                        .Load({L"Bindings"})),
              expected);
}

TEST_F(DriverSubdevices, CutWithTheNameTheyExtend)
{
    const XmlContent content =
        XmlContent()
            .Subdevice(std::wstring(126, L'x'), XmlContent().Int(L"a", L"1").Int(L"bcd", L"2"))
            .Load({L"Bindings"});

    EXPECT_THAT(Build(content), ElementsAre(IntRecord(L"", 1), IntRecord(L"xx", 2)));
}

} // namespace
} // namespace norvepa::test

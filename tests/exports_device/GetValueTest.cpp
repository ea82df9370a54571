#include "GetScene.h"

namespace norvepa::test
{
namespace
{

constexpr const wchar_t* NotFound = L"(result 8513)";

class GetValue : public GetScene
{
};

TEST_F(GetValue, LooksIntoSevenSectionsInTheirOrderWhateverTheFilesIs)
{
    const std::vector<std::wstring> sections{L"DeviceHeader",   L"LocalSettings", L"NetworkSettings",
                                             L"Bindings",       L"Ndi",           L"UserInterface",
                                             L"UserInterface64"};
    for (std::size_t first = 0; first < sections.size(); ++first)
    {
        XmlContent content;
        for (std::size_t i = sections.size(); i-- > first;)
        {
            content.Raw(Section(sections[i], L"Stufe", sections[i]).utf8());
        }
        store.WriteDevice(L"Presse", content);

        EXPECT_EQ(Value(L"Presse", L"Stufe"), sections[first]);
    }
}

TEST_F(GetValue, TakesTheSpareSectionWhenNoneOfTheSevenHoldsTheParameter)
{
    store.WriteDevice(L"Presse", Section(L"SpareSection", L"Stufe", L"spare")
                                     .Raw(Section(L"UserInterface64", L"Takt", L"one of the seven").utf8())
                                     .Raw(Section(L"SpareSection", L"Takt", L"spare").utf8()));

    EXPECT_EQ(Value(L"Presse", L"Stufe"), L"spare");
    EXPECT_EQ(Value(L"Presse", L"Takt"), L"one of the seven");
}

TEST_F(GetValue, LooksIntoNoOtherSection)
{
    store.WriteDevice(L"Presse",
                      Section(L"Parameters", L"Stufe", L"1").Raw(Section(L"Install", L"Stufe", L"2").utf8()));

    EXPECT_EQ(Value(L"Presse", L"Stufe"), NotFound);
}

TEST_F(GetValue, FindsEveryKindOfEntryInAnyCase)
{
    store.WriteDevice(L"Presse",
                      XmlContent().Element(
                          L"LocalSettings",
                          XmlContent().Text(L"Ort", L"Halle 2").Int(L"Stufe", L"3").Bool(L"Aktiv", L"true")));

    EXPECT_EQ(Value(L"Presse", L"ort"), L"Halle 2");
    EXPECT_EQ(Value(L"PRESSE", L"STUFE"), L"3");
    EXPECT_EQ(Value(L"Presse", L"aKTIV"), L"true");
}

TEST_F(GetValue, TakesTheSectionThatTheBoardNames)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"section", L"NetworkSettings"}}));
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Stufe", L"local")
                                     .Raw(Section(L"NetworkSettings", L"Stufe", L"network").utf8()));

    EXPECT_EQ(Value(L"Presse", L"Stufe"), L"network");
}

TEST_F(GetValue, TakesTheSectionThatTheProtocolNamesWhenTheBoardIsSilent)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L"int"}}));
    store.WriteProtocol(Catalogue().Parameter(L"Stufe", {{L"section", L"Bindings"}}));
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Stufe", L"local")
                                     .Raw(Section(L"Bindings", L"Stufe", L"bindings").utf8()));

    EXPECT_EQ(Value(L"Presse", L"Stufe"), L"bindings");
}

TEST_F(GetValue, LooksNowhereElseThanIntoTheSectionThatIsNamed)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"section", L"Bindings"}}));
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Stufe", L"local")
                                     .Raw(Section(L"SpareSection", L"Stufe", L"spare").utf8()));

    EXPECT_EQ(Value(L"Presse", L"Stufe"), NotFound);
}

TEST_F(GetValue, LooksIntoASectionOutsideOfTheSevenWhenItIsNamed)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"section", L"Busparameter"}}));
    store.WriteDevice(
        L"Presse",
        Section(L"LocalSettings", L"Stufe", L"local").Raw(Section(L"Busparameter", L"Stufe", L"bus").utf8()));

    EXPECT_EQ(Value(L"Presse", L"Stufe"), L"bus");
}

TEST_F(GetValue, ReadsTheMappedNameFromTheNamedSection)
{
    store.WriteBoard(Catalogue().Parameter(L"Anzeige", {{L"section", L"LocalSettings"}, {L"map", L"Stufe"}}));
    store.WriteDevice(
        L"Presse",
        XmlContent().Element(L"LocalSettings",
                             XmlContent().Text(L"Anzeige", L"as given").Text(L"Stufe", L"as mapped")));

    EXPECT_EQ(Value(L"Presse", L"Anzeige"), L"as mapped");
}

TEST_F(GetValue, SearchesForTheSectionByTheNameAsGivenThoughItIsMapped)
{
    store.WriteBoard(
        Catalogue().Parameter(L"Anzeige", {{L"map", L"Stufe"}}).Parameter(L"Leuchte", {{L"map", L"Stufe"}}));
    store.WriteDevice(L"Presse",
                      Section(L"LocalSettings", L"Stufe", L"local")
                          .Raw(XmlContent()
                                   .Element(L"NetworkSettings",
                                            XmlContent().Text(L"Anzeige", L"1").Text(L"Stufe", L"network"))
                                   .utf8())
                          .Raw(Section(L"SpareSection", L"Stufe", L"spare").utf8()));

    EXPECT_EQ(Value(L"Presse", L"Anzeige"), L"network");
    EXPECT_EQ(Value(L"Presse", L"Leuchte"), L"spare");
}

TEST_F(GetValue, TakesAnEmptyMapForNone)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"map", L""}}));
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Stufe", L"3"));

    EXPECT_EQ(Value(L"Presse", L"Stufe"), L"3");
}

TEST_F(GetValue, GivesTheDefaultOfAParameterThatIsNotThere)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"default", L"of the board"}}));
    store.WriteProtocol(Catalogue()
                            .Parameter(L"Stufe", {{L"default", L"of the protocol"}})
                            .Parameter(L"Takt", {{L"default", L"of the protocol"}}));
    store.WriteDevice(L"Presse", {});

    EXPECT_EQ(Value(L"Presse", L"Stufe"), L"of the board");
    EXPECT_EQ(Value(L"Presse", L"Takt"), L"of the protocol");
    EXPECT_EQ(Value(L"Presse", L"Druck"), NotFound);
}

TEST_F(GetValue, GivesTheDefaultOfTheNameAsGivenAndNotOfTheMappedOne)
{
    store.WriteBoard(Catalogue()
                         .Parameter(L"Anzeige", {{L"map", L"Stufe"}, {L"default", L"of the given"}})
                         .Parameter(L"Stufe", {{L"default", L"of the mapped"}}));
    store.WriteDevice(L"Presse", {});

    EXPECT_EQ(Value(L"Presse", L"Anzeige"), L"of the given");
}

TEST_F(GetValue, GivesNoDefaultForAValueThatIsEmpty)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"default", L"5"}}));
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Stufe", L""));

    EXPECT_EQ(Value(L"Presse", L"Stufe"), L"");
}

TEST_F(GetValue, FindsABoardWhoseIdentityBeginsWithAStar)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"default", L"5"}}));
    store.WriteDevice(L"Presse", {}, L"*AFK110");

    EXPECT_EQ(Value(L"Presse", L"Stufe"), L"5");
    EXPECT_EQ(Value(L"Presse", L"DeviceID"), L"*AFK110");
}

TEST_F(GetValue, AsksForTheParameterNamedDefaultWithoutAName)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"default", L"5"}}));
    store.WriteDevice(L"Presse", Section(L"Bindings", L"default", L"a value like any other"));
    store.WriteDevice(L"Band", Section(L"Bindings", L"(default)", L"that of log names"));

    EXPECT_EQ(Value(L"Presse", nullptr), L"a value like any other");
    EXPECT_EQ(Value(L"Presse", L""), L"a value like any other");
    EXPECT_EQ(Value(L"Band", nullptr), NotFound);
    EXPECT_EQ(Value(L"Band", L""), NotFound);
}

TEST_F(GetValue, ReadsTwoWordsAsAttributesInAnyCase)
{
    store.WriteDevice(
        L"Presse",
        XmlContent().Element(L"DeviceHeader", XmlContent().Text(L"DeviceID", L"1").Text(L"CP_TYPE", L"2")));

    EXPECT_EQ(Value(L"Presse", L"DeviceID"), L"AFK110");
    EXPECT_EQ(Value(L"Presse", L"deviceid"), L"AFK110");
    EXPECT_EQ(Value(L"Presse", L"CP_TYPE"), L"MPI");
    EXPECT_EQ(Value(L"Presse", L"cp_type"), L"MPI");
}

TEST_F(GetValue, ReadsNoOtherAttribute)
{
    WriteBytes(roots.logDevice(L"Presse"),
               XmlFile(L"LogDevice", {{L"Name", L"the attribute"}, {L"Alias", L"the attribute"}},
                       Section(L"LocalSettings", L"Name", L"the parameter")));

    EXPECT_EQ(Value(L"Presse", L"Name"), L"the parameter");
    EXPECT_EQ(Value(L"Presse", L"Alias"), NotFound);
}

TEST_F(GetValue, GivesTheDefaultOfAnAttributeThatIsNotThere)
{
    store.WriteBoard(Catalogue().Parameter(L"CP_TYPE", {{L"default", L"L2"}}));
    WriteBytes(roots.logDevice(L"Presse"),
               XmlFile(L"LogDevice", {{L"DeviceID", OurBoard}}, Section(L"LocalSettings", L"CP_TYPE", L"1")));
    WriteBytes(roots.logDevice(L"Band"), XmlFile(L"LogDevice", {}, {}));

    EXPECT_EQ(Value(L"Presse", L"CP_TYPE"), L"L2");
    EXPECT_EQ(Value(L"Band", L"CP_TYPE"), NotFound);
    EXPECT_EQ(Value(L"Band", L"DeviceID"), NotFound);
}

// Without the catalogue nothing is known of a parameter, and its default is a success without a text.
TEST_F(GetValue, GivesAnEmptyDefaultWithoutTheProgramFolder)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"section", L"Bindings"}, {L"default", L"5"}}));
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Stufe", L"local"));
    store.TakeProgramFolderAway();

    EXPECT_EQ(Value(L"Presse", L"Stufe"), L"local");
    EXPECT_EQ(Value(L"Presse", L"Druck"), L"");
}

TEST_F(GetValue, SeesAChangedFileAtTheNextCall)
{
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Stufe", L"1"));
    EXPECT_EQ(Value(L"Presse", L"Stufe"), L"1");

    store.WriteDevice(L"Presse", Section(L"NetworkSettings", L"Stufe", L"2"));
    EXPECT_EQ(Value(L"Presse", L"Stufe"), L"2");
}

TEST_F(GetValue, ReadsTheSampleStore)
{
    roots.FillWithSampleStore();

    EXPECT_EQ(Value(L"Kesselhaus", L"Unit"), L"1");
    EXPECT_EQ(Value(L"Kesselhaus", L"bus_termination"), L"120 \u03A9");
    EXPECT_EQ(Value(L"Presse#3", L"DeviceID"), L"AFK110");
}

} // namespace
} // namespace norvepa::test

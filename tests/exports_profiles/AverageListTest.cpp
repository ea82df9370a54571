#include "ListScene.h"
namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class AverageList : public ListScene
{
protected:
    [[nodiscard]] Strings Values(const std::wstring& parameter) const { return ValuesOf(Average, parameter); }

    // What is left of the board's values beside those of the protocol.
    [[nodiscard]] Strings ValuesOfBoth(const Strings& boards, const Strings& protocols) const
    {
        store.WriteBoard(ListOf(L"cable", boards));
        store.WriteProtocol(ListOf(L"cable", protocols));
        return Values(L"cable");
    }
};

TEST_F(AverageList, IsWhatBothListInTheOrderOfTheBoard)
{
    EXPECT_THAT(ValuesOfBoth({L"d", L"b", L"a", L"e"}, {L"a", L"b", L"c", L"d"}),
                ElementsAre(L"d", L"b", L"a"));
}

TEST_F(AverageList, ComparesUpToTheFirstSlashAndShowsTheBoardsWholeText)
{
    EXPECT_THAT(ValuesOfBoth({L"a/of the board", L"b", L"c/1/2", L"d/", L"e/f"},
                             {L"a/of the protocol", L"b/2", L"c/3", L"d", L"f"}),
                ElementsAre(L"a/of the board", L"b", L"c/1/2", L"d/"));
}

TEST_F(AverageList, ComparesAValueThatBeginsWithASlashAsEmpty)
{
    EXPECT_THAT(ValuesOfBoth({L"/of the board", L"a"}, {L"/of the protocol", L"b"}),
                ElementsAre(L"/of the board"));
}

TEST_F(AverageList, ComparesAnEmptyValueAsAnyOther)
{
    EXPECT_THAT(ValuesOfBoth({L"a", L"", L"/of the board"}, {L"", L"b"}), ElementsAre(L"", L"/of the board"));
}

TEST_F(AverageList, DropsAnEmptyValueThatTheProtocolDoesNotList)
{
    EXPECT_THAT(ValuesOfBoth({L"a", L""}, {L"a"}), ElementsAre(L"a"));
}

TEST_F(AverageList, ComparesInExactCase)
{
    EXPECT_THAT(
        ValuesOfBoth({L"Kupfer", L"glasfaser", L"\u00DCber"}, {L"Kupfer", L"Glasfaser", L"\u00FCber"}),
        ElementsAre(L"Kupfer"));
}

TEST_F(AverageList, ComparesWholeValues)
{
    EXPECT_THAT(ValuesOfBoth({L"1500", L"15", L"150/x"}, {L"150", L"15000", L"5"}), ElementsAre(L"150/x"));
}

TEST_F(AverageList, KeepsWhatTheBoardListsTwice)
{
    EXPECT_THAT(ValuesOfBoth({L"a/1", L"b", L"a/2"}, {L"a"}), ElementsAre(L"a/1", L"a/2"));
    EXPECT_THAT(Values(L"CABLE"), ElementsAre(L"a/1", L"a/2"));
}

TEST_F(AverageList, MayBeEmptyWhenBothListSomething)
{
    EXPECT_THAT(ValuesOfBoth({L"a", L"b"}, {L"c", L"d"}), IsEmpty());
}

TEST_F(AverageList, IsTheBoardsWholeListWhereTheProtocolHasNone)
{
    EXPECT_THAT(ValuesOfBoth({L"b/2", L"a"}, {}), ElementsAre(L"b/2", L"a"));
}

TEST_F(AverageList, IsTheBoardsWholeListWithoutAProtocol)
{
    store.WriteBoard(ListOf(L"cable", {L"b/2", L"a"}));

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"b/2", L"a"));
}

TEST_F(AverageList, IsTheProtocolsListAsItStandsWhereTheBoardHasNone)
{
    EXPECT_THAT(ValuesOfBoth({}, {L"b/2", L"a", L"b/2"}), ElementsAre(L"b/2", L"a", L"b/2"));
}

TEST_F(AverageList, IsTheProtocolsListAsItStandsWithoutABoard)
{
    store.WriteProtocol(ListOf(L"cable", {L"b/2", L"a"}));

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"b/2", L"a"));
}

TEST_F(AverageList, IsNotFoundForAParameterThatNeitherLists)
{
    EXPECT_THAT(ValuesOfBoth({}, {}), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
    EXPECT_THAT(Values(L"mode"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_F(AverageList, IsNotFoundWhenNeitherIsThere)
{
    EXPECT_THAT(Values(L"cable"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_F(AverageList, NeedsAProtocolsNameAlsoForABoardsList)
{
    store.WriteBoard(ListOf(L"cable", {L"Kupfer"}));
    WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", {{L"DeviceID", OurBoard}}, {}));

    EXPECT_THAT(Values(L"cable"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_F(AverageList, NeedsTheProtocolsNameAheadOfTheProgramFolder)
{
    WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", {{L"DeviceID", OurBoard}}, {}));
    store.TakeProgramFolderAway();

    EXPECT_THAT(Values(L"cable"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_F(AverageList, NeedsABusProfileAlsoForABoardsList)
{
    store.WriteBoard(ListOf(L"cable", {L"Kupfer"}));
    store.WriteDevice(L"Presse", {}, OurBoard, L"L2");

    EXPECT_THAT(Values(L"cable"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

// The board's own list doesn't depend on the profile.
TEST_F(AverageList, OfABusProfileIsWhatTheBoardListsOfAll)
{
    store.WriteBoard(ListOf(L"baudrate", {L"9600/9,6 kbit/s", L"19200", L"45450"}));
    const XmlContent rates = SubParameter(L"baudrate", {{L"9600"}, {L"45450"}, {L"93750"}});
    store.WriteProtocol(Catalogue().Parameter(L"busparam", {}, Profiles({{L"1/Standard", rates}})), L"L2");
    store.WriteDevice(L"Presse", Spare(XmlContent().Text(L"busparam", L"1")), OurBoard, L"L2");

    EXPECT_THAT(Values(L"baudrate"), ElementsAre(L"9600/9,6 kbit/s", L"45450"));
}

} // namespace
} // namespace norvepa::test

#include "ListScene.h"
namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class MostSpecializedList : public ListScene
{
protected:
    [[nodiscard]] Strings Values(const std::wstring& parameter) const
    {
        return ValuesOf(MostSpecialized, parameter);
    }
};

TEST_F(MostSpecializedList, IsTheBoardsWhichHidesTheProtocolsHoweverFewThereAre)
{
    store.WriteBoard(ListOf(L"cable", {L"Glasfaser"}));
    store.WriteProtocol(ListOf(L"cable", {L"Kupfer", L"Glasfaser", L"Funk"}));

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Glasfaser"));
}

TEST_F(MostSpecializedList, IsTheProtocolsWhereTheBoardListsNone)
{
    store.WriteBoard(
        Catalogue().Parameter(L"cable", {{L"type", L"string"}}).Parameter(L"mode", {}, XmlContent()));
    store.WriteProtocol(ListOf(L"cable", {L"Kupfer", L"Glasfaser"}));

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer", L"Glasfaser"));
}

TEST_F(MostSpecializedList, IsTheProtocolsWhereTheBoardListsAnotherParameter)
{
    store.WriteBoard(ListOf(L"mode", {L"Funk"}));
    store.WriteProtocol(ListOf(L"cable", {L"Kupfer"}));

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer"));
}

TEST_F(MostSpecializedList, IsTheProtocolsWithoutABoard)
{
    store.WriteProtocol(ListOf(L"cable", {L"Kupfer"}));

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer"));
}

TEST_F(MostSpecializedList, HoldsTheValuesAsTheyStandAndInTheirOrder)
{
    store.WriteBoard(ListOf(L"cable", {L"b/zwei", L"A", L"b/zwei", L"\u00DCber <&>", L"a/1/2"}));

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"b/zwei", L"A", L"b/zwei", L"\u00DCber <&>", L"a/1/2"));
    EXPECT_THAT(Values(L"CABLE"), ElementsAre(L"b/zwei", L"A", L"b/zwei", L"\u00DCber <&>", L"a/1/2"));
}

TEST_F(MostSpecializedList, IsEmptyForAParameterThatNeitherKnows)
{
    store.WriteBoard(ListOf(L"cable", {L"Kupfer"}));
    store.WriteProtocol(ListOf(L"cable", {L"Kupfer"}));

    EXPECT_THAT(Values(L"mode"), IsEmpty());
}

TEST_F(MostSpecializedList, IsEmptyWhenNeitherIsThere)
{
    EXPECT_THAT(Values(L"cable"), IsEmpty());
}

TEST_F(MostSpecializedList, OfTheBoardNeedsNoProtocol)
{
    store.WriteBoard(ListOf(L"cable", {L"Kupfer"}));
    WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", {{L"DeviceID", OurBoard}}, {}));

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer"));
}

TEST_F(MostSpecializedList, OfTheProtocolNeedsItsName)
{
    store.WriteBoard(ListOf(L"cable", {L"Kupfer"}));
    WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", {{L"DeviceID", OurBoard}}, {}));

    EXPECT_THAT(Values(L"mode"), ElementsAre(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_F(MostSpecializedList, NeedsTheProgramFolderAheadOfTheProtocolsName)
{
    WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", {{L"DeviceID", OurBoard}}, {}));
    store.TakeProgramFolderAway();

    EXPECT_THAT(Values(L"cable"), ElementsAre(Failed(PGSP_ERR_FOLDER_NOT_FOUND)));
}

TEST_F(MostSpecializedList, OfTheBoardNeedsNoBusProfile)
{
    store.WriteBoard(ListOf(L"baudrate", {L"9600"}));
    store.WriteDevice(L"Presse", {}, OurBoard, L"L2");

    EXPECT_THAT(Values(L"baudrate"), ElementsAre(L"9600"));
}

} // namespace
} // namespace norvepa::test

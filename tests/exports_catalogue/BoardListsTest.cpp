#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class BoardGetValueList : public CatalogueScene
{
protected:
    BoardGetValueList()
    {
        WriteBoard(L"X", XmlContent()
                             .Element(L"Install", XmlContent()
                                                      .Text(L"a", L"install")
                                                      .Text(L"DeviceID", L"of the section")
                                                      .Text(L"CP_TYPE", L"of the section")
                                                      .Text(L"empty", L""))
                             .Element(L"BoardAttributes",
                                      XmlContent().Text(L"a", L"attributes").Text(L"b", L"\u00DCber")));
    }

    // As the caller counts the names.
    [[nodiscard]] std::int32_t Ask(const std::wstring& names, std::uint32_t namesLength,
                                   ListBuffer& values) const
    {
        return library.PGSP_BoardGetValueListBL(L"X", names.c_str(), namesLength, values.data(),
                                                &values.length);
    }
};

TEST_F(BoardGetValueList, HoldsTheValuesInTheOrderOfTheNames)
{
    EXPECT_THAT(BoardValues(L"X", {L"b", L"a", L"empty", L"b"}),
                ElementsAre(L"\u00DCber", L"install", L"", L"\u00DCber"));
}

TEST_F(BoardGetValueList, ReadsTwoNamesAsAttributesOfTheRootAndNeverInASection)
{
    EXPECT_THAT(BoardValues(L"X", {L"DeviceID", L"CP_TYPE"}), ElementsAre(L"AFK110", L"MPI"));
    EXPECT_THAT(BoardValues(L"X", {L"DEVICEID", L"cp_type"}), ElementsAre(L"AFK110", L"MPI"));
}

TEST_F(BoardGetValueList, DoesNotFallBackToASectionWithoutTheAttribute)
{
    WriteBytes(roots.board(L"X"),
               XmlFile(L"Device", {}, XmlContent().Element(L"Install", XmlContent().Text(L"CP_TYPE", L"1"))));
    ListBuffer values(300);

    EXPECT_EQ(BoardValues(L"X", {L"CP_TYPE"}, values), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(BoardGetValueList, ReadsNoOtherAttributeOfTheRoot)
{
    WriteBytes(roots.board(L"X"), XmlFile(L"Device", {{L"Name", L"of the root"}}, {}));
    ListBuffer values(300);

    EXPECT_EQ(BoardValues(L"X", {L"Name"}, values), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(BoardGetValueList, IsNothingAtAllWhenOneNameHasNoValue)
{
    for (const Strings& names :
         {Strings{L"gone", L"a"}, Strings{L"a", L"gone", L"b"}, Strings{L"a", L"gone"}})
    {
        ListBuffer values(300);

        EXPECT_EQ(BoardValues(L"X", names, values), PGSP_ERR_INVALID_PARAMETERS);

        EXPECT_TRUE(values.isUntouched());
        EXPECT_EQ(values.length, 300U);
    }
}

TEST_F(BoardGetValueList, TellsAMissingBoardLikeAMissingName)
{
    ListBuffer values(300);

    EXPECT_EQ(BoardValues(L"gone", {L"DeviceID"}, values), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(BoardValues(L"gone", {L"a"}, values), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(values.isUntouched());
    EXPECT_EQ(values.length, 300U);
}

TEST_F(BoardGetValueList, LooksForUnknownNamesAheadOfTheBuffersLength)
{
    ListBuffer values(0);

    EXPECT_EQ(BoardValues(L"X", {L"a", L"gone"}, values), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(values.length, 0U);
}

TEST_F(BoardGetValueList, HasALastEmptyNameWhenTheEndIsCounted)
{
    const std::wstring names = Packed({L"a", L"b"});
    ListBuffer values(300);

    EXPECT_EQ(Ask(names, 5, values), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_TRUE(values.isUntouched());

    EXPECT_EQ(Ask(names, 4, values), PGSP_OK);
    EXPECT_THAT(values.strings(), ElementsAre(L"install", L"\u00DCber"));
}

TEST_F(BoardGetValueList, HasAValueForTheEmptyNameIfTheBoardHas)
{
    WriteBoard(L"X", XmlContent().Element(L"Install", XmlContent().Text(L"a", L"1").Text(L"", L"nameless")));
    ListBuffer values(300);

    EXPECT_EQ(Ask(Packed({L"a"}), 3, values), PGSP_OK);

    EXPECT_THAT(values.strings(), ElementsAre(L"1", L"nameless"));
}

TEST_F(BoardGetValueList, TakesANameWholeThatBeginsWithinTheLength)
{
    ListBuffer values(300);

    EXPECT_EQ(Ask(Packed({L"empty", L"a"}), 1, values), PGSP_OK);

    EXPECT_THAT(values.strings(), ElementsAre(L""));
}

TEST_F(BoardGetValueList, OfNoNamesIsEmptyAlsoForABoardThatIsNotThere)
{
    EXPECT_THAT(BoardValues(L"X", {}), IsEmpty());
    EXPECT_THAT(BoardValues(L"gone", {}), IsEmpty());
}

class BoardGetValueCollection : public CatalogueScene
{
protected:
    BoardGetValueCollection()
    {
        const XmlContent rates = XmlContent().ValueCollection({L"9600/9,6 kbit/s", L"19200"});
        WriteBoard(L"X",
                   XmlContent()
                       .Element(L"NotSupported", XmlContent().ValueCollection({L"Glasfaser", L"\u03A9 <&>"}))
                       .Element(L"BaseSupported", XmlContent().ValueCollection({L"MPI"}))
                       .Element(L"Constraints", XmlContent().ParamSection(L"baudrate", rates)));
    }
};

TEST_F(BoardGetValueCollection, HoldsTheValuesUnderItsKey)
{
    EXPECT_THAT(BoardCollection(L"NotSupported", L"X"), ElementsAre(L"Glasfaser", L"\u03A9 <&>"));
    EXPECT_THAT(BoardCollection(L"BaseSupported", L"X"), ElementsAre(L"MPI"));
    EXPECT_THAT(BoardCollection(L"Constraints\\baudrate", L"X"), ElementsAre(L"9600/9,6 kbit/s", L"19200"));
    EXPECT_THAT(BoardCollection(L"constraints\\BAUDRATE", L"X"), ElementsAre(L"9600/9,6 kbit/s", L"19200"));
}

TEST_F(BoardGetValueCollection, IsAnEmptyListForAnUnknownKey)
{
    EXPECT_THAT(BoardCollection(L"gone", L"X"), IsEmpty());
    EXPECT_THAT(BoardCollection(L"Constraints\\gone", L"X"), IsEmpty());
    EXPECT_THAT(BoardCollection(L"", L"X"), IsEmpty());
}

TEST_F(BoardGetValueCollection, IsAnEmptyListForABoardThatIsNotThere)
{
    EXPECT_THAT(BoardCollection(L"NotSupported", L"gone"), IsEmpty());
}

TEST_F(BoardGetValueCollection, TellsWhatEndedItWhenTheEndHasNoRoom)
{
    ListBuffer none(0);
    EXPECT_EQ(BoardCollection(L"NotSupported", L"gone", none), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(BoardCollection(L"gone", L"X", none), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(library.PGSP_BoardGetValueCollectionBL(nullptr, L"X", none.data(), &none.length),
              PGSP_ERR_INVALID_PARAMETERS);

    ListBuffer four(4);
    EXPECT_EQ(BoardCollection(L"BaseSupported", L"X", four), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_TRUE(none.isUntouched());
    EXPECT_EQ(none.length, 0U);
    EXPECT_EQ(four.written(), PackedWithoutEnd({L"MPI"}));
    EXPECT_EQ(four.length, 4U);
}

TEST_F(BoardGetValueCollection, OfNotSupportedHasAnExportOfItsOwn)
{
    ListBuffer values(300);

    EXPECT_EQ(library.PGSP_BoardGetNotSupportedBL(L"*X", values.data(), &values.length), PGSP_OK);

    EXPECT_THAT(values.strings(), ElementsAre(L"Glasfaser", L"\u03A9 <&>"));
    EXPECT_EQ(values.length, 10U + 6 + 1);
}

TEST_F(BoardGetValueCollection, OfNotSupportedIsEmptyForABoardWithoutTheList)
{
    WriteBoard(L"Y", {});
    ListBuffer values(300);

    EXPECT_EQ(library.PGSP_BoardGetNotSupportedBL(L"Y", values.data(), &values.length), PGSP_OK);

    EXPECT_EQ(values.written(), Packed({}));
    EXPECT_EQ(values.length, 1U);
}

} // namespace
} // namespace norvepa::test

#include "ListScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

// What a file lists, item by item.
class ListItems : public BothLists
{
protected:
    // Of the parameter "cable", in the one file or the other.
    void WriteBoards(const Strings& values) const { store.WriteBoard(ListOf(L"cable", values)); }
    void WriteProtocols(const Strings& values) const { store.WriteProtocol(ListOf(L"cable", values)); }

    // A list with an item of nothing between two others, in each way to write that.
    [[nodiscard]] static Catalogue WithEmptyItems()
    {
        const XmlContent items = XmlContent()
                                     .Element(L"Value", L"Kupfer")
                                     .EmptyTag(L"Value")
                                     .Element(L"Value", L"")
                                     .Element(L"Value", L"Funk");
        return Catalogue().Parameter(L"cable", {}, XmlContent().Element(L"ValueCollection", items));
    }
};

INSTANTIATE_TEST_SUITE_P(Of, ListItems, testing::Values(MostSpecialized, Average), NameOfList);

TEST_P(ListItems, MayBeEmptyInABoard)
{
    store.WriteBoard(WithEmptyItems());

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer", L"", L"", L"Funk"));
}

TEST_P(ListItems, MayBeEmptyInAProtocol)
{
    store.WriteProtocol(WithEmptyItems());

    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer", L"", L"", L"Funk"));
}

TEST_P(ListItems, OfABoardStayAsTheyWereFirstRead)
{
    WriteBoards({L"Kupfer"});
    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer"));

    WriteBoards({L"Glasfaser", L"Funk"});
    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer"));

    library.NorvepaBl64x_deinit();
    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer"));
}

TEST_P(ListItems, OfAProtocolStayAsTheyWereFirstRead)
{
    WriteProtocols({L"Kupfer"});
    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer"));

    WriteProtocols({L"Glasfaser", L"Funk"});
    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer"));

    library.NorvepaBl64x_deinit();
    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer"));
}

// What has once been read of the file is known to lack them for as long as the file is known.
TEST_P(ListItems, OfABoardThatHadNoneAreThereOnlyWhenTheFileHasBeenForgotten)
{
    WriteBoards({});
    WriteProtocols({L"Funk", L"Kupfer"});
    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Funk", L"Kupfer"));

    WriteBoards({L"Kupfer"});
    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Funk", L"Kupfer"));

    library.NorvepaBl64x_deinit();
    EXPECT_THAT(Values(L"cable"), ElementsAre(L"Kupfer"));
}

} // namespace
} // namespace norvepa::test

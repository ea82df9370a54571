#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

// A file changes while the library is at work: each query sees it in its own time.
class CatalogueChanges : public CatalogueScene
{
protected:
    CatalogueChanges()
    {
        WriteBoardOf(L"old");
        WriteProtocolOf(L"old");
    }

    void WriteBoardOf(const std::wstring& state) const
    {
        const XmlContent section = XmlContent().ParamSection(L"p", XmlContent().Element(L"default", state));
        const XmlContent content = XmlContent()
                                       .Element(L"Install", XmlContent().Text(L"a", state))
                                       .Element(L"NotSupported", XmlContent().ValueCollection({state}))
                                       .Element(L"BaseSupported", XmlContent().ValueCollection({state}))
                                       .Element(L"Constraints", section);
        WriteBytes(roots.board(L"X"), BoardFile(content, state));
    }

    void WriteProtocolOf(const std::wstring& state) const
    {
        const XmlContent given =
            XmlContent().ParamSection(L"3", XmlContent().Text(L"slot", state)).Element(L"Value", state);
        const XmlContent rates = XmlContent().ParamSection(state, {});
        const XmlContent constraints =
            XmlContent()
                .ParamSection(L"busparam",
                              XmlContent().Element(L"default", state).Element(L"ValueCollection", given))
                .ParamSection(L"baudrate", XmlContent().Element(L"ValueCollection", rates));
        WriteBytes(roots.protocol(L"X"),
                   ProtocolFile(XmlContent().Element(L"Constraints", constraints), state));
    }

    // What asks the tree of the protocol, without an answer being kept.
    [[nodiscard]] Strings AskProtocolTree() const
    {
        return {ProtocolPair(L"X", {}, 0), Baudrate(L"X", nullptr, 0),
                ProtocolValue(L"X", {L"busparam", L"3"}, L"slot")};
    }

    const Question profile{L"busparam", L"3"};
};

TEST_F(CatalogueChanges, AreSeenAtOnceByWhoReadsValues)
{
    ASSERT_EQ(BoardValue(L"X", L"a"), L"old");
    ASSERT_EQ(ProtocolValue(L"X", {}, L"CP_TYPE"), L"old");

    WriteBoardOf(L"new");
    WriteProtocolOf(L"new");

    EXPECT_EQ(BoardValue(L"X", L"DeviceID"), L"new");
    EXPECT_EQ(BoardValue(L"X", L"a"), L"new");
    EXPECT_EQ(BoardValueRaw(L"X", L"Install", L"a"), L"new");
    EXPECT_THAT(BoardValues(L"X", {L"DeviceID", L"a"}), ElementsAre(L"new", L"new"));
    EXPECT_EQ(ProtocolValue(L"X", {}, L"CP_TYPE"), L"new");
    EXPECT_EQ(ProtocolValue(L"X", {L"busparam"}, L"default"), L"new");
    EXPECT_EQ(ProtocolValueRaw(L"X", L"Constraints\\busparam\\3", L"slot"), L"new");
}

TEST_F(CatalogueChanges, AreSeenAtOnceByTheEnumerationOfAProfile)
{
    ASSERT_EQ(ProtocolPair(L"X", profile, 0), L"slot=old");

    WriteProtocolOf(L"new");

    EXPECT_EQ(ProtocolPair(L"X", profile, 0), L"slot=new");
}

TEST_F(CatalogueChanges, AreSeenByTheEnumerationOfABoardOnceItHasEnded)
{
    ASSERT_EQ(BoardPair(L"X", 0), L"a=old");
    WriteBoardOf(L"new");
    EXPECT_EQ(BoardPair(L"X", 1), L"CP_TYPE=MPI");
    EXPECT_EQ(BoardPair(L"X", 0), L"a=old");
    EXPECT_EQ(BoardPair(L"X", 2), L"DeviceId=old");

    EXPECT_EQ(BoardPair(L"X", 3), Failed(PGSP_ERR_NO_MORE_ITEMS));

    EXPECT_EQ(BoardPair(L"X", 0), L"a=new");
    EXPECT_EQ(BoardPair(L"X", 2), L"DeviceId=new");
}

TEST_F(CatalogueChanges, AreSeenByTheDefaultsOfABoardOnceAllOfItHasBeenEnumerated)
{
    ASSERT_EQ(BoardPair(L"X\\ConstraintsWithDefault", 0), L"p=old");
    WriteBoardOf(L"new");
    EXPECT_EQ(BoardPair(L"X\\ConstraintsWithDefault", 1), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(BoardPair(L"X\\ConstraintsWithDefault", 0), L"p=old");

    for (std::uint32_t index = 0; BoardPair(L"X", index) != Failed(PGSP_ERR_NO_MORE_ITEMS); ++index)
    {
    }

    EXPECT_EQ(BoardPair(L"X\\ConstraintsWithDefault", 0), L"p=new");
}

TEST_F(CatalogueChanges, AreNotSeenByTheTreeOfAProtocolUntilDeinit)
{
    ASSERT_THAT(AskProtocolTree(), ElementsAre(L"busparam=old", L"old", L"old"));
    WriteProtocolOf(L"new");
    EXPECT_EQ(ProtocolPair(L"X", {}, 9), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_THAT(AskProtocolTree(), ElementsAre(L"busparam=old", L"old", L"old"));

    library.NorvepaBl64x_deinit();

    EXPECT_THAT(AskProtocolTree(), ElementsAre(L"busparam=new", L"new", L"new"));
}

TEST_F(CatalogueChanges, AreNeverSeenByListsAndWordsThatHaveBeenAnswered)
{
    ASSERT_THAT(BoardCollection(L"NotSupported", L"X"), ElementsAre(L"old"));
    ASSERT_EQ(Busprofile(L"X", 0), L"old");
    ASSERT_EQ(ProtocolPair(L"X", {L"busparam"}, 0), L"default=old");
    WriteBoardOf(L"new");
    WriteProtocolOf(L"new");

    library.NorvepaBl64x_deinit();

    EXPECT_THAT(BoardCollection(L"NotSupported", L"X"), ElementsAre(L"old"));
    EXPECT_EQ(Busprofile(L"X", 0), L"old");
    EXPECT_EQ(ProtocolPair(L"X", {L"busparam"}, 0), L"default=old");
    EXPECT_THAT(BoardCollection(L"BaseSupported", L"X"), ElementsAre(L"new")); // not asked for before
}

TEST_F(CatalogueChanges, AreSeenByTheListsOfABoardWhenItIsEnumeratedFromTheStart)
{
    ASSERT_THAT(BoardCollection(L"NotSupported", L"X"), ElementsAre(L"old"));
    ASSERT_EQ(BoardPair(L"X\\p", 0), L"default=old");
    WriteBoardOf(L"new");
    library.NorvepaBl64x_deinit();

    EXPECT_EQ(BoardPair(L"X", 0), L"a=new");

    EXPECT_THAT(BoardCollection(L"NotSupported", L"X"), ElementsAre(L"new"));
    EXPECT_EQ(BoardPair(L"X\\p", 0), L"default=new");
}

TEST_F(CatalogueChanges, ThatMakeAFileAreSeenAtTheNextQuery)
{
    ASSERT_EQ(BoardPair(L"Y", 0), Failed(PGSP_ERR_FILE_NOT_FOUND));
    ASSERT_EQ(Baudrate(L"Y", nullptr, 0), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));

    WriteBoard(L"Y", XmlContent().Element(L"Install", XmlContent().Text(L"a", L"1")));
    WriteProtocol(L"Y", BusProtocol());

    EXPECT_EQ(BoardPair(L"Y", 0), L"a=1");
    EXPECT_EQ(Baudrate(L"Y", nullptr, 0), L"187500");
}

TEST_F(CatalogueChanges, ThatRemoveAFileAreSeenByWhoReadsValuesAlone)
{
    ASSERT_EQ(BoardPair(L"X", 0), L"a=old");
    ASSERT_TRUE(DeleteFileW(roots.board(L"X").c_str()));

    EXPECT_EQ(BoardValue(L"X", L"a"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(BoardPair(L"X", 1), L"CP_TYPE=MPI");
    EXPECT_EQ(BoardPair(L"X", 3), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(BoardPair(L"X", 0), Failed(PGSP_ERR_FILE_NOT_FOUND));
}

} // namespace
} // namespace norvepa::test

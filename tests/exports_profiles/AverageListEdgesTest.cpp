#include "ListScene.h"

namespace norvepa::test
{
namespace
{

class AverageListEdges : public ListScene
{
protected:
    // Values that both list, behind one that only the board has.
    void Fill(const Strings& values) const
    {
        Strings boards = {L"of the board alone"};
        boards.insert(boards.end(), values.begin(), values.end());
        Strings protocols = {L"of the protocol alone"};
        protocols.insert(protocols.end(), values.begin(), values.end());
        store.WriteBoard(ListOf(L"cable", boards));
        store.WriteProtocol(ListOf(L"cable", protocols));
    }

    [[nodiscard]] std::int32_t Ask(ListBuffer& buffer) const
    {
        return ListScene::Ask(Average, L"cable", buffer);
    }
};

TEST_F(AverageListEdges, NeedRoomForTheEndAndDoNotCountIt)
{
    Fill({L"abc", L"def"});
    for (const std::uint32_t capacity : {9U, 10U, 1000U})
    {
        SCOPED_TRACE(capacity);
        ListBuffer buffer(capacity);

        EXPECT_EQ(Ask(buffer), PGSP_OK);

        EXPECT_EQ(buffer.written(), Packed({L"abc", L"def"}));
        EXPECT_EQ(buffer.length, 8U);
    }
}

TEST_F(AverageListEdges, TakeTheGreatestLengthAtItsWord)
{
    Fill({L"abc", L"def"});
    ListBuffer buffer(300);
    buffer.length = UINT32_MAX;

    EXPECT_EQ(Ask(buffer), PGSP_OK);

    EXPECT_EQ(buffer.written(), Packed({L"abc", L"def"}));
    EXPECT_EQ(buffer.length, 8U);
}

// Nothing is put back here, and the length isn't what is needed.
TEST_F(AverageListEdges, HoldAllValuesWhenTheEndAloneHasNoRoom)
{
    Fill({L"abc", L"def"});
    ListBuffer buffer(8);

    EXPECT_EQ(Ask(buffer), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(buffer.written(), PackedWithoutEnd({L"abc", L"def"}));
    EXPECT_EQ(buffer.length, 8U);
}

TEST_F(AverageListEdges, LeaveTheBufferAloneAndTellWhatIsNeededForOneValueOrMore)
{
    Fill({L"abc", L"def"});
    for (std::uint32_t capacity = 1; capacity < 8; ++capacity)
    {
        SCOPED_TRACE(capacity);
        ListBuffer buffer(capacity);

        EXPECT_EQ(Ask(buffer), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_TRUE(buffer.isUntouched());
        EXPECT_EQ(buffer.length, 9U);
    }
}

TEST_F(AverageListEdges, PutBackTheFirstCharactersOfALongBufferAndNoMore)
{
    Fill({std::wstring(90, L'a'), std::wstring(90, L'b'), std::wstring(90, L'c'), std::wstring(90, L'd')});
    ListBuffer buffer(300);

    EXPECT_EQ(Ask(buffer), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(buffer.isUntouched(260));
    EXPECT_EQ(buffer.written().substr(260), PackedWithoutEnd({std::wstring(2 * 91 + 90 - 260, L'c')}));
    EXPECT_EQ(buffer.length, 4U * 91 + 1);
}

TEST_F(AverageListEdges, AreTheEndAloneForAnEmptyList)
{
    Fill({});
    for (const std::uint32_t capacity : {1U, 2U, 300U})
    {
        SCOPED_TRACE(capacity);
        ListBuffer buffer(capacity);

        EXPECT_EQ(Ask(buffer), PGSP_OK);

        EXPECT_EQ(buffer.written(), Packed({}));
        EXPECT_EQ(buffer.length, 0U);
    }
}

TEST_F(AverageListEdges, LeadByTwoCallsToAnyList)
{
    Fill({L"abc", L"a longer one", L"\u00DCber"});
    ListBuffer first(1);
    ASSERT_EQ(Ask(first), PGSP_ERR_BUFFER_TOO_SHORT);

    ListBuffer second(first.length);
    EXPECT_EQ(Ask(second), PGSP_OK);

    EXPECT_THAT(second.strings(), testing::ElementsAre(L"abc", L"a longer one", L"\u00DCber"));
    EXPECT_EQ(second.length, first.length - 1);
}

} // namespace
} // namespace norvepa::test

#include "ListScene.h"

namespace norvepa::test
{
namespace
{

// Which of the two files lists the values.
using Writer = void (DeviceStore::*)(const Catalogue&, std::wstring_view) const;

struct Source
{
    const char* name;
    Writer write;
    std::wstring_view file;
};

constexpr Source Sources[] = {
    {"Boards", &DeviceStore::WriteBoard, OurBoard},
    {"Protocols", &DeviceStore::WriteProtocol, OurProtocol},
};

void PrintTo(const Source& each, std::ostream* stream)
{
    *stream << each.name;
}

class MostSpecializedListEdges : public ListScene, public testing::WithParamInterface<Source>
{
protected:
    void Fill(const Strings& values) const
    {
        (store.*GetParam().write)(ListOf(L"cable", values), GetParam().file);
    }

    [[nodiscard]] std::int32_t Ask(ListBuffer& buffer) const
    {
        return ListScene::Ask(MostSpecialized, L"cable", buffer);
    }
};

INSTANTIATE_TEST_SUITE_P(Of, MostSpecializedListEdges, testing::ValuesIn(Sources),
                         [](const auto& each) { return std::string(each.param.name); });

// The last terminator stands behind what the caller has offered: the buffer has to have room for it.
TEST_P(MostSpecializedListEdges, WriteTheEndBehindALengthThatTheValuesFill)
{
    Fill({L"abc", L"def"});
    ListBuffer buffer(8);

    EXPECT_EQ(Ask(buffer), PGSP_OK);

    EXPECT_EQ(buffer.written(), Packed({L"abc", L"def"}));
    EXPECT_EQ(buffer.length, 8U);
}

TEST_P(MostSpecializedListEdges, NeverCountTheEnd)
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

TEST_P(MostSpecializedListEdges, TakeTheGreatestLengthAtItsWord)
{
    Fill({L"abc", L"def"});
    ListBuffer buffer(300);
    buffer.length = UINT32_MAX;

    EXPECT_EQ(Ask(buffer), PGSP_OK);

    EXPECT_EQ(buffer.written(), Packed({L"abc", L"def"}));
    EXPECT_EQ(buffer.length, 8U);
}

TEST_P(MostSpecializedListEdges, KeepWhatFitsWithoutAnEndWhenTheSecondDoesNot)
{
    Fill({L"abc", L"def"});
    for (const std::uint32_t capacity : {4U, 5U, 6U, 7U})
    {
        SCOPED_TRACE(capacity);
        ListBuffer buffer(capacity);

        EXPECT_EQ(Ask(buffer), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_EQ(buffer.written(), PackedWithoutEnd({L"abc"}));
        EXPECT_EQ(buffer.length, 4U);
    }
}

TEST_P(MostSpecializedListEdges, WriteNothingWhenTheFirstDoesNotFit)
{
    Fill({L"abc", L"d"});
    for (const std::uint32_t capacity : {1U, 2U, 3U})
    {
        SCOPED_TRACE(capacity);
        ListBuffer buffer(capacity);

        EXPECT_EQ(Ask(buffer), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_TRUE(buffer.isUntouched());
        EXPECT_EQ(buffer.length, 0U);
    }
}

TEST_P(MostSpecializedListEdges, DoNotGoOnBehindAValueThatDoesNotFit)
{
    Fill({L"abc", L"too long a value", L"d"});
    ListBuffer buffer(12);

    EXPECT_EQ(Ask(buffer), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(buffer.written(), PackedWithoutEnd({L"abc"}));
    EXPECT_EQ(buffer.length, 4U);
}

TEST_P(MostSpecializedListEdges, PutNothingBackIntoALongBuffer)
{
    const Strings values = {std::wstring(90, L'a'), std::wstring(90, L'b'), std::wstring(90, L'c'),
                            std::wstring(90, L'd')};
    Fill(values);
    ListBuffer buffer(300);

    EXPECT_EQ(Ask(buffer), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(buffer.written(), PackedWithoutEnd({values[0], values[1], values[2]}));
    EXPECT_EQ(buffer.length, 3U * 91);
}

TEST_P(MostSpecializedListEdges, AreTheEndAloneForAnEmptyList)
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

using MostSpecializedListOfBoth = ListScene;

TEST_F(MostSpecializedListOfBoth, DoesNotTakeTheProtocolsForABoardsThatDoesNotFit)
{
    store.WriteBoard(ListOf(L"cable", {L"too long a value"}));
    store.WriteProtocol(ListOf(L"cable", {L"abc"}));
    ListBuffer buffer(10);

    EXPECT_EQ(Ask(MostSpecialized, L"cable", buffer), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 0U);
}

} // namespace
} // namespace norvepa::test

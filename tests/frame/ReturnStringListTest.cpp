#include "frame/PackStringList.h"
#include "support/ListBuffer.h"

#include <gmock/gmock.h>

namespace norvepa
{
namespace
{

using test::ListBuffer;
using test::Packed;
using test::PackedWithoutEnd;
using test::Strings;

const Strings TwoOfThree{L"abc", L"def"};
constexpr ExportFrame frame{"AnExportBL: "};

Result Return(const Strings& strings, ListBuffer& buffer)
{
    return ReturnStringList(frame, strings, buffer.data(), &buffer.length);
}

TEST(ReturnStringList, CountsTheEndInTheLength)
{
    ListBuffer buffer(20);

    EXPECT_EQ(Return(TwoOfThree, buffer), PGSP_OK);

    EXPECT_EQ(buffer.written(), Packed(TwoOfThree));
    EXPECT_EQ(buffer.length, 9U);
}

TEST(ReturnStringList, IsTooShortWithoutRoomForTheEndThoughAllStringsAreThere)
{
    ListBuffer buffer(8);

    EXPECT_EQ(Return(TwoOfThree, buffer), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(buffer.written(), PackedWithoutEnd(TwoOfThree));
    EXPECT_EQ(buffer.length, 8U);
}

TEST(ReturnStringList, TellsWhatAllStringsNeedWhenOneDoesNotFit)
{
    ListBuffer buffer(7);

    EXPECT_EQ(Return(TwoOfThree, buffer), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_EQ(buffer.length, 9U);
}

TEST(ReturnStringList, IsOneCharacterForNoStrings)
{
    ListBuffer one(1);
    ListBuffer none(0);

    EXPECT_EQ(Return({}, one), PGSP_OK);
    EXPECT_EQ(Return({}, none), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(one.written(), Packed({}));
    EXPECT_EQ(one.length, 1U);
    EXPECT_TRUE(none.isUntouched());
    EXPECT_EQ(none.length, 0U);
}

TEST(NotAllReturned, TellsWhatIsNeeded)
{
    std::uint32_t length = 3;

    EXPECT_EQ(NotAllReturned(frame, Packing{PackOutcome::TooShort, 4, 9}, &length),
              PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(length, 9U);
}

} // namespace
} // namespace norvepa

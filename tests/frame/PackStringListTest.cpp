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

Packing Pack(const Strings& strings, ListBuffer& buffer)
{
    return PackStringList(strings, buffer.data(), buffer.length);
}

TEST(PackStringList, PutsEachStringAndAnEndBehindTheLast)
{
    ListBuffer buffer(9);

    const Packing packing = Pack(TwoOfThree, buffer);

    EXPECT_EQ(packing.outcome, PackOutcome::Packed);
    EXPECT_EQ(packing.written, 8U);
    EXPECT_EQ(packing.needed, 9U);
    EXPECT_EQ(buffer.written(), Packed(TwoOfThree));
}

TEST(PackStringList, LeavesTheEndAwayWhenTheStringsFillTheBuffer)
{
    ListBuffer buffer(8);

    const Packing packing = Pack(TwoOfThree, buffer);

    EXPECT_EQ(packing.outcome, PackOutcome::NoRoomForEnd);
    EXPECT_EQ(packing.written, 8U);
    EXPECT_EQ(buffer.written(), PackedWithoutEnd(TwoOfThree));
}

TEST(PackStringList, LeavesASmallBufferAsItWasWhenOneStringDoesNotFit)
{
    for (std::uint32_t capacity = 0; capacity < 8; ++capacity)
    {
        ListBuffer buffer(capacity);

        const Packing packing = Pack(TwoOfThree, buffer);

        EXPECT_EQ(packing.outcome, PackOutcome::TooShort) << capacity;
        EXPECT_EQ(packing.needed, 9U) << capacity;
        EXPECT_TRUE(buffer.isUntouched()) << capacity;
    }
}

TEST(PackStringList, DoesNotLookForAShorterStringBehindOneThatDoesNotFit)
{
    ListBuffer buffer(4);

    const Packing packing = Pack({L"longer", L"a"}, buffer);

    EXPECT_EQ(packing.outcome, PackOutcome::TooShort);
    EXPECT_EQ(packing.needed, 10U);
    EXPECT_TRUE(buffer.isUntouched());
}

TEST(PackStringList, PutsTheFirstCharactersBackAndNoMore)
{
    ListBuffer buffer(300);

    const Packing packing = Pack({std::wstring(280, L'x'), std::wstring(30, L'y')}, buffer);

    EXPECT_EQ(packing.outcome, PackOutcome::TooShort);
    EXPECT_TRUE(buffer.isUntouched(260));
    EXPECT_EQ(buffer.written().substr(260), PackedWithoutEnd({std::wstring(20, L'x')}));
}

TEST(PackStringList, PutsCharactersBackOfABufferJustOverThem)
{
    for (const std::uint32_t capacity : {259U, 260U, 261U})
    {
        ListBuffer buffer(capacity);

        const Packing packing = Pack({std::wstring(250, L'x'), std::wstring(30, L'y')}, buffer);

        EXPECT_EQ(packing.outcome, PackOutcome::TooShort) << capacity;
        EXPECT_TRUE(buffer.isUntouched()) << capacity;
    }
}

TEST(PackStringList, IsTheEndAloneForNoStrings)
{
    ListBuffer buffer(1);

    const Packing packing = Pack({}, buffer);

    EXPECT_EQ(packing.outcome, PackOutcome::Packed);
    EXPECT_EQ(packing.written, 0U);
    EXPECT_EQ(packing.needed, 1U);
    EXPECT_EQ(buffer.written(), Packed({}));
}

TEST(PackStringList, HasNoRoomForTheEndOfNoStringsInNothing)
{
    ListBuffer buffer(0);

    const Packing packing = Pack({}, buffer);

    EXPECT_EQ(packing.outcome, PackOutcome::NoRoomForEnd);
    EXPECT_EQ(packing.written, 0U);
    EXPECT_TRUE(buffer.isUntouched());
}

TEST(PackStringList, HoldsEmptyStringsToo)
{
    ListBuffer buffer(20);

    const Packing packing = Pack({L"", L"abc", L""}, buffer);

    EXPECT_EQ(packing.outcome, PackOutcome::Packed);
    EXPECT_EQ(packing.written, 6U);
    EXPECT_EQ(buffer.written(), Packed({L"", L"abc", L""}));
}

TEST(PackStringList, NeedsOneCharacterForEachEmptyString)
{
    ListBuffer buffer(1);

    const Packing packing = Pack({L"", L""}, buffer);

    EXPECT_EQ(packing.outcome, PackOutcome::TooShort);
    EXPECT_EQ(packing.needed, 3U);
    EXPECT_TRUE(buffer.isUntouched());
}

} // namespace
} // namespace norvepa

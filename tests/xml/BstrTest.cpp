#include "xml/Bstr.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

TEST(BstrTest, HoldsTheTextItIsMadeFrom)
{
    const Bstr text(L"Rührwerk");

    EXPECT_EQ(text.view(), L"Rührwerk");
    EXPECT_EQ(text.get()[8], L'\0');
}

TEST(BstrTest, HoldsZerosToo)
{
    const std::wstring_view withZero(L"a\0b", 3);

    EXPECT_EQ(Bstr(withZero).view(), withZero);
}

TEST(BstrTest, AnEmptyTextIsAStringOfItsOwn)
{
    const Bstr empty{std::wstring_view()};

    EXPECT_NE(empty.get(), nullptr);
    EXPECT_EQ(empty.view(), L"");
}

TEST(BstrTest, NoneReadsAsTheEmptyText)
{
    const Bstr none;

    EXPECT_EQ(none.get(), nullptr);
    EXPECT_EQ(none.view(), L"");
}

TEST(BstrTest, MovesLeaveNothingBehind)
{
    Bstr first(L"one");

    Bstr second(std::move(first));
    Bstr third;
    third = std::move(second);

    EXPECT_EQ(third.view(), L"one");
    EXPECT_EQ(first.get(), nullptr);
    EXPECT_EQ(second.get(), nullptr);
}

TEST(BstrTest, OutGivesRoomForANewString)
{
    Bstr text(L"old");

    *text.out() = SysAllocString(L"new");

    EXPECT_EQ(text.view(), L"new");
}

TEST(BstrTest, OutForgetsWhatWasHeld)
{
    Bstr text(L"old");

    EXPECT_EQ(*text.out(), nullptr);

    EXPECT_EQ(text.view(), L"");
}

TEST(BstrTest, AVariantLendsTheString)
{
    const Bstr text(L"lent");

    const VARIANT variant = text.asVariant();

    EXPECT_EQ(variant.vt, VT_BSTR);
    EXPECT_EQ(variant.bstrVal, text.get());
}

} // namespace
} // namespace norvepa::test

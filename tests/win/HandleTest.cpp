#include "win/Handle.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <utility>

namespace norvepa::win
{
namespace
{

HANDLE NewEvent()
{
    return CreateEventW(nullptr, TRUE, FALSE, nullptr);
}

bool IsOpen(HANDLE handle)
{
    DWORD flags = 0;
    return GetHandleInformation(handle, &flags) != FALSE;
}

TEST(Handle, IsEmptyAtFirstAndWithEitherOfTheTwoNoHandles)
{
    EXPECT_FALSE(Handle());
    EXPECT_FALSE(Handle(nullptr));
    EXPECT_FALSE(Handle(INVALID_HANDLE_VALUE));
    EXPECT_EQ(Handle(INVALID_HANDLE_VALUE).get(), nullptr);
}

TEST(Handle, LendsWhatItOwns)
{
    const HANDLE event = NewEvent();

    const Handle owner(event);

    EXPECT_TRUE(owner);
    EXPECT_EQ(owner.get(), event);
    EXPECT_TRUE(IsOpen(event));
}

TEST(Handle, IsClosedWithItsOwner)
{
    const HANDLE event = NewEvent();

    {
        const Handle owner(event);
    }

    EXPECT_FALSE(IsOpen(event));
}

TEST(Handle, StaysOpenWhenItsOwnerIsMovedFrom)
{
    const HANDLE event = NewEvent();
    Handle second;

    {
        Handle first(event);
        Handle between(std::move(first));
        second = std::move(between);
    }

    EXPECT_EQ(second.get(), event);
    EXPECT_TRUE(IsOpen(event));
}

TEST(Handle, ThatIsAssignedOverIsClosedOnce)
{
    const HANDLE former = NewEvent();
    const HANDLE latter = NewEvent();

    {
        Handle owner(former);
        owner = Handle(latter);

        EXPECT_EQ(owner.get(), latter);
        EXPECT_FALSE(IsOpen(former));
    }

    EXPECT_FALSE(IsOpen(latter));
}

} // namespace
} // namespace norvepa::win

#pragma once

// The two writes that bring COM along, each on a thread without it, which it leaves so.

#include "store/WriteScene.h"
#include "support/FreshThread.h"

namespace norvepa::test
{

class WithoutComScene : public WriteScene
{
protected:
    // `check` takes the write, a callable that answers its result.
    template <typename Check>
    void OfBoth(const Check& check) const
    {
        OnFreshThread([&] {
            check([this] { return Set(L"LocalSettings", L"a", L"2", L"int"); });
            EXPECT_FALSE(ThisThreadHasCom());
        });
        OnFreshThread([&] {
            check([this] { return SetHeader(L"a", L"2"); });
            EXPECT_FALSE(ThisThreadHasCom());
        });
    }
};

} // namespace norvepa::test

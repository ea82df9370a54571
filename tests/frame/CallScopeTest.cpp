#include "frame/CallScope.h"

#include "frame/Calls.h"
#include "frame/ExportFrame.h"
#include "support/FreshThread.h"

#include <array>
#include <cstddef>
#include <gtest/gtest.h>
#include <memory>
#include <new>

namespace norvepa::test
{
namespace
{

// Something kept that tells when it goes.
struct Kept : CallScope::Keepsake
{
    explicit Kept(bool& goes) : hasGone(goes) {}
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;
    ~Kept() override { hasGone = true; }

    bool& hasGone;
};

TEST(ACallScope, IsNoneOutsideOfACall)
{
    EXPECT_EQ(CallScope::Current(), nullptr);
}

TEST(ACallScope, IsThatOfTheCall)
{
    Call([](CallScope& call) { EXPECT_EQ(CallScope::Current(), &call); });
}

TEST(ACallScope, EndsWithTheCall)
{
    Call([](CallScope& /*call*/) {});

    EXPECT_EQ(CallScope::Current(), nullptr);
}

TEST(ACallScope, IsTheOutermostCallsAlsoWithinAnother)
{
    Call([](CallScope& outer) {
        Call([&](CallScope& /*inner*/) {
            EXPECT_EQ(CallScope::Current(), &outer);
            Call([&](CallScope& /*innermost*/) { EXPECT_EQ(CallScope::Current(), &outer); });
            EXPECT_EQ(CallScope::Current(), &outer);
        });

        EXPECT_EQ(CallScope::Current(), &outer);
    });
}

TEST(ACallScope, IsEmptyWhenItBegins)
{
    const CallScope call;

    EXPECT_EQ(call.images, nullptr);
    EXPECT_FALSE(call.locationsKey);
    EXPECT_FALSE(call.rootsStand);
    EXPECT_FALSE(call.dataFolder);
    EXPECT_FALSE(call.programFolder);
}

TEST(ACallScope, KeepsWhatItWasGivenUntilTheOutermostCallEnds)
{
    bool hasGone = false;
    Call([&](CallScope& /*outer*/) {
        Call([&](CallScope& /*inner*/) { CallScope::Current()->images = std::make_unique<Kept>(hasGone); });
        EXPECT_FALSE(hasGone);
    });

    EXPECT_TRUE(hasGone);
}

TEST(ACallScope, IsEachThreadsOwn)
{
    Call([](CallScope& call) {
        OnFreshThread([] {
            EXPECT_EQ(CallScope::Current(), nullptr);
            Call([](CallScope& other) { EXPECT_EQ(CallScope::Current(), &other); });
        });

        EXPECT_EQ(CallScope::Current(), &call);
    });
}

TEST(ACallScope, IsThereAgainAfterAllHaveBeenFreed)
{
    Call([](CallScope& /*before*/) {});

    FreeCallScopes();
    EXPECT_EQ(CallScope::Current(), nullptr);

    Call([](CallScope& after) { EXPECT_EQ(CallScope::Current(), &after); });
}

// A scope that is never left, as that of a call beyond which the host has caught a fault.
struct AbandonedScope
{
    AbandonedScope() { new (place.data()) CallScope; }

    alignas(CallScope) std::array<std::byte, sizeof(CallScope)> place;
};

// Deeper than any call that follows.
void Abandon(int depth)
{
    if (depth != 0)
    {
        Abandon(depth - 1);
        return;
    }
    const AbandonedScope scope;
    EXPECT_NE(CallScope::Current(), nullptr);
}

TEST(ACallScope, IsTheNextCallsWhenOneWasNeverLeft)
{
    Abandon(100);

    Call([](CallScope& next) { EXPECT_EQ(CallScope::Current(), &next); });

    EXPECT_EQ(CallScope::Current(), nullptr);
}

TEST(ACallScope, IsThereForTheBodyOfAnExport)
{
    EXPECT_EQ(RunExport("AnExportBL: ",
                        [](const ExportFrame&) {
                            EXPECT_NE(CallScope::Current(), nullptr);
                            return PGSP_OK;
                        }),
              PGSP_OK);

    EXPECT_EQ(CallScope::Current(), nullptr);
}

TEST(ACallScope, EndsWithAnExportThatRunsOutOfMemory)
{
    EXPECT_EQ(RunExport("AnExportBL: ", [](const ExportFrame&) -> Result { throw std::bad_alloc(); }), 14);

    EXPECT_EQ(CallScope::Current(), nullptr);
}

} // namespace
} // namespace norvepa::test

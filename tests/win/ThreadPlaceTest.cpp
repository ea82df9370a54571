#include "win/ThreadPlace.h"

#include "support/AllAtOnce.h"
#include "support/FreshThread.h"
#include "support/ImportHook.h"
#include "support/ProcessResources.h"
#include "support/SystemFunction.h"

#include <atomic>
#include <gtest/gtest.h>
#include <utility>

namespace norvepa::test
{
namespace
{

class AThreadPlace : public testing::Test
{
protected:
    ~AThreadPlace() override { place.LetGo(); }

    win::ThreadPlace<int> place;
    int thing = 1;
    int other = 2;
};

TEST_F(AThreadPlace, IsEmptyAtFirst)
{
    EXPECT_EQ(place.Get(), nullptr);
}

TEST_F(AThreadPlace, HoldsWhatItsThreadHasSet)
{
    place.Set(&thing);
    EXPECT_EQ(place.Get(), &thing);

    place.Set(&other);
    EXPECT_EQ(place.Get(), &other);

    place.Set(nullptr);
    EXPECT_EQ(place.Get(), nullptr);
}

TEST_F(AThreadPlace, IsEachThreadsOwn)
{
    place.Set(&thing);

    OnFreshThread([&] {
        EXPECT_EQ(place.Get(), nullptr);
        place.Set(&other);
        EXPECT_EQ(place.Get(), &other);
        place.Set(nullptr);
    });

    EXPECT_EQ(place.Get(), &thing);
}

TEST_F(AThreadPlace, IsNotAnothers)
{
    win::ThreadPlace<int> another;
    another.Set(&other);
    place.Set(&thing);

    EXPECT_EQ(another.Get(), &other);
    EXPECT_EQ(place.Get(), &thing);
    another.LetGo();
}

TEST_F(AThreadPlace, TakesOneIndexWhenItIsFirstSetAndGivesItBack)
{
    const std::size_t before = CountFreeTlsIndices();
    static_cast<void>(place.Get());
    EXPECT_EQ(CountFreeTlsIndices(), before);

    place.Set(&thing);
    place.Set(&other);
    EXPECT_EQ(CountFreeTlsIndices(), before - 1);

    place.LetGo();
    place.LetGo();
    EXPECT_EQ(CountFreeTlsIndices(), before);
}

TEST_F(AThreadPlace, IsAsAtFirstOnceItWasLetGo)
{
    place.Set(&thing);

    place.LetGo();
    EXPECT_EQ(place.Get(), nullptr);

    place.Set(&other);
    EXPECT_EQ(place.Get(), &other);
}

TEST_F(AThreadPlace, IsOneWhateverThreadsBeginWithItAtOnce)
{
    const std::size_t before = CountFreeTlsIndices();
    for (int round = 0; round < 20; ++round)
    {
        std::atomic<int> wrong = 0;

        AllAtOnce(4, [&](int /*thread*/) {
            int own = 0;
            place.Set(&own);
            wrong += place.Get() == &own ? 0 : 1;
            place.Set(nullptr);
        });

        EXPECT_EQ(wrong, 0);
        EXPECT_EQ(CountFreeTlsIndices(), before - 1);
        place.LetGo();
    }
}

DWORD WINAPI HaveNoIndex()
{
    return TLS_OUT_OF_INDEXES;
}

TEST_F(AThreadPlace, ForgetsWhatIsSetWhereTheSystemHasNoIndex)
{
    const ImportHook system("TlsAlloc", HaveNoIndex);

    place.Set(&thing);

    EXPECT_EQ(place.Get(), nullptr);
}

TEST_F(AThreadPlace, IsThereOnceTheSystemHasAnIndexAgain)
{
    {
        const ImportHook system("TlsAlloc", HaveNoIndex);
        place.Set(&thing);
    }

    place.Set(&thing);

    EXPECT_EQ(place.Get(), &thing);
}

// Where another thread has been faster.
win::ThreadPlace<int>* shared = nullptr;
int anothers = 3;

DWORD WINAPI HaveAnIndexLate()
{
    static auto* const allocate = SystemFunction<decltype(TlsAlloc)>("TlsAlloc");
    if (win::ThreadPlace<int>* const raced = std::exchange(shared, nullptr))
    {
        OnFreshThread([raced] { raced->Set(&anothers); });
    }
    return allocate();
}

TEST_F(AThreadPlace, TakesTheIndexOfTheThreadThatWasFaster)
{
    const std::size_t before = CountFreeTlsIndices();
    shared = &place;
    {
        const ImportHook system("TlsAlloc", HaveAnIndexLate);
        place.Set(&thing);
    }

    EXPECT_EQ(place.Get(), &thing);
    EXPECT_EQ(CountFreeTlsIndices(), before - 1);
}

} // namespace
} // namespace norvepa::test

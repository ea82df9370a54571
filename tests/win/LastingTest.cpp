#include "win/Lasting.h"

#include "win/Handle.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

namespace norvepa::win
{
namespace
{

// A thing that counts, by its count of owners, where it lives.
using Thing = std::shared_ptr<int>;

TEST(Lasting, IsNullUntilSomethingIsPublished)
{
    Lasting<Thing> lasting;

    EXPECT_EQ(lasting.Get(), nullptr);
}

TEST(Lasting, HoldsWhatWasPublishedFirst)
{
    Lasting<Thing> lasting;

    lasting.Publish(std::make_shared<int>(1));
    lasting.Publish(std::make_shared<int>(2));

    ASSERT_NE(lasting.Get(), nullptr);
    EXPECT_EQ(**lasting.Get(), 1);
}

TEST(Lasting, AnswersTheSamePlaceEachTime)
{
    Lasting<Thing> lasting;
    lasting.Publish(std::make_shared<int>(1));
    const Thing* const first = lasting.Get();

    lasting.Publish(std::make_shared<int>(2));

    EXPECT_EQ(lasting.Get(), first);
}

TEST(Lasting, LeavesTheThingThatComesTooLateToItsOwner)
{
    Lasting<Thing> lasting;
    lasting.Publish(std::make_shared<int>(1));
    Thing late = std::make_shared<int>(2);
    const std::weak_ptr<int> watch = late;

    lasting.Publish(std::move(late));
    late.reset();

    EXPECT_TRUE(watch.expired());
}

TEST(Lasting, DoesNotDestroyItsThing)
{
    Thing thing = std::make_shared<int>(1);
    const std::weak_ptr<int> watch = thing;

    {
        Lasting<Thing> lasting;
        lasting.Publish(std::move(thing));
    }

    EXPECT_FALSE(watch.expired());
}

TEST(Lasting, HasOneWinnerWhenManyPublishAtOnce)
{
    constexpr int threadCount = 8;
    Lasting<Thing> lasting;
    std::vector<Thing> offers;
    for (int i = 0; i < threadCount; ++i)
    {
        offers.push_back(std::make_shared<int>(i));
    }

    const Handle go(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    std::vector<std::thread> threads;
    for (const Thing& offer : offers)
    {
        threads.emplace_back([&] {
            WaitForSingleObject(go.get(), INFINITE);
            lasting.Publish(Thing(offer));
        });
    }
    SetEvent(go.get());
    for (std::thread& thread : threads)
    {
        thread.join();
    }

    ASSERT_NE(lasting.Get(), nullptr);
    for (const Thing& offer : offers)
    {
        EXPECT_EQ(offer.use_count(), offer == *lasting.Get() ? 2 : 1);
    }
}

TEST(Lasting, DestroysItsThingWhenItIsToLetGo)
{
    Lasting<Thing> lasting;
    Thing thing = std::make_shared<int>(1);
    const std::weak_ptr<int> watch = thing;
    lasting.Publish(std::move(thing));

    lasting.LetGo();

    EXPECT_TRUE(watch.expired());
    EXPECT_EQ(lasting.Get(), nullptr);
}

TEST(Lasting, HoldsWhatIsPublishedAfterItHasLetGo)
{
    Lasting<Thing> lasting;
    lasting.Publish(std::make_shared<int>(1));
    lasting.LetGo();
    Thing second = std::make_shared<int>(2);
    const std::weak_ptr<int> watch = second;

    lasting.Publish(std::move(second));

    ASSERT_NE(lasting.Get(), nullptr);
    EXPECT_EQ(**lasting.Get(), 2);
    lasting.LetGo();
    EXPECT_TRUE(watch.expired());
}

TEST(Lasting, LetsGoOfNothingWhenItIsEmpty)
{
    Lasting<Thing> lasting;

    lasting.LetGo();
    EXPECT_EQ(lasting.Get(), nullptr);
    lasting.Publish(std::make_shared<int>(1));
    lasting.LetGo();
    lasting.LetGo();

    EXPECT_EQ(lasting.Get(), nullptr);
}

} // namespace
} // namespace norvepa::win

#include "support/AllAtOnce.h"
#include "xml/CachedImages.h"

#include <array>
#include <atomic>
#include <random>

namespace norvepa::test
{
namespace
{

constexpr int Threads = 8;
constexpr std::size_t Files = 40;

// Of a file in one state of two, by its stamp.
std::wstring NameFor(std::size_t number, std::int64_t state)
{
    return L"n" + std::to_wstring(number) + L"_" + std::to_wstring(state);
}

using ImageCacheThreads = ImageCacheScene;

TEST_F(ImageCacheThreads, FindWhatBelongsToTheFileAndItsStateWhileAllIsKeptAndDropped)
{
    std::array<std::array<std::shared_ptr<const XmlImage>, 2>, Files> images;
    for (std::size_t number = 0; number < Files; ++number)
    {
        images.at(number) = {ImageNamed(NameFor(number, 0)), ImageNamed(NameFor(number, 1))};
    }
    std::atomic<int> wrong = 0;
    std::atomic<int> found = 0;

    AllAtOnce(Threads, [&](int thread) {
        std::mt19937 random(static_cast<unsigned>(thread));
        for (int times = 0; times < 5'000; ++times)
        {
            const std::size_t number = random() % Files;
            const std::size_t state = random() % 2;
            if (const auto image = FindImage(Path(number), Stamp(static_cast<std::int64_t>(state))))
            {
                ++found;
                wrong += NameOf(*image) == NameFor(number, static_cast<std::int64_t>(state)) ? 0 : 1;
                continue;
            }
            KeepImage(Path(number), Stamp(static_cast<std::int64_t>(state)), images.at(number).at(state));
            if (random() % 500 == 0)
            {
                DropImages();
            }
        }
    });

    EXPECT_EQ(wrong, 0);
    EXPECT_GT(found, 0);
}

TEST_F(ImageCacheThreads, LoseNoImageThatAnotherKeepsAtTheSameTime)
{
    const auto image = ImageNamed(L"a");

    AllAtOnce(Threads, [&](int thread) {
        for (std::size_t i = 0; i < 100; ++i)
        {
            KeepImage(Path(static_cast<std::size_t>(thread) * 100 + i), Stamp(1), image);
        }
    });

    for (std::size_t number = 0; number < Threads * 100U; ++number)
    {
        EXPECT_EQ(FindImage(Path(number), Stamp(1)), image) << number;
    }
}

TEST_F(ImageCacheThreads, LeaveNothingBehindWhenAllIsDropped)
{
    const auto image = ImageNamed(L"a");

    AllAtOnce(Threads, [&](int) {
        for (std::size_t number = 0; number < 200; ++number)
        {
            KeepImage(Path(number), Stamp(static_cast<std::int64_t>(number % 3)), image);
            const auto held = FindImage(Path(number), Stamp(1));
        }
    });
    DropImages();
    for (std::size_t number = 0; number < 200; ++number)
    {
        KeepImage(Path(number), Stamp(1), ImageNamed(L"b")); // what was replaced goes with the next change
    }

    EXPECT_EQ(image.use_count(), 1);
}

} // namespace
} // namespace norvepa::test

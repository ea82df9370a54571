// How much the cache of images keeps at most.

#include "xml/CachedImages.h"

#include <vector>

namespace norvepa::test
{
namespace
{

constexpr std::size_t MostImages = 4'096;
constexpr std::size_t MostBytes = 20'000'000;
constexpr std::size_t BytesOfAPart = MostBytes / 16;

class ImageCacheBounds : public ImageCacheScene
{
protected:
    struct Extent
    {
        std::size_t images = 0;
        std::size_t bytes = 0;
    };

    // Of what is kept of the first so many files.
    static Extent Kept(std::size_t files)
    {
        Extent extent;
        for (std::size_t number = 0; number < files; ++number)
        {
            if (const auto image = FindImage(Path(number), Stamp(1)))
            {
                ++extent.images;
                extent.bytes += image->bytes();
            }
        }
        return extent;
    }

    static void Keep(std::size_t begin, std::size_t end, const std::shared_ptr<const XmlImage>& image)
    {
        for (std::size_t number = begin; number < end; ++number)
        {
            KeepImage(Path(number), Stamp(1), image);
        }
    }
};

TEST_F(ImageCacheBounds, AreNotPassedByManySmallImages)
{
    constexpr std::size_t files = 3 * MostImages;

    Keep(0, files, ImageNamed(L"a"));

    EXPECT_LE(Kept(files).images, MostImages);
    EXPECT_GT(Kept(files).images, MostImages * 9 / 10);
}

TEST_F(ImageCacheBounds, AreNotPassedByLargeImages)
{
    constexpr std::size_t files = 400;

    Keep(0, files, ImageNamed(L"a", std::string(100'000, 'x')));

    EXPECT_LE(Kept(files).bytes, MostBytes);
    EXPECT_GT(Kept(files).bytes, MostBytes / 2);
}

TEST_F(ImageCacheBounds, AreNotPassedByImagesOfAllSizes)
{
    constexpr std::size_t rounds = 300;
    const auto small = ImageNamed(L"a");
    const auto medium = ImageNamed(L"a", std::string(20'000, 'x'));
    const auto large = ImageNamed(L"a", std::string(500'000, 'x'));

    for (std::size_t round = 0; round < rounds; ++round)
    {
        Keep(20 * round, 20 * round + 17, small);
        Keep(20 * round + 17, 20 * round + 19, medium);
        Keep(20 * round + 19, 20 * round + 20, large);

        ASSERT_LE(round % 50 == 0 ? Kept(20 * round + 20).bytes : 0, MostBytes);
    }

    EXPECT_LE(Kept(20 * rounds).bytes, MostBytes);
    EXPECT_LE(Kept(20 * rounds).images, MostImages);
    EXPECT_GT(Kept(20 * rounds).images, 0U);
}

TEST_F(ImageCacheBounds, AreNotPassedByOneFileThatIsKeptAgainAndAgain)
{
    const auto large = ImageNamed(L"a", std::string(500'000, 'x'));
    const auto small = ImageNamed(L"b");
    Keep(0, 10, small);

    for (int times = 0; times < 100; ++times)
    {
        Keep(3, 4, large);
    }

    EXPECT_EQ(Kept(10).images, 10U); // there was room for all of them
}

TEST_F(ImageCacheBounds, LeaveAnImageThatIsTooLargeToWhoeverReadIt)
{
    const auto tooLarge = ImageNamed(L"a", std::string(BytesOfAPart / sizeof(wchar_t), 'x'));
    const auto small = ImageNamed(L"b");
    Keep(0, 100, small);

    KeepImage(Path(100), Stamp(1), tooLarge);

    EXPECT_EQ(FindImage(Path(100), Stamp(1)), nullptr);
    EXPECT_EQ(tooLarge.use_count(), 1);
    EXPECT_EQ(Kept(100).images, 100U); // and nothing went for it
}

TEST_F(ImageCacheBounds, HaveRoomForAnImageThatFitsIntoAPart)
{
    const auto large = ImageNamed(L"a", std::string(BytesOfAPart / sizeof(wchar_t) - 1'000, 'x'));

    KeepImage(Path(0), Stamp(1), large);

    EXPECT_EQ(FindImage(Path(0), Stamp(1)), large);
}

TEST_F(ImageCacheBounds, LetTheLatestStay)
{
    const auto image = ImageNamed(L"a");

    for (std::size_t number = 0; number < 2 * MostImages; ++number)
    {
        KeepImage(Path(number), Stamp(1), image);
        ASSERT_NE(FindImage(Path(number), Stamp(1)), nullptr);
    }
}

// The order of a walk, always the same, would let whoever drops the oldest find nothing.
TEST_F(ImageCacheBounds, LeaveMostToAWalkOverMoreFilesThanThereIsRoomFor)
{
    constexpr std::size_t files = MostImages * 5 / 4;
    const auto image = ImageNamed(L"a");
    std::size_t found = 0;

    for (int walk = 0; walk < 5; ++walk)
    {
        found = 0;
        for (std::size_t number = 0; number < files; ++number)
        {
            const bool isKept = FindImage(Path(number), Stamp(1)) != nullptr;
            found += isKept ? 1 : 0;
            if (!isKept)
            {
                KeepImage(Path(number), Stamp(1), image);
            }
        }
    }

    EXPECT_GT(found, files / 2);
}

} // namespace
} // namespace norvepa::test

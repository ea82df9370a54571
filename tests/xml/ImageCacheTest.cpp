#include "xml/CachedImages.h"

namespace norvepa::test
{
namespace
{

using ImageCacheTest = ImageCacheScene;

const std::wstring File = L"C:\\store\\Presse.xml";

TEST_F(ImageCacheTest, FindsWhatItWasGiven)
{
    const auto image = ImageNamed(L"a");

    KeepImage(File, Stamp(10, 20, 30), image);

    EXPECT_EQ(FindImage(File, Stamp(10, 20, 30)), image);
    EXPECT_EQ(FindImage(File, Stamp(10, 20, 30)), image);
}

TEST_F(ImageCacheTest, FindsNothingInTheBeginning)
{
    EXPECT_EQ(FindImage(File, Stamp(10)), nullptr);
    EXPECT_EQ(FindImage(L"", Stamp(0)), nullptr);
}

TEST_F(ImageCacheTest, FindsNothingByAnotherStamp)
{
    KeepImage(File, Stamp(10, 20, 30), ImageNamed(L"a"));

    EXPECT_EQ(FindImage(File, Stamp(11, 20, 30)), nullptr);
    EXPECT_EQ(FindImage(File, Stamp(10, 21, 30)), nullptr);
    EXPECT_EQ(FindImage(File, Stamp(10, 20, 31)), nullptr);
    EXPECT_EQ(FindImage(File, Stamp(10, 20, 29)), nullptr);
}

TEST_F(ImageCacheTest, FindsNothingByAnotherPath)
{
    KeepImage(File, Stamp(10), ImageNamed(L"a"));

    EXPECT_EQ(FindImage(L"C:\\store\\presse.xml", Stamp(10)), nullptr);
    EXPECT_EQ(FindImage(L"C:\\store\\Presse.xm", Stamp(10)), nullptr);
    EXPECT_EQ(FindImage(L"C:\\store\\Presse.xmll", Stamp(10)), nullptr);
    EXPECT_EQ(FindImage(L"C:/store/Presse.xml", Stamp(10)), nullptr);
}

TEST_F(ImageCacheTest, KeepsTheImageOfEachFileApart)
{
    for (std::size_t number = 0; number < 100; ++number)
    {
        KeepImage(Path(number), Stamp(10), ImageNamed(L"n" + std::to_wstring(number)));
    }

    for (std::size_t number = 0; number < 100; ++number)
    {
        const auto image = FindImage(Path(number), Stamp(10));
        ASSERT_NE(image, nullptr) << number;
        EXPECT_EQ(NameOf(*image), L"n" + std::to_wstring(number));
    }
}

TEST_F(ImageCacheTest, PutsANewImageInThePlaceOfTheOldOne)
{
    KeepImage(File, Stamp(10), ImageNamed(L"old"));
    const auto image = ImageNamed(L"new");

    KeepImage(File, Stamp(11), image);

    EXPECT_EQ(FindImage(File, Stamp(11)), image);
    EXPECT_EQ(FindImage(File, Stamp(10)), nullptr);
}

TEST_F(ImageCacheTest, PutsANewImageInThePlaceOfOneWithTheSameStamp)
{
    KeepImage(File, Stamp(10), ImageNamed(L"old"));
    const auto image = ImageNamed(L"new");

    KeepImage(File, Stamp(10), image);

    EXPECT_EQ(FindImage(File, Stamp(10)), image);
}

TEST_F(ImageCacheTest, LosesAllThatIsDropped)
{
    for (std::size_t number = 0; number < 100; ++number)
    {
        KeepImage(Path(number), Stamp(10), ImageNamed(L"a"));
    }

    DropImages();

    for (std::size_t number = 0; number < 100; ++number)
    {
        EXPECT_EQ(FindImage(Path(number), Stamp(10)), nullptr) << number;
    }
}

TEST_F(ImageCacheTest, KeepsImagesAgainOnceItWasDropped)
{
    KeepImage(File, Stamp(10), ImageNamed(L"old"));
    DropImages();
    const auto image = ImageNamed(L"new");

    KeepImage(File, Stamp(10), image);

    EXPECT_EQ(FindImage(File, Stamp(10)), image);
}

TEST_F(ImageCacheTest, LeavesWhatIsHeldToWhoHoldsIt)
{
    KeepImage(File, Stamp(10), ImageNamed(L"a", "text"));
    const auto held = FindImage(File, Stamp(10));

    KeepImage(File, Stamp(11), ImageNamed(L"b"));
    DropImages();

    ASSERT_EQ(held->size(), 3U);
    EXPECT_EQ(NameOf(*held), L"a");
    EXPECT_EQ(held->text(held->node(1).content), L"text");
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(ImageCacheTest, LetsGoOfWhatIsReplacedAndDropped)
{
    const auto first = ImageNamed(L"a");
    const auto second = ImageNamed(L"b");
    KeepImage(File, Stamp(10), first);
    KeepImage(File, Stamp(11), second);
    DropImages();
    KeepImage(File, Stamp(12), ImageNamed(L"c")); // what was replaced goes with the next change at the latest

    EXPECT_EQ(first.use_count(), 1);
    EXPECT_EQ(second.use_count(), 1);
}

} // namespace
} // namespace norvepa::test

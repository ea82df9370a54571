#include "FailingNew.h"
#include "xml/ImageCache.h"
#include "xml/ImageMaker.h"

#include <gmock/gmock.h>
#include <new>
#include <string>

namespace norvepa::test
{
namespace
{

win::FileStamp Stamp(std::int64_t size)
{
    LARGE_INTEGER sizeOfFile;
    LARGE_INTEGER longAgo;
    sizeOfFile.QuadPart = size;
    longAgo.QuadPart = 1;
    return {sizeOfFile, longAgo, longAgo};
}

std::shared_ptr<const XmlImage> SomeImage()
{
    HRESULT status = S_OK;
    return ImageMaker::Make("<a/>", status);
}

class ImageCacheOutOfMemory : public testing::TestWithParam<Shortage>
{
protected:
    ImageCacheOutOfMemory() { DropImages(); }
    ~ImageCacheOutOfMemory() override { DropImages(); }

    // False when the nth allocation failed.
    [[nodiscard]] bool KeepsInAShortage(std::size_t nth) const
    {
        const FailingNew failing(nth, GetParam());
        try
        {
            KeepImage(file, Stamp(2), newer);
        }
        catch (const std::bad_alloc&)
        {
            return false;
        }
        return true;
    }

    const std::wstring file = L"C:\\a folder with a name\\file.xml";
    const std::wstring neighbour = L"C:\\a folder with a name\\neighbour.xml";
    const std::shared_ptr<const XmlImage> older = SomeImage();
    const std::shared_ptr<const XmlImage> newer = SomeImage();
};

TEST_P(ImageCacheOutOfMemory, KeepsWhatItHadUntilItHasRoomForTheNewImage)
{
    KeepImage(neighbour, Stamp(1), older);
    KeepImage(file, Stamp(1), older);

    std::size_t nth = 1;
    for (; !KeepsInAShortage(nth); ++nth)
    {
        EXPECT_EQ(FindImage(file, Stamp(1)), older) << nth;
        EXPECT_EQ(FindImage(file, Stamp(2)), nullptr) << nth;
        EXPECT_EQ(FindImage(neighbour, Stamp(1)), older) << nth;
    }

    EXPECT_GT(nth, 2U); // the entry and the list that it stands in
    EXPECT_EQ(FindImage(file, Stamp(2)), newer);
    EXPECT_EQ(FindImage(neighbour, Stamp(1)), older);
}

TEST_P(ImageCacheOutOfMemory, FindsAndDropsAllTheSame)
{
    KeepImage(file, Stamp(1), older);
    bool hasFailed = true;
    std::shared_ptr<const XmlImage> found;
    {
        const FailingNew failing(1, GetParam());
        found = FindImage(file, Stamp(1));
        DropImages();
        hasFailed = failing.hasFailed();
    }

    EXPECT_FALSE(hasFailed);
    EXPECT_EQ(found, older);
    EXPECT_EQ(FindImage(file, Stamp(1)), nullptr);
}

TEST_P(ImageCacheOutOfMemory, HasNoHalfOfAnImageMade)
{
    bool isMade = false;
    for (std::size_t nth = 1; !isMade; ++nth)
    {
        const FailingNew failing(nth, GetParam());
        HRESULT status = S_OK;
        std::shared_ptr<const XmlImage> image;
        try
        {
            image = ImageMaker::Make("<a b='1'>text<c/><c/></a>", status);
        }
        catch (const std::bad_alloc&)
        {
            continue;
        }
        isMade = image != nullptr && image->size() == 5;
        ASSERT_TRUE(isMade) << nth;
    }
}

INSTANTIATE_TEST_SUITE_P(OfBothKinds, ImageCacheOutOfMemory,
                         testing::Values(Shortage::Passing, Shortage::Lasting));

} // namespace
} // namespace norvepa::test

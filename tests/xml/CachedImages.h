#pragma once

// Images to keep, and the stamps to keep them by, made up.

#include "support/TemporaryFolder.h"
#include "xml/ImageCache.h"
#include "xml/ImageMaker.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace norvepa::test
{

// The image of `<name>text</name>`.
[[nodiscard]] inline std::shared_ptr<const XmlImage> ImageNamed(std::wstring_view name,
                                                                std::string_view text = "")
{
    const std::string tag = ToUtf8(name);
    HRESULT status = S_OK;
    auto image = ImageMaker::Make("<" + tag + ">" + std::string(text) + "</" + tag + ">", status);
    if (image == nullptr)
    {
        throw std::runtime_error("no image");
    }
    return image;
}

[[nodiscard]] inline std::wstring NameOf(const XmlImage& image)
{
    return std::wstring(image.name(image.node(0).name));
}

// Of a file that was changed long ago.
[[nodiscard]] inline win::FileStamp Stamp(std::int64_t size, std::int64_t written = 1,
                                          std::int64_t changed = 1)
{
    LARGE_INTEGER sizeOfFile;
    LARGE_INTEGER timeOfWriting;
    LARGE_INTEGER timeOfChange;
    sizeOfFile.QuadPart = size;
    timeOfWriting.QuadPart = written;
    timeOfChange.QuadPart = changed;
    return {sizeOfFile, timeOfWriting, timeOfChange};
}

// A cache that is empty in the beginning, and left so.
class ImageCacheScene : public testing::Test
{
protected:
    ImageCacheScene() { DropImages(); }
    ~ImageCacheScene() override { DropImages(); }

    // By paths that no file has.
    [[nodiscard]] static std::wstring Path(std::size_t number)
    {
        return L"C:\\store\\" + std::to_wstring(number) + L".xml";
    }
};

} // namespace norvepa::test

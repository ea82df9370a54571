#include "xml/CallImages.h"

#include "frame/CallScope.h"
#include "win/FileStamp.h"
#include "win/FolderListing.h"
#include "win/WholeFile.h"
#include "xml/ImageCache.h"
#include "xml/ImageMaker.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace norvepa
{

using Image = std::shared_ptr<const XmlImage>;

// What one call keeps. The files that it has looked at last are enough: a walk leaves each behind for good.
class CallImages final : public CallScope::Keepsake
{
public:
    [[nodiscard]] Image Find(std::wstring_view path)
    {
        for (Seen& seen : m_seen)
        {
            if (seen.image != nullptr && seen.path == path)
            {
                seen.lookedAt = ++m_looks;
                return seen.image;
            }
        }
        return nullptr;
    }

    void Add(const std::wstring& path, const Image& image)
    {
        Seen& oldest =
            *std::min_element(m_seen.begin(), m_seen.end(), [](const Seen& left, const Seen& right) {
                return left.lookedAt < right.lookedAt;
            });
        oldest = {path, image, ++m_looks};
    }

    void Forget() noexcept
    {
        for (Seen& seen : m_seen)
        {
            seen.image.reset();
        }
        m_listing.reset();
    }

    // False when there is a walk already, and on a file server, whose listings a system may keep for a while.
    [[nodiscard]] bool BeginWalk(const std::wstring& folder)
    {
        if (!m_folder.empty() || !IsOnADrive(folder))
        {
            return false;
        }
        m_folder = folder + L'\\';
        return true;
    }

    void EndWalk() noexcept
    {
        m_folder.clear();
        m_listing.reset();
    }

    // The image of a file that the listing of its folder vouches for.
    [[nodiscard]] Image FindUnopened(std::wstring_view path)
    {
        if (m_folder.empty() || !path.starts_with(m_folder))
        {
            return nullptr;
        }
        if (!m_listing)
        {
            m_listing = win::FolderListing::Of(m_folder.substr(0, m_folder.size() - 1))
                            .value_or(win::FolderListing());
        }
        const win::FileStamp* const stamp = m_listing->Find(path.substr(m_folder.size()));
        return stamp == nullptr ? nullptr : FindImage(path, *stamp);
    }

    // A path that leads to another file once the process's current folder is another isn't one to keep by.
    [[nodiscard]] static bool IsAbsolute(std::wstring_view path) noexcept
    {
        return path.starts_with(L"\\\\") || IsOnADrive(path);
    }

    [[nodiscard]] static bool IsOnADrive(std::wstring_view path) noexcept
    {
        return path.size() > 2 && path[1] == L':' && path[2] == L'\\';
    }

private:
    struct Seen
    {
        std::wstring path;
        Image image;
        std::uint64_t lookedAt = 0; // the last time, counted in looks
    };

    std::array<Seen, 8> m_seen;
    std::uint64_t m_looks = 0;
    std::wstring m_folder; // with its backslash, while a walk goes on
    std::optional<win::FolderListing> m_listing;
};

namespace
{

// Null outside of a call.
CallImages* ImagesOfThisCall()
{
    CallScope* const call = CallScope::Current();
    if (call == nullptr)
    {
        return nullptr;
    }
    if (call->images == nullptr)
    {
        call->images = std::make_unique<CallImages>();
    }
    return static_cast<CallImages*>(call->images.get());
}

HRESULT LastError() noexcept
{
    return HRESULT_FROM_WIN32(GetLastError());
}

// What a look at a file brings: the image that is kept of it, or else its bytes; neither where it failed.
struct Look
{
    Image kept;
    std::optional<std::string> bytes;
    std::optional<win::FileStamp> stamp; // of bytes whose image may be kept
};

// The file is open no longer than this takes: an engine takes its time with what it reads, and a writer
// waits.
Look LookAtFile(const std::wstring& path, HRESULT& status)
{
    const win::FileToRead file(path);
    const auto stamp = file ? win::FileStamp::Of(file.get()) : std::nullopt;
    if (!stamp)
    {
        status = LastError();
        return {};
    }
    const bool mayBeKept = !file.isWrittenTo() && CallImages::IsAbsolute(path);
    if (Image kept = mayBeKept ? FindImage(path, *stamp) : nullptr)
    {
        return {std::move(kept), {}, {}};
    }
    Look look{{}, win::ReadBytes(file.get(), stamp->size()), {}};
    status = look.bytes ? S_OK : LastError();
    look.stamp = mayBeKept && stamp->IsCertain() ? stamp : std::nullopt;
    return look;
}

Image LookAt(const std::wstring& path, HRESULT& status)
{
    status = S_OK;
    const Look look = LookAtFile(path, status);
    if (look.kept != nullptr || !look.bytes)
    {
        return look.kept;
    }
    Image image = ImageMaker::Make(*look.bytes, status);
    if (image != nullptr && look.stamp)
    {
        KeepImage(path, *look.stamp, image);
    }
    return image;
}

} // namespace

Image ImageOf(const std::wstring& path, HRESULT& status)
{
    CallImages* const call = ImagesOfThisCall();
    if (call == nullptr)
    {
        return LookAt(path, status);
    }
    status = S_OK;
    if (Image known = call->Find(path))
    {
        return known;
    }
    Image image = call->FindUnopened(path);
    if (image == nullptr)
    {
        image = LookAt(path, status);
    }
    if (image != nullptr)
    {
        call->Add(path, image);
    }
    return image;
}

void ForgetImages() noexcept
{
    CallScope* const call = CallScope::Current();
    if (call != nullptr && call->images != nullptr)
    {
        static_cast<CallImages*>(call->images.get())->Forget();
    }
}

FolderWalk::FolderWalk(const std::wstring& folder) : m_call(ImagesOfThisCall())
{
    if (m_call != nullptr && !m_call->BeginWalk(folder))
    {
        m_call = nullptr;
    }
}

FolderWalk::~FolderWalk()
{
    if (m_call != nullptr)
    {
        m_call->EndWalk();
    }
}

} // namespace norvepa

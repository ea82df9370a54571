#include "xml/CallImages.h"

#include "frame/CallScope.h"
#include "win/FileStamp.h"
#include "win/FolderListing.h"
#include "win/WholeFile.h"
#include "xml/ImageCache.h"
#include "xml/ImageMaker.h"

#include <array>
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
    [[nodiscard]] Image Find(std::wstring_view path) const
    {
        for (const Seen& seen : m_seen)
        {
            if (seen.image != nullptr && seen.path == path)
            {
                return seen.image;
            }
        }
        return nullptr;
    }

    void Add(const std::wstring& path, const Image& image)
    {
        m_seen[m_next] = {path, image};
        m_next = (m_next + 1) % m_seen.size();
    }

    void Forget() noexcept
    {
        for (Seen& seen : m_seen)
        {
            seen.image.reset();
        }
        m_listing.reset();
    }

    // False when there is a walk already.
    [[nodiscard]] bool BeginWalk(const std::wstring& folder)
    {
        if (!m_folder.empty() || !IsAbsolute(folder))
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
        return path.starts_with(L"\\\\") || (path.size() > 2 && path[1] == L':' && path[2] == L'\\');
    }

private:
    struct Seen
    {
        std::wstring path;
        Image image;
    };

    std::array<Seen, 8> m_seen;
    std::size_t m_next = 0;
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

Image Read(HANDLE file, std::int64_t size, HRESULT& status)
{
    const auto bytes = win::ReadBytes(file, size);
    if (!bytes)
    {
        status = HRESULT_FROM_WIN32(ERROR_READ_FAULT);
        return nullptr;
    }
    return ImageMaker::Make(*bytes, status);
}

Image LookAt(const std::wstring& path, HRESULT& status)
{
    const win::FileToRead file(path);
    if (!file)
    {
        status = HRESULT_FROM_WIN32(GetLastError());
        return nullptr;
    }
    const auto stamp = win::FileStamp::Of(file.get());
    if (!stamp)
    {
        status = HRESULT_FROM_WIN32(GetLastError());
        return nullptr;
    }
    status = S_OK;
    const bool mayBeKept = CallImages::IsAbsolute(path);
    if (Image kept = mayBeKept ? FindImage(path, *stamp) : nullptr)
    {
        return kept;
    }
    Image image = Read(file.get(), stamp->size(), status);
    if (image != nullptr && mayBeKept && stamp->IsCertain())
    {
        KeepImage(path, *stamp, image);
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

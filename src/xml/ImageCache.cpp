#include "xml/ImageCache.h"

#include "win/Published.h"
#include "win/Undestroyed.h"

#include <algorithm>
#include <array>
#include <functional>
#include <numeric>
#include <vector>

namespace norvepa
{

namespace
{

constexpr std::size_t Shelves = 16;
constexpr std::size_t ImagesOnAShelf = 256;
constexpr std::size_t BytesOnAShelf = 20'000'000 / Shelves;

struct Kept
{
    std::size_t hash; // of the path
    std::wstring path;
    win::FileStamp stamp;
    std::shared_ptr<const XmlImage> image;

    [[nodiscard]] std::size_t bytes() const noexcept
    {
        return sizeof *this + path.capacity() * sizeof(wchar_t) + image->bytes();
    }
};

using Shelf = std::vector<std::shared_ptr<const Kept>>;

win::Undestroyed<std::array<win::Published<Shelf>, Shelves>> theShelves;
std::array<win::Published<Shelf>, Shelves>& shelves = theShelves.get();

std::size_t HashOf(std::wstring_view path) noexcept
{
    return std::hash<std::wstring_view>()(path);
}

win::Published<Shelf>& ShelfOf(std::size_t hash) noexcept
{
    return shelves[hash % Shelves];
}

auto FindOn(const Shelf& shelf, std::size_t hash, std::wstring_view path)
{
    return std::find_if(shelf.begin(), shelf.end(),
                        [&](const auto& kept) { return kept->hash == hash && kept->path == path; });
}

std::size_t BytesOf(const Shelf& shelf)
{
    return std::accumulate(shelf.begin(), shelf.end(), std::size_t{0},
                           [](std::size_t sum, const auto& kept) { return sum + kept->bytes(); });
}

// Their order says nothing: the last one takes the place.
void Remove(Shelf& shelf, std::size_t number)
{
    shelf[number] = std::move(shelf.back());
    shelf.pop_back();
}

// By a number that is as good as chance, and the same whenever an update is made once more.
void MakeRoom(Shelf& shelf, const Kept& wanted)
{
    std::size_t bytes = BytesOf(shelf) + wanted.bytes();
    std::size_t number = wanted.hash;
    while (!shelf.empty() && (shelf.size() >= ImagesOnAShelf || bytes > BytesOnAShelf))
    {
        number = number * 6'364'136'223'846'793'005U + 1'442'695'040'888'963'407U;
        const std::size_t victim = (number >> 32) % shelf.size();
        bytes -= shelf[victim]->bytes();
        Remove(shelf, victim);
    }
}

} // namespace

std::shared_ptr<const XmlImage> FindImage(std::wstring_view path, const win::FileStamp& stamp)
{
    const std::size_t hash = HashOf(path);
    const auto shelf = ShelfOf(hash).Get();
    const auto kept = FindOn(*shelf, hash, path);
    return kept == shelf->end() || (*kept)->stamp != stamp ? nullptr : (*kept)->image;
}

void KeepImage(const std::wstring& path, const win::FileStamp& stamp,
               const std::shared_ptr<const XmlImage>& image)
{
    const std::size_t hash = HashOf(path);
    const auto wanted = std::make_shared<const Kept>(Kept{hash, path, stamp, image});
    if (wanted->bytes() > BytesOnAShelf)
    {
        return;
    }
    ShelfOf(hash).Update([&](Shelf& shelf) {
        if (const auto older = FindOn(shelf, hash, path); older != shelf.end())
        {
            Remove(shelf, static_cast<std::size_t>(older - shelf.begin()));
        }
        MakeRoom(shelf, *wanted);
        shelf.push_back(wanted);
        return true;
    });
}

void DropImages() noexcept
{
    for (auto& shelf : shelves)
    {
        shelf.Clear();
    }
}

void FreeImages() noexcept
{
    theShelves.Destroy();
}

} // namespace norvepa

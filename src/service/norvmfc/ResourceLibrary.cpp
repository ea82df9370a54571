#include "service/norvmfc/ResourceLibrary.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>

namespace norvepa
{

namespace
{

constexpr DWORD AsData = LOAD_LIBRARY_AS_IMAGE_RESOURCE | LOAD_LIBRARY_AS_DATAFILE_EXCLUSIVE;
constexpr std::int64_t LastNumber = 0xFFFF;
constexpr unsigned StringsPerBlock = 16;

using Block = std::span<const std::byte>;

// How many bytes from an address on can be read: a library's own tables may point anywhere.
std::size_t ReadableBytes(const void* address) noexcept
{
    MEMORY_BASIC_INFORMATION pages{};
    if (VirtualQuery(address, &pages, sizeof pages) == 0 || pages.State != MEM_COMMIT ||
        (pages.Protect & (PAGE_NOACCESS | PAGE_GUARD)) != 0)
    {
        return 0;
    }
    const auto offset = static_cast<const std::byte*>(address) - static_cast<std::byte*>(pages.BaseAddress);
    return pages.RegionSize - static_cast<std::size_t>(offset);
}

// The block that holds a string; blocks are numbered from 1. Empty when there is none.
Block BlockOf(HMODULE module, unsigned number) noexcept
{
    const auto block = static_cast<WORD>(number / StringsPerBlock + 1);
    const HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(block), RT_STRING);
    const HGLOBAL loaded = resource == nullptr ? nullptr : LoadResource(module, resource);
    const void* const data = loaded == nullptr ? nullptr : LockResource(loaded);
    if (data == nullptr)
    {
        return {};
    }
    const std::size_t told = SizeofResource(module, resource);
    return {static_cast<const std::byte*>(data), std::min(told, ReadableBytes(data))};
}

// Takes the first string off a block: a count of characters, then these. False when it counts more than the
// block holds.
bool TakeString(Block& block, Block& string) noexcept
{
    WORD characters = 0;
    if (block.size() < sizeof characters)
    {
        return false;
    }
    std::memcpy(&characters, block.data(), sizeof characters);
    block = block.subspan(sizeof characters);
    const std::size_t length = characters * sizeof(wchar_t);
    if (block.size() < length)
    {
        return false;
    }
    string = block.first(length);
    block = block.subspan(length);
    return true;
}

std::wstring StringInBlock(Block block, unsigned index)
{
    Block string;
    for (unsigned taken = 0; taken <= index; ++taken)
    {
        if (!TakeString(block, string))
        {
            return {};
        }
    }
    std::wstring text(string.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), string.data(), string.size());
    return text;
}

} // namespace

ResourceLibrary::ResourceLibrary(const std::wstring& path) noexcept
    : m_library(LoadLibraryExW(path.c_str(), nullptr, AsData)), m_error(m_library ? 0 : GetLastError())
{
}

std::wstring ResourceLibrary::TextOf(std::int64_t number) const
{
    if (!m_library || number < 0 || number > LastNumber)
    {
        return {};
    }
    const auto string = static_cast<unsigned>(number);
    return StringInBlock(BlockOf(m_library.get(), string), string % StringsPerBlock);
}

} // namespace norvepa

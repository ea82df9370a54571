#include "service/norvmfc/ResourceLibrary.h"

#include <cstring>
#include <span>

namespace norvepa
{

namespace
{

constexpr DWORD AsData = LOAD_LIBRARY_AS_IMAGE_RESOURCE | LOAD_LIBRARY_AS_DATAFILE_EXCLUSIVE;
constexpr std::int64_t LastNumber = 0xFFFF;
constexpr unsigned StringsPerBlock = 16;

// The block that holds a string; blocks are numbered from 1. Empty when there is none.
std::span<const std::byte> BlockOf(HMODULE module, unsigned number) noexcept
{
    const auto block = static_cast<WORD>(number / StringsPerBlock + 1);
    const HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(block), RT_STRING);
    const HGLOBAL loaded = resource == nullptr ? nullptr : LoadResource(module, resource);
    const void* const data = loaded == nullptr ? nullptr : LockResource(loaded);
    return data == nullptr ? std::span<const std::byte>{}
                           : std::span(static_cast<const std::byte*>(data), SizeofResource(module, resource));
}

std::size_t LengthAt(std::span<const std::byte> block) noexcept // in bytes
{
    WORD characters = 0;
    std::memcpy(&characters, block.data(), sizeof characters);
    return characters * sizeof(wchar_t);
}

// A block is 16 strings one behind the other, each a count of characters and then these. What it counts may
// be more than it holds.
std::wstring StringInBlock(std::span<const std::byte> block, unsigned index)
{
    for (;; --index)
    {
        if (block.size() < sizeof(WORD))
        {
            return {};
        }
        const std::size_t length = LengthAt(block);
        block = block.subspan(sizeof(WORD));
        if (block.size() < length)
        {
            return {};
        }
        if (index == 0)
        {
            std::wstring text(length / sizeof(wchar_t), L'\0');
            std::memcpy(text.data(), block.data(), length);
            return text;
        }
        block = block.subspan(length);
    }
}

} // namespace

ResourceLibrary::ResourceLibrary(const std::wstring& path) noexcept
    : m_library(LoadLibraryExW(path.c_str(), nullptr, AsData)), m_error(m_library ? 0 : GetLastError())
{
}

std::wstring ResourceLibrary::TextOf(std::int64_t number) const
{
    if (number < 0 || number > LastNumber)
    {
        return {};
    }
    const auto string = static_cast<unsigned>(number);
    return StringInBlock(BlockOf(m_library.get(), string), string % StringsPerBlock);
}

} // namespace norvepa

#include "support/TextLibrary.h"

#include <windows.h>

#include <cstddef>

namespace norvepa::test
{

namespace
{

constexpr unsigned StringsPerBlock = 16;
constexpr std::size_t FileAlignment = 0x200;
constexpr DWORD SectionAddress = 0x1000; // in the loaded image, of which a page is the least
constexpr WORD StringType = 6;
constexpr DWORD IsDirectory = 0x80000000;

using Blocks = std::map<unsigned, TextLibrary::StoredBlock>;

template <typename Thing>
void Append(std::string& bytes, const Thing& thing)
{
    bytes.append(reinterpret_cast<const char*>(&thing), sizeof thing);
}

void Pad(std::string& bytes, std::size_t alignment)
{
    bytes.resize((bytes.size() + alignment - 1) / alignment * alignment);
}

void AppendDirectory(std::string& bytes, std::size_t entries)
{
    IMAGE_RESOURCE_DIRECTORY directory{};
    directory.NumberOfIdEntries = static_cast<WORD>(entries);
    Append(bytes, directory);
}

void AppendEntry(std::string& bytes, unsigned id, std::size_t offset, DWORD flag)
{
    IMAGE_RESOURCE_DIRECTORY_ENTRY entry{};
    entry.Name = id;
    entry.OffsetToData = static_cast<DWORD>(offset) | flag;
    Append(bytes, entry);
}

// The tree of types, of numbers, of languages, each directory a row of entries; then where the blocks lie,
// and the blocks.
std::string ResourceSection(const Blocks& blocks)
{
    constexpr std::size_t directory = sizeof(IMAGE_RESOURCE_DIRECTORY);
    constexpr std::size_t entry = sizeof(IMAGE_RESOURCE_DIRECTORY_ENTRY);
    constexpr std::size_t numbers = directory + entry;
    const std::size_t languages = numbers + directory + entry * blocks.size();
    const std::size_t places = languages + (directory + entry) * blocks.size();

    std::string bytes;
    AppendDirectory(bytes, 1);
    AppendEntry(bytes, StringType, numbers, IsDirectory);
    AppendDirectory(bytes, blocks.size());
    std::size_t index = 0;
    for (const auto& [number, block] : blocks)
    {
        AppendEntry(bytes, number, languages + (directory + entry) * index, IsDirectory);
        ++index;
    }
    for (index = 0; index < blocks.size(); ++index)
    {
        AppendDirectory(bytes, 1);
        AppendEntry(bytes, LANG_NEUTRAL, places + sizeof(IMAGE_RESOURCE_DATA_ENTRY) * index, 0);
    }
    std::size_t data = places + sizeof(IMAGE_RESOURCE_DATA_ENTRY) * blocks.size();
    for (const auto& [number, block] : blocks)
    {
        const TextLibrary::Place real{SectionAddress + static_cast<DWORD>(data),
                                      static_cast<DWORD>(block.bytes.size())};
        const TextLibrary::Place place = block.told.value_or(real);
        Append(bytes, IMAGE_RESOURCE_DATA_ENTRY{place.address, place.size, 0, 0});
        data += block.bytes.size();
    }
    for (const auto& [number, block] : blocks)
    {
        bytes += block.bytes;
    }
    return bytes;
}

IMAGE_NT_HEADERS64 HeadersFor(std::size_t sectionSize)
{
    constexpr DWORD page = 0x1000;
    const auto size = static_cast<DWORD>(sectionSize);

    IMAGE_NT_HEADERS64 headers{};
    headers.Signature = IMAGE_NT_SIGNATURE;
    headers.FileHeader.Machine = IMAGE_FILE_MACHINE_AMD64;
    headers.FileHeader.NumberOfSections = 1;
    headers.FileHeader.SizeOfOptionalHeader = sizeof headers.OptionalHeader;
    headers.FileHeader.Characteristics =
        IMAGE_FILE_EXECUTABLE_IMAGE | IMAGE_FILE_LARGE_ADDRESS_AWARE | IMAGE_FILE_DLL;
    headers.OptionalHeader.Magic = IMAGE_NT_OPTIONAL_HDR64_MAGIC;
    headers.OptionalHeader.SizeOfInitializedData = size;
    headers.OptionalHeader.ImageBase = 0x180000000;
    headers.OptionalHeader.SectionAlignment = page;
    headers.OptionalHeader.FileAlignment = FileAlignment;
    headers.OptionalHeader.MajorSubsystemVersion = 5;
    headers.OptionalHeader.MinorSubsystemVersion = 2;
    headers.OptionalHeader.SizeOfImage = SectionAddress + (size + page - 1) / page * page;
    headers.OptionalHeader.SizeOfHeaders = FileAlignment;
    headers.OptionalHeader.Subsystem = IMAGE_SUBSYSTEM_WINDOWS_CUI;
    headers.OptionalHeader.DllCharacteristics = IMAGE_DLLCHARACTERISTICS_NX_COMPAT;
    headers.OptionalHeader.NumberOfRvaAndSizes = IMAGE_NUMBEROF_DIRECTORY_ENTRIES;
    headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_RESOURCE] = {SectionAddress, size};
    return headers;
}

IMAGE_SECTION_HEADER SectionHeaderFor(std::size_t sectionSize)
{
    constexpr std::string_view name = ".rsrc";
    IMAGE_SECTION_HEADER header{};
    name.copy(reinterpret_cast<char*>(header.Name), IMAGE_SIZEOF_SHORT_NAME);
    header.Misc.VirtualSize = static_cast<DWORD>(sectionSize);
    header.VirtualAddress = SectionAddress;
    header.SizeOfRawData =
        static_cast<DWORD>((sectionSize + FileAlignment - 1) / FileAlignment * FileAlignment);
    header.PointerToRawData = FileAlignment;
    header.Characteristics = IMAGE_SCN_CNT_INITIALIZED_DATA | IMAGE_SCN_MEM_READ;
    return header;
}

} // namespace

TextLibrary& TextLibrary::Text(unsigned number, std::wstring_view text)
{
    m_texts[number / StringsPerBlock + 1][number % StringsPerBlock] = text;
    return *this;
}

TextLibrary& TextLibrary::Block(unsigned block, std::string_view bytes)
{
    m_blocks[block] = {std::string(bytes), {}};
    return *this;
}

TextLibrary& TextLibrary::BlockAt(unsigned block, std::uint32_t address, std::uint32_t bytes)
{
    m_blocks[block] = {{}, Place{address, bytes}};
    return *this;
}

std::string TextLibrary::file() const
{
    Blocks blocks = m_blocks;
    for (const auto& [number, strings] : m_texts)
    {
        for (const std::wstring& string : strings)
        {
            std::string& bytes = blocks[number].bytes;
            Append(bytes, static_cast<WORD>(string.size()));
            bytes.append(reinterpret_cast<const char*>(string.data()), string.size() * sizeof(wchar_t));
        }
    }
    const std::string section = ResourceSection(blocks);

    IMAGE_DOS_HEADER start{};
    start.e_magic = IMAGE_DOS_SIGNATURE;
    start.e_lfanew = sizeof start;
    std::string bytes;
    Append(bytes, start);
    Append(bytes, HeadersFor(section.size()));
    Append(bytes, SectionHeaderFor(section.size()));
    Pad(bytes, FileAlignment);
    bytes += section;
    Pad(bytes, FileAlignment);
    return bytes;
}

} // namespace norvepa::test

#include "support/PortableExecutable.h"

#include "support/TemporaryFolder.h"

#include <windows.h>

#include <cstring>
#include <span>
#include <stdexcept>

namespace norvepa::test
{

namespace
{

const IMAGE_NT_HEADERS64& HeadersOf(const std::string& bytes)
{
    const auto& dos = *reinterpret_cast<const IMAGE_DOS_HEADER*>(bytes.data());
    if (bytes.size() < sizeof dos || dos.e_magic != IMAGE_DOS_SIGNATURE)
    {
        throw std::runtime_error("not a program or library");
    }
    const auto& headers =
        *reinterpret_cast<const IMAGE_NT_HEADERS64*>(bytes.data() + static_cast<std::size_t>(dos.e_lfanew));
    if (headers.Signature != IMAGE_NT_SIGNATURE ||
        headers.OptionalHeader.Magic != IMAGE_NT_OPTIONAL_HDR64_MAGIC)
    {
        throw std::runtime_error("not a 64-bit program or library");
    }
    return headers;
}

std::span<const IMAGE_SECTION_HEADER> SectionsOf(const std::string& bytes)
{
    const IMAGE_NT_HEADERS64& headers = HeadersOf(bytes);
    return {IMAGE_FIRST_SECTION(&headers), headers.FileHeader.NumberOfSections};
}

} // namespace

PortableExecutable::PortableExecutable(const std::wstring& path) : m_bytes(ReadBytes(path))
{
    const auto& directory = HeadersOf(m_bytes).OptionalHeader.DataDirectory;
    m_exports = directory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress;
    m_imports = directory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
}

template <typename Thing>
const Thing& PortableExecutable::At(std::uint32_t address) const
{
    for (const IMAGE_SECTION_HEADER& section : SectionsOf(m_bytes))
    {
        if (address >= section.VirtualAddress && address < section.VirtualAddress + section.SizeOfRawData)
        {
            const std::uint32_t place = address - section.VirtualAddress + section.PointerToRawData;
            return *reinterpret_cast<const Thing*>(m_bytes.data() + place);
        }
    }
    throw std::runtime_error("an address outside of all sections");
}

std::string PortableExecutable::TextAt(std::uint32_t address) const
{
    return std::string(&At<char>(address));
}

std::string PortableExecutable::exportedModuleName() const
{
    return TextAt(At<IMAGE_EXPORT_DIRECTORY>(m_exports).Name);
}

std::vector<std::string> PortableExecutable::exportedNames() const
{
    const auto& table = At<IMAGE_EXPORT_DIRECTORY>(m_exports);
    std::vector<std::string> names;
    for (const DWORD name : std::span(&At<DWORD>(table.AddressOfNames), table.NumberOfNames))
    {
        names.push_back(TextAt(name));
    }
    return names;
}

std::uint32_t PortableExecutable::exportedFunctionCount() const
{
    return At<IMAGE_EXPORT_DIRECTORY>(m_exports).NumberOfFunctions;
}

std::vector<std::string> PortableExecutable::importedModules() const
{
    std::vector<std::string> modules;
    for (const auto* entry = &At<IMAGE_IMPORT_DESCRIPTOR>(m_imports); entry->Name != 0; ++entry)
    {
        modules.push_back(TextAt(entry->Name));
    }
    return modules;
}

std::vector<std::string> PortableExecutable::sectionNames() const
{
    std::vector<std::string> names;
    for (const IMAGE_SECTION_HEADER& section : SectionsOf(m_bytes))
    {
        const auto* const name =
            reinterpret_cast<const char*>(section.Name); // without a terminator when it is full
        names.emplace_back(name, strnlen(name, IMAGE_SIZEOF_SHORT_NAME));
    }
    return names;
}

std::uint16_t PortableExecutable::characteristics() const
{
    return HeadersOf(m_bytes).OptionalHeader.DllCharacteristics;
}

} // namespace norvepa::test

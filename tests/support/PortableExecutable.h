#pragma once

// A 64-bit program or library as a file: what it exports and what it imports.

#include <cstdint>
#include <string>
#include <vector>

namespace norvepa::test
{

class PortableExecutable
{
public:
    explicit PortableExecutable(const std::wstring& path); // throws when it isn't one

    [[nodiscard]] std::string exportedModuleName() const;
    [[nodiscard]] std::vector<std::string> exportedNames() const;   // in the file's order
    [[nodiscard]] std::uint32_t exportedFunctionCount() const;      // with those that have no name
    [[nodiscard]] std::vector<std::string> importedModules() const; // in the file's order
    [[nodiscard]] std::vector<std::string> sectionNames() const;    // in the file's order

    // What the system may do with it: bits of IMAGE_DLLCHARACTERISTICS.
    [[nodiscard]] std::uint16_t characteristics() const;

private:
    // The place of an address within the loaded image, in the file. Throws when there is none.
    template <typename Thing>
    [[nodiscard]] const Thing& At(std::uint32_t address) const;
    [[nodiscard]] std::string TextAt(std::uint32_t address) const;

    std::string m_bytes;
    std::uint32_t m_exports = 0;
    std::uint32_t m_imports = 0;
};

} // namespace norvepa::test

#pragma once

// A store to measure on: log devices of many parameters, with a board and a protocol that know them.

#include "support/StoreRoots.h"
#include "support/XmlFiles.h"

#include <cstddef>
#include <string>

namespace norvepa::bench
{

inline constexpr std::size_t ParametersOfADevice = 100;

// In LocalSettings, numbered from 0, each an "int" from 0 to 1000000 with the value of its number.
[[nodiscard]] std::wstring ParameterName(std::size_t number);

// Those parameters, and what the protocol says of them.
[[nodiscard]] test::XmlContent Parameters(std::size_t count);
[[nodiscard]] test::XmlContent ParameterConstraints();

class PlantStore
{
public:
    explicit PlantStore(std::size_t devices, std::size_t parameters = ParametersOfADevice);

    [[nodiscard]] static std::wstring deviceName(std::size_t number);
    [[nodiscard]] std::wstring devicePath(std::size_t number) const; // of its file
    [[nodiscard]] std::wstring logNamePath(const std::wstring& name) const;
    [[nodiscard]] std::wstring protocolPath() const;                         // of the one protocol's file
    [[nodiscard]] std::wstring protocolPath(const std::wstring& name) const; // of another one's
    [[nodiscard]] std::wstring folder() const { return m_roots.folder().path(); }

private:
    test::StoreRoots m_roots;
};

} // namespace norvepa::bench

#pragma once

// The settings counter as the tool has it that changes the settings.

#include "win/Handle.h"

#include <windows.h>

#include <cstdint>
#include <stdexcept>

namespace norvepa::test
{

class SharedCounter
{
public:
    SharedCounter()
        : m_mapping(OpenFileMappingA(FILE_MAP_WRITE, FALSE, "Global\\NorvTRACE_SECTION")),
          m_view(m_mapping, FILE_MAP_WRITE, sizeof(std::uint32_t))
    {
        if (!m_view)
        {
            throw std::runtime_error("there is no settings counter");
        }
    }

    void Set(std::uint32_t value) { *static_cast<volatile std::uint32_t*>(m_view.get()) = value; }
    [[nodiscard]] std::uint32_t Get() const { return *static_cast<volatile std::uint32_t*>(m_view.get()); }
    void Bump() { Set(Get() + 1 == 0 ? 1 : Get() + 1); }

private:
    win::Handle m_mapping;
    win::MappedView m_view;
};

} // namespace norvepa::test

#pragma once

// The ring as a viewer maps it: the bytes, whatever they are meant to be.

#include "win/Handle.h"

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>

namespace norvepa::test
{

class RingViewer
{
public:
    // Makes the mapping if it isn't there.
    explicit RingViewer(std::uint32_t bytes)
        : m_mapping(CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, bytes,
                                       "Global\\NorvSDD_Trace")),
          m_view(m_mapping, FILE_MAP_WRITE, 0)
    {
        if (!m_view)
        {
            throw std::runtime_error("the ring can't be mapped");
        }
    }

    RingViewer() : RingViewer(4096) {}

    [[nodiscard]] std::uint32_t Word(std::size_t offset) const
    {
        std::uint32_t word = 0;
        std::memcpy(&word, bytes() + offset, sizeof word);
        return word;
    }
    void SetWord(std::size_t offset, std::uint32_t word)
    {
        std::memcpy(bytes() + offset, &word, sizeof word);
    }
    void SetByte(std::size_t offset, char byte) { bytes()[offset] = byte; }
    [[nodiscard]] std::string Data(std::size_t count) const { return std::string(bytes() + 64, count); }

    void FillHeader(std::uint32_t ringBytes)
    {
        SetWord(4, ringBytes);
        SetWord(12, 1);
        SetWord(16, 1);
        SetWord(20, 1);
    }

private:
    [[nodiscard]] char* bytes() const { return static_cast<char*>(m_view.get()); }

    win::Handle m_mapping;
    win::MappedView m_view;
};

} // namespace norvepa::test

#pragma once

// The pair of alternating files, "base1.TRC" and "base2.TRC": when one is over the limit, the other one
// starts anew. Each line opens and closes its file, so that several processes can write the same pair.
//
// Callers must: hold the trace mutex.

#include <cstdint>
#include <string_view>

namespace norvepa
{

class TraceFile
{
public:
    // Goes on with the file that was written last.
    void Choose(std::string_view base) noexcept;

    // A line whose file can't be opened, or whose end can't be found, is lost.
    void Write(std::string_view base, std::int64_t bytesPerFile, std::string_view line) noexcept;

    [[nodiscard]] int number() const noexcept { return m_number; }

private:
    int m_number = 1; // or 2
};

} // namespace norvepa

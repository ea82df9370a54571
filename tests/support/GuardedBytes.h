#pragma once

// Bytes behind which no byte may be looked at: they end where a page does, and the next one can't be
// accessed. Who looks there ends the process.

#include <cstddef>
#include <string_view>

namespace norvepa::test
{

class GuardedBytes
{
public:
    // Room for texts of up to this size. Throws when there is no memory.
    explicit GuardedBytes(std::size_t room);
    GuardedBytes(const GuardedBytes&) = delete;
    GuardedBytes& operator=(const GuardedBytes&) = delete;
    ~GuardedBytes();

    // A copy of the text, good until the next one.
    [[nodiscard]] std::string_view Copy(std::string_view text);

private:
    char* m_begin;
    std::size_t m_room; // whole pages
};

} // namespace norvepa::test

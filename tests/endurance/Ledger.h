#pragma once

// What the workers have seen: how often each export was called, and what went wrong. All of it may be written
// by any thread, and takes no more memory than it has at the beginning, unless something is wrong.

#include "endurance/Deck.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

namespace norvepa::test
{

class Ledger
{
public:
    explicit Ledger(const std::vector<Call>& calls) : m_calls(calls), m_counts(calls.size()) {}

    void Enter(const Card& card, std::int32_t result, bool isIntact);

    [[nodiscard]] std::uint64_t total() const;
    [[nodiscard]] std::vector<std::string> rareCalls(
        std::uint64_t least) const; // the names of those below that
    [[nodiscard]] std::vector<std::string> faults() const;

private:
    void AddFault(std::string fault);

    const std::vector<Call>& m_calls;
    std::vector<std::atomic<std::uint64_t>> m_counts;
    mutable std::mutex m_mutex;
    std::vector<std::string> m_faults;
};

// Whether the header has a word for a result, or allows it by its number.
[[nodiscard]] bool IsDocumented(std::int32_t result);

} // namespace norvepa::test

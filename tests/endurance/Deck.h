#pragma once

// All the different calls of a run, by its seed. They are limited in number, so that the library has been
// asked all there is to ask once each has been made: what then goes on growing is a leak.

#include "endurance/Calls.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace norvepa::test
{

struct Card
{
    std::size_t call;     // its row
    std::uint64_t number; // of the draw
};

class Deck
{
public:
    // So many different calls of an export whose share is whole.
    Deck(std::uint64_t seed, std::uint32_t cardsEach);

    [[nodiscard]] const std::vector<Call>& calls() const { return m_calls; }
    [[nodiscard]] const Call& callOf(const Card& card) const { return m_calls[card.call]; }

    // One after the other, each once; then those that chance gives. Any thread may ask.
    [[nodiscard]] const Card& Deal();
    [[nodiscard]] bool IsDealtOut() const { return m_dealt >= m_cards.size(); }

private:
    std::vector<Call> m_calls;
    std::vector<Card> m_cards; // shuffled
    std::uint64_t m_seed;
    std::atomic<std::uint64_t> m_dealt = 0;
};

} // namespace norvepa::test

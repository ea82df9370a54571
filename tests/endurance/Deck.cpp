#include "endurance/Deck.h"

#include <algorithm>
#include <random>

namespace norvepa::test
{

Deck::Deck(std::uint64_t seed, std::uint32_t cardsEach) : m_calls(AllCalls()), m_seed(seed)
{
    constexpr std::uint32_t whole = Call{}.share;
    constexpr std::uint32_t fewest = 5;
    for (std::size_t call = 0; call < m_calls.size(); ++call)
    {
        const std::uint32_t cards = std::max(fewest, cardsEach * m_calls[call].share / whole);
        for (std::uint32_t card = 0; card < cards; ++card)
        {
            m_cards.push_back({call, Mixed(Mixed(seed, call), card)});
        }
    }
    std::ranges::shuffle(m_cards, std::mt19937_64(seed));
}

const Card& Deck::Deal()
{
    const std::uint64_t turn = m_dealt++;
    return m_cards[turn < m_cards.size() ? turn : Mixed(m_seed, turn) % m_cards.size()];
}

} // namespace norvepa::test

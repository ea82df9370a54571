#pragma once

// A thing of the whole module that is made when it is first wanted and then stays until the module goes: no
// destructor runs by itself, so code that runs during the process's exit may still use it.
//
// Callers may rely on: Get() and Publish() never wait, from any thread; what Get() has answered stays
// valid. When two threads publish at once one wins, and the loser's thing dies with its argument.
// Callers must not: let go of it but once all other threads are out of the module.

#include <atomic>
#include <memory>
#include <utility>

namespace norvepa::win
{

template <typename Thing>
class Lasting
{
public:
    constexpr Lasting() noexcept = default;
    Lasting(const Lasting&) = delete;
    Lasting& operator=(const Lasting&) = delete;
    ~Lasting() = default;

    // Null until something has been published.
    [[nodiscard]] Thing* Get() noexcept
    {
        return m_state.load(std::memory_order_acquire) == State::Ready ? std::addressof(m_room.thing)
                                                                       : nullptr;
    }

    void Publish(Thing&& thing) noexcept
    {
        State expected = State::Empty;
        if (!m_state.compare_exchange_strong(expected, State::Filling, std::memory_order_acquire))
        {
            return;
        }
        std::construct_at(std::addressof(m_room.thing), std::move(thing));
        m_state.store(State::Ready, std::memory_order_release);
    }

    // As before the first publication.
    void LetGo() noexcept
    {
        if (Thing* const thing = Get())
        {
            std::destroy_at(thing);
            m_state.store(State::Empty);
        }
    }

private:
    enum class State
    {
        Empty,
        Filling,
        Ready
    };

    // A union's member is neither made nor destroyed unless someone says so.
    union Room {
        constexpr Room() noexcept : none() {}
        Room(const Room&) = delete;
        Room& operator=(const Room&) = delete;
        // NOLINTNEXTLINE(modernize-use-equals-default) which would be deleted: the thing's may do something
        ~Room() {}

        char none;
        Thing thing;
    };

    std::atomic<State> m_state{State::Empty};
    Room m_room;
};

} // namespace norvepa::win

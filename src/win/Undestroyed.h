#pragma once

// A thing of the whole module that the run-time library doesn't destroy: a process that ends has stopped its
// other threads wherever they were, and what one of them was changing is better left alone.
//
// Callers may rely on: the thing is there from the module's static initialisation on. Callers must: destroy
// it themselves, once, when the module is unloaded from a process that goes on, with all other threads out of
// it.

#include <memory>
#include <utility>

namespace norvepa::win
{

template <typename Thing>
class Undestroyed
{
public:
    template <typename... Arguments>
    constexpr explicit Undestroyed(Arguments&&... arguments) : m_thing(std::forward<Arguments>(arguments)...)
    {
    }
    Undestroyed(const Undestroyed&) = delete;
    Undestroyed& operator=(const Undestroyed&) = delete;
    // NOLINTNEXTLINE(modernize-use-equals-default) which would be deleted: the thing's may do something
    ~Undestroyed() {}

    [[nodiscard]] constexpr Thing& get() noexcept { return m_thing; }
    void Destroy() noexcept { std::destroy_at(std::addressof(m_thing)); }

private:
    union {
        Thing m_thing;
    };
};

} // namespace norvepa::win

#pragma once

// A thing of the whole process that many threads read while any of them may replace it.
//
// Callers may rely on: what Get() lent is never changed and stays readable for as long as it is held,
// whatever is published meanwhile; nobody waits for a reader. Callers must not: expect to see a change that
// another thread is making at this moment.

#include <atomic>
#include <memory>
#include <utility>

namespace norvepa
{

template <typename Thing>
class Published
{
public:
    using Snapshot = std::shared_ptr<const Thing>;

    [[nodiscard]] Snapshot Get() const noexcept { return m_current.load(); } // never null

    // Publishes what `change` makes of a copy, unless it answers false. When another thread was faster,
    // `change` is called once more, with a copy of what that one has published.
    template <typename Change>
    void Update(const Change& change)
    {
        Snapshot before = Get();
        for (;;)
        {
            const auto after = std::make_shared<Thing>(*before);
            if (!change(*after) || m_current.compare_exchange_strong(before, after))
            {
                return;
            }
        }
    }

    // Publishes the thing as it was in the beginning.
    void Clear() noexcept { m_current.store(m_empty); }

private:
    const Snapshot m_empty = std::make_shared<const Thing>();
    std::atomic<Snapshot> m_current{m_empty};
};

} // namespace norvepa

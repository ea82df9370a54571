#pragma once

// A list of the whole process that only grows: many threads read it while any of them may add to it.
//
// Callers may rely on: a thing that is in the list stays where it is, unchanged, for as long as the list
// lives; nobody waits, and adding costs the same however long the list is. Callers must not: expect things
// that two threads add at once in a certain order.

#include <atomic>
#include <cstddef>
#include <memory>
#include <utility>

namespace norvepa
{

template <typename Thing>
class GrowingList
{
public:
    explicit GrowingList(std::size_t capacity) noexcept : m_freePlaces(capacity) {}
    GrowingList(const GrowingList&) = delete;
    GrowingList& operator=(const GrowingList&) = delete;
    ~GrowingList()
    {
        for (Node* node = m_first.load(); node != nullptr;)
        {
            const std::unique_ptr<Node> gone(node);
            node = gone->next.load();
        }
    }

    // The first that fits, in the order in which they were added; null when there is none.
    template <typename Fits>
    [[nodiscard]] const Thing* Find(const Fits& fits) const
    {
        for (const Node* node = m_first.load(); node != nullptr; node = node->next.load())
        {
            if (fits(node->thing))
            {
                return &node->thing;
            }
        }
        return nullptr;
    }

    // Nothing is added to a list that holds its capacity.
    void Append(Thing thing)
    {
        auto node = std::make_unique<Node>(std::move(thing));
        if (!TakePlace())
        {
            return;
        }

        // From where the end was lately, which is at most a few steps from where it is.
        Link* end = m_lateEnd.load();
        for (Node* occupant = nullptr; !end->compare_exchange_strong(occupant, node.get());
             occupant = nullptr)
        {
            end = &occupant->next;
        }
        m_lateEnd.store(&node.release()->next);
    }

private:
    struct Node;
    using Link = std::atomic<Node*>;

    struct Node
    {
        explicit Node(Thing&& content) : thing(std::move(content)) {}

        const Thing thing;
        Link next = nullptr;
    };

    [[nodiscard]] bool TakePlace() noexcept
    {
        std::size_t freePlaces = m_freePlaces.load();
        while (freePlaces > 0)
        {
            if (m_freePlaces.compare_exchange_weak(freePlaces, freePlaces - 1))
            {
                return true;
            }
        }
        return false;
    }

    std::atomic<std::size_t> m_freePlaces;
    Link m_first = nullptr;
    std::atomic<Link*> m_lateEnd = &m_first;
};

} // namespace norvepa

#pragma once

// A thing of the whole process that many threads read while any of them may replace it.
//
// Callers may rely on: what Get() lent is never changed and stays readable for as long as it is held,
// whatever is published meanwhile; nobody waits for a reader or a writer. A version that was replaced is
// freed by an update or clearing behind its last reader, once no other mark stands in its way. Callers must
// not: expect to see a change that another thread is making at this moment; or hold what was lent, of any
// published thing, while they update another as a matter of course: an update frees nothing that its own
// thread may be reading, and old versions pile up.

#include "win/Reading.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <utility>

namespace norvepa::win
{

// A pointer to something published, with the mark that keeps it readable; without a mark it is null.
template <typename Thing>
class Borrowed
{
public:
    using element_type = Thing; // as any pointer's

    Borrowed(std::nullptr_t = nullptr) noexcept {}
    Borrowed(Reading reading, Thing* thing) noexcept : m_reading(std::move(reading)), m_thing(thing) {}

    // Something that lives as long as the thing does, instead of the thing.
    template <typename Part>
    [[nodiscard]] Borrowed<Part> Along(Part* part) && noexcept
    {
        return {std::move(m_reading), part};
    }

    [[nodiscard]] Thing* get() const noexcept { return m_reading == nullptr ? nullptr : m_thing; }
    [[nodiscard]] Thing& operator*() const noexcept { return *get(); }
    [[nodiscard]] Thing* operator->() const noexcept { return get(); }
    [[nodiscard]] explicit operator bool() const noexcept { return get() != nullptr; }

    [[nodiscard]] bool operator==(const Borrowed& other) const noexcept { return get() == other.get(); }
    [[nodiscard]] bool operator==(std::nullptr_t) const noexcept { return get() == nullptr; }

private:
    Reading m_reading;
    Thing* m_thing = nullptr;
};

template <typename Thing>
class Published
{
public:
    Published() = default;
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    // Asks for no readers: when the module goes there are none, and when the process ends it has stopped all
    // other threads, some perhaps with their marks standing.
    ~Published()
    {
        Replace(m_beginning);
        for (Version* version = m_retired.load(); version != nullptr;)
        {
            const std::unique_ptr<Version> gone(version);
            version = gone->next;
        }
    }

    [[nodiscard]] Borrowed<const Thing> Get() const noexcept // never null
    {
        Reading reading = BeginReading();
        return {std::move(reading), &m_current.load()->thing};
    }

    // Publishes what `change` makes of a copy, unless it answers false. When another thread was faster,
    // `change` is called once more, with a copy of what that one has published.
    template <typename Change>
    void Update(const Change& change)
    {
        static_cast<void>(UpdateAndGet(change));
        Sweep();
    }

    // Likewise, and lends what `change` made, or declined to change. What was replaced goes with the next
    // update.
    template <typename Change>
    [[nodiscard]] Borrowed<const Thing> UpdateAndGet(const Change& change)
    {
        Sweep(); // ahead of the mark, which would hold up what it is to free

        // The mark also keeps the address of `before` from being given to a newer version, which would then
        // be taken for `before` and lost.
        Reading reading = BeginReading();
        Version* before = m_current.load();
        for (;;)
        {
            auto after = std::make_unique<Version>(before->thing);
            if (!change(after->thing))
            {
                return {std::move(reading), &before->thing};
            }
            if (m_current.compare_exchange_strong(before, after.get()))
            {
                Retire(before);
                return {std::move(reading), &after.release()->thing};
            }
        }
    }

    // Publishes the thing as it was in the beginning.
    void Clear() noexcept
    {
        Replace(m_beginning);
        Sweep();
    }

private:
    struct Version
    {
        Version() = default;
        explicit Version(Thing model) : thing(std::move(model)) {}

        Thing thing{};
        SlotSet readers = ~SlotSet(); // those that haven't been seen without marks since it was retired
        Version* next = nullptr;
    };

    static_assert(std::atomic<Version*>::is_always_lock_free);

    void Replace(Version& successor) noexcept { Retire(m_current.exchange(&successor)); }

    void Retire(Version* version) noexcept
    {
        if (version == &m_beginning)
        {
            return; // it will be published again, and lives as long as this
        }
        PutBack(version, *version);
    }

    // Versions that are linked from the first to the last.
    void PutBack(Version* first, Version& last) noexcept
    {
        last.next = m_retired.load();
        while (!m_retired.compare_exchange_weak(last.next, first))
        {
        }
    }

    // Frees the retired versions that nobody reads any more. Whoever takes them is alone with them; what
    // another thread has taken at this moment, that one frees or puts back.
    void Sweep() noexcept
    {
        Version* version = m_retired.exchange(nullptr);
        const SlotSet marked = MarkedSlots(); // asked when all of these had been replaced
        Version* firstRead = nullptr;
        Version* lastRead = nullptr;
        while (version != nullptr)
        {
            std::unique_ptr<Version> retired(version);
            version = retired->next;
            retired->readers &= marked;
            if (retired->readers.any())
            {
                retired->next = firstRead;
                firstRead = retired.release();
                lastRead = lastRead == nullptr ? firstRead : lastRead;
            }
        }
        if (firstRead != nullptr)
        {
            PutBack(firstRead, *lastRead);
        }
    }

    Version m_beginning; // is never changed: an update made from it holds also when it has been away and back
    std::atomic<Version*> m_current = &m_beginning; // never null
    std::atomic<Version*> m_retired = nullptr;
};

} // namespace norvepa::win

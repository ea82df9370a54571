#include "endurance/Endurance.h"

#include "endurance/Tour.h"
#include "support/Eventually.h"
#include "support/TemporaryFolder.h"

#include <windows.h>
#include <objbase.h>

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>
#include <thread>
#include <vector>

namespace norvepa::test
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr std::size_t Workers = Desks::Count - 1;
constexpr std::size_t PeersDesk = Workers;
constexpr std::chrono::seconds Shift{3};
constexpr DWORD Breath = 10; // milliseconds between two disturbances

// COM on this thread, in one of its forms or not at all.
class Apartment
{
public:
    explicit Apartment(std::optional<DWORD> form) : m_isThere(form.has_value())
    {
        if (m_isThere)
        {
            m_isThere = SUCCEEDED(CoInitializeEx(nullptr, *form));
        }
    }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
    ~Apartment()
    {
        if (m_isThere)
        {
            CoUninitialize();
        }
    }

private:
    bool m_isThere;
};

std::optional<DWORD> FormOf(std::size_t worker)
{
    constexpr std::array<std::optional<DWORD>, 3> forms{COINIT_APARTMENTTHREADED, COINIT_MULTITHREADED,
                                                        std::nullopt};
    return forms.at(worker % forms.size());
}

} // namespace

FilledRoots::FilledRoots()
{
    FillWithSampleStore();
    CopyTree(FromUtf8(NORV_SAMPLE_RESOURCES), program() + L"\\bin");
}

Endurance::Endurance(std::uint64_t seed, std::uint32_t cardsEach)
    : m_deck(seed, cardsEach), m_seed(seed), m_threadsAtRest(CountThreads())
{
    for (const wchar_t* const name : OwnedEvents)
    {
        m_events.emplace_back(name);
    }
    AskForAllRules(m_library);
    AskPeer("at " + ToUtf8(m_roots.folder().path()) + "|" NORV_SAMPLE_STORE);
}

void Endurance::Work(std::chrono::milliseconds time)
{
    const Time end = Clock::now() + time;
    while (Clock::now() < end || !m_deck.IsDealtOut())
    {
        WorkInAShift(Clock::now() + Shift);
    }
}

Endurance::State Endurance::Rest()
{
    AskPeer("heal");
    m_library.NorvepaBl64x_deinit();
    static_cast<void>(Eventually([&] { return CountThreads() <= m_threadsAtRest; }));
    return {CountProcessResources(), m_blocks.count()};
}

void Endurance::WorkInAShift(Time end)
{
    std::vector<std::jthread> workers;
    for (std::size_t worker = 0; worker < Workers; ++worker)
    {
        workers.emplace_back([this, worker, end] { Call(worker, end); });
    }
    Disturb(end);
}

void Endurance::Call(std::size_t worker, Time end)
{
    const Apartment apartment(FormOf(worker));
    while (Clock::now() < end)
    {
        const Card& card = m_deck.Deal();
        const test::Call& call = m_deck.callOf(card);
        Draw any(card.number);
        std::int32_t result = PGSP_OK;
        {
            const Desks::Task task(m_desks, worker, call.name, card.number);
            result = call.make(any, m_library);
        }
        m_ledger.Enter(card, result, any.isIntact());
    }
}

void Endurance::Disturb(Time end)
{
    while (Clock::now() < end)
    {
        const std::uint64_t number = Mixed(m_seed, ++m_disturbances);
        AskPeer("disturb " + std::to_string(number));
        Sleep(Breath);
    }
}

void Endurance::AskPeer(const std::string& command)
{
    const Desks::Task task(m_desks, PeersDesk, "the second process", m_disturbances);
    const std::string answer = m_peer.Ask(command);
    if (answer != "done")
    {
        throw std::runtime_error(command + ": " + answer);
    }
}

} // namespace norvepa::test

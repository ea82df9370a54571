#pragma once

// A small store, every export asked one question about it, and what came of that: what was answered, and how
// the store's files are afterwards.

#include "Beginning.h"
#include "FailingNew.h"
#include "support/DeviceStore.h"
#include "support/NamedEvent.h"
#include "support/StoreRoots.h"

#include <cstdint>
#include <functional>
#include <gmock/gmock.h>
#include <ostream>
#include <string>

namespace norvepa::test
{

// Two output buffers with their lengths, full of a mark.
struct Outputs
{
    static constexpr std::uint32_t Capacity = 300;
    static constexpr std::uint32_t Guard = 20; // behind them, not offered

    std::wstring first = std::wstring(Capacity + Guard, L'#');
    std::uint32_t firstLength = Capacity;
    std::wstring second = std::wstring(Capacity + Guard, L'#');
    std::uint32_t secondLength = Capacity;

    bool operator==(const Outputs&) const = default;
};

struct Outcome
{
    std::int32_t result = 0;
    Outputs outputs;

    bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out);

// An export with its question.
struct Question
{
    const char* name;
    std::function<std::int32_t(Outputs&)> ask;
    Outputs afterAFailure = {};
};

void PrintTo(const Question& question, std::ostream* out);

class SmallStore : public testing::Test
{
protected:
    SmallStore();
    ~SmallStore() override; // lets go of the folders, which are about to be removed

    // Everything as it was in the beginning.
    void WriteStore() const;

    [[nodiscard]] Files StoredFiles() const;

    // Of a file by its name there.
    [[nodiscard]] std::wstring PathOf(const std::wstring& name) const;

    // Of what the library has read and keeps, all that it ever lets go of.
    static void DropWhatIsKept();

    [[nodiscard]] static Outcome Ask(const Question& question);

    // Asks again and again, with the first allocation failing, then the second and so on, until there is none
    // left to fail. Each time `prepare` is called before and `look` after, with what came of it.
    static void AskWithEachAllocationFailing(const Question& question, Shortage shortage,
                                             const std::function<void()>& prepare,
                                             const std::function<void(const Outcome&)>& look);

    // The same with the DOM engine lacking memory for its first call, then for the second and so on. `look`
    // is also told whether there was a call to fail.
    static void AskWithEachEngineCallFailing(const Question& question, const std::function<void()>& prepare,
                                             const std::function<void(const Outcome&, bool)>& look);

    StoreRoots roots;
    const DeviceStore store{roots};
    NamedEvent event;
};

} // namespace norvepa::test

#pragma once

// A small store, every export asked one question about it, and what came of that: what was answered, and how
// the store's files are afterwards.

#include "FailingNew.h"
#include "support/DeviceStore.h"
#include "support/NamedEvent.h"
#include "support/StoreRoots.h"

#include <cstdint>
#include <functional>
#include <gmock/gmock.h>
#include <map>
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
};

void PrintTo(const Question& question, std::ostream* out);

using Files = std::map<std::wstring, std::string>; // by name, below the data folder

class SmallStore : public testing::Test
{
protected:
    SmallStore();
    ~SmallStore() override; // lets go of the folders, which are about to be removed

    // Everything as it was in the beginning.
    void WriteStore() const;

    [[nodiscard]] Files StoredFiles() const;

    // Of what the library has read and keeps, all that it ever lets go of.
    static void DropWhatIsKept();

    [[nodiscard]] static Outcome Ask(const Question& question);

    // Asks again and again, with the first allocation failing, then the second and so on, until there is none
    // left to fail. Each time `prepare` is called before and `look` after, with what came of it.
    static void AskWithEachAllocationFailing(const Question& question, Shortage shortage,
                                             const std::function<void()>& prepare,
                                             const std::function<void(const Outcome&)>& look);

    StoreRoots roots;
    const DeviceStore store{roots};
    NamedEvent event;
};

} // namespace norvepa::test

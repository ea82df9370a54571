#include "StoreWatchCommand.h"

#include "DisplayText.h"
#include "Interruption.h"
#include "Result.h"
#include "StoreWatch.h"
#include "norvepa.h"

#include <iostream>

#include <algorithm>
#include <array>
#include <ctime>
#include <fmt/chrono.h>
#include <fmt/format.h>
#include <optional>
#include <stdexcept>
#include <string_view>

namespace norvctl
{

namespace
{

// In milliseconds.
constexpr DWORD WhileBusy = 15;
constexpr ULONGLONG BetweenLooksAtFolders = 500;

struct WordRow
{
    std::string_view what;
    const char* words;
};

constexpr std::array<WordRow, 2> WordTable{{
    {"unreadable", "its file cannot be read"},
    {"gone", "the folder is gone"},
}};

std::string WordsFor(const StoreChange& change)
{
    const ValueChange& value = change.value;
    const std::string before = value.before.value_or("-");
    const std::string after = value.after.value_or("-");
    const std::string_view what = change.what;
    if (what == "value")
    {
        return fmt::format("{} {} -> {}", value.name, before, after);
    }
    if (what == "renamed")
    {
        return "renamed to " + after;
    }
    const auto row = std::find_if(WordTable.begin(), WordTable.end(),
                                  [=](const WordRow& each) { return each.what == what; });
    return row == WordTable.end() ? change.what : row->words;
}

Json OrNull(const std::optional<std::string>& text)
{
    return text ? Json(*text) : Json(nullptr);
}

std::string Now()
{
    return fmt::format("{:%H:%M:%S}", fmt::localtime(std::time(nullptr)));
}

// A line at once, whoever reads it.
class Lines
{
public:
    Lines(const Report& report, unsigned limit) : m_report(report), m_limit(limit) {}

    void PrintBeginning() const { Print("watching the store", {{"store", {}}, "watching", {}}); }

    // Of changes that come together those beyond the limit aren't told.
    void Tell(const StoreChange& change)
    {
        if (!IsFull())
        {
            Print(InWords(change.object) + ": " + WordsFor(change), change);
            ++m_count;
        }
    }

    [[nodiscard]] bool IsFull() const { return m_count >= m_limit; }
    [[nodiscard]] unsigned count() const { return m_count; }

private:
    void Print(const std::string& words, const StoreChange& change) const
    {
        if (m_report.json)
        {
            const Json line = {
                {"time", Now()},
                {"kind", change.object.kind},
                {"name", change.object.name},
                {"change", change.what},
                {"parameter", change.value.name.empty() ? Json(nullptr) : Json(change.value.name)},
                {"before", OrNull(change.value.before)},
                {"after", OrNull(change.value.after)}};
            std::cout << line.dump() << std::endl;
        }
        else
        {
            std::cout << Now() << ' ' << OnOneLine(words) << std::endl;
        }
        if (!std::cout)
        {
            throw std::runtime_error("the output cannot be written");
        }
    }

    const Report& m_report;
    unsigned m_limit;
    unsigned m_count = 0;
};

class StoreFollower
{
public:
    StoreFollower(const Report& report, const StoreWatchLimits& limits)
        : m_timeout(limits.timeout), m_lines(report, limits.count)
    {
    }

    void Run()
    {
        Require(m_data.Begin() ? PGSP_OK : PGSP_ERR_FOLDER_NOT_FOUND, "data");
        static_cast<void>(m_catalogue.Begin());
        m_lines.PrintBeginning();
        ULONGLONG lastChange = GetTickCount64();
        while (!m_lines.IsFull() && !m_interruption.HasCome())
        {
            const unsigned before = m_lines.count();
            Wait(lastChange);
            Look();
            const ULONGLONG now = GetTickCount64();
            lastChange = m_lines.count() == before ? lastChange : now;
            RequireChange(lastChange, now);
        }
    }

private:
    void Wait(ULONGLONG lastChange) const
    {
        std::array<HANDLE, 3> events{m_interruption.event()};
        DWORD count = 1;
        for (const StorePartWatch* part : {&m_data, &m_catalogue})
        {
            if (part->event() != nullptr)
            {
                events.at(count++) = part->event();
            }
        }
        WaitForMultipleObjects(count, events.data(), FALSE, LongestWait(lastChange));
    }

    [[nodiscard]] DWORD LongestWait(ULONGLONG lastChange) const
    {
        if (m_data.IsBusy() || m_catalogue.IsBusy())
        {
            return WhileBusy;
        }
        const ULONGLONG now = GetTickCount64();
        const ULONGLONG untilLook = m_nextLookAtFolders > now ? m_nextLookAtFolders - now : 0;
        const ULONGLONG end = lastChange + static_cast<ULONGLONG>(m_timeout * 1000);
        const ULONGLONG untilEnd = end > now ? end - now : 0;
        return static_cast<DWORD>(m_timeout > 0 ? std::min(untilLook, untilEnd) : untilLook);
    }

    void Look()
    {
        const ULONGLONG now = GetTickCount64();
        const bool looksAtFolders = now >= m_nextLookAtFolders;
        m_nextLookAtFolders = looksAtFolders ? now + BetweenLooksAtFolders : m_nextLookAtFolders;
        for (StorePartWatch* part : {&m_data, &m_catalogue})
        {
            part->TakeHeard();
            part->LookAtHeard();
            if (looksAtFolders)
            {
                part->LookAtFolder();
            }
        }
    }

    // What is being looked at may be a change.
    void RequireChange(ULONGLONG lastChange, ULONGLONG now) const
    {
        const bool isBusy = m_data.IsBusy() || m_catalogue.IsBusy();
        if (m_timeout > 0 && !isBusy && now - lastChange >= static_cast<ULONGLONG>(m_timeout * 1000))
        {
            throw std::runtime_error(fmt::format("no change of the store within {} s", m_timeout));
        }
    }

    double m_timeout;
    Interruption m_interruption;
    Lines m_lines;
    StorePartWatch m_data{StorePart::Data, [this](const StoreChange& change) { m_lines.Tell(change); }};
    StorePartWatch m_catalogue{StorePart::Catalogue,
                               [this](const StoreChange& change) { m_lines.Tell(change); }};
    ULONGLONG m_nextLookAtFolders = GetTickCount64() + BetweenLooksAtFolders;
};

} // namespace

void WatchStore(const Report& report, const StoreWatchLimits& limits)
{
    StoreFollower(report, limits).Run();
}

} // namespace norvctl

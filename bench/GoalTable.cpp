#include "GoalTable.h"

#include <array>
#include <cstdio>

namespace norvepa::bench
{

namespace
{

std::string Text(double number, const char* unit)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.4g %s", number, unit);
    return text.data();
}

} // namespace

void GoalTable::Ratio(const std::string& what, double limit, double measured)
{
    m_rows.push_back({what, "  ", limit, measured});
}

void GoalTable::Amount(const std::string& what, const char* unit, double limit, double measured)
{
    m_rows.push_back({what, unit, limit, measured});
}

void GoalTable::Told(const std::string& what, const char* unit, double measured)
{
    m_rows.push_back({what, unit, std::nullopt, measured});
}

void GoalTable::Print() const
{
    std::printf("\n%-76s %12s %12s\n", "goal (what : to what)", "limit", "measured");
    for (const Row& row : m_rows)
    {
        Print(row);
    }
    std::fflush(stdout);
}

void GoalTable::Print(const Row& row)
{
    const std::string limit = row.limit ? Text(*row.limit, row.unit) : "told";
    const char* const verdict = !row.limit ? "" : row.measured <= *row.limit ? "met" : "NOT met";
    std::printf("%-76s %12s %12s  %s\n", row.what.c_str(), limit.c_str(),
                Text(row.measured, row.unit).c_str(), verdict);
}

} // namespace norvepa::bench

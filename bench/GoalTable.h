#pragma once

// What was measured, beside what it is to be: gathered while the program measures, and printed as its last
// table.

#include <optional>
#include <string>
#include <vector>

namespace norvepa::bench
{

class GoalTable
{
public:
    // `what` of a ratio names both sides, with a colon between them. A goal is met up to its limit.
    void Ratio(const std::string& what, double limit, double measured);
    void Amount(const std::string& what, const char* unit, double limit, double measured);

    // Without a limit: for the reader to judge the others by.
    void Told(const std::string& what, const char* unit, double measured);

    void Print() const;

private:
    struct Row
    {
        std::string what;
        const char* unit;
        std::optional<double> limit;
        double measured;
    };

    static void Print(const Row& row);

    std::vector<Row> m_rows;
};

} // namespace norvepa::bench

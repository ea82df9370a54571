#include "exports_whole/Tally.h"

#include "support/TemporaryFolder.h"

#include <sstream>

namespace norvepa::test
{

namespace
{

// Neither stands in a value or in the name of a call.
constexpr char BetweenFields = '\t';
constexpr char BetweenRows = '|';

// Long texts differ at their begin.
std::string Shortened(const std::wstring& value)
{
    constexpr std::size_t most = 30;
    return "'" + ToUtf8(value.substr(0, most)) + (value.size() > most ? "...'" : "'");
}

std::string NextField(std::istream& row)
{
    std::string field;
    std::getline(row, field, BetweenFields);
    return field;
}

} // namespace

Tally::Tally(const std::string& line)
{
    std::istringstream rows(line);
    for (std::string text; std::getline(rows, text, BetweenRows);)
    {
        std::istringstream row(text);
        const std::string call = NextField(row);
        const std::int32_t result = std::stoi(NextField(row));
        const std::wstring value = FromUtf8(NextField(row));
        const bool isRight = NextField(row) == "right";
        m_counts[{call, {result, value}, isRight}] += std::stoull(NextField(row));
    }
}

void Tally::Count(const std::string& call, const Answer& answer, bool isRight)
{
    ++m_counts[{call, answer, isRight}];
}

void Tally::Add(const Tally& other)
{
    for (const auto& [row, count] : other.m_counts)
    {
        m_counts[row] += count;
    }
}

std::string Tally::line() const
{
    std::ostringstream line;
    for (const auto& [row, count] : m_counts)
    {
        line << row.call << BetweenFields << row.answer.result << BetweenFields << ToUtf8(row.answer.value)
             << BetweenFields << (row.isRight ? "right" : "wrong") << BetweenFields << count << BetweenRows;
    }
    return line.str();
}

std::vector<std::string> Tally::wrong() const
{
    const std::map<std::string, std::uint64_t> all = totals();
    std::vector<std::string> lines;
    for (const auto& [row, count] : m_counts)
    {
        if (!row.isRight)
        {
            lines.push_back(row.call + ": result " + std::to_string(row.answer.result) + ", " +
                            Shortened(row.answer.value) + ", " + std::to_string(count) + " of " +
                            std::to_string(all.at(row.call)) + " answers");
        }
    }
    return lines;
}

std::string Tally::calls() const
{
    std::string text;
    for (const auto& [call, count] : totals())
    {
        text += (text.empty() ? "" : ", ") + call + " " + std::to_string(count);
    }
    return text;
}

std::uint64_t Tally::total() const
{
    std::uint64_t total = 0;
    for (const auto& [row, count] : m_counts)
    {
        total += count;
    }
    return total;
}

std::map<std::string, std::uint64_t> Tally::totals() const
{
    std::map<std::string, std::uint64_t> totals;
    for (const auto& [row, count] : m_counts)
    {
        totals[row.call] += count;
    }
    return totals;
}

} // namespace norvepa::test

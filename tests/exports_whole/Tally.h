#pragma once

// How often which call has answered what, and whether that was right. Goes as one line from one process to
// another.

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace norvepa::test
{

// The value of a call that fails is empty.
struct Answer
{
    std::int32_t result;
    std::wstring value;

    auto operator<=>(const Answer&) const = default;
};

class Tally
{
public:
    Tally() = default;
    explicit Tally(const std::string& line); // of a tally elsewhere; throws when it isn't one

    void Count(const std::string& call, const Answer& answer, bool isRight);
    void Add(const Tally& other);

    [[nodiscard]] std::string line() const;

    // "call: result 8012, '', 3 of 5000 answers" for each answer that was not right.
    [[nodiscard]] std::vector<std::string> wrong() const;

    // "call 5000, other call 5000"
    [[nodiscard]] std::string calls() const;

    [[nodiscard]] std::uint64_t total() const;

private:
    struct Row
    {
        std::string call;
        Answer answer;
        bool isRight;

        auto operator<=>(const Row&) const = default;
    };

    [[nodiscard]] std::map<std::string, std::uint64_t> totals() const; // of each call

    std::map<Row, std::uint64_t> m_counts;
};

} // namespace norvepa::test

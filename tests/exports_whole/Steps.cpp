#include "exports_whole/Steps.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

namespace norvepa::test
{

namespace
{

struct StepRow
{
    std::string_view word;
    Step step;
};

constexpr std::array<StepRow, 8> StepTable{{
    {"ask-device", AskDevice},
    {"ask-name", AskName},
    {"look-at-device", LookAtDevice},
    {"look-at-name", LookAtName},
    {"set-device", SetDevice},
    {"set-name", SetName},
    {"delete-note", DeleteNote},
    {"swap-device", SwapDevice},
}};

} // namespace

Step StepCalled(std::string_view word)
{
    const auto row = std::ranges::find(StepTable, word, &StepRow::word);
    if (row == StepTable.end())
    {
        throw std::invalid_argument("no step " + std::string(word));
    }
    return row->step;
}

} // namespace norvepa::test

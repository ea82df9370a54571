#include "Questions.h"
#include "norvepa.h"
#include "support/XmlMeaning.h"

#include <set>
#include <sstream>

namespace norvepa::test
{
namespace
{

using testing::AnyOf;
using testing::Combine;
using testing::Values;
using testing::ValuesIn;

constexpr std::int32_t OutOfMemoryCode = 14; // the system's number

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream rest(text);
    for (std::string line; std::getline(rest, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

// A change of one log device, and how the store is ahead of it and behind it. There are hundreds of places to
// fail at: only that device's file is looked at each time, and what is kept of the others stays.
class StepwiseChange : public SmallStore
{
protected:
    explicit StepwiseChange(const Stepwise& asked) : change(asked), before(StoredFiles())
    {
        EXPECT_EQ(Ask(change.question).result, PGSP_OK);
        after = StoredFiles();
        oldLines = LinesOf(MeaningOf(before.at(name)));
        newLines = LinesOf(MeaningOf(after.at(name)));
        EXPECT_EQ(oldLines.size(), newLines.size());
    }

    void TearDown() override
    {
        Files now = StoredFiles();
        now.at(name) = before.at(name);
        EXPECT_EQ(now, before) << "another file has been touched";
    }

    void Prepare() const { WriteBytes(PathOf(name), before.at(name)); }

    void ExpectWholeOrEachValueOldOrNew(const Outcome& outcome)
    {
        const std::string now = ReadBytes(PathOf(name));
        if (outcome.result == PGSP_OK)
        {
            EXPECT_EQ(now, after.at(name));
            return;
        }
        EXPECT_EQ(outcome.result, OutOfMemoryCode);
        if (looked.insert(now).second)
        {
            ExpectEachValueOldOrNew(now);
        }
    }

    // The way back needs memory too: only where one step alone lacks it.
    void ExpectPutBackUnlessChanged(const Outcome& outcome) const
    {
        if (change.putBack != nullptr && outcome.result != PGSP_OK)
        {
            EXPECT_EQ(Value(change.putBack), putBackTo);
        }
    }

    const Stepwise& change;
    const std::wstring name = DeviceName(change.logDevice);
    const Files before;
    Files after;

private:
    [[nodiscard]] std::wstring Value(const wchar_t* parameter) const
    {
        Outputs o;
        EXPECT_EQ(LogDeviceGetValueBL(change.logDevice, parameter, o.first.data(), &o.firstLength), PGSP_OK);
        return o.first.c_str();
    }

    // None is gone either, and none is new.
    void ExpectEachValueOldOrNew(const std::string& bytes) const
    {
        const std::vector<std::string> lines = LinesOf(MeaningOf(bytes));
        ASSERT_EQ(lines.size(), oldLines.size());
        for (std::size_t i = 0; i < lines.size(); ++i)
        {
            EXPECT_THAT(lines[i], AnyOf(oldLines[i], newLines[i]));
        }
    }

    const std::wstring putBackTo = change.putBack == nullptr ? L"" : Value(change.putBack);
    std::vector<std::string> oldLines;
    std::vector<std::string> newLines;
    std::set<std::string> looked; // at what was found to be right once
};

using Case = std::tuple<Stepwise, Shortage>;

std::string NameOf(const testing::TestParamInfo<Case>& info)
{
    const auto& [change, shortage] = info.param;
    return std::string(change.question.name) +
           (shortage == Shortage::Passing ? "InAPassingShortage" : "InALastingShortage");
}

class AStepwiseChange : public StepwiseChange, public testing::WithParamInterface<Case>
{
protected:
    AStepwiseChange() : StepwiseChange(std::get<Stepwise>(GetParam())) {}
};

TEST_P(AStepwiseChange, ThatRunsOutOfMemoryLeavesEachValueOldOrNew)
{
    const Shortage shortage = std::get<Shortage>(GetParam());
    AskWithEachAllocationFailing(
        change.question, shortage, [&] { Prepare(); },
        [&](const Outcome& outcome) {
            ExpectWholeOrEachValueOldOrNew(outcome);
            if (shortage == Shortage::Passing)
            {
                ExpectPutBackUnlessChanged(outcome);
            }
        });
}

INSTANTIATE_TEST_SUITE_P(OfEachExport, AStepwiseChange,
                         Combine(ValuesIn(StepwiseChanges()), Values(Shortage::Passing, Shortage::Lasting)),
                         NameOf);

class AStepwiseChangeByAnEngine : public StepwiseChange, public testing::WithParamInterface<Stepwise>
{
protected:
    AStepwiseChangeByAnEngine() : StepwiseChange(GetParam()) {}
};

TEST_P(AStepwiseChangeByAnEngine, ThatLacksMemoryLeavesEachValueOldOrNew)
{
    AskWithEachEngineCallFailing(
        change.question, [&] { Prepare(); },
        [&](const Outcome& outcome, bool hasFailed) {
            EXPECT_EQ(outcome.result, hasFailed ? OutOfMemoryCode : PGSP_OK);
            ExpectWholeOrEachValueOldOrNew(outcome);
            ExpectPutBackUnlessChanged(outcome);
        });
}

// The two of L2: what the others ask of the engine they ask too.
INSTANTIATE_TEST_SUITE_P(OfBothKinds, AStepwiseChangeByAnEngine,
                         Values(StepwiseChanges()[1], StepwiseChanges()[3]),
                         [](const auto& each) { return std::string(each.param.question.name); });

} // namespace
} // namespace norvepa::test

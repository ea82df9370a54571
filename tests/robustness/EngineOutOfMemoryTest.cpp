#include "Questions.h"
#include "norvepa.h"
#include "support/WatchedEngine.h"

namespace norvepa::test
{
namespace
{

using testing::ValuesIn;

constexpr std::int32_t OutOfMemoryCode = 14; // the system's number

std::string NameOf(const testing::TestParamInfo<Question>& info)
{
    return info.param.name;
}

class EngineOutOfSmallStore : public SmallStore, public testing::WithParamInterface<Question>
{
protected:
    // Asks again and again, with the DOM engine lacking memory for its first call, then for the second and so
    // on, until there is none left. Each time the store is as in the beginning, and `look` is called with
    // what came of it and whether there was a call to fail.
    template <typename Look>
    void AskWithEachCallFailing(const Look& look) const
    {
        bool hasFailed = true;
        for (std::size_t nth = 1; hasFailed; ++nth)
        {
            SCOPED_TRACE("engine's call " + std::to_string(nth));
            WriteStore();
            DropWhatIsKept();
            Outcome outcome;
            {
                WatchedEngine engine;
                engine.FailAtCall(nth);
                outcome = Ask(GetParam());
                hasFailed = engine.hasFailed();
            }
            look(outcome, hasFailed);
        }
    }
};

using AReadOfAnEngine = EngineOutOfSmallStore;

TEST_P(AReadOfAnEngine, ThatLacksMemorySaysSoAndTouchesNothing)
{
    const Outcome normal = Ask(GetParam());
    ASSERT_EQ(normal.result, PGSP_OK);
    Outcome outOfMemory;
    outOfMemory.result = OutOfMemoryCode;

    AskWithEachCallFailing([&](const Outcome& outcome, bool hasFailed) {
        EXPECT_EQ(outcome, hasFailed ? outOfMemory : normal);
        EXPECT_EQ(Ask(GetParam()), normal); // and nothing false has been kept
    });
}

INSTANTIATE_TEST_SUITE_P(OfEachExport, AReadOfAnEngine, ValuesIn(Reads()), NameOf);

using AChangeByAnEngine = EngineOutOfSmallStore;

TEST_P(AChangeByAnEngine, ThatLacksMemoryIsNotMade)
{
    const Files before = StoredFiles();
    ASSERT_EQ(Ask(GetParam()).result, PGSP_OK);
    const Files after = StoredFiles();

    AskWithEachCallFailing([&](const Outcome& outcome, bool hasFailed) {
        EXPECT_EQ(outcome.result, hasFailed ? OutOfMemoryCode : PGSP_OK);
        EXPECT_EQ(StoredFiles(), hasFailed ? before : after);
    });
}

INSTANTIATE_TEST_SUITE_P(OfEachExport, AChangeByAnEngine, ValuesIn(Changes()), NameOf);

} // namespace
} // namespace norvepa::test

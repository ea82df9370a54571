#include "Questions.h"
#include "norvepa.h"

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
    // Each time the store is as in the beginning.
    template <typename Look>
    void AskWithEachCallFailing(const Look& look) const
    {
        const auto prepare = [this] {
            WriteStore();
            DropWhatIsKept();
        };
        AskWithEachEngineCallFailing(GetParam(), prepare, look);
    }
};

using AReadOfAnEngine = EngineOutOfSmallStore;

TEST_P(AReadOfAnEngine, ThatLacksMemorySaysSoAndTouchesNothing)
{
    const Outcome normal = Ask(GetParam());
    ASSERT_EQ(normal.result, PGSP_OK);
    const Outcome outOfMemory{OutOfMemoryCode, GetParam().afterAFailure};

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

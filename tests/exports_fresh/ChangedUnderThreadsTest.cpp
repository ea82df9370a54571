#include "FreshScene.h"
#include "support/AllAtOnce.h"
#include "support/Eventually.h"

#include <atomic>

namespace norvepa::test
{
namespace
{

using testing::AnyOf;

// Another process changes one byte of the file: no reader can meet half of the change.
class ChangedUnderThreads : public FreshScene
{
protected:
    static constexpr int Threads = 4;
    static constexpr int QuestionsAhead = 20;  // of all threads
    static constexpr int QuestionsBehind = 20; // of each
};

TEST_P(ChangedUnderThreads, IsOldOrNewAndOnceItIsToldOnlyNew)
{
    std::atomic<int> questions = 0;
    std::atomic<bool> isChanged = false;
    const auto change = [&] {
        EXPECT_TRUE(Eventually([&] { return questions >= QuestionsAhead; }));
        EXPECT_NO_THROW(place.Elsewhere("overwrite", {subject.twin(), subject.path()}));
        isChanged = true;
    };
    const auto ask = [&] {
        for (int behind = 0; behind < QuestionsBehind; ++questions)
        {
            if (isChanged)
            {
                EXPECT_EQ(subject.Ask(), kind.after.answer);
                ++behind;
            }
            else
            {
                EXPECT_THAT(subject.Ask(), AnyOf(kind.before.answer, kind.after.answer));
            }
        }
    };

    AllAtOnce(Threads + 1, [&](int thread) { thread == 0 ? change() : ask(); });

    EXPECT_EQ(subject.Ask(), kind.after.answer);
}

INSTANTIATE_TEST_SUITE_P(Each, ChangedUnderThreads, testing::ValuesIn(KindsAskedAtOnce()), NameOfKind);

} // namespace
} // namespace norvepa::test

#include "catalogue/CatalogueScene.h"
#include "catalogue/EveryQuestion.h"
#include "support/AllAtOnce.h"

#include <atomic>
#include <vector>

namespace norvepa::test
{
namespace
{

using ParallelQuestions = CatalogueScene;

constexpr int Threads = 8;
constexpr int Rounds = 25;

// Every thread begins at another question, so that the first to parse the file, to cache an answer and to
// drop both change all the time. The threads have no COM.
TEST_F(ParallelQuestions, AreAnsweredAsASingleOneIs)
{
    const std::vector<Question> questions =
        QuestionsSeeing({Sight::Now, Sight::Parsed, Sight::Answered, Sight::Remembered});
    const std::wstring file = File(FileAnswering(L"yes"));
    std::atomic<int> wrong = 0;
    std::atomic<int> right = 0;

    AllAtOnce(Threads, [&](int thread) {
        const std::size_t first = static_cast<std::size_t>(thread) * 3;
        for (std::size_t step = 0; step < Rounds * questions.size(); ++step)
        {
            const Question& question = questions[(first + step) % questions.size()];
            ++(question.ask(file.c_str(), L"yes") == PGSP_OK ? right : wrong);
            const PairAnswer last =
                PairOf([&](const PairBuffers& pair) { return NorvXMLEnumValue(file.c_str(), 99, pair); });
            ++(last == NoPair() ? right : wrong);
        }
    });

    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(right, 2 * Threads * Rounds * static_cast<int>(questions.size()));
}

} // namespace
} // namespace norvepa::test

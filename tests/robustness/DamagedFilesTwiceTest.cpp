// What a damaged file is taken for doesn't depend on whether it has been read before.

#include "Damage.h"
#include "Questions.h"
#include "norvepa.h"
#include "support/FileAge.h"
#include "xml/ImageCache.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace norvepa::test
{
namespace
{

// All files damaged at once, and old enough for the library to keep what it reads of them.
class DamagedFilesTwice : public SmallStore
{
protected:
    DamagedFilesTwice()
    {
        std::uint32_t number = 1'000;
        for (const auto& [name, bytes] : Beginning())
        {
            WriteBytes(PathOf(name), Damaged(bytes, number++));
        }
        WriteBytes(PathOf(L"last"), "");
        AwaitAge(PathOf(L"last"));
        DropWhatIsKept();
    }
    ~DamagedFilesTwice() override { DropWhatIsKept(); }

    [[nodiscard]] static std::vector<Outcome> AskAll()
    {
        std::vector<Outcome> outcomes;
        for (const Question& question : Reads())
        {
            outcomes.push_back(Ask(question));
        }
        return outcomes;
    }

    static void ExpectSame(const std::vector<Outcome>& outcomes, const std::vector<Outcome>& others)
    {
        for (std::size_t i = 0; i < outcomes.size(); ++i)
        {
            EXPECT_EQ(outcomes[i], others[i]) << Reads()[i].name;
        }
    }
};

TEST_F(DamagedFilesTwice, AreTakenForTheSame)
{
    DropImages();
    const std::vector<Outcome> cold = AskAll();

    const std::vector<Outcome> warm = AskAll();
    DropWhatIsKept();
    const std::vector<Outcome> byTheirImages = AskAll();
    DropWhatIsKept();
    DropImages();
    const std::vector<Outcome> coldAgain = AskAll();

    const auto answered = std::count_if(cold.begin(), cold.end(),
                                        [](const Outcome& outcome) { return outcome.result == PGSP_OK; });
    EXPECT_GE(answered, 5);
    EXPECT_LE(answered, static_cast<std::ptrdiff_t>(cold.size()) - 5);
    ExpectSame(warm, cold);
    ExpectSame(byTheirImages, cold);
    ExpectSame(coldAgain, cold);
}

} // namespace
} // namespace norvepa::test

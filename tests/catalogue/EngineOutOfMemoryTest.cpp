#include "catalogue/CatalogueScene.h"
#include "catalogue/EveryQuestion.h"
#include "support/WatchedEngine.h"

namespace norvepa::test
{
namespace
{

// The questions that are put to a document, with an engine that lacks memory for one call, whichever.
class EngineOutOfMemory : public CatalogueScene, public testing::WithParamInterface<Question>
{
};

INSTANTIATE_TEST_SUITE_P(, EngineOutOfMemory, testing::ValuesIn(QuestionsSeeing({Sight::NowAsDocument})),
                         NameOf);

TEST_P(EngineOutOfMemory, IsNoAnswer)
{
    const std::wstring path = File(FileAnswering(L"yes"));
    Result result{};

    WithEachEngineCallFailing([] {}, [&] { result = GetParam().ask(path.c_str(), L"yes"); },
                              [&](bool ranOut) { EXPECT_TRUE(ranOut || result == PGSP_OK); });
}

TEST_P(EngineOutOfMemory, HasNotMissedWhatIsAskedFor)
{
    const std::wstring path = File(SilentFile());
    Result result{};

    WithEachEngineCallFailing([] {}, [&] { result = GetParam().ask(path.c_str(), L"yes"); },
                              [&](bool ranOut) { EXPECT_TRUE(ranOut || result == GetParam().absent); });
}

} // namespace
} // namespace norvepa::test

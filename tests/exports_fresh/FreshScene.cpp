#include "FreshScene.h"

#include "FileTimes.h"

#include <filesystem>
#include <system_error>

namespace norvepa::test
{

std::unique_ptr<Place> FreshScene::suitesPlace;

void FreshScene::SetUpTestSuite()
{
    suitesPlace = std::make_unique<Place>();
    std::vector<std::wstring> paths;
    for (const std::string& test : TestsToRun())
    {
        const Subject made(*suitesPlace, KindOf(test), ObjectOf(test));
        made.Make();
        paths.insert(paths.end(), {made.path(), made.twin()});
    }
    AwaitSettled(paths);
}

void FreshScene::TearDownTestSuite()
{
    suitesPlace.reset();
}

void FreshScene::SetUp()
{
    for (int question = 0; question < 2; ++question)
    {
        ASSERT_EQ(subject.Ask(), kind.before.answer);
    }
}

// Enumerations and the index take their time with each file that is there.
void FreshScene::TearDown()
{
    std::error_code isGone;
    std::filesystem::remove(subject.path(), isGone);
}

} // namespace norvepa::test

#include "TraceScene.h"
#include "trace/TraceStatement.h"

#include <gmock/gmock.h>
#include <ostream>
#include <string>

namespace norvepa
{

namespace
{

using test::TraceScene;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr TraceSource source{"Test: ", "BL"};

struct FilterRow
{
    std::string name;
    std::wstring value;
    std::wstring passing;
    std::wstring failing;

    friend void PrintTo(const FilterRow& row, std::ostream* out) { *out << row.name; }
};

class TraceFilters : public testing::TestWithParam<FilterRow>
{
};

TEST_P(TraceFilters, LetThroughWhatMatches)
{
    TraceScene scene;
    TraceScene::Set(GetParam().value, GetParam().passing);
    scene.TraceToFiles(L"8");

    NORV_TRACE(source, TraceEntry, ">> LogDevice = x");

    EXPECT_THAT(scene.lines(), SizeIs(1));
}

TEST_P(TraceFilters, HoldBackWhatDoesNotMatch)
{
    TraceScene scene;
    TraceScene::Set(GetParam().value, GetParam().failing);
    scene.TraceToFiles(L"8");

    NORV_TRACE(source, TraceEntry, ">> LogDevice = x");

    EXPECT_THAT(scene.lines(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EveryFilter, TraceFilters,
                         testing::Values(FilterRow{"TraceId", L"TraceId", L"nvepbl64", L"nvepbl"},
                                         FilterRow{"Module", L"Module", L"XML bl", L"B ?BL"},
                                         FilterRow{"FctName", L"FctName", L"test:*", L"test:"},
                                         FilterRow{"String", L"String", L">> <<", L"LogDevice"}));

TEST(TraceFilters, MustAllPass)
{
    TraceScene scene;
    TraceScene::Set(L"Module", L"BL");
    TraceScene::Set(L"String", L"<<");
    scene.TraceToFiles(L"8");

    NORV_TRACE(source, TraceEntry, ">> entry");

    EXPECT_THAT(scene.lines(), IsEmpty());
}

TEST(TraceFilters, ModuleSeesTheComponentWordAsGiven)
{
    TraceScene scene;
    TraceScene::Set(L"Module", L"?BL");
    scene.TraceToFiles(L"8");

    NORV_TRACE(source, TraceEntry, "without a blank");
    NORV_TRACE((TraceSource{"Test: ", " BL"}), TraceEntry, "with a blank");

    EXPECT_THAT(scene.lines(), ElementsAre("Test:  with a blank "));
}

} // namespace

} // namespace norvepa

#include "exports_whole/WholeScene.h"

#include "exports_whole/Objects.h"
#include "support/Environment.h"
#include "support/XmlMeaning.h"

#include <algorithm>
#include <cstdio>

namespace norvepa::test
{

namespace
{

// A whole file is too long to be shown.
std::string FirstDifference(const std::string& actual, const std::string& expected)
{
    constexpr std::ptrdiff_t shown = 300;
    const auto [at, instead] = std::ranges::mismatch(actual, expected);
    return "'" + std::string(at, at + std::min(shown, actual.end() - at)) + "'\ninstead of '" +
           std::string(instead, instead + std::min(shown, expected.end() - instead)) + "'";
}

void ExpectOneOf(const std::wstring& file, const std::string& one, const std::string& other)
{
    const std::string actual = MeaningOfFile(file);
    const std::string first = MeaningOf(one);
    const std::string second = MeaningOf(other);
    EXPECT_TRUE(actual == first || actual == second)
        << FirstDifference(actual, first) << "\nand " << FirstDifference(actual, second);
}

} // namespace

WholeScene::WholeScene()
{
    WriteObjects(roots);
}

WholeScene::~WholeScene()
{
    library.NorvepaBl64x_deinit(); // a folder that is watched can't be removed
}

std::chrono::seconds WholeScene::Span()
{
    return std::chrono::seconds(FromEnvironment("NORV_WHOLE_SECONDS", 2));
}

void WholeScene::ExpectDeviceOfOneText() const
{
    ExpectOneOf(roots.logDevice(OurDevice), DeviceFileWith(TextOfRound(0)), DeviceFileWith(TextOfRound(1)));
}

void WholeScene::ExpectNameOfOneText() const
{
    ExpectOneOf(roots.logName(OurName), NameFileWith(TextOfRound(0)), NameFileWith(TextOfRound(1)));
}

void WholeScene::ExpectAllRight(const std::string& who, const Tally& tally)
{
    std::printf("%s: %s\n", who.c_str(), tally.calls().c_str());
    EXPECT_GT(tally.total(), 0U) << who;
    EXPECT_THAT(tally.wrong(), testing::IsEmpty()) << who;
}

} // namespace norvepa::test

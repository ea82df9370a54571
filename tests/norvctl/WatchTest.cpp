#include "support/Norvctl.h"

#include <memory>
#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;

const std::wstring LongEnough = L"60"; // seconds, for changes that come
const std::wstring Brief = L"3";       // for changes that don't

class NorvctlWatch : public Norvctl
{
};

TEST_F(NorvctlWatch, IsToldOfAChangeByAnotherProcess)
{
    Watch watch({L"watch", L"LogNames", L"--count", L"1", L"--timeout", LongEnough});

    OutputOfNorvctl({L"name", L"set", L"Lagerhaus", L"Tor", L"Nord"});

    const ProgramEnd end = watch.Finish();
    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_THAT(watch.firstLine, MatchesRegex("..:..:.. watching LogNames"));
    EXPECT_THAT(end.output, MatchesRegex("..:..:.. changed LogNames\n"));
    EXPECT_EQ(end.error, "");
}

TEST_F(NorvctlWatch, IsToldOfEachKindOfChange)
{
    Watch watch({L"watch", L"LogNames", L"--timeout", LongEnough});

    for (const Words& change :
         {Words{L"name", L"create", L"Mischer"}, Words{L"name", L"set", L"Mischer", L"Tor", L"Nord"},
          Words{L"name", L"unset", L"Mischer", L"Tor"}, Words{L"name", L"delete", L"Mischer"}})
    {
        OutputOfNorvctl(change);
        EXPECT_THAT(watch.ReadLine(), EndsWith(" changed LogNames"));
    }
}

TEST_F(NorvctlWatch, OfOneFileIsToldOfThatFileInAnyCase)
{
    OutputOfNorvctl({L"name", L"create", L"\u00D6lf\u00F6rderung \u03A9"});
    Watch watch(
        {L"watch", L"LogNames", L"\u00F6lf\u00F6rderung \u03C9", L"--count", L"1", L"--timeout", LongEnough});

    OutputOfNorvctl({L"name", L"delete", L"\u00D6LF\u00D6RDERUNG \u03A9"});

    const ProgramEnd end = watch.Finish();
    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_THAT(end.output, EndsWith(" changed LogNames, \u00F6lf\u00F6rderung \u03C9\n"));
}

TEST_F(NorvctlWatch, OfOneFileIsNotToldOfOthers)
{
    Watch ofAll({L"watch", L"LogNames", L"--count", L"1", L"--timeout", LongEnough});
    Watch ofAnother({L"watch", L"LogNames", L"Kessel#1", L"--count", L"1", L"--timeout", Brief});

    OutputOfNorvctl({L"name", L"set", L"Lagerhaus", L"Tor", L"Nord"});

    EXPECT_EQ(ofAll.Finish().exitCode, 0U);
    const ProgramEnd end = ofAnother.Finish();
    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: no change of LogNames within 3 s\n");
}

TEST_F(NorvctlWatch, OfAnotherFolderIsNotToldOfLogNames)
{
    Watch watch({L"watch", L"LogDevices", L"--count", L"1", L"--timeout", Brief});

    OutputOfNorvctl({L"name", L"set", L"Lagerhaus", L"Tor", L"Nord"});

    EXPECT_EQ(watch.Finish().exitCode, 1U);
}

TEST_F(NorvctlWatch, IsNotToldOfAValueThatWasTheSame)
{
    OutputOfNorvctl({L"name", L"set", L"Lagerhaus", L"Tor", L"Nord"});
    Watch watch({L"watch", L"LogNames", L"--count", L"1", L"--timeout", Brief});

    OutputOfNorvctl({L"name", L"set", L"Lagerhaus", L"Tor", L"Nord"});

    EXPECT_EQ(watch.Finish().exitCode, 1U);
}

TEST_F(NorvctlWatch, IsNotToldOfAChangeThatWasRefused)
{
    Watch watch({L"watch", L"LogNames", L"--count", L"1", L"--timeout", Brief});

    EXPECT_EQ(RunNorvctl({L"name", L"create", L"Lagerhaus"}).exitCode, 1U);

    EXPECT_EQ(watch.Finish().exitCode, 1U);
}

TEST_F(NorvctlWatch, EndsAfterSoManyChanges)
{
    Watch watch({L"watch", L"LogNames", L"--count", L"2", L"--timeout", LongEnough});

    OutputOfNorvctl({L"name", L"create", L"Mischer"});
    const std::string first = watch.ReadLine();
    OutputOfNorvctl({L"name", L"delete", L"Mischer"});

    const ProgramEnd end = watch.Finish();
    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_THAT(first, EndsWith(" changed LogNames"));
    EXPECT_THAT(end.output, MatchesRegex("..:..:.. changed LogNames\n"));
}

TEST_F(NorvctlWatch, AsJsonPrintsADocumentALine)
{
    Watch watch(
        {L"--json", L"watch", L"LogNames", L"K\u00FChler", L"--count", L"1", L"--timeout", LongEnough});

    OutputOfNorvctl({L"name", L"create", L"K\u00FChler"});

    json first = json::parse(watch.firstLine);
    json second = json::parse(watch.Finish().output);
    EXPECT_THAT(first.at("time").get<std::string>(), MatchesRegex("..:..:.."));
    first.erase("time");
    second.erase("time");
    EXPECT_EQ(first, (json{{"event", "watching"}, {"folder", "LogNames"}, {"file", "K\u00FChler"}}));
    EXPECT_EQ(second, (json{{"event", "changed"}, {"folder", "LogNames"}, {"file", "K\u00FChler"}}));
}

TEST_F(NorvctlWatch, AllOfSeveralAreTold)
{
    Watch first({L"watch", L"LogNames", L"--count", L"1", L"--timeout", LongEnough});
    Watch second({L"watch", L"LogNames", L"--count", L"1", L"--timeout", LongEnough});
    Watch ofTheFile({L"watch", L"LogNames", L"Lagerhaus", L"--count", L"1", L"--timeout", LongEnough});

    OutputOfNorvctl({L"name", L"set", L"Lagerhaus", L"Tor", L"Nord"});

    EXPECT_EQ(first.Finish().exitCode, 0U);
    EXPECT_EQ(second.Finish().exitCode, 0U);
    EXPECT_EQ(ofTheFile.Finish().exitCode, 0U);
}

TEST_F(NorvctlWatch, TheNinthOfTheSameIsRefused)
{
    std::vector<std::unique_ptr<Watch>> watches;
    for (int i = 0; i < 8; ++i)
    {
        watches.push_back(std::make_unique<Watch>(Words{L"watch", L"LogNames"}));
    }

    const ProgramEnd ninth = RunNorvctl({L"watch", L"LogNames", L"--timeout", Brief});

    EXPECT_EQ(ninth.exitCode, 1U);
    EXPECT_EQ(ninth.output, "");
    EXPECT_THAT(ninth.error, HasSubstr("as many watches of this already as there can be"));
}

} // namespace
} // namespace norvepa::test

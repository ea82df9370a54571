#include "trace/TracePattern.h"

#include <gtest/gtest.h>
#include <string>

namespace norvepa
{

namespace
{

TEST(TracePattern, PlainTextMatchesItselfWithoutRegardToCase)
{
    EXPECT_TRUE(MatchesWhole("LogDevice", "logDEVICE"));
    EXPECT_FALSE(MatchesWhole("LogDevice", "LogName"));
}

TEST(TracePattern, WholeMatchWantsTheTextUsedUp)
{
    EXPECT_FALSE(MatchesWhole("Log", "LogDevice"));
    EXPECT_FALSE(MatchesWhole("LogDevice", "Log"));
    EXPECT_FALSE(MatchesWhole("", "Log"));
    EXPECT_TRUE(MatchesWhole("", ""));
}

TEST(TracePattern, PrefixMatchWantsThePatternUsedUp)
{
    EXPECT_TRUE(MatchesPrefix("log", "LogDevice"));
    EXPECT_TRUE(MatchesPrefix("", "LogDevice"));
    EXPECT_FALSE(MatchesPrefix("LogDevice", "Log"));
    EXPECT_FALSE(MatchesPrefix("Device", "LogDevice"));
}

TEST(TracePattern, StarStandsForAnyRunAlsoForNone)
{
    EXPECT_TRUE(MatchesWhole("*", ""));
    EXPECT_TRUE(MatchesWhole("*", "anything at all"));
    EXPECT_TRUE(MatchesWhole("Log*BL", "LogBL"));
    EXPECT_TRUE(MatchesWhole("Log*BL", "LogDeviceGetValueBL"));
    EXPECT_TRUE(MatchesWhole("a**b", "a---b"));
    EXPECT_FALSE(MatchesWhole("Log*BL", "LogDeviceGetValue"));
}

TEST(TracePattern, QuestionMarkStandsForExactlyOneCharacter)
{
    EXPECT_TRUE(MatchesWhole("?BL", " BL"));
    EXPECT_FALSE(MatchesWhole("?BL", "BL"));
    EXPECT_TRUE(MatchesWhole("*?e", "abcde"));
    EXPECT_FALSE(MatchesWhole("*?", ""));
}

TEST(TracePattern, BackslashMakesTheNextCharacterLiteral)
{
    EXPECT_TRUE(MatchesWhole("a\\*c", "a*c"));
    EXPECT_FALSE(MatchesWhole("a\\*c", "abc"));
    EXPECT_TRUE(MatchesWhole("a\\?c", "a?c"));
    EXPECT_FALSE(MatchesWhole("a\\?c", "abc"));
    EXPECT_TRUE(MatchesWhole("C:\\\\Tmp", "C:\\Tmp"));
    EXPECT_TRUE(MatchesWhole("\\L", "l"));
    EXPECT_TRUE(MatchesWhole("*\\*", "stars * and more *"));
}

TEST(TracePattern, BackslashAtTheEndStandsForItself)
{
    EXPECT_TRUE(MatchesWhole("a\\", "a\\"));
    EXPECT_FALSE(MatchesWhole("a\\", "a"));
}

TEST(TracePattern, MismatchGoesBackToTheLastStar)
{
    EXPECT_TRUE(MatchesWhole("*ab", "aaab"));
    EXPECT_TRUE(MatchesWhole("*return*87", "<< return lRet = 8, then 87"));
    EXPECT_TRUE(MatchesWhole("a*b*c", "aXbYbZc"));
    EXPECT_TRUE(MatchesPrefix("*value*=", "Name, Value and dwValue = 5"));
    EXPECT_FALSE(MatchesWhole("a*b*c", "aXbYbZ"));
}

TEST(TracePattern, WholeMatchTakesTheLastOccurrenceWhenTheFirstLeavesARest)
{
    EXPECT_TRUE(MatchesWhole("*b", "abab"));
}

TEST(TracePattern, CharactersBehindTheFirst256DoNotCount)
{
    const std::string text = std::string(256, 'a') + "b";

    EXPECT_FALSE(MatchesWhole("*b", text));
    EXPECT_TRUE(MatchesWhole(std::string(256, 'a'), text));
}

TEST(PatternList, EmptyListPassesEverything)
{
    const PatternList list;

    EXPECT_TRUE(list.PassesWhole("anything"));
    EXPECT_TRUE(list.PassesPrefix(""));
}

TEST(PatternList, PassesWhenAnyPatternMatches)
{
    const PatternList list("XML BL");

    EXPECT_TRUE(list.PassesWhole("XML"));
    EXPECT_TRUE(list.PassesWhole("bl"));
    EXPECT_FALSE(list.PassesWhole(" BL"));
    EXPECT_TRUE(list.PassesPrefix("blank"));
    EXPECT_FALSE(list.PassesPrefix("able"));
}

TEST(PatternList, TwoBlanksInARowMakeAnEmptyPattern)
{
    const PatternList list("one  two");

    EXPECT_TRUE(list.PassesPrefix("three"));
    EXPECT_FALSE(list.PassesWhole("three"));
    EXPECT_TRUE(list.PassesWhole(""));
}

TEST(PatternList, BlankAtTheEndMakesAnEmptyPattern)
{
    EXPECT_TRUE(PatternList("one ").PassesPrefix("three"));
    EXPECT_FALSE(PatternList("one").PassesPrefix("three"));
}

TEST(PatternList, HoldsOneHundredPatternsAndIgnoresTheRest)
{
    std::string ninetyNine;
    for (int count = 0; count < 99; ++count)
    {
        ninetyNine += "a ";
    }

    EXPECT_TRUE(PatternList(ninetyNine + "b").PassesWhole("b"));
    EXPECT_FALSE(PatternList(ninetyNine + "a b").PassesWhole("b"));
}

} // namespace

} // namespace norvepa

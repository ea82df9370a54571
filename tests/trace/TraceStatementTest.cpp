#include "trace/TraceStatement.h"

#include "TraceScene.h"

#include <windows.h>

#include <cerrno>
#include <cstdio>
#include <gmock/gmock.h>
#include <string>

namespace norvepa
{

namespace
{

using test::TraceScene;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr TraceSource source{"LogDeviceGetValueBL: ", " BL"};

TEST(TraceStatement, SwitchedOffEvaluatesNoneOfItsArguments)
{
    int evaluated = 0;
    const auto evaluate = [&] { return ++evaluated; };

    NORV_TRACE(source, TraceEntry, "%d", evaluate());

    EXPECT_EQ(evaluated, 0);
}

TEST(TraceStatement, SwitchedOnWritesItsLine)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");

    NORV_TRACE(source, TraceEntry, ">> LogDevice = %s, count = %d", TraceToAnsi(L"Kessel"), 5);

    EXPECT_THAT(scene.lines(), ElementsAre("LogDeviceGetValueBL:  >> LogDevice = Kessel, count = 5 "));
}

TEST(TraceStatement, NamesItsSourceFileAndLine)
{
    TraceScene scene;
    TraceScene::Set(L"Format", L"LONG");
    TraceScene::Set(L"Level", L"8");
    scene.SetFiles();
    TraceScene::ReadSettings();

    const int lineAhead = __LINE__;
    NORV_TRACE(source, TraceEntry, "text");

    ASSERT_EQ(scene.lines().size(), 1u);
    char expected[32] = "";
    std::snprintf(expected, sizeof expected, " TraceStateme,%05d ", lineAhead + 1);
    EXPECT_THAT(scene.lines().front(), testing::HasSubstr(expected));
}

TEST(TraceStatement, OnlyLevelsOfTheMaskAreWritten)
{
    TraceScene scene;
    scene.TraceToFiles(L"0x88");

    NORV_TRACE(source, TraceEntry, "entry");
    NORV_TRACE(source, TraceWarning, "warning");
    NORV_TRACE(source, TraceInfo, "information");
    NORV_TRACE(source, TraceExit, "exit");

    EXPECT_THAT(scene.lines(), ElementsAre("LogDeviceGetValueBL:  entry ", "LogDeviceGetValueBL:  exit "));
}

TEST(TraceStatement, LeavesErrnoAlone)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    test::MakeFolders(scene.file(1)); // so that the output fails

    errno = ERANGE;
    NORV_TRACE(source, TraceEntry, "text");

    EXPECT_EQ(errno, ERANGE);
}

TEST(TraceStatement, IsOneStatementForTheLanguage)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");

    if (scene.lines().empty())
        NORV_TRACE(source, TraceEntry, "first");
    else
        NORV_TRACE(source, TraceEntry, "second");

    EXPECT_EQ(scene.lines().size(), 1u);
}

TEST(TraceFormat, FormatsLikePrintf)
{
    EXPECT_STREQ(TraceFormat("lRet = %d, Value = %s", -5, "text"), "lRet = -5, Value = text");
}

TEST(TraceFormat, CutsAt1023CharactersAndTerminates)
{
    const std::string text(2000, 'x');

    EXPECT_EQ(TraceFormat("%s", text.c_str()), std::string(1023, 'x'));
}

TEST(TraceFormat, HasOneBuffer)
{
    const char* first = TraceFormat("first");
    const char* second = TraceFormat("second");

    EXPECT_EQ(first, second);
    EXPECT_STREQ(first, "second");
}

TEST(TraceToAnsi, ConvertsToTheCodePageOfTheMachine)
{
    const wchar_t text[] = L"Kl\u00E4ranlage \u03A9";
    char expected[64] = "";
    WideCharToMultiByte(CP_ACP, 0, text, -1, expected, sizeof expected, nullptr, nullptr);

    EXPECT_STREQ(TraceToAnsi(text), expected);
}

TEST(TraceToAnsi, FiveStringsStandInOneStatement)
{
    const char* texts[] = {TraceToAnsi(L"one"), TraceToAnsi(L"two"), TraceToAnsi(L"three"),
                           TraceToAnsi(L"four"), TraceToAnsi(L"five")};

    EXPECT_THAT(texts, ElementsAre(testing::StrEq("one"), testing::StrEq("two"), testing::StrEq("three"),
                                   testing::StrEq("four"), testing::StrEq("five")));
}

TEST(TraceToAnsi, SixthStringTakesTheSlotOfTheFirst)
{
    const char* first = TraceToAnsi(L"one");
    for (const wchar_t* text : {L"two", L"three", L"four", L"five"})
    {
        EXPECT_NE(TraceToAnsi(text), first);
    }

    EXPECT_EQ(TraceToAnsi(L"six"), first);
    EXPECT_STREQ(first, "six");
}

TEST(TraceToAnsi, NullIsEmptyAndTakesNoSlot)
{
    const wchar_t* const none = nullptr;
    const char* first = TraceToAnsi(L"one");
    for (int count = 0; count < 10; ++count)
    {
        EXPECT_STREQ(TraceToAnsi(none), "");
    }

    EXPECT_STREQ(first, "one");
}

TEST(TraceToAnsi, EmptyStringIsEmpty)
{
    EXPECT_STREQ(TraceToAnsi(L"full"), "full");
    EXPECT_STREQ(TraceToAnsi(L""), "");
}

TEST(TraceToAnsi, CutsAtTheEndOfItsSlot)
{
    EXPECT_EQ(TraceToAnsi(std::wstring(599, L'x').c_str()), std::string(599, 'x'));
    EXPECT_EQ(TraceToAnsi(std::wstring(600, L'x').c_str()), std::string(599, 'x'));
    EXPECT_EQ(TraceToAnsi(std::wstring(100'000, L'x').c_str()), std::string(599, 'x'));
}

TEST(TraceToAnsi, LeavesNothingOfALongerStringInTheSlot)
{
    const char* slot = TraceToAnsi(std::wstring(599, L'x').c_str());
    for (int count = 0; count < 5; ++count)
    {
        static_cast<void>(TraceToAnsi(L"y"));
    }

    EXPECT_EQ(std::string(slot, 3), std::string("y\0\0", 3));
}

TEST(TraceToAnsi, ReadsNoFurtherThanTheCapacity)
{
    const wchar_t unterminated[] = {L'a', L'b', L'c'};

    EXPECT_STREQ(TraceToAnsi(unterminated, 3), "abc");
    EXPECT_STREQ(TraceToAnsi(unterminated, 2), "ab");
    EXPECT_STREQ(TraceToAnsi(unterminated, 0), "");
    EXPECT_STREQ(TraceToAnsi(L"a", 100), "a");
    EXPECT_STREQ(TraceToAnsi(nullptr, 100), "");
}

} // namespace

} // namespace norvepa

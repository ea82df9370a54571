#pragma once

// The queries as one table, for what they have in common: each asks a question about the same document, which
// is made for one answer to all of them.

#include "frame/Result.h"

#include <gmock/gmock.h>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{

// The file that a query opens for a name.
enum class NameOnDisk
{
    AsGiven,
    Escaped,
    EscapedTwice
};

// What of a file a query sees.
enum class Sight
{
    Now,           // what it says
    NowAsDocument, // likewise, up to 10,000,000 bytes and with COM
    Parsed,        // what it said at the first question
    Answered,      // likewise; the answer also when the parsed document was dropped
    Remembered     // the first answer for good, for this very path
};

struct Question
{
    const char* name;
    NameOnDisk nameOnDisk;
    Sight sight;
    Result missing; // without a file
    Result absent;  // with a file that doesn't hold it

    // PGSP_OK when the file gives this answer, OtherAnswer when it gives another one.
    Result (*ask)(const wchar_t* filePath, const wchar_t* answer);
};

inline constexpr Result OtherAnswer{-2};

void PrintTo(const Question& question, std::ostream* out);
[[nodiscard]] std::string NameOf(const testing::TestParamInfo<Question>& info);

[[nodiscard]] const std::vector<Question>& EveryQuestion();

// Those that don't add ".xml" without looking, and those that see the file in one of these ways.
[[nodiscard]] std::vector<Question> ExtendingQuestions();
[[nodiscard]] std::vector<Question> QuestionsSeeing(std::initializer_list<Sight> sights);

// The file that gives this answer to all questions, and one that holds nothing of what they ask for.
[[nodiscard]] std::string FileAnswering(std::wstring_view answer);
[[nodiscard]] std::string SilentFile();

} // namespace norvepa::test

#include "norvepa.hpp"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <map>
#include <regex>
#include <type_traits>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

const Error NotThere("LogDeviceGetValueBL", PGSP_ERR_PARAM_NOT_FOUND);

TEST(WrapperResult, HoldsAValue)
{
    const Result<std::wstring> result(L"1500000");

    EXPECT_TRUE(result.has_value());
    EXPECT_TRUE(static_cast<bool>(result));
    EXPECT_EQ(result.value(), L"1500000");
    EXPECT_EQ(*result, L"1500000");
    EXPECT_EQ(result->size(), 7U);
    EXPECT_EQ(result.value_or(L"-"), L"1500000");
}

TEST(WrapperResult, HoldsAnErrorInstead)
{
    const Result<std::wstring> result(NotThere);

    EXPECT_FALSE(result.has_value());
    EXPECT_FALSE(static_cast<bool>(result));
    EXPECT_EQ(result.error(), NotThere);
    EXPECT_EQ(result.value_or(L"-"), L"-");
    EXPECT_EQ(Result<std::wstring>(NotThere).value_or(L"-"), L"-");
}

TEST(WrapperResult, ThrowsWhenAValueIsTakenThatIsNotThere)
{
    const Result<std::wstring> result(NotThere);

    try
    {
        static_cast<void>(result.value());
        FAIL() << "has a value";
    }
    catch (const Failure& failure)
    {
        EXPECT_EQ(failure.error(), NotThere);
        EXPECT_STREQ(failure.what(), "LogDeviceGetValueBL: 8513 PGSP_ERR_PARAM_NOT_FOUND");
    }
    EXPECT_THROW(static_cast<void>(*result), Failure);
    EXPECT_THROW(static_cast<void>(result->size()), Failure);
    EXPECT_THROW(static_cast<void>(Result<std::wstring>(NotThere).value()), Failure);
}

TEST(WrapperResult, ThrowsWhenAnErrorIsTakenThatIsNotThere)
{
    EXPECT_THROW(static_cast<void>(Result<std::wstring>(L"x").error()), std::bad_variant_access);
    EXPECT_THROW(static_cast<void>(Result<void>().error()), std::bad_optional_access);
}

TEST(WrapperResult, WithoutAValueTellsSuccessAlone)
{
    const Result<void> success;
    const Result<void> failure(NotThere);

    EXPECT_TRUE(success.has_value());
    EXPECT_NO_THROW(success.value());
    EXPECT_FALSE(failure.has_value());
    EXPECT_EQ(failure.error(), NotThere);
    EXPECT_THROW(failure.value(), Failure);
}

// Success would be taken for the answer.
TEST(WrapperResult, OfABoolIsNoBool)
{
    EXPECT_FALSE((std::is_constructible_v<bool, Result<bool>>));
    EXPECT_TRUE((std::is_constructible_v<bool, Result<std::wstring>>));
    EXPECT_TRUE((std::is_constructible_v<bool, Result<void>>));
}

TEST(WrapperResult, ThatIsTemporaryGivesItsValueAway)
{
    const auto texts = [] { return Result<std::vector<std::wstring>>({L"a", L"b"}); };

    std::vector<std::wstring> seen;
    for (const std::wstring& text : texts().value()) // which has to outlive the Result
    {
        seen.push_back(text);
    }

    EXPECT_THAT(seen, ElementsAre(L"a", L"b"));
}

TEST(WrapperResult, GivesItsValueOnWhenItIsMoved)
{
    Result<std::vector<std::wstring>> result({L"a"});

    const Result<std::vector<std::wstring>> moved = std::move(result);

    EXPECT_THAT(moved.value(), ElementsAre(L"a"));
    EXPECT_TRUE(result.has_value()) << "has still some value"; // NOLINT(bugprone-use-after-move)
}

TEST(WrapperError, TellsTheCallAndTheCode)
{
    EXPECT_EQ(NotThere.code(), 8513);
    EXPECT_STREQ(NotThere.call(), "LogDeviceGetValueBL");
    EXPECT_EQ(NotThere.Message(), "LogDeviceGetValueBL: 8513 PGSP_ERR_PARAM_NOT_FOUND");
    EXPECT_EQ(Error("CreateEventW", 6).Message(), "CreateEventW: 6");
}

TEST(WrapperError, IsTheSameOfTheSameCallAndCode)
{
    const std::string copy = NotThere.call();

    EXPECT_EQ(NotThere, Error(copy.c_str(), 8513));
    EXPECT_NE(NotThere, Error(NotThere.call(), 8508));
    EXPECT_NE(NotThere, Error("LogNameGetValueBL", 8513));
}

TEST(WrapperError, HasAWordForEachCodeOfTheHeader)
{
    const std::string header = ReadBytes(FromUtf8(NORV_PUBLIC_HEADER));
    const std::regex enumerator(R"((PGSP_\w+) = (\d+))");

    std::map<int, std::string> words;
    for (std::sregex_iterator at(header.begin(), header.end(), enumerator), end; at != end; ++at)
    {
        words[std::stoi((*at)[2])] = (*at)[1];
    }

    ASSERT_GT(words.size(), 30U);
    for (const auto& [code, word] : words)
    {
        EXPECT_EQ(WordOf(code), word);
    }
    EXPECT_EQ(WordOf(14), "ERROR_OUTOFMEMORY");
    EXPECT_EQ(WordOf(1), "");
}

} // namespace
} // namespace norvepa::test

#include "store/ValueRules.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

// What a value of this type is stored as; "refused" when it isn't.
std::wstring Stored(std::wstring_view type, const wchar_t* value, std::wstring_view parameter = L"name")
{
    std::wstring stored = L"before";
    return CheckTypedValue(type, parameter, value, stored) == PGSP_OK ? stored : L"refused";
}

TEST(ValueRulesTest, TheTypeWordSaysTheElement)
{
    EXPECT_EQ(EntryElementOf(L"int"), L"ParameterInt");
    EXPECT_EQ(EntryElementOf(L"bool"), L"ParameterBool");
    EXPECT_EQ(EntryElementOf(L"string"), L"Parameter");
    EXPECT_EQ(EntryElementOf(L""), L"Parameter");
}

TEST(ValueRulesTest, TypeWordsAreOfAnyCase)
{
    EXPECT_EQ(EntryElementOf(L"INT"), L"ParameterInt");
    EXPECT_EQ(EntryElementOf(L"Bool"), L"ParameterBool");
    EXPECT_EQ(EntryElementOf(L"sTRING"), L"Parameter");
    EXPECT_EQ(Stored(L"INT", L"12a"), L"refused");
    EXPECT_EQ(Stored(L"BOOL", L"True"), L"true");
    EXPECT_EQ(Stored(L"STRING", L"<"), L"refused");
}

TEST(ValueRulesTest, AnyOtherWordIsTheElementItself)
{
    EXPECT_EQ(EntryElementOf(L"ParameterInt"), L"ParameterInt");
    EXPECT_EQ(EntryElementOf(L"integer"), L"integer");
    EXPECT_EQ(EntryElementOf(L" int"), L" int");
}

class IntegerValues : public testing::TestWithParam<const wchar_t*>
{
};

TEST_P(IntegerValues, PassAsTheyAre)
{
    EXPECT_EQ(Stored(L"int", GetParam()), GetParam());
}

INSTANTIATE_TEST_SUITE_P(ValueRules, IntegerValues,
                         testing::Values(L"", L"0", L"12", L"-1", L"+5", L"007", L" 12", L"\t\n 12", L" -3",
                                         L"2147483647", L"2147483648", L"-99999999999999999999"));

class NoIntegerValues : public testing::TestWithParam<const wchar_t*>
{
};

TEST_P(NoIntegerValues, AreRefused)
{
    EXPECT_EQ(Stored(L"int", GetParam()), L"refused");
}

INSTANTIATE_TEST_SUITE_P(ValueRules, NoIntegerValues,
                         testing::Values(L"12a", L"a", L"12 ", L" ", L"+", L"-", L"--1", L"+ 5", L"1 2",
                                         L"1.0", L"0x10", L"1e3", L"1,000", L"true"));

TEST(ValueRulesTest, ABooleanIsStoredInLowerCase)
{
    EXPECT_EQ(Stored(L"bool", L"true"), L"true");
    EXPECT_EQ(Stored(L"bool", L"FALSE"), L"false");
    EXPECT_EQ(Stored(L"bool", L"tRuE"), L"true");
}

TEST(ValueRulesTest, NothingElseIsABoolean)
{
    for (const wchar_t* value : {L"", L"yes", L"0", L"1", L" true", L"true ", L"truee", L"fals"})
    {
        EXPECT_EQ(Stored(L"bool", value), L"refused");
    }
}

TEST(ValueRulesTest, ANullValueIsTheEmptyOne)
{
    EXPECT_EQ(Stored(L"int", nullptr), L"");
    EXPECT_EQ(Stored(L"string", nullptr), L"");
    EXPECT_EQ(Stored(L"other", nullptr), L"");
    EXPECT_EQ(Stored(L"bool", nullptr), L"refused");
}

class ForbiddenNameCharacters : public testing::TestWithParam<wchar_t>
{
};

TEST_P(ForbiddenNameCharacters, AreRefusedInStringParameters)
{
    const std::wstring name = std::wstring(L"my") + GetParam() + L"param";

    EXPECT_EQ(Stored(L"string", L"1", name), L"refused");
    EXPECT_EQ(Stored(L"", L"1", name), L"refused");
    EXPECT_EQ(Stored(L"string", L"1", std::wstring(1, GetParam())), L"refused");
}

TEST_P(ForbiddenNameCharacters, PassInAllOthers)
{
    const std::wstring name = std::wstring(L"my") + GetParam() + L"param";

    EXPECT_EQ(Stored(L"int", L"1", name), L"1");
    EXPECT_EQ(Stored(L"bool", L"true", name), L"true");
    EXPECT_EQ(Stored(L"other", L"1", name), L"1");
}

INSTANTIATE_TEST_SUITE_P(ValueRules, ForbiddenNameCharacters,
                         testing::Values(L' ', L'[', L']', L'^', L'!', L'"', wchar_t{0xA7}, L'$', L'%', L'&',
                                         L'(', L')', L'=', L'?', wchar_t{0xB4}, L'\'', L'#', L'+', L'>', L'<',
                                         L'*', L'|', L';', L','));

TEST(ValueRulesTest, AllOtherCharactersPassInNames)
{
    for (wchar_t character = 1; character < 0x180; ++character)
    {
        const bool forbidden = std::wstring_view(L" []^!\"\u00A7$%&()=?\u00B4'#+><*|;,").find(character) !=
                               std::wstring_view::npos;
        EXPECT_EQ(Stored(L"string", L"1", std::wstring(1, character)), forbidden ? L"refused" : L"1")
            << int{character};
    }
}

TEST(ValueRulesTest, OnlyTwoCharactersAreForbiddenInValues)
{
    for (wchar_t character = 1; character < 0x180; ++character)
    {
        const std::wstring value(3, character);
        const bool forbidden = character == L'<' || character == L'>';
        EXPECT_EQ(Stored(L"string", value.c_str()), forbidden ? L"refused" : value) << int{character};
    }
}

TEST(ValueRulesTest, ValuesOfOtherTypesAreNotTested)
{
    EXPECT_EQ(Stored(L"ParameterInt", L"<no number>", L"my param"), L"<no number>");
}

} // namespace
} // namespace norvepa::test

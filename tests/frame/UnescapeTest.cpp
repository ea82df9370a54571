#include "frame/NameBuffers.h"

#include <gmock/gmock.h>
#include <ostream>

namespace norvepa
{
namespace
{

std::wstring Unescape(const std::wstring& path)
{
    return test::Converted(NorvXMLUnescapeName, path);
}

struct UnescapeCase
{
    const char* word;
    const wchar_t* code;
    const wchar_t* character;

    friend void PrintTo(const UnescapeCase& each, std::ostream* out) { *out << each.word; }
};

class UnescapedCode : public testing::TestWithParam<UnescapeCase>
{
};

TEST_P(UnescapedCode, IsItsCharacterWhereverItStands)
{
    const std::wstring code = GetParam().code;
    const std::wstring character = GetParam().character;

    EXPECT_EQ(Unescape(code), character);
    EXPECT_EQ(Unescape(code + L"a" + code + L"b" + code), character + L"a" + character + L"b" + character);
    EXPECT_EQ(Unescape(code + code), character + character);
}

INSTANTIATE_TEST_SUITE_P(
    Table, UnescapedCode,
    testing::Values(UnescapeCase{"Percent", L"#25", L"%"}, UnescapeCase{"Colon", L"#3a", L":"},
                    UnescapeCase{"Asterisk", L"#2a", L"*"}, UnescapeCase{"QuestionMark", L"#3f", L"?"},
                    UnescapeCase{"Less", L"#3c", L"<"}, UnescapeCase{"Greater", L"#3e", L">"},
                    UnescapeCase{"Bar", L"#7c", L"|"}, UnescapeCase{"Slash", L"#2f", L"/"},
                    UnescapeCase{"NumberSign", L"(nmbr)", L"#"}));

TEST(UnescapeName, GivesBackWhatWasEscaped)
{
    for (const std::wstring name : {L"a#b%c", L"#%:*?<>|/", L"Linie #3: 100% <A|B>", L"##", L"#3a?", L"%25"})
    {
        EXPECT_EQ(Unescape(test::Converted(NorvXMLEscapeName, name)), name);
    }
}

TEST(UnescapeName, DoesNotReadACodeInWhatANumberSignLeaves)
{
    EXPECT_EQ(Unescape(L"(nmbr)25"), L"#25");
    EXPECT_EQ(Unescape(L"(nmbr)(nmbr)3a"), L"##3a");
}

TEST(UnescapeName, DoesNotReadACodeInWhatAnotherCodeLeaves)
{
    EXPECT_EQ(Unescape(L"#2525"), L"%25");
    EXPECT_EQ(Unescape(L"##255"), L"#%5");
}

TEST(UnescapeName, KnowsItsCodesInExactCaseOnly)
{
    EXPECT_EQ(Unescape(L"#3A#2F#7C(NMBR)"), L"#3A#2F#7C(NMBR)");
}

TEST(UnescapeName, LetsWhatIsNoCodePass)
{
    EXPECT_EQ(Unescape(L"#"), L"#");
    EXPECT_EQ(Unescape(L"#2"), L"#2");
    EXPECT_EQ(Unescape(L"#22#5c#20"), L"#22#5c#20");
    EXPECT_EQ(Unescape(L"(nmbr"), L"(nmbr");
}

TEST(UnescapeName, LeavesTheFolderAsItIs)
{
    EXPECT_EQ(Unescape(L"C:\\50#25\\(nmbr)1\\Pump#2a"), L"C:\\50#25\\(nmbr)1\\Pump*");
    EXPECT_EQ(Unescape(L"C:\\50#25\\"), L"C:\\50#25\\");
}

TEST(UnescapeName, TakesANameThatHoldsACodeForItsCharacter)
{
    const std::wstring name = L"50#25 (nmbr)1";

    EXPECT_EQ(Unescape(name), L"50% #1");
    EXPECT_EQ(Unescape(test::Converted(NorvXMLEscapeName, L"Silo (nmbr)1")), L"Silo #1");
}

} // namespace
} // namespace norvepa

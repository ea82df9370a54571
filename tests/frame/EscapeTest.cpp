#include "frame/NameBuffers.h"

#include <gmock/gmock.h>
#include <ostream>

namespace norvepa
{
namespace
{

std::wstring Escape(const std::wstring& path)
{
    return test::Converted(NorvXMLEscapeName, path);
}

std::wstring EscapeBare(const std::wstring& name)
{
    return test::Converted(NorvXMLEscapeBareName, name);
}

struct EscapeCase
{
    const char* word;
    const wchar_t* character;
    const wchar_t* code;

    friend void PrintTo(const EscapeCase& each, std::ostream* out) { *out << each.word; }
};

class EscapedCharacter : public testing::TestWithParam<EscapeCase>
{
};

TEST_P(EscapedCharacter, IsWrittenAsItsCodeWhereverItStands)
{
    const std::wstring character = GetParam().character;
    const std::wstring code = GetParam().code;

    EXPECT_EQ(Escape(character), code);
    EXPECT_EQ(Escape(character + L"a" + character + L"b" + character), code + L"a" + code + L"b" + code);
    EXPECT_EQ(Escape(character + character), code + code);
    EXPECT_EQ(EscapeBare(L"a" + character), L"a" + code);
}

INSTANTIATE_TEST_SUITE_P(
    Table, EscapedCharacter,
    testing::Values(EscapeCase{"NumberSign", L"#", L"(nmbr)"}, EscapeCase{"Percent", L"%", L"#25"},
                    EscapeCase{"Colon", L":", L"#3a"}, EscapeCase{"Asterisk", L"*", L"#2a"},
                    EscapeCase{"QuestionMark", L"?", L"#3f"}, EscapeCase{"Less", L"<", L"#3c"},
                    EscapeCase{"Greater", L">", L"#3e"}, EscapeCase{"Bar", L"|", L"#7c"},
                    EscapeCase{"Slash", L"/", L"#2f"}));

TEST(EscapeName, WritesTheWholeTableAtOnce)
{
    EXPECT_EQ(Escape(L"#%:*?<>|/"), L"(nmbr)#25#3a#2a#3f#3c#3e#7c#2f");
}

TEST(EscapeName, EscapesTheNumberSignAheadOfTheCodesThatBeginWithIt)
{
    EXPECT_EQ(Escape(L"a#b%c"), L"a(nmbr)b#25c");
    EXPECT_EQ(Escape(L"#25"), L"(nmbr)25");
    EXPECT_EQ(Escape(L"%25"), L"#2525");
}

TEST(EscapeName, LetsEverythingElsePass)
{
    EXPECT_EQ(Escape(L"(nmbr)"), L"(nmbr)");
    EXPECT_EQ(Escape(L"say \"a\""), L"say \"a\"");
    EXPECT_EQ(Escape(L" Gr\u00F6\u00DFe \u00B5\u03A9 & 'b'.xml "),
              L" Gr\u00F6\u00DFe \u00B5\u03A9 & 'b'.xml ");
}

TEST(EscapeName, LeavesTheFolderAsItIs)
{
    EXPECT_EQ(Escape(L"C:\\50%\\#1\\Pump*"), L"C:\\50%\\#1\\Pump#2a");
    EXPECT_EQ(Escape(L"data\\LogNames\\a/b"), L"data\\LogNames\\a#2fb");
}

TEST(EscapeName, TakesASlashForAPartOfTheName)
{
    EXPECT_EQ(Escape(L"C:/data/a"), L"C#3a#2fdata#2fa");
}

TEST(EscapeName, EscapesADrivesColonWhenNoBackslashFollows)
{
    EXPECT_EQ(Escape(L"C:Pump"), L"C#3aPump");
    EXPECT_EQ(Escape(L"C:\\Pump"), L"C:\\Pump");
}

TEST(EscapeName, LeavesAPathThatEndsInABackslashAlone)
{
    EXPECT_EQ(Escape(L"C:\\50%\\"), L"C:\\50%\\");
    EXPECT_EQ(Escape(L"\\"), L"\\");
}

TEST(EscapeBareName, KnowsNoFolder)
{
    EXPECT_EQ(EscapeBare(L"C:\\50%\\Pump*"), L"C#3a\\50#25\\Pump#2a");
}

} // namespace
} // namespace norvepa

#include "support/LogNameCalls.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

struct NameCase
{
    const char* what;
    const wchar_t* logName;
    const wchar_t* fileName;

    friend void PrintTo(const NameCase& each, std::ostream* out) { *out << each.what; }
};

class LogNameWithCode : public LogNames, public testing::WithParamInterface<NameCase>
{
};

TEST_P(LogNameWithCode, IsReadFromTheFileOfItsEscapedName)
{
    Write(GetParam().fileName, XmlContent().Text(L"Station", L"found"));

    EXPECT_EQ(Value(GetParam().logName, L"Station"), L"found");
}

INSTANTIATE_TEST_SUITE_P(
    Table, LogNameWithCode,
    testing::Values(NameCase{"NumberSign", L"a#b", L"a(nmbr)b"}, NameCase{"Percent", L"a%b", L"a#25b"},
                    NameCase{"Colon", L"a:b", L"a#3ab"}, NameCase{"Asterisk", L"a*b", L"a#2ab"},
                    NameCase{"QuestionMark", L"a?b", L"a#3fb"}, NameCase{"Less", L"a<b", L"a#3cb"},
                    NameCase{"Greater", L"a>b", L"a#3eb"}, NameCase{"Bar", L"a|b", L"a#7cb"},
                    NameCase{"Slash", L"a/b", L"a#2fb"}));

INSTANTIATE_TEST_SUITE_P(Mixed, LogNameWithCode,
                         testing::Values(NameCase{"NumberSignAndPercent", L"a#b%c", L"a(nmbr)b#25c"},
                                         NameCase{"SixOfThem", L"Linie #3: 100% <A|B>",
                                                  L"Linie (nmbr)3#3a 100#25 #3cA#7cB#3e"},
                                         NameCase{"ACodeOfItsOwn", L"Silo (nmbr)1", L"Silo (nmbr)1"}));

class LogNamePath : public LogNames
{
};

TEST_F(LogNamePath, MayHoldUmlautsAndOtherAlphabets)
{
    Write(L"Gr\u00F6\u00DFe \u00B5\u03A9", XmlContent().Text(L"St\u00F6rung", L"\u00DCberdruck \u03A9"));

    EXPECT_EQ(Value(L"Gr\u00F6\u00DFe \u00B5\u03A9", L"St\u00F6rung"), L"\u00DCberdruck \u03A9");
}

TEST_F(LogNamePath, IsFoundInAnyCase)
{
    Write(L"Pumpe \u00C4", XmlContent().Text(L"Station", L"found"));

    EXPECT_EQ(Value(L"PUMPE \u00C4", L"Station"), L"found");
}

TEST_F(LogNamePath, MayLeadIntoAFolderBelow)
{
    Write(L"Halle\\Pumpe#25", XmlContent().Text(L"Station", L"found"));

    EXPECT_EQ(Value(L"Halle\\Pumpe%", L"Station"), L"found");
}

TEST_F(LogNamePath, GetsNoSecondExtension)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L"found"));

    EXPECT_EQ(Value(L"Pumpe.xml", L"Station"), L"found");
}

TEST_F(LogNamePath, ThatHoldsTheExtensionAnywhereGetsNone)
{
    const std::string file = LogNameFile(XmlContent().Text(L"Station", L"found"));
    WriteBytes(roots.data() + L"\\data\\LogNames\\Pumpe.xml.old", file);
    WriteBytes(roots.folder() / L"root.xml\\data\\LogNames\\Pumpe", file);

    EXPECT_EQ(Value(L"Pumpe.xml.old", L"Station"), L"found");

    SetMachineText(LocationsKey, L"Corvane_Oam_Data", roots.folder() / L"root.xml");
    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"found");
}

TEST_F(LogNamePath, ThatHoldsTheExtensionInAnotherCaseGetsOne)
{
    WriteBytes(roots.data() + L"\\data\\LogNames\\Pumpe.XML.xml",
               LogNameFile(XmlContent().Text(L"Station", L"found")));

    EXPECT_EQ(Value(L"Pumpe.XML", L"Station"), L"found");
}

class LogNamePathLength : public LogNames
{
protected:
    // A name with which the path, without extension, has this many characters.
    [[nodiscard]] std::wstring NameFor(std::size_t pathLength) const
    {
        const std::wstring folder = roots.data() + L"\\data\\LogNames\\";
        return std::wstring(pathLength - folder.size(), L'n');
    }
};

TEST_F(LogNamePathLength, MayBe259Characters)
{
    OutputBuffer value(20);

    EXPECT_EQ(Read(NameFor(259).c_str(), L"Station", value), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(LogNamePathLength, Of260CharactersIsTooLongAndLeavesTheLength)
{
    OutputBuffer value(20);

    EXPECT_EQ(Read(NameFor(260).c_str(), L"Station", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 20U);
}

TEST_F(LogNamePathLength, CountsTheEscapedName)
{
    const std::wstring name = NameFor(254);

    EXPECT_EQ(Read(name.substr(1) + L"#", L"Station"), PGSP_ERR_FILE_NOT_FOUND); // 253 and 6
    EXPECT_EQ(Read(name + L"#", L"Station"), PGSP_ERR_BUFFER_TOO_SHORT);         // 254 and 6
}

TEST_F(LogNamePathLength, OfManyThousandsIsTooLong)
{
    EXPECT_EQ(Read(std::wstring(100000, L'n'), L"Station"), PGSP_ERR_BUFFER_TOO_SHORT);
}

} // namespace
} // namespace norvepa::test

#include "xml/PullScene.h"

#include <array>

namespace norvepa::test
{
namespace
{

using XmlSeekOneOfTest = PullScene;

constexpr std::array<std::wstring_view, 3> Entries{L"Parameter", L"ParameterBool", L"ParameterInt"};

TEST_F(XmlSeekOneOfTest, FindsWhicheverComesFirstInTheFile)
{
    PullReader reader = InsideRoot("<s><x>0</x><ParameterInt>1</ParameterInt><Parameter>2</Parameter></s>");
    std::wstring found;

    EXPECT_TRUE(XmlSeekOneOf(reader, L"s", Entries, found));

    EXPECT_EQ(found, L"ParameterInt");
    EXPECT_EQ(NextNode(reader), "1");
}

TEST_F(XmlSeekOneOfTest, TellsTheNameAsTheFileSpellsIt)
{
    PullReader reader = InsideRoot("<s><pARAMETERbOOL>1</pARAMETERbOOL></s>");
    std::wstring found;

    EXPECT_TRUE(XmlSeekOneOf(reader, L"s", Entries, found));

    EXPECT_EQ(found, L"pARAMETERbOOL");
}

TEST_F(XmlSeekOneOfTest, TellsTheNameWithoutItsPrefix)
{
    PullReader reader = InsideRoot("<p:s xmlns:p='one'><p:Parameter>1</p:Parameter></p:s>");
    std::wstring found;

    EXPECT_TRUE(XmlSeekOneOf(reader, L"s", Entries, found));

    EXPECT_EQ(found, L"Parameter");
}

TEST_F(XmlSeekOneOfTest, FindsAGrandchild)
{
    PullReader reader = InsideRoot("<s><x><Parameter>1</Parameter></x></s>");
    std::wstring found;

    EXPECT_TRUE(XmlSeekOneOf(reader, L"s", Entries, found));
}

TEST_F(XmlSeekOneOfTest, TheEndTagEndsTheSearchAndLeavesTheNameAlone)
{
    PullReader reader = InsideRoot("<s><x>0</x></s>");
    std::wstring found = L"before";

    EXPECT_FALSE(XmlSeekOneOf(reader, L"S", Entries, found));

    EXPECT_EQ(found, L"before");
    EXPECT_TRUE(XmlReaderActive(reader));
}

TEST_F(XmlSeekOneOfTest, AnEmptyElementOfAnyNameEndsTheSearch)
{
    PullReader reader = InsideRoot("<s><x/><Parameter/><Parameter>1</Parameter></s>");
    std::wstring found;

    EXPECT_FALSE(XmlSeekOneOf(reader, L"s", Entries, found));
    EXPECT_FALSE(XmlSeekOneOf(reader, L"s", Entries, found));

    EXPECT_TRUE(XmlSeekOneOf(reader, L"s", Entries, found));
}

TEST_F(XmlSeekOneOfTest, OutOfNoNamesNoneIsFound)
{
    PullReader reader = InsideRoot("<s><Parameter>1</Parameter></s>");
    std::wstring found;

    EXPECT_FALSE(XmlSeekOneOf(reader, L"s", {}, found));
}

TEST_F(XmlSeekOneOfTest, IsFalseAtTheEndOfTheFileAndAtAMalformedPlace)
{
    PullReader whole = InsideRoot("<s>1</s>");
    std::wstring found;
    EXPECT_FALSE(XmlSeekOneOf(whole, L"other", Entries, found));
    EXPECT_EQ(whole.State(), XmlReadState_EndOfFile);

    PullReader broken = InsideRoot("<s></t><Parameter>1</Parameter></s>");
    EXPECT_FALSE(XmlSeekOneOf(broken, L"s", Entries, found));
    EXPECT_EQ(broken.State(), XmlReadState_Error);
}

} // namespace
} // namespace norvepa::test

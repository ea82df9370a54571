// Files beyond what any store has, with nodes that don't fit into an engine's first buffer.

#include "xml/MetFile.h"
#include "xml/PullScene.h"

#include <algorithm>

namespace norvepa::test
{
namespace
{

using ImageOfLargeFile = PullScene;

constexpr std::size_t TenMillion = 10'000'000;

// Told apart wherever they were cut or moved.
std::string LongText()
{
    std::string text;
    text.reserve(TenMillion);
    for (std::size_t at = 0; text.size() < TenMillion; ++at)
    {
        text += static_cast<char>('a' + at * at % 26);
    }
    return text;
}

// Compared whole, but shown as no more than their length.
bool IsText(std::wstring_view text, std::string_view expected)
{
    return std::equal(text.begin(), text.end(), expected.begin(), expected.end());
}

TEST_F(ImageOfLargeFile, TellsALongText)
{
    const std::string text = LongText();
    PullReader reader = InsideRoot("<a><b>" + text + "</b><c/></a>");
    std::wstring told;

    ASSERT_EQ(NextNode(reader), "<b>");
    ASSERT_TRUE(XmlReadText(reader, L"b", told));

    EXPECT_TRUE(IsText(told, text)) << told.size();
    EXPECT_EQ(RestOf(reader), "</b> <c/> </a>");
}

TEST_F(ImageOfLargeFile, TellsALongAttribute)
{
    const std::string text = LongText();
    PullReader reader = InsideRoot("<a x='1' y='" + text + "' z='2'><b/></a>");
    std::wstring told;

    ASSERT_TRUE(XmlGetAttribute(reader, L"y", told));

    EXPECT_TRUE(IsText(told, text)) << told.size();
    EXPECT_TRUE(XmlGetAttribute(reader, L"z", told));
    EXPECT_EQ(told, L"2");
    EXPECT_EQ(RestOf(reader), "<b/> </a>");
}

TEST_F(ImageOfLargeFile, PassesALongCommentOver)
{
    PullReader reader = InsideRoot("<a><b/><!--" + LongText() + "--><c/></a>");

    EXPECT_EQ(RestOf(reader), "<b/> 8 <c/> </a>");
}

TEST_F(ImageOfLargeFile, TellsALongName)
{
    const std::wstring name(100'000, L'x');
    PullReader reader = Reading(ToUtf8(L"<a><" + name + L"/></a>"));
    ASSERT_EQ(NextNode(reader), "<a>");
    XmlNodeType type = XmlNodeType_None;

    ASSERT_TRUE(reader.Read(type));

    EXPECT_TRUE(reader.LocalName() == name);
    EXPECT_EQ(RestOf(reader), "</a>");
}

TEST_F(ImageOfLargeFile, TellsEachOfManyElements)
{
    constexpr int elements = 100'000;
    std::string bytes = "<r>";
    for (int i = 0; i < elements; ++i)
    {
        bytes += "<e n='" + std::to_string(i) + "'>" + std::to_string(i * 7) + "</e>\r\n";
    }
    PullReader reader = InsideRoot(bytes + "</r>");
    std::wstring number;
    std::wstring text;

    for (int i = 0; i < elements; ++i)
    {
        ASSERT_TRUE(XmlSeekChild(reader, L"r", L"e"));
        ASSERT_TRUE(XmlGetAttribute(reader, L"n", number));
        ASSERT_TRUE(XmlReadText(reader, L"e", text));
        ASSERT_EQ(number, std::to_wstring(i));
        ASSERT_EQ(text, std::to_wstring(i * 7));
    }

    EXPECT_EQ(RestOf(reader), "</e> 13 </r>");
}

TEST_F(ImageOfLargeFile, TellsEachOfManyNames)
{
    constexpr int names = 100'000;
    std::string bytes = "<r>";
    for (int i = 0; i < names; ++i)
    {
        bytes += "<n" + std::to_string(i) + "/>";
    }
    PullReader reader = InsideRoot(bytes + "</r>");
    XmlNodeType type = XmlNodeType_None;

    for (int i = 0; i < names; ++i)
    {
        ASSERT_TRUE(reader.Read(type));
        ASSERT_TRUE(reader.LocalName() == L"n" + std::to_wstring(i)) << i;
        ASSERT_TRUE(reader.IsEmptyElement());
    }

    EXPECT_EQ(RestOf(reader), "</r>");
}

// So many elements in each other.
std::string Nested(int depth)
{
    std::string begins;
    std::string ends;
    for (int i = 0; i < depth; ++i)
    {
        begins += "<e" + std::to_string(i % 10) + ">";
        ends.insert(0, "</e" + std::to_string(i % 10) + ">");
    }
    return begins + "1" + ends;
}

TEST_F(ImageOfLargeFile, TellsElementsThatLieDeepInEachOther)
{
    constexpr int depth = 200;
    PullReader reader = Reading(Nested(depth));

    for (int i = 0; i < depth; ++i)
    {
        ASSERT_EQ(NextNode(reader), "<e" + std::to_string(i % 10) + ">");
    }
    ASSERT_EQ(NextNode(reader), "1");
    for (int i = depth; i-- > 0;)
    {
        ASSERT_EQ(NextNode(reader), "</e" + std::to_string(i % 10) + ">");
    }

    EXPECT_EQ(NextNode(reader), "");
    EXPECT_FALSE(XmlReaderActive(reader));
}

// An engine has a limit, which is no end of the process.
TEST_F(ImageOfLargeFile, StopsWhereElementsLieTooDeepForTheEngine)
{
    WriteBytes(file(), Nested(5'000));

    const MetFile met = WalkByAReader(file());

    EXPECT_EQ(met, WalkByTheEngine(file()));
    EXPECT_GE(met.nodes.size(), 200U);
    EXPECT_FALSE(met.isActiveBehind);
}

// Long enough for an engine to fill its buffers some hundred times, without a character that it may break
// there.
TEST_F(ImageOfLargeFile, TellsOfAFileOfOrdinarySizeWhatTheEngineTells)
{
    std::string bytes = "<?xml version='1.0' encoding='UTF-8'?>\r\n<r>";
    for (int i = 0; i < 5'000; ++i)
    {
        bytes +=
            "<Parameter><Name>Stufe " + std::to_string(i) + "</Name><Value a='b'>7</Value></Parameter>\r\n";
    }
    WriteBytes(file(), bytes + "</r>");

    EXPECT_TRUE(WalkByAReader(file()) == WalkByTheEngine(file()));
}

} // namespace
} // namespace norvepa::test

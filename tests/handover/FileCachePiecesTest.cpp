#include "FileCacheScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

constexpr std::wstring_view File = L"C:\\data\\LogDevices\\Presse.xml";

// Ten bytes with the terminator.
class FileCachePieces : public testing::Test
{
protected:
    FileCachePieces() { client.Store(File, "abcdefghi"); }

    [[nodiscard]] Piece Read(std::uint32_t index, std::uint32_t pieceLength) const
    {
        return client.Read(File, index, pieceLength);
    }

    CacheClient client{7};
};

TEST_F(FileCachePieces, AreOneForALengthOfTheSizeOrMore)
{
    EXPECT_EQ(Read(0, 10), Last(Terminated("abcdefghi")));
    EXPECT_EQ(Read(0, 11), Last(Terminated("abcdefghi")));
    EXPECT_EQ(Read(0, 1000), Last(Terminated("abcdefghi")));
}

TEST_F(FileCachePieces, AreTwoWhenOneByteIsLeft)
{
    EXPECT_EQ(Read(0, 9), More("abcdefghi"));
    EXPECT_EQ(Read(1, 9), Last(Terminated("")));
    EXPECT_EQ(Read(2, 9), NoPiece);
}

TEST_F(FileCachePieces, EndWithAFullOneWhenTheSizeIsAMultiple)
{
    EXPECT_THAT(client.ReadAll(File, 5), ElementsAre(More("abcde"), Last(Terminated("fghi"))));
    EXPECT_THAT(client.ReadAll(File, 2),
                ElementsAre(More("ab"), More("cd"), More("ef"), More("gh"), Last(Terminated("i"))));
}

TEST_F(FileCachePieces, MayBeOneByteEach)
{
    EXPECT_THAT(client.ReadAll(File, 1),
                ElementsAre(More("a"), More("b"), More("c"), More("d"), More("e"), More("f"), More("g"),
                            More("h"), More("i"), Last(Terminated(""))));
}

// They never end, and never go on.
TEST_F(FileCachePieces, AreEmptyForALengthOfNone)
{
    EXPECT_EQ(Read(0, 0), More(""));
    EXPECT_EQ(Read(1, 0), More(""));
    EXPECT_EQ(Read(10, 0), More(""));
    EXPECT_EQ(Read(UINT32_MAX, 0), More(""));
}

TEST_F(FileCachePieces, MakeUpTheFileForEveryLength)
{
    const std::string text = Terminated("abcdefghi");
    for (std::uint32_t length = 1; length <= text.size() + 2; ++length)
    {
        EXPECT_EQ(client.ReadAll(File, length), CutIntoPieces(text, length)) << length;
    }
}

TEST_F(FileCachePieces, AreReadInAnyOrder)
{
    EXPECT_EQ(Read(2, 4), Last(Terminated("i")));
    EXPECT_EQ(Read(0, 4), More("abcd"));
    EXPECT_EQ(Read(1, 4), More("efgh"));
    EXPECT_EQ(Read(1, 4), More("efgh"));
}

TEST_F(FileCachePieces, StandWhereTheLengthOfThisCallPutsThem)
{
    EXPECT_EQ(Read(0, 4), More("abcd"));
    EXPECT_EQ(Read(1, 3), More("def"));
    EXPECT_EQ(Read(1, 6), Last(Terminated("ghi")));
}

TEST_F(FileCachePieces, AreNoneBehindTheSize)
{
    EXPECT_EQ(Read(11, 1), NoPiece);
    EXPECT_EQ(Read(3, 4), NoPiece);
    EXPECT_EQ(Read(1, 11), NoPiece);
    EXPECT_EQ(Read(UINT32_MAX, 1), NoPiece);

    EXPECT_EQ(Read(0, 10), Last(Terminated("abcdefghi"))); // which is there still
}

TEST_F(FileCachePieces, HaveAnEmptyOneAtTheSizeItself)
{
    EXPECT_EQ(Read(10, 1), Last(""));
    EXPECT_EQ(Read(2, 5), Last(""));
    EXPECT_EQ(Read(1, 10), Last(""));
}

TEST_F(FileCachePieces, BeginAnewWhereTheOffsetWrapsAround)
{
    EXPECT_EQ(Read(0x8000'0000, 2), More("ab"));
    EXPECT_EQ(Read(0x8000'0001, 2), More("cd"));
    EXPECT_EQ(Read(0x8000'0004, 2), Last(Terminated("i")));
    EXPECT_EQ(Read(0x4000'0001, 4), More("efgh"));
    EXPECT_EQ(Read(0x5555'5556, 3), More("cde"));
    EXPECT_EQ(Read(0x8000'0006, 2), NoPiece);
}

TEST_F(FileCachePieces, MayBeSaidToBeLongerThanAnyFile)
{
    EXPECT_EQ(Read(0, UINT32_MAX), Last(Terminated("abcdefghi")));
    EXPECT_EQ(Read(0, 0x8000'0000), Last(Terminated("abcdefghi")));
    EXPECT_EQ(Read(1, UINT32_MAX), NoPiece);
    EXPECT_EQ(Read(1, 0x8000'0000), NoPiece);
    EXPECT_EQ(Read(2, 0x8000'0000), Last(Terminated("abcdefghi")));
}

// Offset and length together then need more than 32 bits.
TEST_F(FileCachePieces, EndWithTheFileHoweverFarTheirLengthGoes)
{
    EXPECT_EQ(Read(UINT32_MAX, UINT32_MAX), Last(Terminated("bcdefghi")));
    EXPECT_EQ(Read(UINT32_MAX, UINT32_MAX - 5), Last(Terminated("ghi")));
    EXPECT_EQ(Read(UINT32_MAX, UINT32_MAX - 9), Last(""));
    EXPECT_EQ(Read(UINT32_MAX, UINT32_MAX - 10), NoPiece);
}

TEST_F(FileCachePieces, OfAnEmptyFileAreItsTerminator)
{
    client.Store(File, "");

    EXPECT_EQ(Read(0, 0), More(""));
    EXPECT_EQ(Read(0, 1), Last(Terminated("")));
    EXPECT_EQ(Read(1, 1), Last(""));
    EXPECT_EQ(Read(2, 1), NoPiece);
}

TEST_F(FileCachePieces, AreOfTheCleanedFile)
{
    client.Store(File, "<a>\r\n\r\n<b>");

    EXPECT_THAT(client.ReadAll(File, 3), ElementsAre(More("<a>"), More("<b>"), Last(Terminated(""))));
}

} // namespace
} // namespace norvepa::test

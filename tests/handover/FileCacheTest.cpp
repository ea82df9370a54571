#include "FileCacheScene.h"

namespace norvepa::test
{
namespace
{

constexpr std::wstring_view File = L"C:\\data\\LogDevices\\Presse.xml";
constexpr std::wstring_view OtherFile = L"C:\\data\\LogDevices\\Kessel.xml";

class FileCacheItems : public testing::Test
{
protected:
    CacheClient client{7};
    CacheClient other{8};
};

TEST_F(FileCacheItems, AreCleanedAndTerminated)
{
    client.Store(File, "<a>\r\n <b> x </b>\r\n</a>\r\n");

    EXPECT_EQ(client.Read(File), Last(Terminated("<a><b>x </b></a>")));
}

TEST_F(FileCacheItems, AreCopies)
{
    std::string bytes = "before";
    client.Store(File, bytes);

    bytes = "behind";

    EXPECT_EQ(client.Read(File), Last(Terminated("before")));
}

TEST_F(FileCacheItems, HoldTheirZeroBytes)
{
    client.Store(File, std::string_view("a\0b\0", 4));

    EXPECT_EQ(client.Read(File), Last(std::string("a\0b\0\0", 5)));
}

TEST_F(FileCacheItems, OfEmptyFilesAreTheTerminatorAlone)
{
    client.Store(File, "");

    EXPECT_EQ(client.Read(File), Last(Terminated("")));
}

TEST_F(FileCacheItems, AreNoneOfAnUnknownClientOrFile)
{
    client.Store(File, "text");

    EXPECT_EQ(other.Read(File), NoPiece);
    EXPECT_EQ(client.Read(OtherFile), NoPiece);
    EXPECT_EQ(client.Read(L""), NoPiece);
    EXPECT_EQ(client.Read(File.substr(1)), NoPiece);
}

TEST_F(FileCacheItems, AreReadAgainAndAgain)
{
    client.Store(File, "text");

    EXPECT_EQ(client.Read(File), Last(Terminated("text")));
    EXPECT_EQ(client.Read(File), Last(Terminated("text")));
}

TEST_F(FileCacheItems, AreReplacedByTheSameFiles)
{
    client.Store(File, "before");

    client.Store(File, "now");

    EXPECT_EQ(client.Read(File), Last(Terminated("now")));
    client.Remove(File);
    EXPECT_EQ(client.Read(File), NoPiece);
}

TEST_F(FileCacheItems, AreReplacedWhileTheirFirstPieceHasBeenRead)
{
    client.Store(File, "abcdef");
    ASSERT_EQ(client.Read(File, 0, 4), More("abcd"));

    client.Store(File, "ABCDEF");

    EXPECT_EQ(client.Read(File, 1, 4), Last(Terminated("EF")));
}

TEST_F(FileCacheItems, AreFoundWhateverTheCaseOfAsciiLetters)
{
    client.Store(L"C:\\data\\Presse.xml", "before");
    EXPECT_EQ(client.Read(L"c:\\DATA\\pRESSE.XML"), Last(Terminated("before")));

    client.Store(L"C:\\DATA\\PRESSE.XML", "now");

    EXPECT_EQ(client.Read(L"C:\\data\\Presse.xml"), Last(Terminated("now")));
    client.Remove(L"c:\\data\\presse.xml");
    EXPECT_EQ(client.Read(L"C:\\data\\Presse.xml"), NoPiece);
    EXPECT_EQ(client.Read(L"C:\\DATA\\PRESSE.XML"), NoPiece);
}

TEST_F(FileCacheItems, AreTwoWhenOtherLettersDifferInCase)
{
    client.Store(L"\u00C4.xml", "capital");
    client.Store(L"\u00E4.xml", "small");

    EXPECT_EQ(client.Read(L"\u00C4.xml"), Last(Terminated("capital")));
    EXPECT_EQ(client.Read(L"\u00E4.xml"), Last(Terminated("small")));
    client.Remove(L"\u00C4.xml");
    EXPECT_EQ(client.Read(L"\u00E4.XML"), Last(Terminated("small")));
}

TEST_F(FileCacheItems, OfOneClientStandBesideEachOther)
{
    client.Store(File, "one");
    client.Store(OtherFile, "two");
    client.Store(L"", "three");
    client.Store(File, "new one");

    EXPECT_EQ(client.Read(File), Last(Terminated("new one")));
    EXPECT_EQ(client.Read(OtherFile), Last(Terminated("two")));
    EXPECT_EQ(client.Read(L""), Last(Terminated("three")));
}

TEST_F(FileCacheItems, OfTwoClientsAreApart)
{
    client.Store(File, "one");
    other.Store(File, "two");

    EXPECT_EQ(client.Read(File), Last(Terminated("one")));
    EXPECT_EQ(other.Read(File), Last(Terminated("two")));
    client.Remove(File);
    EXPECT_EQ(client.Read(File), NoPiece);
    EXPECT_EQ(other.Read(File), Last(Terminated("two")));
}

TEST_F(FileCacheItems, BelongToAnyNumber)
{
    CacheClient first(0);
    CacheClient last(UINT32_MAX);
    first.Store(File, "first");
    last.Store(File, "last");

    EXPECT_EQ(first.Read(File), Last(Terminated("first")));
    EXPECT_EQ(last.Read(File), Last(Terminated("last")));
}

TEST_F(FileCacheItems, AreLeftAloneByTheRemovalOfAnUnknownFile)
{
    client.Store(File, "one");
    client.Store(OtherFile, "two");

    client.Remove(L"C:\\data\\LogDevices\\unknown.xml");
    other.Remove(File);

    EXPECT_EQ(client.Read(File), Last(Terminated("one")));
    EXPECT_EQ(client.Read(OtherFile), Last(Terminated("two")));
}

TEST_F(FileCacheItems, AreRemovedOneByOne)
{
    client.Store(L"first", "1");
    client.Store(L"second", "2");
    client.Store(L"third", "3");

    client.Remove(L"second");
    EXPECT_EQ(client.Read(L"first"), Last(Terminated("1")));
    EXPECT_EQ(client.Read(L"second"), NoPiece);
    EXPECT_EQ(client.Read(L"third"), Last(Terminated("3")));

    client.Remove(L"first");
    client.Remove(L"first");
    EXPECT_EQ(client.Read(L"first"), NoPiece);
    EXPECT_EQ(client.Read(L"third"), Last(Terminated("3")));

    client.Remove(L"third");
    EXPECT_EQ(client.Read(L"third"), NoPiece);
}

TEST_F(FileCacheItems, AreStoredAnewWhenTheLastHasBeenRemoved)
{
    client.Store(File, "before");
    client.Remove(File);

    client.Store(File, "now");

    EXPECT_EQ(client.Read(File), Last(Terminated("now")));
}

TEST_F(FileCacheItems, StayForAReaderWhoStopsHalfWay)
{
    client.Store(File, "abcdef");
    ASSERT_EQ(client.Read(File, 0, 4), More("abcd"));

    for (std::uint32_t id = 100; id < 200; ++id)
    {
        CacheClient passing(id);
        passing.Store(File, "passing");
        EXPECT_EQ(passing.Read(File), Last(Terminated("passing")));
    }

    EXPECT_EQ(client.Read(File, 1, 4), Last(Terminated("ef")));
}

TEST_F(FileCacheItems, GoWithTheCache)
{
    client.Store(File, "one");
    other.Store(File, "two");

    {
        const norvepaFileCache cache; // what they hold is the process's
        std::uint8_t byte = 0;
        std::uint32_t length = 1;
        EXPECT_EQ(cache.FileCacheRead(7, File, 0, &byte, &length), PGSP_ERR_BUFFER_TOO_SHORT);
    }

    EXPECT_EQ(client.Read(File), NoPiece);
    EXPECT_EQ(other.Read(File), NoPiece);
    client.Store(File, "new");
    EXPECT_EQ(client.Read(File), Last(Terminated("new")));
}

} // namespace
} // namespace norvepa::test

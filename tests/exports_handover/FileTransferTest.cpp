#include "FileTransferScene.h"

#include <optional>

namespace norvepa::test
{
namespace
{

const std::wstring Name = L"Presse";

class FileTransfer : public FileTransferScene
{
protected:
    FileTransfer() { Write("abcdef"); }
};

TEST_F(FileTransfer, BeginsWithIndexZero)
{
    EXPECT_EQ(client.Ask(Name, 1, 4), NoPiece);
    EXPECT_EQ(client.Ask(Name, 0, 4), More("abcd"));
    EXPECT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));
}

TEST_F(FileTransfer, EndsWithTheLastPiece)
{
    ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd"));
    ASSERT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));

    EXPECT_EQ(client.Ask(Name, 1, 4), NoPiece);
}

TEST_F(FileTransfer, EndsWithTheLastPieceAlsoWhenThatIsTheFirst)
{
    ASSERT_EQ(client.Ask(Name, 0, 7), Last(Terminated("abcdef")));

    EXPECT_EQ(client.Ask(Name, 1, 4), NoPiece);
}

TEST_F(FileTransfer, EndsWithAnIndexBehindTheLastPiece)
{
    ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd"));

    EXPECT_EQ(client.Ask(Name, 2, 4), NoPiece);

    EXPECT_EQ(client.Ask(Name, 1, 4), NoPiece);
}

// Where the file ends there is a piece, of no bytes.
TEST_F(FileTransfer, EndsWithAnEmptyPieceForOneWhoSkipsTheLast)
{
    Write("abcdefg");
    ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd"));

    EXPECT_EQ(client.Ask(Name, 2, 4), Last(""));

    EXPECT_EQ(client.Ask(Name, 1, 4), NoPiece);
}

TEST_F(FileTransfer, GoesOnForAsLongAsThereIsMoreInWhateverOrder)
{
    EXPECT_EQ(client.Ask(Name, 0, 2), More("ab"));
    EXPECT_EQ(client.Ask(Name, 2, 2), More("ef"));
    EXPECT_EQ(client.Ask(Name, 1, 2), More("cd"));
    EXPECT_EQ(client.Ask(Name, 1, 2), More("cd"));
    EXPECT_EQ(client.Ask(Name, 3, 2), Last(Terminated("")));
}

TEST_F(FileTransfer, BeginsAnewWithIndexZeroInTheMiddle)
{
    ASSERT_EQ(client.Ask(Name, 0, 2), More("ab"));
    ASSERT_EQ(client.Ask(Name, 1, 2), More("cd"));
    Write("ABCDEF");

    EXPECT_EQ(client.Ask(Name, 0, 2), More("AB"));
    EXPECT_EQ(client.Ask(Name, 2, 2), More("EF"));
    EXPECT_EQ(client.Ask(Name, 3, 2), Last(Terminated("")));
    EXPECT_EQ(client.Ask(Name, 1, 2), NoPiece); // nothing is left of the first
}

TEST_F(FileTransfer, IsOfTheFileAsItWasAtIndexZero)
{
    ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd"));

    Write("ABCDEFGHIJKLM");

    EXPECT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));
    EXPECT_EQ(client.Ask(Name, 0, 4), More("ABCD"));
}

TEST_F(FileTransfer, GoesOnWhenTheFileIsDeleted)
{
    ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd"));

    ASSERT_TRUE(DeleteFileW(roots.logDevice(Name).c_str())); // which nobody has open

    EXPECT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));
    EXPECT_EQ(client.Ask(Name, 0, 4), NoPiece);
}

TEST_F(FileTransfer, OfTwoClientsIsTwo)
{
    ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd"));
    Write("ABCDEF");
    ASSERT_EQ(other.Ask(Name, 0, 2), More("AB"));

    EXPECT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));
    EXPECT_EQ(other.Ask(Name, 1, 2), More("CD"));
    EXPECT_EQ(client.Ask(Name, 1, 4), NoPiece);
    EXPECT_EQ(other.Ask(Name, 2, 2), More("EF"));
}

TEST_F(FileTransfer, OfOneClientIsNoOthers)
{
    ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd"));

    EXPECT_EQ(other.Ask(Name, 1, 4), NoPiece);

    EXPECT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));
}

TEST_F(FileTransfer, IsForClientsOfAnyNumber)
{
    const TransferClient first(library, 0);
    const TransferClient last(library, UINT32_MAX);
    ASSERT_EQ(first.Ask(Name, 0, 4), More("abcd"));
    Write("ABCDEF");
    ASSERT_EQ(last.Ask(Name, 0, 4), More("ABCD"));

    EXPECT_EQ(first.Ask(Name, 1, 4), Last(Terminated("ef")));
    EXPECT_EQ(last.Ask(Name, 1, 4), Last(Terminated("EF")));
}

TEST_F(FileTransfer, OfTwoFilesIsTwoAlsoForOneClient)
{
    Write("ABCDEF", L"Kessel");
    ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd"));
    ASSERT_EQ(client.Ask(L"Kessel", 0, 4), More("ABCD"));

    EXPECT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));
    EXPECT_EQ(client.Ask(L"Kessel", 1, 4), Last(Terminated("EF")));
}

TEST_F(FileTransfer, StaysForAReaderWhoStopsHalfWay)
{
    ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd"));

    for (std::uint32_t id = 100; id < 200; ++id)
    {
        EXPECT_EQ(TransferClient(library, id).Text(Name), "abcdef");
    }
    library.NorvepaBl64x_deinit(); // which empties much else

    EXPECT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));
}

TEST(FileTransferOfALibrary, EndsWithIt)
{
    const StoreRoots roots;
    WriteBytes(roots.logDevice(Name), "abcdef");
    std::optional<Exports> library(std::in_place);
    ASSERT_EQ(TransferClient(*library, 7).Ask(Name, 0, 4), More("abcd"));

    library.reset();
    library.emplace();

    EXPECT_EQ(TransferClient(*library, 7).Ask(Name, 1, 4), NoPiece);
}

} // namespace
} // namespace norvepa::test

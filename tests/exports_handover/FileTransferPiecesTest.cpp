#include "FileTransferScene.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

const std::wstring Name = L"Presse";

class FileTransferPieces : public FileTransferScene
{
};

TEST_F(FileTransferPieces, AreOfTheCleanedFileWithItsTerminator)
{
    Write(" <a>\r\n <b> x  y </b>\t</a>\r\n");

    EXPECT_EQ(client.Ask(Name, 0, 100), Last(Terminated(" <a><b>x  y </b></a>")));
}

TEST_F(FileTransferPieces, MakeUpTheFileForEveryLength)
{
    Write("<a>\r\n <b> x</b>\n</a>\n");
    const std::string text = Terminated("<a><b>x</b></a>");

    for (std::uint32_t length = 1; length <= text.size() + 2; ++length)
    {
        EXPECT_EQ(client.AskForAll(Name, length), CutIntoPieces(text, length)) << length;
    }
}

TEST_F(FileTransferPieces, AreOneWhenTheFileFitsWithItsTerminator)
{
    Write("abcdefghi");

    EXPECT_EQ(client.Ask(Name, 0, 11), Last(Terminated("abcdefghi")));
    EXPECT_EQ(client.Ask(Name, 0, 10), Last(Terminated("abcdefghi")));
    EXPECT_EQ(client.Ask(Name, 0, 9), More("abcdefghi"));
    EXPECT_EQ(client.Ask(Name, 1, 9), Last(Terminated("")));
}

TEST_F(FileTransferPieces, EndWithAFullOneWhenTheSizeIsAMultiple)
{
    Write("abcdefghi");

    EXPECT_THAT(client.AskForAll(Name, 5), ElementsAre(More("abcde"), Last(Terminated("fghi"))));
    EXPECT_EQ(client.Ask(Name, 2, 5), NoPiece);
}

TEST_F(FileTransferPieces, LeaveTheBufferBehindThemAlone)
{
    Write("abcde");
    std::string buffer(10, '.');
    const auto ask = [&](std::uint32_t index) {
        std::uint32_t length = 4;
        auto* const bytes = reinterpret_cast<std::uint8_t*>(buffer.data());
        const std::int32_t result =
            library.LogDeviceGetXmlBL(7, LogDeviceKind, Name.c_str(), index, bytes, &length);
        return Piece{result, std::to_string(length)};
    };

    EXPECT_EQ(ask(0), More("4"));
    EXPECT_EQ(buffer, "abcd......");
    EXPECT_EQ(ask(1), Last("2"));
    EXPECT_EQ(buffer, Terminated("e") + "cd......");
    EXPECT_EQ(ask(2), Piece({PGSP_ERR_NO_MORE_ITEMS, "4"}));
    EXPECT_EQ(buffer, Terminated("e") + "cd......");
}

// Such a transfer never ends, but is no harm either.
TEST_F(FileTransferPieces, AreEmptyForALengthOfNone)
{
    Write("abcdef");

    EXPECT_EQ(client.Ask(Name, 0, 0), More(""));
    EXPECT_EQ(client.Ask(Name, 1, 0), More(""));
    EXPECT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));
    EXPECT_EQ(client.Ask(Name, 1, 0), NoPiece);
}

TEST_F(FileTransferPieces, MayBeSaidToBeLongerThanAnyFile)
{
    Write("abcdef");

    EXPECT_EQ(client.Ask(Name, 0, UINT32_MAX), Last(Terminated("abcdef")));
    EXPECT_EQ(client.Ask(Name, 1, UINT32_MAX), NoPiece);
    ASSERT_EQ(client.Ask(Name, 0, 2), More("ab"));
    EXPECT_EQ(client.Ask(Name, UINT32_MAX, UINT32_MAX), Last(Terminated("bcdef")));
}

TEST_F(FileTransferPieces, BeginAnewWhereTheOffsetWrapsAround)
{
    Write("abcdef");
    ASSERT_EQ(client.Ask(Name, 0, 2), More("ab"));

    EXPECT_EQ(client.Ask(Name, 0x8000'0001, 2), More("cd"));
    EXPECT_EQ(client.Ask(Name, 0x8000'0000, 2), More("ab"));
    EXPECT_EQ(client.Ask(Name, 0x8000'0003, 2), Last(Terminated("")));
}

TEST_F(FileTransferPieces, OfAnEmptyFileAreItsTerminator)
{
    Write("");

    EXPECT_EQ(client.Ask(Name, 0, 4), Last(Terminated("")));
    EXPECT_EQ(client.Ask(Name, 0, 1), Last(Terminated("")));
}

TEST_F(FileTransferPieces, AreOfWhateverTheFileHolds)
{
    const std::string bytes("\xFF\xFE\0no XML \x1A\r\n\0", 14);
    Write(bytes);

    EXPECT_EQ(client.Ask(Name, 0, 100), Last(Terminated(bytes)));
}

TEST_F(FileTransferPieces, MakeUpALargeFile)
{
    constexpr std::uint32_t length = 4096;
    std::string text;
    for (int i = 0; i < 20'000; ++i)
    {
        text += "<Value>" + std::to_string(i) + "</Value>";
    }
    Write(text);

    EXPECT_TRUE(client.AskForAll(Name, length) == CutIntoPieces(Terminated(text), length));
}

TEST_F(FileTransferPieces, OfACatalogueSayWhatItsFilesDo)
{
    roots.FillWithSampleStore();
    const TransferClient boards(library, 7, BoardKind);
    const std::wstring folder = roots.program() + L"\\meta\\Boards";
    const std::vector<std::wstring> files = FileNames(folder);
    ASSERT_THAT(files, testing::Not(testing::IsEmpty()));

    for (const std::wstring& file : files)
    {
        EXPECT_EQ(MeaningOf(boards.Text(file)), MeaningOfFile(folder + L"\\" + file)) << ToUtf8(file);
    }
}

} // namespace
} // namespace norvepa::test

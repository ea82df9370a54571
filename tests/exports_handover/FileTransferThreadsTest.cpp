#include "FileTransferScene.h"
#include "support/AllAtOnce.h"
#include "support/FreshThread.h"

namespace norvepa::test
{
namespace
{

constexpr int Threads = 4;
constexpr int Rounds = 25;
constexpr std::uint32_t PieceLength = 7;
const std::wstring Name = L"Presse";

class FileTransferThreads : public FileTransferScene
{
protected:
    [[nodiscard]] TransferClient ClientOf(int thread) const
    {
        return {library, static_cast<std::uint32_t>(thread)};
    }
};

TEST_F(FileTransferThreads, NeedNoCom)
{
    Write("<a>\r\n<b/></a>");

    OnFreshThread([&] {
        ASSERT_FALSE(ThisThreadHasCom());

        EXPECT_EQ(client.AskForAll(Name, PieceLength), CutIntoPieces(Terminated("<a><b/></a>"), PieceLength));

        EXPECT_FALSE(ThisThreadHasCom());
    });
}

TEST_F(FileTransferThreads, GoOnWithTheTransferOfAnother)
{
    Write("abcdef");
    OnFreshThread([&] { ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd")); });

    EXPECT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));
}

TEST_F(FileTransferThreads, ReadOneFileAtOnceForAClientEach)
{
    Write("<a>\r\n<b> text of all of them </b>\r\n</a>");
    const auto pieces = CutIntoPieces(Terminated("<a><b>text of all of them </b></a>"), PieceLength);

    AllAtOnce(Threads, [&](int thread) {
        const TransferClient reader = ClientOf(thread);
        for (int round = 0; round < Rounds; ++round)
        {
            EXPECT_EQ(reader.AskForAll(Name, PieceLength), pieces);
            EXPECT_EQ(reader.Ask(Name, 1, PieceLength), NoPiece);
        }
    });
}

TEST_F(FileTransferThreads, ReadAFileOfTheirOwnEach)
{
    for (int thread = 0; thread < Threads; ++thread)
    {
        Write("<a>\r\n" + std::to_string(thread) + " and no other</a>", std::to_wstring(thread));
    }

    AllAtOnce(Threads, [&](int thread) {
        const TransferClient reader = ClientOf(thread);
        const std::string text = "<a>" + std::to_string(thread) + " and no other</a>";
        for (int round = 0; round < Rounds; ++round)
        {
            EXPECT_EQ(reader.AskForAll(std::to_wstring(thread), PieceLength),
                      CutIntoPieces(Terminated(text), PieceLength));
        }
    });
}

TEST_F(FileTransferThreads, LeaveTheTransferOfOneWhoNeverFinishes)
{
    Write("abcdef");
    const TransferClient idle = ClientOf(Threads);
    ASSERT_EQ(idle.Ask(Name, 0, 4), More("abcd"));

    AllAtOnce(Threads, [&](int thread) {
        for (int round = 0; round < Rounds; ++round)
        {
            EXPECT_EQ(ClientOf(thread).Text(Name), "abcdef");
        }
    });

    EXPECT_EQ(idle.Ask(Name, 1, 4), Last(Terminated("ef")));
}

} // namespace
} // namespace norvepa::test

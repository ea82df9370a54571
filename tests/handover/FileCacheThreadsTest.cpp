#include "FileCacheScene.h"
#include "support/AllAtOnce.h"

namespace norvepa::test
{
namespace
{

constexpr int Threads = 6;
constexpr int Rounds = 100;
constexpr std::wstring_view File = L"C:\\data\\LogDevices\\Presse.xml"; // of all of them

std::string TextOf(int thread, int round)
{
    return "<a>" + std::to_string(thread) + "/" + std::to_string(round) + "</a>";
}

TEST(FileCacheThreads, GetWhatEachHasStored)
{
    AllAtOnce(Threads, [](int thread) {
        CacheClient client(static_cast<std::uint32_t>(thread));
        for (int round = 0; round < Rounds; ++round)
        {
            const std::string text = TextOf(thread, round);
            client.Store(File, text);
            EXPECT_EQ(client.ReadAll(File, 4), CutIntoPieces(Terminated(text), 4));
            client.Remove(File);
            EXPECT_EQ(client.Read(File), NoPiece);
        }
    });
}

TEST(FileCacheThreads, LeaveAloneWhatAnotherClientIsReading)
{
    CacheClient reader(Threads);
    const std::string text(200, 'r');
    reader.Store(File, text);

    AllAtOnce(Threads, [&](int thread) {
        CacheClient client(static_cast<std::uint32_t>(thread));
        for (int round = 0; round < Rounds; ++round)
        {
            client.Store(File, TextOf(thread, round));
            EXPECT_EQ(reader.ReadAll(File, 7), CutIntoPieces(Terminated(text), 7));
        }
    });

    EXPECT_EQ(reader.ReadAll(File, 7), CutIntoPieces(Terminated(text), 7));
}

TEST(FileCacheThreads, LeaveTheItemOfOneWhoNeverFinishes)
{
    CacheClient idle(Threads);
    idle.Store(File, "abcdef");
    ASSERT_EQ(idle.Read(File, 0, 4), More("abcd"));

    AllAtOnce(Threads, [](int thread) {
        for (int round = 0; round < Rounds; ++round)
        {
            CacheClient client(static_cast<std::uint32_t>(thread));
            client.Store(File, TextOf(thread, round));
        }
    });

    EXPECT_EQ(idle.Read(File, 1, 4), Last(Terminated("ef")));
}

// One who breaks the rules gets one file or the other, or none, but never parts of both.
TEST(FileCacheThreads, OfOneClientGetWholeItems)
{
    constexpr std::uint32_t id = 7;
    const std::string first = Terminated(std::string(50, 'a'));
    const std::string second = Terminated(std::string(90, 'b'));

    AllAtOnce(Threads, [&](int thread) {
        CacheClient client(id);
        for (int round = 0; round < Rounds; ++round)
        {
            client.Store(File, thread % 2 == 0 ? std::string(50, 'a') : std::string(90, 'b'));
            EXPECT_THAT(client.Read(File), testing::AnyOf(Last(first), Last(second), NoPiece));
            client.Remove(File);
        }
    });
}

} // namespace
} // namespace norvepa::test

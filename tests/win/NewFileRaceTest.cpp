#include "support/AllAtOnce.h"
#include "support/AtNextPause.h"
#include "support/Eventually.h"
#include "support/ImportHook.h"
#include "support/Peer.h"
#include "support/RedirectedRegistry.h"
#include "support/SystemFunction.h"
#include "support/TemporaryFolder.h"
#include "win/NewFile.h"

#include <windows.h>

#include <atomic>
#include <gmock/gmock.h>
#include <optional>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using win::NewFile;

// Several that make one file, and makers that come to a sudden end.
class MakersOfAFile : public testing::Test
{
protected:
    TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";
};

TEST_F(MakersOfAFile, AreOneOfAllWhoBeginAtOnce)
{
    constexpr int rounds = 50;
    for (int round = 0; round < rounds; ++round)
    {
        const std::wstring path = folder / (std::to_wstring(round) + L".xml");
        std::atomic<int> kept = 0;
        std::atomic<int> keeper = -1;

        AllAtOnce(3, [&](int maker) {
            NewFile made = NewFile::CreateBeside(path);
            if (made && made.Write(std::string(100, static_cast<char>('a' + maker))) && made.Keep())
            {
                ++kept;
                keeper = maker;
            }
        });

        EXPECT_EQ(kept, 1);
        EXPECT_EQ(ReadBytes(path), std::string(100, static_cast<char>('a' + keeper)));
    }
    EXPECT_THAT(FileNames(folder.path()), testing::SizeIs(rounds));
}

TEST_F(MakersOfAFile, WaitForTheOneWhoHasBegunAndFindHisFile)
{
    std::optional<NewFile> first(NewFile::CreateBeside(file));
    EXPECT_TRUE(first->Write("first"));
    const AtNextPause pause([&] {
        EXPECT_TRUE(first->Keep());
        first.reset();
    });

    const NewFile second = NewFile::CreateBeside(file);

    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_EXISTS});
    EXPECT_FALSE(second);
    EXPECT_TRUE(pause.hasBeen());
    EXPECT_EQ(ReadBytes(file), "first");
    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"file.xml"));
}

TEST_F(MakersOfAFile, TakeOverFromTheOneWhoGivesUp)
{
    std::optional<NewFile> first(NewFile::CreateBeside(file));
    EXPECT_TRUE(first->Write("the first one's, which is longer"));
    const AtNextPause pause([&] { first.reset(); });
    {
        NewFile second = NewFile::CreateBeside(file);
        EXPECT_TRUE(second.Write("second"));
        EXPECT_TRUE(second.Keep());
    }

    EXPECT_EQ(ReadBytes(file), "second");
    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"file.xml"));
}

// As some systems tell of a file that is to go when its last handle does.
int refusalsLeft = 0;

HANDLE WINAPI RefuseAtFirst(const wchar_t* path, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES* security,
                            DWORD disposition, DWORD flags, HANDLE model)
{
    static auto* const open = SystemFunction<decltype(CreateFileW)>("CreateFileW");
    if (refusalsLeft-- > 0)
    {
        SetLastError(ERROR_ACCESS_DENIED);
        return INVALID_HANDLE_VALUE;
    }
    return open(path, access, sharing, security, disposition, flags, model);
}

TEST_F(MakersOfAFile, WaitAlsoForOneWhoseFileCanNotBeHad)
{
    refusalsLeft = 2;
    const ImportHook open("CreateFileW", RefuseAtFirst);

    NewFile made = NewFile::CreateBeside(file);

    EXPECT_LT(refusalsLeft, 0);
    EXPECT_TRUE(made && made.Keep());
}

TEST_F(MakersOfAFile, DoNotWaitForOneWhoTakesLong)
{
    const NewFile first = NewFile::CreateBeside(file);

    const NewFile second = NewFile::CreateBeside(file);

    EXPECT_EQ(GetLastError(), DWORD{ERROR_SHARING_VIOLATION});
    EXPECT_FALSE(second);
}

// A process that was killed is still about for a moment.
TEST_F(MakersOfAFile, LeaveNothingWhenTheyAreKilled)
{
    const RedirectedRegistry registry;
    const std::wstring other = folder / L"other.xml";
    Peer maker(L"file_maker.exe", registry);
    EXPECT_EQ(maker.Ask(ToUtf8(file)), "made");
    EXPECT_EQ(maker.Ask("at once|" + ToUtf8(other)), "made");
    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"other.xml", L"~file.new"));

    maker.Kill();

    EXPECT_TRUE(Eventually([&] { return FileNames(folder.path()).empty(); }));
}

} // namespace
} // namespace norvepa::test

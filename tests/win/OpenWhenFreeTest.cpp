#include "win/OpenWhenFree.h"

#include "support/OpenFile.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

std::vector<std::string> told;
int triesLeft = 0;

// One that tells what is asked of it.
struct CountingPatience
{
    explicit CountingPatience(win::FileNumber file) { told.push_back("for " + std::to_string(file)); }
    static bool IsWorthAnotherTry()
    {
        told.emplace_back("asked");
        SetLastError(ERROR_SUCCESS);
        return triesLeft-- > 0;
    }
    static void Opened() { told.emplace_back("opened"); }
};

class AStepWhenFree : public testing::Test
{
protected:
    AStepWhenFree()
    {
        told.clear();
        triesLeft = 2;
    }

    // A step that is refused with these codes, one after the other, and then done.
    [[nodiscard]] bool Run(std::vector<DWORD> refusals)
    {
        std::size_t next = 0;
        return win::WhenFree<CountingPatience>(7, {ERROR_SHARING_VIOLATION, ERROR_ACCESS_DENIED}, [&] {
            if (next == refusals.size())
            {
                return true;
            }
            SetLastError(refusals.at(next++));
            return false;
        });
    }
};

TEST_F(AStepWhenFree, IsDoneAtOnceWhenTheFileIsFree)
{
    EXPECT_TRUE(Run({}));

    EXPECT_THAT(told, ElementsAre("for 7", "opened"));
}

TEST_F(AStepWhenFree, IsTriedAgainForAsLongAsItIsWorthIt)
{
    EXPECT_TRUE(Run({ERROR_SHARING_VIOLATION, ERROR_ACCESS_DENIED}));

    EXPECT_THAT(told, ElementsAre("for 7", "asked", "asked", "opened"));
}

TEST_F(AStepWhenFree, IsGivenUpWhenItIsNotWorthItAndTheReasonStays)
{
    EXPECT_FALSE(Run({ERROR_SHARING_VIOLATION, ERROR_SHARING_VIOLATION, ERROR_ACCESS_DENIED}));

    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
    EXPECT_THAT(told, ElementsAre("for 7", "asked", "asked", "asked"));
}

TEST_F(AStepWhenFree, IsNotTriedAgainForOtherReasons)
{
    EXPECT_FALSE(Run({ERROR_FILE_NOT_FOUND}));

    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
    EXPECT_THAT(told, ElementsAre("for 7"));
}

TEST_F(AStepWhenFree, AnswersWhatTheStepAnswers)
{
    const TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";
    WriteBytes(file, "bytes");

    const win::Handle opened =
        win::OpenWhenFree<CountingPatience>(file.c_str(), {GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING});

    EXPECT_TRUE(opened);
    EXPECT_THAT(told, ElementsAre("for " + std::to_string(win::NumberOfFile(file)), "opened"));
}

TEST_F(AStepWhenFree, WaitsForAFileThatCanNotBeShared)
{
    const TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";
    WriteBytes(file, "bytes");
    const OpenFile holder(file);

    const win::Handle opened =
        win::OpenWhenFree<CountingPatience>(file.c_str(), {GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING});

    EXPECT_EQ(GetLastError(), DWORD{ERROR_SHARING_VIOLATION});
    EXPECT_FALSE(opened);
    EXPECT_THAT(told,
                ElementsAre("for " + std::to_string(win::NumberOfFile(file)), "asked", "asked", "asked"));
}

TEST_F(AStepWhenFree, DoesNotWaitForAFileThatIsNotThere)
{
    const TemporaryFolder folder;

    EXPECT_FALSE(win::OpenWhenFree<CountingPatience>((folder / L"missing.xml").c_str(),
                                                     {GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING}));

    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
    EXPECT_THAT(told, testing::SizeIs(1));
}

} // namespace
} // namespace norvepa::test

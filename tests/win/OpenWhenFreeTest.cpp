#include "win/OpenWhenFree.h"

#include "support/AtNextPause.h"
#include "support/OpenFile.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <optional>
#include <string>
#include <vector>

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

class AnOpenedFile : public testing::Test
{
protected:
    AnOpenedFile() { WriteBytes(file, "bytes"); }

    TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";
};

TEST_F(AnOpenedFile, IsThereForAnyUse)
{
    const win::Handle reader = win::Open(file.c_str(), {GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING});

    EXPECT_TRUE(reader);
    EXPECT_FALSE(win::Open(file.c_str(), {GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING}));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_SHARING_VIOLATION});
    EXPECT_FALSE(win::Open(file.c_str(), {GENERIC_READ, FILE_SHARE_READ, CREATE_NEW}));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_EXISTS});
}

TEST_F(AnOpenedFile, IsWaitedForUntilItIsFree)
{
    std::optional<OpenFile> holder(std::in_place, file);
    const AtNextPause pause([&] { holder.reset(); });

    EXPECT_TRUE(win::OpenWhenFree(file.c_str(), {GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING}));

    EXPECT_TRUE(pause.hasBeen());
}

TEST_F(AnOpenedFile, IsNotWaitedForForEver)
{
    const OpenFile holder(file);

    EXPECT_FALSE(win::OpenWhenFree(file.c_str(), {GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING}));

    EXPECT_EQ(GetLastError(), DWORD{ERROR_SHARING_VIOLATION});
}

TEST_F(AnOpenedFile, IsNotWaitedForWhereThereIsNone)
{
    const std::wstring missing = folder / L"missing.xml";
    const AtNextPause pause([] {});

    EXPECT_FALSE(win::OpenWhenFree(missing.c_str(), {GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING}));

    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
    EXPECT_FALSE(pause.hasBeen());
}

} // namespace
} // namespace norvepa::test

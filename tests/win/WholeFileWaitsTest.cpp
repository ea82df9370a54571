#include "support/OpenFile.h"
#include "support/StoppedClock.h"
#include "support/TemporaryFolder.h"
#include "win/Waits.h"
#include "win/WholeFile.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace norvepa::test
{
namespace
{

// How long a file is waited for that a stranger has to himself.
class AHeldFile : public testing::Test
{
protected:
    AHeldFile() { WriteBytes(file, "text"); }

    [[nodiscard]] int PausesToRead(const std::wstring& path) const
    {
        const int before = m_pauses.count();
        EXPECT_EQ(win::ReadWholeFile(path), std::nullopt);
        return m_pauses.count() - before;
    }

    [[nodiscard]] int PausesToWrite(const std::wstring& path) const
    {
        const int before = m_pauses.count();
        EXPECT_FALSE(win::WriteWholeFile(path, "text", " "));
        return m_pauses.count() - before;
    }

    TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";

private:
    StoppedClock m_clock;
    EqualPauses m_pauses;
};

TEST_F(AHeldFile, IsWaitedForByItsFirstReaderAlone)
{
    const OpenFile stranger(file, 0);

    EXPECT_EQ(PausesToRead(file), EqualPauses::Whole);
    EXPECT_EQ(PausesToRead(file), EqualPauses::Short);
}

TEST_F(AHeldFile, IsWaitedForAgainOnceItHasBeenRead)
{
    std::optional<OpenFile> stranger(std::in_place, file, 0);
    EXPECT_EQ(PausesToRead(file), EqualPauses::Whole);
    stranger.reset();
    EXPECT_TRUE(win::ReadWholeFile(file));

    stranger.emplace(file, 0);

    EXPECT_EQ(PausesToRead(file), EqualPauses::Whole);
}

TEST_F(AHeldFile, IsWaitedForAgainOnceItHasBeenWritten)
{
    std::optional<OpenFile> stranger(std::in_place, file, 0);
    EXPECT_EQ(PausesToRead(file), EqualPauses::Whole);
    stranger.reset();
    EXPECT_TRUE(win::WriteWholeFile(file, "text", " "));

    stranger.emplace(file, 0);

    EXPECT_EQ(PausesToRead(file), EqualPauses::Whole);
}

TEST_F(AHeldFile, IsWaitedForByEachWriter)
{
    const OpenFile stranger(file, 0);

    EXPECT_EQ(PausesToWrite(file), EqualPauses::Whole);
    EXPECT_EQ(PausesToWrite(file), EqualPauses::Whole);
}

TEST_F(AHeldFile, IsOneOfAHundredThatCostAFewWaitsAltogether)
{
    int pauses = 0;
    for (int number = 0; number < 100; ++number)
    {
        const std::wstring each = folder / std::to_wstring(number);
        WriteBytes(each, "");
        const OpenFile stranger(each, 0);
        pauses += PausesToRead(each);
    }

    EXPECT_EQ(pauses, 5 * EqualPauses::Whole + 95 * EqualPauses::Short);
}

} // namespace
} // namespace norvepa::test

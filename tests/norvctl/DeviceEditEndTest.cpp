#include "EditScene.h"
#include "support/OpenFile.h"

#include <windows.h>

#include <memory>
#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;

class NorvctlEditApply : public NorvctlEdit
{
protected:
    NorvctlEditApply() { BeginAndChange(); }
};

class NorvctlEditDiscard : public NorvctlEdit
{
protected:
    NorvctlEditDiscard() { BeginAndChange(); }
};

// A file that nobody else can open, but which can be found.
std::unique_ptr<void, decltype(&CloseHandle)> OpenForOneselfAlone(const std::wstring& path)
{
    return {CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr), &CloseHandle};
}

TEST_F(NorvctlEditApply, PutsTheCopyInTheOriginalsPlace)
{
    const std::string changed = ReadBytes(LogDevicePath(First));

    const ProgramEnd end = Apply(L"Kesselhaus");

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "applied PGSP_TEMP_LOG_DEVICE____000 to Kesselhaus\n");
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(ReadBytes(LogDevicePath(L"Kesselhaus")), changed);
    EXPECT_FALSE(IsTemporaryThere());
}

TEST_F(NorvctlEditApply, AsJsonTellsWhatWasDone)
{
    const json done =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"edit", L"apply", First, L"Kesselhaus"}));

    EXPECT_EQ(
        done,
        (json{{"done", "applied"}, {"device", "Kesselhaus"}, {"temporary", "PGSP_TEMP_LOG_DEVICE____000"}}));
}

TEST_F(NorvctlEditApply, OfAMissingCopyLeavesTheOriginal)
{
    const std::string before = ReadBytes(LogDevicePath(L"Kesselhaus"));

    const ProgramEnd end =
        RunNorvctl({L"device", L"edit", L"apply", L"PGSP_TEMP_LOG_DEVICE____001", L"Kesselhaus"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "norvctl: PGSP_TEMP_LOG_DEVICE____001: there is no such file "
                         "(8503 PGSP_ERR_FILE_NOT_FOUND)\n");
    EXPECT_EQ(ReadBytes(LogDevicePath(L"Kesselhaus")), before);
}

TEST_F(NorvctlEditApply, ToAMissingOneKeepsTheCopy)
{
    const ProgramEnd end = Apply(L"gone");

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: gone: there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND): "
                         "there is no such log device\n");
    EXPECT_TRUE(IsTemporaryThere());
}

TEST_F(NorvctlEditApply, ToOneInUseChangesNothing)
{
    const OpenFile user(LogDevicePath(L"Kesselhaus"));

    const ProgramEnd end = Apply(L"Kesselhaus");

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error,
                HasSubstr("(8503 PGSP_ERR_FILE_NOT_FOUND): the log device is in use or protected"));
    EXPECT_EQ(Baudrate(L"Kesselhaus"), "1500000\n");
    EXPECT_TRUE(IsTemporaryThere());
}

TEST_F(NorvctlEditApply, OfACopyThatCannotBeReadTellsThatItIsAllThatIsLeft)
{
    const auto user = OpenForOneselfAlone(LogDevicePath(First));

    const ProgramEnd end = Apply(L"Kesselhaus");

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(
        end.error,
        "norvctl: Kesselhaus: the file cannot be copied (8512 PGSP_ERR_CANT_COPY_FILE): the log device is "
        "gone, all that is left of it is PGSP_TEMP_LOG_DEVICE____000\n");
    EXPECT_FALSE(Exists(LogDevicePath(L"Kesselhaus")));
    EXPECT_TRUE(IsTemporaryThere());
}

TEST_F(NorvctlEditApply, OfACopyThatCannotBeDeletedTellsThatItIsStillThere)
{
    const OpenFile user(LogDevicePath(First));

    const ProgramEnd end = Apply(L"Kesselhaus");

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error,
              "norvctl: Kesselhaus: the file cannot be deleted (8511 PGSP_ERR_CANT_DELETE_FILE): the "
              "log device is what PGSP_TEMP_LOG_DEVICE____000 is, which is still there\n");
    EXPECT_EQ(Baudrate(L"Kesselhaus"), "187500\n");
    EXPECT_TRUE(IsTemporaryThere());
}

TEST_F(NorvctlEditDiscard, RemovesTheCopyAndLeavesTheOriginal)
{
    const ProgramEnd end = RunNorvctl({L"device", L"edit", L"discard", First});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "discarded PGSP_TEMP_LOG_DEVICE____000\n");
    EXPECT_EQ(end.error, "");
    EXPECT_FALSE(IsTemporaryThere());
    EXPECT_EQ(Baudrate(L"Kesselhaus"), "1500000\n");
}

TEST_F(NorvctlEditDiscard, AsJsonTellsWhatWasDone)
{
    const json done = json::parse(OutputOfNorvctl({L"--json", L"device", L"edit", L"discard", First}));

    EXPECT_EQ(done, (json{{"done", "discarded"}, {"temporary", "PGSP_TEMP_LOG_DEVICE____000"}}));
}

TEST_F(NorvctlEditDiscard, RefusesWhatIsNotTemporary)
{
    const ProgramEnd end = RunNorvctl({L"device", L"edit", L"discard", L"Kesselhaus"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "norvctl: Kesselhaus: the name or the value is not acceptable "
                         "(87 PGSP_ERR_INVALID_PARAMETERS): it is not a temporary log device\n");
    EXPECT_TRUE(Exists(LogDevicePath(L"Kesselhaus")));
}

TEST_F(NorvctlEditDiscard, OfAMissingCopyFails)
{
    const ProgramEnd end = RunNorvctl({L"device", L"edit", L"discard", L"PGSP_TEMP_LOG_DEVICE____001"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("PGSP_TEMP_LOG_DEVICE____001: the file cannot be deleted "
                                     "(8511 PGSP_ERR_CANT_DELETE_FILE): device edit list tells"));
}

} // namespace
} // namespace norvepa::test

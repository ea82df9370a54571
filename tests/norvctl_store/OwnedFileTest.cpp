#include "norvctl/OwnedFile.h"

#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class NorvctlFileInTheMaking : public testing::Test
{
protected:
    [[nodiscard]] std::wstring Place() const { return folder / L"made"; }
    [[nodiscard]] std::wstring Beside() const { return folder / L"beside"; }

    TemporaryFolder folder;
};

TEST_F(NorvctlFileInTheMaking, IsGoneUnlessItHasBecomeAnother)
{
    {
        norvctl::FileInTheMaking made(Beside());
        made.Write("some");
        made.SetAs({FILE_ATTRIBUTE_READONLY, 131'000'000'000'000'000, {}});
    }

    EXPECT_THAT(FileNames(folder.path()), IsEmpty());
}

TEST_F(NorvctlFileInTheMaking, BecomesAnotherWithItsBytesAndItsTime)
{
    {
        norvctl::FileInTheMaking made(Beside());
        made.Write("some ");
        made.Write("bytes");
        made.SetAs({0, 131'000'000'000'000'000, {}});
        EXPECT_TRUE(made.TryToBecome(Place(), norvctl::Existing::Stays));
    }

    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"made"));
    EXPECT_EQ(ReadBytes(Place()), "some bytes");
    WIN32_FILE_ATTRIBUTE_DATA data{};
    GetFileAttributesExW(Place().c_str(), GetFileExInfoStandard, &data);
    EXPECT_EQ(std::uint64_t{data.ftLastWriteTime.dwHighDateTime} << 32 | data.ftLastWriteTime.dwLowDateTime,
              131'000'000'000'000'000U);
}

TEST_F(NorvctlFileInTheMaking, LeavesAFileThatIsToStay)
{
    WriteBytes(Place(), "older");
    {
        norvctl::FileInTheMaking made(Beside());
        made.Write("newer");
        EXPECT_FALSE(made.TryToBecome(Place(), norvctl::Existing::Stays));
    }

    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"made"));
    EXPECT_EQ(ReadBytes(Place()), "older");
}

TEST_F(NorvctlFileInTheMaking, ReplacesAFileThatIsNotToStay)
{
    WriteBytes(Place(), "older");
    {
        norvctl::FileInTheMaking made(Beside());
        made.Write("newer");
        EXPECT_TRUE(made.TryToBecome(Place(), norvctl::Existing::IsReplaced));
    }

    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"made"));
    EXPECT_EQ(ReadBytes(Place()), "newer");
}

TEST_F(NorvctlFileInTheMaking, DoesNotReplaceAFolder)
{
    MakeFolders(Place());
    {
        norvctl::FileInTheMaking made(Beside());
        made.Write("newer");
        EXPECT_FALSE(made.TryToBecome(Place(), norvctl::Existing::IsReplaced));
    }

    EXPECT_THAT(FileNames(folder.path()), ElementsAre(L"made"));
}

} // namespace
} // namespace norvepa::test

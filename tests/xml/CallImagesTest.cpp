// A call sees one state of a file; whoever isn't in a call sees what the file says now.

#include "xml/CallImages.h"

#include "support/AllAtOnce.h"
#include "support/ImportHook.h"
#include "support/OpenFile.h"
#include "xml/CallScene.h"
#include "xml/Document.h"

#include <filesystem>
#include <optional>

namespace norvepa::test
{
namespace
{

using CallImagesTest = CallScene;

TEST_F(CallImagesTest, SeeWhatAFileSaidWhenTheCallFirstLookedAtIt)
{
    Say("first");
    const CallScope call;
    ASSERT_EQ(Met(file()), "<first/>");

    Say("second");

    EXPECT_EQ(Met(file()), "<first/>");
}

TEST_F(CallImagesTest, LookAtAFileOnceACall)
{
    Say("first");
    const CallScope call;
    const FileLooks looks;

    for (int times = 0; times < 9; ++times)
    {
        ASSERT_EQ(Met(file()), "<first/>");
    }

    EXPECT_EQ(FileLooks::engines(), 1U);
    EXPECT_EQ(FileLooks::openings(), 1U);
}

TEST_F(CallImagesTest, SeeAFileThatIsRemovedMeanwhile)
{
    Say("first");
    const CallScope call;
    ASSERT_EQ(Met(file()), "<first/>");

    std::filesystem::remove(file());

    EXPECT_EQ(Met(file()), "<first/>");
}

TEST_F(CallImagesTest, SeeTheLatestStateWhenTheyAreNotOfACall)
{
    for (const char* const word : {"first", "second", "third"})
    {
        Say(word);

        EXPECT_EQ(Met(file()), "<" + std::string(word) + "/>");
    }
}

TEST_F(CallImagesTest, SeeTheLatestStateInTheNextCall)
{
    Say("first");
    {
        const CallScope call;
        ASSERT_EQ(Met(file()), "<first/>");
        Say("second");
    }
    const CallScope next;

    EXPECT_EQ(Met(file()), "<second/>");
}

TEST_F(CallImagesTest, BelongToTheOutermostCall)
{
    Say("first");
    const CallScope call;
    {
        const CallScope inner;
        ASSERT_EQ(Met(file()), "<first/>");
    }

    Say("second");

    EXPECT_EQ(Met(file()), "<first/>");
}

TEST_F(CallImagesTest, BelongToTheCallsThread)
{
    Say("first");
    const CallScope call;
    ASSERT_EQ(Met(file()), "<first/>");
    Say("second");
    std::string other;

    AllAtOnce(1, [&](int) { other = Met(file()); });

    EXPECT_EQ(other, "<second/>");
}

TEST_F(CallImagesTest, SeeTheLatestStateOnceTheyAreForgotten)
{
    Say("first");
    const CallScope call;
    ASSERT_EQ(Met(file()), "<first/>");
    Say("second");

    ForgetImages();

    EXPECT_EQ(Met(file()), "<second/>");
}

TEST_F(CallImagesTest, CanBeForgottenWhereThereAreNone)
{
    ForgetImages();
    const CallScope call;
    ForgetImages();

    Say("first");

    EXPECT_EQ(Met(file()), "<first/>");
}

TEST_F(CallImagesTest, SeeWhatADocumentOfTheCallHasSaved)
{
    Say("first");
    const CallScope call;
    ASSERT_EQ(Met(file()), "<first/>");
    Document document;
    ASSERT_EQ(document.Create(), S_OK);
    ASSERT_TRUE(document.LoadBytes("<second/>"));

    ASSERT_TRUE(document.Save(file()));

    EXPECT_THAT(Met(file()), testing::StartsWith("<second/>"));
}

TEST_F(CallImagesTest, OutliveTheReaderThatAskedForThem)
{
    Say("first");
    std::optional<PullReader> reader(PullReader{});
    {
        const CallScope call;
        ASSERT_EQ(reader->Open(file()), PGSP_OK);
    }
    Say("second");
    DropImages();

    EXPECT_EQ(RestOf(*reader), "<first/>");
}

TEST_F(CallImagesTest, AreOfTheEightFilesThatTheCallLookedAtLast)
{
    const auto path = [this](int number) { return folder() / std::to_wstring(number); };
    const CallScope call;
    for (int number = 0; number < 9; ++number)
    {
        WriteBytes(path(number), "<first/>");
        ASSERT_EQ(Met(path(number)), "<first/>");
        WriteBytes(path(number), "<second/>");
    }

    for (int number = 8; number > 0; --number)
    {
        EXPECT_EQ(Met(path(number)), "<first/>") << number;
    }
    EXPECT_EQ(Met(path(0)), "<second/>");
}

TEST_F(CallImagesTest, OfAFileThatWasMissingAreTakenOnceItIsThere)
{
    const CallScope call;
    ASSERT_EQ(Met(file()), "error " + std::to_string(ERROR_FILE_NOT_FOUND));

    Say("first");

    EXPECT_EQ(Met(file()), "<first/>");
}

TEST_F(CallImagesTest, AreReadAlsoWhileAnotherKeepsTheFileToHimself)
{
    Say("first");
    const CallScope call;
    ASSERT_EQ(Met(file()), "<first/>");

    const OpenFile holder(file(), 0);

    EXPECT_EQ(Met(file()), "<first/>");
}

BOOL WINAPI ReadNothing(HANDLE, void*, DWORD, DWORD*, OVERLAPPED*)
{
    SetLastError(ERROR_CRC);
    return FALSE;
}

TEST_F(CallImagesTest, OfAFileThatCanNotBeReadAreNone)
{
    Say("first");
    const ImportHook hook("ReadFile", &ReadNothing);

    EXPECT_EQ(Met(file()), "error " + std::to_string(ERROR_CRC));
}

BOOL WINAPI TellNothing(HANDLE, FILE_INFO_BY_HANDLE_CLASS, void*, DWORD)
{
    SetLastError(ERROR_NOT_SUPPORTED);
    return FALSE;
}

TEST_F(CallImagesTest, OfAFileWhoseSizeIsNotToldAreNone)
{
    Say("first");
    const ImportHook hook("GetFileInformationByHandleEx", &TellNothing);

    EXPECT_EQ(Met(file()), "error " + std::to_string(ERROR_NOT_SUPPORTED));
}

} // namespace
} // namespace norvepa::test

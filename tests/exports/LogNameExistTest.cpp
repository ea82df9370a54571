#include "LogNameScene.h"
#include "support/OpenFile.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

constexpr std::int32_t Existence = 0;
constexpr std::int32_t Writable = 2;
constexpr std::int32_t Readable = 4;
constexpr std::int32_t Both = 6;

class LogNameExist : public LogNameScene
{
protected:
    LogNameExist() { Write(L"Pumpe", XmlContent().Text(L"hidden", L"true")); }

    [[nodiscard]] std::int32_t Exist(const std::wstring& logName, std::int32_t flag = Existence) const
    {
        return library.LogNameExistBL(logName.c_str(), flag);
    }
};

TEST_F(LogNameExist, KnowsAFileUnderEveryFlag)
{
    EXPECT_EQ(Exist(L"Pumpe", Existence), PGSP_OK);
    EXPECT_EQ(Exist(L"Pumpe", Writable), PGSP_OK);
    EXPECT_EQ(Exist(L"Pumpe", Readable), PGSP_OK);
    EXPECT_EQ(Exist(L"Pumpe", Both), PGSP_OK);
    EXPECT_EQ(Exist(L"PUMPE"), PGSP_OK);
}

TEST_F(LogNameExist, MissesAFileUnderEveryFlag)
{
    EXPECT_EQ(Exist(L"Presse", Existence), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(L"Presse", Writable), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(L"Presse", Readable), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(L"Presse", Both), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(LogNameExist, RefusesEveryOtherFlag)
{
    for (const std::int32_t flag : {1, 3, 5, 7, 8, 16, -1, -2, INT32_MAX, INT32_MIN})
    {
        EXPECT_EQ(Exist(L"Pumpe", flag), PGSP_ERR_INVALID_PARAMETERS) << flag;
        EXPECT_EQ(Exist(L"Presse", flag), PGSP_ERR_INVALID_PARAMETERS) << flag;
    }
}

TEST_F(LogNameExist, IsDeniedOnlyToWhoWantsToWriteAReadOnlyFile)
{
    SetFileAttributesW(roots.logName(L"Pumpe").c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(Exist(L"Pumpe", Existence), PGSP_OK);
    EXPECT_EQ(Exist(L"Pumpe", Readable), PGSP_OK);
    EXPECT_EQ(Exist(L"Pumpe", Writable), PGSP_ERR_ACCESS_DENIED);
    EXPECT_EQ(Exist(L"Pumpe", Both), PGSP_ERR_ACCESS_DENIED);

    SetFileAttributesW(roots.logName(L"Pumpe").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(LogNameExist, AsksForTheAttributeAndNotForWhoHoldsTheFile)
{
    const OpenFile inUse(roots.logName(L"Pumpe"));

    EXPECT_EQ(Exist(L"Pumpe", Both), PGSP_OK);
}

TEST_F(LogNameExist, AsksNotWhatTheFileHolds)
{
    WriteBytes(roots.logName(L"Presse"), "no XML");
    MakeFolders(roots.logName(L"Band"));

    EXPECT_EQ(Exist(L"Presse"), PGSP_OK);
    EXPECT_EQ(Exist(L"Band"), PGSP_OK);
}

TEST_F(LogNameExist, RefusesAnEmptyName)
{
    EXPECT_EQ(Exist(L""), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(LogNameExist, MissesAFileWithoutItsFolder)
{
    EXPECT_EQ(Exist(L"no such folder\\Pumpe"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(LogNameExist, KnowsNoSubdevices)
{
    EXPECT_EQ(Exist(L"Pumpe\\subdevices\\Achse"), PGSP_ERR_FILE_NOT_FOUND);

    Write(L"Pumpe\\subdevices\\Achse", {});
    EXPECT_EQ(Exist(L"Pumpe\\subdevices\\Achse"), PGSP_OK);
}

TEST_F(LogNameExist, GivesNoExtensionToAPathThatHoldsItAnywhere)
{
    WriteBytes(folder() + L"\\Presse.xml.old", "");
    WriteBytes(folder() + L"\\Band.XML.xml", "");

    EXPECT_EQ(Exist(L"Pumpe.xml"), PGSP_OK);
    EXPECT_EQ(Exist(L"Presse.xml.old"), PGSP_OK);
    EXPECT_EQ(Exist(L"Band.XML"), PGSP_OK);

    SetMachineText(LocationsKey, L"Corvane_Oam_Data", roots.folder() / L"root.xml");
    WriteBytes(roots.folder() / L"root.xml\\data\\LogNames\\Silo", "");
    EXPECT_EQ(Exist(L"Silo"), PGSP_OK);
}

// It is the name alone that has to fit here, escaped: the path of a name that does may be too long for any
// file.
TEST_F(LogNameExist, TakesANameOf259CharactersAndNoMore)
{
    EXPECT_EQ(Exist(std::wstring(259, L'n')), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(std::wstring(260, L'n')), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Exist(std::wstring(253, L'n') + L"#"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(std::wstring(254, L'n') + L"#"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Exist(std::wstring(100'000, L'n')), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(LogNameExist, TestsTheFlagAheadOfTheNameAndTheNameAheadOfTheFolder)
{
    const std::wstring tooLong(260, L'n');
    EXPECT_EQ(Exist(tooLong, 1), PGSP_ERR_INVALID_PARAMETERS);

    TakeDataFolderAway();
    EXPECT_EQ(Exist(tooLong), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Exist(L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Exist(L"Pumpe", 1), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Exist(L"Pumpe"), PGSP_ERR_FOLDER_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test

#include "TemplateScene.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

constexpr std::int32_t Existence = 0;
constexpr std::int32_t Writable = 2;
constexpr std::int32_t Readable = 4;
constexpr std::int32_t Both = 6;

class TemplateExist : public TemplateScene
{
protected:
    TemplateExist()
    {
        WriteBoard(L"X", {});
        WriteProtocol(L"X", {});
        WriteTemplate(L"X", {});
        WriteIn(L"Own", L"X", {});
    }

    const Strings folders{L"Boards", L"Protocols", L"DefaultLogDevices", L"Own"};
};

TEST_F(TemplateExist, KnowsAFileUnderEveryFlag)
{
    for (const std::int32_t flag : {Existence, Writable, Readable, Both})
    {
        for (const std::wstring& folder : folders)
        {
            EXPECT_EQ(Exist(folder, L"X", flag), PGSP_OK) << ToUtf8(folder) << flag;
            EXPECT_EQ(Exist(folder, L"x", flag), PGSP_OK) << ToUtf8(folder) << flag;
            EXPECT_EQ(Exist(folder, L"Y", flag), PGSP_ERR_FILE_NOT_FOUND) << ToUtf8(folder) << flag;
        }
        EXPECT_EQ(Exist(L"gone", L"X", flag), PGSP_ERR_FILE_NOT_FOUND) << flag;
    }
}

TEST_F(TemplateExist, RefusesEveryOtherFlag)
{
    for (const std::int32_t flag : {1, 3, 5, 7, 8, -1, -2, INT32_MAX, INT32_MIN})
    {
        EXPECT_EQ(Exist(L"Boards", L"X", flag), PGSP_ERR_INVALID_PARAMETERS) << flag;
        EXPECT_EQ(Exist(L"Boards", L"Y", flag), PGSP_ERR_INVALID_PARAMETERS) << flag;
        EXPECT_EQ(Exist(L"Own", L"X", flag), PGSP_ERR_INVALID_PARAMETERS) << flag;
    }
}

TEST_F(TemplateExist, IsDeniedOnlyToWhoWantsToWriteAReadOnlyFile)
{
    const std::wstring file = roots.board(L"X");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(Exist(L"Boards", L"X", Existence), PGSP_OK);
    EXPECT_EQ(Exist(L"Boards", L"X", Readable), PGSP_OK);
    EXPECT_EQ(Exist(L"Boards", L"X", Writable), PGSP_ERR_ACCESS_DENIED);
    EXPECT_EQ(Exist(L"Boards", L"X", Both), PGSP_ERR_ACCESS_DENIED);

    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(TemplateExist, AsksNotWhatTheFileHolds)
{
    WriteBytes(roots.board(L"broken"), "no XML");
    MakeFolders(roots.protocol(L"folder"));

    EXPECT_EQ(Exist(L"Boards", L"broken"), PGSP_OK);
    EXPECT_EQ(Exist(L"Protocols", L"folder"), PGSP_OK);
}

TEST_F(TemplateExist, OfAnEmptyNameIsThatOfThePrefixAlone)
{
    EXPECT_EQ(Exist(L"Boards", L""), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(L"Protocols", L""), PGSP_ERR_FILE_NOT_FOUND);
    WriteBoard(L"", {});
    WriteProtocol(L"", {});

    EXPECT_EQ(Exist(L"Boards", L""), PGSP_OK);
    EXPECT_EQ(Exist(L"Boards", L"*"), PGSP_OK);
    EXPECT_EQ(Exist(L"Protocols", L""), PGSP_OK);
}

// There is nothing to escape then.
TEST_F(TemplateExist, OfAnEmptyNameIsRefusedForATemplate)
{
    WriteTemplate(L"", {});

    EXPECT_EQ(Exist(L"DefaultLogDevices", L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Exist(L"defaultlogdevices", L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Exist(L"DefaultLogDevices", TemplatePrefix), PGSP_OK);
}

TEST_F(TemplateExist, OfAnEmptyFolderOrNameIsThatOfTheFolderAbove)
{
    EXPECT_EQ(Exist(L"", L"Y"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(L"Own", L""), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(L"", L""), PGSP_ERR_FILE_NOT_FOUND);
    WriteBytes(roots.program() + L"\\meta\\Y.xml", "");
    WriteBytes(roots.program() + L"\\meta\\Own.xml", "");
    WriteBytes(roots.program() + L"\\meta.xml", "");

    EXPECT_EQ(Exist(L"", L"Y"), PGSP_OK);
    EXPECT_EQ(Exist(L"Own", L""), PGSP_OK);
    EXPECT_EQ(Exist(L"", L""), PGSP_OK);
}

// It is the bare name of a template alone that has to fit.
TEST_F(TemplateExist, OfATemplateWhoseNameCanNotBeEscapedIsToldSo)
{
    const std::wstring tooLong(260, L'n');

    EXPECT_EQ(Exist(L"DefaultLogDevices", tooLong), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Exist(L"DEFAULTLOGDEVICES", tooLong), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Exist(L"DefaultLogDevices", std::wstring(90, L'%')), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Exist(L"DefaultLogDevices", std::wstring(259, L'n')), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(L"DefaultLogDevices", TemplatePrefix + tooLong), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(L"Boards", tooLong), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(L"Protocols", tooLong), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(L"Own", tooLong), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(TemplateExist, OfANameThatNoFileCanHaveIsRefused)
{
    EXPECT_EQ(Exist(L"Boards", L"a?"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Exist(L"Protocols", L"*X"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Exist(L"Own", L"<"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Exist(L"DefaultLogDevices", L"a?"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(TemplateExist, FindsFilesInFoldersOfTheName)
{
    WriteBytes(roots.program() + L"\\meta\\Own\\Deep\\X.xml", "");
    WriteBytes(roots.board(L"Old\\X"), "");

    EXPECT_EQ(Exist(L"Own", L"Deep\\X"), PGSP_OK);
    EXPECT_EQ(Exist(L"Own\\Deep", L"X"), PGSP_OK);
    EXPECT_EQ(Exist(L"Boards", L"Old\\X"), PGSP_OK);
}

TEST_F(TemplateExist, TestsFlagAndNameAheadOfTheFolder)
{
    TakeProgramFolderAway();

    EXPECT_EQ(Exist(L"Boards", L"X", 1), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Exist(L"DefaultLogDevices", L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Exist(L"DefaultLogDevices", std::wstring(260, L'n')), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Exist(L"Boards", L"X"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Exist(L"Own", L""), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Exist(L"DefaultLogDevices", L"X\\subdevices\\Y"), PGSP_ERR_FOLDER_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test

#include "store/WriteScene.h"
#include "support/OpenFile.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

using FilesDeleteTest = WriteScene;
using FilesExistsTest = WriteScene;

TEST_F(FilesDeleteTest, AFileIsGone)
{
    GivenFile("whatever it holds");

    EXPECT_EQ(NorvXMLDeleteFile(path().c_str()), PGSP_OK);

    EXPECT_FALSE(Exists(file()));
}

TEST_F(FilesDeleteTest, AFileThatIsNotThereCannotBeDeleted)
{
    EXPECT_EQ(NorvXMLDeleteFile(path().c_str()), PGSP_ERR_CANT_DELETE_FILE);
}

TEST_F(FilesDeleteTest, AReadOnlyFileCannotBeDeleted)
{
    GivenFile("<a/>");
    SetFileAttributesW(file().c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(NorvXMLDeleteFile(path().c_str()), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_TRUE(Exists(file()));
    SetFileAttributesW(file().c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(FilesDeleteTest, AFileInUseCannotBeDeleted)
{
    GivenFile("<a/>");
    const OpenFile inUse(file());

    EXPECT_EQ(NorvXMLDeleteFile(path().c_str()), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_TRUE(Exists(file()));
}

TEST_F(FilesDeleteTest, AFolderCannotBeDeleted)
{
    MakeFolders(file());

    EXPECT_EQ(NorvXMLDeleteFile(path().c_str()), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_TRUE(Exists(file()));
}

TEST_F(FilesExistsTest, TheAnswersAreTwoCodes)
{
    EXPECT_EQ(NorvXMLFileExists(path().c_str()), PGSP_ERR_FILE_NOT_FOUND);

    GivenFile("");

    EXPECT_EQ(NorvXMLFileExists(path().c_str()), PGSP_ERR_FILE_EXISTS);
}

TEST_F(FilesExistsTest, AFileInUseAndAReadOnlyOneExist)
{
    GivenFile("<a/>");
    SetFileAttributesW(file().c_str(), FILE_ATTRIBUTE_READONLY);
    const OpenFile inUse(file());

    EXPECT_EQ(NorvXMLFileExists(path().c_str()), PGSP_ERR_FILE_EXISTS);

    SetFileAttributesW(file().c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(FilesExistsTest, WithoutTheFolderTheFileIsNotThere)
{
    EXPECT_EQ(NorvXMLFileExists((folder() / L"no folder\\a").c_str()), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(FilesExistsTest, ALookAtTheFileChangesNothing)
{
    EXPECT_EQ(NorvXMLFileExists(path().c_str()), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(FileNames(folder().path()), testing::IsEmpty());
}

} // namespace
} // namespace norvepa::test

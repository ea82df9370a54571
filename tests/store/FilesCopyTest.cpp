#include "store/WriteScene.h"
#include "support/OpenFile.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

class FilesCopyTest : public WriteScene
{
protected:
    [[nodiscard]] Result Copy(const std::wstring& to) const
    {
        return NorvXMLCopyFile(path().c_str(), (folder() / to).c_str());
    }
};

class FilesRenameTest : public WriteScene
{
protected:
    [[nodiscard]] Result Rename(const std::wstring& to) const
    {
        return NorvXMLRenameFile(path().c_str(), (folder() / to).c_str());
    }
};

TEST_F(FilesCopyTest, TheCopyHoldsTheSameBytes)
{
    GivenFile("any bytes\r\n\x01");

    EXPECT_EQ(Copy(L"copy"), PGSP_OK);

    EXPECT_EQ(ReadBytes(folder() / L"copy.xml"), "any bytes\r\n\x01");
    EXPECT_TRUE(Exists(file()));
}

TEST_F(FilesCopyTest, AFileThatIsThereIsNotReplaced)
{
    GivenFile("new");
    WriteBytes(folder() / L"copy.xml", "old");

    EXPECT_EQ(Copy(L"copy"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_EQ(ReadBytes(folder() / L"copy.xml"), "old");
}

TEST_F(FilesCopyTest, WithoutASourceOrAFolderThereIsNoCopy)
{
    EXPECT_EQ(Copy(L"copy"), PGSP_ERR_CANT_COPY_FILE);
    GivenFile("<a/>");
    EXPECT_EQ(Copy(L"no folder\\copy"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_THAT(FileNames(folder().path()), testing::ElementsAre(L"Kesselhaus.xml"));
}

TEST_F(FilesCopyTest, BothPathsAreTestedBeforeEitherIsEscaped)
{
    const std::wstring tooLong(300, L'x');

    EXPECT_EQ(NorvXMLCopyFile(tooLong.c_str(), L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLRenameFile(tooLong.c_str(), nullptr), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(FilesRenameTest, TheFileHasItsNewNameOnly)
{
    GivenFile("any bytes");

    EXPECT_EQ(Rename(L"renamed"), PGSP_OK);

    EXPECT_EQ(ReadBytes(folder() / L"renamed.xml"), "any bytes");
    EXPECT_FALSE(Exists(file()));
}

TEST_F(FilesRenameTest, AFileThatIsThereIsNotReplaced)
{
    GivenFile("new");
    WriteBytes(folder() / L"renamed.xml", "old");

    EXPECT_EQ(Rename(L"renamed"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_EQ(ReadBytes(folder() / L"renamed.xml"), "old");
    EXPECT_EQ(Bytes(), "new");
}

TEST_F(FilesRenameTest, WithoutASourceOrAFolderNothingIsRenamed)
{
    EXPECT_EQ(Rename(L"renamed"), PGSP_ERR_CANT_COPY_FILE);
    GivenFile("<a/>");
    EXPECT_EQ(Rename(L"no folder\\renamed"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_TRUE(Exists(file()));
}

TEST_F(FilesRenameTest, AFileInUseKeepsItsName)
{
    GivenFile("<a/>");
    const OpenFile inUse(file());

    EXPECT_EQ(Rename(L"renamed"), PGSP_ERR_CANT_COPY_FILE);

    EXPECT_TRUE(Exists(file()));
}

} // namespace
} // namespace norvepa::test

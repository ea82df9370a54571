#include "store/CommitScene.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"
#include "support/Peer.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

class CommitTest : public CommitScene
{
protected:
    void GivenRealAndTemporary(std::string_view realBytes, std::string_view temporaryBytes) const
    {
        WriteBytes(real(), realBytes);
        WriteBytes(temporary(), temporaryBytes);
    }

    void ExpectUncommitted() const
    {
        EXPECT_EQ(ReadBytes(real()), "real");
        EXPECT_FALSE(Exists(temporary()));
    }
};

TEST_F(CommitTest, AValidTemporaryFileTakesThePlace)
{
    GivenRealAndTemporary("real", ValidLogName());

    EXPECT_EQ(Commit(), PGSP_OK);

    EXPECT_EQ(ReadBytes(real()), ValidLogName());
    EXPECT_FALSE(Exists(temporary()));
}

TEST_F(CommitTest, ADeletionGoesInPlaceBehindIt)
{
    WriteBytes(real(), LogNameFile(XmlContent().Text(L"a", L"1").Text(L"b", L"2")));
    ASSERT_EQ(NorvXMLDelValue((folder() + L"\\Name").c_str(), L"Parameters", L"a"), PGSP_OK);

    EXPECT_EQ(Commit(), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(real()), MeaningOf(LogNameFile(XmlContent().Text(L"b", L"2"))));
    EXPECT_FALSE(Exists(temporary()));
}

TEST_F(CommitTest, WhatTheSchemaRequiresCannotBeDeleted)
{
    const std::string device = LogDeviceFile(
        XmlContent().Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1").Text(L"a", L"1")));
    WriteBytes(real(), device);
    ASSERT_EQ(NorvXMLDelValue((folder() + L"\\Name").c_str(), L"DeviceHeader", L"Unit"), PGSP_OK);

    EXPECT_EQ(Commit(LogDeviceSchema), PGSP_ERR_INVALID_FILE);

    EXPECT_EQ(ReadBytes(real()), device);
    EXPECT_FALSE(Exists(temporary()));
}

TEST_F(CommitTest, AnInvalidTemporaryFileIsRemoved)
{
    GivenRealAndTemporary("real", InvalidLogName());

    EXPECT_EQ(Commit(), PGSP_ERR_INVALID_FILE);

    ExpectUncommitted();
}

TEST_F(CommitTest, AMalformedTemporaryFileIsRemoved)
{
    GivenRealAndTemporary("real", "<a></b>");

    EXPECT_EQ(Commit(), PGSP_ERR_CANT_LOAD_XML_FILE);

    ExpectUncommitted();
}

TEST_F(CommitTest, ATemporaryFileThatIsTooLargeIsRemoved)
{
    GivenRealAndTemporary("real", ValidLogName() + std::string(10'000'000, ' '));

    EXPECT_EQ(Commit(), PGSP_ERR_CANT_LOAD_XML_FILE);

    ExpectUncommitted();
}

TEST_F(CommitTest, WithoutItsSchemaTheTemporaryFileIsRemoved)
{
    GivenRealAndTemporary("real", ValidLogName());
    ASSERT_TRUE(DeleteFileW(schema(LogNameSchema).c_str()));

    EXPECT_EQ(Commit(), PGSP_ERR_CANT_LOAD_SCHEMA);

    ExpectUncommitted();
}

TEST_F(CommitTest, WithoutAProgramFolderTheTemporaryFileIsRemoved)
{
    GivenRealAndTemporary("real", ValidLogName());
    SetMachineText(LocationsKey, L"Corvane_Oam", L"");

    EXPECT_EQ(Commit(), PGSP_ERR_FOLDER_NOT_FOUND);

    ExpectUncommitted();
}

TEST_F(CommitTest, OnAThreadWithoutComTheTemporaryFileIsRemoved)
{
    GivenRealAndTemporary("real", ValidLogName());

    OnFreshThread([&] { EXPECT_EQ(Commit(), PGSP_ERR_CANT_CREATE_XML_ENGINE); });

    ExpectUncommitted();
}

TEST_F(CommitTest, WithoutATemporaryFileNothingHappens)
{
    WriteBytes(real(), "real");

    EXPECT_EQ(Commit(), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_EQ(ReadBytes(real()), "real");
}

TEST_F(CommitTest, WithoutARealFileThereIsNothingToDelete)
{
    WriteBytes(temporary(), ValidLogName());

    EXPECT_EQ(Commit(), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_EQ(ReadBytes(temporary()), ValidLogName());
    EXPECT_FALSE(Exists(real()));
}

TEST_F(CommitTest, AReadOnlyFileKeepsItsPlace)
{
    GivenRealAndTemporary("real", ValidLogName());
    SetFileAttributesW(real().c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(Commit(), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_EQ(ReadBytes(real()), "real");
    EXPECT_EQ(ReadBytes(temporary()), ValidLogName());
    SetFileAttributesW(real().c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(CommitTest, AFileThatAnotherProcessHoldsKeepsItsPlace)
{
    GivenRealAndTemporary("real", ValidLogName());
    {
        Peer holder(L"file_holder.exe", roots().registry());
        ASSERT_EQ(holder.Ask(ToUtf8(real())), "held");

        EXPECT_EQ(Commit(), PGSP_ERR_CANT_DELETE_FILE);

        EXPECT_EQ(ReadBytes(real()), "real");
        EXPECT_EQ(ReadBytes(temporary()), ValidLogName());
    }

    EXPECT_EQ(Commit(), PGSP_OK);

    EXPECT_EQ(ReadBytes(real()), ValidLogName());
}

TEST_F(CommitTest, ARenameThatFailsIsNotToldAndCostsNoFile)
{
    GivenRealAndTemporary("real", ValidLogName());
    const OpenFile inUse(temporary());

    EXPECT_EQ(Commit(), PGSP_OK);

    EXPECT_EQ(ReadBytes(real()), "real");
    EXPECT_EQ(ReadBytes(temporary()), ValidLogName());
}

// The folder and the name together are too long for a store path, and only validation takes them apart.
TEST_F(CommitTest, ADeletionThatFailsForAnotherReasonIsNotTold)
{
    GivenRealAndTemporary("real", ValidLogName());
    std::wstring longFolder = folder();
    while (longFolder.size() < 260)
    {
        longFolder += L"\\.";
    }

    EXPECT_EQ(NorvXMLCommitTemp(L"Name", LogNameSchema, longFolder.c_str()), PGSP_OK);

    EXPECT_EQ(ReadBytes(real()), "real");
    EXPECT_EQ(ReadBytes(temporary()), ValidLogName());
}

TEST_F(CommitTest, ABadArgumentIsRefusedAndTouchesNothing)
{
    GivenRealAndTemporary("real", ValidLogName());
    const std::wstring folder = this->folder();

    EXPECT_EQ(NorvXMLCommitTemp(nullptr, LogNameSchema, folder.c_str()), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLCommitTemp(L"", LogNameSchema, folder.c_str()), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLCommitTemp(L"Name", nullptr, folder.c_str()), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLCommitTemp(L"Name", L"", folder.c_str()), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLCommitTemp(L"Name", LogNameSchema, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLCommitTemp(L"Name", LogNameSchema, L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(ReadBytes(real()), "real");
    EXPECT_EQ(ReadBytes(temporary()), ValidLogName());
}

} // namespace
} // namespace norvepa::test

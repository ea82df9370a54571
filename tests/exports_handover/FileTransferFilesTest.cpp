#include "FileTransferScene.h"
#include "support/CurrentFolder.h"
#include "support/DeviceStore.h"
#include "support/FileWriter.h"
#include "support/OpenFile.h"

namespace norvepa::test
{
namespace
{

const std::wstring Name = L"Presse";

class FileTransferFiles : public FileTransferScene
{
protected:
    const std::wstring file = roots.logDevice(Name);
};

TEST_F(FileTransferFiles, ThatAreMissingEndIt)
{
    EXPECT_EQ(client.Ask(Name, 0, 4), NoPiece);
    EXPECT_EQ(client.Ask(L"gone\\Presse", 0, 4), NoPiece);
    EXPECT_EQ(client.Ask(L"no \"name\"", 0, 4), NoPiece);

    EXPECT_EQ(client.Ask(Name, 1, 4), NoPiece);
    EXPECT_FALSE(Exists(file));
}

TEST_F(FileTransferFiles, ThatAreMissingLeaveAnOlderItem)
{
    Write("abcdef");
    ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd"));
    DeleteFileW(file.c_str());

    EXPECT_EQ(client.Ask(Name, 0, 4), NoPiece);

    EXPECT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));
}

TEST_F(FileTransferFiles, ThatAreHeldExclusivelyLeaveAnOlderItem)
{
    Write("abcdef");
    ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd"));
    const OpenFile holder(file, 0);

    EXPECT_EQ(client.Ask(Name, 0, 4), NoPiece);

    EXPECT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));
}

TEST_F(FileTransferFiles, ThatAreHeldExclusivelyCanNotBeRead)
{
    Write("abcdef");
    const OpenFile holder(file, 0);

    EXPECT_EQ(client.Ask(Name, 0, 4), NoPiece);
    EXPECT_EQ(client.Ask(Name, 1, 4), NoPiece);
}

TEST_F(FileTransferFiles, ThatAnotherReadsCanBeRead)
{
    Write("abcdef");
    const OpenFile reader(file);

    EXPECT_EQ(client.Text(Name), "abcdef");
}

TEST_F(FileTransferFiles, ThatAnotherWritesCanBeReadAsFarAsTheyAre)
{
    Write("abcdef");
    const FileWriter writer(file);
    writer.Write("ABC");

    EXPECT_EQ(client.Text(Name), "ABCdef");
}

TEST_F(FileTransferFiles, ThatMayNotBeWrittenCanBeRead)
{
    Write("abcdef");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(client.Text(Name), "abcdef");

    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(FileTransferFiles, AreNoFolders)
{
    MakeFolders(file);

    EXPECT_EQ(client.Ask(Name, 0, 4), NoPiece);
}

TEST_F(FileTransferFiles, AreNotReadWhenTheirLengthCanNotBeTold)
{
    Write("");
    const FileWriter writer(file);
    writer.SetLength(std::int64_t{1} << 31); // one more than 32 bits with a sign hold

    EXPECT_EQ(client.Ask(Name, 0, 4), NoPiece);
}

TEST_F(FileTransferFiles, AreNotOpenBetweenThePieces)
{
    Write("abcdef");
    ASSERT_EQ(client.Ask(Name, 0, 4), More("abcd"));

    const OpenFile holder(file, 0);

    EXPECT_EQ(client.Ask(Name, 1, 4), Last(Terminated("ef")));
}

TEST_F(FileTransferFiles, AreLeftAsTheyAre)
{
    Write("<a>\r\n</a>");

    EXPECT_EQ(client.Text(Name), "<a></a>");

    EXPECT_EQ(ReadBytes(file), "<a>\r\n</a>");
}

// No missing root has a code of its own.
TEST_F(FileTransferFiles, LieBelowTheCurrentFolderWithoutADataFolder)
{
    Write("abcdef");
    DeviceStore(roots).TakeDataFolderAway();
    const CurrentFolder current;
    const TransferClient names(library, 7, LogNameKind);
    EXPECT_EQ(client.Ask(Name, 0, 4), NoPiece);
    EXPECT_EQ(names.Ask(Name, 0, 4), NoPiece);

    WriteBytes(current.logDevice(Name), "device");
    WriteBytes(current / L"data\\LogNames\\Presse.xml", "name");

    EXPECT_EQ(client.Text(Name), "device");
    EXPECT_EQ(names.Text(Name), "name");
}

TEST_F(FileTransferFiles, OfTheCatalogueLieBelowTheCurrentFolderWithoutAProgramFolder)
{
    WriteBytes(roots.board(L"X"), "abcdef");
    DeviceStore(roots).TakeProgramFolderAway();
    const CurrentFolder current;
    const TransferClient boards(library, 7, BoardKind);
    EXPECT_EQ(boards.Ask(L"X", 0, 4), NoPiece);

    WriteBytes(current / L"meta\\Boards\\Automation-OnlineAccess-BT-X.xml", "board");
    WriteBytes(current / L"meta\\DefaultLogDevices\\Automation-OnlineAccess-LDT-X.xml", "template");
    WriteBytes(current / L"meta\\Protocols\\Automation-OnlineAccess-PT-X.xml", "protocol");

    EXPECT_EQ(boards.Text(L"X"), "board");
    EXPECT_EQ(TransferClient(library, 7, TemplateKind).Text(L"X"), "template");
    EXPECT_EQ(TransferClient(library, 7, ProtocolKind).Text(L"X"), "protocol");
}

TEST_F(FileTransferFiles, NeedNoMoreThanTheRootTheyLieBelow)
{
    Write("device");
    WriteBytes(roots.board(L"X"), "board");
    const TransferClient boards(library, 7, BoardKind);
    const DeviceStore store(roots);

    store.TakeProgramFolderAway();
    EXPECT_EQ(client.Text(Name), "device");

    SetMachineText(LocationsKey, L"Corvane_Oam", roots.program());
    store.TakeDataFolderAway();
    EXPECT_EQ(boards.Text(L"X"), "board");
}

} // namespace
} // namespace norvepa::test

#include "FileTransferScene.h"
#include "support/PrefixedName.h"

namespace norvepa::test
{
namespace
{

// A name, and the file it stands for in the folder of its kind.
struct NamedFile
{
    const wchar_t* name;
    const wchar_t* file;
};

class FileTransferNames : public FileTransferScene
{
protected:
    // That the file is handed out, which holds its own path so as not to be taken for another.
    void ExpectFile(std::uint16_t kind, const std::wstring& name, const std::wstring& path) const
    {
        const std::string content = "<" + ToUtf8(path) + ">";
        WriteBytes(path, content);

        EXPECT_EQ(TransferClient(library, 7, kind).Text(name), content) << kind << ' ' << ToUtf8(name);

        DeleteFileW(path.c_str()); // or the next name might find it
    }

    // In a folder of the data, whose files have no prefix.
    void ExpectPlainNames(std::uint16_t kind, const std::wstring& folder) const
    {
        for (const auto& [name, file] : PlainNames)
        {
            ExpectFile(kind, name, roots.data() + L"\\data\\" + folder + L"\\" + file);
        }
    }

    // In a folder of the catalogue, each of which has a prefix of its own.
    void ExpectPrefixedNames(std::uint16_t kind, const std::wstring& folder, std::wstring_view prefix) const
    {
        for (const auto& [name, file] : PrefixedNames)
        {
            ExpectFile(kind, PrefixedName(name, prefix),
                       roots.program() + L"\\meta\\" + folder + L"\\" + PrefixedName(file, prefix));
        }
    }

    static constexpr std::uint16_t OtherKinds[] = {0, 6, 7, 255, 256, 258, 259, 32'768, 65'535};

    static constexpr NamedFile PlainNames[] = {
        {L"Presse", L"Presse.xml"},
        {L"\u00DCbersicht 2", L"\u00DCbersicht 2.xml"},
        {L"Automation-OnlineAccess-BT-X", L"Automation-OnlineAccess-BT-X.xml"},
        {L"TCP/IP", L"TCP#2fIP.xml"},
        {L"sub\\Presse", L"sub\\Presse.xml"},
        // Of stars one is dropped, from the start alone.
        {L"*Presse", L"Presse.xml"},
        {L"**Presse", L"#2aPresse.xml"},
        {L"Presse*", L"Presse#2a.xml"},
        {L" *Presse", L" #2aPresse.xml"},
        {L"*sub\\Presse", L"sub\\Presse.xml"},
        {L"sub\\*Presse", L"sub\\#2aPresse.xml"},
        // Characters with a code, behind the last backslash.
        {L"Presse#3", L"Presse(nmbr)3.xml"},
        {L"LPT1:", L"LPT1#3a.xml"},
        {L"#%:*?<>|/", L"(nmbr)#25#3a#2a#3f#3c#3e#7c#2f.xml"},
        {L"sub#\\Presse#3", L"sub#\\Presse(nmbr)3.xml"},
        // An extension, wherever it stands.
        {L"Presse.xml", L"Presse.xml"},
        {L"*Presse.xml", L"Presse.xml"},
        {L"Presse.xml.bak", L"Presse.xml.bak"},
        {L"Presse.xmlx", L"Presse.xmlx"},
        {L"sub.xml\\Presse", L"sub.xml\\Presse"},
        {L".xml", L".xml"},
        {L"sub\\", L"sub\\.xml"},
        {L"Presse.XML", L"Presse.XML.xml"},
        {L"Presse.xm", L"Presse.xm.xml"},
    };

    static constexpr NamedFile PrefixedNames[] = {
        {L"X", L"{Prefix}X.xml"},
        {L"{Prefix}X", L"{Prefix}X.xml"},
        {L"*X", L"{Prefix}X.xml"},
        {L"*{Prefix}X", L"{Prefix}X.xml"},
        {L"**X", L"{Prefix}#2aX.xml"},
        {L"X*", L"{Prefix}X#2a.xml"},
        // The prefix, wherever it stands.
        {L"old {Prefix}X", L"old {Prefix}X.xml"},
        {L"X{Prefix}", L"X{Prefix}.xml"},
        {L"{Prefix}", L"{Prefix}.xml"},
        {L"{Prefix}{Prefix}X", L"{Prefix}{Prefix}X.xml"},
        {L"sub\\{Prefix}X", L"sub\\{Prefix}X.xml"},
        {L"{Prefix}sub\\X", L"{Prefix}sub\\X.xml"},
        {L"{prefix}x", L"{Prefix}{prefix}x.xml"},
        {L"{PREFIX}X", L"{Prefix}{PREFIX}X.xml"},
        {L"OnlineAccess-X", L"{Prefix}OnlineAccess-X.xml"},
        {L"sub\\X", L"{Prefix}sub\\X.xml"}, // which puts it in front of the folder
        // Characters with a code.
        {L"X#3", L"{Prefix}X(nmbr)3.xml"},
        {L"TCP/IP", L"{Prefix}TCP#2fIP.xml"},
        {L"{Prefix}X:", L"{Prefix}X#3a.xml"},
        {L"sub#\\X#3", L"{Prefix}sub#\\X(nmbr)3.xml"},
        // An extension, wherever it stands.
        {L"X.xml", L"{Prefix}X.xml"},
        {L"{Prefix}X.xml", L"{Prefix}X.xml"},
        {L"X.xml.bak", L"{Prefix}X.xml.bak"},
        {L"*.xml", L"{Prefix}.xml"},
        {L"X.XML", L"{Prefix}X.XML.xml"},
    };
};

TEST_F(FileTransferNames, OfLogNamesAreFilesOfTheirFolder)
{
    ExpectPlainNames(LogNameKind, L"LogNames");
}

TEST_F(FileTransferNames, OfLogDevicesAreFilesOfTheirFolder)
{
    ExpectPlainNames(LogDeviceKind, L"LogDevices");
}

TEST_F(FileTransferNames, OfBoardsAreFilesWithTheirPrefix)
{
    ExpectPrefixedNames(BoardKind, L"Boards", L"Automation-OnlineAccess-BT-");
}

TEST_F(FileTransferNames, OfTemplatesAreFilesWithTheirPrefix)
{
    ExpectPrefixedNames(TemplateKind, L"DefaultLogDevices", L"Automation-OnlineAccess-LDT-");
}

TEST_F(FileTransferNames, OfProtocolsAreFilesWithTheirPrefix)
{
    ExpectPrefixedNames(ProtocolKind, L"Protocols", L"Automation-OnlineAccess-PT-");
}

TEST_F(FileTransferNames, OfAnyOtherKindAreThoseOfLogDevices)
{
    for (const std::uint16_t kind : OtherKinds)
    {
        ExpectPlainNames(kind, L"LogDevices");
    }
}

// Another kind's prefix is a part of the name.
TEST_F(FileTransferNames, TakeThePrefixOfTheirKindAlone)
{
    const std::wstring folder = roots.program() + L"\\meta\\";

    ExpectFile(TemplateKind, L"Automation-OnlineAccess-BT-X",
               folder + L"DefaultLogDevices\\Automation-OnlineAccess-LDT-Automation-OnlineAccess-BT-X.xml");
    ExpectFile(BoardKind, L"Automation-OnlineAccess-PT-X",
               folder + L"Boards\\Automation-OnlineAccess-BT-Automation-OnlineAccess-PT-X.xml");
}

TEST_F(FileTransferNames, OfTheSameFileGoOnWithItsTransfer)
{
    WriteBytes(roots.board(L"X"), "abcdef");
    const TransferClient boards(library, 7, BoardKind);

    EXPECT_EQ(boards.Ask(L"*X", 0, 2), More("ab"));
    EXPECT_EQ(boards.Ask(L"Automation-OnlineAccess-BT-X", 1, 2), More("cd"));
    EXPECT_EQ(boards.Ask(L"x.xml", 2, 2), More("ef"));
    EXPECT_EQ(boards.Ask(L"*Automation-OnlineAccess-BT-X.xml", 3, 2), Last(Terminated("")));
}

TEST_F(FileTransferNames, GoOnWithATransferInWhateverCaseOfAsciiLettersAlone)
{
    Write("abcdef", L"\u00DCbersicht");

    EXPECT_EQ(client.Ask(L"\u00DCbersicht", 0, 2), More("ab"));
    EXPECT_EQ(client.Ask(L"\u00FCbersicht", 1, 2), NoPiece);
    EXPECT_EQ(client.Ask(L"\u00DCBERSICHT", 1, 2), More("cd"));
}

TEST_F(FileTransferNames, OfEquallyNamedFilesOfTwoKindsAreApart)
{
    const TransferClient names(library, 7, LogNameKind);
    Write("abcdef");
    WriteBytes(roots.logName(L"Presse"), "ABCDEF");

    EXPECT_EQ(client.Ask(L"Presse", 0, 4), More("abcd"));
    EXPECT_EQ(names.Ask(L"Presse", 0, 4), More("ABCD"));
    EXPECT_EQ(client.Ask(L"Presse", 1, 4), Last(Terminated("ef")));
    EXPECT_EQ(names.Ask(L"Presse", 1, 4), Last(Terminated("EF")));
}

} // namespace
} // namespace norvepa::test

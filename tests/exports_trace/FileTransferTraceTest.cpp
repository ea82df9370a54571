#include "CatalogueTraceScene.h"
#include "support/DeviceStore.h"
#include "support/Pieces.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::StartsWith;

constexpr std::uint16_t LogDeviceKind = 2;
constexpr std::uint16_t BoardKind = 3;

class FileTransferTrace : public CatalogueTraceScene
{
protected:
    FileTransferTrace() { WriteBytes(roots.logDevice(L"Presse"), "abcdef"); }

    // The code that four bytes of a file are asked for with.
    [[nodiscard]] std::int32_t Ask(std::uint16_t kind, const wchar_t* name, std::uint32_t index) const
    {
        PieceBuffer piece(4);
        return library().LogDeviceGetXmlBL(7, kind, name, index, piece.data(), &piece.length);
    }

    [[nodiscard]] std::vector<std::string> Lines() const { return LinesOf("LogDeviceGetXmlBL"); }

    // The two lines that a call begins with.
    [[nodiscard]] static std::string Entry(const std::string& name, const std::string& index)
    {
        return "entry: >> LogDeviceGetXmlBL = " + name + ", index = " + index + ", bufferLen = 4";
    }
    [[nodiscard]] static std::string Path(const std::wstring& path)
    {
        return "entry: >> strFullPath = " + ToAnsi(path);
    }
};

TEST_F(FileTransferTrace, TellsTheFileAndTheResultOfEachPiece)
{
    Load();

    EXPECT_EQ(Ask(LogDeviceKind, L"Presse", 0), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(LogDeviceKind, L"Presse", 1), PGSP_OK);
    EXPECT_EQ(Ask(LogDeviceKind, L"Presse", 2), PGSP_ERR_NO_MORE_ITEMS);

    const std::string path = Path(roots.logDevice(L"Presse"));
    EXPECT_THAT(Lines(), ElementsAre(Entry("Presse", "0"), path, "exit: << return lRet = 234",
                                     Entry("Presse", "1"), path, "exit: << return lRet = 0",
                                     Entry("Presse", "2"), path, "exit: << return lRet = 259"));
}

TEST_F(FileTransferTrace, TellsTheNameAsGivenAndThePathItBecomes)
{
    Load();

    EXPECT_EQ(Ask(BoardKind, L"*X", 0), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(Lines(),
                ElementsAre(Entry("*X", "0"), Path(roots.board(L"X")), "exit: << return lRet = 234"));
}

TEST_F(FileTransferTrace, TellsThePathOfAMissingFileToo)
{
    Load();

    EXPECT_EQ(Ask(LogDeviceKind, L"K\u00FChlhaus#1", 0), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_THAT(Lines(),
                ElementsAre(Entry(ToAnsi(L"K\u00FChlhaus#1"), "0"),
                            Path(roots.logDevice(L"K\u00FChlhaus(nmbr)1")), "exit: << return lRet = 259"));
}

TEST_F(FileTransferTrace, TellsARelativePathWithoutTheFoldersAndNothingOfThem)
{
    TakeDataFolderAway();
    TakeProgramFolderAway();
    Load();

    EXPECT_EQ(Ask(LogDeviceKind, L"gone", 0), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(Ask(BoardKind, L"gone", 0), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_THAT(Lines(), ElementsAre(Entry("gone", "0"), Path(L"data\\LogDevices\\gone.xml"),
                                     "exit: << return lRet = 259", Entry("gone", "0"),
                                     Path(L"meta\\Boards\\Automation-OnlineAccess-BT-gone.xml"),
                                     "exit: << return lRet = 259"));
}

TEST_F(FileTransferTrace, TellsNumbersWithTheirSign)
{
    Load();
    PieceBuffer piece(UINT32_MAX);

    EXPECT_EQ(
        library().LogDeviceGetXmlBL(7, LogDeviceKind, L"Presse", UINT32_MAX, piece.data(), &piece.length),
        PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_THAT(Lines(), ElementsAre("entry: >> LogDeviceGetXmlBL = Presse, index = -1, bufferLen = -1",
                                     Path(roots.logDevice(L"Presse")), "exit: << return lRet = 259"));
}

TEST_F(FileTransferTrace, OfBadArgumentsIsTheRefusalAlone)
{
    Load();
    PieceBuffer piece(4);

    EXPECT_EQ(Ask(LogDeviceKind, nullptr, 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceGetXmlBL(7, LogDeviceKind, L"Presse", 0, nullptr, &piece.length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceGetXmlBL(7, LogDeviceKind, L"Presse", 0, piece.data(), nullptr),
              PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(Lines(), ElementsAre(Refusal, Refusal, Refusal));
}

TEST_F(FileTransferTrace, OfANameThatCanNotBeEscapedIsTheEntryAlone)
{
    Load();

    EXPECT_EQ(Ask(LogDeviceKind, L"", 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(LogDeviceKind, L"*", 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(LogDeviceKind, std::wstring(260, L'n').c_str(), 0), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(Lines(), ElementsAre(Entry("", "0"), Entry("*", "0"),
                                     StartsWith("entry: >> LogDeviceGetXmlBL = nnn")));
}

} // namespace
} // namespace norvepa::test

#include "ParameterDataScene.h"
#include "support/XmlMeaning.h"

namespace norvepa::test
{
namespace
{

// Where a file lies, by its only value.
XmlContent Lies(std::wstring_view where)
{
    return XmlContent().Text(L"Ort", where);
}

class ParameterDataRoots : public ParameterDataScene
{
protected:
    // Both readers find the file that says so.
    void ExpectRead(const wchar_t* folder, const wchar_t* subfolder, const std::wstring& where,
                    const wchar_t* file = L"werte") const
    {
        EXPECT_EQ(Value(folder, subfolder, file, L"Ort"), where);
        EXPECT_EQ(Item(folder, subfolder, file, 0), L"Ort=" + where);
    }

    void ExpectNotRead(const wchar_t* folder, const wchar_t* subfolder, const wchar_t* file = L"werte") const
    {
        EXPECT_EQ(Value(folder, subfolder, file, L"Ort"), L"(result 8503)");
        EXPECT_EQ(Item(folder, subfolder, file, 0), L"(result 8503)");
    }

    // Both writers change the file at this path, and no other of those that are there.
    void ExpectWritten(const wchar_t* subfolder, const std::wstring& path,
                       const wchar_t* file = L"werte") const
    {
        EXPECT_EQ(library.PGSP_SetParameterDataBL(subfolder, file, L"Neu", L"1", L"int"), PGSP_OK);
        EXPECT_EQ(MeaningOfFile(path + L".xml"), MeaningOf(DataFile(Lies(L"here").Int(L"Neu", L"1"))));

        EXPECT_EQ(library.PGSP_DelParameterDataBL(subfolder, file, L"Neu"), PGSP_OK);
        EXPECT_EQ(MeaningOfFile(path + L".xml"), MeaningOf(DataFile(Lies(L"here"))));
    }

    void ExpectNotWritten(const wchar_t* subfolder, const wchar_t* file = L"werte") const
    {
        EXPECT_EQ(library.PGSP_SetParameterDataBL(subfolder, file, L"Neu", L"1", L"int"),
                  PGSP_ERR_FILE_NOT_FOUND);
        EXPECT_EQ(library.PGSP_DelParameterDataBL(subfolder, file, L"Ort"), PGSP_ERR_FILE_NOT_FOUND);
    }
};

TEST_F(ParameterDataRoots, OfTheFolderMetaIsThatOfThePrograms)
{
    WriteData(inProgram(L"meta\\werte"), Lies(L"program"));
    WriteData(inData(L"meta\\werte"), Lies(L"data"));

    for (const wchar_t* const folder : {L"meta", L"META", L"Meta", L"mEtA"})
    {
        ExpectRead(folder, nullptr, L"program");
    }
}

TEST_F(ParameterDataRoots, OfAnyOtherFolderIsThatOfTheData)
{
    for (const wchar_t* const folder : {L"data", L"DATA", L"eigene", L"meta2", L"met", L" meta", L"Schemes"})
    {
        WriteData(inProgram(folder) + L"\\werte", Lies(L"program"));
        WriteData(inData(folder) + L"\\werte", Lies(L"data"));

        ExpectRead(folder, nullptr, L"data");
    }
}

// A path that begins with the word isn't the word.
TEST_F(ParameterDataRoots, OfAFolderBelowMetaIsThatOfTheData)
{
    WriteData(inProgram(L"meta\\Boards\\werte"), Lies(L"program"));
    WriteData(inData(L"meta\\Boards\\werte"), Lies(L"data"));

    ExpectRead(L"meta\\Boards", nullptr, L"data");
    ExpectRead(L"meta", L"Boards", L"program");
}

TEST_F(ParameterDataRoots, AreNotAskedForEachOther)
{
    WriteData(inProgram(L"data\\werte"), Lies(L"program"));
    WriteData(inData(L"meta\\werte"), Lies(L"data"));

    ExpectNotRead(L"data", nullptr);
    ExpectNotRead(L"meta", nullptr);
}

TEST_F(ParameterDataRoots, AreFollowedByTheSubfolderIfThereIsOne)
{
    for (const std::wstring& folder : {inProgram(L"meta"), inData(L"data")})
    {
        WriteData(folder + L"\\werte", Lies(L"above"));
        WriteData(folder + L"\\Linie 1\\werte", Lies(L"below"));
        WriteData(folder + L"\\Linie 1\\Presse\\werte", Lies(L"deep below"));
    }

    for (const wchar_t* const folder : {L"meta", L"data"})
    {
        ExpectRead(folder, nullptr, L"above");
        ExpectRead(folder, L"", L"above");
        ExpectRead(folder, L"Linie 1", L"below");
        ExpectRead(folder, L"LINIE 1", L"below");
        ExpectRead(folder, L"Linie 1\\Presse", L"deep below");
        ExpectNotRead(folder, L"Linie 2");
    }
}

TEST_F(ParameterDataRoots, OfTheWritersAreTheFolderDataAlone)
{
    WriteData(inData(L"data\\werte"), Lies(L"here"));
    WriteData(inData(L"werte"), Lies(L"here"));
    WriteData(inProgram(L"data\\werte"), Lies(L"here"));

    ExpectWritten(nullptr, inData(L"data\\werte"));
    ExpectWritten(L"", inData(L"data\\werte"));

    EXPECT_EQ(MeaningOfFile(inData(L"werte.xml")), MeaningOf(DataFile(Lies(L"here"))));
    EXPECT_EQ(MeaningOfFile(inProgram(L"data\\werte.xml")), MeaningOf(DataFile(Lies(L"here"))));
}

TEST_F(ParameterDataRoots, OfTheWritersAreFollowedByTheSubfolder)
{
    WriteData(inData(L"data\\Linie 1\\werte"), Lies(L"here"));
    WriteData(inData(L"data\\Linie 1\\Presse\\werte"), Lies(L"here"));

    ExpectWritten(L"Linie 1", inData(L"data\\Linie 1\\werte"));
    ExpectWritten(L"linie 1\\presse", inData(L"data\\Linie 1\\Presse\\werte"));
    ExpectNotWritten(nullptr);
    ExpectNotWritten(L"Linie 2");
}

TEST_F(ParameterDataRoots, OfTheWritersDoNotReachTheCatalogue)
{
    const std::wstring catalogue = inProgram(L"meta\\werte");
    WriteData(catalogue, Lies(L"program"));
    WriteData(inData(L"data\\meta\\werte"), Lies(L"here"));

    ExpectNotWritten(nullptr);
    ExpectWritten(L"meta", inData(L"data\\meta\\werte"));
    ExpectWritten(L"META", inData(L"data\\meta\\werte"));

    EXPECT_EQ(MeaningOfFile(catalogue + L".xml"), MeaningOf(DataFile(Lies(L"program"))));
}

TEST_F(ParameterDataRoots, LetReadersSeeInTheFolderDataWhatWritersWrote)
{
    WriteData(inData(L"data\\Linie 1\\werte"), {});

    ASSERT_EQ(library.PGSP_SetParameterDataBL(L"Linie 1", L"werte", L"Ort", L"here", nullptr), PGSP_OK);

    ExpectRead(L"data", L"Linie 1", L"here");
    ExpectNotRead(L"Linie 1", nullptr);
    ExpectNotRead(L"meta", L"Linie 1");
}

TEST_F(ParameterDataRoots, ReachEveryFileThatHasEntries)
{
    store.WriteDevice(L"Presse", XmlContent().Element(L"LocalSettings", Lies(L"device")));
    WriteBytes(roots.board(L"AFK220"),
               BoardFile(XmlContent().Element(L"Install", Lies(L"board")), L"AFK220"));

    ExpectRead(L"data", L"LogDevices", L"device", L"Presse");
    ExpectRead(L"meta", L"Boards", L"board", L"Automation-OnlineAccess-BT-AFK220");
}

TEST_F(ParameterDataRoots, AreFollowedByTheFilesNameWithItsCharactersCoded)
{
    for (const CodedName& coded : CodedNames)
    {
        WriteData(inProgram(L"meta\\") + coded.fileName, Lies(L"program"));
        WriteData(inData(L"data\\") + coded.fileName, Lies(L"here"));

        ExpectRead(L"meta", nullptr, L"program", coded.name);
        ExpectRead(L"data", nullptr, L"here", coded.name);
        ExpectWritten(nullptr, inData(L"data\\") + coded.fileName, coded.name);
    }
}

TEST_F(ParameterDataRoots, AreFollowedByFoldersAsTheyAre)
{
    WriteData(inData(L"50% #1\\Linie #2\\werte"), Lies(L"here"));
    WriteData(inData(L"data\\Linie #2\\werte"), Lies(L"here"));

    ExpectRead(L"50% #1", L"Linie #2", L"here");
    ExpectWritten(L"Linie #2", inData(L"data\\Linie #2\\werte"));
}

TEST_F(ParameterDataRoots, AreFollowedByAFileThatMayHaveFoldersOrItsExtension)
{
    WriteData(inData(L"data\\Linie 1\\werte"), Lies(L"here"));

    ExpectRead(L"data", nullptr, L"here", L"Linie 1\\werte");
    ExpectRead(L"data", L"Linie 1", L"here", L"werte.xml");
    ExpectWritten(L"Linie 1", inData(L"data\\Linie 1\\werte"), L"werte.xml");
    ExpectNotRead(L"data", L"Linie 1", L"werte.xml.old");
}

TEST_F(ParameterDataRoots, OfTheProgramsIsNeededForMetaAlone)
{
    WriteData(inProgram(L"meta\\werte"), Lies(L"program"));
    WriteData(inData(L"data\\werte"), Lies(L"here"));

    store.TakeProgramFolderAway();
    EXPECT_EQ(Value(L"meta", nullptr, L"werte", L"Ort"), L"(result 8517)");
    EXPECT_EQ(Item(L"Meta", nullptr, L"werte", 0), L"(result 8517)");
    ExpectRead(L"data", nullptr, L"here");
    ExpectWritten(nullptr, inData(L"data\\werte"));
}

TEST_F(ParameterDataRoots, OfTheDataIsNeededForAllButMeta)
{
    WriteData(inProgram(L"meta\\werte"), Lies(L"program"));
    WriteData(inData(L"data\\werte"), Lies(L"here"));
    const std::string before = OurBytes();

    store.TakeDataFolderAway();
    ExpectAllAnswer(PGSP_ERR_FOLDER_NOT_FOUND);
    ExpectRead(L"meta", nullptr, L"program");

    EXPECT_EQ(OurBytes(), before);
}

} // namespace
} // namespace norvepa::test

#include "DebuggerTrace.h"
#include "notify/directoryCache.h"
#include "store/BrokenEngine.h"
#include "store/WriteScene.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// What the operations on whole files tell, and at which level.
class FilesTrace : public WriteScene
{
protected:
    [[nodiscard]] std::string Narrow(const std::wstring& name) const { return ToUtf8(folder() / name); }

private:
    RedirectedRegistry m_registry;
};

TEST_F(FilesTrace, OfTheSizeGuardTellsAMissingFileAtTheExitLevel)
{
    const auto check = [&] { return CheckFileSize(folder() / L"a.xml"); };
    const std::string line = TraceLine("CheckFileSize: ", "Error: FILE_NOT_FOUND : " + Narrow(L"a.xml"));

    EXPECT_THAT(LinesOf(check), ElementsAre(line));
    EXPECT_THAT(LinesOf(check, L"0x80"), ElementsAre(line));
}

TEST_F(FilesTrace, OfTheSizeGuardWarnsOfAFileThatIsTooLarge)
{
    WriteBytes(folder() / L"a.xml", std::string(10'000'001, ' '));
    const auto check = [&] { return CheckFileSize(folder() / L"a.xml"); };
    const std::string line = TraceLine("CheckFileSize: ", "Warning: FILE_TOO_LARGE : " + Narrow(L"a.xml"));

    EXPECT_THAT(LinesOf(check), ElementsAre(line));
    EXPECT_THAT(LinesOf(check, L"0x10"), ElementsAre(line));
}

TEST_F(FilesTrace, OfTheSizeGuardIsSilentOtherwise)
{
    WriteBytes(folder() / L"a.xml", "<a/>");

    EXPECT_THAT(LinesOf([&] { return CheckFileSize(folder() / L"a.xml"); }), IsEmpty());
}

TEST_F(FilesTrace, OfACreationIsItsEntryAndThatOfTheTest)
{
    const auto create = [&] { return NorvXMLCreateFile((folder() / L"a%").c_str(), L"nam"); };

    EXPECT_THAT(LinesOf(create),
                ElementsAre(TraceLine("NorvXMLCreateFile: ", ">> filePath = " + Narrow(L"a%")),
                            TraceLine("NorvXMLFileExists: ", ">> filePath = " + Narrow(L"a%"))));
}

TEST_F(FilesTrace, OfACreationThatFailsTellsWhyAtTheInformationLevel)
{
    const auto create = [&] { return NorvXMLCreateFile((folder() / L"none\\a").c_str(), L"nam"); };

    EXPECT_THAT(LinesOf(create, L"0x40"), ElementsAre(TraceLine("NorvXMLCreateFile: ", "can't create file")));
    EXPECT_THAT(LinesOf(create, L"0xFFFFFFB7"), IsEmpty());
}

TEST_F(FilesTrace, OfACreationWithoutAnEngineTellsItAtTheInformationLevel)
{
    const BrokenEngine engine({REGDB_E_CLASSNOTREG});
    const auto create = [&] { return NorvXMLCreateFile((folder() / L"a").c_str(), L"nam"); };

    EXPECT_THAT(LinesOf(create, L"0x40"),
                ElementsAre(TraceLine("NorvXMLCreateFile: ", "ERROR : CreateInstance")));
}

TEST_F(FilesTrace, OfADeletionTellsThePathAndTheFileAtTheEntryLevel)
{
    WriteBytes(folder() / L"a#25.xml", "<a/>");
    const auto remove = [&] { return NorvXMLDeleteFile((folder() / L"a%").c_str()); };
    const std::string path = TraceLine("NorvXMLDeleteFile: ", ">> filePath = " + Narrow(L"a%"));
    const std::string file = TraceLine("NorvXMLDeleteFile: ", ">> _wremove = " + Narrow(L"a#25.xml"));
    const std::string failed = TraceLine("NorvXMLDeleteFile: ", "PGSP_ERR_CANT_DELETE_FILE");

    EXPECT_THAT(LinesOf(remove), ElementsAre(path, file));
    EXPECT_THAT(LinesOf(remove), ElementsAre(path, file, failed));
    EXPECT_THAT(LinesOf(remove, L"0x8"), ElementsAre(path, file, failed));
}

TEST_F(FilesTrace, OfATestIsItsEntryOnceThePathIsAccepted)
{
    const auto test = [](const std::wstring& path) {
        return [=] { return NorvXMLFileExists(path.c_str()); };
    };

    EXPECT_THAT(LinesOf(test(folder() / L"a%"), L"0x8"),
                ElementsAre(TraceLine("NorvXMLFileExists: ", ">> filePath = " + Narrow(L"a%"))));
    EXPECT_THAT(LinesOf(test(L"")), IsEmpty());
    EXPECT_THAT(LinesOf(test(std::wstring(300, L'x'))), IsEmpty());
}

TEST_F(FilesTrace, OfACopyTellsBothFilesAndTheSystemsErrorAtTheExitLevel)
{
    WriteBytes(folder() / L"a#25.xml", "<a/>");
    const auto copy = [&] { return NorvXMLCopyFile((folder() / L"a%").c_str(), (folder() / L"b#").c_str()); };
    const std::string entry = TraceLine("NorvXMLCopyFile: ", ">> destinationPath = " + Narrow(L"b#"));
    const std::string files =
        TraceLine("NorvXMLCopyFile: ", " : CopyFile >> OldFile = " + Narrow(L"a#25.xml") +
                                           ", NewFile = " + Narrow(L"b(nmbr).xml"));
    const std::string exists = TraceLine("NorvXMLCopyFile: ", "ERROR CopyFile: 80");

    EXPECT_THAT(LinesOf(copy), ElementsAre(entry, files));
    EXPECT_THAT(LinesOf(copy), ElementsAre(entry, files, exists));
    EXPECT_THAT(LinesOf(copy, L"0x8"), ElementsAre(entry));
    EXPECT_THAT(LinesOf(copy, L"0x80"), ElementsAre(files, exists));
}

TEST_F(FilesTrace, OfARenameTellsTheNewFileAndNoError)
{
    WriteBytes(folder() / L"a.xml", "<a/>");
    const auto rename = [&] {
        return NorvXMLRenameFile((folder() / L"a").c_str(), (folder() / L"b#").c_str());
    };
    const std::string entry = TraceLine("NorvXMLRenameFile: ", ">> destinationPath = " + Narrow(L"b#"));
    const std::string file =
        TraceLine("NorvXMLRenameFile: ", " : RenameFile >> NewFile = " + Narrow(L"b(nmbr).xml"));

    EXPECT_THAT(LinesOf(rename), ElementsAre(entry, file));
    EXPECT_THAT(LinesOf(rename), ElementsAre(entry, file));
    EXPECT_THAT(LinesOf(rename, L"0x8"), ElementsAre(entry));
    EXPECT_THAT(LinesOf(rename, L"0x80"), ElementsAre(file));
}

TEST_F(FilesTrace, OfBadArgumentsIsTheEntryAlone)
{
    EXPECT_THAT(LinesOf([] { return NorvXMLCreateFile(nullptr, L"nam"); }),
                ElementsAre(TraceLine("NorvXMLCreateFile: ", ">> filePath = ")));
    EXPECT_THAT(LinesOf([] { return NorvXMLDeleteFile(nullptr); }),
                ElementsAre(TraceLine("NorvXMLDeleteFile: ", ">> filePath = ")));
    EXPECT_THAT(LinesOf([] { return NorvXMLCopyFile(L"a", nullptr); }),
                ElementsAre(TraceLine("NorvXMLCopyFile: ", ">> destinationPath = ")));
    EXPECT_THAT(LinesOf([] { return NorvXMLRenameFile(nullptr, L"b"); }),
                ElementsAre(TraceLine("NorvXMLRenameFile: ", ">> destinationPath = b")));
}

class FilesEnumTrace : public testing::Test
{
protected:
    ~FilesEnumTrace() override { deinitWatchDirectories(); }

    [[nodiscard]] std::wstring folder() const { return m_roots.program() + L"\\meta\\Boards"; }

private:
    StoreRoots m_roots;
};

TEST_F(FilesEnumTrace, TellsTheFolderAndTheName)
{
    WriteBytes(folder() + L"\\a#25.xml", "");
    std::wstring name;
    ASSERT_EQ(NorvXMLEnumFile(folder().c_str(), 0, &name), PGSP_OK);
    const std::string entry =
        TraceLine("NorvXMLEnumFile: ", ">> folderPath = " + ToUtf8(folder()) + ", index = 0");
    {
        const DebuggerTrace trace;
        EXPECT_EQ(NorvXMLEnumFile(folder().c_str(), 0, &name), PGSP_OK);
        EXPECT_THAT(trace.lines(), ElementsAre(entry, TraceLine("NorvXMLEnumFile: ", "<< file = a%")));
    }
    {
        const DebuggerTrace trace(L"0x80");
        EXPECT_EQ(NorvXMLEnumFile(folder().c_str(), 0, &name), PGSP_OK);
        EXPECT_THAT(trace.lines(), ElementsAre(TraceLine("NorvXMLEnumFile: ", "<< file = a%")));
    }
    {
        const DebuggerTrace trace(L"0x8");
        EXPECT_EQ(NorvXMLEnumFile(folder().c_str(), 0, &name), PGSP_OK);
        EXPECT_THAT(trace.lines(), ElementsAre(entry));
    }
}

TEST_F(FilesEnumTrace, IsItsEntryAlonePastTheEndAndForBadArguments)
{
    WriteBytes(folder() + L"\\a.xml", "");
    std::wstring name;
    ASSERT_EQ(NorvXMLEnumFile(folder().c_str(), 0, &name), PGSP_OK);
    const DebuggerTrace trace;

    EXPECT_EQ(NorvXMLEnumFile(folder().c_str(), 1, &name), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(NorvXMLEnumFile(nullptr, 2, &name), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(trace.lines(), ElementsAre(TraceLine("NorvXMLEnumFile: ",
                                                     ">> folderPath = " + ToUtf8(folder()) + ", index = 1"),
                                           TraceLine("NorvXMLEnumFile: ", ">> folderPath = , index = 2")));
}

} // namespace
} // namespace norvepa::test

#include "TextScene.h"
#include "support/AllAtOnce.h"
#include "support/FileWriter.h"
#include "support/ProgramStart.h"

#include <windows.h>

#include <atomic>

namespace norvepa::test
{
namespace
{

class TextLibraryUse : public TextScene
{
protected:
    // Whether the file of a library is nobody's any more.
    [[nodiscard]] static bool CanBeDeleted(const std::wstring& path)
    {
        return DeleteFileW(path.c_str()) != FALSE && !Exists(path);
    }
};

TEST_F(TextLibraryUse, LeavesTheFilesToOthers)
{
    EXPECT_EQ(Title(L"de"), L"Kessel");
    EXPECT_EQ(Title(L"en"), L"boiler");

    EXPECT_TRUE(CanBeDeleted(bin() + L"\\de\\" + TexteDll));
    EXPECT_TRUE(CanBeDeleted(bin() + L"\\en\\" + TexteDll));
}

TEST_F(TextLibraryUse, LeavesTheFilesToOthersAlsoWhenThereWasNoText)
{
    const std::wstring german = bin() + L"\\de\\" + TexteDll;
    WriteDevice(TitleLink(L"9999"));
    EXPECT_EQ(Title(L"de"), Failed(PGSP_ERR_CANT_LOAD_RESOURCE));
    EXPECT_TRUE(CanBeDeleted(german));
    WriteBytes(german, TextLibrary().Text(9999, L"new").file());
    OutputBuffer tooShort(1);

    EXPECT_EQ(library.PGSP_LogDeviceGetResourceStringBL(L"Presse", L"Title", L"de", tooShort.data(),
                                                        &tooShort.length, 1),
              PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(CanBeDeleted(german));
}

TEST_F(TextLibraryUse, LeavesAFileThatIsNoLibraryToOthers)
{
    const std::wstring german = bin() + L"\\de\\" + TexteDll;
    WriteBytes(german, "not a library");
    EXPECT_EQ(Title(L"de"), L"boiler");

    EXPECT_TRUE(CanBeDeleted(german));
}

TEST_F(TextLibraryUse, IsThatOfEnglishWhileSomebodyWritesTheOther)
{
    {
        const FileWriter writer(bin() + L"\\de\\" + TexteDll);

        EXPECT_EQ(Title(L"de"), L"boiler");
    }

    EXPECT_EQ(Title(L"de"), L"Kessel");
}

TEST_F(TextLibraryUse, IsNoneWhileSomebodyWritesEnglishToo)
{
    const FileWriter german(bin() + L"\\de\\" + TexteDll);
    const FileWriter english(bin() + L"\\en\\" + TexteDll);

    EXPECT_EQ(Title(L"de"), Failed(PGSP_ERR_CANT_LOAD_DLL));
}

TEST_F(TextLibraryUse, IsThatOfADamagedLibraryWithoutHarm)
{
    using namespace std::string_view_literals;
    WriteBytes(bin() + L"\\de\\" + TexteDll, TextLibrary().Block(63, "\xFF\xFFx\0"sv).file());

    EXPECT_EQ(Text(L"Title\\-8"), Failed(PGSP_ERR_CANT_LOAD_RESOURCE)); // 992, the first of the block
    EXPECT_EQ(Text(L"Title"), Failed(PGSP_ERR_CANT_LOAD_RESOURCE));
    EXPECT_EQ(Text(L"Title\\7"), Failed(PGSP_ERR_CANT_LOAD_RESOURCE));
}

TEST_F(TextLibraryUse, RunsNoCode)
{
    SetEnvironmentVariableW(L"NORV_TEST_LIVELY", nullptr);
    WriteBytes(bin() + L"\\de\\" + TexteDll, ReadBytes(BesideThisProgram(L"lively_texts.dll")));

    EXPECT_EQ(Title(), L"lively");

    EXPECT_EQ(GetEnvironmentVariableW(L"NORV_TEST_LIVELY", nullptr, 0), 0U);
    EXPECT_EQ(GetModuleHandleW(TexteDll.c_str()), nullptr);
}

TEST_F(TextLibraryUse, IsOpenToAllThreadsAtOnce)
{
    constexpr int threads = 4;
    constexpr int rounds = 50;
    WriteBytes(roots.board(L"X"), BoardFile(Links(TitleLink(L"1003"))));
    std::atomic<int> wrong = 0;

    AllAtOnce(threads, [&](int thread) {
        for (int round = 0; round < rounds; ++round)
        {
            const bool german = (thread + round) % 2 == 0;
            wrong += Title(german ? L"de" : L"en") != (german ? L"Kessel" : L"boiler");
            wrong += Text(L"Title\\1", german ? L"DE" : L"fr") != (german ? L"Presse" : L"press");
            wrong += BoardText(L"*X") != L"Silo";
        }
    });

    EXPECT_EQ(wrong, 0);
    EXPECT_TRUE(CanBeDeleted(bin() + L"\\de\\" + TexteDll));
}

} // namespace
} // namespace norvepa::test

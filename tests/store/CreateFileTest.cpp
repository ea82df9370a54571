#include "store/WriteScene.h"
#include "support/FreshThread.h"
#include "support/ImportHook.h"
#include "support/OpenFile.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

class CreateFileTest : public WriteScene
{
protected:
    [[nodiscard]] Result Create(const wchar_t* kind) const { return NorvXMLCreateFile(path().c_str(), kind); }
};

TEST_F(CreateFileTest, ANewFileTakesValuesAtOnce)
{
    ASSERT_EQ(Create(L"nam"), PGSP_OK);

    EXPECT_EQ(Set(L"Parameters", L"Station", L"3", L"string"), PGSP_OK);

    std::wstring value;
    EXPECT_EQ(NorvXMLGetValue(path().c_str(), L"Parameters", L"Station", &value), PGSP_OK);
    EXPECT_EQ(value, L"3");
}

TEST_F(CreateFileTest, AFileThatIsThereIsLeftAlone)
{
    GivenFile("not even a document");

    EXPECT_EQ(Create(L"nam"), PGSP_ERR_FILE_EXISTS);

    EXPECT_EQ(Bytes(), "not even a document");
}

TEST_F(CreateFileTest, AFileThatIsThereWinsOverAWrongKind)
{
    GivenFile("<a/>");

    EXPECT_EQ(Create(L"unknown"), PGSP_ERR_FILE_EXISTS);
}

TEST_F(CreateFileTest, NothingIsCreatedWhereThereIsNoFolder)
{
    EXPECT_EQ(NorvXMLCreateFile((folder() / L"no folder\\a").c_str(), L"nam"), PGSP_ERR_CANT_CREATE_FILE);
    EXPECT_EQ(NorvXMLCreateFile((folder() / L"a\"b").c_str(), L"nam"), PGSP_ERR_CANT_CREATE_FILE);

    EXPECT_THAT(FileNames(folder().path()), testing::IsEmpty());
}

TEST_F(CreateFileTest, AKindWithoutAFormLeavesAnEmptyFile)
{
    for (const wchar_t* kind : {L"dev", L"x", L"dll", L"brd", L"pro", L"NAM", L" nam", L"", L"unknown"})
    {
        EXPECT_EQ(Create(kind), PGSP_ERR_CANT_CREATE_FILE) << ToUtf8(kind);

        EXPECT_EQ(Bytes(), "");
        ASSERT_TRUE(DeleteFileW(file().c_str()));
    }
}

TEST_F(CreateFileTest, NoKindAtAllIsAWrongOne)
{
    EXPECT_EQ(Create(nullptr), PGSP_ERR_CANT_CREATE_FILE);

    EXPECT_EQ(Bytes(), "");
}

TEST_F(CreateFileTest, AThreadWithoutComLeavesAnEmptyFileAndStaysWithout)
{
    OnFreshThread([&] {
        EXPECT_EQ(Create(L"nam"), PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    EXPECT_EQ(Bytes(), "");
}

// A disk that takes the first half.
BOOL WINAPI WriteHalf(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written, LPOVERLAPPED place)
{
    // Not by its name here, which leads back to this function.
    static const auto writeFile = reinterpret_cast<decltype(&WriteFile)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "WriteFile")));
    return writeFile(file, bytes, size / 2, written, place);
}

TEST_F(CreateFileTest, AFileThatCannotBeSavedStaysBehindEmpty)
{
    {
        const ImportHook fullDisk("WriteFile", WriteHalf);

        EXPECT_EQ(Create(L"nam"), PGSP_ERR_CANT_CREATE_FILE);
    }
    EXPECT_EQ(Bytes(), "");
}

// By the one rule the file isn't there, by the other it is, and in use.
TEST_F(CreateFileTest, AFileThatCannotBeOpenedForWritingStays)
{
    WriteBytes(folder() / L"a.xml.old", "<a/>");
    const OpenFile inUse(folder() / L"a.xml.old");

    EXPECT_EQ(NorvXMLCreateFile((folder() / L"a.xml.old").c_str(), L"nam"), PGSP_ERR_CANT_CREATE_FILE);

    EXPECT_EQ(ReadBytes(folder() / L"a.xml.old"), "<a/>");
}

} // namespace
} // namespace norvepa::test

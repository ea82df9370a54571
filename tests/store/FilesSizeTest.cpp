#include "store/EveryWrite.h"
#include "store/WriteScene.h"

#include <windows.h>

#include <stdexcept>

namespace norvepa::test
{
namespace
{

class FilesSizeTest : public WriteScene
{
protected:
    // A file of so many bytes, none of which are written.
    void GivenFileOf(LONGLONG bytes) const
    {
        GivenFile("");
        const HANDLE handle = CreateFileW(file().c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        LARGE_INTEGER end{};
        end.QuadPart = bytes;
        const BOOL set = SetFilePointerEx(handle, end, nullptr, FILE_BEGIN) && SetEndOfFile(handle);
        CloseHandle(handle);
        if (!set)
        {
            throw std::runtime_error("cannot size the file");
        }
    }
};

TEST_F(FilesSizeTest, AnEmptyFilePasses)
{
    GivenFile("");

    EXPECT_EQ(CheckFileSize(file()), PGSP_OK);
}

TEST_F(FilesSizeTest, TenMillionBytesPass)
{
    GivenFileOf(10'000'000);

    EXPECT_EQ(CheckFileSize(file()), PGSP_OK);
}

TEST_F(FilesSizeTest, OneMoreIsTooMuch)
{
    GivenFileOf(10'000'001);

    EXPECT_EQ(CheckFileSize(file()), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(FilesSizeTest, OnlyTheLowHalfOfTheSizeIsLookedAt)
{
    GivenFileOf((LONGLONG{1} << 32) + 10'000'000);

    EXPECT_EQ(CheckFileSize(file()), PGSP_OK);
}

TEST_F(FilesSizeTest, AFileThatIsNotThereIsNotFound)
{
    EXPECT_EQ(CheckFileSize(file()), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(CheckFileSize(folder() / L"no folder\\file.xml"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(CheckFileSize(L""), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(FilesSizeTest, ThePathIsTakenAsItStands)
{
    GivenFile("<a/>");
    WriteBytes(folder() / L"50#25.xml", "<a/>");

    EXPECT_EQ(CheckFileSize(path()), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(CheckFileSize(folder() / L"50#25.xml"), PGSP_OK);
    EXPECT_EQ(CheckFileSize(folder() / L"50%.xml"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(FilesSizeTest, EveryWriterRefusesAFileThatIsTooLarge)
{
    GivenFileOf(10'000'001);

    for (const Write& write : EveryWrite())
    {
        EXPECT_EQ(write.call(path().c_str()), PGSP_ERR_CANT_LOAD_XML_FILE) << write.name;
    }
}

TEST_F(FilesSizeTest, TheLargestFileIsStillWritten)
{
    const std::string device = DeviceWith(XmlContent().Int(L"a", L"1"));
    const std::string padding = "<!--" + std::string(10'000'000 - device.size() - 7, 'x') + "-->";
    GivenFile(device + padding);
    ASSERT_EQ(Bytes().size(), 10'000'000u);

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"2", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(XmlContent().Int(L"a", L"2")) + padding));
}

} // namespace
} // namespace norvepa::test

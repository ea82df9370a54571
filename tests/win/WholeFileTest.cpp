#include "win/WholeFile.h"

#include "support/FileWriter.h"
#include "support/OpenFile.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using testing::Optional;
using win::ReadWholeFile;

class WholeFile : public testing::Test
{
protected:
    TemporaryFolder folder;
    const std::wstring file = folder / L"file.xml";
};

TEST_F(WholeFile, IsItsBytesAndNoOthers)
{
    const std::string bytes("\xEF\xBB\xBF<a>\r\n\x1A\0\xFF\n\n", 12); // nothing is text to it

    WriteBytes(file, bytes);

    EXPECT_THAT(ReadWholeFile(file), Optional(bytes));
}

TEST_F(WholeFile, HoldsEveryByteThereIs)
{
    std::string bytes;
    for (int i = 0; i < 100'000; ++i)
    {
        bytes += static_cast<char>(i % 256);
    }
    WriteBytes(file, bytes);

    EXPECT_TRUE(ReadWholeFile(file) == bytes);
}

TEST_F(WholeFile, IsNothingWhenItIsEmpty)
{
    WriteBytes(file, "");

    EXPECT_THAT(ReadWholeFile(file), Optional(std::string()));
}

TEST_F(WholeFile, IsAsItIsNow)
{
    WriteBytes(file, "before");
    static_cast<void>(ReadWholeFile(file));

    WriteBytes(file, "now");

    EXPECT_THAT(ReadWholeFile(file), Optional(std::string("now")));
}

TEST_F(WholeFile, IsReadWhileOthersReadIt)
{
    WriteBytes(file, "text");
    const OpenFile reader(file);

    EXPECT_THAT(ReadWholeFile(file), Optional(std::string("text")));
}

TEST_F(WholeFile, IsReadWhileAnotherWritesIt)
{
    WriteBytes(file, "text");
    const FileWriter writer(file);
    writer.Write("te");

    EXPECT_THAT(ReadWholeFile(file), Optional(std::string("text")));
    writer.Write("new text");
    EXPECT_THAT(ReadWholeFile(file), Optional(std::string("tenew text")));
}

TEST_F(WholeFile, IsReadWhenItMayNotBeWritten)
{
    WriteBytes(file, "text");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_THAT(ReadWholeFile(file), Optional(std::string("text")));

    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WholeFile, IsNotReadWhileAnotherKeepsItToHimself)
{
    WriteBytes(file, "text");
    const OpenFile holder(file, 0);

    EXPECT_EQ(ReadWholeFile(file), std::nullopt);
}

TEST_F(WholeFile, IsNotReadWhereThereIsNone)
{
    EXPECT_EQ(ReadWholeFile(file), std::nullopt);
    EXPECT_EQ(ReadWholeFile(folder / L"gone\\file.xml"), std::nullopt);
    EXPECT_EQ(ReadWholeFile(L""), std::nullopt);
}

TEST_F(WholeFile, IsNotMadeByItsReader)
{
    static_cast<void>(ReadWholeFile(file));

    EXPECT_FALSE(Exists(file));
}

TEST_F(WholeFile, IsNoFolder)
{
    MakeFolders(file);

    EXPECT_EQ(ReadWholeFile(file), std::nullopt);
    EXPECT_EQ(ReadWholeFile(folder.path() + L"\\"), std::nullopt);
}

// One more than a length of 32 bits with a sign can tell.
TEST_F(WholeFile, IsNotReadWhenItsLengthCanNotBeTold)
{
    WriteBytes(file, "");
    const FileWriter writer(file);
    writer.SetLength(std::int64_t{1} << 31);

    EXPECT_EQ(ReadWholeFile(file), std::nullopt);
}

TEST_F(WholeFile, IsLetGoOfAfterwards)
{
    WriteBytes(file, "text");

    static_cast<void>(ReadWholeFile(file));

    const OpenFile holder(file, 0);
    EXPECT_TRUE(Exists(file));
}

} // namespace
} // namespace norvepa::test

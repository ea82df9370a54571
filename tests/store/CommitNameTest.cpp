#include "store/CommitScene.h"

namespace norvepa::test
{
namespace
{

// How a name becomes those of the two files.
using CommitName = CommitScene;

TEST_F(CommitName, WithCodesIsEscaped)
{
    WriteBytes(folder() + L"\\50#25 (nmbr)1.xml", LogNameFile(XmlContent().Text(L"a", L"1")));
    ASSERT_EQ(NorvXMLDelValue((folder() + L"\\50% #1").c_str(), L"Parameters", L"a"), PGSP_OK);

    EXPECT_EQ(NorvXMLCommitTemp(L"50% #1", LogNameSchema, folder().c_str()), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(folder() + L"\\50#25 (nmbr)1.xml"), MeaningOf(LogNameFile({})));
    EXPECT_FALSE(Exists(folder() + L"\\50#25 (nmbr)1(temp).xml"));
}

TEST_F(CommitName, WithItsExtensionGetsNone)
{
    WriteBytes(real(), LogNameFile(XmlContent().Text(L"a", L"1")));
    ASSERT_EQ(NorvXMLDelValue(real().c_str(), L"Parameters", L"a"), PGSP_OK);

    EXPECT_EQ(NorvXMLCommitTemp(L"Name.xml", LogNameSchema, folder().c_str()), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(real()), MeaningOf(LogNameFile({})));
    EXPECT_THAT(FileNames(folder()), testing::ElementsAre(L"Name.xml"));
}

// A deletion's path gets its extension by one rule, a commit's by the other.
TEST_F(CommitName, ThatHoldsTheExtensionInTheMiddleIsNoFiles)
{
    const std::string before = LogNameFile(XmlContent().Text(L"a", L"1"));
    WriteBytes(folder() + L"\\Name.xml.old", before);
    ASSERT_EQ(NorvXMLDelValue((folder() + L"\\Name.xml.old").c_str(), L"Parameters", L"a"), PGSP_OK);

    EXPECT_EQ(NorvXMLCommitTemp(L"Name.xml.old", LogNameSchema, folder().c_str()), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_EQ(ReadBytes(folder() + L"\\Name.xml.old"), before);
    EXPECT_TRUE(Exists(folder() + L"\\Name.xml.old(temp).xml"));
}

TEST_F(CommitName, ThatOnlyFitsWithoutTheWordIsTooLong)
{
    const std::wstring name(254, L'x');

    EXPECT_EQ(NorvXMLCommitTemp(name.c_str(), LogNameSchema, folder().c_str()), PGSP_ERR_BUFFER_TOO_SHORT);
}

} // namespace
} // namespace norvepa::test

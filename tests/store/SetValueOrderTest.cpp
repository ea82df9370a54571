#include "store/WriteScene.h"
#include "support/FreshThread.h"

namespace norvepa::test
{
namespace
{

// Which of several faults is told.
using SetValueOrderTest = WriteScene;

const std::wstring TooLong(300, L'x');

TEST_F(SetValueOrderTest, BadArgumentsComeFirst)
{
    EXPECT_EQ(NorvXMLSetValue(TooLong.c_str(), L"s", nullptr, L"x", L"int"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLSetValue(TooLong.c_str(), L"s", L"", L"x", L"int"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLSetHeaderValue(TooLong.c_str(), nullptr, L"x"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLSetHeaderValue(TooLong.c_str(), L"", L"x"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLSetSubdevValue(TooLong.c_str(), L"d", nullptr, L"x", L"int"),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLSetSubdevValue(TooLong.c_str(), L"d", L"", L"x", L"int"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLDelValue(TooLong.c_str(), L"s", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLDelValue(TooLong.c_str(), L"s", L""), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(SetValueOrderTest, ThePathComesAheadOfTheValue)
{
    EXPECT_EQ(NorvXMLSetValue(TooLong.c_str(), L"s", L"p", L"x", L"int"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(NorvXMLSetHeaderValue(TooLong.c_str(), L"p", L"<"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(NorvXMLSetSubdevValue(TooLong.c_str(), L"d", L"p", L"x", L"int"), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(SetValueOrderTest, TheValueComesAheadOfTheEngineAndTheFile)
{
    OnFreshThread([&] {
        EXPECT_EQ(Set(L"s", L"p", L"x", L"int"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(SetHeader(L"p", L"<"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(SetSubdev(L"d", L"p", L"x", L"int"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_FALSE(ThisThreadHasCom());
    });
}

TEST_F(SetValueOrderTest, TheEngineComesAheadOfTheFile)
{
    OnFreshThread([&] {
        EXPECT_EQ(SetSubdev(L"d", L"p", L"1", L"int"), PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_EQ(Delete(L"s", L"p"), PGSP_ERR_CANT_CREATE_XML_ENGINE);
    });
}

TEST_F(SetValueOrderTest, AMissingFileIsNotFound)
{
    EXPECT_EQ(Set(L"s", L"p", L"1", L"int"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(SetHeader(L"p", L"1"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(SetSubdev(L"d", L"p", L"1", L"int"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Delete(L"s", L"p"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(FileNames(folder().path()), testing::IsEmpty());
}

TEST_F(SetValueOrderTest, AMalformedFileStaysAsItIs)
{
    const std::string malformed = "<LogDevice><LocalSettings></LogDevice>";
    GivenFile(malformed);

    EXPECT_EQ(Set(L"LocalSettings", L"p", L"1", L"int"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(SetHeader(L"p", L"1"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(SetSubdev(L"d", L"p", L"1", L"int"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Delete(L"LocalSettings", L"p"), PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_EQ(Bytes(), malformed);
}

TEST_F(SetValueOrderTest, AFolderInPlaceOfTheFileCannotBeLoaded)
{
    MakeFolders(file());

    EXPECT_EQ(Set(L"s", L"p", L"1", L"int"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

} // namespace
} // namespace norvepa::test

#include "support/LogNameCalls.h"
#include "support/ShellFolders.h"

namespace norvepa::test
{
namespace
{

class LogNameGetValueArguments : public LogNames
{
protected:
    LogNameGetValueArguments() { Write(L"Pumpe", XmlContent().Text(L"Station", L"Halle 2")); }

    void TakeDataFolderAway() const
    {
        DeleteMachineValue(LocationsKey, L"Corvane_Oam_Data");
        SetCommonApplicationData(roots.folder().path());
    }
};

TEST_F(LogNameGetValueArguments, NeedALogName)
{
    OutputBuffer value(20);

    EXPECT_EQ(Read(nullptr, L"Station", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Read(L"", L"Station", value), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 20U);
}

TEST_F(LogNameGetValueArguments, NeedABuffer)
{
    std::uint32_t length = 20;

    EXPECT_EQ(library.LogNameGetValueBL(L"Pumpe", L"Station", nullptr, &length), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(length, 20U);
}

TEST_F(LogNameGetValueArguments, NeedALength)
{
    OutputBuffer value(20);

    EXPECT_EQ(library.LogNameGetValueBL(L"Pumpe", L"Station", value.data(), nullptr),
              PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(value.isUntouched());
}

TEST_F(LogNameGetValueArguments, MayAllBeMissing)
{
    EXPECT_EQ(library.LogNameGetValueBL(nullptr, nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(LogNameGetValueArguments, TakeABlankNameAndAStarForNames)
{
    EXPECT_EQ(Read(L" ", L"Station"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Read(L"*", L"Station"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Read(L" Pumpe", L"Station"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(LogNameGetValueArguments, AreTestedAheadOfTheFolder)
{
    TakeDataFolderAway();
    OutputBuffer value(20);

    EXPECT_EQ(Read(L"", L"Station", value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogNameGetValueBL(L"Pumpe", L"Station", value.data(), nullptr),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Read(L"Pumpe", L"Station", value), PGSP_ERR_FOLDER_NOT_FOUND);
}

TEST_F(LogNameGetValueArguments, DoNotRefuseALengthOfZero)
{
    OutputBuffer value(0);

    EXPECT_EQ(Read(L"Pumpe", L"Station", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(value.length, 7U);
}

TEST_F(LogNameGetValueArguments, MayNameNoParameterAndThenMeanTheDefault)
{
    Write(L"Presse", XmlContent().Text(L"default", L"another").Text(L"(default)", L"the default"));
    OutputBuffer ofNull(20);
    OutputBuffer ofEmpty(20);

    EXPECT_EQ(Read(L"Presse", nullptr, ofNull), PGSP_OK);
    EXPECT_EQ(Read(L"Presse", L"", ofEmpty), PGSP_OK);

    EXPECT_EQ(ofNull.text(), L"the default");
    EXPECT_EQ(ofEmpty.text(), L"the default");
}

TEST_F(LogNameGetValueArguments, ThatNameNoParameterFindNothingWithoutADefault)
{
    Write(L"Presse", XmlContent().Text(L"default", L"another"));
    OutputBuffer value(20);

    EXPECT_EQ(Read(L"Presse", nullptr, value), PGSP_ERR_PARAM_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test

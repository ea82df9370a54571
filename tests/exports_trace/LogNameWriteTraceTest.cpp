#include "LogNameTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

using LogNameWriteTrace = LogNameTraceScene;

TEST_F(LogNameWriteTrace, OfASetTellsTheArgumentsAndTheResult)
{
    Load();

    EXPECT_EQ(library().LogNameSetValueBL(L"Pumpe", L"Gr\u00F6\u00DFe", L"\u00DCber 50%d"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogNameSetValueBL"),
                ElementsAre("entry: >> LogName = Pumpe, Parameter = " + ToAnsi(L"Gr\u00F6\u00DFe") +
                                ", Value = " + ToAnsi(L"\u00DCber 50%d"),
                            "exit: << return lRet = 0"));
}

TEST_F(LogNameWriteTrace, OfASetThatChangesNothingIsThatOfASuccess)
{
    Load();

    EXPECT_EQ(library().LogNameSetValueBL(L"Pumpe", L"Station", L"Halle 2"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogNameSetValueBL"),
                ElementsAre("entry: >> LogName = Pumpe, Parameter = Station, Value = Halle 2",
                            "exit: << return lRet = 0"));
}

TEST_F(LogNameWriteTrace, OfASetTellsTheParameterAsItCame)
{
    Load();

    EXPECT_EQ(library().LogNameSetValueBL(L"Pumpe", nullptr, L"1"), PGSP_ERR_INVALID_PARAMETERS);

    // The store has refused "(default)".
    EXPECT_THAT(
        LinesOf("LogNameSetValueBL"),
        ElementsAre("entry: >> LogName = Pumpe, Parameter = , Value = 1", "exit: << return lRet = 87"));
}

TEST_F(LogNameWriteTrace, OfASetThatFailsTellsTheStoresCode)
{
    Load();

    EXPECT_EQ(library().LogNameSetValueBL(L"gone", L"Station", L"1"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogNameSetValueBL"),
                ElementsAre("entry: >> LogName = gone, Parameter = Station, Value = 1",
                            "exit: << return lRet = 8503"));
}

TEST_F(LogNameWriteTrace, OfASetWithBadArgumentsStillBeginsWithThem)
{
    Load();

    EXPECT_EQ(library().LogNameSetValueBL(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogNameSetValueBL(L"", L"Station", L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogNameSetValueBL(L"Pumpe", L"Station", nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogNameSetValueBL"),
                ElementsAre("entry: >> LogName = , Parameter = , Value = ", Refusal,
                            "entry: >> LogName = , Parameter = Station, Value = 1", Refusal,
                            "entry: >> LogName = Pumpe, Parameter = Station, Value = ", Refusal));
}

TEST_F(LogNameWriteTrace, OfASetWithoutTheDataFolderNamesIt)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogNameSetValueBL(L"Pumpe", L"Station", L"1"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogNameSetValueBL"),
                ElementsAre("entry: >> LogName = Pumpe, Parameter = Station, Value = 1", NoFolder,
                            "exit: << return lRet = 8517"));
}

TEST_F(LogNameWriteTrace, OfARemovalTellsTheArgumentsAndTheResult)
{
    Load();

    EXPECT_EQ(library().LogNameDelValueBL(L"Pumpe", L"Station"), PGSP_OK);
    EXPECT_EQ(library().LogNameDelValueBL(L"Pumpe", L"Station"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogNameDelValueBL"),
                ElementsAre("entry: >> LogName = Pumpe, Parameter = Station", "exit: << return lRet = 0",
                            "entry: >> LogName = Pumpe, Parameter = Station", "exit: << return lRet = 8513"));
}

TEST_F(LogNameWriteTrace, OfARemovalThatTheSchemaForbidsTellsItsCode)
{
    WriteBytes(roots.logName(L"Pumpe"),
               LogNameFile(XmlContent().Text(L"Station", L"1").Int(L"Stufe", L"one")));
    Load();

    EXPECT_EQ(library().LogNameDelValueBL(L"Pumpe", L"Station"), PGSP_ERR_INVALID_FILE);

    EXPECT_THAT(LinesOf("LogNameDelValueBL"),
                ElementsAre("entry: >> LogName = Pumpe, Parameter = Station", "exit: << return lRet = 8506"));
}

TEST_F(LogNameWriteTrace, OfARemovalWithBadArgumentsStillBeginsWithThem)
{
    Load();

    EXPECT_EQ(library().LogNameDelValueBL(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogNameDelValueBL(L"", L"Station"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogNameDelValueBL(L"Pumpe", L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogNameDelValueBL"),
                ElementsAre("entry: >> LogName = , Parameter = ", Refusal,
                            "entry: >> LogName = , Parameter = Station", Refusal,
                            "entry: >> LogName = Pumpe, Parameter = ", Refusal));
}

TEST_F(LogNameWriteTrace, OfARemovalWithoutTheDataFolderNamesIt)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogNameDelValueBL(L"Pumpe", L"Station"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogNameDelValueBL"), ElementsAre("entry: >> LogName = Pumpe, Parameter = Station",
                                                          NoFolder, "exit: << return lRet = 8517"));
}

} // namespace
} // namespace norvepa::test

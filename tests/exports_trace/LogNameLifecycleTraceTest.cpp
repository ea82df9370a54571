#include "LogNameTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class LogNameLifecycleTrace : public LogNameTraceScene
{
protected:
    [[nodiscard]] std::string FileOf(const std::wstring& fileName) const
    {
        return ToAnsi(roots.data() + L"\\data\\LogNames\\" + fileName);
    }
};

TEST_F(LogNameLifecycleTrace, OfANewNameSaysThatItIsNew)
{
    Load();

    EXPECT_EQ(library().LogNameCreateBL(L"F\u00F6rderband 50%"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogNameCreateBL"),
                ElementsAre("entry: >> LogName = " + ToAnsi(L"F\u00F6rderband 50%"),
                            "information: Create new LogName XML file", "exit: << return lRet = 0"));
}

TEST_F(LogNameLifecycleTrace, OfANameThatIsThereSaysThatItExists)
{
    Load();

    EXPECT_EQ(library().LogNameCreateBL(L"Pumpe"), PGSP_ERR_FILE_EXISTS);

    EXPECT_THAT(LinesOf("LogNameCreateBL"),
                ElementsAre("entry: >> LogName = Pumpe", "information: LogName XML file exists",
                            "exit: << return lRet = 8504"));
}

TEST_F(LogNameLifecycleTrace, OfANameThatCanNotBeMadeIsTheResultAlone)
{
    Load();

    EXPECT_EQ(library().LogNameCreateBL(L"gone\\Pumpe"), PGSP_ERR_CANT_CREATE_FILE);

    EXPECT_THAT(LinesOf("LogNameCreateBL"),
                ElementsAre("entry: >> LogName = gone\\Pumpe", "exit: << return lRet = 8510"));
}

TEST_F(LogNameLifecycleTrace, OfACreationWithoutANameOrAFolderSaysWhatIsMissing)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogNameCreateBL(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogNameCreateBL(L"Pumpe"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogNameCreateBL"),
                ElementsAre("entry: >> LogName = ", Refusal, "entry: >> LogName = Pumpe", NoFolder,
                            "exit: << return lRet = 8517"));
}

TEST_F(LogNameLifecycleTrace, OfADeletionIsTheResultAlone)
{
    Load();

    EXPECT_EQ(library().LogNameDeleteBL(L"Pumpe"), PGSP_OK);
    EXPECT_EQ(library().LogNameDeleteBL(L"Pumpe"), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(LinesOf("LogNameDeleteBL"),
                ElementsAre("entry: >> LogName = Pumpe", "exit: << return lRet = 0",
                            "entry: >> LogName = Pumpe", "exit: << return lRet = 8511"));
}

TEST_F(LogNameLifecycleTrace, OfADeletionWithoutANameOrAFolderSaysWhatIsMissing)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogNameDeleteBL(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogNameDeleteBL(L"Pumpe"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogNameDeleteBL"),
                ElementsAre("entry: >> LogName = ", Refusal, "entry: >> LogName = Pumpe", NoFolder,
                            "exit: << return lRet = 8517"));
}

TEST_F(LogNameLifecycleTrace, OfAnExistenceTestEndsWithTheRuntimesErrorNumber)
{
    Load();

    EXPECT_EQ(library().LogNameExistBL(L"Pumpe", 6), PGSP_OK);
    EXPECT_EQ(library().LogNameExistBL(L"50%", 0), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogNameExistBL"),
                ElementsAre("entry: >> LogName = Pumpe, flag = 6",
                            "information: Calling _waccess_s for LogName: " + FileOf(L"Pumpe"),
                            "exit: << errno_t err = 0", "entry: >> LogName = 50%, flag = 0",
                            "information: Calling _waccess_s for LogName: " + FileOf(L"50#25"),
                            "exit: << errno_t err = 2"));
}

TEST_F(LogNameLifecycleTrace, OfAnExistenceTestThatIsRefusedSaysWhy)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogNameExistBL(nullptr, -1), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogNameExistBL(L"Pumpe", 1), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogNameExistBL(L"", 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogNameExistBL(L"Pumpe", 0), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogNameExistBL"),
                ElementsAre("entry: >> LogName = , flag = -1", Refusal, "entry: >> LogName = Pumpe, flag = 1",
                            Refusal, "entry: >> LogName = , flag = 0", "exit: << return lRet = 87",
                            "entry: >> LogName = Pumpe, flag = 0", NoFolder, "exit: << return lRet = 8517"));
}

} // namespace
} // namespace norvepa::test

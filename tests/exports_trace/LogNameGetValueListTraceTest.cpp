#include "LogNameTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class LogNameGetValueListTrace : public LogNameTraceScene
{
protected:
    [[nodiscard]] std::int32_t GetList(const wchar_t* list, std::int32_t count)
    {
        return library().LogNameGetValueListBL(L"Pumpe", L"any", list, count, buffer, &length);
    }

    wchar_t buffer[300] = L"before";
    std::uint32_t length = 300;
};

TEST_F(LogNameGetValueListTrace, TellsTheSectionThoughItPlaysNoPartAndEachValue)
{
    Load();

    EXPECT_EQ(GetList(L"Station\0LogDevice\0", 18), PGSP_OK);

    EXPECT_THAT(
        LinesOf("LogNameGetValueListBL"),
        ElementsAre("entry: >> LogName = Pumpe, Section = any, ParameterList = Station, paramListLength = 18",
                    "information: dwValue=300", "information: Enumerate the ParameterList",
                    "information: ResultList-Length: Length=2",
                    "information: ResultValue=Halle 2 valLen=7 inputLen=300",
                    "information: ResultValue=MPI_1 valLen=5 inputLen=292", "exit: << return PGSP_OK"));
}

TEST_F(LogNameGetValueListTrace, OfAllTellsNamesAndValuesUpToTheOneThatDoesNotFit)
{
    Load();
    length = 12;

    EXPECT_EQ(GetList(nullptr, 0), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("LogNameGetValueListBL"),
                ElementsAre("entry: >> LogName = Pumpe, Section = any, ParameterList = , paramListLength = 0",
                            "information: dwValue=12", "information: Enumerate all, no ParameterList",
                            "information: ResultList-Length: Length=4",
                            "information: ResultValue=LogDevice valLen=9 inputLen=12",
                            "information: ResultValue=MPI_1 valLen=5 inputLen=2",
                            "information: Not all values are returned",
                            "exit: << return PGSP_ERR_BUFFER_TOO_SHORT"));
}

TEST_F(LogNameGetValueListTrace, OfARefusalAndWithoutTheDataFolder)
{
    Load();

    EXPECT_EQ(GetList(L"Druck\0", 6), PGSP_ERR_INVALID_PARAMETERS);
    TakeDataFolderAway();
    EXPECT_EQ(GetList(nullptr, 0), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(
        LinesOf("LogNameGetValueListBL"),
        ElementsAre("entry: >> LogName = Pumpe, Section = any, ParameterList = Druck, paramListLength = 6",
                    "information: dwValue=300", "information: Enumerate the ParameterList", Refusal,
                    "entry: >> LogName = Pumpe, Section = any, ParameterList = , paramListLength = 0",
                    "information: dwValue=300", NoFolder, "exit: << return lRet = 8517"));
}

} // namespace
} // namespace norvepa::test

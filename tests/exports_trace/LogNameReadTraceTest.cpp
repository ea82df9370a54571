#include "LogNameTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class LogNameReadTrace : public LogNameTraceScene
{
protected:
    [[nodiscard]] std::int32_t Link(const wchar_t* logName)
    {
        return library().LogNameGetLogDeviceBL(logName, buffer, &length);
    }

    [[nodiscard]] std::int32_t Enum(std::uint32_t index)
    {
        return library().LogNameGetEnumBL(index, buffer, &length);
    }

    wchar_t buffer[20] = L"before";
    std::uint32_t length = 20;
};

TEST_F(LogNameReadTrace, OfALinkTellsTheDeviceAndTheResult)
{
    Load();

    EXPECT_EQ(Link(L"Pumpe"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogNameGetLogDeviceBL"),
                ElementsAre("entry: >> LogName = Pumpe", "information: LogDevice = MPI_1, dwValue = 5",
                            "exit: << return lRet = 0"));
}

TEST_F(LogNameReadTrace, OfALinkThatCanNotBeReadTellsTheBufferAsItIs)
{
    Load();

    EXPECT_EQ(Link(L"gone"), PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_THAT(LinesOf("LogNameGetLogDeviceBL"),
                ElementsAre("entry: >> LogName = gone", "information: LogDevice = before, dwValue = 20",
                            "exit: << return lRet = 8508"));
}

TEST_F(LogNameReadTrace, OfALinkThatDoesNotFitReadsNoFurtherThanTheBufferGoes)
{
    Load();
    length = 3;

    EXPECT_EQ(Link(L"Pumpe"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("LogNameGetLogDeviceBL"),
                ElementsAre("entry: >> LogName = Pumpe", "information: LogDevice = bef, dwValue = 5",
                            "exit: << return lRet = 234"));
}

TEST_F(LogNameReadTrace, OfALinkWithBadArgumentsStillBeginsWithTheName)
{
    Load();

    EXPECT_EQ(Link(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Link(L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogNameGetLogDeviceBL(L"Pumpe", nullptr, &length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogNameGetLogDeviceBL(L"Pumpe", buffer, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogNameGetLogDeviceBL"),
                ElementsAre("entry: >> LogName = ", Refusal, "entry: >> LogName = ", Refusal,
                            "entry: >> LogName = Pumpe", Refusal, "entry: >> LogName = Pumpe", Refusal));
}

TEST_F(LogNameReadTrace, OfALinkWithoutTheDataFolderNamesIt)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(Link(L"Pumpe"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogNameGetLogDeviceBL"),
                ElementsAre("entry: >> LogName = Pumpe", NoFolder, "exit: << return lRet = 8517"));
}

TEST_F(LogNameReadTrace, OfAnEnumerationTellsNameLengthAndTheCallersIndex)
{
    WriteBytes(roots.logName(L"Gr\u00F6\u00DFe 50#25"), LogNameFile(XmlContent().Text(L"hidden", L"no")));
    WriteBytes(roots.logName(L"Pumpe"), LogNameFile(XmlContent().Text(L"hidden", L"true")));
    WriteBytes(roots.logName(L"Alt"), LogNameFile(XmlContent().Text(L"hidden", L"true")));
    Load();

    EXPECT_EQ(Enum(0), PGSP_OK);

    EXPECT_THAT(
        LinesOf("LogNameGetEnumBL"),
        ElementsAre("entry: >> index = 0", "exit: << return LogName = " + ToAnsi(L"Gr\u00F6\u00DFe 50%") +
                                               ", LogNameLen = 9, index = 0"));
}

TEST_F(LogNameReadTrace, OfAnEnumerationTellsTheIndexThatCameThoughItCountsDown)
{
    WriteBytes(roots.logName(L"Presse"), LogNameFile({}));
    WriteBytes(roots.logName(L"Silo"), LogNameFile(XmlContent().Text(L"hidden", L"true")));
    Load();

    EXPECT_EQ(Enum(1), PGSP_OK);

    const std::string name = ToAnsi(buffer);
    EXPECT_THAT(LinesOf("LogNameGetEnumBL"),
                ElementsAre("entry: >> index = 1", "exit: << return LogName = " + name + ", LogNameLen = " +
                                                       std::to_string(name.size()) + ", index = 1"));
}

TEST_F(LogNameReadTrace, OfAnEnumerationTellsOfEachCandidateHowItsHiddenWasRead)
{
    Load();

    EXPECT_EQ(Enum(0), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogNameGetValue"), ElementsAre("entry: >> LogName = Pumpe, Parameter = hidden",
                                                             "exit: << return lRet = 8513, Value = "));
}

TEST_F(LogNameReadTrace, OfAnEnumerationThatEndsIsTheSameForANameThatDoesNotFit)
{
    Load();

    EXPECT_EQ(Enum(1), PGSP_ERR_NO_MORE_ITEMS);
    length = 5;
    EXPECT_EQ(Enum(0), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_THAT(LinesOf("LogNameGetEnumBL"),
                ElementsAre("entry: >> index = 1", "exit: << return PGSP_ERR_NO_MORE_ITEMS",
                            "entry: >> index = 0", "exit: << return PGSP_ERR_NO_MORE_ITEMS"));
}

TEST_F(LogNameReadTrace, OfAnEnumerationIntoABufferOfNoCharactersEndsWithoutALookAtTheFolder)
{
    Load();
    length = 0;

    EXPECT_EQ(Enum(0), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_THAT(LinesOf("LogNameGetEnumBL"),
                ElementsAre("entry: >> index = 0", "exit: << return PGSP_ERR_NO_MORE_ITEMS"));
    EXPECT_THAT(LinesOf("NorvXMLEnumFile"), testing::IsEmpty());
    EXPECT_THAT(LinesOf("getDirectoryContent"), testing::IsEmpty());
}

TEST_F(LogNameReadTrace, OfAnEnumerationThatIsRefusedSaysWhy)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogNameGetEnumBL(7, nullptr, &length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogNameGetEnumBL(7, buffer, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    length = 0; // is seen behind the data folder
    EXPECT_EQ(Enum(7), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogNameGetEnumBL"),
                ElementsAre("entry: >> index = 7", Refusal, "entry: >> index = 7", Refusal,
                            "entry: >> index = 7", NoFolder, "exit: << return lRet = 8517"));
}

} // namespace
} // namespace norvepa::test

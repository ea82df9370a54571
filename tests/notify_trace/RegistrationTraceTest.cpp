#include "NotifyTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

std::string RegisterLine(std::string_view message)
{
    return TraceLine("RegisterNotification: ", message);
}

std::string UnRegisterLine(std::string_view message)
{
    return TraceLine("UnRegisterNotification: ", message);
}

class RegistrationTrace : public NotifyTraceScene
{
};

TEST_F(RegistrationTrace, OfASuccessTellsWhatIsRegistered)
{
    Trace();

    EXPECT_EQ(RegisterNotification(L"LogNames", L"F\u00F6rderband", L"event"), PGSP_OK);

    EXPECT_THAT(Lines(), ElementsAre(RegisterLine(">> RegisterNotification FolderName=LogNames  FileName=" +
                                                  ToAnsi(L"F\u00F6rderband") + "  EventName=event"),
                                     RegisterLine("add Event to notifyRegisterList and return OK")));
}

TEST_F(RegistrationTrace, OfADuplicateTellsIt)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);
    Trace();

    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, L"event"), PGSP_ERR_DUPLICATE_EVENT);

    EXPECT_THAT(
        Lines(),
        ElementsAre(RegisterLine(">> RegisterNotification FolderName=LogNames  FileName=  EventName=event"),
                    RegisterLine("Error: duplicate EventName, return")));
}

TEST_F(RegistrationTrace, OfABadArgumentIsTheEntryAlone)
{
    Trace();

    EXPECT_EQ(RegisterNotification(nullptr, L"Pumpe", nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(Lines(),
                ElementsAre(RegisterLine(">> RegisterNotification FolderName=  FileName=Pumpe  EventName=")));
}

TEST_F(RegistrationTrace, WarnsOfEveryRegistration)
{
    Trace(L"0x10");

    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);
    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, L"event"), PGSP_ERR_DUPLICATE_EVENT);

    EXPECT_THAT(Lines(), ElementsAre(RegisterLine("add Event to notifyRegisterList and return OK"),
                                     RegisterLine("Error: duplicate EventName, return")));
}

TEST_F(RegistrationTrace, TellsTheArgumentsAtTheEntryLevel)
{
    Trace(L"0x8");

    EXPECT_EQ(RegisterNotification(L"meta", nullptr, L"event"), PGSP_OK);
    EXPECT_EQ(UnRegisterNotification(L"meta", nullptr, L"event"), PGSP_OK);

    EXPECT_THAT(
        Lines(),
        ElementsAre(RegisterLine(">> RegisterNotification FolderName=meta  FileName=  EventName=event"),
                    UnRegisterLine(">> UnRegisterNotification FolderName=meta  FileName=  EventName=event")));
}

TEST_F(RegistrationTrace, OfARemovalTellsTheLengthAheadOfIt)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", L"Pumpe", L"first"), PGSP_OK);
    ASSERT_EQ(RegisterNotification(L"LogNames", L"Pumpe", L"second"), PGSP_OK);
    Trace(L"0x40");

    EXPECT_EQ(UnRegisterNotification(L"LogNames", L"Pumpe", L"first"), PGSP_OK);

    const std::vector<std::string> lines = Lines();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0], UnRegisterLine("notifyRegisterList.Length 2"));
    EXPECT_THAT(lines[1], MatchesRegex("UnRegisterNotification:  free 0x\\w+ "));
}

TEST_F(RegistrationTrace, OfAVainRemovalTellsTheLengthWhereThereIsAList)
{
    Trace(L"0x40");
    EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, L"event"), PGSP_ERR_NOT_REGISTERED);
    EXPECT_THAT(Lines(), IsEmpty());

    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"other"), PGSP_OK);
    EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, L"event"), PGSP_ERR_NOT_REGISTERED);
    EXPECT_THAT(Lines(), ElementsAre(UnRegisterLine("notifyRegisterList.Length 1")));
}

TEST_F(RegistrationTrace, LeavesNoExit)
{
    Trace(L"0x80");

    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);
    EXPECT_EQ(RegisterNotification(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);
    EXPECT_EQ(UnRegisterNotification(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(Lines(), IsEmpty());
}

} // namespace
} // namespace norvepa::test

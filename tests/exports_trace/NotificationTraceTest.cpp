#include "LogNameTraceScene.h"
#include "support/NamedEvent.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

class NotificationTrace : public LogNameTraceScene
{
protected:
    [[nodiscard]] std::int32_t Change() const
    {
        return library().LogNameSetValueBL(L"Pumpe", L"Station", L"Halle 3");
    }
};

TEST_F(NotificationTrace, OfARegistrationTellsTheArgumentsAndWarns)
{
    Load();

    EXPECT_EQ(library().RegisterNotification(L"LogNames", L"R\u00FChrwerk", L"event"), PGSP_OK);
    EXPECT_EQ(library().RegisterNotification(L"meta", nullptr, L"EVENT"), PGSP_ERR_DUPLICATE_EVENT);

    EXPECT_THAT(LinesOf("RegisterNotification"),
                ElementsAre("entry: >> RegisterNotification FolderName=LogNames  FileName=" +
                                ToAnsi(L"R\u00FChrwerk") + "  EventName=event",
                            "warning: add Event to notifyRegisterList and return OK",
                            "entry: >> RegisterNotification FolderName=meta  FileName=  EventName=EVENT",
                            "warning: Error: duplicate EventName, return"));
}

TEST_F(NotificationTrace, OfARemovalTellsTheArgumentsAndTheLengthAheadOfIt)
{
    Load();
    ASSERT_EQ(library().RegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);

    EXPECT_EQ(library().UnRegisterNotification(L"LogNames", L"Pumpe", L"event"), PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(library().UnRegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);

    const std::string length = "information: notifyRegisterList.Length 1";
    EXPECT_THAT(
        LinesOf("UnRegisterNotification"),
        ElementsAre("entry: >> UnRegisterNotification FolderName=LogNames  FileName=Pumpe  EventName=event",
                    length,
                    "entry: >> UnRegisterNotification FolderName=LogNames  FileName=  EventName=event",
                    length, MatchesRegex("information: free 0x\\w+")));
}

TEST_F(NotificationTrace, OfARemovalWithoutAListIsTheEntryAlone)
{
    Load();

    EXPECT_EQ(library().UnRegisterNotification(L"LogNames", nullptr, L"event"), PGSP_ERR_NOT_REGISTERED);

    EXPECT_THAT(
        LinesOf("UnRegisterNotification"),
        ElementsAre("entry: >> UnRegisterNotification FolderName=LogNames  FileName=  EventName=event"));
}

TEST_F(NotificationTrace, OfBadArgumentsIsTheEntryAlone)
{
    Load();

    EXPECT_EQ(library().RegisterNotification(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().UnRegisterNotification(nullptr, L"Pumpe", L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("RegisterNotification"),
                ElementsAre("entry: >> RegisterNotification FolderName=  FileName=  EventName="));
    EXPECT_THAT(LinesOf("UnRegisterNotification"),
                ElementsAre("entry: >> UnRegisterNotification FolderName=  FileName=Pumpe  EventName="));
}

TEST_F(NotificationTrace, OfAChangeBelongsToTheSenderAndToTheWorker)
{
    Load();
    const NamedEvent event;
    ASSERT_EQ(library().RegisterNotification(L"LogNames", L"Pumpe", event.c_str()), PGSP_OK);

    EXPECT_EQ(Change(), PGSP_OK);

    EXPECT_THAT(LinesOf("SendNotificationBL"), ElementsAre("entry: >> SendNotificationBL"));
    EXPECT_THAT(LinesOf("NotifiyThread"),
                ElementsAre("entry: >> NotifiyThread",
                            "information: Notify f\xFCr Datei Pumpe und Event " + ToAnsi(event.name()),
                            "exit: << NotifiyThread"));
}

TEST_F(NotificationTrace, OfAChangeThatNobodyHearsSaysThatThereIsNoList)
{
    Load();

    EXPECT_EQ(Change(), PGSP_OK);

    EXPECT_THAT(LinesOf("NotifiyThread"),
                ElementsAre("entry: >> NotifiyThread", "information: Error : notifyRegisterList == NULL"));
}

TEST_F(NotificationTrace, OfADeadEventWarnsOfIt)
{
    Load();
    ASSERT_EQ(library().RegisterNotification(L"LogNames", nullptr, L"no such event"), PGSP_OK);

    EXPECT_EQ(Change(), PGSP_OK);

    EXPECT_THAT(LinesOf("NotifiyThread"),
                ElementsAre("entry: >> NotifiyThread",
                            "warning: OpenEvent: no such event nicht m\xF6glich, Error: 0x2",
                            "information: before del len of notifyRegisterList: 1",
                            MatchesRegex("information: free 0x\\w+"),
                            "information: after del len of notifyRegisterList: 0", "exit: << NotifiyThread"));
}

TEST_F(NotificationTrace, OfATemporaryNameEndsWithTheSender)
{
    Load();

    EXPECT_EQ(library().LogNameCreateBL(L"PGSP_TEMP_LOG_DEVICE____001"), PGSP_OK);

    EXPECT_THAT(LinesOf("SendNotificationBL"),
                ElementsAre("entry: >> SendNotificationBL", "exit: << exclude TempLogDevices"));
    EXPECT_THAT(LinesOf("NotifiyThread"), IsEmpty());
}

TEST_F(NotificationTrace, OfAnUnchangedValueIsNone)
{
    Load();

    EXPECT_EQ(library().LogNameSetValueBL(L"Pumpe", L"Station", L"HALLE 2"), PGSP_OK);

    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

} // namespace
} // namespace norvepa::test

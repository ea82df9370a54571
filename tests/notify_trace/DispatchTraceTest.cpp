#include "NotifyTraceScene.h"
#include "notify/NotifyRegistration.h"
#include "notify/SendNotification.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;

const std::string SendEntry = TraceLine("SendNotificationBL: ", ">> SendNotificationBL");

std::string WorkerLine(std::string_view message)
{
    return TraceLine("NotifiyThread: ", message);
}

HANDLE WINAPI NoThread(SECURITY_ATTRIBUTES*, SIZE_T, LPTHREAD_START_ROUTINE, void*, DWORD, DWORD*)
{
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

class DispatchTrace : public NotifyTraceScene
{
};

TEST_F(DispatchTrace, OfAChangeThatNobodyWaitsForSaysSo)
{
    Trace();

    Announce(L"LogNames", L"Pumpe");

    EXPECT_THAT(Lines(), ElementsAre(SendEntry, WorkerLine(">> NotifiyThread"),
                                     WorkerLine("Error : notifyRegisterList == NULL")));
}

TEST_F(DispatchTrace, AfterTheLastRegistrationIsTheSame)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);
    ASSERT_EQ(UnRegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);
    Trace(L"0x40");

    Announce(L"LogNames", L"Pumpe");

    EXPECT_THAT(Lines(), ElementsAre(WorkerLine("Error : notifyRegisterList == NULL")));
}

TEST_F(DispatchTrace, TellsTheRegisteredFileAndTheEventInTheMachinesCodePage)
{
    const NamedEvent ofFile;
    const NamedEvent ofFolder;
    ASSERT_EQ(RegisterNotification(L"LogNames", L"F\u00F6rderband", ofFile.c_str()), PGSP_OK);
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, ofFolder.c_str()), PGSP_OK);
    Trace();

    Announce(L"LogNames", L"f\u00D6RDERBAND");

    EXPECT_THAT(Lines(), ElementsAre(SendEntry, WorkerLine(">> NotifiyThread"),
                                     WorkerLine("Notify f\xFCr Datei " + ToAnsi(L"F\u00F6rderband") +
                                                " und Event " + ToAnsi(ofFile.name())),
                                     WorkerLine("Notify f\xFCr Datei  und Event " + ToAnsi(ofFolder.name())),
                                     WorkerLine("<< NotifiyThread")));
}

TEST_F(DispatchTrace, OfADeadEventTellsHowItIsDropped)
{
    const std::wstring dead = FreshEventName();
    ASSERT_EQ(RegisterNotification(L"LogDevices", nullptr, L"other"), PGSP_OK);
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, dead.c_str()), PGSP_OK);
    char freed[20] = "";
    std::snprintf(freed, sizeof freed, "free 0x%x", TraceAddress(notifyRegisterList->back().get()));
    Trace();

    Announce(L"LogNames", L"Pumpe");

    EXPECT_THAT(Lines(),
                ElementsAre(SendEntry, WorkerLine(">> NotifiyThread"),
                            WorkerLine("OpenEvent: " + ToAnsi(dead) + " nicht m\xF6glich, Error: 0x2"),
                            WorkerLine("before del len of notifyRegisterList: 2"), WorkerLine(freed),
                            WorkerLine("after del len of notifyRegisterList: 1"),
                            WorkerLine("<< NotifiyThread")));
}

TEST_F(DispatchTrace, OfTheLastDeadEventEndsLikeTheOthers)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, FreshEventName().c_str()), PGSP_OK);
    Trace(L"0xC0");

    Announce(L"LogNames", L"Pumpe");

    const std::vector<std::string> lines = Lines();
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0], WorkerLine("before del len of notifyRegisterList: 1"));
    EXPECT_THAT(lines[1], MatchesRegex("NotifiyThread:  free 0x\\w+ "));
    EXPECT_EQ(lines[2], WorkerLine("after del len of notifyRegisterList: 0"));
    EXPECT_EQ(lines[3], WorkerLine("<< NotifiyThread"));
}

TEST_F(DispatchTrace, OfAnEventThatMayNotBeSetTellsTheSystemsCode)
{
    const NamedEvent guarded(FreshEventName(), L"D:(D;;0x0002;;;WD)(A;;0x1f0001;;;WD)");
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, guarded.c_str()), PGSP_OK);
    Trace(L"0x10");

    Announce(L"LogNames", L"Pumpe");

    EXPECT_THAT(Lines(), ElementsAre(WorkerLine("OpenEvent: " + ToAnsi(guarded.name()) +
                                                " nicht m\xF6glich, Error: 0x5")));
}

TEST_F(DispatchTrace, OfAnEventAsLongAsItsFieldEndsWithIt)
{
    const std::wstring longName = FreshEventName() + std::wstring(64, L'n');
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, longName.c_str()), PGSP_OK);
    Trace(L"0x10");

    Announce(L"LogNames", L"Pumpe");

    EXPECT_THAT(Lines(), ElementsAre(WorkerLine("OpenEvent: " + ToAnsi(longName.substr(0, 64)) +
                                                " nicht m\xF6glich, Error: 0x2")));
}

TEST_F(DispatchTrace, OfATemporaryLogDeviceIsAnExit)
{
    Trace();
    SendNotificationBL(L"LogDevices", L"PGSP_TEMP_LOG_DEVICE____001", L"5");
    EXPECT_THAT(Lines(),
                ElementsAre(SendEntry, TraceLine("SendNotificationBL: ", "<< exclude TempLogDevices")));

    Trace(L"0x80");
    SendNotificationBL(L"LogDevices", L"PGSP_TEMP_LOG_DEVICE____001", L"5");
    EXPECT_THAT(Lines(), ElementsAre(TraceLine("SendNotificationBL: ", "<< exclude TempLogDevices")));
}

TEST_F(DispatchTrace, OfAMissingNameOrCodeIsTheEntryAlone)
{
    Trace();

    SendNotificationBL(L"LogDevices", nullptr, L"5");
    SendNotificationBL(L"LogDevices", L"Pumpe", nullptr);

    EXPECT_THAT(Lines(), ElementsAre(SendEntry, SendEntry));
}

TEST_F(DispatchTrace, WarnsOfAWorkerThatCanNotBeStarted)
{
    Trace(L"0x10");

    {
        const ImportHook noThread("CreateThread", NoThread);
        SendNotificationBL(L"LogDevices", L"Pumpe", L"5");
    }

    EXPECT_THAT(Lines(),
                ElementsAre(testing::AllOf(HasSubstr("SendNotificationBL: "), HasSubstr("Error: 0x8"))));
}

TEST_F(DispatchTrace, KeepsToTheLevelsOfItsKinds)
{
    const NamedEvent event;
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, event.c_str()), PGSP_OK);

    Trace(L"0x8");
    Announce(L"LogNames", L"Pumpe");
    EXPECT_THAT(Lines(), ElementsAre(SendEntry, WorkerLine(">> NotifiyThread")));

    Trace(L"0x10");
    Announce(L"LogNames", L"Pumpe");
    EXPECT_THAT(Lines(), IsEmpty());

    Trace(L"0x40");
    Announce(L"LogNames", L"Pumpe");
    EXPECT_THAT(Lines(), ElementsAre(HasSubstr(" und Event ")));

    Trace(L"0x80");
    Announce(L"LogNames", L"Pumpe");
    EXPECT_THAT(Lines(), ElementsAre(WorkerLine("<< NotifiyThread")));
}

} // namespace
} // namespace norvepa::test

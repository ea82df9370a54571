#include "NotifyScene.h"
#include "notify/SendNotification.h"
#include "support/TemporaryFolder.h"

namespace norvepa::test
{
namespace
{

class Dispatch : public NotifyScene
{
};

TEST_F(Dispatch, SetsTheEventOfAFileThatChanged)
{
    const NamedEvent pump;
    const NamedEvent press;
    Register(L"LogNames", L"Pumpe", pump);
    Register(L"LogNames", L"Presse", press);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_TRUE(pump.IsSet());
    EXPECT_FALSE(press.IsSet());
}

TEST_F(Dispatch, SetsTheEventOfAFolderForEachOfItsFiles)
{
    const NamedEvent event;
    Register(L"LogNames", nullptr, event);

    Announce(L"LogNames", L"Pumpe");
    EXPECT_TRUE(event.IsSet());

    Announce(L"LogNames", L"Presse");
    EXPECT_TRUE(event.IsSet());

    Announce(L"LogNames", L"");
    EXPECT_TRUE(event.IsSet());
}

TEST_F(Dispatch, TellsOneFolderFromAnother)
{
    const NamedEvent logNames;
    const NamedEvent logDevices;
    const NamedEvent meta;
    Register(L"LogNames", nullptr, logNames);
    Register(L"LogDevices", L"Pumpe", logDevices);
    Register(L"meta", nullptr, meta);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_TRUE(logNames.IsSet());
    EXPECT_FALSE(logDevices.IsSet());
    EXPECT_FALSE(meta.IsSet());
}

TEST_F(Dispatch, ComparesNamesWithoutRegardToCase)
{
    const NamedEvent event;
    Register(L"LogNames", L"F\u00F6rderband", event);

    Announce(L"LOGNAMES", L"f\u00D6RDERBAND");

    EXPECT_TRUE(event.IsSet());
}

TEST_F(Dispatch, ComparesWholeNames)
{
    const NamedEvent event;
    Register(L"LogNames", L"Pumpe", event);

    Announce(L"LogNames", L"Pump");
    Announce(L"LogNames", L"Pumpe2");
    Announce(L"LogNames", L"Pumpe.xml");
    Announce(L"LogNames", L"");
    Announce(L"LogName", L"Pumpe");
    Announce(L"LogNamesOld", L"Pumpe");

    EXPECT_FALSE(event.IsSet());
}

TEST_F(Dispatch, TakesNoCharacterForAPattern)
{
    const NamedEvent event;
    Register(L"LogNames", L"*", event);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_FALSE(event.IsSet());
}

TEST_F(Dispatch, SetsTheEventsOfAllRegistrantsOfOneFile)
{
    const NamedEvent ofTheFile;
    const NamedEvent ofTheFolder;
    const NamedEvent ofTheFileToo;
    Register(L"LogNames", L"Pumpe", ofTheFile);
    Register(L"LogNames", nullptr, ofTheFolder);
    Register(L"LogNames", L"pumpe", ofTheFileToo);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_TRUE(ofTheFile.IsSet());
    EXPECT_TRUE(ofTheFolder.IsSet());
    EXPECT_TRUE(ofTheFileToo.IsSet());
}

TEST_F(Dispatch, SetsAnEventOncePerChange)
{
    const NamedEvent event;
    Register(L"LogNames", nullptr, event);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_TRUE(event.IsSet());
    EXPECT_FALSE(event.IsSet()); // the look before has reset it
    EXPECT_EQ(workers.count(), 1U);
}

TEST_F(Dispatch, IsTheSameForEveryKindOfChange)
{
    const NamedEvent event;
    Register(L"LogNames", nullptr, event);

    for (const wchar_t* const code : {L"2", L"3", L"5", L"6", L"", L"other"})
    {
        SendNotificationBL(L"LogNames", L"Pumpe", code);
        workers.Await();
        EXPECT_TRUE(event.IsSet()) << ToUtf8(code);
    }
}

TEST_F(Dispatch, KeepsWhatIsRegistered)
{
    const NamedEvent event;
    Register(L"LogNames", nullptr, event);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_THAT(RegisteredEvents(), testing::ElementsAre(event.name()));
}

TEST_F(Dispatch, FindsNobodyForAFolderThatIsNull)
{
    const NamedEvent event;
    Register(L"LogNames", nullptr, event);

    Announce(nullptr, L"Pumpe");

    EXPECT_FALSE(event.IsSet());
}

TEST_F(Dispatch, EndsQuietlyWhereNobodyIsRegistered)
{
    Announce(L"LogNames", L"Pumpe");

    EXPECT_EQ(workers.count(), 1U);
    EXPECT_FALSE(HasList());
}

} // namespace
} // namespace norvepa::test

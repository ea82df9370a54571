#include "LogNameScene.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

class LogNameNotification : public LogNameScene
{
protected:
    LogNameNotification()
    {
        UseOurSchemas();
        Write(L"Pumpe", XmlContent().Text(L"Station", L"Halle 2"));
        Register(pump, L"Pumpe");
        Register(press, L"Presse");
        Register(all);
        Register(devices, nullptr, L"LogDevices");
        Register(templates, nullptr, L"meta");
    }

    void ExpectPumpTold() const
    {
        EXPECT_TRUE(IsTold(pump));
        EXPECT_TRUE(IsTold(all));
        EXPECT_FALSE(IsTold(press));
        EXPECT_FALSE(IsTold(devices));
        EXPECT_FALSE(IsTold(templates));
        EXPECT_EQ(workers.count(), 1U);
    }

    void ExpectNobodyTold() const
    {
        EXPECT_EQ(workers.count(), 0U);
        EXPECT_FALSE(IsTold(all));
    }

    const NamedEvent pump;
    const NamedEvent press;
    const NamedEvent all;
    const NamedEvent devices;
    const NamedEvent templates;
};

TEST_F(LogNameNotification, TellsOfANewName)
{
    DeleteFileW(roots.logName(L"Pumpe").c_str());

    EXPECT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_OK);

    ExpectPumpTold();
}

TEST_F(LogNameNotification, TellsOfADeletedName)
{
    EXPECT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_OK);

    ExpectPumpTold();
}

TEST_F(LogNameNotification, TellsOfAChangedValue)
{
    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", L"Halle 3"), PGSP_OK);

    ExpectPumpTold();
}

TEST_F(LogNameNotification, TellsOfANewValue)
{
    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Bereich", L""), PGSP_OK);

    ExpectPumpTold();
}

TEST_F(LogNameNotification, TellsOfARemovedValue)
{
    EXPECT_EQ(library.LogNameDelValueBL(L"Pumpe", L"Station"), PGSP_OK);

    ExpectPumpTold();
}

TEST_F(LogNameNotification, TellsOfTheNameAsTheCallerHasIt)
{
    EXPECT_EQ(library.LogNameSetValueBL(L"PUMPE", L"Station", L"Halle 3"), PGSP_OK);
    ExpectPumpTold();

    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe.xml", L"Station", L"Halle 4"), PGSP_OK);
    EXPECT_FALSE(IsTold(pump));
    EXPECT_TRUE(IsTold(all));
}

TEST_F(LogNameNotification, TellsOfAChangeThatCouldNotBeSaved)
{
    const OpenFile inUse(roots.logName(L"Pumpe"));

    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", L"Halle 3"), PGSP_OK);

    ExpectPumpTold();
}

TEST_F(LogNameNotification, TellsOncePerChange)
{
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", std::to_wstring(i).c_str()), PGSP_OK);
        EXPECT_TRUE(IsTold(pump));
        EXPECT_FALSE(IsTold(pump));
    }

    EXPECT_EQ(workers.count(), 3U);
}

TEST_F(LogNameNotification, TellsNobodyOfAnUnchangedValue)
{
    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", L"Halle 2"), PGSP_OK);
    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"STATION", L"HALLE 2"), PGSP_OK);

    ExpectNobodyTold();
}

TEST_F(LogNameNotification, TellsNobodyOfANameThatIsThere)
{
    EXPECT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_ERR_FILE_EXISTS);

    ExpectNobodyTold();
}

TEST_F(LogNameNotification, TellsNobodyOfANameThatCouldNotBeMade)
{
    EXPECT_EQ(library.LogNameCreateBL(L"no such folder\\Pumpe"), PGSP_ERR_CANT_CREATE_FILE);
    OnFreshThread([&] { EXPECT_EQ(library.LogNameCreateBL(L"Presse"), PGSP_ERR_CANT_CREATE_XML_ENGINE); });

    ExpectNobodyTold();
}

TEST_F(LogNameNotification, TellsNobodyOfAWriteThatFails)
{
    WriteBytes(roots.logName(L"broken"), "no XML");
    Write(L"bare", {});
    WriteBytes(roots.logName(L"bare"), XmlFile(L"LogName", {}, {}));

    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", L"<"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", nullptr, L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogNameSetValueBL(L"gone", L"Station", L"1"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(library.LogNameSetValueBL(L"broken", L"Station", L"1"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(library.LogNameSetValueBL(L"bare", L"Station", L"1"), PGSP_ERR_CANT_SET_VALUE);

    ExpectNobodyTold();
}

TEST_F(LogNameNotification, TellsNobodyOfADeletionThatFails)
{
    const OpenFile inUse(roots.logName(L"Pumpe"));

    EXPECT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(library.LogNameDeleteBL(L"Presse"), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(library.LogNameDelValueBL(L"Pumpe", L"Station"), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(library.LogNameDelValueBL(L"Pumpe", L"Bereich"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(library.LogNameDelValueBL(L"Presse", L"Station"), PGSP_ERR_FILE_NOT_FOUND);

    ExpectNobodyTold();
}

TEST_F(LogNameNotification, TellsNobodyOfAReading)
{
    OutputBuffer text(260);

    EXPECT_EQ(library.LogNameExistBL(L"Pumpe", 6), PGSP_OK);
    EXPECT_EQ(library.LogNameGetEnumBL(0, text.data(), &text.length), PGSP_OK);
    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_OK);
    EXPECT_EQ(library.LogNameGetLogDeviceBL(L"Pumpe", text.data(), &text.length), PGSP_ERR_PARAM_NOT_FOUND);

    ExpectNobodyTold();
}

TEST_F(LogNameNotification, TellsNobodyOfANameLikeATemporaryLogDevices)
{
    EXPECT_EQ(library.LogNameCreateBL(L"PGSP_TEMP_LOG_DEVICE____001"), PGSP_OK);
    EXPECT_EQ(library.LogNameDeleteBL(L"PGSP_TEMP_LOG_DEVICE____001"), PGSP_OK);

    ExpectNobodyTold();
}

TEST_F(LogNameNotification, DropsAnEventThatIsGoneAndLetsItsNameBeRegisteredAgain)
{
    NamedEvent gone;
    Register(gone, L"Pumpe");
    gone.Close();
    ASSERT_EQ(library.RegisterNotification(L"LogNames", L"Pumpe", gone.c_str()), PGSP_ERR_DUPLICATE_EVENT);

    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", L"1"), PGSP_OK);
    ExpectPumpTold();

    EXPECT_EQ(library.UnRegisterNotification(L"LogNames", L"Pumpe", gone.c_str()), PGSP_ERR_NOT_REGISTERED);
    const NamedEvent again(gone.name());
    Register(again, L"Pumpe");
    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", L"2"), PGSP_OK);
    EXPECT_TRUE(IsTold(again));
}

TEST_F(LogNameNotification, DropsNoEventThatIsGoneForAChangeOfAnother)
{
    NamedEvent gone;
    Register(gone, L"Presse");
    gone.Close();

    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", L"1"), PGSP_OK);
    ExpectPumpTold();

    EXPECT_EQ(library.UnRegisterNotification(L"LogNames", L"Presse", gone.c_str()), PGSP_OK);
}

TEST_F(LogNameNotification, GoesOnAfterDeinit)
{
    library.NorvepaBl64x_deinit();

    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", L"1"), PGSP_OK);

    ExpectPumpTold();
}

} // namespace
} // namespace norvepa::test

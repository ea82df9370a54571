#include "LifeScene.h"
#include "exports_device/Registrants.h"
#include "support/Eventually.h"

namespace norvepa::test
{
namespace
{

class LifeNotification : public WithRegistrants<LifeScene>
{
protected:
    LifeNotification() { WriteTemplate(L"MPI", Rights(L"false", L"true")); }

    // That the change of "Presse" was announced, so many times in all.
    void ExpectPressTold(std::size_t times) const
    {
        EXPECT_TRUE(press.Await());
        EXPECT_TRUE(all.Await());
        EXPECT_FALSE(IsTold(pump));
        EXPECT_FALSE(IsTold(names));
        EXPECT_FALSE(IsTold(templates));
        EXPECT_EQ(workers.count(), times);
    }

    // As many as a copy of a log device with this content to "Presse" sends.
    void ExpectCopyToTell(const XmlContent& content, std::size_t times) const
    {
        store.WriteDevice(L"Vorlage", content);

        EXPECT_EQ(library.LogDeviceCopyBL(L"Vorlage", L"Presse"), PGSP_OK);

        ExpectPressTold(times);
    }
};

TEST_F(LifeNotification, TellsOfANewDevice)
{
    EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"MPI", L"Presse"), PGSP_OK);

    ExpectPressTold(1);
}

TEST_F(LifeNotification, TellsOfNoDeviceThatIsThereAlready)
{
    store.WriteDevice(L"Presse", {});

    EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"MPI", L"Presse"), PGSP_ERR_CANT_COPY_FILE);

    ExpectNobodyTold();
}

TEST_F(LifeNotification, TellsOfNoDeviceThatCanNotBeMade)
{
    EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"gone", L"Presse"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"", L"Presse"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"MPI", store.DeviceForPathOf(260).c_str()),
              PGSP_ERR_BUFFER_TOO_SHORT);
    store.TakeProgramFolderAway();
    EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"MPI", L"Presse"), PGSP_ERR_FOLDER_NOT_FOUND);

    ExpectNobodyTold();
}

TEST_F(LifeNotification, TellsOfACopyOnlyOnceWhenNothingDiffers)
{
    ExpectCopyToTell(Rights(L"true", L"false"), 1);
}

TEST_F(LifeNotification, TellsOfACopyOnceMoreForEachValueThatDiffers)
{
    ExpectCopyToTell(Rights(L"false", L"true"), 3);
}

TEST_F(LifeNotification, TellsOfACopyTwiceWhenOnlyThePermissionDiffers)
{
    ExpectCopyToTell(Rights(L"false", L"false"), 2);
}

TEST_F(LifeNotification, TellsOfACopyTwiceWhenOnlyTheHidingDiffers)
{
    ExpectCopyToTell(Rights(L"true", L"true"), 2);
}

TEST_F(LifeNotification, TellsOfACopyWhoseValuesCanNotBeSet)
{
    ExpectCopyToTell(XmlContent().Element(L"LocalSettings", XmlContent()), 1);
}

TEST_F(LifeNotification, TellsOfNoCopyThatFails)
{
    store.WriteDevice(L"Presse", {});

    EXPECT_EQ(library.LogDeviceCopyBL(L"gone", L"Kopie"), PGSP_ERR_CANT_COPY_FILE);
    EXPECT_EQ(library.LogDeviceCopyBL(L"Presse", L"PRESSE"), PGSP_ERR_CANT_COPY_FILE);
    EXPECT_EQ(library.LogDeviceCopyBL(L"Presse", L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceCopyBL(store.DeviceForPathOf(260).c_str(), L"Kopie"),
              PGSP_ERR_BUFFER_TOO_SHORT);

    ExpectNobodyTold();
}

TEST_F(LifeNotification, TellsOfARemovedDevice)
{
    store.WriteDevice(L"Presse", Rights(L"true", L"false"));

    EXPECT_EQ(library.LogDeviceDelBL(L"Presse", 0), PGSP_OK);

    ExpectPressTold(1);
}

TEST_F(LifeNotification, TellsOfADeviceThatIsRemovedWithoutPermission)
{
    store.WriteDevice(L"Presse", Rights(L"false", L"false"));

    EXPECT_EQ(library.LogDeviceDelBL(L"Presse", 1), PGSP_OK);

    ExpectPressTold(1);
}

TEST_F(LifeNotification, TellsOfNoRemovalThatFails)
{
    store.WriteDevice(L"Presse", Rights(L"false", L"false"));
    store.WriteDevice(L"Pumpe", {});
    const HeldElsewhere held(roots, roots.logDevice(L"Presse"), Sharing::Reading);

    EXPECT_EQ(library.LogDeviceDelBL(L"Presse", 0), PGSP_ERR_LOG_DEVICE_NOT_DELETABLE);
    EXPECT_EQ(library.LogDeviceDelBL(L"Presse", 1), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(library.LogDeviceDelBL(L"Pumpe", 0), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(library.LogDeviceDelBL(L"gone", 0), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(library.LogDeviceDelBL(L"gone", 1), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(library.LogDeviceDelBL(L"", 1), PGSP_ERR_INVALID_PARAMETERS);

    ExpectNobodyTold();
}

TEST_F(LifeNotification, TellsOfDevicesWithCodedNamesByTheirNames)
{
    for (const CodedName& coded : CodedNames)
    {
        const NamedEvent event;
        Register(event, coded.name);

        EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"MPI", coded.name), PGSP_OK);
        EXPECT_TRUE(event.Await()) << ToUtf8(coded.name);

        EXPECT_EQ(library.LogDeviceDelBL(coded.name, 1), PGSP_OK);
        EXPECT_TRUE(event.Await()) << ToUtf8(coded.name);
    }
}

TEST_F(LifeNotification, TellsNobodyOfANameThatHoldsTheWholePrefixAnywhere)
{
    for (const wchar_t* const name : {L"PGSP_TEMP_LOG_DEVICE____007", L"x PGSP_TEMP_LOG_DEVICE____ y"})
    {
        EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"MPI", name), PGSP_OK);
        EXPECT_EQ(library.LogDeviceDelBL(name, 0), PGSP_OK);
        store.WriteDevice(L"Vorlage", Rights(L"false", L"true"));
        EXPECT_EQ(library.LogDeviceCopyBL(L"Vorlage", name), PGSP_OK);
        EXPECT_EQ(library.LogDeviceDelBL(name, 1), PGSP_OK);
    }

    ExpectNobodyTold();
}

// A removal needs no permission for less than what a notification is dropped for.
TEST_F(LifeNotification, TellsOfANameThatHoldsLessThanTheWholePrefix)
{
    for (const wchar_t* const name : {L"PGSP_TEMP_LOG_DEVICE___007", L"PGSP_TEMP_LOG_DEVICE"})
    {
        const NamedEvent event;
        Register(event, name);
        store.WriteDevice(name, {});

        EXPECT_EQ(library.LogDeviceDelBL(name, 0), PGSP_OK);

        EXPECT_TRUE(event.Await()) << ToUtf8(name);
    }
    EXPECT_EQ(workers.count(), 2U);
}

TEST_F(LifeNotification, TellsOfThePrefixInAnotherCase)
{
    const NamedEvent event;
    Register(event, L"pgsp_temp_log_device____000");

    EXPECT_EQ(library.LogDeviceCreateFromDefBL(L"MPI", L"pgsp_temp_log_device____000"), PGSP_OK);

    EXPECT_TRUE(event.Await());
}

// No export of these tells the listing or the index of identities; the watch of the folder does.
TEST_F(LifeNotification, IsNotWhatTheIndexOfIdentitiesLearnsItFrom)
{
    const auto isIndexed = [&] {
        OutputBuffer name(260);
        OutputBuffer unit(260);
        return library.LogDeviceGetEnumByDeviceIdBL(L"AFK110", 0, name.data(), &name.length, unit.data(),
                                                    &unit.length) == PGSP_OK;
    };
    WriteTemplate(L"MPI", XmlContent()
                              .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1"))
                              .Raw(Rights(L"true", L"false").utf8()));
    ASSERT_FALSE(isIndexed());

    ASSERT_EQ(library.LogDeviceCreateFromDefBL(L"MPI", L"Presse"), PGSP_OK);
    EXPECT_TRUE(Eventually(isIndexed));

    ASSERT_EQ(library.LogDeviceDelBL(L"Presse", 0), PGSP_OK);
    EXPECT_TRUE(Eventually([&] { return !isIndexed(); }));
}

} // namespace
} // namespace norvepa::test

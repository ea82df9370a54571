#include "GetScene.h"
#include "support/FreshThread.h"
#include "support/NamedEvent.h"
#include "support/Workers.h"
#include "support/XmlMeaning.h"

#include <windows.h>

#include <thread>

namespace norvepa::test
{
namespace
{

// Linking log names to log devices.
class LinkLogName : public GetScene
{
protected:
    LinkLogName()
    {
        store.WriteDevice(L"Kessel", {}, OurBoard, L"L2");
        store.WriteDevice(L"Presse", {}, OurBoard, L"MPI");
        Write(XmlContent().Text(L"Station", L"Halle 2"));
    }

    void Write(const XmlContent& parameters) const
    {
        WriteBytes(roots.logName(L"Pumpe"), LogNameFile(parameters));
    }

    void WriteLock(const std::wstring& word) const
    {
        Write(XmlContent().Text(L"LogDevice", L"Kessel").Text(L"LOCKED_BY_THREAD_POINTER", word));
    }

    [[nodiscard]] std::int32_t LinkTo(const wchar_t* device) const
    {
        return library.LogNameSetLogDeviceBL(L"Pumpe", device);
    }

    [[nodiscard]] std::string Bytes() const { return ReadBytes(roots.logName(L"Pumpe")); }

    void ExpectSaved(const XmlContent& parameters) const
    {
        EXPECT_EQ(MeaningOfFile(roots.logName(L"Pumpe")), MeaningOf(LogNameFile(parameters)));
    }

    Workers workers{library.module()};
};

TEST_F(LinkLogName, StoresTheDeviceAndItsType)
{
    EXPECT_EQ(LinkTo(L"Kessel"), PGSP_OK);

    ExpectSaved(
        XmlContent().Text(L"Station", L"Halle 2").Text(L"LogDevice", L"Kessel").Text(L"CP_TYPE", L"L2"));
}

TEST_F(LinkLogName, ReplacesDeviceAndType)
{
    Write(XmlContent().Text(L"CP_TYPE", L"L2").Text(L"LogDevice", L"Kessel"));

    EXPECT_EQ(LinkTo(L"Presse"), PGSP_OK);

    ExpectSaved(XmlContent().Text(L"CP_TYPE", L"MPI").Text(L"LogDevice", L"Presse"));
}

TEST_F(LinkLogName, IsWithoutATypeWhenTheDeviceHasNone)
{
    WriteBytes(roots.logDevice(L"Band"), XmlFile(L"LogDevice", {}, {}));
    Write(XmlContent().Text(L"CP_TYPE", L"L2").Text(L"LogDevice", L"Kessel"));

    EXPECT_EQ(LinkTo(L"Band"), PGSP_OK);

    ExpectSaved(XmlContent().Text(L"CP_TYPE", L"L2").Text(L"LogDevice", L"Band"));
}

// The type comes by the service's own read, which knows it as a parameter as well.
TEST_F(LinkLogName, TakesTheTypeAlsoFromTheSpareSection)
{
    WriteBytes(roots.logDevice(L"Band"),
               XmlFile(L"LogDevice", {}, Section(L"SpareSection", L"CP_TYPE", L"ASI")));

    EXPECT_EQ(LinkTo(L"Band"), PGSP_OK);

    ExpectSaved(
        XmlContent().Text(L"Station", L"Halle 2").Text(L"LogDevice", L"Band").Text(L"CP_TYPE", L"ASI"));
}

TEST_F(LinkLogName, ToADeviceThatIsNotThereLeavesEverythingAsItWas)
{
    const std::string before = Bytes();

    EXPECT_EQ(LinkTo(L"gone"), PGSP_ERR_LOG_DEVICE_NOT_EXISTS);
    EXPECT_EQ(LinkTo(L"Pumpe"), PGSP_ERR_LOG_DEVICE_NOT_EXISTS); // a log name is no log device
    EXPECT_EQ(LinkTo(L"Kessel\\subdevices\\Brenner"), PGSP_ERR_LOG_DEVICE_NOT_EXISTS);
    EXPECT_EQ(LinkTo(std::wstring(300, L'n').c_str()), PGSP_ERR_LOG_DEVICE_NOT_EXISTS);

    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(workers.count(), 0U);
}

TEST_F(LinkLogName, ToNothingClearsTheDeviceAndKeepsTheType)
{
    Write(XmlContent().Text(L"LogDevice", L"Kessel").Text(L"CP_TYPE", L"L2"));

    EXPECT_EQ(LinkTo(L""), PGSP_OK);
    EXPECT_EQ(LinkTo(L""), PGSP_OK);

    ExpectSaved(XmlContent().Text(L"LogDevice", L"").Text(L"CP_TYPE", L"L2"));
    EXPECT_EQ(workers.count(), 1U);
}

TEST_F(LinkLogName, StandsAfterTheDeviceIsGone)
{
    ASSERT_EQ(LinkTo(L"Kessel"), PGSP_OK);
    DeleteFileW(roots.logDevice(L"Kessel").c_str());
    OutputBuffer device(20);

    EXPECT_EQ(library.LogNameGetLogDeviceBL(L"Pumpe", device.data(), &device.length), PGSP_OK);

    EXPECT_EQ(device.text(), L"Kessel");
}

TEST_F(LinkLogName, OfALogNameThatIsNotThereIsTheStoresCode)
{
    EXPECT_EQ(library.LogNameSetLogDeviceBL(L"gone", L"Kessel"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(library.LogNameSetLogDeviceBL(L"gone", L""), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(library.LogNameSetLogDeviceBL(L"gone", L"gone too"), PGSP_ERR_LOG_DEVICE_NOT_EXISTS);

    WriteBytes(roots.logName(L"broken"), "<a></b>");
    EXPECT_EQ(library.LogNameSetLogDeviceBL(L"broken", L"Kessel"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(LinkLogName, RefusesBadArgumentsAheadOfLookingForTheFolder)
{
    store.TakeDataFolderAway();

    EXPECT_EQ(library.LogNameSetLogDeviceBL(nullptr, L"Kessel"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogNameSetLogDeviceBL(L"", L"Kessel"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LinkTo(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(LinkTo(L"Kessel"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(LinkTo(L""), PGSP_ERR_FOLDER_NOT_FOUND);
}

TEST_F(LinkLogName, GoesOnUnderTheLockOfThisThread)
{
    const std::wstring word = std::to_wstring(GetCurrentThreadId());
    WriteLock(word);

    EXPECT_EQ(LinkTo(L"Presse"), PGSP_OK);

    ExpectSaved(XmlContent()
                    .Text(L"LogDevice", L"Presse")
                    .Text(L"LOCKED_BY_THREAD_POINTER", word)
                    .Text(L"CP_TYPE", L"MPI"));
}

TEST_F(LinkLogName, IsStoppedByTheLockOfAnotherThread)
{
    WriteLock(std::to_wstring(GetCurrentThreadId()));
    const std::string before = Bytes();

    std::thread([&] {
        EXPECT_EQ(LinkTo(L"Presse"), PGSP_LOCKED_BY_OTHER_THREAD);
        EXPECT_EQ(LinkTo(L""), PGSP_LOCKED_BY_OTHER_THREAD);
    }).join();

    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(workers.count(), 0U);
}

TEST_F(LinkLogName, IsStoppedByAnyOtherWordAheadOfLookingForTheDevice)
{
    const std::wstring mine = std::to_wstring(GetCurrentThreadId());
    for (const std::wstring& word : {L"0" + mine, mine + L" ", L" " + mine, std::wstring(L"0"),
                                     std::wstring(L"no number"), std::wstring(100, L'9')})
    {
        WriteLock(word);
        EXPECT_EQ(LinkTo(L"Presse"), PGSP_LOCKED_BY_OTHER_THREAD) << word;
        EXPECT_EQ(LinkTo(L"gone"), PGSP_LOCKED_BY_OTHER_THREAD) << word;
    }
}

TEST_F(LinkLogName, GoesOnUnderAnEmptyLock)
{
    WriteLock(L"");

    EXPECT_EQ(LinkTo(L"Presse"), PGSP_OK);
}

TEST_F(LinkLogName, AloneAsksForTheLock)
{
    WriteLock(L"another thread");

    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"LogDevice", L"Presse"), PGSP_OK);
    EXPECT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_OK);
}

TEST_F(LinkLogName, WorksOnAThreadWithoutComAndLeavesItSo)
{
    OnFreshThread([&] {
        EXPECT_EQ(LinkTo(L"Kessel"), PGSP_OK);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    ExpectSaved(
        XmlContent().Text(L"Station", L"Halle 2").Text(L"LogDevice", L"Kessel").Text(L"CP_TYPE", L"L2"));
}

TEST_F(LinkLogName, TellsTwiceWhenBothValuesChange)
{
    const NamedEvent event;
    ASSERT_EQ(library.RegisterNotification(L"LogNames", L"Pumpe", event.c_str()), PGSP_OK);

    EXPECT_EQ(LinkTo(L"Kessel"), PGSP_OK);

    EXPECT_TRUE(event.Await());
    EXPECT_EQ(workers.count(), 2U);
}

TEST_F(LinkLogName, TellsOfWhatHasChangedAlone)
{
    Write(XmlContent().Text(L"LogDevice", L"Kessel").Text(L"CP_TYPE", L"MPI"));
    EXPECT_EQ(LinkTo(L"Presse"), PGSP_OK);
    EXPECT_EQ(workers.count(), 1U);

    EXPECT_EQ(LinkTo(L"Presse"), PGSP_OK);
    EXPECT_EQ(workers.count(), 1U);

    store.WriteDevice(L"Presse", {}, OurBoard, L"L2");
    EXPECT_EQ(LinkTo(L"PRESSE"), PGSP_OK); // the same name to the store
    EXPECT_EQ(workers.count(), 2U);
    ExpectSaved(XmlContent().Text(L"LogDevice", L"Presse").Text(L"CP_TYPE", L"L2"));
}

} // namespace
} // namespace norvepa::test

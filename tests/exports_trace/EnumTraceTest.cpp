#include "LogNameTraceScene.h"
#include "support/DeviceStore.h"

#include <string>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class EnumTrace : public LogNameTraceScene
{
protected:
    [[nodiscard]] std::int32_t Enum(const wchar_t* netType, std::uint32_t index)
    {
        return library().LogDeviceGetEnumBL(netType, index, buffer, &length);
    }

    [[nodiscard]] std::int32_t EnumValue(const wchar_t* device, std::uint32_t index)
    {
        return library().LogDeviceGetEnumValueBL(device, index, buffer, &length, second, &secondLength);
    }

    [[nodiscard]] std::int32_t EnumByDeviceId(const wchar_t* deviceId, std::uint32_t index)
    {
        return library().LogDeviceGetEnumByDeviceIdBL(deviceId, index, buffer, &length, second,
                                                      &secondLength);
    }

    void WritePress() const
    {
        store.WriteDevice(L"K\u00FChler",
                          XmlContent().Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"12")));
    }

    const DeviceStore store{roots};
    wchar_t buffer[30] = L"before";
    std::uint32_t length = 30;
    wchar_t second[30] = L"second";
    std::uint32_t secondLength = 30;
};

TEST_F(EnumTrace, TellsTheFilterOrThatThereIsNone)
{
    WritePress();
    Load();

    EXPECT_EQ(Enum(nullptr, 0), PGSP_OK);
    length = 30;
    EXPECT_EQ(Enum(L"mpi", 0), PGSP_OK);
    length = 30;
    EXPECT_EQ(Enum(L"", 0), PGSP_ERR_NO_MORE_ITEMS);

    const std::string found =
        "exit: << return LogDeviceName = " + ToAnsi(L"K\u00FChler") + ", LogDeviceLen = 6, index = 0";
    EXPECT_THAT(LinesOf("LogDeviceGetEnumBL"),
                ElementsAre("entry: >> lpszNetType = NULL, index = 0", found,
                            "entry: >> lpszNetType = mpi, index = 0", found,
                            "entry: >> lpszNetType = , index = 0", "exit: << lRet=0x103"));
}

TEST_F(EnumTrace, TellsTheIndexThatCameThoughItCountsDown)
{
    store.WriteDevice(L"b1", {});
    store.WriteDevice(L"b2", {});
    store.WriteDevice(L"b3", {});
    Load();

    EXPECT_EQ(Enum(nullptr, 2), PGSP_OK);

    EXPECT_THAT(
        LinesOf("LogDeviceGetEnumBL"),
        ElementsAre("entry: >> lpszNetType = NULL, index = 2",
                    "exit: << return LogDeviceName = " + ToAnsi(buffer) + ", LogDeviceLen = 2, index = 2"));
}

TEST_F(EnumTrace, TellsOfTemporaryDevicesThatPassTheOtherTests)
{
    store.WriteDevice(L"PGSP_TEMP_LOG_DEVICE____001", {});
    store.WriteDevice(L"PGSP_TEMP_LOG_DEVICE____002",
                      XmlContent().Element(L"Ndi", XmlContent().Bool(L"hidden", L"true")));
    store.WriteDevice(L"PGSP_TEMP_LOG_DEVICE____003", {}, OurBoard, L"L2");
    Load();

    EXPECT_EQ(Enum(L"MPI", 0), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_THAT(LinesOf("LogDeviceGetEnumBL"),
                ElementsAre("entry: >> lpszNetType = MPI, index = 0",
                            "information: temporary LogDevice skipped", "exit: << lRet=0x103"));
}

// The type is read before anything is tested, but only for a filter.
TEST_F(EnumTrace, TellsOfTheTypeThatIsReadForAFilterAlone)
{
    store.WriteDevice(L"a", XmlContent().Element(L"Ndi", XmlContent().Bool(L"hidden", L"true")));
    Load();

    EXPECT_EQ(Enum(nullptr, 0), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetValue"), testing::IsEmpty());
    EXPECT_EQ(Enum(L"MPI", 0), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetValue"), ElementsAre("entry: >> LogDevice = a, Parameter = CP_TYPE",
                                                               "exit: << return lRet = 0, Value = MPI"));
}

TEST_F(EnumTrace, OfARefusalTellsOneThatTheStoreMakesInItsOwnForm)
{
    WritePress();
    Load();

    EXPECT_EQ(library().LogDeviceGetEnumBL(L"MPI", 3, nullptr, &length), PGSP_ERR_INVALID_PARAMETERS);
    length = 0;
    EXPECT_EQ(Enum(nullptr, 3), PGSP_ERR_INVALID_PARAMETERS);
    length = 6;
    EXPECT_EQ(Enum(nullptr, 3), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("LogDeviceGetEnumBL"),
                ElementsAre("entry: >> lpszNetType = MPI, index = 3", Refusal,
                            "entry: >> lpszNetType = NULL, index = 3", "exit: << lRet=0x57",
                            "entry: >> lpszNetType = NULL, index = 3", "exit: << lRet=0xea"));
}

TEST_F(EnumTrace, OfValuesTellsBothTextsOrTheCode)
{
    WritePress();
    Load();

    EXPECT_EQ(EnumValue(L"K\u00FChler", 0), PGSP_OK);
    EXPECT_EQ(EnumValue(L"K\u00FChler", 7), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(EnumValue(L"gone", 0), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(EnumValue(nullptr, 0), PGSP_ERR_INVALID_PARAMETERS);

    const std::string cooler = ToAnsi(L"K\u00FChler");
    EXPECT_THAT(LinesOf("LogDeviceGetEnumValueBL"),
                ElementsAre("entry: >> LogDevice = " + cooler + ", index = 0",
                            "exit: Parameter = Unit, parLen = 4, Value = 12, valLen = 2",
                            "entry: >> LogDevice = " + cooler + ", index = 7", "exit: << return lRet = 259",
                            "entry: >> LogDevice = gone, index = 0", "exit: << return lRet = 8503",
                            "entry: >> LogDevice = , index = 0", Refusal));
}

TEST_F(EnumTrace, OfValuesOfALogNameIsTheSameWithTheFolderTested)
{
    Load();
    const auto enumerate = [&](const wchar_t* logName, std::uint32_t index) {
        return library().LogNameGetEnumValueBL(logName, index, buffer, &length, second, &secondLength);
    };

    EXPECT_EQ(enumerate(L"Pumpe", 0), PGSP_OK);
    EXPECT_EQ(enumerate(L"gone", 0), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(enumerate(L"", 0), PGSP_ERR_INVALID_PARAMETERS);
    store.TakeDataFolderAway();
    EXPECT_EQ(enumerate(L"Pumpe", 0), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogNameGetEnumValueBL"),
                ElementsAre("entry: >> LogName = Pumpe, index = 0",
                            "exit: Parameter = LogDevice, parLen = 9, Value = MPI_1, valLen = 5",
                            "entry: >> LogName = gone, index = 0", "exit: << return lRet = 8503",
                            "entry: >> LogName = , index = 0", Refusal,
                            "entry: >> LogName = Pumpe, index = 0", NoFolder, "exit: << return lRet = 8517"));
}

TEST_F(EnumTrace, ByIdentityTellsNameAndUnit)
{
    WritePress();
    Load();

    EXPECT_EQ(EnumByDeviceId(L"afk110", 0), PGSP_OK);

    EXPECT_THAT(
        LinesOf("LogDeviceGetEnumByDeviceIdBL"),
        ElementsAre("entry: >> DeviceID = afk110, index = 0",
                    "exit: << return lRet = 0, LogDevice = " + ToAnsi(L"K\u00FChler") + ", Unit = 12"));
}

TEST_F(EnumTrace, ByIdentityTellsTheBuffersAsTheyAreWhenTheyAreNotFilled)
{
    WritePress();
    Load();

    EXPECT_EQ(EnumByDeviceId(L"AFK110", 1), PGSP_ERR_NO_MORE_ITEMS);
    length = 3;
    EXPECT_EQ(EnumByDeviceId(L"AFK110", 0), PGSP_ERR_BUFFER_TOO_SHORT);
    length = 30;
    secondLength = 2;
    EXPECT_EQ(EnumByDeviceId(L"AFK110", 0), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(EnumByDeviceId(nullptr, 0), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(
        LinesOf("LogDeviceGetEnumByDeviceIdBL"),
        ElementsAre("entry: >> DeviceID = AFK110, index = 1", "information:  return PGSP_ERR_NO_MORE_ITEMS",
                    "exit: << return lRet = 259, LogDevice = before, Unit = second",
                    "entry: >> DeviceID = AFK110, index = 0", "information: return PGSP_ERR_BUFFER_TOO_SHORT",
                    "exit: << return lRet = 234, LogDevice = bef, Unit = second",
                    "entry: >> DeviceID = AFK110, index = 0", "information: return PGSP_ERR_BUFFER_TOO_SHORT",
                    "exit: << return lRet = 234, LogDevice = " + ToAnsi(L"K\u00FChler") + ", Unit = se",
                    "entry: >> DeviceID = , index = 0", Refusal));
}

TEST_F(EnumTrace, ByIdentityReadsDevicesOnceForAllAnswers)
{
    WritePress();
    Load();

    EXPECT_EQ(EnumByDeviceId(L"AFK110", 0), PGSP_OK);
    EXPECT_EQ(EnumByDeviceId(L"AFK110", 1), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_THAT(LinesOf("LogDeviceGetEnumBL"),
                ElementsAre("entry: >> lpszNetType = NULL, index = 0",
                            testing::HasSubstr("exit: << return LogDeviceName = "),
                            "entry: >> lpszNetType = NULL, index = 1", "exit: << lRet=0x103"));
    EXPECT_EQ(LinesOf("PGSP_LogDeviceGetValue").size(), 2U);
    EXPECT_EQ(LinesOf("LogDeviceGetValueBL").size(), 2U);
}

} // namespace
} // namespace norvepa::test

#include "LogNameTraceScene.h"
#include "support/DeviceStore.h"

#include <string>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// The reads of one value, and of lists.
class GetTrace : public LogNameTraceScene
{
protected:
    GetTrace()
    {
        store.WriteBoard(Catalogue().Parameter(L"Takt", {{L"default", L"5"}}));
        store.WriteDevice(
            L"Presse",
            XmlContent()
                .Element(L"LocalSettings", XmlContent().Text(L"Ort", L"K\u00FChlhaus").Text(L"Stufe", L"3"))
                .Element(L"Bindings", XmlContent().Subdevice(L"Achse", XmlContent().Text(L"Ort", L"links"))));
    }

    [[nodiscard]] std::int32_t Get(const wchar_t* device, const wchar_t* parameter)
    {
        return library().LogDeviceGetValueBL(device, parameter, buffer, &length);
    }

    [[nodiscard]] std::int32_t GetEx(const wchar_t* device, const wchar_t* section, const wchar_t* parameter)
    {
        return library().LogDeviceGetValueExBL(device, section, parameter, buffer, &length);
    }

    [[nodiscard]] std::int32_t GetList(const wchar_t* device, const wchar_t* list, std::int32_t count)
    {
        return library().LogDeviceGetValueListBL(device, nullptr, list, count, buffer, &length);
    }

    const DeviceStore store{roots};
    wchar_t buffer[300] = L"before";
    std::uint32_t length = 300;
};

TEST_F(GetTrace, OfAValueTellsTheValueAndItsLength)
{
    Load();

    EXPECT_EQ(Get(L"Presse", L"Ort"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogDeviceGetValueBL"), ElementsAre("entry: >> LogDevice = Presse, Parameter = Ort",
                                                            "exit: << return lRet = 0, Value = " +
                                                                ToAnsi(L"K\u00FChlhaus") + ", dwValue = 8"));
}

TEST_F(GetTrace, OfAValueThatDoesNotFitTellsTheCode)
{
    Load();
    length = 2;

    EXPECT_EQ(Get(L"Presse", L"Ort"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("LogDeviceGetValueBL"), ElementsAre("entry: >> LogDevice = Presse, Parameter = Ort",
                                                            "exit: << return PGSP_ERR_BUFFER_TOO_SHORT"));
}

TEST_F(GetTrace, OfADefaultTellsThatOneStoodIn)
{
    Load();

    EXPECT_EQ(Get(L"Presse", L"Takt"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogDeviceGetValueBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Takt",
                            "information: Parameter was not found lRet = 0",
                            "information: Use default value: 5", "exit: << return lRet = 0"));
}

TEST_F(GetTrace, OfADefaultThatDoesNotFitTellsTheNumber)
{
    Load();
    length = 1;

    EXPECT_EQ(Get(L"Presse", L"Takt"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("LogDeviceGetValueBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Takt",
                            "information: Parameter was not found lRet = 0",
                            "information: Use default value: 5", "exit: << return lRet = 234"));
}

TEST_F(GetTrace, OfAParameterThatIsNotThereTellsTheCode)
{
    Load();

    EXPECT_EQ(Get(L"Presse", L"Druck"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceGetValueBL"), ElementsAre("entry: >> LogDevice = Presse, Parameter = Druck",
                                                            "exit: << return PGSP_ERR_PARAM_NOT_FOUND"));
}

TEST_F(GetTrace, OfADeviceThatIsNotThereNamesIt)
{
    Load();

    EXPECT_EQ(Get(L"gone", nullptr), PGSP_ERR_LOG_DEVICE_NOT_EXISTS);

    EXPECT_THAT(LinesOf("LogDeviceGetValueBL"),
                ElementsAre("entry: >> LogDevice = gone, Parameter = ",
                            "information: Can't load logdevice gone", "exit: << return lRet = 8012"));
}

TEST_F(GetTrace, OfASubdeviceTellsItsValueInBothReadsAlsoWhenThereIsNone)
{
    Load();

    EXPECT_EQ(Get(L"Presse\\Subdevices\\Achse", L"Ort"), PGSP_OK);
    EXPECT_EQ(Get(L"Presse\\Subdevices\\Achse", L"Takt"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(GetEx(L"gone\\Subdevices\\Achse", L"Ndi", L"Ort"), PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_THAT(LinesOf("LogDeviceGetValueBL"),
                ElementsAre("entry: >> LogDevice = Presse\\Subdevices\\Achse, Parameter = Ort",
                            "information: << Returned Value = links, from Subdevice: achse",
                            "exit: << return lRet = 0",
                            "entry: >> LogDevice = Presse\\Subdevices\\Achse, Parameter = Takt",
                            "information: << Returned Value = , from Subdevice: achse",
                            "exit: << return lRet = 8513"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetValueExBL"),
                ElementsAre("entry: >> LogDevice = gone\\Subdevices\\Achse, Section = Ndi, Parameter = Ort",
                            "information: << Returned Value = , from Subdevice: achse",
                            "exit: << return lRet = 8508"));
}

TEST_F(GetTrace, OfAValueOfASectionIsUnderATagOfItsOwn)
{
    Load();

    EXPECT_EQ(GetEx(L"Presse", L"LocalSettings", L"Ort"), PGSP_OK);
    EXPECT_EQ(GetEx(L"Presse", nullptr, nullptr), PGSP_ERR_PARAM_NOT_FOUND);
    length = 1;
    EXPECT_EQ(GetEx(L"Presse", L"LocalSettings", L"Ort"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(
        LinesOf("PGSP_LogDeviceGetValueExBL"),
        ElementsAre("entry: >> LogDevice = Presse, Section = LocalSettings, Parameter = Ort",
                    "exit: << return lRet = 0",
                    "entry: >> LogDevice = Presse, Section = , Parameter = ", "exit: << return lRet = 8513",
                    "entry: >> LogDevice = Presse, Section = LocalSettings, Parameter = Ort",
                    "exit: << return lRet = 234"));
    EXPECT_THAT(LinesOf("LogDeviceGetValueExBL"), IsEmpty());
}

TEST_F(GetTrace, OfAListTellsEachValueAndTheRoomItMeets)
{
    Load();

    EXPECT_EQ(GetList(L"Presse", L"Ort\0Stufe\0", 10), PGSP_OK);

    EXPECT_THAT(
        LinesOf("LogDeviceGetValueListBL"),
        ElementsAre("entry: >> LogDevice = Presse, Section = , ParameterList = Ort, paramListLength = 10",
                    "information: dwValue=300", "information: Enumerate the ParameterList",
                    "information: ResultList-Length: Length=2",
                    "information: ResultValue=" + ToAnsi(L"K\u00FChlhaus") + " valLen=8 inputLen=300",
                    "information: ResultValue=3 valLen=1 inputLen=291", "exit: << return PGSP_OK"));
}

TEST_F(GetTrace, OfAListThatDoesNotFitEndsWithTheValueThatDoesNot)
{
    Load();
    length = 8;

    EXPECT_EQ(GetList(L"Presse", L"Ort\0Stufe\0", 10), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(
        LinesOf("LogDeviceGetValueListBL"),
        ElementsAre("entry: >> LogDevice = Presse, Section = , ParameterList = Ort, paramListLength = 10",
                    "information: dwValue=8", "information: Enumerate the ParameterList",
                    "information: ResultList-Length: Length=2",
                    "information: ResultValue=" + ToAnsi(L"K\u00FChlhaus") + " valLen=8 inputLen=8",
                    "information: Not all values are returned", "exit: << return PGSP_ERR_BUFFER_TOO_SHORT"));
}

TEST_F(GetTrace, OfAListWithoutRoomForItsEndSaysNothingOfValues)
{
    Load();
    length = 0;

    EXPECT_EQ(GetList(L"gone", nullptr, -1), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("LogDeviceGetValueListBL"),
                ElementsAre("entry: >> LogDevice = gone, Section = , ParameterList = , paramListLength = -1",
                            "information: dwValue=0", "information: Enumerate all, no ParameterList",
                            "information: ResultList-Length: Length=0",
                            "exit: << return PGSP_ERR_BUFFER_TOO_SHORT"));
}

TEST_F(GetTrace, OfAListWithAnUnknownNameIsARefusal)
{
    Load();

    EXPECT_EQ(GetList(L"Presse", L"Takt\0", 5), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(
        LinesOf("LogDeviceGetValueListBL"),
        ElementsAre("entry: >> LogDevice = Presse, Section = , ParameterList = Takt, paramListLength = 5",
                    "information: dwValue=300", "information: Enumerate the ParameterList", Refusal));
}

TEST_F(GetTrace, OfBadArgumentsAndWithoutTheDataFolder)
{
    store.TakeDataFolderAway();
    Load();

    EXPECT_EQ(Get(nullptr, L"Ort"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Get(L"Presse", L"Ort"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(GetEx(L"", L"Ndi", L"Ort"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetEx(L"Presse", L"Ndi", L"Ort"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(library().LogDeviceGetValueListBL(L"Presse", L"Ndi", nullptr, 0, buffer, nullptr),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceGetValueListBL(L"Presse", L"Ndi", nullptr, 0, buffer, &length),
              PGSP_ERR_FOLDER_NOT_FOUND);

    const std::string end = "exit: << return lRet = 8517";
    EXPECT_THAT(LinesOf("LogDeviceGetValueBL"),
                ElementsAre("entry: >> LogDevice = , Parameter = Ort", Refusal,
                            "entry: >> LogDevice = Presse, Parameter = Ort", NoFolder, end));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetValueExBL"),
                ElementsAre("entry: >> LogDevice = , Section = Ndi, Parameter = Ort", Refusal,
                            "entry: >> LogDevice = Presse, Section = Ndi, Parameter = Ort", NoFolder, end));
    const std::string entry =
        "entry: >> LogDevice = Presse, Section = Ndi, ParameterList = , paramListLength = 0";
    EXPECT_THAT(LinesOf("LogDeviceGetValueListBL"),
                ElementsAre(entry, Refusal, entry, "information: dwValue=300", NoFolder, end));
}

} // namespace
} // namespace norvepa::test

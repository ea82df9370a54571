#include "NdiTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class GetNdiTrace : public NdiTraceScene
{
protected:
    [[nodiscard]] std::int32_t Get(const wchar_t* device, const wchar_t* parameter)
    {
        return library().PGSP_LogDeviceGetNdiBL(device, parameter, value, &valueLength, 0);
    }

    // A text of 12 characters, "Pulp press 3", besides which nothing is called "DescText".
    void WriteDeviceWithText() const
    {
        CopyTree(FromUtf8(NORV_SAMPLE_RESOURCES), roots.program() + L"\\bin");
        store.WriteDevice(
            L"Presse",
            XmlContent().Element(L"UserInterface64", XmlContent().Resource({.name = L"DescText",
                                                                            .assembly = L"AuentalTexte.dll",
                                                                            .resourceId = L"1005"})));
    }

    // A buffer of this test's own, with something in it.
    wchar_t value[30] = L"before";
    std::uint32_t valueLength = 30;
};

TEST_F(GetNdiTrace, TellsAParameterWithItsLength)
{
    Load();

    EXPECT_EQ(Get(L"Presse", L"Ort"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Ort",
                            "exit: << return lRet = 0, Value = Halle, dwValue = 5"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetResourceStringBL"), IsEmpty());
}

TEST_F(GetNdiTrace, TellsALinkWithItsLengthAndAsksForNoText)
{
    Load();

    EXPECT_EQ(Get(L"Presse", L"PropSheet"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = PropSheet",
                            "exit: << return lRet = 0, Value = Seiten.dll,ShowPage, dwValue = 19"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetResourceStringBL"), IsEmpty());
}

TEST_F(GetNdiTrace, OfALinkThatDoesNotFitHasNoExit)
{
    Load();
    valueLength = 19;

    EXPECT_EQ(Get(L"Presse", L"PropSheet"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = PropSheet"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetResourceStringBL"), IsEmpty());
}

TEST_F(GetNdiTrace, OfAnEmptyLinkTellsAnEmptyValue)
{
    store.WriteDevice(
        L"Presse",
        XmlContent().Element(L"UserInterface64",
                             XmlContent().ParameterAssemblyLink(
                                 {.name = L"PropSheet", .assembly = L"", .path = L"", .function = L""})));
    Load();

    EXPECT_EQ(Get(L"Presse", L"PropSheet"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = PropSheet",
                            "exit: << return lRet = 0, Value = , dwValue = 0"));
}

TEST_F(GetNdiTrace, TellsATextBehindTheLinesOfItsOwnExport)
{
    WriteDeviceWithText();
    Load();

    EXPECT_EQ(Get(L"Presse", L"DescText"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = DescText",
                            "exit: << return lRet = 0, Value = Pulp press 3, dwValue = 12"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetResourceStringBL"),
                ElementsAre("entry: >> LogDevice = Presse", "exit: << return lRet = 0"));
}

TEST_F(GetNdiTrace, OfATextThatDoesNotFitTellsItsLength)
{
    WriteDeviceWithText();
    Load();
    valueLength = 12;

    EXPECT_EQ(Get(L"Presse", L"DescText"), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = DescText",
                            "exit: << return lRet = 234, Value = before, dwValue = 12"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetResourceStringBL"),
                ElementsAre("entry: >> LogDevice = Presse", "exit: << return lRet = 234"));
}

TEST_F(GetNdiTrace, OfAParameterThatDoesNotFitTellsThatNothingIsFoundBehindIt)
{
    Load();
    valueLength = 5;

    EXPECT_EQ(Get(L"Presse", L"Ort"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Ort",
                            "exit: << return lRet = 8513, Value = befor, dwValue = 5"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetResourceStringBL"),
                ElementsAre("entry: >> LogDevice = Presse", "exit: << return lRet = 8513"));
}

TEST_F(GetNdiTrace, OfATextWithoutTheProgramFolderTellsTheResultAlone)
{
    WriteDeviceWithText();
    store.TakeProgramFolderAway();
    Load();

    EXPECT_EQ(Get(L"Presse", L"DescText"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = DescText",
                            "exit: << return lRet = 8517, Value = before, dwValue = 30"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetResourceStringBL"),
                ElementsAre("entry: >> LogDevice = Presse", "exit: << return lRet = 8517"));
}

TEST_F(GetNdiTrace, OfAFailureTellsWhatStandsInTheBuffer)
{
    Load();

    EXPECT_EQ(Get(L"Presse", L"unknown"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = unknown",
                            "exit: << return lRet = 8513, Value = before, dwValue = 30"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetResourceStringBL"),
                ElementsAre("entry: >> LogDevice = Presse", "exit: << return lRet = 8513"));
}

TEST_F(GetNdiTrace, OfADeviceThatIsMissingAsksForNoText)
{
    Load();

    EXPECT_EQ(Get(L"gone", L"Ort"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetNdiBL"),
                ElementsAre("entry: >> LogDevice = gone, Parameter = Ort",
                            "exit: << return lRet = 8503, Value = before, dwValue = 30"));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetResourceStringBL"), IsEmpty());
}

TEST_F(GetNdiTrace, OfMissingArgumentsBeginsWithThem)
{
    Load();

    EXPECT_EQ(Get(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Get(L"Presse", L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().PGSP_LogDeviceGetNdiBL(L"Presse", L"Ort", nullptr, nullptr, 0),
              PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetNdiBL"),
                ElementsAre("entry: >> LogDevice = , Parameter = ", Refusal,
                            "entry: >> LogDevice = Presse, Parameter = ", Refusal,
                            "entry: >> LogDevice = Presse, Parameter = Ort", Refusal));
}

TEST_F(GetNdiTrace, WithoutTheDataFolderNamesIt)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(Get(L"Presse", L"Ort"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Ort", NoFolder,
                            "exit: << return lRet = 8517"));
}

} // namespace
} // namespace norvepa::test

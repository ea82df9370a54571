#include "NdiTraceScene.h"
#include "support/FreshThread.h"

namespace norvepa::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class SetNdiTrace : public NdiTraceScene
{
protected:
    [[nodiscard]] std::int32_t Set(const wchar_t* device, const wchar_t* parameter, const wchar_t* text) const
    {
        return library().PGSP_LogDeviceSetNdiBL(device, parameter, text, 0);
    }
};

TEST_F(SetNdiTrace, OfATextTellsThePartsOfItsLink)
{
    Load();

    EXPECT_EQ(Set(L"Presse", L"desctext", L"Texte.dll,7,8"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceSetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = desctext, Value = Texte.dll,7,8",
                            "information: Create Resource with Assembly = Texte.dll, Path = %commonpath%, "
                            "ResourceId = 7,8",
                            "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"), IsEmpty());
    EXPECT_THAT(LinesOf("SendNotificationBL"), ElementsAre("entry: >> SendNotificationBL"));
}

TEST_F(SetNdiTrace, OfABareNumberTellsNoParts)
{
    Load();

    EXPECT_EQ(Set(L"Presse", L"DescDefault", L"7"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceSetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = DescDefault, Value = 7",
                            "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"), IsEmpty());
}

TEST_F(SetNdiTrace, OfAPageTellsThePartsOfItsLink)
{
    Load();

    EXPECT_EQ(Set(L"Presse", L"Diagnosis", L"Seiten.dll,f,g"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceSetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Diagnosis, Value = Seiten.dll,f,g",
                            "information: Create ParameterAssemblyLink with Assembly = Seiten.dll, "
                            "Path = %commonpath%, Function = f,g",
                            "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"), IsEmpty());
}

TEST_F(SetNdiTrace, OfAPlainValueTellsTheTypeThatItIsGiven)
{
    Load();

    EXPECT_EQ(Set(L"Presse", L"hidden", L"true"), PGSP_OK);
    EXPECT_EQ(Set(L"Presse", L"PropSheet", L"TRUE"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceSetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = hidden, Value = true",
                            "information: Type not found. Using Type = bool", "exit: << return lRet = 0",
                            "entry: >> LogDevice = Presse, Parameter = PropSheet, Value = TRUE",
                            "information: Type not found. Using Type = string", "exit: << return lRet = 0"));
}

TEST_F(SetNdiTrace, SaysThatTheTypeIsNotFoundWhenItIsToo)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L"int"}}));
    Load();

    EXPECT_EQ(Set(L"Presse", L"Stufe", L"3"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceSetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Stufe, Value = 3",
                            "information: Type not found. Using Type = int", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"), Contains("exit: << return PGSP_OK, Constraint = int"));
}

TEST_F(SetNdiTrace, OfAnUnchangedValueIsThatOfASuccessWithoutANotification)
{
    Load();

    EXPECT_EQ(Set(L"Presse", L"Ort", L"Halle"), PGSP_OK);
    EXPECT_EQ(Set(L"Presse", L"PropSheet", L"Seiten.dll,ShowPage"), PGSP_OK);

    EXPECT_THAT(
        LinesOf("PGSP_LogDeviceSetNdiBL"),
        ElementsAre("entry: >> LogDevice = Presse, Parameter = Ort, Value = Halle",
                    "information: Type not found. Using Type = string", "exit: << return lRet = 0",
                    "entry: >> LogDevice = Presse, Parameter = PropSheet, Value = Seiten.dll,ShowPage",
                    "information: Create ParameterAssemblyLink with Assembly = Seiten.dll, "
                    "Path = %commonpath%, Function = ShowPage",
                    "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(SetNdiTrace, OfAFailureTellsItsCode)
{
    Load();

    EXPECT_EQ(Set(L"gone", L"DescText", L"7"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Set(L"Presse", L"Ort", L"<"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceSetNdiBL"),
                ElementsAre("entry: >> LogDevice = gone, Parameter = DescText, Value = 7",
                            "exit: << return lRet = 8503",
                            "entry: >> LogDevice = Presse, Parameter = Ort, Value = <",
                            "information: Type not found. Using Type = string", "exit: << return lRet = 87"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(SetNdiTrace, OfMissingArgumentsBeginsWithThem)
{
    Load();

    EXPECT_EQ(Set(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"Presse", L"DescText", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Set(L"Presse", L"", L"1"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceSetNdiBL"),
                ElementsAre("entry: >> LogDevice = , Parameter = , Value = ", Refusal,
                            "entry: >> LogDevice = Presse, Parameter = DescText, Value = ", Refusal,
                            "entry: >> LogDevice = Presse, Parameter = , Value = 1", Refusal));
}

TEST_F(SetNdiTrace, WithoutTheDataFolderNamesIt)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(Set(L"Presse", L"DescText", L"a,b"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Set(L"Presse", L"Ort", L"1"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceSetNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = DescText, Value = a,b", NoFolder,
                            "exit: << return lRet = 8517",
                            "entry: >> LogDevice = Presse, Parameter = Ort, Value = 1", NoFolder,
                            "exit: << return lRet = 8517"));
    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"), IsEmpty());
}

class DelNdiTrace : public NdiTraceScene
{
protected:
    [[nodiscard]] std::int32_t Del(const wchar_t* device, const wchar_t* parameter) const
    {
        return library().PGSP_LogDeviceDelNdiBL(device, parameter, 0);
    }
};

TEST_F(DelNdiTrace, TellsArgumentsAndResult)
{
    Load();

    EXPECT_EQ(Del(L"Presse", L"Ort"), PGSP_OK);
    EXPECT_EQ(Del(L"Presse", L"PropSheet"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceDelNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Ort", "exit: << return lRet = 0",
                            "entry: >> LogDevice = Presse, Parameter = PropSheet",
                            "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("NorvXMLValidateFile"),
                ElementsAre("entry: >> fileName = Presse(temp)", "entry: >> fileName = Presse(temp)"));
    EXPECT_THAT(LinesOf("SendNotificationBL"),
                ElementsAre("entry: >> SendNotificationBL", "entry: >> SendNotificationBL"));
}

TEST_F(DelNdiTrace, OfAFailureTellsTheCodeOfTheLastPlace)
{
    Load();

    EXPECT_EQ(Del(L"Presse", L"unknown"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Del(L"gone", L"Ort"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceDelNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = unknown",
                            "exit: << return lRet = 8513", "entry: >> LogDevice = gone, Parameter = Ort",
                            "exit: << return lRet = 8503"));
    EXPECT_THAT(LinesOf("NorvXMLValidateFile"), IsEmpty());
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(DelNdiTrace, OfAThreadWithoutComTellsThatEachOfThreePlacesFailed)
{
    Load();

    OnFreshThread([&] { EXPECT_EQ(Del(L"Presse", L"Ort"), PGSP_ERR_CANT_CREATE_XML_ENGINE); });

    EXPECT_THAT(LinesOf("PGSP_LogDeviceDelNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Ort", "exit: << return lRet = 8505"));
    EXPECT_THAT(LinesOf("NorvXMLDelValue"),
                ElementsAre("information: ERROR : CreateInstance", "information: ERROR : CreateInstance"));
    EXPECT_THAT(LinesOf("NorvXMLDelNdi"), ElementsAre("information: ERROR : CreateInstance"));
}

TEST_F(DelNdiTrace, OfARefusalBySchemaTellsItsCode)
{
    store.WriteDevice(L"Presse", XmlContent().Element(L"Ndi", XmlContent().Text(L"Ort", L"Halle")));
    Load();

    EXPECT_EQ(Del(L"Presse", L"Ort"), PGSP_ERR_INVALID_FILE);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceDelNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Ort", "exit: << return lRet = 8506"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(DelNdiTrace, OfMissingArgumentsBeginsWithThem)
{
    Load();

    EXPECT_EQ(Del(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Del(L"Presse", L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceDelNdiBL"),
                ElementsAre("entry: >> LogDevice = , Parameter = ", Refusal,
                            "entry: >> LogDevice = Presse, Parameter = ", Refusal));
}

TEST_F(DelNdiTrace, WithoutTheDataFolderNamesIt)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(Del(L"Presse", L"Ort"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceDelNdiBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Ort", NoFolder,
                            "exit: << return lRet = 8517"));
}

} // namespace
} // namespace norvepa::test

#include "LogNameTraceScene.h"
#include "support/DeviceStore.h"

namespace norvepa::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class SetDeviceTrace : public LogNameTraceScene
{
protected:
    SetDeviceTrace()
    {
        store.WriteDevice(
            L"Presse",
            XmlContent()
                .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1"))
                .Element(L"Bindings", XmlContent().Subdevice(L"Ventil", XmlContent().Text(L"Takt", L"1")))
                .Element(L"SpareSection", XmlContent().Text(L"Stufe", L"1")));
    }

    // The words that were looked up, in their order, with the parameter ahead of each.
    [[nodiscard]] std::vector<std::string> Lookups() const
    {
        const std::string begin = "entry: >> LogDevice = Presse, Parameter = ";
        std::vector<std::string> lookups;
        for (const std::string& line : LinesOf("LogDeviceGetConstraint"))
        {
            if (line.starts_with(begin))
            {
                lookups.push_back(line.substr(begin.size()));
            }
        }
        return lookups;
    }

    const DeviceStore store{roots};
};

TEST_F(SetDeviceTrace, TellsArgumentsAndResult)
{
    Load();

    EXPECT_EQ(library().LogDeviceSetValueBL(L"Presse", L"Stufe", L"\u00DCber 50%d"), PGSP_OK);

    EXPECT_THAT(
        LinesOf("LogDeviceSetValueBL"),
        ElementsAre("entry: >> LogDevice = Presse, Parameter = Stufe, Value = " + ToAnsi(L"\u00DCber 50%d"),
                    "information: No Subdevice", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), ElementsAre("entry: >> SendNotificationBL"));
}

TEST_F(SetDeviceTrace, OfAnUnchangedValueIsThatOfASuccessWithoutANotification)
{
    Load();

    EXPECT_EQ(library().LogDeviceSetValueBL(L"Presse", L"Stufe", L"1"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogDeviceSetValueBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Stufe, Value = 1",
                            "information: No Subdevice", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(SetDeviceTrace, OfASubdeviceNamesItInSmallLetters)
{
    Load();

    EXPECT_EQ(library().LogDeviceSetValueBL(L"PRESSE\\Subdevices\\VENTIL", L"Takt", L"2"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogDeviceSetValueBL"),
                ElementsAre("entry: >> LogDevice = PRESSE\\Subdevices\\VENTIL, Parameter = Takt, Value = 2",
                            "information: Subdevice found : ventil", "exit: << return lRet = 0"));
}

TEST_F(SetDeviceTrace, TellsTheArgumentsAsTheyCame)
{
    Load();

    EXPECT_EQ(library().LogDeviceSetValueBL(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceSetValueBL(L"", L"Stufe", L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceSetValueBL(L"gone", nullptr, L"1"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceSetValueBL"),
                ElementsAre("entry: >> LogDevice = , Parameter = , Value = ", Refusal,
                            "entry: >> LogDevice = , Parameter = Stufe, Value = 1", Refusal,
                            "entry: >> LogDevice = gone, Parameter = , Value = 1",
                            "information: No Subdevice", "exit: << return lRet = 8503"));
}

TEST_F(SetDeviceTrace, OfARootsAttributeSaysSoAndLooksNothingUp)
{
    Load();

    EXPECT_EQ(library().LogDeviceSetValueBL(L"Presse", L"cp_type", L"MPI"), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_THAT(
        LinesOf("LogDeviceSetValueBL"),
        ElementsAre("entry: >> LogDevice = Presse, Parameter = cp_type, Value = MPI",
                    "exit: << return PGSP_ERR_CANT_SET_VALUE, can't set CP_TYPE or DeviceID attribute"));
    EXPECT_THAT(LinesOf("LogDeviceCheckValue"), IsEmpty());
    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"), IsEmpty());
}

TEST_F(SetDeviceTrace, OfAValueThatIsRefusedEndsWithTheChecksCode)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L"bool"}}));
    Load();

    EXPECT_EQ(library().LogDeviceSetValueBL(L"Presse", L"Stufe", L"1"), PGSP_NOT_A_BOOL);

    EXPECT_THAT(LinesOf("LogDeviceSetValueBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Stufe, Value = 1",
                            "exit: << return lRet = 8052"));
    EXPECT_THAT(LinesOf("LogDeviceCheckValue"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Stufe, Value = 1",
                            "exit: << return PGSP_NOT_A_BOOL"));
}

TEST_F(SetDeviceTrace, LooksTypeMapAndSectionUpInThisOrder)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"type", L"string"}, {L"map", L"stage"}}));
    Load();

    EXPECT_EQ(library().LogDeviceSetValueBL(L"Presse", L"Stufe", L"1"), PGSP_OK);

    EXPECT_THAT(Lookups(), ElementsAre("Stufe, Constraint = type", "Stufe, Constraint = type",
                                       "Stufe, Constraint = map", "Stufe, Constraint = section"));
}

TEST_F(SetDeviceTrace, WithoutTheDataFolderGoesOnUnderTheCurrentOne)
{
    store.TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogDeviceSetValueBL(L"Presse", L"Stufe", L"2"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceSetValueBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Stufe, Value = 2",
                            "information: No Subdevice", "exit: << return lRet = 8503"));
    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"), Contains("exit: << return lRet = 8517"));
}

using DelDeviceTrace = SetDeviceTrace;

TEST_F(DelDeviceTrace, TellsArgumentsAndResult)
{
    Load();

    EXPECT_EQ(library().LogDeviceDelValueBL(L"Presse", L"Stufe"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogDeviceDelValueBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Stufe", "exit: << return lRet = 0"));
    EXPECT_THAT(Lookups(), ElementsAre("Stufe, Constraint = section"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), ElementsAre("entry: >> SendNotificationBL"));
}

TEST_F(DelDeviceTrace, OfAFailureTellsTheCodeOfTheStepThatFailed)
{
    store.WriteBoard(Catalogue().Parameter(L"Unit", {{L"section", L"DeviceHeader"}}));
    Load();

    EXPECT_EQ(library().LogDeviceDelValueBL(L"Presse", L"unknown"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(library().LogDeviceDelValueBL(L"Presse", L"Unit"), PGSP_ERR_INVALID_FILE);

    EXPECT_THAT(LinesOf("LogDeviceDelValueBL"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = unknown",
                            "exit: << return lRet = 8513", "entry: >> LogDevice = Presse, Parameter = Unit",
                            "exit: << return lRet = 8506"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(DelDeviceTrace, OfMissingArgumentsBeginsWithThem)
{
    Load();

    EXPECT_EQ(library().LogDeviceDelValueBL(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceDelValueBL(L"Presse", L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogDeviceDelValueBL"),
                ElementsAre("entry: >> LogDevice = , Parameter = ", Refusal,
                            "entry: >> LogDevice = Presse, Parameter = ", Refusal));
}

TEST_F(DelDeviceTrace, WithoutTheDataFolderNamesIt)
{
    store.TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogDeviceDelValueBL(L"Presse", L"Stufe"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceDelValueBL"), ElementsAre("entry: >> LogDevice = Presse, Parameter = Stufe",
                                                            NoFolder, "exit: << return lRet = 8517"));
    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"), IsEmpty());
}

} // namespace
} // namespace norvepa::test

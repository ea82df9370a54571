#include "ServiceTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::StartsWith;

class ConstraintTrace : public ServiceTraceScene
{
protected:
    // Looks "min" of "Stufe" up; what it says isn't looked at.
    static void Ask(const wchar_t* logDevice = L"Presse")
    {
        std::wstring value;
        static_cast<void>(LogDeviceGetConstraint(logDevice, L"Stufe", L"min", &value));
    }

    // A program folder with nothing in it, of a name so short that both files' names fit into a line.
    static void UseShortProgramFolder() { SetMachineText(LocationsKey, L"Corvane_Oam", L"P:\\none"); }

    [[nodiscard]] static std::string NoBoard(const std::string& id, const std::string& protocol)
    {
        return "information: Constraint not found (Ret=0x213c) in the Boardfile=P:\\none\\meta\\Boards\\"
               "Automation-OnlineAccess-BT-" +
               id + " searching Protocol=P:\\none\\meta\\Protocols\\Automation-OnlineAccess-PT-" + protocol;
    }

    const std::string entry = "entry: >> LogDevice = Presse, Parameter = Stufe, Constraint = min";
    const std::string attributes = "information: GetAttribute:   DeviceID=AFK110   NetType=MPI";
};

TEST_F(ConstraintTrace, OfTheBoardsWordTellsTheDeviceAndTheWord)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"min", L"1"}}));
    Trace();

    Ask();

    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"),
                ElementsAre(entry, attributes, "exit: << return PGSP_OK, Constraint = 1"));
}

TEST_F(ConstraintTrace, OfTheProtocolsWordTellsWhyTheBoardHadNone)
{
    store.WriteBoard(Catalogue());
    store.WriteProtocol(Catalogue().Parameter(L"Stufe", {{L"min", L"2"}}));
    Trace();

    Ask();

    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"),
                ElementsAre(entry, attributes,
                            StartsWith("information: Constraint not found (Ret=0x2141) in the Boardfile="),
                            "exit: << return PGSP_OK, Constraint = 2"));
}

TEST_F(ConstraintTrace, OfWhatNobodyKnowsEndsSo)
{
    UseShortProgramFolder();
    Trace();

    Ask();

    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"),
                ElementsAre(entry, attributes, NoBoard("AFK110", "MPI"), NotFound));
}

TEST_F(ConstraintTrace, TellsTheStarOfADeviceAndDropsItFromTheFile)
{
    UseShortProgramFolder();
    store.WriteDevice(L"Presse", {}, L"*KQZA010", L"L2");
    Trace();

    Ask();

    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"),
                ElementsAre(entry, "information: GetAttribute:   DeviceID=*KQZA010   NetType=L2",
                            NoBoard("KQZA010", "L2"), NotFound));
}

TEST_F(ConstraintTrace, OfADeviceThatIsMissingHasEmptyNames)
{
    UseShortProgramFolder();
    Trace();

    Ask(L"gone");

    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"),
                ElementsAre("entry: >> LogDevice = gone, Parameter = Stufe, Constraint = min",
                            "information: GetAttribute:   DeviceID=   NetType=", NoBoard("", ""), NotFound));
}

TEST_F(ConstraintTrace, OfMissingArgumentsBeginsWithThem)
{
    Trace();

    EXPECT_EQ(LogDeviceGetConstraint(nullptr, L"", nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"),
                ElementsAre("entry: >> LogDevice = , Parameter = , Constraint = ", Refusal));
}

TEST_F(ConstraintTrace, NamesTheFolderThatIsMissing)
{
    Trace();

    store.TakeProgramFolderAway();
    Ask();
    store.TakeDataFolderAway();
    Ask();

    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"),
                ElementsAre(entry, NoProgramFolder, "exit: << return lRet = 0", entry, NoDataFolder,
                            "exit: << return lRet = 8517"));
}

TEST_F(ConstraintTrace, IsThatOfTheServicesComponent)
{
    Trace();

    EXPECT_EQ(LogDeviceGetConstraint(L"Presse", L"Stufe", L"min", nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(Lines(), ElementsAre("S NvEPBL64 FA  BL          LogDeviceGetConstraint:  >> LogDevice = "
                                     "Presse, Parameter = Stufe, Constraint = min",
                                     "S NvEPBL64 FE  BL  0  0000 LogDeviceGetConstraint:  << return "
                                     "PGSP_ERR_INVALID_PARAMETERS"));
}

class ConstraintListTrace : public ServiceTraceScene
{
protected:
    static void Ask(const wchar_t* parameter, const wchar_t* value)
    {
        static_cast<void>(LogDeviceCheckConstraintList(L"Presse", parameter, value));
    }

    // Between the entry and the exit of a check that meets both folders.
    void ExpectLines(const std::string& entry, const std::string& exit) const
    {
        EXPECT_THAT(LinesOf("LogDeviceCheckConstraintList"),
                    ElementsAre(entry, "information: GetAttribute:   DeviceID=AFK110   NetType=MPI", exit));
    }
};

TEST_F(ConstraintListTrace, OfAValueThatIsListedTellsIt)
{
    store.WriteBoard(
        Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}, XmlContent().ValueCollection({L"9600/x"})));
    Trace();

    Ask(L"baudrate", L"9600");

    ExpectLines("entry: >> LogDevice = Presse, Parameter = baudrate, ValueToCheck = 9600",
                "exit: << return PGSP_OK, Constraint = 9600");
}

TEST_F(ConstraintListTrace, OfAValueThatIsNotListedEndsWithTheCode)
{
    store.WriteProtocol(
        Catalogue().Parameter(L"l4_timeout", {{L"type", L"int"}}, XmlContent().ValueCollection({L"500"})));
    Trace();

    Ask(L"L4_TIMEOUT", L"9600");

    ExpectLines("entry: >> LogDevice = Presse, Parameter = L4_TIMEOUT, ValueToCheck = 9600",
                "exit: << return 0x1f72");
}

TEST_F(ConstraintListTrace, OfWhatNoFileDefinesEndsSo)
{
    Trace();

    Ask(L"l4_timeout", L"500");

    ExpectLines("entry: >> LogDevice = Presse, Parameter = l4_timeout, ValueToCheck = 500",
                "exit: << return PGSP_OK, no Constraints found");
}

TEST_F(ConstraintListTrace, OfAnotherParameterIsThatOfASuccess)
{
    Trace();

    Ask(L"Stufe", L"1");

    ExpectLines("entry: >> LogDevice = Presse, Parameter = Stufe, ValueToCheck = 1",
                "exit: << return PGSP_OK, Constraint = 1");
}

TEST_F(ConstraintListTrace, OfMissingArgumentsBeginsWithThem)
{
    Trace();

    Ask(L"baudrate", L"");

    EXPECT_THAT(LinesOf("LogDeviceCheckConstraintList"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = baudrate, ValueToCheck = ", Refusal));
}

TEST_F(ConstraintListTrace, NamesTheFolderThatIsMissing)
{
    Trace();

    store.TakeProgramFolderAway();
    Ask(L"baudrate", L"1");
    store.TakeDataFolderAway();
    Ask(L"baudrate", L"1");

    const std::string entry = "entry: >> LogDevice = Presse, Parameter = baudrate, ValueToCheck = 1";
    EXPECT_THAT(LinesOf("LogDeviceCheckConstraintList"),
                ElementsAre(entry, NoProgramFolder, "exit: << return lRet = 0", entry, NoDataFolder,
                            "exit: << return lRet = 8517"));
}

} // namespace
} // namespace norvepa::test

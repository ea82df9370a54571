#include "ProfileTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

// A change of the speed, and what it leads to.
class BusparamsTrace : public ProfileTraceScene
{
protected:
    [[nodiscard]] std::int32_t SetSpeed(const wchar_t* speed) const
    {
        return library().LogDeviceSetBusparamsBL(L"Presse", speed);
    }

    [[nodiscard]] std::vector<std::string> Lines() const
    {
        return LinesTaggedAnyOf({"LogDeviceSetBusparamsBL: ", "PGSP_LogDeviceEnumSetProfileBL: ",
                                 "PGSP_LogDeviceSetProfileRBL: ", "LogDeviceSetValueBL: "});
    }

    static std::string Set(const std::string& parameter, const std::string& value)
    {
        return "entry: >> LogDevice = Presse, Parameter = " + parameter + ", Value = " + value;
    }
};

TEST_F(BusparamsTrace, TellsTheSetTheProfileAndTheResults)
{
    WriteDevice(L"1200", L"1");
    Load();

    EXPECT_EQ(SetSpeed(L"9600"), PGSP_OK);

    std::vector<std::string> lines{"entry: >> LogDevice = Presse, Value = 9600", Set("baudrate", "9600")};
    AddSet(lines, "baudrate", "9600");
    lines.insert(lines.end(),
                 {"entry: >> LogDevice = Presse, Profile = P, Parameter = baudrate", OfTheValueItself,
                  AskForTheCollection, "information: while NorvXMLEnumProfileValue"});
    AddSet(lines, "slot", "9");
    AddSet(lines, "gap", "8");
    lines.insert(lines.end(),
                 {"exit: << return PGSP_OK", "exit: << return lRet = 0", "exit: << return lRet = 0"});
    EXPECT_THAT(Lines(), ElementsAreArray(lines));
}

TEST_F(BusparamsTrace, OfAFailureTellsTheWayBack)
{
    WriteDevice(L"9600", L"1");
    Load();

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_PROFILE_NO_VALUE);

    std::vector<std::string> lines{"entry: >> LogDevice = Presse, Value = 19200", Set("baudrate", "19200")};
    AddSet(lines, "baudrate", "19200");
    lines.insert(lines.end(), {"entry: >> LogDevice = Presse, Profile = P, Parameter = baudrate",
                               OfTheValueItself, AskForTheCollection, NoValue});
    AddSet(lines, "baudrate", "9600");
    lines.insert(lines.end(), {NoValue, "exit: << return lRet = 8062"});
    EXPECT_THAT(Lines(), ElementsAreArray(lines));
}

TEST_F(BusparamsTrace, OfAPairThatIsRefusedTellsTheRefusalAndTheWayBack)
{
    WriteDevice(L"9600", L"1");
    Load();

    EXPECT_EQ(SetSpeed(L"1200"), PGSP_PROFILE_NO_VALUE);

    std::vector<std::string> lines{"entry: >> LogDevice = Presse, Value = 1200", Set("baudrate", "1200")};
    AddSet(lines, "baudrate", "1200");
    lines.insert(lines.end(),
                 {"entry: >> LogDevice = Presse, Profile = P, Parameter = baudrate", OfTheValueItself,
                  AskForTheCollection, "information: while NorvXMLEnumProfileValue", Set("CP_TYPE", "1"),
                  "exit: << return PGSP_ERR_CANT_SET_VALUE, can't set CP_TYPE or DeviceID attribute",
                  NoValue});
    AddSet(lines, "baudrate", "9600");
    lines.insert(lines.end(), {NoValue, "exit: << return lRet = 8062"});
    EXPECT_THAT(Lines(), ElementsAreArray(lines));
}

TEST_F(BusparamsTrace, OfL2TellsNoSetOfTheSpeedButOfItsProfile)
{
    WriteDevice(L"1200", L"1", L"L2");
    Load();

    EXPECT_EQ(SetSpeed(L"9600"), PGSP_OK);

    std::vector<std::string> lines{"entry: >> LogDevice = Presse, Value = 9600", Set("busparam", "1")};
    AddSet(lines, "busparam", "1");
    lines.insert(lines.end(),
                 {"entry: >> LogDevice = Presse, Profile = L2, Parameter = busparam", OfAnotherParameter,
                  AskForTheCollection, "information: while NorvXMLEnumSubProfile",
                  "information: while NorvXMLEnumSubProfileValue"});
    AddSet(lines, "slot", "9");
    AddSet(lines, "gap", "8");
    lines.insert(lines.end(),
                 {"exit: << return PGSP_OK", "exit: << return lRet = 0", "exit: << return lRet = 0"});
    EXPECT_THAT(Lines(), ElementsAreArray(lines));
}

TEST_F(BusparamsTrace, OfMpiEndsWithTheSetOfWhatIsDerived)
{
    WriteDevice(L"1200", L"1", L"MPI");
    Load();

    EXPECT_EQ(SetSpeed(L"9600"), PGSP_OK);

    std::vector<std::string> lines = Lines();
    ASSERT_GE(lines.size(), 6U);
    lines.erase(lines.begin(), lines.end() - 6);
    std::vector<std::string> end{"exit: << return PGSP_OK", "exit: << return lRet = 0"};
    AddSet(end, "ttr", "134");
    end.push_back("exit: << return lRet = 0");
    EXPECT_THAT(lines, ElementsAreArray(end));
}

TEST_F(BusparamsTrace, OfL2WithTheUsersOwnProfileIsItsOwnAlone)
{
    WriteDevice(L"1200", L"3", L"L2");
    Load();

    EXPECT_EQ(SetSpeed(L"9600"), PGSP_OK);

    EXPECT_THAT(Lines(),
                ElementsAre("entry: >> LogDevice = Presse, Value = 9600", "exit: << return lRet = 0"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(BusparamsTrace, OfL2TellsTheWayBackOfItsProfileAndNotOfTheSpeed)
{
    WriteDevice(L"9600", L"1", L"L2");
    Load();

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_PROFILE_NO_VALUE);

    std::vector<std::string> lines{"entry: >> LogDevice = Presse, Value = 19200", Set("busparam", "1")};
    AddSet(lines, "busparam", "1");
    lines.insert(lines.end(),
                 {"entry: >> LogDevice = Presse, Profile = L2, Parameter = busparam", OfAnotherParameter,
                  AskForTheCollection, "information: while NorvXMLEnumSubProfile", NoValue});
    AddSet(lines, "busparam", "1");
    lines.insert(lines.end(), {NoValue, "exit: << return lRet = 8062"});
    EXPECT_THAT(Lines(), ElementsAreArray(lines));
}

TEST_F(BusparamsTrace, OfL2WithASpeedThatIsNoNumberIsItsOwnAlone)
{
    WriteDevice(L"9600", L"1", L"L2");
    Load();

    EXPECT_EQ(SetSpeed(L"fast"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(Lines(),
                ElementsAre("entry: >> LogDevice = Presse, Value = fast", "exit: << return lRet = 87"));
}

// That the value derived is refused is told, and then that the speed is set.
TEST_F(BusparamsTrace, OfMpiTellsARefusalOfWhatIsDerivedAndSucceeds)
{
    WriteBytes(
        roots.board(L"X"),
        BoardFile(
            Catalogue().Parameter(L"ttr", {{L"type", L"int"}, {L"min", L"0"}, {L"max", L"133"}}).content()));
    WriteDevice(L"1200", L"1", L"MPI");
    Load();

    EXPECT_EQ(SetSpeed(L"9600"), PGSP_OK);

    std::vector<std::string> lines = Lines();
    ASSERT_GE(lines.size(), 5U);
    lines.erase(lines.begin(), lines.end() - 5);
    EXPECT_THAT(lines, ElementsAre("exit: << return PGSP_OK", "exit: << return lRet = 0", Set("ttr", "134"),
                                   "exit: << return lRet = 8056", "exit: << return lRet = 0"));
}

// It isn't the speed's own failure: without the folder the read of the protocol is none.
TEST_F(BusparamsTrace, WithoutTheDataFolderIsThatOfADeviceWithoutASpeed)
{
    WriteDevice(L"9600", L"1", L"L2");
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(Lines(),
                ElementsAre("entry: >> LogDevice = Presse, Value = 19200", Set("baudrate", "19200"),
                            "exit: << return PGSP_ERR_PARAM_NOT_FOUND", "exit: << return lRet = 8513"));
}

TEST_F(BusparamsTrace, OfADeviceWithoutASpeedSaysThatItIsNotFound)
{
    store.WriteDevice(L"Presse", {}, L"X", L"P");
    Load();

    EXPECT_EQ(SetSpeed(L"9600"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(Lines(),
                ElementsAre("entry: >> LogDevice = Presse, Value = 9600", Set("baudrate", "9600"),
                            "exit: << return PGSP_ERR_PARAM_NOT_FOUND", "exit: << return lRet = 8513"));
}

TEST_F(BusparamsTrace, OfADeviceThatIsNotThereTellsTheReadsCode)
{
    Load();

    EXPECT_EQ(SetSpeed(L"9600"), PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND);

    EXPECT_THAT(Lines(),
                ElementsAre("entry: >> LogDevice = Presse, Value = 9600", "exit: << return lRet = 8046"));
}

TEST_F(BusparamsTrace, OfMissingArgumentsBeginsWithThem)
{
    Load();

    EXPECT_EQ(library().LogDeviceSetBusparamsBL(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetSpeed(nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(Lines(), ElementsAre("entry: >> LogDevice = , Value = ", Refusal,
                                     "entry: >> LogDevice = Presse, Value = ", Refusal));
}

} // namespace
} // namespace norvepa::test

#include "ProfileTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::ElementsAreArray;

class SetProfileTrace : public ProfileTraceScene
{
protected:
    [[nodiscard]] std::int32_t SetProfile(const wchar_t* parameter) const
    {
        return library().PGSP_LogDeviceSetProfileRBL(L"Presse", L"P", parameter);
    }

    [[nodiscard]] std::vector<std::string> Lines() const
    {
        return LinesTaggedAnyOf({"PGSP_LogDeviceSetProfileRBL: ", "LogDeviceSetValueBL: "});
    }

    const std::string entry = "entry: >> LogDevice = Presse, Profile = P, Parameter = ";
};

TEST_F(SetProfileTrace, OfASpeedTellsTheStepsToItsPairs)
{
    WriteDevice(L"9600", L"1");
    Load();

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);

    std::vector<std::string> lines{entry + "baudrate", OfTheValueItself, AskForTheCollection,
                                   "information: while NorvXMLEnumProfileValue"};
    AddSet(lines, "slot", "9");
    AddSet(lines, "gap", "8");
    lines.push_back("exit: << return PGSP_OK");
    EXPECT_THAT(Lines(), ElementsAreArray(lines));
}

TEST_F(SetProfileTrace, OfAProfileTellsTheStepsToAnotherParametersPairs)
{
    WriteDevice(L"9600", L"1");
    Load();

    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);

    std::vector<std::string> lines{entry + "busparam", OfAnotherParameter, AskForTheCollection,
                                   "information: while NorvXMLEnumSubProfile",
                                   "information: while NorvXMLEnumSubProfileValue"};
    AddSet(lines, "slot", "9");
    AddSet(lines, "gap", "8");
    lines.push_back("exit: << return PGSP_OK");
    EXPECT_THAT(Lines(), ElementsAreArray(lines));
}

TEST_F(SetProfileTrace, OfAProfileWithoutTheSpeedEndsAheadOfItsPairs)
{
    WriteDevice(L"19200", L"1");
    Load();

    EXPECT_EQ(SetProfile(L"busparam"), PGSP_PROFILE_NO_VALUE);

    EXPECT_THAT(Lines(), ElementsAre(entry + "busparam", OfAnotherParameter, AskForTheCollection,
                                     "information: while NorvXMLEnumSubProfile", NoValue));
}

TEST_F(SetProfileTrace, OfTheUsersOwnProfileIsThatOfASpeed)
{
    WriteDevice(L"9600", L"3");
    Load();

    EXPECT_EQ(SetProfile(L"busparam"), PGSP_PROFILE_NO_VALUE);

    EXPECT_THAT(Lines(), ElementsAre(entry + "busparam", OfTheValueItself, AskForTheCollection,
                                     "information: while NorvXMLEnumProfileValue", NoValue));
}

TEST_F(SetProfileTrace, OfAValueThatIsInNoCollectionEndsThere)
{
    WriteDevice(L"19200", L"7");
    Load();

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_PROFILE_NO_VALUE);
    EXPECT_EQ(SetProfile(L"busparam"), PGSP_PROFILE_NO_VALUE);

    EXPECT_THAT(Lines(), ElementsAre(entry + "baudrate", OfTheValueItself, AskForTheCollection, NoValue,
                                     entry + "busparam", OfAnotherParameter, AskForTheCollection, NoValue));
}

TEST_F(SetProfileTrace, OfAnyOtherParameterTellsNoSteps)
{
    store.WriteDevice(L"Presse", XmlContent().Element(L"SpareSection", XmlContent().Text(L"a", L"1")), L"X",
                      L"P");
    Load();

    EXPECT_EQ(SetProfile(L"a"), PGSP_PROFILE_NO_VALUE);
    EXPECT_EQ(SetProfile(L"gone"), PGSP_PROFILE_NO_VALUE);

    EXPECT_THAT(Lines(), ElementsAre(entry + "a", NoValue, entry + "gone", NoValue));
}

TEST_F(SetProfileTrace, OfMissingArgumentsBeginsWithThem)
{
    Load();

    EXPECT_EQ(library().PGSP_LogDeviceSetProfileRBL(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().PGSP_LogDeviceSetProfileRBL(L"", L"", L""), PGSP_PROFILE_NO_VALUE);

    EXPECT_THAT(Lines(), ElementsAre("entry: >> LogDevice = , Profile = , Parameter = ", Refusal,
                                     "entry: >> LogDevice = , Profile = , Parameter = ", NoValue));
}

TEST_F(SetProfileTrace, WithoutTheProgramFolderNamesIt)
{
    store.WriteDevice(L"Presse", XmlContent().Element(L"SpareSection", XmlContent().Text(L"a", L"1")), L"X",
                      L"P");
    TakeProgramFolderAway();
    Load();

    EXPECT_EQ(SetProfile(L"a"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(Lines(), ElementsAre(entry + "a", NoProgramFolder, FolderNotFound));
}

} // namespace
} // namespace norvepa::test

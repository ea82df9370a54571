#include "CatalogueTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class ProtocolTrace : public CatalogueTraceScene
{
protected:
    [[nodiscard]] std::int32_t EnumValue(const wchar_t* parameter, const wchar_t* profile,
                                         const wchar_t* subParam, const wchar_t* subValue)
    {
        length = 20;
        valueLength = 20;
        return library().PGSP_ProtocolGetEnumValueBL(L"X", parameter, profile, subParam, subValue, 0, buffer,
                                                     &length, value, &valueLength);
    }

    [[nodiscard]] std::int32_t Value(const wchar_t* parameter, const wchar_t* of, const wchar_t* subParam,
                                     const wchar_t* subValue, const wchar_t* attribute)
    {
        length = 20;
        return library().PGSP_ProtocolGetValueBL(L"X", parameter, of, subParam, subValue, attribute, buffer,
                                                 &length);
    }

    [[nodiscard]] std::int32_t ValueRaw(const wchar_t* path, const wchar_t* attribute)
    {
        return library().PGSP_ProtocolGetValueRawBL(L"X", path, attribute, buffer, &length);
    }

    [[nodiscard]] std::int32_t Baudrate(const wchar_t* profile)
    {
        return library().PGSP_ProtocolGetEnumBaudrateBL(L"X", profile, 0, buffer, &length);
    }

    wchar_t value[20] = L"before";
    std::uint32_t valueLength = 20;
};

TEST_F(ProtocolTrace, OfAnEnumerationTellsWhichOneIsTaken)
{
    Load();

    EXPECT_EQ(EnumValue(nullptr, L"a", L"b", L"c"), PGSP_OK);
    EXPECT_EQ(EnumValue(L"busparam", L"", L"b", L"c"), PGSP_OK);
    EXPECT_EQ(EnumValue(L"busparam", L"User", nullptr, L"c"), PGSP_OK);
    EXPECT_EQ(EnumValue(L"busparam", L"user", L"baudrate", L"9600"), PGSP_OK);

    EXPECT_THAT(
        LinesOf("PGSP_ProtocolGetEnumValueBL"),
        ElementsAre(
            "entry: >> Protocol = X, index = 0, Parameter = , Profile = a, SubParam = b, SubValue = c",
            "information: calling NorvXMLEnumProtocolValue",
            "information: Parameter = busparam, parLen = 8, Value = 3, valLen = 1",
            "exit: << return lRet = 0",
            "entry: >> Protocol = X, index = 0, Parameter = busparam, Profile = , SubParam = b, SubValue = c",
            "information: calling NorvXMLEnumProtocolParameter",
            "information: Parameter = default, parLen = 7, Value = 3, valLen = 1", "exit: << return lRet = 0",
            "entry: >> Protocol = X, index = 0, Parameter = busparam, Profile = User, SubParam = , "
            "SubValue = c",
            "information: calling NorvXMLEnumProfileValue",
            "information: Parameter = slot, parLen = 4, Value = 103, valLen = 3", "exit: << return lRet = 0",
            "entry: >> Protocol = X, index = 0, Parameter = busparam, Profile = user, SubParam = baudrate, "
            "SubValue = 9600",
            "information: calling NorvXMLEnumSubProfileValue",
            "information: Parameter = slot, parLen = 4, Value = 9, valLen = 1", "exit: << return lRet = 0"));
}

TEST_F(ProtocolTrace, OfAnEnumerationThatFailsTellsNoPair)
{
    Load();

    EXPECT_EQ(EnumValue(L"gone", nullptr, nullptr, nullptr), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_ProtocolGetEnumValueBL"),
                ElementsAre("entry: >> Protocol = X, index = 0, Parameter = gone, Profile = , SubParam = , "
                            "SubValue = ",
                            "information: calling NorvXMLEnumProtocolParameter",
                            "exit: << return lRet = 8513"));
}

TEST_F(ProtocolTrace, OfABusProfileTellsItAlsoWhenItFails)
{
    Load();
    EXPECT_EQ(library().PGSP_ProtocolGetEnumBusprofilesBL(L"X", 0, buffer, &length), PGSP_OK);
    length = 20;
    EXPECT_EQ(library().PGSP_ProtocolGetEnumBusprofilesBL(L"X", 1, buffer, &length), 259);

    EXPECT_THAT(LinesOf("PGSP_ProtocolGetEnumBusprofilesBL"),
                ElementsAre("entry: >> ProtocolFile = X, index = 0",
                            "information: Busprofile = 3/User, BusprofileLen = 6", "exit: << return lRet = 0",
                            "entry: >> ProtocolFile = X, index = 1",
                            "information: Busprofile = , BusprofileLen = 20", "exit: << return lRet = 259"));
}

TEST_F(ProtocolTrace, OfABusProfileThatDoesNotFitNamesTheResult)
{
    Load();
    length = 6;

    EXPECT_EQ(library().PGSP_ProtocolGetEnumBusprofilesBL(L"X", 0, buffer, &length), 234);

    EXPECT_THAT(LinesOf("PGSP_ProtocolGetEnumBusprofilesBL"),
                ElementsAre("entry: >> ProtocolFile = X, index = 0",
                            "information: Busprofile = 3/User, BusprofileLen = 6",
                            "exit: << return PGSP_ERR_BUFFER_TOO_SHORT"));
}

TEST_F(ProtocolTrace, OfABaudRateTellsWhetherThereIsAProfile)
{
    Load();
    EXPECT_EQ(Baudrate(L""), PGSP_OK);
    length = 20;
    EXPECT_EQ(Baudrate(L"3"), PGSP_OK);

    EXPECT_THAT(LinesOf("PGSP_ProtocolGetEnumBaudrateBL"),
                ElementsAre("entry: >> ProtocolFile = X, index = 0", "information: no Profile, index = 0",
                            "information: Baudrate = 9600, BaudrateLen = 4", "exit: << return lRet = 0",
                            "entry: >> ProtocolFile = X, index = 0", "information: Profile = 3, index = 0",
                            "information: Baudrate = 9600, BaudrateLen = 4", "exit: << return lRet = 0"));
}

TEST_F(ProtocolTrace, OfABaudRateThatDoesNotFitTellsTheNumberOfTheResult)
{
    Load();
    length = 4;

    EXPECT_EQ(Baudrate(nullptr), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(LinesOf("PGSP_ProtocolGetEnumBaudrateBL").back(), "exit: << return lRet = 234");
}

TEST_F(ProtocolTrace, OfAValueTellsWhichOneIsTakenUnlessItIsTheRoots)
{
    Load();

    EXPECT_EQ(Value(L"a", L"b", L"c", L"d", L"CP_TYPE"), PGSP_OK);
    EXPECT_EQ(Value(L"busparam", nullptr, nullptr, nullptr, L"default"), PGSP_OK);
    EXPECT_EQ(Value(L"busparam", L"User", L"c", nullptr, L"slot"), PGSP_OK);
    EXPECT_EQ(Value(L"busparam", L"User", L"baudrate", L"9600", L"slot"), PGSP_OK);

    EXPECT_THAT(
        LinesOf("PGSP_ProtocolGetValueBL"),
        ElementsAre("entry: >> CPType = X, Parameter = a, Value = b, SubParam = c, SubValue = d",
                    "information: Value = MPI, dwValue = 3", "exit: << return lRet = 0",
                    "entry: >> CPType = X, Parameter = busparam, Value = , SubParam = , SubValue = ",
                    "information: ProtocolGetValue", "information: Value = 3, dwValue = 1",
                    "exit: << return lRet = 0",
                    "entry: >> CPType = X, Parameter = busparam, Value = User, SubParam = c, SubValue = ",
                    "information: ProfileGetValue", "information: Value = 103, dwValue = 3",
                    "exit: << return lRet = 0",
                    "entry: >> CPType = X, Parameter = busparam, Value = User, SubParam = baudrate, "
                    "SubValue = 9600",
                    "information: SubProfileGetValue", "information: Value = 9, dwValue = 1",
                    "exit: << return lRet = 0"));
}

TEST_F(ProtocolTrace, OfAValueThatIsNotThereTellsTheBufferNoFurtherThanItGoes)
{
    Load();
    length = 3;

    EXPECT_EQ(
        library().PGSP_ProtocolGetValueBL(L"X", nullptr, nullptr, nullptr, nullptr, nullptr, buffer, &length),
        PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_ProtocolGetValueBL"),
                ElementsAre("entry: >> CPType = X, Parameter = , Value = , SubParam = , SubValue = ",
                            "information: ProtocolGetValue", "information: Value = bef, dwValue = 3",
                            "exit: << return lRet = 8513"));
}

TEST_F(ProtocolTrace, OfAValueByPathTellsTheWayAndTheValueOfASuccessAlone)
{
    Load();

    EXPECT_EQ(ValueRaw(L"Constraints\\busparam\\3", L"slot"), PGSP_OK);
    EXPECT_EQ(ValueRaw(L"Constraints\\busparam\\3", L"slot"), PGSP_ERR_BUFFER_TOO_SHORT);
    length = 20;
    EXPECT_EQ(ValueRaw(nullptr, L"CP_TYPE"), PGSP_OK);
    EXPECT_EQ(ValueRaw(L"", nullptr), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(
        LinesOf("PGSP_ProtocolGetValueRawBL"),
        ElementsAre("entry: >> CPType = X, ParameterPath = Constraints\\busparam\\3",
                    "information: -> NorvXMLProtocolGetValueRaw", "information: Value = 103, dwValue = 3",
                    "exit: << return lRet = 0",
                    "entry: >> CPType = X, ParameterPath = Constraints\\busparam\\3",
                    "information: -> NorvXMLProtocolGetValueRaw", "exit: << return lRet = 234",
                    "entry: >> CPType = X, ParameterPath = ", "information: -> NorvXMLElementGetAttribute",
                    "information: Value = MPI, dwValue = 3", "exit: << return lRet = 0",
                    "entry: >> CPType = X, ParameterPath = ", "information: -> NorvXMLElementGetAttribute",
                    "exit: << return lRet = 8513"));
}

TEST_F(ProtocolTrace, OfBadArgumentsStillBeginsWithTheEntry)
{
    Load();

    EXPECT_EQ(library().PGSP_ProtocolGetEnumValueBL(nullptr, L"a", L"b", L"c", L"d", 7, buffer, &length,
                                                    value, &valueLength),
              87);
    EXPECT_EQ(library().PGSP_ProtocolGetEnumBusprofilesBL(L"", 7, buffer, &length), 87);
    EXPECT_EQ(library().PGSP_ProtocolGetEnumBaudrateBL(L"X", L"3", 7, nullptr, &length), 87);
    EXPECT_EQ(library().PGSP_ProtocolGetValueBL(L"X", L"a", L"b", L"c", L"d", L"e", buffer, nullptr), 87);
    EXPECT_EQ(library().PGSP_ProtocolGetValueRawBL(nullptr, nullptr, nullptr, buffer, &length), 87);

    EXPECT_THAT(
        LinesOf("PGSP_ProtocolGetEnumValueBL"),
        ElementsAre(
            "entry: >> Protocol = , index = 7, Parameter = a, Profile = b, SubParam = c, SubValue = d",
            Refusal));
    EXPECT_THAT(LinesOf("PGSP_ProtocolGetEnumBusprofilesBL"),
                ElementsAre("entry: >> ProtocolFile = , index = 7", Refusal));
    EXPECT_THAT(LinesOf("PGSP_ProtocolGetEnumBaudrateBL"),
                ElementsAre("entry: >> ProtocolFile = X, index = 7", Refusal));
    EXPECT_THAT(
        LinesOf("PGSP_ProtocolGetValueBL"),
        ElementsAre("entry: >> CPType = X, Parameter = a, Value = b, SubParam = c, SubValue = d", Refusal));
    EXPECT_THAT(LinesOf("PGSP_ProtocolGetValueRawBL"),
                ElementsAre("entry: >> CPType = , ParameterPath = ", Refusal));
}

TEST_F(ProtocolTrace, OfAMissingProgramFolderNamesIt)
{
    TakeProgramFolderAway();
    Load();

    EXPECT_EQ(EnumValue(nullptr, nullptr, nullptr, nullptr), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(library().PGSP_ProtocolGetEnumBusprofilesBL(L"X", 0, buffer, &length), 8517);
    EXPECT_EQ(Baudrate(nullptr), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Value(nullptr, nullptr, nullptr, nullptr, nullptr), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(ValueRaw(nullptr, nullptr), PGSP_ERR_FOLDER_NOT_FOUND);

    for (const char* const operation :
         {"PGSP_ProtocolGetEnumValueBL", "PGSP_ProtocolGetEnumBusprofilesBL",
          "PGSP_ProtocolGetEnumBaudrateBL", "PGSP_ProtocolGetValueBL", "PGSP_ProtocolGetValueRawBL"})
    {
        EXPECT_THAT(LinesOf(operation),
                    ElementsAre(testing::StartsWith("entry: >> "), NoProgramFolder, FolderNotFound));
    }
}

} // namespace
} // namespace norvepa::test

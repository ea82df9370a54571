#include "ServiceTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class CheckValueTrace : public ServiceTraceScene
{
protected:
    void WriteStufe(ConstraintWords words) const { store.WriteBoard(Catalogue().Parameter(L"Stufe", words)); }

    // The lines of one check of "Stufe" are the entry and this one.
    void ExpectExit(const std::string& value, const std::string& exit)
    {
        Trace();
        std::wstring text = FromUtf8(value);

        static_cast<void>(LogDeviceCheckValue(L"Presse", L"Stufe", &text));

        EXPECT_THAT(LinesOf("LogDeviceCheckValue"),
                    ElementsAre("entry: >> LogDevice = Presse, Parameter = Stufe, Value = " + value, exit));
    }
};

TEST_F(CheckValueTrace, OfNoValueIsTheRefusalWithoutAnEntry)
{
    Trace();

    EXPECT_EQ(LogDeviceCheckValue(L"Presse", L"Stufe", nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogDeviceCheckValue"),
                ElementsAre("exit: << return PGSP_ERR_INVALID_PARAMETERS, invalid parameter sValue"));
}

TEST_F(CheckValueTrace, OfMissingArgumentsBeginsWithThem)
{
    Trace();
    std::wstring value = L"1";

    EXPECT_EQ(LogDeviceCheckValue(nullptr, L"", &value), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogDeviceCheckValue"),
                ElementsAre("entry: >> LogDevice = , Parameter = , Value = 1", Refusal));
}

TEST_F(CheckValueTrace, OfAParameterThatNobodyKnowsSaysThatItIsNotControlled)
{
    ExpectExit("1", "exit: << return PGSP_OK. Constraint not found, set value without Parameter Control");
}

TEST_F(CheckValueTrace, OfAStringIsThatOfASuccess)
{
    WriteStufe({{L"type", L"string"}});

    ExpectExit("a", "exit: << return PGSP_OK");
}

TEST_F(CheckValueTrace, OfAnotherTypeIsThatOfASuccess)
{
    WriteStufe({{L"type", L"word"}});

    ExpectExit("a", "exit: << return PGSP_OK");
}

TEST_F(CheckValueTrace, OfABoolIsThatOfASuccess)
{
    WriteStufe({{L"type", L"bool"}});

    ExpectExit("TRUE", "exit: << return PGSP_OK");
}

TEST_F(CheckValueTrace, OfWhatIsNoBoolSaysSo)
{
    WriteStufe({{L"type", L"bool"}});

    ExpectExit("1", "exit: << return PGSP_NOT_A_BOOL");
}

TEST_F(CheckValueTrace, OfAnIntWithinItsBoundsIsThatOfASuccess)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"1"}, {L"max", L"9"}, {L"step", L"2"}});

    ExpectExit("max", "exit: << return PGSP_OK");
}

TEST_F(CheckValueTrace, OfAnEmptyIntIsTheRefusal)
{
    WriteStufe({{L"type", L"int"}});

    ExpectExit("default", Refusal);
}

TEST_F(CheckValueTrace, OfWhatIsBelowTheMinimumSaysSo)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"1"}});

    ExpectExit("0", "exit: << return PGSP_SET_VAL_LESS_THAN_MIN");
}

TEST_F(CheckValueTrace, OfWhatIsAboveTheMaximumSaysSo)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"1"}, {L"max", L"9"}});

    ExpectExit("10", "exit: << return PGSP_SET_VAL_BIGGER_THAN_MAX");
}

TEST_F(CheckValueTrace, OfWhatIsBetweenStepsSaysSo)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"1"}, {L"step", L"2"}});

    ExpectExit("2", "exit: << return PGSP_NOT_IN_STEP");
}

TEST_F(CheckValueTrace, OfAParameterWithAListEndsWithTheListsResult)
{
    store.WriteBoard(
        Catalogue().Parameter(L"baudrate", {{L"type", L"int"}}, XmlContent().ValueCollection({L"9600"})));
    Trace();
    std::wstring listed = L"9600";
    std::wstring other = L"min";
    std::wstring none;

    EXPECT_EQ(LogDeviceCheckValue(L"Presse", L"baudrate", &listed), PGSP_OK);
    EXPECT_EQ(LogDeviceCheckValue(L"Presse", L"baudrate", &other), PGSP_NOT_IN_LIST);
    EXPECT_EQ(LogDeviceCheckValue(L"Presse", L"baudrate", &none), PGSP_ERR_INVALID_PARAMETERS);

    const std::string entry = "entry: >> LogDevice = Presse, Parameter = baudrate, Value = ";
    EXPECT_THAT(LinesOf("LogDeviceCheckValue"),
                ElementsAre(entry + "9600", "exit: << return 0x0", entry + "min", "exit: << return 0x1f72",
                            entry, "exit: << return 0x57"));
}

TEST_F(CheckValueTrace, ShowsTheWordsThatAreLookedUpInTheirOrder)
{
    WriteStufe({{L"type", L"int"}, {L"min", L"1"}, {L"max", L"9"}, {L"step", L"2"}, {L"base", L"10"}});
    Trace();
    std::wstring value = L"default";

    EXPECT_EQ(LogDeviceCheckValue(L"Presse", L"Stufe", &value), PGSP_ERR_INVALID_PARAMETERS);

    std::vector<std::string> entries;
    for (const std::string& line : LinesOf("LogDeviceGetConstraint"))
    {
        if (line.starts_with("entry"))
        {
            entries.push_back(line.substr(line.rfind(' ') + 1));
        }
    }
    EXPECT_THAT(entries, ElementsAre("type", "min", "max", "step", "base", "default"));
}

} // namespace
} // namespace norvepa::test

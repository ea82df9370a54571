#include "support/Norvctl.h"

#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

class NorvctlData : public Norvctl
{
protected:
    // norvctl data VERB Kesselhaus ... in the subfolder of the sample store.
    static ProgramEnd Run(const std::wstring& verb, const Words& more)
    {
        Words words{L"data", verb, L"Kesselhaus", L"--subfolder", L"ParameterData"};
        words.insert(words.end(), more.begin(), more.end());
        return RunNorvctl(words);
    }

    [[nodiscard]] std::string Bytes() const
    {
        return ReadBytes(folder / L"data-root\\data\\ParameterData\\Kesselhaus.xml");
    }
};

TEST_F(NorvctlData, ListTellsAllValues)
{
    EXPECT_EQ(Run(L"list", {}).output, "Dampfdruck                   38,5 bar\n"
                                       "Speisewassertemperatur       105 \u00B0C\n"
                                       "Leitf\u00E4higkeit                18 \u00B5S/cm\n"
                                       "Brennstunden                 48213\n"
                                       "Wartungsgrenze               50000\n"
                                       "Freigabe                     true\n"
                                       "Sommerbetrieb                false\n"
                                       "Isolationswiderstand         2,4 M\u03A9\n");
}

TEST_F(NorvctlData, ListAsJsonNamesTheFile)
{
    const json list = json::parse(
        OutputOfNorvctl({L"--json", L"data", L"list", L"Kesselhaus", L"--subfolder", L"ParameterData"}));

    EXPECT_EQ(list.at("file"), "Kesselhaus");
    EXPECT_EQ(list.at("values").at("Freigabe"), "true");
    EXPECT_EQ(list.at("values").size(), 8U);
}

TEST_F(NorvctlData, AFolderMayBeAnotherThanData)
{
    WriteBytes(folder / L"data-root\\archive\\Kesselhaus.xml", Bytes());
    WriteBytes(folder / L"program-root\\meta\\Werte\\Kesselhaus.xml", Bytes());

    const std::string ofData =
        OutputOfNorvctl({L"data", L"get", L"Kesselhaus", L"Dampfdruck", L"--folder", L"archive"});
    const std::string ofCatalogue =
        OutputOfNorvctl({L"data", L"list", L"Kesselhaus", L"--folder", L"meta", L"--subfolder", L"Werte"});

    EXPECT_EQ(ofData, "38,5 bar\n");
    EXPECT_THAT(ofCatalogue, HasSubstr("\nBrennstunden                 48213\n"));
}

TEST_F(NorvctlData, GetTellsOneValueInAnyCaseOfItsName)
{
    EXPECT_EQ(Run(L"get", {L"DAMPFDRUCK"}).output, "38,5 bar\n");
}

TEST_F(NorvctlData, GetAsJsonIsAnObject)
{
    const json got = json::parse(OutputOfNorvctl(
        {L"--json", L"data", L"get", L"Kesselhaus", L"Freigabe", L"--subfolder", L"ParameterData"}));

    EXPECT_EQ(got, (json{{"file", "Kesselhaus"}, {"parameter", "Freigabe"}, {"value", "true"}}));
}

TEST_F(NorvctlData, GetTellsALongValueWhole)
{
    const std::wstring text(5000, L'x');
    Run(L"set", {L"Bemerkung", text});

    EXPECT_EQ(Run(L"get", {L"Bemerkung"}).output, ToUtf8(text) + "\n");
    EXPECT_THAT(Run(L"list", {}).output, HasSubstr("\nBemerkung                    " + ToUtf8(text) + "\n"));
}

TEST_F(NorvctlData, SetStoresAValueOnce)
{
    const ProgramEnd first = Run(L"set", {L"Dampfdruck", L"39 bar"});
    const ProgramEnd second = Run(L"set", {L"Dampfdruck", L"39 bar"});

    EXPECT_EQ(first.output, "set Kesselhaus, Dampfdruck\n");
    EXPECT_EQ(first.error, "");
    EXPECT_EQ(second.exitCode, 0U);
    EXPECT_EQ(second.output, "unchanged Kesselhaus, Dampfdruck\n");
    EXPECT_EQ(Run(L"get", {L"Dampfdruck"}).output, "39 bar\n");
}

TEST_F(NorvctlData, SetOfATypeStoresTheValueOfThatType)
{
    const ProgramEnd end = Run(L"set", {L"Brennstunden", L"48214", L"--type", L"int"});

    EXPECT_EQ(end.output, "set Kesselhaus, Brennstunden\n");
    EXPECT_EQ(Run(L"get", {L"Brennstunden"}).output, "48214\n");
}

TEST_F(NorvctlData, SetOfAnotherTypeIsAnotherValue)
{
    const ProgramEnd end = Run(L"set", {L"Brennstunden", L"viele"});

    EXPECT_EQ(end.output, "set Kesselhaus, Brennstunden\n");
    EXPECT_EQ(Run(L"get", {L"Brennstunden"}).output, "48213\n");
    EXPECT_THAT(Run(L"list", {}).output, HasSubstr("\nBrennstunden                 viele\n"));
}

TEST_F(NorvctlData, SetAsJsonTellsWhatWasDone)
{
    const json done =
        json::parse(OutputOfNorvctl({L"--json", L"data", L"set", L"Kesselhaus", L"Freigabe", L"false",
                                     L"--type", L"bool", L"--subfolder", L"ParameterData"}));

    EXPECT_EQ(done, (json{{"done", "set"}, {"file", "Kesselhaus"}, {"parameter", "Freigabe"}}));
}

TEST_F(NorvctlData, UnsetRemovesAValue)
{
    const ProgramEnd end = Run(L"unset", {L"Freigabe"});

    EXPECT_EQ(end.output, "unset Kesselhaus, Freigabe\n");
    EXPECT_EQ(end.error, "");
    EXPECT_THAT(Run(L"list", {}).output, Not(HasSubstr("Freigabe")));
}

TEST_F(NorvctlData, UnsetAsJsonTellsWhatWasDone)
{
    const json done = json::parse(OutputOfNorvctl(
        {L"--json", L"data", L"unset", L"Kesselhaus", L"Freigabe", L"--subfolder", L"ParameterData"}));

    EXPECT_EQ(done, (json{{"done", "unset"}, {"file", "Kesselhaus"}, {"parameter", "Freigabe"}}));
}

TEST_F(NorvctlData, OfAMissingParameterFailsAndLeavesTheFileAsItWas)
{
    const std::string before = Bytes();

    const ProgramEnd get = Run(L"get", {L"gone"});
    const ProgramEnd unset = Run(L"unset", {L"gone"});

    EXPECT_EQ(get.exitCode, 1U);
    EXPECT_EQ(get.error,
              "norvctl: Kesselhaus, gone: there is no such parameter (8513 PGSP_ERR_PARAM_NOT_FOUND)\n");
    EXPECT_EQ(unset.exitCode, 1U);
    EXPECT_EQ(unset.output, "");
    EXPECT_THAT(unset.error, HasSubstr("norvctl: Kesselhaus, gone: "));
    EXPECT_EQ(Bytes(), before);
}

TEST_F(NorvctlData, OfAMissingFileFailsForEveryVerb)
{
    for (const Words& words :
         {Words{L"data", L"list", L"gone"}, Words{L"data", L"get", L"gone", L"any"},
          Words{L"data", L"set", L"gone", L"any", L"1"}, Words{L"data", L"unset", L"gone", L"any"}})
    {
        const ProgramEnd end = RunNorvctl(words);

        EXPECT_EQ(end.exitCode, 1U);
        EXPECT_EQ(end.output, "");
        EXPECT_THAT(end.error, HasSubstr("norvctl: gone"));
        EXPECT_THAT(end.error, HasSubstr("there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND)"));
    }
}

} // namespace
} // namespace norvepa::test

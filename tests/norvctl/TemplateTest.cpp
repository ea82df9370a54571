#include "support/Norvctl.h"
#include "support/SampleChange.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::EndsWith;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

class NorvctlTemplate : public Norvctl
{
protected:
    static std::string Value(const std::wstring& parameter)
    {
        return OutputOfNorvctl({L"template", L"get", L"MPI-AFK110", parameter});
    }

    static ProgramEnd Set(const std::wstring& parameter, const std::wstring& value)
    {
        return RunNorvctl({L"template", L"set", L"MPI-AFK110", parameter, value});
    }
};

TEST_F(NorvctlTemplate, ListTellsThemAsDeviceCreateTakesThem)
{
    const json list = json::parse(OutputOfNorvctl({L"--json", L"template", L"list"}));

    EXPECT_THAT(list.get<std::vector<std::string>>(),
                UnorderedElementsAre("L2-AFK110", "L2-AFK220", "MPI-AFK110", "MPI-KQZA010", "SERIAL-ASK040",
                                     "TCPIP-ANK300"));
}

TEST_F(NorvctlTemplate, ListIsALineEach)
{
    const std::string list = OutputOfNorvctl({L"template", L"list"});

    EXPECT_THAT("\n" + list, HasSubstr("\nMPI-KQZA010\n"));
    EXPECT_EQ(std::count(list.begin(), list.end(), '\n'), 6);
}

TEST_F(NorvctlTemplate, ListWithoutTheFolderIsEmpty)
{
    locations.Set(L"Corvane_Oam", folder / L"nothing-here");

    EXPECT_EQ(json::parse(OutputOfNorvctl({L"--json", L"template", L"list"})), json::array());
}

TEST_F(NorvctlTemplate, ShowTellsAllValues)
{
    const std::string text = OutputOfNorvctl({L"template", L"show", L"MPI-AFK110"});
    const json document = json::parse(OutputOfNorvctl({L"--json", L"template", L"show", L"MPI-AFK110"}));

    EXPECT_THAT(text, HasSubstr("\n  baudrate                     187500\n"));
    EXPECT_EQ(document.at("template"), "MPI-AFK110");
    EXPECT_EQ(document.at("values").at("baudrate"), "187500");
    EXPECT_EQ(document.at("values").at("bus_termination"), "150 \u03A9");
}

TEST_F(NorvctlTemplate, GetTellsAnAttributeAParameterOrALink)
{
    EXPECT_EQ(Value(L"CP_TYPE"), "MPI\n");
    EXPECT_EQ(Value(L"highest_adr"), "31\n");
    EXPECT_EQ(Value(L"PropSheet"), "AuentalSeiten.dll,ShowFeldbusPage\n");
}

TEST_F(NorvctlTemplate, GetFor32BitProcessesTellsTheirLink)
{
    EXPECT_EQ(OutputOfNorvctl({L"template", L"get", L"MPI-AFK110", L"PropSheet", L"--32"}),
              "AuentalSeiten.dll,ShowFeldbusPage32\n");
}

TEST_F(NorvctlTemplate, GetFromASectionLooksNowhereElse)
{
    const Words ofSection{L"template", L"get", L"MPI-AFK110", L"Remark", L"--section", L"SpareSection"};

    const ProgramEnd anywhere = RunNorvctl({L"template", L"get", L"MPI-AFK110", L"Remark"});
    const ProgramEnd elsewhere =
        RunNorvctl({L"template", L"get", L"MPI-AFK110", L"baudrate", L"--section", L"SpareSection"});

    EXPECT_EQ(OutputOfNorvctl(ofSection), "noch nicht in Betrieb\n");
    EXPECT_EQ(anywhere.exitCode, 1U);
    EXPECT_EQ(elsewhere.exitCode, 1U);
    EXPECT_EQ(elsewhere.error, "norvctl: MPI-AFK110, baudrate: there is no such parameter (8513 "
                               "PGSP_ERR_PARAM_NOT_FOUND)\n");
}

TEST_F(NorvctlTemplate, GetTellsALongValueWhole)
{
    const std::string text(5000, 'x');
    ChangeSample(CataloguePath(MpiTemplate), "Neuer Zugangsweg", text);

    EXPECT_EQ(Value(L"Description"), text + "\n");
}

TEST_F(NorvctlTemplate, GetAsJsonIsAnObject)
{
    const json got =
        json::parse(OutputOfNorvctl({L"--json", L"template", L"get", L"MPI-AFK110", L"baudrate"}));

    EXPECT_EQ(got, (json{{"template", "MPI-AFK110"}, {"parameter", "baudrate"}, {"value", "187500"}}));
}

TEST_F(NorvctlTemplate, SetStoresAValueOnce)
{
    const ProgramEnd first = Set(L"baudrate", L"19200");
    const ProgramEnd second = Set(L"baudrate", L"19200");

    EXPECT_EQ(first.output, "set MPI-AFK110, baudrate\n");
    EXPECT_EQ(first.error, "");
    EXPECT_EQ(second.exitCode, 0U);
    EXPECT_EQ(second.output, "unchanged MPI-AFK110, baudrate\n");
    EXPECT_EQ(Value(L"baudrate"), "19200\n");
}

TEST_F(NorvctlTemplate, SetStoresAValueThatShowDoesNotTell)
{
    const ProgramEnd end = Set(L"OrderCode", L"AFK110-\u03A9");

    EXPECT_EQ(end.output, "set MPI-AFK110, OrderCode\n");
    EXPECT_EQ(Value(L"OrderCode"), "AFK110-\u03A9\n");
}

TEST_F(NorvctlTemplate, SetIsForLogDevicesThatAreMadeFromThenOn)
{
    Set(L"baudrate", L"19200");

    OutputOfNorvctl({L"device", L"create", L"Presse#4", L"--from", L"MPI-AFK110"});

    EXPECT_EQ(OutputOfNorvctl({L"device", L"get", L"Presse#4", L"baudrate"}), "19200\n");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"get", L"Presse#3", L"baudrate"}), "187500\n");
}

TEST_F(NorvctlTemplate, SetAsJsonTellsWhatWasDone)
{
    const json done =
        json::parse(OutputOfNorvctl({L"--json", L"template", L"set", L"MPI-AFK110", L"baudrate", L"19200"}));

    EXPECT_EQ(done, (json{{"done", "set"}, {"template", "MPI-AFK110"}, {"parameter", "baudrate"}}));
}

TEST_F(NorvctlTemplate, SetIsToldToAWatchInAnotherProcess)
{
    Watch watch({L"watch", L"meta", L"MPI-AFK110", L"--count", L"1", L"--timeout", L"60"});

    Set(L"baudrate", L"19200");

    EXPECT_THAT(watch.Finish().output, EndsWith(" changed meta, MPI-AFK110\n"));
}

TEST_F(NorvctlTemplate, SetRefusesWhatTheLibraryRefusesAndLeavesTheFileAsItWas)
{
    const std::string before = ReadBytes(CataloguePath(MpiTemplate));

    const ProgramEnd unknown = Set(L"gone", L"1");
    const ProgramEnd malformed = Set(L"Description", L"<x>");

    EXPECT_EQ(unknown.exitCode, 1U);
    EXPECT_EQ(unknown.output, "");
    EXPECT_EQ(unknown.error, "norvctl: MPI-AFK110, gone: there is no place to store the parameter (8514 "
                             "PGSP_ERR_CANT_SET_VALUE)\n");
    EXPECT_EQ(malformed.exitCode, 1U);
    EXPECT_THAT(malformed.error, HasSubstr("(87 PGSP_ERR_INVALID_PARAMETERS)"));
    EXPECT_EQ(ReadBytes(CataloguePath(MpiTemplate)), before);
}

TEST_F(NorvctlTemplate, OfAMissingNameFailsForEveryVerb)
{
    for (const Words& words :
         {Words{L"template", L"show", L"gone"}, Words{L"template", L"get", L"gone", L"a"},
          Words{L"template", L"set", L"gone", L"a", L"1"}})
    {
        const ProgramEnd end = RunNorvctl(words);

        EXPECT_EQ(end.exitCode, 1U);
        EXPECT_EQ(end.output, "");
        EXPECT_THAT(end.error, HasSubstr("norvctl: gone"));
    }
}

} // namespace
} // namespace norvepa::test

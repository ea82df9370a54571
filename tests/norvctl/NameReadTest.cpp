#include "support/Norvctl.h"

#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

class NorvctlNameList : public Norvctl
{
};

class NorvctlNameShow : public Norvctl
{
};

class NorvctlNameGet : public Norvctl
{
};

TEST_F(NorvctlNameList, TellsNamesWithTheirDevicesAndTypes)
{
    const ProgramEnd end = RunNorvctl({L"name", L"list"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.error, "");
    EXPECT_THAT(end.output, HasSubstr("Kessel#1                         Kesselhaus               L2\n"));
    EXPECT_THAT(end.output, HasSubstr("Lagerhaus                        -                        -\n"));
}

TEST_F(NorvctlNameList, LeavesHiddenNamesOut)
{
    const std::string output = OutputOfNorvctl({L"name", L"list"});

    EXPECT_THAT(output, Not(HasSubstr("Gr\u00F6\u00DFe \u00B5\u03A9")));
}

TEST_F(NorvctlNameList, AsJsonIsAnArrayOfObjects)
{
    const json list = json::parse(OutputOfNorvctl({L"--json", L"name", L"list"}));

    EXPECT_EQ(list.size(), 15U);
    EXPECT_THAT(list, Contains(json{{"name", "Linie #3: 100% <A|B>"},
                                    {"logDevice", "Abf\u00FCllung Linie 1"},
                                    {"type", "MPI"}}));
    EXPECT_THAT(list, Contains(json{{"name", "Lagerhaus"}, {"logDevice", ""}, {"type", ""}}));
}

TEST_F(NorvctlNameList, OfAnEmptyStoreIsAnEmptyArray)
{
    locations.Set(L"Corvane_Oam_Data", folder / L"nothing-here");

    const json list = json::parse(OutputOfNorvctl({L"--json", L"name", L"list"}));

    EXPECT_EQ(list, json::array());
}

TEST_F(NorvctlNameShow, TellsWhatIsKnownOfAName)
{
    const ProgramEnd end = RunNorvctl({L"name", L"show", L"Leitwarte"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "Leitwarte\n"
                          "  enable_delete                true\n"
                          "  LogDevice                    Leitwarte\n"
                          "  CP_TYPE                      TCPIP\n"
                          "  (default)                    \u00DCbersicht Auental\n"
                          "  Station                      Bedienplatz 1\n"
                          "  Bereich                      Leitwarte\n"
                          "  CP_TYPE                      TCPIP\n");
}

TEST_F(NorvctlNameShow, ShowsHiddenNamesToo)
{
    const json shown =
        json::parse(OutputOfNorvctl({L"--json", L"name", L"show", L"Gr\u00F6\u00DFe \u00B5\u03A9"}));

    EXPECT_EQ(shown.at("name"), "Gr\u00F6\u00DFe \u00B5\u03A9");
    EXPECT_EQ(shown.at("values").at("hidden"), "true");
    EXPECT_EQ(shown.at("values").at("LogDevice"), "Labor");
}

TEST_F(NorvctlNameShow, OfAMissingNameFails)
{
    const ProgramEnd end = RunNorvctl({L"name", L"show", L"gone"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: gone: there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND)\n");
}

TEST_F(NorvctlNameGet, PrintsTheValueAlone)
{
    const ProgramEnd end = RunNorvctl({L"name", L"get", L"Kessel#1", L"LogDevice"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "Kesselhaus\n");
    EXPECT_EQ(end.error, "");
}

TEST_F(NorvctlNameGet, FindsNameAndParameterInAnyCase)
{
    EXPECT_EQ(OutputOfNorvctl({L"name", L"get", L"KESSEL#1", L"logdevice"}), "Kesselhaus\n");
}

TEST_F(NorvctlNameGet, WithoutAParameterReadsTheDefaultOne)
{
    const json value = json::parse(OutputOfNorvctl({L"name", L"get", L"Leitwarte", L"--json"}));

    EXPECT_EQ(value,
              (json{{"name", "Leitwarte"}, {"parameter", "(default)"}, {"value", "\u00DCbersicht Auental"}}));
}

TEST_F(NorvctlNameGet, TakesValuesOfAnyLength)
{
    const std::wstring longValue(1000, L'\u03A9');
    OutputOfNorvctl({L"name", L"set", L"Lagerhaus", L"Text", longValue});

    EXPECT_EQ(OutputOfNorvctl({L"name", L"get", L"Lagerhaus", L"Text"}), ToUtf8(longValue) + "\n");
}

TEST_F(NorvctlNameGet, TellsAMissingParameterFromAMissingName)
{
    const ProgramEnd parameter = RunNorvctl({L"name", L"get", L"Kessel#1", L"gone"});
    const ProgramEnd name = RunNorvctl({L"name", L"get", L"gone", L"LogDevice"});

    EXPECT_EQ(parameter.exitCode, 1U);
    EXPECT_EQ(parameter.error,
              "norvctl: Kessel#1, gone: there is no such parameter (8513 PGSP_ERR_PARAM_NOT_FOUND)\n");
    EXPECT_EQ(name.exitCode, 1U);
    EXPECT_EQ(name.error, "norvctl: gone, LogDevice: there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND)\n");
}

TEST_F(NorvctlNameGet, KeepsStandardOutputEmptyWhenItFails)
{
    const ProgramEnd end = RunNorvctl({L"--json", L"name", L"get", L"gone"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
}

TEST_F(NorvctlNameGet, WithoutADataFolderSaysSo)
{
    locations.Set(L"Corvane_Oam_Data", L"");

    const ProgramEnd end = RunNorvctl({L"name", L"get", L"Kessel#1"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error,
              "norvctl: Kessel#1: the store's folder cannot be found (8517 PGSP_ERR_FOLDER_NOT_FOUND)\n");
}

// The library says of such a name that the buffer is too short, whatever room it is offered.
TEST(NorvctlLongName, EndsEveryCommandThatReads)
{
    const std::wstring name(300, L'x');

    for (const Words& words :
         {Words{L"name", L"get", name}, Words{L"name", L"show", name},
          Words{L"device", L"get", name, L"Unit"}, Words{L"device", L"show", name},
          Words{L"board", L"show", name}, Words{L"board", L"get", name, L"Name"},
          Words{L"protocol", L"show", name}, Words{L"template", L"show", name},
          Words{L"template", L"get", name, L"Unit"}, Words{L"data", L"list", name},
          Words{L"device", L"ndi", L"list", name}, Words{L"device", L"text", name, L"DescText"}})
    {
        const ProgramEnd end = RunNorvctl(words);

        EXPECT_EQ(end.exitCode, 1U) << ToUtf8(words.front());
        EXPECT_EQ(end.output, "") << ToUtf8(words.front());
    }
}

} // namespace
} // namespace norvepa::test

#include "support/Norvctl.h"

#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;

class NorvctlNameCreate : public Norvctl
{
};

class NorvctlNameDelete : public Norvctl
{
};

class NorvctlNameSet : public Norvctl
{
protected:
    static std::string Value(const std::wstring& parameter)
    {
        return OutputOfNorvctl({L"name", L"get", L"Lagerhaus", parameter});
    }
};

class NorvctlNameUnset : public Norvctl
{
};

TEST_F(NorvctlNameCreate, MakesTheFileUnderTheEscapedName)
{
    const ProgramEnd end = RunNorvctl({L"name", L"create", L"Mischer S\u00FCd #2"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "created Mischer S\u00FCd #2\n");
    EXPECT_EQ(end.error, "");
    EXPECT_TRUE(Exists(LogNamePath(L"Mischer S\u00FCd (nmbr)2")));
}

TEST_F(NorvctlNameCreate, AsJsonTellsWhatWasDone)
{
    const json done = json::parse(OutputOfNorvctl({L"name", L"create", L"Mischer", L"--json"}));

    EXPECT_EQ(done, (json{{"done", "created"}, {"name", "Mischer"}, {"parameter", ""}}));
}

TEST_F(NorvctlNameCreate, LeavesANameThatIsThereAlone)
{
    const std::string before = ReadBytes(LogNamePath(L"Leitwarte"));

    const ProgramEnd end = RunNorvctl({L"name", L"create", L"Leitwarte"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "norvctl: Leitwarte: the file exists already (8504 PGSP_ERR_FILE_EXISTS)\n");
    EXPECT_EQ(ReadBytes(LogNamePath(L"Leitwarte")), before);
}

TEST_F(NorvctlNameCreate, RefusesAnEmptyNameAndMakesNothing)
{
    const ProgramEnd end = RunNorvctl({L"name", L"create", L""});

    EXPECT_EQ(end.exitCode, 2U);
    EXPECT_THAT(end.error, HasSubstr("a log name is not empty"));
    EXPECT_FALSE(Exists(folder / L"data-root\\data\\LogNames.xml"));
}

TEST_F(NorvctlNameCreate, TakesAVerbForAName)
{
    OutputOfNorvctl({L"name", L"create", L"trace"});

    EXPECT_TRUE(Exists(LogNamePath(L"trace")));
}

TEST_F(NorvctlNameDelete, RemovesTheFile)
{
    const ProgramEnd end = RunNorvctl({L"name", L"delete", L"Kessel#1"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "deleted Kessel#1\n");
    EXPECT_FALSE(Exists(LogNamePath(L"Kessel(nmbr)1")));
}

TEST_F(NorvctlNameDelete, OfAMissingNameFails)
{
    const ProgramEnd end = RunNorvctl({L"name", L"delete", L"gone"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: gone: the file cannot be deleted (8511 PGSP_ERR_CANT_DELETE_FILE)\n");
}

TEST_F(NorvctlNameSet, AddsAParameter)
{
    const ProgramEnd end = RunNorvctl({L"name", L"set", L"Lagerhaus", L"Tor", L"Nord 3"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "set Lagerhaus, Tor\n");
    EXPECT_EQ(Value(L"Tor"), "Nord 3\n");
}

TEST_F(NorvctlNameSet, CarriesGreekAndUmlautsThereAndBack)
{
    OutputOfNorvctl(
        {L"name", L"set", L"Lagerhaus", L"Gr\u00F6\u00DFe", L"1450 min\u207B\u00B9 (\u03A9-\u0392remse)"});

    EXPECT_EQ(Value(L"Gr\u00F6\u00DFe"), "1450 min\u207B\u00B9 (\u03A9-\u0392remse)\n");
    EXPECT_THAT(ReadBytes(LogNamePath(L"Lagerhaus")), HasSubstr("1450 min\u207B\u00B9 (\u03A9-\u0392remse)"));
}

TEST_F(NorvctlNameSet, CarriesQuotesBackslashesAndSigns)
{
    OutputOfNorvctl({L"name", L"set", L"Lagerhaus", L"Pfad", L"C:\\\"x y\"\\"});
    OutputOfNorvctl({L"name", L"set", L"Lagerhaus", L"Versatz", L"-5"});

    EXPECT_EQ(Value(L"Pfad"), "C:\\\"x y\"\\\n");
    EXPECT_EQ(Value(L"Versatz"), "-5\n");
}

TEST_F(NorvctlNameSet, TellsThatAValueIsTheSameInAnotherCase)
{
    OutputOfNorvctl({L"name", L"set", L"Lagerhaus", L"Tor", L"Nord"});

    const ProgramEnd end = RunNorvctl({L"name", L"set", L"Lagerhaus", L"Tor", L"NORD"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "unchanged Lagerhaus, Tor\n");
    EXPECT_EQ(Value(L"Tor"), "Nord\n");
}

TEST_F(NorvctlNameSet, TellsThatAnEmptyValueIsNewAndThenTheSame)
{
    const std::string first = OutputOfNorvctl({L"name", L"set", L"Lagerhaus", L"Tor", L""});
    const std::string second = OutputOfNorvctl({L"name", L"set", L"Lagerhaus", L"Tor", L""});

    EXPECT_EQ(first, "set Lagerhaus, Tor\n");
    EXPECT_EQ(second, "unchanged Lagerhaus, Tor\n");
}

TEST_F(NorvctlNameSet, AsJsonTellsWhatWasDone)
{
    const json done =
        json::parse(OutputOfNorvctl({L"--json", L"name", L"set", L"Lagerhaus", L"T\u00FCr", L"zu"}));

    EXPECT_EQ(done, (json{{"done", "set"}, {"name", "Lagerhaus"}, {"parameter", "T\u00FCr"}}));
}

TEST_F(NorvctlNameSet, RefusesWhatTheLibraryRefuses)
{
    const ProgramEnd end = RunNorvctl({L"name", L"set", L"Lagerhaus", L"Tor", L"<schnell>"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "norvctl: Lagerhaus, Tor: the name or the value is not acceptable "
                         "(87 PGSP_ERR_INVALID_PARAMETERS)\n");
}

TEST_F(NorvctlNameUnset, RemovesAParameter)
{
    const ProgramEnd end = RunNorvctl({L"name", L"unset", L"Kessel#1", L"Einheit"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "unset Kessel#1, Einheit\n");
    EXPECT_EQ(RunNorvctl({L"name", L"get", L"Kessel#1", L"Einheit"}).exitCode, 1U);
    EXPECT_EQ(OutputOfNorvctl({L"name", L"get", L"Kessel#1", L"LogDevice"}), "Kesselhaus\n");
}

TEST_F(NorvctlNameUnset, AsJsonTellsWhatWasDone)
{
    const json done = json::parse(OutputOfNorvctl({L"--json", L"name", L"unset", L"Kessel#1", L"Einheit"}));

    EXPECT_EQ(done, (json{{"done", "unset"}, {"name", "Kessel#1"}, {"parameter", "Einheit"}}));
}

TEST_F(NorvctlNameUnset, OfAMissingParameterFails)
{
    const ProgramEnd end = RunNorvctl({L"name", L"unset", L"Kessel#1", L"gone"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error,
              "norvctl: Kessel#1, gone: there is no such parameter (8513 PGSP_ERR_PARAM_NOT_FOUND)\n");
}

TEST_F(NorvctlNameUnset, WithoutTheSchemaFailsAndChangesNothing)
{
    locations.Set(L"Corvane_Oam", folder / L"nothing-here");

    const ProgramEnd end = RunNorvctl({L"name", L"unset", L"Kessel#1", L"Einheit"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error,
              "norvctl: Kessel#1, Einheit: the schema cannot be loaded (8509 PGSP_ERR_CANT_LOAD_SCHEMA)\n");
    EXPECT_EQ(RunNorvctl({L"name", L"get", L"Kessel#1", L"Einheit"}).exitCode, 0U);
}

} // namespace
} // namespace norvepa::test

#include "DoctorScene.h"

namespace norvepa::test
{
namespace
{

constexpr char PutBack[] = "put a copy of its file back, or remove it: norvctl name delete ";

class NorvctlDoctorNames : public NorvctlDoctor
{
};

TEST_F(NorvctlDoctorNames, TellsOfALinkToNothingUntilItIsTakenAwayAsTold)
{
    ChangeSample(LogNamePath(L"Gr\u00F6\u00DFe \u00B5\u03A9"), "<Value>Labor</Value>",
                 "<Value>Labor 2</Value>");
    const nlohmann::json findings = Findings();
    OutputOfNorvctl({L"name", L"unlink", L"Gr\u00F6\u00DFe \u00B5\u03A9"});

    EXPECT_EQ(findings, nlohmann::json::array({Finding(
                            "error", "log name", "Gr\u00F6\u00DFe \u00B5\u03A9",
                            "it is linked to the log device Labor 2, which does not exist",
                            "norvctl name link \"Gr\u00F6\u00DFe \u00B5\u03A9\" DEVICE, or norvctl name "
                            "unlink \"Gr\u00F6\u00DFe \u00B5\u03A9\"")}));
    ExpectNone();
}

TEST_F(NorvctlDoctorNames, MayBeLinkedToASubdevice)
{
    ChangeSample(LogNamePath(L"Kessel(nmbr)1"), "<Value>Kesselhaus</Value>",
                 "<Value>Kesselhaus\\subdevices\\Brenner 1</Value>");

    ExpectNone();
}

TEST_F(NorvctlDoctorNames, TellsOfAnEmptyFileUntilItIsRemovedAsTold)
{
    WriteBytes(LogNamePath(L"St\u00F6rung#3f"), "");
    const nlohmann::json findings = Findings();
    OutputOfNorvctl({L"name", L"delete", L"St\u00F6rung?"});

    EXPECT_EQ(findings,
              nlohmann::json::array({Finding("error", "log name", "St\u00F6rung?", "its file is empty",
                                             std::string(PutBack) + "\"St\u00F6rung?\"")}));
    ExpectNone();
}

TEST_F(NorvctlDoctorNames, TellsOfAFileThatIsCutOff)
{
    const std::string bytes = ReadBytes(LogNamePath(L"Leitwarte"));
    WriteBytes(LogNamePath(L"Leitwarte"), bytes.substr(0, bytes.size() - 10));

    ExpectOnly(Finding("error", "log name", "Leitwarte", "its file cannot be opened or parsed",
                       std::string(PutBack) + "\"Leitwarte\""));
}

TEST_F(NorvctlDoctorNames, TellsOfAFileThatIsNotCalledAsItsNameIsWritten)
{
    WriteBytes(LogNamePath(L"Ventil 50%"), ReadBytes(LogNamePath(L"Lagerhaus")));

    ExpectOnly(Finding("error", "log name", "Ventil 50%", "its file is not called what it is looked for as",
                       "rename its file below data\\LogNames: # is written (nmbr) there, and % is written "
                       "#25"));
}

TEST_F(NorvctlDoctorNames, TellsOfALeftOverFormUntilItIsRemovedAsTold)
{
    WriteBytes(LogNamePath(L"Lagerhaus(temp)"), ReadBytes(LogNamePath(L"Lagerhaus")));
    const nlohmann::json findings = Findings();
    OutputOfNorvctl({L"name", L"delete", L"Lagerhaus(temp)"});

    EXPECT_EQ(findings,
              nlohmann::json::array({Finding("warning", "log name", "Lagerhaus(temp)",
                                             "it is left over from a change of Lagerhaus that was broken off",
                                             "remove it: norvctl name delete \"Lagerhaus(temp)\"")}));
    ExpectNone();
}

} // namespace
} // namespace norvepa::test

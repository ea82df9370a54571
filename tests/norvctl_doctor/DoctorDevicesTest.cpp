#include "DoctorScene.h"

namespace norvepa::test
{
namespace
{

constexpr char PutBack[] = "put a copy of its file back, or remove it: norvctl device delete --force ";

class NorvctlDoctorDevices : public NorvctlDoctor
{
protected:
    // What a test damages is a log device that enumerations leave out.
    [[nodiscard]] std::wstring HiddenPath() const { return LogDevicePath(L"PC internal"); }

    static void ExpectHidden(const std::string& finding, const std::string& advice)
    {
        ExpectOnly(Finding("error", "log device", "PC internal", finding, advice));
    }
};

TEST_F(NorvctlDoctorDevices, TellsOfAnEmptyFile)
{
    WriteBytes(HiddenPath(), "");

    ExpectHidden("its file is empty", std::string(PutBack) + "\"PC internal\"");
}

TEST_F(NorvctlDoctorDevices, TellsOfAFileThatIsCutOff)
{
    const std::string bytes = ReadBytes(HiddenPath());
    WriteBytes(HiddenPath(), bytes.substr(0, bytes.size() - 20));

    ExpectHidden("its file cannot be opened or parsed", std::string(PutBack) + "\"PC internal\"");
}

TEST_F(NorvctlDoctorDevices, AreInOrderOnceABadFileIsRemovedAsTold)
{
    WriteBytes(HiddenPath(), "");

    OutputOfNorvctl({L"device", L"delete", L"--force", L"PC internal"});

    ExpectNone();
}

TEST_F(NorvctlDoctorDevices, TellsOfAFileThatDoesNotSatisfyItsSchema)
{
    ChangeSample(HiddenPath(), "<SpareSection>", "<Spares/><SpareSection>");

    ExpectHidden("the driver cannot read it: the file would not satisfy its schema (8506 "
                 "PGSP_ERR_INVALID_FILE)",
                 "correct its file by Schemes\\Corvane.Device.Driver.Logdevice.xsd, or make it anew from a "
                 "template");
}

TEST_F(NorvctlDoctorDevices, TellsOfNothingToLoad)
{
    std::string bytes = ReadBytes(HiddenPath());
    const std::size_t begin = bytes.find("<Load>");
    const std::size_t end = bytes.find("</Load>");
    ASSERT_NE(end, std::string::npos);
    WriteBytes(HiddenPath(), bytes.erase(begin, end + 7 - begin));

    ExpectOnly(Finding("warning", "log device", "PC internal",
                       "the driver cannot read it: the log device does not say what to load (8516 "
                       "PGSP_ERR_DRIVER_READ)",
                       "name its sections in the element Load of its file, if a driver is to serve it"));
}

TEST_F(NorvctlDoctorDevices, TellsOfAFileThatIsNotCalledAsItsNameIsWritten)
{
    WriteBytes(LogDevicePath(L"Presse#4"), ReadBytes(LogDevicePath(L"Presse(nmbr)3")));

    ExpectOnly(Finding("error", "log device", "Presse#4", "its file is not called what it is looked for as",
                       "rename its file below data\\LogDevices: # is written (nmbr) there, and % is written "
                       "#25"));
}

TEST_F(NorvctlDoctorDevices, TellsOfABoardThatIsNotInTheCatalogue)
{
    ChangeSample(HiddenPath(), "DeviceID=\"*ANK300\"", "DeviceID=\"*ANK301\"");

    ExpectHidden("its board *ANK301 is not in the catalogue",
                 "install meta\\Boards\\Automation-OnlineAccess-BT-ANK301.xml, or correct the attribute "
                 "DeviceID of its file");
}

TEST_F(NorvctlDoctorDevices, TellsOfAProtocolThatIsNotInTheCatalogue)
{
    ChangeSample(HiddenPath(), "CP_TYPE=\"TCPIP\"", "CP_TYPE=\"UDP\"");

    ExpectHidden("its protocol UDP is not in the catalogue",
                 "install meta\\Protocols\\Automation-OnlineAccess-PT-UDP.xml, or correct the attribute "
                 "CP_TYPE of its file");
}

TEST_F(NorvctlDoctorDevices, TellsOfABoardThatIsNotNamed)
{
    ChangeSample(HiddenPath(), "DeviceID=\"*ANK300\"", "DeviceID=\"\"");

    const nlohmann::json findings = Findings();

    EXPECT_THAT(findings, testing::Contains(Finding(
                              "error", "log device", "PC internal", "it names no board",
                              "write the attribute DeviceID into its file, which norvctl never does")));
}

TEST_F(NorvctlDoctorDevices, KnowABoardWhateverItsCase)
{
    ChangeSample(HiddenPath(), "DeviceID=\"*ANK300\"", "DeviceID=\"ank300\"");
    ChangeSample(HiddenPath(), "CP_TYPE=\"TCPIP\"", "CP_TYPE=\"tcpip\"");

    ExpectNone();
}

TEST_F(NorvctlDoctorDevices, TellsOfATemporaryCopyUntilItIsDiscardedAsTold)
{
    const std::string copy = OutputOfNorvctl({L"device", L"edit", L"begin", L"Kesselhaus"});
    const nlohmann::json findings = Findings();
    OutputOfNorvctl({L"device", L"edit", L"discard", L"PGSP_TEMP_LOG_DEVICE____000"});

    EXPECT_EQ(copy, "PGSP_TEMP_LOG_DEVICE____000\n");
    EXPECT_EQ(findings,
              nlohmann::json::array({Finding("warning", "log device", "PGSP_TEMP_LOG_DEVICE____000",
                                             "it is a temporary copy that was neither applied nor discarded",
                                             "unless somebody works on it: norvctl device edit discard "
                                             "PGSP_TEMP_LOG_DEVICE____000")}));
    ExpectNone();
}

TEST_F(NorvctlDoctorDevices, TellsOfALeftOverFormUntilItIsRemovedAsTold)
{
    WriteBytes(LogDevicePath(L"Labor(temp)"), "");
    const nlohmann::json findings = Findings();
    OutputOfNorvctl({L"device", L"delete", L"--force", L"Labor(temp)"});

    EXPECT_EQ(findings,
              nlohmann::json::array({Finding("warning", "log device", "Labor(temp)",
                                             "it is left over from a change of Labor that was broken off",
                                             "remove it: norvctl device delete --force \"Labor(temp)\"")}));
    ExpectNone();
}

TEST_F(NorvctlDoctorDevices, TellsOfAFormThatIsAllThatIsLeft)
{
    std::filesystem::rename(LogDevicePath(L"Waage Rampe 2"), LogDevicePath(L"Waage Rampe 2(temp)"));

    const nlohmann::json findings = Findings();

    ASSERT_EQ(findings.size(), 2U); // and the log name that is linked to it
    EXPECT_EQ(findings[0], Finding("error", "log device", "Waage Rampe 2(temp)",
                                   "it is all that is left of Waage Rampe 2, whose change was broken off",
                                   "rename its file below data\\LogDevices, so that \"(temp)\" goes"));
    EXPECT_EQ(findings[1].at("name"), "Silo 1/2");
}

} // namespace
} // namespace norvepa::test

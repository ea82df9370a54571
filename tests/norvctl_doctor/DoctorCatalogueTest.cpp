#include "DoctorScene.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

// A file of the catalogue that log devices and templates need, by its kind, its name and where it lies.
struct CatalogueEntry
{
    const char* kind;
    const char* name;
    const std::wstring& file;
    const char* removal;
};

void PrintTo(const CatalogueEntry& entry, std::ostream* stream)
{
    *stream << entry.kind;
}

class NorvctlDoctorCatalogue : public NorvctlDoctor, public testing::WithParamInterface<CatalogueEntry>
{
protected:
    static void ExpectUnreadable(const char* finding)
    {
        ExpectOnly(Finding("error", GetParam().kind, GetParam().name, finding,
                           std::string("put a copy of its file back, or remove it: ") + GetParam().removal));
    }
};

TEST_P(NorvctlDoctorCatalogue, TellsOfAnEmptyFileAndOfNothingThatNeedsIt)
{
    WriteBytes(CataloguePath(GetParam().file), "");

    ExpectUnreadable("its file is empty");
}

TEST_P(NorvctlDoctorCatalogue, TellsOfAFileThatIsCutOffAndOfNothingThatNeedsIt)
{
    const std::string bytes = ReadBytes(CataloguePath(GetParam().file));
    WriteBytes(CataloguePath(GetParam().file), bytes.substr(0, bytes.size() - 10));

    ExpectUnreadable("its file cannot be opened or parsed");
}

TEST_P(NorvctlDoctorCatalogue, TellsOfALeftOverForm)
{
    WriteBytes(CataloguePath(GetParam().file + L"(temp)"), ReadBytes(CataloguePath(GetParam().file)));
    const std::string name = ToUtf8(GetParam().file.substr(GetParam().file.find(L'\\') + 1));

    ExpectOnly(Finding("warning", GetParam().kind, name + "(temp)",
                       "it is left over from a change of " + name + " that was broken off",
                       std::string("remove it: ") + GetParam().removal));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, NorvctlDoctorCatalogue,
    testing::Values(CatalogueEntry{"board", "AFK110", Afk110Board, "delete its file below meta\\Boards"},
                    CatalogueEntry{"protocol", "MPI", MpiProtocol, "delete its file below meta\\Protocols"},
                    CatalogueEntry{"template", "MPI-AFK110", MpiTemplate,
                                   "delete its file below meta\\DefaultLogDevices"}),
    [](const auto& entry) { return entry.param.kind; });

class NorvctlDoctorTemplates : public NorvctlDoctor
{
};

TEST_F(NorvctlDoctorTemplates, TellsOfABoardThatIsNotInTheCatalogue)
{
    ChangeSample(CataloguePath(MpiTemplate), "DeviceID=\"AFK110\"", "DeviceID=\"AFK111\"");

    ExpectOnly(Finding("error", "template", "MPI-AFK110", "its board AFK111 is not in the catalogue",
                       "install meta\\Boards\\Automation-OnlineAccess-BT-AFK111.xml, or correct the "
                       "attribute DeviceID of its file"));
}

TEST_F(NorvctlDoctorTemplates, TellsOfAProtocolThatIsNotInTheCatalogue)
{
    ChangeSample(CataloguePath(MpiTemplate), "CP_TYPE=\"MPI\"", "CP_TYPE=\"MPJ\"");

    ExpectOnly(Finding("error", "template", "MPI-AFK110", "its protocol MPJ is not in the catalogue",
                       "install meta\\Protocols\\Automation-OnlineAccess-PT-MPJ.xml, or correct the "
                       "attribute CP_TYPE of its file"));
}

} // namespace
} // namespace norvepa::test

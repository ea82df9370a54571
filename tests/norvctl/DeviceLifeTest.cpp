#include "support/Norvctl.h"
#include "support/OpenFile.h"

#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class NorvctlDeviceCreate : public Norvctl
{
protected:
    // What the template L2-AFK110 makes.
    [[nodiscard]] std::string Template() const
    {
        return ReadBytes(folder /
                         L"program-root\\meta\\DefaultLogDevices\\Automation-OnlineAccess-LDT-L2-AFK110.xml");
    }
};

class NorvctlDeviceCopy : public Norvctl
{
};

class NorvctlDeviceDelete : public Norvctl
{
};

TEST_F(NorvctlDeviceCreate, MakesTheTemplateALogDevice)
{
    const ProgramEnd end =
        RunNorvctl({L"device", L"create", L"Mischer S\u00FCd #2", L"--from", L"L2-AFK110"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "created Mischer S\u00FCd #2 from L2-AFK110\n");
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(ReadBytes(LogDevicePath(L"Mischer S\u00FCd (nmbr)2")), Template());
}

TEST_F(NorvctlDeviceCreate, AsJsonTellsWhatWasDone)
{
    const json done =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"create", L"Mischer", L"--from", L"L2-AFK110"}));

    EXPECT_EQ(done, (json{{"done", "created"}, {"device", "Mischer"}, {"template", "L2-AFK110"}}));
}

TEST_F(NorvctlDeviceCreate, FromATemplateThatIsNotThereMakesNothing)
{
    const ProgramEnd end = RunNorvctl({L"device", L"create", L"Mischer", L"--from", L"gone"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: Mischer from gone: there is no such file (8503 PGSP_ERR_FILE_NOT_FOUND): "
                         "there is no template gone\n");
    EXPECT_FALSE(Exists(LogDevicePath(L"Mischer")));
}

TEST_F(NorvctlDeviceCreate, LeavesALogDeviceThatIsThereAlone)
{
    const std::string before = ReadBytes(LogDevicePath(L"Labor"));

    const ProgramEnd end = RunNorvctl({L"device", L"create", L"Labor", L"--from", L"L2-AFK110"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "norvctl: Labor from L2-AFK110: the file cannot be copied "
                         "(8512 PGSP_ERR_CANT_COPY_FILE): there is a log device Labor already\n");
    EXPECT_EQ(ReadBytes(LogDevicePath(L"Labor")), before);
}

TEST_F(NorvctlDeviceCreate, RefusesAnEmptyName)
{
    const ProgramEnd end = RunNorvctl({L"device", L"create", L"", L"--from", L"L2-AFK110"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("87 PGSP_ERR_INVALID_PARAMETERS"));
}

TEST_F(NorvctlDeviceCreate, IsToldToAWatchInAnotherProcess)
{
    Watch watch({L"watch", L"LogDevices", L"Mischer", L"--count", L"1", L"--timeout", L"60"});

    OutputOfNorvctl({L"device", L"create", L"Mischer", L"--from", L"L2-AFK110"});

    EXPECT_THAT(watch.Finish().output, EndsWith(" changed LogDevices, Mischer\n"));
}

TEST_F(NorvctlDeviceCopy, MakesTheSameLogDeviceUnderAnotherName)
{
    const ProgramEnd end = RunNorvctl({L"device", L"copy", L"Presse#3", L"Presse#4"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "copied Presse#3 to Presse#4\n");
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(ReadBytes(LogDevicePath(L"Presse(nmbr)4")), ReadBytes(LogDevicePath(L"Presse(nmbr)3")));
}

TEST_F(NorvctlDeviceCopy, AsJsonTellsWhatWasDone)
{
    const json done = json::parse(OutputOfNorvctl({L"--json", L"device", L"copy", L"Labor", L"Labor 2"}));

    EXPECT_EQ(done, (json{{"done", "copied"}, {"device", "Labor 2"}, {"from", "Labor"}}));
}

TEST_F(NorvctlDeviceCopy, OfAHiddenOneIsVisibleAndCanBeDeleted)
{
    OutputOfNorvctl({L"device", L"copy", L"PC internal", L"Kopie"});

    EXPECT_THAT(OutputOfNorvctl({L"device", L"list"}), HasSubstr("Kopie "));
    EXPECT_EQ(OutputOfNorvctl({L"device", L"delete", L"Kopie"}), "deleted Kopie\n");
}

TEST_F(NorvctlDeviceCopy, OfAMissingOneMakesNothing)
{
    const ProgramEnd end = RunNorvctl({L"device", L"copy", L"gone", L"Kopie"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: gone to Kopie: the file cannot be copied (8512 PGSP_ERR_CANT_COPY_FILE): "
                         "there is no log device gone\n");
    EXPECT_FALSE(Exists(LogDevicePath(L"Kopie")));
}

TEST_F(NorvctlDeviceCopy, LeavesALogDeviceThatIsThereAlone)
{
    const std::string before = ReadBytes(LogDevicePath(L"Labor"));

    const ProgramEnd end = RunNorvctl({L"device", L"copy", L"Leitwarte", L"Labor"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "norvctl: Leitwarte to Labor: the file cannot be copied "
                         "(8512 PGSP_ERR_CANT_COPY_FILE): there is a log device Labor already\n");
    EXPECT_EQ(ReadBytes(LogDevicePath(L"Labor")), before);
}

TEST_F(NorvctlDeviceCopy, IsToldToAWatchInAnotherProcess)
{
    Watch watch({L"watch", L"LogDevices", L"Labor 2", L"--count", L"1", L"--timeout", L"60"});

    OutputOfNorvctl({L"device", L"copy", L"Labor", L"Labor 2"});

    EXPECT_THAT(watch.Finish().output, EndsWith(" changed LogDevices, Labor 2\n"));
}

TEST_F(NorvctlDeviceCopy, OfOneThatCannotBeDeletedIsToldToAWatch)
{
    Watch watch({L"watch", L"LogDevices", L"Kopie", L"--count", L"1", L"--timeout", L"60"});

    OutputOfNorvctl({L"device", L"copy", L"Abf\u00FCllung Linie 1", L"Kopie"});

    EXPECT_THAT(watch.Finish().output, EndsWith(" changed LogDevices, Kopie\n"));
}

TEST_F(NorvctlDeviceDelete, RemovesTheFile)
{
    const ProgramEnd end = RunNorvctl({L"device", L"delete", L"Presse#3"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "deleted Presse#3\n");
    EXPECT_EQ(end.error, "");
    EXPECT_FALSE(Exists(LogDevicePath(L"Presse(nmbr)3")));
}

TEST_F(NorvctlDeviceDelete, AsJsonTellsWhatWasDone)
{
    const json done = json::parse(OutputOfNorvctl({L"--json", L"device", L"delete", L"Labor"}));

    EXPECT_EQ(done, (json{{"done", "deleted"}, {"device", "Labor"}}));
}

TEST_F(NorvctlDeviceDelete, LeavesOneThatDoesNotAllowIt)
{
    const ProgramEnd end = RunNorvctl({L"device", L"delete", L"PC internal"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: PC internal: the log device does not allow its deletion "
                         "(8030 PGSP_ERR_LOG_DEVICE_NOT_DELETABLE): --force deletes it all the same\n");
    EXPECT_TRUE(Exists(LogDevicePath(L"PC internal")));
}

TEST_F(NorvctlDeviceDelete, ByForceRemovesOneThatDoesNotAllowIt)
{
    EXPECT_EQ(OutputOfNorvctl({L"device", L"delete", L"PC internal", L"--force"}), "deleted PC internal\n");

    EXPECT_FALSE(Exists(LogDevicePath(L"PC internal")));
}

TEST_F(NorvctlDeviceDelete, LeavesOneThatDoesNotSayWhetherItAllowsIt)
{
    const ProgramEnd end = RunNorvctl({L"device", L"delete", L"Leitwarte*_/VMDID"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(
        end.error,
        "norvctl: Leitwarte*_/VMDID: there is no such parameter (8513 PGSP_ERR_PARAM_NOT_FOUND): it does "
        "not say whether it may be deleted, --force deletes it all the same\n");
    EXPECT_TRUE(Exists(LogDevicePath(L"Leitwarte#2a_#2fVMDID")));
}

TEST_F(NorvctlDeviceDelete, OfAMissingOneFails)
{
    const ProgramEnd end = RunNorvctl({L"device", L"delete", L"gone"});
    const ProgramEnd byForce = RunNorvctl({L"device", L"delete", L"gone", L"--force"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "norvctl: gone: the file cannot be opened or parsed "
                         "(8508 PGSP_ERR_CANT_LOAD_XML_FILE): there is no such log device\n");
    EXPECT_EQ(byForce.exitCode, 1U);
    EXPECT_EQ(byForce.error, "norvctl: gone: the file cannot be deleted (8511 PGSP_ERR_CANT_DELETE_FILE): "
                             "there is no such log device\n");
}

TEST_F(NorvctlDeviceDelete, LeavesOneThatIsInUse)
{
    const OpenFile user(LogDevicePath(L"Labor"));

    const ProgramEnd end = RunNorvctl({L"device", L"delete", L"Labor"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "norvctl: Labor: the file cannot be deleted (8511 PGSP_ERR_CANT_DELETE_FILE)\n");
}

TEST_F(NorvctlDeviceDelete, IsToldToAWatchInAnotherProcess)
{
    Watch watch({L"watch", L"LogDevices", L"Labor", L"--count", L"1", L"--timeout", L"60"});

    OutputOfNorvctl({L"device", L"delete", L"Labor"});

    EXPECT_THAT(watch.Finish().output, EndsWith(" changed LogDevices, Labor\n"));
}

TEST_F(NorvctlDeviceDelete, ThatWasRefusedIsNotToldToAWatch)
{
    Watch watch({L"watch", L"LogDevices", L"--count", L"1", L"--timeout", L"3"});

    EXPECT_EQ(RunNorvctl({L"device", L"delete", L"PC internal"}).exitCode, 1U);

    EXPECT_THAT(watch.Finish().output, Not(HasSubstr("changed")));
}

} // namespace
} // namespace norvepa::test

#include "support/Norvctl.h"

namespace norvepa::test
{
namespace
{

using testing::HasSubstr;

class NorvctlNameLink : public Norvctl
{
};

TEST_F(NorvctlNameLink, LinksToALogDeviceAndTakesItsType)
{
    EXPECT_EQ(OutputOfNorvctl({L"name", L"link", L"Lagerhaus", L"Presse#3"}),
              "linked Lagerhaus, LogDevice\n");

    EXPECT_EQ(OutputOfNorvctl({L"name", L"get", L"Lagerhaus", L"LogDevice"}), "Presse#3\n");
    EXPECT_EQ(OutputOfNorvctl({L"name", L"get", L"Lagerhaus", L"CP_TYPE"}), "MPI\n");
}

TEST_F(NorvctlNameLink, ToTheSameLogDeviceChangesNothing)
{
    EXPECT_EQ(OutputOfNorvctl({L"name", L"link", L"Leitwarte", L"Leitwarte"}),
              "unchanged Leitwarte, LogDevice\n");
}

TEST_F(NorvctlNameLink, ToALogDeviceThatDoesNotExistFailsAndLeavesTheNameAsItWas)
{
    const std::string before = ReadBytes(LogNamePath(L"Leitwarte"));

    const ProgramEnd end = RunNorvctl({L"name", L"link", L"Leitwarte", L"gone"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.error, "norvctl: Leitwarte, LogDevice: there is no such log device (8012 "
                         "PGSP_ERR_LOG_DEVICE_NOT_EXISTS)\n");
    EXPECT_EQ(ReadBytes(LogNamePath(L"Leitwarte")), before);
}

TEST_F(NorvctlNameLink, OfANameLockedByAThreadIsRefused)
{
    const ProgramEnd end = RunNorvctl({L"name", L"link", L"Wartung", L"Kesselhaus"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("8204 PGSP_LOCKED_BY_OTHER_THREAD"));
}

TEST_F(NorvctlNameLink, IsTakenAwayAgain)
{
    EXPECT_EQ(OutputOfNorvctl({L"name", L"unlink", L"Leitwarte"}), "unlinked Leitwarte, LogDevice\n");

    const std::string list = OutputOfNorvctl({L"name", L"list"});
    EXPECT_THAT(list, HasSubstr("\nLeitwarte                        -  "));
    EXPECT_THAT(ReadBytes(LogNamePath(L"Leitwarte")), HasSubstr("TCPIP")); // the old type stays
}

} // namespace
} // namespace norvepa::test

#include "ExamplesScene.h"

namespace norvepa::test
{
namespace
{

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class ClientDriver : public Examples
{
protected:
    static ProgramEnd Client(const Words& arguments) { return Run(L"client_driver.exe", arguments); }
};

TEST_F(ClientDriver, PrintsWhatADriverReceives)
{
    const ProgramEnd end = Client({L"Kesselhaus"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_THAT(end.output, StartsWith("Unit                             integer  1\n"));
    EXPECT_THAT(end.output, HasSubstr("Active                           boolean  true\n"));
    EXPECT_THAT(end.output, HasSubstr("Brenner 2/active                 boolean  false\n"));
    EXPECT_THAT(
        end.output,
        EndsWith("\u00DCberhitzer/F\u00FChler                string   Pt100, 100 \u03A9 bei 0 \u00B0C\n"));
    EXPECT_EQ(end.error, "");
}

TEST_F(ClientDriver, ReadsAsNorvctlDoes)
{
    for (const std::wstring device : {L"Kesselhaus", L"Waage Rampe 2", L"Leitwarte"})
    {
        EXPECT_EQ(Client({device}).output, OutputOfNorvctl({L"device", L"driver-read", device}));
    }
}

TEST_F(ClientDriver, TellsTheCodeOfAFailure)
{
    const ProgramEnd end = Client({L"Pr\u00FCfstand"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "client_driver: Pr\u00FCfstand: norvDriverReadLogDevice answers 8516\n");
}

TEST_F(ClientDriver, TellsHowItIsUsed)
{
    const ProgramEnd end = Client({});

    EXPECT_EQ(end.exitCode, 2U);
    EXPECT_THAT(end.error, StartsWith("usage: client_driver DEVICE"));
}

} // namespace
} // namespace norvepa::test

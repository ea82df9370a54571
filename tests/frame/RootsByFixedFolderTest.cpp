#include "frame/StoreLocations.h"
#include "support/ShellFolders.h"
#include "support/StoreRoots.h"

#include <gmock/gmock.h>
#include <string>

namespace norvepa
{
namespace
{

using test::FixedFolder;

class RootByFixedFolder : public testing::Test
{
protected:
    RootByFixedFolder()
    {
        test::MakeFolders(applicationData);
        test::MakeFolders(programFiles);
        test::SetCommonApplicationData(applicationData);
        test::SetCommonProgramFiles(programFiles);
    }

    test::RedirectedRegistry registry;
    test::TemporaryFolder folder;
    std::wstring applicationData = folder / L"ProgramData";
    std::wstring programFiles = folder / L"Common Files";
};

TEST_F(RootByFixedFolder, LiesBelowAShellFolderOfItsOwnForEachRoot)
{
    test::MakeFolders(applicationData + L"\\" + FixedFolder);
    test::MakeFolders(programFiles + L"\\" + FixedFolder);

    EXPECT_EQ(GetDataFolder(), applicationData + L"\\Marvolt\\Automation\\Corvane OAM");
    EXPECT_EQ(GetProgramFolder(), programFiles + L"\\Marvolt\\Automation\\Corvane OAM");
}

TEST_F(RootByFixedFolder, IsTakenWhenTheKeyIsThereWithoutTheValue)
{
    test::MakeFolders(applicationData + L"\\" + FixedFolder);
    test::SetMachineText(test::LocationsKey, L"Corvane_Oam", L"C:\\Store");

    EXPECT_EQ(GetDataFolder(), applicationData + L"\\" + FixedFolder);
    EXPECT_EQ(GetProgramFolder(), L"C:\\Store");
}

TEST_F(RootByFixedFolder, IsEmptyWhenItIsNotThere)
{
    EXPECT_EQ(GetDataFolder(), L"");
    EXPECT_EQ(GetProgramFolder(), L"");
}

TEST_F(RootByFixedFolder, IsEmptyWhenItIsAFile)
{
    test::WriteBytes(applicationData + L"\\" + FixedFolder, "not a folder");
    test::WriteBytes(programFiles + L"\\" + FixedFolder, "not a folder");

    EXPECT_EQ(GetDataFolder(), L"");
    EXPECT_EQ(GetProgramFolder(), L"");
}

TEST_F(RootByFixedFolder, IsEmptyWhenTheShellKnowsNoFolder)
{
    test::SetCommonApplicationData(folder / L"gone");
    test::SetCommonProgramFiles(folder / L"gone");

    EXPECT_EQ(GetDataFolder(), L"");
    EXPECT_EQ(GetProgramFolder(), L"");
    EXPECT_FALSE(test::Exists(folder / L"gone")); // nobody makes it
}

TEST_F(RootByFixedFolder, IsTestedAnewAtEachCall)
{
    EXPECT_EQ(GetDataFolder(), L"");

    test::MakeFolders(applicationData + L"\\" + FixedFolder);

    EXPECT_EQ(GetDataFolder(), applicationData + L"\\" + FixedFolder);
}

} // namespace
} // namespace norvepa

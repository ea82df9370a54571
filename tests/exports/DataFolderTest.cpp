#include "support/LogNameCalls.h"
#include "support/ShellFolders.h"

namespace norvepa::test
{
namespace
{

class DataFolder : public LogNames
{
protected:
    DataFolder() { SetCommonApplicationData(shellFolder); }

    void WriteBelow(const std::wstring& root, const std::wstring& value) const
    {
        WriteBytes(root + L"\\data\\LogNames\\Pumpe.xml", LogNameFile(XmlContent().Text(L"Station", value)));
    }

    std::wstring shellFolder = roots.folder().path();
    std::wstring fixedFolder = shellFolder + L"\\" + FixedFolder;
};

TEST_F(DataFolder, IsTheRegistrysAheadOfTheFixedOne)
{
    WriteBelow(roots.data(), L"of the registry");
    WriteBelow(fixedFolder, L"of the fixed folder");

    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"of the registry");
}

TEST_F(DataFolder, OfTheRegistryIsUsedEvenIfItIsMissing)
{
    WriteBelow(fixedFolder, L"of the fixed folder");
    SetMachineText(LocationsKey, L"Corvane_Oam_Data", roots.folder() / L"gone");

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(DataFolder, IsTheFixedOneWithoutAValue)
{
    WriteBelow(fixedFolder, L"of the fixed folder");
    DeleteMachineValue(LocationsKey, L"Corvane_Oam_Data");

    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"of the fixed folder");
}

TEST_F(DataFolder, IsTheFixedOneWithoutAKey)
{
    WriteBelow(fixedFolder, L"of the fixed folder");
    DeleteMachineKey(LocationsKey);

    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"of the fixed folder");
}

TEST_F(DataFolder, IsTheFixedOneWithAValueOf127Characters)
{
    WriteBelow(fixedFolder, L"of the fixed folder");
    SetMachineText(LocationsKey, L"Corvane_Oam_Data", L"C:\\" + std::wstring(124, L'r'));

    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"of the fixed folder");
}

TEST_F(DataFolder, IsNotFoundWithoutEither)
{
    DeleteMachineKey(LocationsKey);
    OutputBuffer value(20);

    EXPECT_EQ(Read(L"Pumpe", L"Station", value), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 20U);
}

TEST_F(DataFolder, OfAnEmptyValueIsNotFound)
{
    WriteBelow(fixedFolder, L"of the fixed folder");
    SetMachineText(LocationsKey, L"Corvane_Oam_Data", L"");

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_FOLDER_NOT_FOUND);
}

TEST_F(DataFolder, IsLookedUpAnewAtEachCall)
{
    WriteBelow(roots.data(), L"first");
    WriteBelow(roots.folder() / L"second", L"second");
    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"first");

    SetMachineText(LocationsKey, L"Corvane_Oam_Data", roots.folder() / L"second");
    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"second");
}

TEST_F(DataFolder, MayEndInABackslash)
{
    WriteBelow(roots.data(), L"found");
    SetMachineText(LocationsKey, L"Corvane_Oam_Data", roots.data() + L"\\");

    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"found");
}

} // namespace
} // namespace norvepa::test

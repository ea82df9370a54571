#include "service/DeviceScene.h"

namespace norvepa::test
{
namespace
{

constexpr ExportFrame Frame{"DeviceCatalogueTest: "};

class DeviceCatalogues : public DeviceScene
{
protected:
    void WriteDeviceOf(std::wstring_view board, std::wstring_view protocol) const
    {
        store.WriteDevice(L"Presse", XmlContent(), board, protocol);
    }
};

TEST_F(DeviceCatalogues, NameTheFilesOfBoardAndProtocol)
{
    WriteDeviceOf(L"*AFK220", L"L2");
    DeviceCatalogue catalogue(L"Presse");

    EXPECT_EQ(catalogue.Unavailable(Frame), std::nullopt);

    EXPECT_EQ(catalogue.board() + L".xml", roots.board(L"AFK220"));
    EXPECT_EQ(catalogue.protocol() + L".xml", roots.protocol(L"L2"));
}

TEST_F(DeviceCatalogues, StandForACallWhateverChangesMeanwhile)
{
    WriteDeviceOf(L"AFK220", L"L2");
    DeviceCatalogue during(L"Presse");
    ASSERT_EQ(during.Unavailable(Frame), std::nullopt);

    WriteDeviceOf(L"AFK110", L"MPI");
    DeviceCatalogue after(L"Presse");

    EXPECT_EQ(during.Unavailable(Frame), std::nullopt);
    EXPECT_EQ(during.board() + L".xml", roots.board(L"AFK220"));
    EXPECT_EQ(after.Unavailable(Frame), std::nullopt);
    EXPECT_EQ(after.board() + L".xml", roots.board(L"AFK110"));
}

TEST_F(DeviceCatalogues, TakeTheDataFolderTheyAreGiven)
{
    WriteDeviceOf(L"AFK220", L"L2");
    DeviceCatalogue catalogue(L"Presse", roots.data());
    store.TakeDataFolderAway();

    EXPECT_EQ(catalogue.dataFolder(), roots.data());
    EXPECT_EQ(catalogue.Unavailable(Frame), std::nullopt);
}

TEST_F(DeviceCatalogues, AreUnavailableWithoutADataFolderAndKnowNothingWithoutAProgramFolder)
{
    store.TakeProgramFolderAway();
    DeviceCatalogue withoutProgram(L"Presse");
    EXPECT_EQ(withoutProgram.Unavailable(Frame), PGSP_OK);

    store.TakeDataFolderAway();
    DeviceCatalogue withoutBoth(L"Presse");
    EXPECT_EQ(withoutBoth.Unavailable(Frame), PGSP_ERR_FOLDER_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test

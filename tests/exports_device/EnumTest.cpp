#include "EnumScene.h"
#include "support/Eventually.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class Enum : public EnumScene
{
};

TEST_F(Enum, GivesEveryDeviceInTheFoldersOrder)
{
    for (const wchar_t* const name : {L"m", L"a", L"Z", L"0", L"\u00E4", L"_", L"b2", L"b10", L"B1"})
    {
        store.WriteDevice(name, {});
    }

    EXPECT_EQ(All().size(), 9U);
    EXPECT_EQ(All(), FoldersOrder());
}

TEST_F(Enum, EndsAtOnceWithoutDevicesOrWithoutTheFolder)
{
    EXPECT_THAT(All(), IsEmpty());

    std::filesystem::remove(store.deviceFolder());
    EXPECT_THAT(All(), IsEmpty());
}

TEST_F(Enum, LeavesOutWhatIsHiddenByTheSectionNdi)
{
    WriteHidden(L"a", L"true");
    WriteHidden(L"b", L"TRUE");
    WriteHidden(L"c", L"false");
    WriteHidden(L"d", L"");
    WriteHidden(L"e", L"true ");
    store.WriteDevice(L"f", Section(L"Ndi", L"HIDDEN", L"True"));
    store.WriteDevice(L"g", Section(L"DeviceHeader", L"hidden", L"true"));
    store.WriteDevice(L"h", Section(L"SpareSection", L"hidden", L"true"));
    WriteBytes(roots.logDevice(L"i"), XmlFile(L"LogDevice", {{L"hidden", L"true"}}, {}));

    EXPECT_THAT(All(), UnorderedElementsAre(L"c", L"d", L"e", L"g", L"h", L"i"));
}

TEST_F(Enum, CountsNotAtAllWhatIsLeftOut)
{
    for (const wchar_t* const name : {L"a", L"b", L"c", L"d"})
    {
        store.WriteDevice(name, {});
    }
    const Names order = FoldersOrder();
    WriteHidden(order[1], L"true");
    OutputBuffer name(260);

    EXPECT_EQ(GetEnum(nullptr, 1, name), PGSP_OK);

    EXPECT_EQ(name.text(), order[2]);
    EXPECT_THAT(All(), ElementsAre(order[0], order[2], order[3]));
}

TEST_F(Enum, GivesTheDevicesOfATypeInAnyCase)
{
    WriteType(L"a", L"MPI");
    WriteType(L"b", L"mpi");
    WriteType(L"c", L"L2");
    WriteType(L"d", L"");
    WriteType(L"e", L"MPI ");

    EXPECT_THAT(All(L"mpi"), UnorderedElementsAre(L"a", L"b"));
    EXPECT_THAT(All(L"L2"), ElementsAre(L"c"));
    EXPECT_THAT(All(L"MPI "), ElementsAre(L"e"));
    EXPECT_THAT(All(L"M"), IsEmpty());
    EXPECT_EQ(All(nullptr).size(), 5U);
}

TEST_F(Enum, TakesAnEmptyTypeForATypeLikeAnyOther)
{
    WriteType(L"a", L"MPI");
    WriteType(L"b", L"");

    EXPECT_THAT(All(L""), ElementsAre(L"b"));
}

TEST_F(Enum, GivesADeviceWhoseTypeCanNotBeReadUnderNoType)
{
    WriteBytes(roots.logDevice(L"without"), XmlFile(L"LogDevice", {{L"DeviceID", L"AFK110"}}, {}));
    WriteBytes(roots.logDevice(L"broken"), "no XML");
    MakeFolders(roots.logDevice(L"folder"));

    EXPECT_THAT(All(L""), IsEmpty());
    EXPECT_THAT(All(L"MPI"), IsEmpty());
    EXPECT_THAT(All(), UnorderedElementsAre(L"without", L"broken", L"folder"));
}

// The service's own read: an attribute, or else a parameter of five sections, of which `Ndi` isn't one.

TEST_F(Enum, FindsATypeThatIsAParameterToo)
{
    const auto write = [&](const wchar_t* name, const XmlContent& content) {
        WriteBytes(roots.logDevice(name), XmlFile(L"LogDevice", {}, content));
    };
    write(L"a", Section(L"DeviceHeader", L"CP_TYPE", L"MPI"));
    write(L"b", Section(L"SpareSection", L"cp_type", L"MPI"));
    write(L"c", Section(L"Ndi", L"CP_TYPE", L"MPI"));
    write(L"d", Section(L"UserInterface", L"CP_TYPE", L"MPI"));
    write(L"e",
          Section(L"SpareSection", L"CP_TYPE", L"L2").Raw(Section(L"Bindings", L"CP_TYPE", L"MPI").utf8()));
    store.WriteDevice(L"f", Section(L"DeviceHeader", L"CP_TYPE", L"L2"));

    EXPECT_THAT(All(L"MPI"), UnorderedElementsAre(L"a", L"b", L"e", L"f"));
}

TEST_F(Enum, AsksTheCatalogueForNoType)
{
    store.WriteBoard(Catalogue().Parameter(L"CP_TYPE", {{L"default", L"MPI"}}));
    WriteBytes(roots.logDevice(L"a"), XmlFile(L"LogDevice", {{L"DeviceID", OurBoard}}, {}));

    EXPECT_THAT(All(L"MPI"), IsEmpty());
}

TEST_F(Enum, LeavesOutTemporaryDevicesByTheirNameInItsExactForm)
{
    for (const wchar_t* const name :
         {L"PGSP_TEMP_LOG_DEVICE____001", L"PGSP_TEMP_LOG_DEVICE____", L"PGSP_TEMP_LOG_DEVICE____x y",
          L"PGSP_TEMP_LOG_DEVICE___001", L"pgsp_temp_log_device____002", L"xPGSP_TEMP_LOG_DEVICE____001"})
    {
        store.WriteDevice(name, {});
    }

    EXPECT_THAT(All(), UnorderedElementsAre(L"PGSP_TEMP_LOG_DEVICE___001", L"pgsp_temp_log_device____002",
                                            L"xPGSP_TEMP_LOG_DEVICE____001"));
    EXPECT_EQ(All(L"MPI"), All());
}

TEST_F(Enum, GoesOnByARelativePathWithoutTheDataFolder)
{
    store.WriteDevice(L"Presse", {});
    WriteBytes(roots.folder() / L"data\\LogDevices\\Band.xml", LogDeviceFile({}));
    store.TakeDataFolderAway();
    EXPECT_THAT(All(), IsEmpty());

    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(roots.folder().path());
    EXPECT_THAT(All(), ElementsAre(L"Band"));
    EXPECT_THAT(All(L"MPI"), IsEmpty()); // the reads behind the filter do test the folder
    library.NorvepaBl64x_deinit();
    std::filesystem::current_path(before);
}

TEST_F(Enum, ShowsWhatIsMadeAndHidesWhatIsDeleted)
{
    EXPECT_THAT(All(), IsEmpty());
    store.WriteDevice(L"Presse", {});
    EXPECT_TRUE(Eventually([&] { return All() == Names{L"Presse"}; }));

    WriteHidden(L"Presse", L"true"); // its content is read at every call
    EXPECT_THAT(All(), IsEmpty());

    store.WriteDevice(L"Presse", {});
    EXPECT_THAT(All(), ElementsAre(L"Presse"));

    std::filesystem::remove(roots.logDevice(L"Presse"));
    EXPECT_TRUE(Eventually([&] { return All().empty(); }));
}

} // namespace
} // namespace norvepa::test

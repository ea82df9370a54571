#include "EnumByDeviceIdScene.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class EnumByDeviceId : public EnumByDeviceIdScene
{
protected:
    [[nodiscard]] Names Enumerated() const
    {
        Names names;
        OutputBuffer name(260);
        while (library.LogDeviceGetEnumBL(nullptr, static_cast<std::uint32_t>(names.size()), name.data(),
                                          &name.length) == PGSP_OK)
        {
            names.push_back(name.text());
            name = OutputBuffer(260);
        }
        return names;
    }
};

TEST_F(EnumByDeviceId, GivesTheDevicesOfABoardWithTheirUnits)
{
    WriteUnit(L"a", L"1");
    WriteUnit(L"b", L"1", L"AFK220");
    WriteUnit(L"c", L"3");

    EXPECT_THAT(All(), UnorderedElementsAre(std::pair(L"a", L"1"), std::pair(L"c", L"3")));
    EXPECT_THAT(All(L"AFK220"), ElementsAre(std::pair(L"b", L"1")));
    EXPECT_THAT(All(L"AFK"), IsEmpty());
    EXPECT_THAT(All(L""), IsEmpty());
}

TEST_F(EnumByDeviceId, FollowsTheOrderOfTheEnumeration)
{
    for (const wchar_t* const name : {L"m", L"a", L"Z", L"0", L"\u00E4", L"b2", L"b10"})
    {
        WriteUnit(name, L"1");
    }

    Names names;
    for (const auto& [name, unit] : All())
    {
        names.push_back(name);
    }

    EXPECT_EQ(names.size(), 7U);
    EXPECT_EQ(names, Enumerated());
}

TEST_F(EnumByDeviceId, TakesTheIdentityInAnyCaseButWithItsStar)
{
    WriteUnit(L"a", L"1", L"*AFK110");
    WriteUnit(L"b", L"2", L"*afk110");
    WriteUnit(L"c", L"3", L"AFK110");

    EXPECT_THAT(All(L"*Afk110"), UnorderedElementsAre(std::pair(L"a", L"1"), std::pair(L"b", L"2")));
    EXPECT_THAT(All(L"afk110"), ElementsAre(std::pair(L"c", L"3")));
}

TEST_F(EnumByDeviceId, TellsIdentitiesApartByTheirFirst260Characters)
{
    const std::wstring same(260, L'k');
    WriteUnit(L"a", L"1", same + L"1");
    WriteUnit(L"b", L"2", same + L"2");
    WriteUnit(L"c", L"3", same.substr(1) + L"1");

    EXPECT_EQ(All((same + L"3").c_str()).size(), 2U);
    EXPECT_EQ(All((same.substr(1) + L"1").c_str()).size(), 1U);
    EXPECT_EQ(All((same.substr(1) + L"2").c_str()).size(), 0U);
}

TEST_F(EnumByDeviceId, LeavesOutWhatHasNoUnitOrNoIdentity)
{
    store.WriteDevice(L"no unit", {});
    WriteUnit(L"empty unit", L"");
    WriteUnit(L"empty identity", L"1", L"");
    WriteUnit(L"unit too long", std::wstring(260, L'9').c_str());
    WriteBytes(roots.logDevice(L"no identity"),
               XmlFile(L"LogDevice", {}, Section(L"DeviceHeader", L"Unit", L"1")));
    WriteBytes(roots.logDevice(L"broken"), "no XML");
    const std::wstring longest(259, L'9');
    WriteUnit(L"longest unit", longest.c_str());

    EXPECT_THAT(All(), ElementsAre(std::pair(std::wstring(L"longest unit"), longest)));
    EXPECT_THAT(All(L""), IsEmpty());
}

TEST_F(EnumByDeviceId, LeavesOutWhatTheEnumerationLeavesOut)
{
    store.WriteDevice(
        L"hidden", Section(L"DeviceHeader", L"Unit", L"1").Raw(Section(L"Ndi", L"hidden", L"true").utf8()));
    WriteUnit(L"PGSP_TEMP_LOG_DEVICE____001", L"1");
    WriteUnit(L"a", L"1");

    EXPECT_THAT(All(), ElementsAre(std::pair(L"a", L"1")));
}

// The unit is read as a caller reads it, the identity by the service's own read.

TEST_F(EnumByDeviceId, ReadsTheUnitByTheCatalogueAndTheIdentityAlsoAsAParameter)
{
    store.WriteBoard(Catalogue().Parameter(L"Unit", {{L"default", L"7"}}));
    store.WriteBoard(Catalogue().Parameter(L"Unit", {{L"section", L"Bindings"}}), L"AFK220");
    store.WriteDevice(L"by default", {});
    store.WriteDevice(L"by section",
                      Section(L"DeviceHeader", L"Unit", L"1").Raw(Section(L"Bindings", L"Unit", L"2").utf8()),
                      L"AFK220");
    WriteBytes(roots.logDevice(L"by parameter"),
               XmlFile(L"LogDevice", {},
                       Section(L"DeviceHeader", L"Unit", L"3")
                           .Raw(Section(L"SpareSection", L"DeviceID", L"ANK300").utf8())));

    EXPECT_THAT(All(L"AFK110"), ElementsAre(std::pair(L"by default", L"7")));
    EXPECT_THAT(All(L"AFK220"), ElementsAre(std::pair(L"by section", L"2")));
    EXPECT_THAT(All(L"ANK300"), ElementsAre(std::pair(L"by parameter", L"3")));
}

TEST_F(EnumByDeviceId, KeepsAUnitThatChangesUntilAFileComesOrGoes)
{
    WriteUnit(L"a", L"1");
    EXPECT_THAT(All(), ElementsAre(std::pair(L"a", L"1")));

    ASSERT_EQ(library.LogDeviceSetValueBL(L"a", L"Unit", L"2"), PGSP_OK);
    EXPECT_EQ(Value(L"a", L"Unit"), L"2");
    EXPECT_THAT(All(), ElementsAre(std::pair(L"a", L"1")));

    WriteUnit(L"b", L"3");
    EXPECT_TRUE(Becomes({{L"a", L"2"}, {L"b", L"3"}}));
}

TEST_F(EnumByDeviceId, KeepsItsAnswersWhenALogNameComes)
{
    WriteUnit(L"a", L"1");
    EXPECT_THAT(All(), ElementsAre(std::pair(L"a", L"1")));
    ASSERT_EQ(library.LogDeviceSetValueBL(L"a", L"Unit", L"2"), PGSP_OK);

    ASSERT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_OK);
    EXPECT_THAT(All(), ElementsAre(std::pair(L"a", L"1")));
}

TEST_F(EnumByDeviceId, IsReadAnewAtEachCallAsLongAsItIsEmpty)
{
    WriteUnit(L"a", L"");
    EXPECT_THAT(All(), IsEmpty());

    ASSERT_EQ(library.LogDeviceSetValueBL(L"a", L"Unit", L"2"), PGSP_OK);

    EXPECT_THAT(All(), ElementsAre(std::pair(L"a", L"2")));
}

TEST_F(EnumByDeviceId, IsReadAnewAtEachCallWithoutTheWatch)
{
    std::filesystem::remove(roots.data() + L"\\data\\LogNames");
    WriteUnit(L"a", L"1");
    EXPECT_THAT(All(), ElementsAre(std::pair(L"a", L"1")));

    ASSERT_EQ(library.LogDeviceSetValueBL(L"a", L"Unit", L"2"), PGSP_OK);

    EXPECT_THAT(All(), ElementsAre(std::pair(L"a", L"2")));
}

TEST_F(EnumByDeviceId, SeesWhatAnotherProcessAddsAndRemoves)
{
    Peer peer(L"notify_peer.exe", roots.registry());
    WriteUnit(L"a", L"1");
    EXPECT_TRUE(Becomes({{L"a", L"1"}}));

    Move(peer, Prepare(L"b", L"2"), roots.logDevice(L"b"));
    EXPECT_TRUE(Becomes({{L"a", L"1"}, {L"b", L"2"}}));

    Move(peer, roots.logDevice(L"a"), roots.logDevice(L"c"));
    EXPECT_TRUE(Becomes({{L"b", L"2"}, {L"c", L"1"}}));

    EXPECT_EQ(peer.Ask("remove " + ToUtf8(roots.logDevice(L"b"))), "done");
    EXPECT_TRUE(Becomes({{L"c", L"1"}}));

    EXPECT_EQ(peer.Ask("remove " + ToUtf8(roots.logDevice(L"c"))), "done");
    EXPECT_TRUE(Becomes({}));
}

TEST_F(EnumByDeviceId, GoesOnAfterDeinit)
{
    WriteUnit(L"a", L"1");
    EXPECT_TRUE(Becomes({{L"a", L"1"}}));

    library.NorvepaBl64x_deinit();
    EXPECT_THAT(All(), ElementsAre(std::pair(L"a", L"1")));

    WriteUnit(L"b", L"2");
    EXPECT_TRUE(Becomes({{L"a", L"1"}, {L"b", L"2"}}));
}

TEST_F(EnumByDeviceId, EndsAtOnceWithoutTheDataFolder)
{
    WriteUnit(L"a", L"1");
    store.TakeDataFolderAway();

    OutputBuffer name(20);
    OutputBuffer unit(20);
    EXPECT_EQ(Enum(L"AFK110", 0, name, unit), PGSP_ERR_NO_MORE_ITEMS);
}

} // namespace
} // namespace norvepa::test

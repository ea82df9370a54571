#include "WatchScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class Listing : public WatchScene
{
protected:
    [[nodiscard]] Result Ask(const std::wstring& folder)
    {
        return getDirectoryContent(folder, roots.data(), listing);
    }

    std::shared_ptr<const DirectoryListing> listing;
};

TEST_F(Listing, OfNoFolderIsRefused)
{
    EXPECT_EQ(Ask(L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(calls.opened(), IsEmpty());
}

TEST_F(Listing, HoldsNamesWithoutExtension)
{
    MakeFile(logDevices(), L"Pumpe.xml");
    MakeFile(logDevices(), L"Presse.xml");

    EXPECT_EQ(Ask(logDevices()), PGSP_OK);

    EXPECT_THAT(*listing, UnorderedElementsAre(L"Pumpe", L"Presse"));
}

TEST_F(Listing, IsKept)
{
    MakeFile(logDevices(), L"Pumpe.xml");
    ASSERT_EQ(Ask(logDevices()), PGSP_OK);
    const auto first = listing;

    for (int i = 0; i < 10; ++i)
    {
        EXPECT_EQ(Ask(logDevices()), PGSP_OK);
        EXPECT_EQ(listing, first);
    }

    EXPECT_EQ(calls.scans(logDevices()), 1U);
}

TEST_F(Listing, IsFoundInAnyCase)
{
    MakeFile(logDevices(), L"Pumpe.xml");
    ASSERT_EQ(Ask(logDevices()), PGSP_OK);
    std::wstring other = logDevices();
    CharUpperW(other.data());

    EXPECT_EQ(Ask(other), PGSP_OK);

    EXPECT_THAT(*listing, ElementsAre(L"Pumpe"));
    EXPECT_EQ(calls.scans(other), 0U);
}

TEST_F(Listing, BelongsToItsFolder)
{
    MakeFile(logDevices(), L"Pumpe.xml");
    MakeFile(logNames(), L"Presse.xml");
    MakeFile(boards(), L"Karte.xml");

    EXPECT_THAT(WatchScene::Listing(logDevices()), ElementsAre(L"Pumpe"));
    EXPECT_THAT(WatchScene::Listing(logNames()), ElementsAre(L"Presse"));
    EXPECT_THAT(WatchScene::Listing(boards()), ElementsAre(L"Karte"));
    EXPECT_THAT(WatchScene::Listing(logDevices()), ElementsAre(L"Pumpe"));
}

TEST_F(Listing, OfAFolderWithoutFilesFailsAndIsScannedForEachTime)
{
    MakeFile(boards(), L"readme.txt");

    for (std::size_t i = 1; i <= 3; ++i)
    {
        EXPECT_EQ(Ask(boards()), NoListing);
        EXPECT_THAT(*listing, IsEmpty());
        EXPECT_EQ(calls.scans(boards()), i);
    }
}

TEST_F(Listing, OfAMissingFolderFailsUntilItIsThere)
{
    const std::wstring folder = roots.program() + L"\\meta\\Later";
    EXPECT_EQ(Ask(folder), NoListing);
    EXPECT_THAT(*listing, IsEmpty());

    MakeFile(folder, L"Karte.xml");

    EXPECT_EQ(Ask(folder), PGSP_OK);
    EXPECT_THAT(*listing, ElementsAre(L"Karte"));
}

TEST_F(Listing, ReplacesWhatTheCallerHad)
{
    MakeFile(logDevices(), L"Pumpe.xml");
    ASSERT_EQ(Ask(logDevices()), PGSP_OK);

    EXPECT_EQ(Ask(boards()), NoListing);

    EXPECT_THAT(*listing, IsEmpty());
}

TEST_F(Listing, OfAFolderUnderMetaStaysAsItWasFirstRead)
{
    MakeFile(boards(), L"Karte.xml");
    ASSERT_THAT(WatchScene::Listing(boards()), ElementsAre(L"Karte"));

    MakeFile(boards(), L"Neu.xml");
    MakeFile(logDevices(), L"Pumpe.xml"); // a change that is told
    ASSERT_TRUE(calls.AwaitChange(0));

    EXPECT_THAT(WatchScene::Listing(boards()), ElementsAre(L"Karte"));
    deinitWatchDirectories();
    EXPECT_THAT(WatchScene::Listing(boards()), ElementsAre(L"Karte"));
    EXPECT_EQ(calls.scans(boards()), 1U);
}

TEST_F(Listing, OfAFolderWithATrailingBackslashIsAnotherOne)
{
    MakeFile(logDevices(), L"Pumpe.xml");
    const std::wstring other = logDevices() + L"\\";
    ASSERT_THAT(WatchScene::Listing(logDevices()), ElementsAre(L"Pumpe"));
    ASSERT_THAT(WatchScene::Listing(other), ElementsAre(L"Pumpe"));

    MakeFile(logDevices(), L"Presse.xml");
    ASSERT_TRUE(calls.AwaitChange(0));

    EXPECT_THAT(WatchScene::Listing(logDevices()), UnorderedElementsAre(L"Pumpe", L"Presse"));
    EXPECT_THAT(WatchScene::Listing(other), ElementsAre(L"Pumpe"));
    EXPECT_EQ(calls.scans(other), 1U);
}

TEST_F(Listing, IsToldFromOthersByTheFirst260CharactersOfItsPath)
{
    std::wstring common = L"\\\\?\\" + roots.folder().path() + L"\\";
    while (common.size() < 200)
    {
        common += std::wstring(std::min<std::size_t>(200 - common.size() + 1, 50), L'd') + L"\\";
    }
    common += std::wstring(260 - common.size(), L'e');
    for (const wchar_t* const tail : {L"", L"1", L"2"})
    {
        MakeFile(common + tail, std::wstring(L"Datei") + tail + L".xml");
    }
    const std::wstring shorter = common.substr(0, 259);
    MakeFile(shorter, L"Kurz.xml");

    EXPECT_THAT(WatchScene::Listing(common + L"1"), ElementsAre(L"Datei1"));
    EXPECT_THAT(WatchScene::Listing(common + L"2"), ElementsAre(L"Datei1"));
    EXPECT_THAT(WatchScene::Listing(common), ElementsAre(L"Datei1"));
    EXPECT_THAT(WatchScene::Listing(shorter), ElementsAre(L"Kurz"));
}

} // namespace
} // namespace norvepa::test

#include "NotifyTraceScene.h"
#include "notify/directoryCache.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

std::string ContentLine(std::string_view message)
{
    return TraceLine("getDirectoryContent: ", message);
}

class ListingTrace : public NotifyTraceScene
{
protected:
    ListingTrace()
    {
        EXPECT_EQ(initWatchDirectories(roots.data()), PGSP_OK);
        entry = ContentLine(">> directory = " + ToAnsi(folder));
    }

    [[nodiscard]] Result Ask(const std::wstring& path) const
    {
        std::shared_ptr<const DirectoryListing> listing;
        return getDirectoryContent(path, roots.data(), listing);
    }

    const std::wstring folder = roots.program() + L"\\meta\\Boards";
    std::string entry;
};

TEST_F(ListingTrace, OfAScanTellsEachPlainName)
{
    WriteBytes(folder + L"\\1#3f.xml", "");
    WriteBytes(folder + L"\\2F\u00F6rderband.xml", "");
    Trace();

    EXPECT_EQ(Ask(folder), PGSP_OK);

    EXPECT_THAT(Lines(), ElementsAre(entry, ContentLine("adding file 1?"),
                                     ContentLine("adding file " + ToAnsi(L"2F\u00F6rderband")),
                                     ContentLine("<< retVal=0")));
}

TEST_F(ListingTrace, OfAKnownListingIsSilent)
{
    WriteBytes(folder + L"\\Karte.xml", "");
    ASSERT_EQ(Ask(folder), PGSP_OK);
    Trace();

    EXPECT_EQ(Ask(folder), PGSP_OK);

    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(ListingTrace, OfAFolderWithoutFilesTellsThatItCanNotBeRead)
{
    Trace();

    EXPECT_EQ(Ask(folder), NoListing);

    EXPECT_THAT(Lines(), ElementsAre(entry, ContentLine("ERROR: directory cannot be read"),
                                     ContentLine("<< retVal=-1")));
}

TEST_F(ListingTrace, OfNoFolderIsAWarning)
{
    Trace();
    EXPECT_EQ(Ask(L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_THAT(Lines(), ElementsAre(ContentLine("<< invalid parameters")));

    Trace(L"0x10");
    EXPECT_EQ(Ask(L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_THAT(Lines(), ElementsAre(ContentLine("<< invalid parameters")));
}

TEST_F(ListingTrace, KeepsToTheLevelsOfItsKinds)
{
    Trace(L"0x10");
    EXPECT_EQ(Ask(folder), NoListing);
    EXPECT_THAT(Lines(), ElementsAre(ContentLine("ERROR: directory cannot be read")));

    Trace(L"0x80");
    EXPECT_EQ(Ask(folder), NoListing);
    EXPECT_THAT(Lines(), ElementsAre(ContentLine("<< retVal=-1")));

    WriteBytes(folder + L"\\Karte.xml", "");
    Trace(L"0x8");
    EXPECT_EQ(Ask(folder), PGSP_OK);
    EXPECT_THAT(Lines(), ElementsAre(entry, ContentLine("adding file Karte")));
}

} // namespace
} // namespace norvepa::test

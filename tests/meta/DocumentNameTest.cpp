#include "meta/MetaScene.h"
#include "meta/cMetaFiles.h"

namespace norvepa::test
{
namespace
{

using DocumentName = MetaScene;

constexpr std::size_t LongestPath = 259;

// A name without extension whose whole path has this many characters with it.
std::wstring NameFor(const TemporaryFolder& folder, std::size_t pathLength)
{
    return std::wstring(pathLength - (folder / L".xml").size(), L'n');
}

TEST_F(DocumentName, IsEscapedOnDisk)
{
    File(L"a(nmbr)1#253a#3a#2a#3f#3c#3e#7c#2f.xml", "<Profile Name='escaped'/>");

    EXPECT_EQ(Outline(MetaGetDocument(folder() / L"a#1%3a:*?<>|/").get()), "Profile{Name=escaped}");
}

TEST_F(DocumentName, IsEscapedBehindTheLastBackslashOnly)
{
    File(L"50%\\a#25.xml", "<Profile Name='escaped'/>");

    EXPECT_EQ(Outline(MetaGetDocument(folder() / L"50%\\a%").get()), "Profile{Name=escaped}");
}

TEST_F(DocumentName, IsKeptAsItWasAskedFor)
{
    File(L"a#25.xml", "<Profile Name='of a%'/>");
    File(L"a(nmbr)25.xml", "<Profile Name='of a#25'/>");
    const MetaDocument asked = MetaGetDocument(folder() / L"a%");

    const MetaDocument askedAsOnDisk = MetaGetDocument(folder() / L"a#25");

    EXPECT_EQ(Outline(asked.get()), "Profile{Name=of a%}");
    EXPECT_EQ(Outline(askedAsOnDisk.get()), "Profile{Name=of a#25}");
}

TEST_F(DocumentName, MayMakeAPathOf259Characters)
{
    const std::wstring name = NameFor(folder(), LongestPath);
    File(name + L".xml", "<Profile Name='long'/>");

    EXPECT_EQ(Outline(MetaGetDocument(folder() / name).get()), "Profile{Name=long}");
}

TEST_F(DocumentName, OfALongerPathIsNoFilesNorThatOfAFileWithACutName)
{
    const std::wstring path = folder() / NameFor(folder(), LongestPath + 1);
    WriteBytes(path.substr(0, LongestPath), "<Profile Name='cut'/>");
    WriteBytes(path.substr(0, LongestPath - 4) + L".xml", "<Profile Name='cut'/>");

    EXPECT_EQ(MetaGetDocument(path), nullptr);
    EXPECT_EQ(MetaGetDocument(path + std::wstring(100'000, L'n')), nullptr);
}

TEST_F(DocumentName, IsMeasuredEscaped)
{
    std::wstring name = NameFor(folder(), LongestPath - 2);
    File(L"#25" + name.substr(1) + L".xml", "<Profile Name='long'/>");
    name.front() = L'%';

    EXPECT_EQ(Outline(MetaGetDocument(folder() / name).get()), "Profile{Name=long}");
    EXPECT_EQ(MetaGetDocument(folder() / (name + L'n')), nullptr);
}

} // namespace
} // namespace norvepa::test

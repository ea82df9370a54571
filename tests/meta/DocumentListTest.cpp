#include "meta/MetaScene.h"
#include "meta/cMetaFiles.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

using DocumentList = MetaScene;

std::string FileWith(std::wstring_view minimum)
{
    return XmlFile(L"Profile", {}, XmlContent().Element(L"min", minimum));
}

std::string OutlineWith(const std::string& minimum)
{
    return "Profile[min=\"" + minimum + "\"]";
}

// As a caller spells it who has never heard of small letters.
std::wstring InCapitals(std::wstring path)
{
    CharUpperBuffW(path.data(), static_cast<DWORD>(path.size()));
    return path;
}

TEST_F(DocumentList, AnswersTheRootOfAFile)
{
    const std::wstring file = File(L"a.xml", FileWith(L"1"));

    EXPECT_EQ(Outline(MetaGetDocument(file).get()), OutlineWith("1"));
}

TEST_F(DocumentList, HasOneDocumentForEverySpelling)
{
    File(L"a.xml", FileWith(L"1"));

    const MetaDocument document = MetaGetDocument(folder() / L"a");

    ASSERT_NE(document, nullptr);
    EXPECT_EQ(MetaGetDocument(folder() / L"A.xml"), document);
    EXPECT_EQ(MetaGetDocument(InCapitals(folder() / L"a")), document);
    EXPECT_EQ(MetaGetDocument(InCapitals(folder() / L"a") + L".xml"), document);
}

TEST_F(DocumentList, HasADocumentForEachFile)
{
    const MetaDocument first = MetaGetDocument(File(L"a.xml", FileWith(L"1")));
    const MetaDocument second = MetaGetDocument(File(L"b.xml", FileWith(L"2")));

    EXPECT_EQ(Outline(first.get()), OutlineWith("1"));
    EXPECT_EQ(Outline(second.get()), OutlineWith("2"));
}

TEST_F(DocumentList, TakesAnExtensionInCapitalsForNone)
{
    File(L"a.XML.xml", FileWith(L"1"));

    EXPECT_EQ(Outline(MetaGetDocument(folder() / L"a.XML").get()), OutlineWith("1"));
}

TEST_F(DocumentList, TakesAnExtensionInAFoldersNameForTheFiles)
{
    File(L"folder.xml\\a", FileWith(L"1"));
    File(L"folder.xml\\a.xml", FileWith(L"2"));

    EXPECT_EQ(Outline(MetaGetDocument(folder() / L"folder.xml\\a").get()), OutlineWith("1"));
}

TEST_F(DocumentList, DoesNotFollowTheFile)
{
    const std::wstring file = File(L"a.xml", FileWith(L"1"));
    const MetaDocument document = MetaGetDocument(file);

    File(L"a.xml", FileWith(L"2"));

    EXPECT_EQ(MetaGetDocument(file), document);
    ASSERT_TRUE(DeleteFileW(file.c_str()));
    EXPECT_EQ(MetaGetDocument(file), document);
}

TEST_F(DocumentList, TriesAFileAgainThatWasMissing)
{
    EXPECT_EQ(MetaGetDocument(folder() / L"a"), nullptr);

    File(L"a.xml", FileWith(L"1"));

    EXPECT_EQ(Outline(MetaGetDocument(folder() / L"a").get()), OutlineWith("1"));
}

TEST_F(DocumentList, TriesAFileAgainThatNobodyCouldRead)
{
    const std::wstring file = File(L"a.xml", FileWith(L"1"));
    const HANDLE exclusive =
        CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(exclusive, INVALID_HANDLE_VALUE);
    EXPECT_EQ(MetaGetDocument(file), nullptr);

    CloseHandle(exclusive);

    EXPECT_EQ(Outline(MetaGetDocument(file).get()), OutlineWith("1"));
}

TEST_F(DocumentList, TriesAFileAgainThatHeldNothingKnown)
{
    const std::wstring file = File(L"a.xml", "<odd></odd>");
    EXPECT_EQ(MetaGetDocument(file), nullptr);

    File(L"a.xml", FileWith(L"1"));

    EXPECT_EQ(Outline(MetaGetDocument(file).get()), OutlineWith("1"));
}

TEST_F(DocumentList, KeepsWhatABrokenFileYielded)
{
    const std::wstring file = File(L"a.xml", "<Profile><min>1</wrong></Profile>");
    EXPECT_EQ(Outline(MetaGetDocument(file).get()), R"(min="1")");

    File(L"a.xml", FileWith(L"1"));

    EXPECT_EQ(Outline(MetaGetDocument(file).get()), R"(min="1")");
}

TEST_F(DocumentList, LeavesTheFileFreeOnceItIsParsed)
{
    const std::wstring file = File(L"a.xml", FileWith(L"1"));
    const MetaDocument document = MetaGetDocument(file);

    EXPECT_TRUE(DeleteFileW(file.c_str()));
}

TEST_F(DocumentList, DoesNotTakeAFolderForAFile)
{
    MakeFolders(folder() / L"a.xml");

    EXPECT_EQ(MetaGetDocument(folder() / L"a"), nullptr);
    EXPECT_EQ(MetaGetDocument(L""), nullptr);
}

TEST_F(DocumentList, ParsesAFileAnewOnceItsDocumentIsDropped)
{
    const std::wstring file = File(L"a.xml", FileWith(L"1"));
    const MetaDocument other = MetaGetDocument(File(L"b.xml", FileWith(L"1")));
    const MetaDocument before = MetaGetDocument(file);
    File(L"a.xml", FileWith(L"2"));

    EXPECT_EQ(MetaDropDocument(file), PGSP_OK);

    EXPECT_EQ(Outline(MetaGetDocument(file).get()), OutlineWith("2"));
    EXPECT_EQ(MetaGetDocument(folder() / L"b"), other);
}

TEST_F(DocumentList, DropsADocumentByAnySpelling)
{
    const std::wstring file = File(L"a.xml", FileWith(L"1"));
    const MetaDocument before = MetaGetDocument(file);

    EXPECT_EQ(MetaDropDocument(InCapitals(folder() / L"a")), PGSP_OK);

    EXPECT_NE(MetaGetDocument(file), before);
}

TEST_F(DocumentList, DropsADocumentThatIsNotThereWithSuccess)
{
    const std::wstring file = File(L"a.xml", FileWith(L"1"));

    EXPECT_EQ(MetaDropDocument(file), PGSP_OK);
    EXPECT_EQ(MetaDropDocument(folder() / L"missing"), PGSP_OK);
    EXPECT_EQ(MetaDropDocument(L""), PGSP_OK);
}

TEST_F(DocumentList, ParsesEveryFileAnewOnceAllAreDropped)
{
    const std::wstring first = File(L"a.xml", FileWith(L"1"));
    const std::wstring second = File(L"b.xml", FileWith(L"1"));
    const MetaDocument before[] = {MetaGetDocument(first), MetaGetDocument(second)};
    File(L"a.xml", FileWith(L"2"));
    File(L"b.xml", FileWith(L"3"));

    MetaDropAllDocuments();
    MetaDropAllDocuments(); // with nothing to drop

    EXPECT_EQ(Outline(MetaGetDocument(first).get()), OutlineWith("2"));
    EXPECT_EQ(Outline(MetaGetDocument(second).get()), OutlineWith("3"));
}

TEST_F(DocumentList, LeavesABorrowedDocumentReadable)
{
    const std::wstring file = File(L"a.xml", FileWith(L"1"));
    const MetaDocument dropped = MetaGetDocument(file);
    EXPECT_EQ(MetaDropDocument(file), PGSP_OK);
    const MetaDocument droppedWithAll = MetaGetDocument(file);
    MetaDropAllDocuments();

    EXPECT_EQ(Outline(dropped.get()), OutlineWith("1"));
    EXPECT_EQ(Outline(droppedWithAll.get()), OutlineWith("1"));
}

} // namespace
} // namespace norvepa::test

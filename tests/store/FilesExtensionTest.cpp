#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

// The two rules by which a path gets its extension, seen by what becomes of real files.
class FilesExtensionTest : public WriteScene
{
protected:
    // An operation's path, and the file that it hits.
    [[nodiscard]] bool CreateMakes(const std::wstring& path, const std::wstring& file) const
    {
        return NorvXMLCreateFile((folder() / path).c_str(), L"nam") == PGSP_OK && Exists(folder() / file);
    }

    [[nodiscard]] bool CopyMakes(const std::wstring& path, const std::wstring& file) const
    {
        GivenFile("<a/>");
        return NorvXMLCopyFile(this->path().c_str(), (folder() / path).c_str()) == PGSP_OK &&
               Exists(folder() / file);
    }

    [[nodiscard]] bool RenameMakes(const std::wstring& path, const std::wstring& file) const
    {
        GivenFile("<a/>");
        return NorvXMLRenameFile(this->path().c_str(), (folder() / path).c_str()) == PGSP_OK &&
               Exists(folder() / file);
    }

    [[nodiscard]] bool DeleteRemoves(const std::wstring& path, const std::wstring& file) const
    {
        WriteBytes(folder() / file, "<a/>");
        return NorvXMLDeleteFile((folder() / path).c_str()) == PGSP_OK && !Exists(folder() / file);
    }

    [[nodiscard]] bool ExistsSees(const std::wstring& path, const std::wstring& file) const
    {
        WriteBytes(folder() / file, "<a/>");
        return NorvXMLFileExists((folder() / path).c_str()) == PGSP_ERR_FILE_EXISTS;
    }

    [[nodiscard]] bool SetChanges(const std::wstring& path, const std::wstring& file) const
    {
        WriteBytes(folder() / file, DeviceWith(XmlContent().Int(L"a", L"1")));
        return NorvXMLSetValue((folder() / path).c_str(), L"LocalSettings", L"a", L"2", L"int") == PGSP_OK &&
               MeaningOfFile(folder() / file) == MeaningOf(DeviceWith(XmlContent().Int(L"a", L"2")));
    }
};

TEST_F(FilesExtensionTest, APlainNameGetsItFromBothRules)
{
    EXPECT_TRUE(CreateMakes(L"a", L"a.xml"));
    EXPECT_TRUE(CopyMakes(L"b", L"b.xml"));
    EXPECT_TRUE(RenameMakes(L"c", L"c.xml"));
    EXPECT_TRUE(DeleteRemoves(L"d", L"d.xml"));
    EXPECT_TRUE(ExistsSees(L"e", L"e.xml"));
    EXPECT_TRUE(SetChanges(L"f", L"f.xml"));
}

TEST_F(FilesExtensionTest, ANameThatEndsInItGetsItFromNeitherRule)
{
    EXPECT_TRUE(CreateMakes(L"a.xml", L"a.xml"));
    EXPECT_TRUE(CopyMakes(L"b.xml", L"b.xml"));
    EXPECT_TRUE(RenameMakes(L"c.xml", L"c.xml"));
    EXPECT_TRUE(DeleteRemoves(L"d.xml", L"d.xml"));
    EXPECT_TRUE(ExistsSees(L"e.xml", L"e.xml"));
    EXPECT_TRUE(SetChanges(L"f.xml", L"f.xml"));
}

TEST_F(FilesExtensionTest, ANameThatHoldsItInTheMiddleTellsTheRulesApart)
{
    EXPECT_TRUE(CreateMakes(L"a.xml.old", L"a.xml.old"));
    EXPECT_TRUE(CopyMakes(L"b.xml.old", L"b.xml.old"));
    EXPECT_TRUE(RenameMakes(L"c.xml.old", L"c.xml.old.xml"));
    EXPECT_TRUE(DeleteRemoves(L"d.xml.old", L"d.xml.old.xml"));
    EXPECT_TRUE(ExistsSees(L"e.xml.old", L"e.xml.old.xml"));
    EXPECT_TRUE(SetChanges(L"f.xml.old", L"f.xml.old"));
}

TEST_F(FilesExtensionTest, AFolderThatHoldsItTellsTheRulesApart)
{
    MakeFolders(folder() / L"old.xml.d");

    EXPECT_TRUE(CreateMakes(L"old.xml.d\\a", L"old.xml.d\\a"));
    EXPECT_TRUE(CopyMakes(L"old.xml.d\\b", L"old.xml.d\\b"));
    EXPECT_TRUE(RenameMakes(L"old.xml.d\\c", L"old.xml.d\\c.xml"));
    EXPECT_TRUE(DeleteRemoves(L"old.xml.d\\d", L"old.xml.d\\d.xml"));
    EXPECT_TRUE(ExistsSees(L"old.xml.d\\e", L"old.xml.d\\e.xml"));
    EXPECT_TRUE(SetChanges(L"old.xml.d\\f", L"old.xml.d\\f"));
}

TEST_F(FilesExtensionTest, TheEndRuleLooksAtTheFirstOneOnly)
{
    EXPECT_TRUE(DeleteRemoves(L"a.xml.xml", L"a.xml.xml.xml"));
    EXPECT_TRUE(ExistsSees(L"b.xml.xml", L"b.xml.xml.xml"));
}

TEST_F(FilesExtensionTest, BothRulesAreOfExactCase)
{
    EXPECT_TRUE(CreateMakes(L"a.XML", L"a.XML.xml"));
    EXPECT_TRUE(DeleteRemoves(L"b.Xml", L"b.Xml.xml"));
}

TEST_F(FilesExtensionTest, CreateLooksForTheFileByTheEndRuleAndMakesItByTheOther)
{
    // The file that is tested isn't the file that is made, which loses what it held.
    WriteBytes(folder() / L"a.xml.old", "<a/>");

    EXPECT_EQ(NorvXMLCreateFile((folder() / L"a.xml.old").c_str(), L"unknown"), PGSP_ERR_CANT_CREATE_FILE);

    EXPECT_EQ(ReadBytes(folder() / L"a.xml.old"), "");
}

TEST_F(FilesExtensionTest, TheNameIsEscapedByAll)
{
    EXPECT_TRUE(CreateMakes(L"a#:%", L"a(nmbr)#3a#25.xml"));
    EXPECT_TRUE(CopyMakes(L"b*?", L"b#2a#3f.xml"));
    EXPECT_TRUE(RenameMakes(L"c<>", L"c#3c#3e.xml"));
    EXPECT_TRUE(DeleteRemoves(L"d|/", L"d#7c#2f.xml"));
    EXPECT_TRUE(ExistsSees(L"e%", L"e#25.xml"));
    EXPECT_TRUE(SetChanges(L"f#%", L"f(nmbr)#25.xml"));
}

} // namespace
} // namespace norvepa::test

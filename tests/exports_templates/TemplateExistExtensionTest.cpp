#include "TemplateScene.h"

namespace norvepa::test
{
namespace
{

class TemplateExistExtension : public TemplateScene
{
protected:
    // An empty file below the catalogue's folder.
    void Write(const std::wstring& path) const { WriteBytes(roots.program() + L"\\meta\\" + path, ""); }
};

TEST_F(TemplateExistExtension, MayBeGivenInAnyCase)
{
    Write(L"Boards\\" + BoardPrefix + L"X.xml");
    Write(L"Protocols\\" + ProtocolPrefix + L"X.xml");
    Write(L"DefaultLogDevices\\" + TemplatePrefix + L"X.xml");
    Write(L"Own\\X.xml");

    for (const wchar_t* const folder : {L"Boards", L"Protocols", L"DefaultLogDevices", L"Own"})
    {
        for (const wchar_t* const name : {L"X", L"X.xml", L"X.XML", L"x.Xml"})
        {
            EXPECT_EQ(Exist(folder, name), PGSP_OK) << ToUtf8(folder) << ", " << ToUtf8(name);
        }
    }
}

TEST_F(TemplateExistExtension, IsNotAddedToANameThatHoldsItAnywhere)
{
    Write(L"Boards\\" + BoardPrefix + L"X.xml.old");
    Write(L"Protocols\\" + ProtocolPrefix + L"X.xmlx");
    Write(L"DefaultLogDevices\\" + TemplatePrefix + L"X.xml2");
    Write(L"Own\\X.XML.old");
    Write(L"Own\\Y.xml.old.xml");
    Write(L"Own\\Deep.xml\\Z");

    EXPECT_EQ(Exist(L"Boards", L"X.xml.old"), PGSP_OK);
    EXPECT_EQ(Exist(L"Boards", L"X.XML.old"), PGSP_OK);
    EXPECT_EQ(Exist(L"Protocols", L"X.xmlx"), PGSP_OK);
    EXPECT_EQ(Exist(L"DefaultLogDevices", L"X.XML2"), PGSP_OK);
    EXPECT_EQ(Exist(L"Own", L"X.XML.old"), PGSP_OK);
    EXPECT_EQ(Exist(L"Own", L"Y.xml.old"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(L"Own", L"Deep.xml\\Z"), PGSP_OK);
}

TEST_F(TemplateExistExtension, IsAddedToAnythingElse)
{
    Write(L"Own\\X.xm.xml");
    Write(L"Own\\Xxml.xml");
    Write(L"Own\\Y");

    EXPECT_EQ(Exist(L"Own", L"X.xm"), PGSP_OK);
    EXPECT_EQ(Exist(L"Own", L"Xxml"), PGSP_OK);
    EXPECT_EQ(Exist(L"Own", L"Y"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(TemplateExistExtension, IsAddedWhateverTheFoldersAreCalled)
{
    Write(L"Own.xml\\X.xml");
    Write(L"Own.xml\\Y");
    EXPECT_EQ(Exist(L"Own.xml", L"X"), PGSP_OK);
    EXPECT_EQ(Exist(L"Own.xml", L"Y"), PGSP_ERR_FILE_NOT_FOUND);

    const std::wstring root = roots.folder() / L"root.xml";
    SetMachineText(LocationsKey, L"Corvane_Oam", root);
    WriteBytes(root + L"\\meta\\Boards\\" + BoardPrefix + L"X.xml", "");
    EXPECT_EQ(Exist(L"Boards", L"X"), PGSP_OK);
}

} // namespace
} // namespace norvepa::test

#include "TemplateScene.h"

namespace norvepa::test
{
namespace
{

class TemplateSubdevice : public TemplateScene
{
protected:
    TemplateSubdevice()
    {
        WriteTemplate(L"X", XmlContent().Element(L"Bindings", XmlContent().Subdevice(L"Achse \u00C4", {})));
    }

    [[nodiscard]] std::int32_t Ask(const std::wstring& name, std::int32_t flag = 0) const
    {
        return Exist(L"DefaultLogDevices", name, flag);
    }

    const std::wstring whole = TemplatePrefix + L"X";
};

TEST_F(TemplateSubdevice, IsFoundInAnyCaseWhateverTheFlag)
{
    for (const std::int32_t flag : {0, 2, 4, 6})
    {
        EXPECT_EQ(Ask(whole + L"\\subdevices\\Achse \u00C4", flag), PGSP_OK) << flag;
        EXPECT_EQ(Ask(whole + L"\\SubDevices\\ACHSE \u00E4", flag), PGSP_OK) << flag;
        EXPECT_EQ(Ask(whole + L"\\subdevices\\Band", flag), PGSP_ERR_PARAM_NOT_FOUND) << flag;
    }
    EXPECT_EQ(Ask(whole + L"\\subdevices\\Achse \u00C4", 1), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(TemplateSubdevice, IsLookedForInTheFileOfTheWholeNameAlone)
{
    EXPECT_EQ(Ask(L"X\\subdevices\\Achse \u00C4"), PGSP_ERR_CANT_LOAD_XML_FILE);

    WriteIn(L"DefaultLogDevices", L"X", XmlContent().Subdevice(L"Achse \u00C4", {}));
    EXPECT_EQ(Ask(L"X\\subdevices\\Achse \u00C4"), PGSP_OK);
}

TEST_F(TemplateSubdevice, OfATemplateThatIsMissingCanNotBeLoaded)
{
    EXPECT_EQ(Ask(TemplatePrefix + L"Y\\subdevices\\Achse \u00C4"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Ask(L"\\subdevices\\Achse \u00C4"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Ask(L"subdevices\\Achse \u00C4"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(TemplateSubdevice, LosesTheCharacterAheadOfTheWordWhateverItIs)
{
    EXPECT_EQ(Ask(whole + L"_subdevices\\Achse \u00C4"), PGSP_OK);
    EXPECT_EQ(Ask(whole + L"subdevices\\Achse \u00C4"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(TemplateSubdevice, MayHaveANameThatNoFileCouldHave)
{
    WriteTemplate(L"Halle#3a 2", XmlContent().Subdevice(L"50 % #1", {}).Subdevice(L"", {}));
    const std::wstring hall = TemplatePrefix + L"Halle: 2\\subdevices\\";

    EXPECT_EQ(Ask(hall + L"50 % #1"), PGSP_OK);
    EXPECT_EQ(Ask(hall + L"50 #25 (nmbr)1"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Ask(hall), PGSP_OK);
}

// The name is made into a file's first, as any other.
TEST_F(TemplateSubdevice, OfATemplateWhoseNameCanNotBeEscapedIsToldSo)
{
    const std::wstring subdevice = L"\\subdevices\\" + std::wstring(247, L'n');

    EXPECT_EQ(Ask(L"Y" + subdevice), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(L"Y" + subdevice.substr(1)), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Ask(whole + subdevice), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(TemplateSubdevice, IsAPlainFileInAnyOtherSpellingOfTheFolder)
{
    const std::wstring name = whole + L"\\subdevices\\Achse \u00C4";
    for (const wchar_t* const folder : {L"defaultlogdevices", L"DEFAULTLOGDEVICES", L"DefaultLogdevices"})
    {
        EXPECT_EQ(Exist(folder, name), PGSP_ERR_FILE_NOT_FOUND);
    }

    WriteBytes(roots.deviceTemplate(L"X\\subdevices\\Achse \u00C4"), "");
    for (const wchar_t* const folder : {L"defaultlogdevices", L"DEFAULTLOGDEVICES", L"DefaultLogdevices"})
    {
        EXPECT_EQ(Exist(folder, name), PGSP_OK);
    }
}

TEST_F(TemplateSubdevice, IsAPlainFileInEveryOtherFolder)
{
    WriteBoard(L"X", XmlContent().Subdevice(L"A", {}));
    EXPECT_EQ(Exist(L"Boards", L"X\\subdevices\\A"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(Exist(L"Protocols", L"X\\subdevices\\A"), PGSP_ERR_FILE_NOT_FOUND);

    WriteBytes(roots.board(L"X\\subdevices\\A"), "");
    WriteBytes(roots.program() + L"\\meta\\Own\\X\\subdevices\\A.xml", "");
    EXPECT_EQ(Exist(L"Boards", L"X\\subdevices\\A"), PGSP_OK);
    EXPECT_EQ(Exist(L"Own", L"X\\subdevices\\A"), PGSP_OK);
}

TEST_F(TemplateSubdevice, NeedsTheWordWithItsBackslash)
{
    WriteBytes(roots.deviceTemplate(L"X\\subdevices"), "");

    EXPECT_EQ(Ask(whole + L"\\subdevices"), PGSP_OK);
    EXPECT_EQ(Ask(whole + L"\\subdevice\\A"), PGSP_ERR_FILE_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test

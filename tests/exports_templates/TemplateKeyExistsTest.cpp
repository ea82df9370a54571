#include "TemplateScene.h"
#include "support/OpenFile.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

class TemplateKeyExists : public TemplateScene
{
protected:
    // The same in each of the three, each of which understands something else of it.
    TemplateKeyExists()
    {
        const XmlContent subParameter = XmlContent().ParamSection(
            L"sp", XmlContent().Element(L"ValueCollection", XmlContent().ParamSection(L"sp", {})));
        const XmlContent values = XmlContent().ParamSection(L"v", subParameter);
        const XmlContent content =
            XmlContent()
                .Element(L"Constraints",
                         XmlContent().ParamSection(L"p", XmlContent().Element(L"ValueCollection", values)))
                .Element(L"Bindings",
                         XmlContent().Element(L"Devices", XmlContent().Subdevice(L"Achse \u00C4", {})));
        WriteBoard(L"X", content);
        WriteProtocol(L"X", content);
        WriteTemplate(L"X", content);
    }

    [[nodiscard]] std::int32_t Board(const std::wstring& key) const
    {
        return KeyExists(L"Boards", L"X", key);
    }
    [[nodiscard]] std::int32_t Protocol(const std::wstring& key) const
    {
        return KeyExists(L"Protocols", L"X", key);
    }
    [[nodiscard]] std::int32_t Template(const std::wstring& key) const
    {
        return KeyExists(L"DefaultLogDevices", L"X", key);
    }
};

TEST_F(TemplateKeyExists, KnowsASectionInEveryFolder)
{
    for (const wchar_t* const folder :
         {L"Boards", L"BOARDS", L"Protocols", L"protocols", L"DefaultLogDevices", L"DEFAULTLOGDEVICES"})
    {
        EXPECT_EQ(KeyExists(folder, L"X", L"Constraints"), PGSP_OK);
        EXPECT_EQ(KeyExists(folder, L"X", L"\\CONSTRAINTS\\\\"), PGSP_OK);
        EXPECT_EQ(KeyExists(folder, L"X", L"gone"), PGSP_ERR_PARAM_NOT_FOUND);
        EXPECT_EQ(KeyExists(folder, L"X", L"\\"), PGSP_ERR_PARAM_NOT_FOUND);
        EXPECT_EQ(KeyExists(folder, L"gone", L"Constraints"), PGSP_ERR_CANT_LOAD_XML_FILE);
    }
}

TEST_F(TemplateKeyExists, OfABoardIsAParameterAndWhateverStandsBehindIt)
{
    EXPECT_EQ(Board(L"Constraints\\p"), PGSP_OK);
    EXPECT_EQ(Board(L"Constraints\\q"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Board(L"Constraints\\p\\gone"), PGSP_OK);
    EXPECT_EQ(Board(L"Bindings\\Devices"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(TemplateKeyExists, OfAProtocolIsAParameterWithItsValues)
{
    EXPECT_EQ(Protocol(L"Constraints\\p"), PGSP_OK);
    EXPECT_EQ(Protocol(L"Constraints\\p\\v"), PGSP_OK);
    EXPECT_EQ(Protocol(L"Constraints\\p\\gone"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Protocol(L"Constraints\\p\\v\\sp"), PGSP_OK);
    EXPECT_EQ(Protocol(L"Constraints\\p\\v\\gone"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Protocol(L"Bindings\\Devices"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(TemplateKeyExists, OfATemplateIsAnElementWithItsSubdevices)
{
    EXPECT_EQ(Template(L"Bindings\\Devices"), PGSP_OK);
    EXPECT_EQ(Template(L"Bindings\\gone"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Template(L"Bindings\\Devices\\ACHSE \u00E4"), PGSP_OK);
    EXPECT_EQ(Template(L"Bindings\\Devices\\gone"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Template(L"Constraints\\p"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(TemplateKeyExists, TakesThreePartsOfBoardsAndTemplatesAndFiveOfProtocols)
{
    EXPECT_EQ(Board(L"Constraints\\p\\v"), PGSP_OK);
    EXPECT_EQ(Board(L"Constraints\\p\\v\\sp"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Template(L"Bindings\\Devices\\Achse \u00C4"), PGSP_OK);
    EXPECT_EQ(Template(L"Bindings\\Devices\\Achse \u00C4\\a"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Protocol(L"Constraints\\p\\v\\sp\\sv"), PGSP_OK);
    EXPECT_EQ(Protocol(L"Constraints\\p\\v\\sp\\sv\\a"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Protocol(L"gone\\2\\3\\4\\5"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(TemplateKeyExists, CountsThePartsOnlyOfAKeyToAFileThatIsThere)
{
    for (const wchar_t* const folder : {L"Boards", L"Protocols", L"DefaultLogDevices"})
    {
        EXPECT_EQ(KeyExists(folder, L"X", L"1\\2\\3\\4\\5\\6"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(KeyExists(folder, L"X", L"1\\2\\3\\4\\5\\6\\7\\8\\9"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(KeyExists(folder, L"gone", L"1\\2\\3\\4\\5\\6"), PGSP_ERR_CANT_LOAD_XML_FILE);
    }
}

TEST_F(TemplateKeyExists, LooksNotAtTheFlag)
{
    for (const std::int32_t flag : {-1, 1, 2, 6, INT32_MAX, INT32_MIN})
    {
        EXPECT_EQ(library.PGSP_TemplateKeyExistsBL(L"Boards", L"X", L"Constraints", flag), PGSP_OK);
        EXPECT_EQ(library.PGSP_TemplateKeyExistsBL(L"Boards", L"X", L"gone", flag), PGSP_ERR_PARAM_NOT_FOUND);
    }
}

TEST_F(TemplateKeyExists, SeesTheFileAsItIsNow)
{
    ASSERT_EQ(Board(L"Constraints"), PGSP_OK);

    WriteBoard(L"X", XmlContent().Element(L"Install", L""));

    EXPECT_EQ(Board(L"Constraints"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Board(L"Install"), PGSP_OK);
}

TEST_F(TemplateKeyExists, HasEveryKeyInAFolderOfTheCallersOwn)
{
    WriteIn(L"Own", L"X", {});

    for (const wchar_t* const folder : {L"Own", L"gone", L"Boards ", L"Board", L"LogDevices"})
    {
        EXPECT_EQ(KeyExists(folder, L"X", L"gone"), PGSP_OK);
        EXPECT_EQ(KeyExists(folder, L"gone", L"1\\2\\3\\4\\5\\6\\7\\8\\9"), PGSP_OK);
        EXPECT_EQ(KeyExists(folder, std::wstring(1'000, L'n'), L"\\"), PGSP_OK);
    }
}

TEST_F(TemplateKeyExists, TouchesNoFileOfAFolderOfTheCallersOwn)
{
    WriteIn(L"Own", L"X", {});
    const OpenFile ownersAlone(PathOf(L"Own", L"X"), 0);
    const OpenFile ownersAloneToo(roots.board(L"X"), 0);

    EXPECT_EQ(KeyExists(L"Own", L"X", L"Constraints"), PGSP_OK);
    EXPECT_EQ(KeyExists(L"Boards", L"X", L"Constraints"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(TemplateKeyExists, TellsANameThatIsTooLongWhereItIsEscaped)
{
    const std::wstring tooLong(260, L'n');

    EXPECT_EQ(KeyExists(L"Boards", tooLong, L"Constraints"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(KeyExists(L"Protocols", tooLong, L"Constraints"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(KeyExists(L"DefaultLogDevices", tooLong, L"Constraints"), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(KeyExists(L"DefaultLogDevices", TemplatePrefix + tooLong, L"Constraints"),
              PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(TemplateKeyExists, TellsAMissingRootAheadOfANameThatIsTooLong)
{
    TakeProgramFolderAway();

    for (const wchar_t* const folder : {L"Boards", L"Protocols", L"DefaultLogDevices", L"Own"})
    {
        EXPECT_EQ(KeyExists(folder, std::wstring(260, L'n'), L"Constraints"), PGSP_ERR_FOLDER_NOT_FOUND);
    }
}

// An extension in capitals is one in small letters where the name is lowered.
TEST_F(TemplateKeyExists, KnowsTheExtensionInCapitalsWhereTheNameIsLowered)
{
    EXPECT_EQ(KeyExists(L"Boards", L"X.XML", L"Constraints"), PGSP_OK);
    EXPECT_EQ(KeyExists(L"Protocols", L"X.XML", L"Constraints"), PGSP_OK);
    EXPECT_EQ(KeyExists(L"DefaultLogDevices", TemplatePrefix + L"X.XML", L"Constraints"), PGSP_OK);
    EXPECT_EQ(KeyExists(L"DefaultLogDevices", L"X.xml", L"Constraints"), PGSP_OK);
    EXPECT_EQ(KeyExists(L"DefaultLogDevices", L"X.XML", L"Constraints"), PGSP_ERR_CANT_LOAD_XML_FILE);

    WriteTemplate(L"X.XML", XmlContent().Element(L"Constraints", L""));
    EXPECT_EQ(KeyExists(L"DefaultLogDevices", L"X.XML", L"Constraints"), PGSP_OK);
}

} // namespace
} // namespace norvepa::test

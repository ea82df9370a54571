#include "TextScene.h"

namespace norvepa::test
{
namespace
{

const std::wstring BoardPrefix = L"Automation-OnlineAccess-BT-";
const std::wstring ProtocolPrefix = L"Automation-OnlineAccess-PT-";
const std::wstring TemplatePrefix = L"Automation-OnlineAccess-LDT-";

const std::wstring NotThere = Failed(PGSP_ERR_CANT_LOAD_XML_FILE);

class TextOfCatalogue : public TextScene
{
protected:
    // Files of the catalogue by their whole name, without extension, each with a text of this number.
    void Write(const std::wstring& folder, const std::wstring& fileName, std::wstring_view number) const
    {
        WriteBytes(roots.program() + L"\\meta\\" + folder + L"\\" + fileName + L".xml",
                   XmlFile(L"Device", {}, Links(TitleLink(number))));
    }

    [[nodiscard]] std::wstring BoardAsTemplate(const std::wstring& name) const
    {
        return TemplateText(L"Boards", name);
    }
    [[nodiscard]] std::wstring Protocol(const std::wstring& name) const
    {
        return TemplateText(L"Protocols", name);
    }
    [[nodiscard]] std::wstring Template(const std::wstring& name) const
    {
        return TemplateText(L"DefaultLogDevices", name);
    }

    [[nodiscard]] std::int32_t Ask(const wchar_t* folder, const wchar_t* name)
    {
        return library.PGSP_TemplateGetResourceStringBL(folder, name, L"Title", L"de", text.data(),
                                                        &text.length, 1);
    }

    OutputBuffer text{20};
};

TEST_F(TextOfCatalogue, BoardsMayBeBareOrWithThePrefixOrWithAStar)
{
    Write(L"Boards", BoardPrefix + L"X", L"1000");

    for (const std::wstring& name : {std::wstring(L"X"), std::wstring(L"*X"), BoardPrefix + L"X"})
    {
        EXPECT_EQ(BoardText(name), L"Kessel") << ToUtf8(name);
        EXPECT_EQ(BoardAsTemplate(name), L"Kessel") << ToUtf8(name);
    }
}

TEST_F(TextOfCatalogue, BoardsWithAStarAndThePrefixLoseTheStarAsTemplatesAlone)
{
    Write(L"Boards", BoardPrefix + L"X", L"1000");
    EXPECT_EQ(BoardAsTemplate(L"*" + BoardPrefix + L"X"), L"Kessel");
    EXPECT_EQ(BoardText(L"*" + BoardPrefix + L"X"), NotThere);
    Write(L"Boards", L"#2a" + BoardPrefix + L"X", L"1001");

    EXPECT_EQ(BoardAsTemplate(L"*" + BoardPrefix + L"X"), L"Kessel");
    EXPECT_EQ(BoardText(L"*" + BoardPrefix + L"X"), L"Presse");
}

TEST_F(TextOfCatalogue, BoardsLoseOneStarAndOnlyInFront)
{
    Write(L"Boards", BoardPrefix + L"#2aX", L"1000");
    Write(L"Boards", BoardPrefix + L"X", L"1001");

    EXPECT_EQ(BoardText(L"**X"), L"Kessel");
    EXPECT_EQ(BoardAsTemplate(L"**X"), L"Kessel");
    EXPECT_EQ(BoardText(L" *X"), NotThere);
    EXPECT_EQ(BoardAsTemplate(L" *X"), NotThere);
}

TEST_F(TextOfCatalogue, BoardsOfNoNameButAStarAreThePrefixAlone)
{
    Write(L"Boards", BoardPrefix, L"1000");

    EXPECT_EQ(BoardText(L"*"), L"Kessel");
    EXPECT_EQ(BoardText(L""), L"Kessel");
    EXPECT_EQ(BoardAsTemplate(L"*"), L"Kessel");
}

TEST_F(TextOfCatalogue, NamesThatHoldThePrefixAnywhereGetNoOther)
{
    Write(L"Boards", L"Old-" + BoardPrefix + L"X", L"1000");
    Write(L"Protocols", L"Old-" + ProtocolPrefix + L"X", L"1001");
    Write(L"DefaultLogDevices", L"Old-" + TemplatePrefix + L"X", L"1003");

    EXPECT_EQ(BoardText(L"Old-" + BoardPrefix + L"X"), L"Kessel");
    EXPECT_EQ(BoardAsTemplate(L"Old-" + BoardPrefix + L"X"), L"Kessel");
    EXPECT_EQ(Protocol(L"Old-" + ProtocolPrefix + L"X"), L"Presse");
    EXPECT_EQ(Template(L"Old-" + TemplatePrefix + L"X"), L"Silo");
}

TEST_F(TextOfCatalogue, NamesHoldThePrefixInExactCaseOrNotAtAll)
{
    Write(L"Boards", BoardPrefix + L"automation-onlineaccess-bt-X", L"1000");
    Write(L"Protocols", ProtocolPrefix + L"automation-onlineaccess-pt-X", L"1001");
    Write(L"DefaultLogDevices", TemplatePrefix + L"automation-onlineaccess-ldt-X", L"1003");

    EXPECT_EQ(BoardText(L"automation-onlineaccess-bt-X"), L"Kessel");
    EXPECT_EQ(BoardAsTemplate(L"automation-onlineaccess-bt-X"), L"Kessel");
    EXPECT_EQ(Protocol(L"automation-onlineaccess-pt-X"), L"Presse");
    EXPECT_EQ(Template(L"automation-onlineaccess-ldt-X"), L"Silo");
}

TEST_F(TextOfCatalogue, ProtocolsKeepAStar)
{
    Write(L"Protocols", ProtocolPrefix + L"X", L"1000");
    Write(L"Protocols", ProtocolPrefix + L"#2aX", L"1001");

    EXPECT_EQ(Protocol(L"X"), L"Kessel");
    EXPECT_EQ(Protocol(ProtocolPrefix + L"X"), L"Kessel");
    EXPECT_EQ(Protocol(L"*X"), L"Presse");
}

TEST_F(TextOfCatalogue, TemplatesWithoutThePrefixAreEscapedTwice)
{
    Write(L"DefaultLogDevices", TemplatePrefix + L"X", L"1000");
    Write(L"DefaultLogDevices", TemplatePrefix + L"50(nmbr)25 (nmbr)2a(nmbr)", L"1001");
    Write(L"DefaultLogDevices", TemplatePrefix + L"50#25 #2a(nmbr)", L"1003");

    EXPECT_EQ(Template(L"X"), L"Kessel");
    EXPECT_EQ(Template(L"50% *#"), L"Presse");
    EXPECT_EQ(Template(TemplatePrefix + L"50% *#"), L"Silo");
}

TEST_F(TextOfCatalogue, TemplatesWhoseNameCanNotBeEscapedAreToldSo)
{
    for (const std::wstring& name : {std::wstring(260, L'n'), std::wstring(100'000, L'n'),
                                     std::wstring(90, L'%'), std::wstring(50, L'#')})
    {
        EXPECT_EQ(Template(name), Failed(PGSP_ERR_BUFFER_TOO_SHORT));
    }
}

TEST_F(TextOfCatalogue, FoldersAreMeantInAnyCase)
{
    Write(L"Boards", BoardPrefix + L"X", L"1000");
    Write(L"Protocols", ProtocolPrefix + L"X", L"1001");
    Write(L"DefaultLogDevices", TemplatePrefix + L"X", L"1003");

    EXPECT_EQ(TemplateText(L"BOARDS", L"*X"), L"Kessel");
    EXPECT_EQ(TemplateText(L"boards", L"*X"), L"Kessel");
    EXPECT_EQ(TemplateText(L"PROTOCOLS", L"X"), L"Presse");
    EXPECT_EQ(TemplateText(L"protocols", L"X"), L"Presse");
    EXPECT_EQ(TemplateText(L"DEFAULTLOGDEVICES", L"X"), L"Silo");
    EXPECT_EQ(TemplateText(L"defaultlogdevices", L"X"), L"Silo");
}

TEST_F(TextOfCatalogue, FilesOfAFolderOfTheCallersOwnAreCalledAsTheyAre)
{
    Write(L"Own", L"X", L"1000");
    Write(L"Own", L"#2aX", L"1001");
    Write(L"Own\\Deep", L"X", L"1003");

    EXPECT_EQ(TemplateText(L"Own", L"X"), L"Kessel");
    EXPECT_EQ(TemplateText(L"own", L"X"), L"Kessel");
    EXPECT_EQ(TemplateText(L"Own", L"*X"), L"Presse");
    EXPECT_EQ(TemplateText(L"Own\\Deep", L"X"), L"Silo");
    EXPECT_EQ(TemplateText(L"Own", BoardPrefix + L"X"), NotThere);
    EXPECT_EQ(TemplateText(L"gone", L"X"), NotThere);
    EXPECT_EQ(TemplateText(L"Boards ", L"X"), NotThere);
}

TEST_F(TextOfCatalogue, FoldersAndTheirFilesHaveToBeNamed)
{
    EXPECT_EQ(Ask(nullptr, L"X"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"", L"X"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"Boards", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"Boards", L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(text.isUntouched());
    EXPECT_EQ(text.length, 20U);
}

TEST_F(TextOfCatalogue, FoldersAndTheirFilesHaveToBeNamedAlsoWithoutAProgramFolder)
{
    store.TakeProgramFolderAway();

    EXPECT_EQ(Ask(L"", L"X"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"Boards", L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"Boards", L"X"), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Ask(L"DefaultLogDevices", std::wstring(260, L'n').c_str()), PGSP_ERR_FOLDER_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test

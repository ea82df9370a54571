#include "TextScene.h"

#include <limits>
#include <string>
#include <vector>

namespace norvepa::test
{
namespace
{

class TextFile : public TextScene
{
protected:
    // Both sections, each with a text of its own.
    [[nodiscard]] static XmlContent BothSections()
    {
        return Links(TitleLink(L"1000")).Raw(Links64(TitleLink(L"1001")).utf8());
    }

    void WriteName(const std::wstring& fileName, const XmlContent& content) const
    {
        WriteBytes(roots.logName(fileName), XmlFile(L"LogName", {}, content));
    }

    void WriteBoard(const std::wstring& name, const XmlContent& content) const
    {
        WriteBytes(roots.board(name), BoardFile(content));
    }

    void WriteProtocol(const std::wstring& name, const XmlContent& content) const
    {
        WriteBytes(roots.protocol(name), ProtocolFile(content));
    }

    // What all four exports answer for objects of one name.
    [[nodiscard]] std::vector<std::wstring> Everybodys(const std::wstring& name, std::int32_t flag = 1) const
    {
        return {DeviceText(name, flag), NameText(name, flag), BoardText(name, flag),
                TemplateText(L"Protocols", name, flag)};
    }

    void WriteEverywhere(const std::wstring& fileName, const XmlContent& content) const
    {
        store.WriteDevice(fileName, content);
        WriteName(fileName, content);
        WriteBoard(fileName, content);
        WriteProtocol(fileName, content);
    }
};

using testing::Each;
using testing::ElementsAre;

TEST_F(TextFile, IsTheObjectsOwn)
{
    store.WriteDevice(L"X", Links(TitleLink(L"1000")));
    WriteName(L"X", Links(TitleLink(L"1001")));
    WriteBoard(L"X", Links(TitleLink(L"1002")));
    WriteProtocol(L"X", Links(TitleLink(L"1003")));

    EXPECT_THAT(Everybodys(L"X"), ElementsAre(L"Kessel", L"Presse", L"nur auf Deutsch", L"Silo"));
}

TEST_F(TextFile, HasASectionForFlagZeroAndOneForAllOthers)
{
    WriteEverywhere(L"X", BothSections());

    EXPECT_THAT(Everybodys(L"X", 0), Each(L"Presse"));
    for (const std::int32_t flag : {1, -1, 2, 64, 256, std::numeric_limits<std::int32_t>::min()})
    {
        EXPECT_THAT(Everybodys(L"X", flag), Each(L"Kessel")) << flag;
    }
}

TEST_F(TextFile, IsNotLookedIntoBeyondTheSection)
{
    WriteEverywhere(L"X", Links(TitleLink(L"1000")));
    WriteEverywhere(L"Y", Links64(TitleLink(L"1000")));

    EXPECT_THAT(Everybodys(L"X", 0), Each(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
    EXPECT_THAT(Everybodys(L"Y", 1), Each(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_F(TextFile, HasLinksByTheirNames)
{
    const Link second{.name = L"Second", .assembly = TexteDll, .path = L"", .resourceId = L"1003"};
    store.WriteDevice(
        L"Presse", XmlContent().Element(
                       L"UserInterface",
                       XmlContent().Text(L"Third", L"1001").Resource(TitleLink(L"1000")).Resource(second)));

    EXPECT_EQ(Text(L"Title"), L"Kessel");
    EXPECT_EQ(Text(L"Second"), L"Silo");
    EXPECT_EQ(Text(L"Third"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Text(L"Titl"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Text(L""), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Text(L"\\3"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(TextFile, HasNoLinkWithoutAName)
{
    WriteEverywhere(L"X", BothSections());
    OutputBuffer text(20);
    const auto ask = [&](auto call, auto... names) {
        return call(names..., nullptr, L"de", text.data(), &text.length, 1);
    };

    EXPECT_EQ(ask(library.PGSP_LogDeviceGetResourceStringBL, L"X"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(ask(library.PGSP_LogNameGetResourceStringBL, L"X"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(ask(library.PGSP_BoardGetResourceStringBL, L"X"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(ask(library.PGSP_TemplateGetResourceStringBL, L"Protocols", L"X"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_TRUE(text.isUntouched());
    EXPECT_EQ(text.length, 20U);
}

TEST_F(TextFile, HasToBeThere)
{
    EXPECT_THAT(Everybodys(L"gone"), Each(Failed(PGSP_ERR_CANT_LOAD_XML_FILE)));
}

TEST_F(TextFile, ThatIsNotWellFormedAheadOfTheLinkHasNone)
{
    const XmlContent broken = XmlContent().Raw("<a></b>").Raw(BothSections().utf8());
    WriteEverywhere(L"X", broken);

    EXPECT_THAT(Everybodys(L"X"), Each(Failed(PGSP_ERR_PARAM_NOT_FOUND)));
}

TEST_F(TextFile, OfNoNameIsNotThere)
{
    EXPECT_EQ(DeviceText(L""), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(NameText(L""), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(BoardText(L""), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    OutputBuffer text(20);
    EXPECT_EQ(
        library.PGSP_LogDeviceGetResourceStringBL(nullptr, L"Title", L"de", text.data(), &text.length, 1),
        PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(library.PGSP_LogNameGetResourceStringBL(nullptr, L"Title", L"de", text.data(), &text.length, 1),
              PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(library.PGSP_BoardGetResourceStringBL(nullptr, L"Title", L"de", text.data(), &text.length, 1),
              PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_TRUE(text.isUntouched());
    EXPECT_EQ(text.length, 20U);
}

TEST_F(TextFile, IsNamedByTheEscapedName)
{
    WriteEverywhere(L"Gr\u00F6\u00DFe (nmbr)3#3a 100#25", Links(TitleLink(L"1003")));

    EXPECT_EQ(DeviceText(L"Gr\u00F6\u00DFe #3: 100%"), L"Silo");
    EXPECT_EQ(NameText(L"Gr\u00F6\u00DFe #3: 100%"), L"Silo");
    EXPECT_EQ(BoardText(L"Gr\u00F6\u00DFe #3: 100%"), L"Silo");
    EXPECT_EQ(TemplateText(L"Protocols", L"Gr\u00F6\u00DFe #3: 100%"), L"Silo");
}

TEST_F(TextFile, GetsNoSecondExtensionWhereverTheNameHoldsOne)
{
    WriteEverywhere(L"X", Links(TitleLink(L"1000")));
    WriteEverywhere(L"X.xml.old", Links(TitleLink(L"1003"))); // with another extension behind

    EXPECT_THAT(Everybodys(L"X.xml"), Each(L"Kessel"));
    EXPECT_THAT(Everybodys(L"X.xml.old"), Each(Failed(PGSP_ERR_CANT_LOAD_XML_FILE)));
    EXPECT_THAT(Everybodys(L"X.xml.old.xml"), Each(L"Silo"));
}

TEST_F(TextFile, IsNoSubdevice)
{
    store.WriteDevice(L"X", XmlContent().Subdevice(L"Ventil", Links(TitleLink(L"1000"))));

    EXPECT_EQ(DeviceText(L"X\\subdevices\\Ventil"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(DeviceText(L"X"), L"Kessel");
}

TEST_F(TextFile, OfAPathTooLongIsToldSo)
{
    EXPECT_THAT(Everybodys(std::wstring(260, L'n')), Each(Failed(PGSP_ERR_BUFFER_TOO_SHORT)));
}

TEST_F(TextFile, NeedsTheDataFolderForWhatLiesThere)
{
    WriteEverywhere(L"X", BothSections());
    store.TakeDataFolderAway();

    EXPECT_THAT(Everybodys(L"X"), ElementsAre(Failed(PGSP_ERR_FOLDER_NOT_FOUND),
                                              Failed(PGSP_ERR_FOLDER_NOT_FOUND), L"Kessel", L"Kessel"));
}

TEST_F(TextFile, NeedsTheProgramFolderForItsTexts)
{
    WriteEverywhere(L"X", Links(TitleLink(L"1000", elsewhere())));
    store.TakeProgramFolderAway();

    EXPECT_THAT(Everybodys(L"X"), Each(Failed(PGSP_ERR_FOLDER_NOT_FOUND)));
    EXPECT_EQ(DeviceText(L"gone"), Failed(PGSP_ERR_FOLDER_NOT_FOUND));
}

TEST_F(TextFile, IsReadAnewAtEachCall)
{
    EXPECT_EQ(Title(), L"Kessel");
    WriteDevice(TitleLink(L"1001"));
    EXPECT_EQ(Title(), L"Presse");
    WriteBytes(bin() + L"\\de\\" + TexteDll, TextLibrary().Text(1001, L"ausgetauscht").file());

    EXPECT_EQ(Title(), L"ausgetauscht");
}

} // namespace
} // namespace norvepa::test

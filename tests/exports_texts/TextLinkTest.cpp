#include "TextScene.h"

namespace norvepa::test
{
namespace
{

// Which link of a file is meant, and how much of it is read.
class TextLink : public TextScene
{
protected:
    // The text of a link called "Title" when a file has these sections.
    [[nodiscard]] std::wstring TitleIn(const XmlContent& sections) const
    {
        store.WriteDevice(L"Presse", sections);
        return Title();
    }

    [[nodiscard]] static XmlContent Section(const XmlContent& links)
    {
        return XmlContent().Element(L"UserInterface", links);
    }

    // A link to number 1003, "Silo", called otherwise.
    const Link other{.name = L"Other", .assembly = TexteDll, .path = L"", .resourceId = L"1003"};
};

TEST_F(TextLink, IsTheFirstOfItsName)
{
    EXPECT_EQ(TitleIn(Section(XmlContent().Resource(TitleLink(L"1001")).Resource(TitleLink(L"1000")))),
              L"Presse");
    EXPECT_EQ(TitleIn(Links(TitleLink(L"1001")).Raw(Links(TitleLink(L"1000")).utf8())), L"Presse");
}

TEST_F(TextLink, IsTheFirstOfItsNameThoughItLeadsNowhere)
{
    EXPECT_EQ(TitleIn(Section(XmlContent().Resource(TitleLink(L"9999")).Resource(TitleLink(L"1000")))),
              Failed(PGSP_ERR_CANT_LOAD_RESOURCE));
}

TEST_F(TextLink, MayStandInASecondSection)
{
    EXPECT_EQ(TitleIn(Links(other).Raw(Links(TitleLink(L"1000")).utf8())), L"Kessel");
    EXPECT_EQ(TitleIn(Section({}).Raw(Links(TitleLink(L"1000")).utf8())), L"Kessel");
}

// A child that is one tag is met as the end of its link: what stands behind it isn't read.
TEST_F(TextLink, EndsAtAPathThatIsOneTag)
{
    WriteBytes(bin() + L"\\de\\" + TexteDll,
               TextLibrary().Text(0, L"number none").Text(1000, L"Kessel").file());
    const auto resource = [](const XmlContent& children) {
        return Section(XmlContent().Element(L"Resource", children));
    };
    const auto named = XmlContent().Element(L"Name", L"Title").Element(L"Assembly", TexteDll);
    const auto number = XmlContent().Element(L"ResourceId", L"1000");

    EXPECT_EQ(TitleIn(resource(XmlContent(named).Raw(number.utf8()).EmptyTag(L"Path"))), L"Kessel");
    EXPECT_EQ(TitleIn(resource(XmlContent(named).EmptyTag(L"Path").Raw(number.utf8()))), L"number none");
}

TEST_F(TextLink, IsNotFoundBehindAChildThatIsOneTag)
{
    EXPECT_EQ(TitleIn(Section(XmlContent().Element(L"Resource", XmlContent()
                                                                    .EmptyTag(L"Path")
                                                                    .Element(L"Name", L"Title")
                                                                    .Element(L"Assembly", TexteDll)
                                                                    .Element(L"ResourceId", L"1000")))),
              Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

} // namespace
} // namespace norvepa::test

#include "store/LinkScene.h"

namespace norvepa::test
{
namespace
{

class ParameterAssemblyLink : public ReadScene
{
protected:
    // A file with the section that `wide` 0 selects, which holds this.
    [[nodiscard]] std::wstring Section(const XmlContent& content) const
    {
        return File(LogDeviceFile(XmlContent().Element(L"UserInterface64", content)));
    }

    const Link m_propSheet{
        .name = L"PropSheet", .assembly = L"Seiten.dll", .path = L"%commonpath%", .function = L"ShowPage"};
    const LinkAnswer m_asPropSheet{PGSP_OK, L"Seiten.dll", L"%commonpath%", L"ShowPage"};
};

TEST_F(ParameterAssemblyLink, ReadsTheLinkOfTheParameter)
{
    const std::wstring file =
        Section(XmlContent()
                    .ParameterAssemblyLink({.name = L"a", .assembly = L"a", .path = L"a", .function = L"a"})
                    .ParameterAssemblyLink(m_propSheet));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"PropSheet"), m_asPropSheet);
    EXPECT_EQ(GetParameterAssemblyLink(file, L"pROPsHEET"), m_asPropSheet);
    EXPECT_EQ(GetParameterAssemblyLink(file, L"Prop"), LinkNotFound());
}

TEST_F(ParameterAssemblyLink, WideChoosesTheSection)
{
    const auto link = [](std::wstring_view assembly) {
        return XmlContent().ParameterAssemblyLink(
            {.name = L"p", .assembly = assembly, .path = L"p", .function = L"f"});
    };
    const std::wstring file = File(LogDeviceFile(
        XmlContent().Element(L"UserInterface64", link(L"64")).Element(L"UserInterface", link(L"32"))));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"p", 0).assembly, L"64");
    EXPECT_EQ(GetParameterAssemblyLink(file, L"p", 1).assembly, L"32");
    EXPECT_EQ(GetParameterAssemblyLink(file, L"p", -1).assembly, L"32");
}

TEST_F(ParameterAssemblyLink, OtherChildrenArePassedOver)
{
    const std::wstring file =
        Section(XmlContent().Element(L"ParameterAssemblyLink", XmlContent()
                                                                   .Element(L"Version", L"1")
                                                                   .Element(L"Name", L"p")
                                                                   .Element(L"Assembly", L"a")
                                                                   .Element(L"ResourceId", L"no function")
                                                                   .Element(L"Path", L"b")
                                                                   .Element(L"NameSpace", L"2")
                                                                   .Element(L"Function", L"c")));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"p"), (LinkAnswer{PGSP_OK, L"a", L"b", L"c"}));
}

TEST_F(ParameterAssemblyLink, ALinkWithAPartMissingOrOutOfOrderGivesWayToTheNext)
{
    const std::wstring file =
        Section(XmlContent()
                    .ParameterAssemblyLink({.name = L"PropSheet", .assembly = L"no path"})
                    .Element(L"ParameterAssemblyLink", XmlContent()
                                                           .Element(L"Name", L"PropSheet")
                                                           .Element(L"Function", L"1")
                                                           .Element(L"Path", L"2")
                                                           .Element(L"Assembly", L"3"))
                    .Element(L"ParameterAssemblyLink", XmlContent()
                                                           .Element(L"Assembly", L"4")
                                                           .Element(L"Name", L"PropSheet")
                                                           .Element(L"Path", L"5")
                                                           .Element(L"Function", L"6"))
                    .ParameterAssemblyLink(m_propSheet));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"PropSheet"), m_asPropSheet);
}

TEST_F(ParameterAssemblyLink, ALinkLeftHalfReadLeavesNothingInTheOutputs)
{
    const std::wstring file =
        Section(XmlContent().ParameterAssemblyLink({.name = L"p", .assembly = L"a.dll", .path = L"path"}));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"p"), LinkNotFound());
}

TEST_F(ParameterAssemblyLink, PartsOfTwoTagsAreEmptyTexts)
{
    const std::wstring file = Section(
        XmlContent().ParameterAssemblyLink({.name = L"p", .assembly = L"", .path = L"", .function = L""}));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"p"), (LinkAnswer{PGSP_OK, L"", L"", L""}));
}

TEST_F(ParameterAssemblyLink, AnEmptyTagForAPartIsNoPart)
{
    const std::wstring file =
        Section(XmlContent().Element(L"ParameterAssemblyLink", XmlContent()
                                                                   .Element(L"Name", L"p")
                                                                   .Element(L"Assembly", L"a")
                                                                   .EmptyTag(L"Path")
                                                                   .Element(L"Function", L"f")));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"p"), LinkNotFound());
}

TEST_F(ParameterAssemblyLink, AResourceOfTheSectionItselfIsNotMet)
{
    const std::wstring file = Section(XmlContent().Resource(m_propSheet));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"PropSheet"), LinkNotFound());
}

TEST_F(ParameterAssemblyLink, AResourceBehindTheSectionIsMet)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent()
                               .Element(L"UserInterface64", XmlContent())
                               .Element(L"UserInterface", XmlContent().Resource(m_propSheet))));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"PropSheet"), m_asPropSheet);
}

TEST_F(ParameterAssemblyLink, AResourceBehindAnEmptyTagOfTheSectionIsMet)
{
    const std::wstring file = Section(XmlContent()
                                          .Resource({.name = L"PropSheet", .assembly = L"ahead"})
                                          .EmptyTag(L"odd")
                                          .Resource(m_propSheet));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"PropSheet"), m_asPropSheet);
}

TEST_F(ParameterAssemblyLink, ALinkBehindTheSectionIsNotMet)
{
    const std::wstring file = File(
        LogDeviceFile(XmlContent()
                          .Element(L"UserInterface64", XmlContent())
                          .Element(L"UserInterface64", XmlContent().ParameterAssemblyLink(m_propSheet))));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"PropSheet"), LinkNotFound());
}

TEST_F(ParameterAssemblyLink, TheSecondSearchEndsWithTheNextSectionOfTheName)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent()
                               .Element(L"UserInterface64", XmlContent())
                               .Element(L"UserInterface64", XmlContent())
                               .Element(L"UserInterface", XmlContent().Resource(m_propSheet))));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"PropSheet"), LinkNotFound());
}

TEST_F(ParameterAssemblyLink, OfAResourceTheFirstOfFunctionAndIdentifierIsDelivered)
{
    const auto behind = [](const XmlContent& third) {
        return LogDeviceFile(XmlContent()
                                 .Element(L"UserInterface64", XmlContent())
                                 .Element(L"Resource", XmlContent()
                                                           .Element(L"Name", L"p")
                                                           .Element(L"Assembly", L"a")
                                                           .Element(L"Path", L"b")
                                                           .Raw(third.utf8())));
    };
    const XmlContent function = XmlContent().Element(L"Function", L"Show");
    const XmlContent identifier = XmlContent().Element(L"ResourceId", L"4711");

    EXPECT_EQ(GetParameterAssemblyLink(File(behind(function)), L"p").function, L"Show");
    EXPECT_EQ(GetParameterAssemblyLink(File(behind(identifier)), L"p").function, L"4711");
    EXPECT_EQ(
        GetParameterAssemblyLink(File(behind(XmlContent(function).Raw(identifier.utf8()))), L"p").function,
        L"Show");
    EXPECT_EQ(
        GetParameterAssemblyLink(File(behind(XmlContent(identifier).Raw(function.utf8()))), L"p").function,
        L"4711");
    EXPECT_EQ(GetParameterAssemblyLink(File(behind(XmlContent())), L"p"), LinkNotFound());
}

TEST_F(ParameterAssemblyLink, WithoutTheSectionNothingIsFound)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent()
                               .Element(L"UserInterface", XmlContent().ParameterAssemblyLink(m_propSheet))
                               .Resource(m_propSheet)));

    EXPECT_EQ(GetParameterAssemblyLink(file, L"PropSheet", In64), LinkNotFound());
}

TEST_F(ParameterAssemblyLink, NoParameterIsTheLinkWithTheEmptyName)
{
    const std::wstring file = Section(
        XmlContent().ParameterAssemblyLink({.name = L"", .assembly = L"a", .path = L"b", .function = L"c"}));

    EXPECT_EQ(GetParameterAssemblyLink(file, L""), (LinkAnswer{PGSP_OK, L"a", L"b", L"c"}));
    EXPECT_EQ(GetParameterAssemblyLink(file, nullptr), (LinkAnswer{PGSP_OK, L"a", L"b", L"c"}));
}

TEST_F(ParameterAssemblyLink, ThePathIsNotEscaped)
{
    const std::string document = LogDeviceFile(
        XmlContent().Element(L"UserInterface64", XmlContent().ParameterAssemblyLink(m_propSheet)));
    const std::wstring percent = File(document, L"100%");
    const std::wstring escaped = File(document, L"50#25");

    EXPECT_EQ(GetParameterAssemblyLink(percent, L"PropSheet"), m_asPropSheet);
    EXPECT_EQ(GetParameterAssemblyLink(escaped, L"PropSheet"), m_asPropSheet);
    EXPECT_EQ(GetParameterAssemblyLink(folder() / L"50%", L"PropSheet").result, PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(ParameterAssemblyLink, TheExtensionIsAddedToWhateverPath)
{
    const std::wstring file = File(LogDeviceFile(XmlContent().Element(
                                       L"UserInterface64", XmlContent().ParameterAssemblyLink(m_propSheet))),
                                   L"folder.xml\\file.xml");

    EXPECT_EQ(GetParameterAssemblyLink(file, L"PropSheet"), m_asPropSheet);
}

TEST_F(ParameterAssemblyLink, OutputsStayWhenTheFileCanNotBeOpened)
{
    const std::wstring before(Before);
    const LinkAnswer refused{PGSP_ERR_CANT_LOAD_XML_FILE, before, before, before};

    EXPECT_EQ(GetParameterAssemblyLink(folder() / L"missing", L"p"), refused);
    EXPECT_EQ(GetParameterAssemblyLink(folder() / std::wstring(1'000, L'x'), L"p"), refused);
}

} // namespace
} // namespace norvepa::test

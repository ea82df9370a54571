#include "store/LinkScene.h"

#include <limits>

namespace norvepa::test
{
namespace
{

class AssemblyLink : public ReadScene
{
protected:
    // A file with the section that `wide` 0 selects, which holds this.
    [[nodiscard]] std::wstring Section(const XmlContent& content) const
    {
        return File(LogDeviceFile(XmlContent().Element(L"UserInterface64", content)));
    }

    const Link m_descText{.name = L"DescText",
                          .assembly = L"Texte.dll",
                          .path = L"%commonpath%",
                          .resourceId = L"4020",
                          .nameSpace = L"Auental.Texte"};
    const ResourceAnswer m_asDescText{PGSP_OK, L"Texte.dll", L"%commonpath%", L"4020", L"Auental.Texte"};
};

TEST_F(AssemblyLink, ReadsTheResourceOfThatName)
{
    const std::wstring file = Section(
        XmlContent().Text(L"DescText", L"an entry").Resource({.name = L"Other"}).Resource(m_descText));

    EXPECT_EQ(GetAssemblyLink(file, L"DescText"), m_asDescText);
    EXPECT_EQ(GetAssemblyLink(file, L"dESCtEXT"), m_asDescText);
}

TEST_F(AssemblyLink, WideChoosesTheSection)
{
    const std::wstring file = File(LogDeviceFile(
        XmlContent()
            .Element(L"Ndi", XmlContent().Resource({.name = L"r", .assembly = L"wrong"}))
            .Element(L"UserInterface", XmlContent().Resource({.name = L"r", .assembly = L"32"}))
            .Element(L"UserInterface64", XmlContent().Resource({.name = L"r", .assembly = L"64"}))));

    EXPECT_EQ(GetAssemblyLink(file, L"r", 0).assembly, L"64");
    EXPECT_EQ(GetAssemblyLink(file, L"r", 1).assembly, L"32");
    EXPECT_EQ(GetAssemblyLink(file, L"r", -1).assembly, L"32");
    EXPECT_EQ(GetAssemblyLink(file, L"r", std::numeric_limits<int>::min()).assembly, L"32");
}

TEST_F(AssemblyLink, WhatAResourceLacksIsEmpty)
{
    const std::wstring file = Section(XmlContent().Resource({.name = L"r", .path = L"p", .function = L"f"}));

    EXPECT_EQ(GetAssemblyLink(file, L"r"), (ResourceAnswer{PGSP_OK, L"", L"p", L"", L""}));
}

TEST_F(AssemblyLink, TheChildrenMayStandInAnyOrderAndCase)
{
    const std::wstring file = Section(XmlContent().Element(L"rESOURCE", XmlContent()
                                                                            .Element(L"nAMEsPACE", L"n")
                                                                            .Element(L"RESOURCEID", L"1")
                                                                            .Element(L"pATH", L"p")
                                                                            .Element(L"Unknown", L"u")
                                                                            .Element(L"aSSEMBLY", L"a")
                                                                            .Element(L"nAME", L"r")));

    EXPECT_EQ(GetAssemblyLink(file, L"r"), (ResourceAnswer{PGSP_OK, L"a", L"p", L"1", L"n"}));
}

TEST_F(AssemblyLink, TheFirstResourceOfTheNameWins)
{
    const std::wstring file =
        Section(XmlContent().Resource(m_descText).Resource({.name = L"DescText", .assembly = L"Second.dll"}));

    EXPECT_EQ(GetAssemblyLink(file, L"DescText"), m_asDescText);
}

TEST_F(AssemblyLink, TextsAheadOfANameThatDoesNotMatchStayInTheOutputs)
{
    const std::wstring file = Section(XmlContent()
                                          .Element(L"Resource", XmlContent()
                                                                    .Element(L"Assembly", L"first.dll")
                                                                    .Element(L"NameSpace", L"first")
                                                                    .Element(L"Name", L"other")
                                                                    .Element(L"Path", L"behind the name"))
                                          .Resource({.name = L"r", .assembly = L"a.dll"}));

    EXPECT_EQ(GetAssemblyLink(file, L"r"), (ResourceAnswer{PGSP_OK, L"a.dll", L"", L"", L"first"}));
    EXPECT_EQ(GetAssemblyLink(file, L"none"),
              (ResourceAnswer{PGSP_ERR_PARAM_NOT_FOUND, L"first.dll", L"", L"", L"first"}));
}

TEST_F(AssemblyLink, TextsOfAResourceWithoutNameStayInTheOutputs)
{
    const std::wstring file = Section(XmlContent().Resource({.assembly = L"a.dll"}).Resource({.path = L"p"}));

    EXPECT_EQ(GetAssemblyLink(file, L"r"),
              (ResourceAnswer{PGSP_ERR_PARAM_NOT_FOUND, L"a.dll", L"p", L"", L""}));
    EXPECT_EQ(GetAssemblyLink(file, L"").result, PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(AssemblyLink, ChildrenWrittenTwiceLeaveTheLastText)
{
    const std::wstring file =
        Section(XmlContent().Element(L"Resource", XmlContent()
                                                      .Element(L"Name", L"r")
                                                      .Element(L"Assembly", L"first.dll")
                                                      .Element(L"Assembly", L"second.dll")
                                                      .Element(L"Path", L"p")
                                                      .Element(L"Path", L"")));

    EXPECT_EQ(GetAssemblyLink(file, L"r"), (ResourceAnswer{PGSP_OK, L"second.dll", L"", L"", L""}));
}

TEST_F(AssemblyLink, AnEmptyTagEndsTheResource)
{
    const std::wstring file = Section(
        XmlContent()
            .Element(L"Resource",
                     XmlContent().Element(L"Name", L"r").EmptyTag(L"Path").Element(L"Assembly", L"a.dll"))
            .Element(L"Resource",
                     XmlContent().EmptyTag(L"Path").Element(L"Name", L"s").Element(L"Assembly", L"b.dll")));

    EXPECT_EQ(GetAssemblyLink(file, L"r"), (ResourceAnswer{PGSP_OK, L"", L"", L"", L""}));
    EXPECT_EQ(GetAssemblyLink(file, L"s").result, PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(AssemblyLink, AnEmptyTagBetweenResourcesEndsTheSearchOfThatSection)
{
    const std::wstring file = File(LogDeviceFile(
        XmlContent()
            .EmptyTag(L"UserInterface64")
            .Element(L"UserInterface64", XmlContent().EmptyTag(L"odd").Resource({.name = L"r"}))
            .Element(L"UserInterface64", XmlContent().Resource({.name = L"s", .assembly = L"s.dll"}))));

    EXPECT_EQ(GetAssemblyLink(file, L"r").result, PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(GetAssemblyLink(file, L"s").assembly, L"s.dll");
}

TEST_F(AssemblyLink, NoNameIsTheResourceWithTheEmptyName)
{
    const std::wstring file =
        Section(XmlContent().Resource(m_descText).Resource({.name = L"", .assembly = L"a.dll"}));

    EXPECT_EQ(GetAssemblyLink(file, L"").assembly, L"a.dll");
    EXPECT_EQ(GetAssemblyLink(file, nullptr).assembly, L"a.dll");
}

TEST_F(AssemblyLink, ALinkOfAParameterIsNoResource)
{
    const std::wstring file = Section(XmlContent().ParameterAssemblyLink({.name = L"r", .assembly = L"a"}));

    EXPECT_EQ(GetAssemblyLink(file, L"r"), (ResourceAnswer{PGSP_ERR_PARAM_NOT_FOUND, L"", L"", L"", L""}));
}

TEST_F(AssemblyLink, OutputsStayWhenTheFileCanNotBeOpened)
{
    const std::wstring before(Before);

    EXPECT_EQ(GetAssemblyLink(folder() / L"missing", L"r"),
              (ResourceAnswer{PGSP_ERR_CANT_LOAD_XML_FILE, before, before, before, before}));
}

} // namespace
} // namespace norvepa::test

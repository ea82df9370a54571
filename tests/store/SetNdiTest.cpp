#include "store/NdiScene.h"

namespace norvepa::test
{
namespace
{

// Links that are there.
class SetNdiTest : public NdiScene
{
protected:
    void GivenLinks(const XmlContent& links) const { GivenFile(DeviceWithLinks(links)); }

    void ExpectLinks(const XmlContent& links) const { EXPECT_EQ(Saved(), MeaningOf(DeviceWithLinks(links))); }

    // All are there as they are given.
    void ExpectSame(const GivenLink& link) const
    {
        const std::string before = Bytes();

        EXPECT_EQ(SetLink(link), PGSP_ERR_SAME_VALUE);

        EXPECT_EQ(Bytes(), before);
    }
};

TEST_F(SetNdiTest, ALinkIsReplacedInItsPlace)
{
    const auto links = [](const Link& page) {
        return XmlContent()
            .ParameterAssemblyLink({.name = L"Vor", .assembly = L"V.dll"})
            .ParameterAssemblyLink(page)
            .ParameterAssemblyLink({.name = L"Nach", .assembly = L"N.dll"});
    };
    GivenLinks(links({.name = L"Seite", .assembly = L"A.dll", .path = L"p", .function = L"F"}));

    EXPECT_EQ(SetLink({.assembly = L"B.dll", .path = L"q", .function = L"G"}), PGSP_OK);

    ExpectLinks(links({.name = L"Seite", .assembly = L"B.dll", .path = L"q", .function = L"G"}));
}

TEST_F(SetNdiTest, AResourceIsReplacedInItsPlace)
{
    GivenLinks(XmlContent().Resource(
        {.name = L"Seite", .assembly = L"A.dll", .path = L"p", .resourceId = L"1", .nameSpace = L"n"}));

    EXPECT_EQ(SetLink({.assembly = L"B.dll", .path = L"q", .resourceId = L"2"}), PGSP_OK);

    ExpectLinks(XmlContent().Resource(
        {.name = L"Seite", .assembly = L"B.dll", .path = L"q", .resourceId = L"2", .nameSpace = L"n"}));
}

TEST_F(SetNdiTest, ALinkThatIsTheSameWritesNothing)
{
    GivenLinks(
        XmlContent()
            .ParameterAssemblyLink({.name = L"Seite", .assembly = L"A.dll", .path = L"p", .function = L"F"})
            .Resource({.name = L"DescText", .assembly = L"T.dll", .path = L"p", .resourceId = L"1"}));

    ExpectSame({.assembly = L"A.dll", .path = L"p", .function = L"F"});
    ExpectSame({.parameter = L"DescText", .assembly = L"T.dll", .path = L"p", .resourceId = L"1"});
}

TEST_F(SetNdiTest, TextsAreTheSameWithoutRegardToCase)
{
    GivenLinks(XmlContent().ParameterAssemblyLink(
        {.name = L"Seite", .assembly = L"\u00C4.dll", .path = L"%Pfad%", .function = L"Zeige"}));

    ExpectSame({.assembly = L"\u00E4.DLL", .path = L"%PFAD%", .function = L"zeige"});
}

TEST_F(SetNdiTest, OnlyTextsThatDifferAreReplaced)
{
    const auto links = [](std::wstring_view function) {
        return XmlContent().ParameterAssemblyLink(
            {.name = L"Seite", .assembly = L"Seiten.dll", .path = L"Pfad", .function = function});
    };
    GivenLinks(links(L"F"));

    EXPECT_EQ(SetLink({.assembly = L"SEITEN.DLL", .path = L"PFAD", .function = L"G"}), PGSP_OK);

    ExpectLinks(links(L"G"));
}

TEST_F(SetNdiTest, EachOfTheTextsCountsAlone)
{
    const Link page{.name = L"Seite", .assembly = L"A.dll", .path = L"p", .function = L"F"};
    const auto replaced = [&](const GivenLink& link) {
        GivenLinks(XmlContent().ParameterAssemblyLink(page));
        EXPECT_EQ(SetLink(link), PGSP_OK);
        return Saved();
    };
    const auto with = [](const Link& link) {
        return MeaningOf(DeviceWithLinks(XmlContent().ParameterAssemblyLink(link)));
    };

    EXPECT_EQ(replaced({.assembly = L"B.dll", .path = L"p", .function = L"F"}),
              with({.name = L"Seite", .assembly = L"B.dll", .path = L"p", .function = L"F"}));
    EXPECT_EQ(replaced({.assembly = L"A.dll", .path = L"q", .function = L"F"}),
              with({.name = L"Seite", .assembly = L"A.dll", .path = L"q", .function = L"F"}));
    EXPECT_EQ(replaced({.assembly = L"A.dll", .path = L"p", .function = L"G"}),
              with({.name = L"Seite", .assembly = L"A.dll", .path = L"p", .function = L"G"}));
}

TEST_F(SetNdiTest, WhatIsNullIsLeftAlone)
{
    const auto links = [](std::wstring_view assembly) {
        return XmlContent().ParameterAssemblyLink(
            {.name = L"Seite", .assembly = assembly, .path = L"p", .function = L"F"});
    };
    GivenLinks(links(L"A.dll"));

    EXPECT_EQ(SetLink({.assembly = L"B.dll", .function = L"F"}), PGSP_OK);

    ExpectLinks(links(L"B.dll"));
    ExpectSame({.function = L"F"});
}

TEST_F(SetNdiTest, AnEmptyTextReplacesOne)
{
    const auto links = [](std::wstring_view path) {
        return XmlContent().Resource({.name = L"Seite", .assembly = L"A.dll", .path = path});
    };
    GivenLinks(links(L"p"));

    EXPECT_EQ(SetLink({.path = L""}), PGSP_OK);

    ExpectLinks(links(L""));
}

TEST_F(SetNdiTest, AChildThatIsMissingAndGivenIsAdded)
{
    GivenLinks(XmlContent().ParameterAssemblyLink({.name = L"Seite", .function = L"F"}));

    EXPECT_EQ(SetLink({.assembly = L"A.dll", .path = L"p", .function = L"F"}), PGSP_OK);

    ExpectLinks(XmlContent().Element(L"ParameterAssemblyLink", XmlContent()
                                                                   .Element(L"Name", L"Seite")
                                                                   .Element(L"Function", L"F")
                                                                   .Element(L"Assembly", L"A.dll")
                                                                   .Element(L"Path", L"p")));
}

TEST_F(SetNdiTest, AChildThatANewLinkWouldLackIsNotAdded)
{
    GivenLinks(XmlContent().ParameterAssemblyLink({.name = L"Seite", .assembly = L"A.dll"}));

    ExpectSame({.assembly = L"A.dll", .function = L"F"});
}

TEST_F(SetNdiTest, AResourceIdIsComparedWhateverTheName)
{
    GivenLinks(XmlContent().Resource({.name = L"PropSheet", .resourceId = L"1"}));

    EXPECT_EQ(SetLink({.parameter = L"PropSheet", .resourceId = L"2"}), PGSP_OK);

    ExpectLinks(XmlContent().Resource({.name = L"PropSheet", .resourceId = L"2"}));
}

TEST_F(SetNdiTest, AFunctionIsComparedWhateverTheName)
{
    GivenLinks(XmlContent().ParameterAssemblyLink({.name = L"DescText", .function = L"F"}));

    EXPECT_EQ(SetLink({.parameter = L"DescText", .function = L"G"}), PGSP_OK);

    ExpectLinks(XmlContent().ParameterAssemblyLink({.name = L"DescText", .function = L"G"}));
}

TEST_F(SetNdiTest, TheNameIsComparedWithoutRegardToCaseAndKeepsItsOwn)
{
    GivenLinks(XmlContent().Resource({.name = L"\u00DCbersicht", .assembly = L"A.dll"}));

    EXPECT_EQ(SetLink({.parameter = L"\u00FCBERSICHT", .assembly = L"B.dll"}), PGSP_OK);

    ExpectLinks(XmlContent().Resource({.name = L"\u00DCbersicht", .assembly = L"B.dll"}));
}

TEST_F(SetNdiTest, OfTwoLinksOfANameTheFirstIsSet)
{
    const auto links = [](std::wstring_view assembly) {
        return XmlContent()
            .Resource({.name = L"Seite", .assembly = assembly})
            .Resource({.name = L"SEITE", .assembly = L"Z.dll"});
    };
    GivenLinks(links(L"A.dll"));

    EXPECT_EQ(SetLink({.assembly = L"B.dll"}), PGSP_OK);

    ExpectLinks(links(L"B.dll"));
}

TEST_F(SetNdiTest, WideChoosesTheSection)
{
    const auto device = [](std::wstring_view in32, std::wstring_view in64) {
        const auto link = [](std::wstring_view assembly) {
            return XmlContent().Resource({.name = L"Seite", .assembly = assembly});
        };
        return LogDeviceFile(
            XmlContent().Element(L"UserInterface", link(in32)).Element(L"UserInterface64", link(in64)));
    };
    GivenFile(device(L"A.dll", L"A.dll"));

    EXPECT_EQ(SetLink({.assembly = L"B.dll"}, In64), PGSP_OK);
    EXPECT_EQ(Saved(), MeaningOf(device(L"A.dll", L"B.dll")));
    EXPECT_EQ(SetLink({.assembly = L"C.dll"}, In32), PGSP_OK);
    EXPECT_EQ(Saved(), MeaningOf(device(L"C.dll", L"B.dll")));
    EXPECT_EQ(SetLink({.assembly = L"D.dll"}, -1), PGSP_OK);
    EXPECT_EQ(Saved(), MeaningOf(device(L"D.dll", L"B.dll")));
}

TEST_F(SetNdiTest, ASectionIsFoundAtAnyDepth)
{
    const auto device = [](std::wstring_view assembly) {
        return LogDeviceFile(XmlContent().Element(
            L"Bindings",
            XmlContent().Element(L"UserInterface64",
                                 XmlContent().Resource({.name = L"Seite", .assembly = assembly}))));
    };
    GivenFile(device(L"A.dll"));

    EXPECT_EQ(SetLink({.assembly = L"B.dll"}), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(device(L"B.dll")));
}

} // namespace
} // namespace norvepa::test

#include "store/NdiScene.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

// Links that aren't there.
class SetNdiNewTest : public NdiScene
{
protected:
    // What a set makes of a section with these links.
    [[nodiscard]] std::string AfterSetting(const GivenLink& link, const XmlContent& links = {}) const
    {
        GivenFile(DeviceWithLinks(links));
        EXPECT_EQ(SetLink(link), PGSP_OK);
        return Saved();
    }

    [[nodiscard]] static std::string Links(const XmlContent& links)
    {
        return MeaningOf(DeviceWithLinks(links));
    }
};

TEST_F(SetNdiNewTest, AFunctionAloneMakesALinkToAPage)
{
    EXPECT_EQ(AfterSetting({.parameter = L"PropSheet", .assembly = L"A", .path = L"p", .function = L"F"}),
              Links(XmlContent().ParameterAssemblyLink(
                  {.name = L"PropSheet", .assembly = L"A", .path = L"p", .function = L"F"})));
}

TEST_F(SetNdiNewTest, AResourceIdMakesAResource)
{
    EXPECT_EQ(AfterSetting({.parameter = L"DescText", .assembly = L"A", .path = L"p", .resourceId = L"1"}),
              Links(XmlContent().Resource(
                  {.name = L"DescText", .assembly = L"A", .path = L"p", .resourceId = L"1"})));
}

TEST_F(SetNdiNewTest, AResourceIdMakesAResourceAlsoBesideAFunction)
{
    EXPECT_EQ(AfterSetting({.parameter = L"PropSheet", .function = L"F", .resourceId = L"1"}),
              Links(XmlContent().Resource({.name = L"PropSheet", .function = L"F"})));
}

TEST_F(SetNdiNewTest, NeitherOfThemMakesAResource)
{
    EXPECT_EQ(AfterSetting({.assembly = L"A", .path = L"p"}),
              Links(XmlContent().Resource({.name = L"Seite", .assembly = L"A", .path = L"p"})));
}

TEST_F(SetNdiNewTest, AnEmptyResourceIdOrFunctionIsGiven)
{
    EXPECT_EQ(AfterSetting({.parameter = L"DescText", .function = L"F", .resourceId = L""}),
              Links(XmlContent().Resource({.name = L"DescText", .resourceId = L""})));
    EXPECT_EQ(AfterSetting({.parameter = L"PropSheet", .function = L""}),
              Links(XmlContent().ParameterAssemblyLink({.name = L"PropSheet", .function = L""})));
}

TEST_F(SetNdiNewTest, WhatIsNullIsNotMade)
{
    EXPECT_EQ(AfterSetting({.parameter = L"DescText"}), Links(XmlContent().Resource({.name = L"DescText"})));
}

TEST_F(SetNdiNewTest, WhatIsEmptyIsMade)
{
    EXPECT_EQ(AfterSetting({.assembly = L"", .path = L""}),
              Links(XmlContent().Resource({.name = L"Seite", .assembly = L"", .path = L""})));
}

TEST_F(SetNdiNewTest, ItGoesBehindAllThatTheSectionHolds)
{
    const XmlContent before = XmlContent().Resource({.name = L"a"}).Text(L"b", L"1").Comment(L"last");

    EXPECT_EQ(AfterSetting({.assembly = L"A"}, before),
              Links(XmlContent(before).Resource({.name = L"Seite", .assembly = L"A"})));
}

TEST_F(SetNdiNewTest, ALinkOfTheOtherWordIsAnotherOne)
{
    const XmlContent page = XmlContent().ParameterAssemblyLink({.name = L"Seite", .assembly = L"A"});
    const XmlContent resource = XmlContent().Resource({.name = L"Seite", .assembly = L"A"});

    EXPECT_EQ(AfterSetting({.assembly = L"A"}, page),
              Links(XmlContent(page).Resource({.name = L"Seite", .assembly = L"A"})));
    EXPECT_EQ(AfterSetting({.assembly = L"A", .function = L"F"}, resource),
              Links(XmlContent(resource).ParameterAssemblyLink({.name = L"Seite", .assembly = L"A"})));
}

TEST_F(SetNdiNewTest, ElementWordsAreOfExactCase)
{
    const XmlContent lower = XmlContent().Element(L"resource", XmlContent().Element(L"Name", L"Seite"));
    const XmlContent lowerName = XmlContent().Element(L"Resource", XmlContent().Element(L"name", L"Seite"));
    const Link link{.name = L"Seite", .assembly = L"A"};

    EXPECT_EQ(AfterSetting({.assembly = L"A"}, lower), Links(XmlContent(lower).Resource(link)));
    EXPECT_EQ(AfterSetting({.assembly = L"A"}, lowerName), Links(XmlContent(lowerName).Resource(link)));
}

TEST_F(SetNdiNewTest, AnEntryOfTheNameIsNoLink)
{
    const XmlContent entry = XmlContent().Text(L"Seite", L"1");

    EXPECT_EQ(AfterSetting({.assembly = L"A"}, entry),
              Links(XmlContent(entry).Resource({.name = L"Seite", .assembly = L"A"})));
}

TEST_F(SetNdiNewTest, ASectionThatIsMissingIsMadeBehindAllThatTheRootHolds)
{
    const XmlContent before =
        XmlContent().Element(L"UserInterface", XmlContent().Resource({.name = L"Seite"})).Comment(L"last");
    GivenFile(LogDeviceFile(before));

    EXPECT_EQ(SetLink({.assembly = L"A"}), PGSP_OK);

    EXPECT_EQ(Saved(),
              MeaningOf(LogDeviceFile(XmlContent(before).Element(
                  L"UserInterface64", XmlContent().Resource({.name = L"Seite", .assembly = L"A"})))));
}

TEST_F(SetNdiNewTest, ASectionIsOfExactCase)
{
    const XmlContent before = XmlContent().EmptyTag(L"userinterface");
    GivenFile(LogDeviceFile(before));

    EXPECT_EQ(SetLink({.assembly = L"A"}, In32), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(LogDeviceFile(XmlContent(before).Element(
                           L"UserInterface", XmlContent().Resource({.name = L"Seite", .assembly = L"A"})))));
}

TEST_F(SetNdiNewTest, ItGoesToTheFirstSectionOfTheName)
{
    const auto device = [](const XmlContent& first) {
        return LogDeviceFile(
            XmlContent()
                .Element(L"UserInterface64", first)
                .Element(L"UserInterface64", XmlContent().Resource({.name = L"b", .assembly = L"B"})));
    };
    GivenFile(device(XmlContent().Resource({.name = L"a"})));

    EXPECT_EQ(SetLink({.assembly = L"A"}), PGSP_OK);

    EXPECT_EQ(Saved(),
              MeaningOf(device(
                  XmlContent().Resource({.name = L"a"}).Resource({.name = L"Seite", .assembly = L"A"}))));
}

TEST_F(SetNdiNewTest, ASecondSetFindsIt)
{
    GivenFile(LogDeviceFile({}));
    const GivenLink link{.parameter = L"DescText", .assembly = L"A", .path = L"p", .resourceId = L"1"};
    ASSERT_EQ(SetLink(link), PGSP_OK);

    EXPECT_EQ(SetLink(link), PGSP_ERR_SAME_VALUE);
    EXPECT_EQ(GetAssemblyLink(path(), L"DescText").resourceId, L"1");
}

// A name, and what its link carries beside library and path.
struct NameCase
{
    const wchar_t* parameter;
    bool function;
    bool resourceId;
};

void PrintTo(const NameCase& each, std::ostream* out)
{
    *out << ToUtf8(each.parameter);
}

class SetNdiNames : public SetNdiNewTest, public testing::WithParamInterface<NameCase>
{
protected:
    [[nodiscard]] static Link Expected()
    {
        Link link{.name = GetParam().parameter};
        if (GetParam().resourceId)
        {
            link.resourceId = L"7";
        }
        if (GetParam().function)
        {
            link.function = L"F";
        }
        return link;
    }
};

TEST_P(SetNdiNames, SayWhatANewResourceCarries)
{
    EXPECT_EQ(AfterSetting({.parameter = GetParam().parameter, .function = L"F", .resourceId = L"7"}),
              Links(XmlContent().Resource(Expected())));
}

TEST_P(SetNdiNames, SayWhetherANewLinkToAPageCarriesItsFunction)
{
    Link expected = Expected();
    expected.resourceId.reset();

    EXPECT_EQ(AfterSetting({.parameter = GetParam().parameter, .function = L"F"}),
              Links(XmlContent().ParameterAssemblyLink(expected)));
}

constexpr bool Carried = true;
constexpr bool Not = false;

INSTANTIATE_TEST_SUITE_P(OfPages, SetNdiNames,
                         testing::Values(NameCase{L"PropSheet", Carried, Not},
                                         NameCase{L"Diagnosis", Carried, Not},
                                         NameCase{L"PROPSHEET", Carried, Not},
                                         NameCase{L"diagnosis", Carried, Not}));

INSTANTIATE_TEST_SUITE_P(
    OfTexts, SetNdiNames,
    testing::Values(NameCase{L"DescText", Not, Carried}, NameCase{L"DescDefault", Not, Carried},
                    NameCase{L"BaudrateResource", Not, Carried}, NameCase{L"BusparamResource", Not, Carried},
                    NameCase{L"DESCTEXT", Not, Carried}, NameCase{L"descdefault", Not, Carried},
                    NameCase{L"baudrateresource", Not, Carried},
                    NameCase{L"BUSPARAMRESOURCE", Not, Carried}));

INSTANTIATE_TEST_SUITE_P(Others, SetNdiNames,
                         testing::Values(NameCase{L"Seite", Not, Not}, NameCase{L"PropSheet2", Not, Not},
                                         NameCase{L"Desc", Not, Not}, NameCase{L"Function", Not, Not},
                                         NameCase{L"ResourceId", Not, Not}));

} // namespace
} // namespace norvepa::test

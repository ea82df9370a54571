#include "GetScene.h"

namespace norvepa::test
{
namespace
{

constexpr const wchar_t* NotFound = L"(result 8513)";

class GetValueEx : public GetScene
{
};

TEST_F(GetValueEx, LooksIntoFiveSectionsInTheirOrderWhateverTheFilesIs)
{
    const std::vector<std::wstring> sections{L"DeviceHeader", L"LocalSettings", L"NetworkSettings",
                                             L"Bindings", L"Ndi"};
    for (std::size_t first = 0; first < sections.size(); ++first)
    {
        XmlContent content;
        for (std::size_t i = sections.size(); i-- > first;)
        {
            content.Raw(Section(sections[i], L"Stufe", sections[i]).utf8());
        }
        store.WriteDevice(L"Presse", content);

        EXPECT_EQ(ValueEx(L"Presse", nullptr, L"Stufe"), sections[first]);
        EXPECT_EQ(ValueEx(L"Presse", L"", L"stufe"), sections[first]);
    }
}

TEST_F(GetValueEx, LooksIntoNoSixth)
{
    store.WriteDevice(L"Presse", Section(L"SpareSection", L"Stufe", L"1")
                                     .Raw(Section(L"UserInterface", L"Stufe", L"2").utf8())
                                     .Raw(Section(L"UserInterface64", L"Stufe", L"3").utf8()));

    EXPECT_EQ(ValueEx(L"Presse", nullptr, L"Stufe"), NotFound);
    EXPECT_EQ(ValueEx(L"Presse", L"", L"Stufe"), NotFound);
}

TEST_F(GetValueEx, LooksIntoNoOtherSectionThanTheOneGiven)
{
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Stufe", L"local")
                                     .Raw(Section(L"SpareSection", L"Stufe", L"spare").utf8())
                                     .Raw(Section(L"Busparameter", L"Stufe", L"bus").utf8()));

    EXPECT_EQ(ValueEx(L"Presse", L"LocalSettings", L"Stufe"), L"local");
    EXPECT_EQ(ValueEx(L"Presse", L"sparesection", L"Stufe"), L"spare");
    EXPECT_EQ(ValueEx(L"Presse", L"Busparameter", L"Stufe"), L"bus");
    EXPECT_EQ(ValueEx(L"Presse", L"Bindings", L"Stufe"), NotFound);
    EXPECT_EQ(ValueEx(L"Presse", L"no such section", L"Stufe"), NotFound);
}

TEST_F(GetValueEx, AsksTheCatalogueForNothing)
{
    store.WriteBoard(
        Catalogue()
            .Parameter(L"Stufe", {{L"section", L"Bindings"}, {L"map", L"Takt"}, {L"default", L"5"}})
            .Parameter(L"Druck", {{L"default", L"5"}}));
    store.WriteDevice(L"Presse", XmlContent()
                                     .Element(L"LocalSettings", XmlContent().Text(L"Stufe", L"as given"))
                                     .Element(L"Bindings", XmlContent().Text(L"Takt", L"as mapped")));

    EXPECT_EQ(ValueEx(L"Presse", nullptr, L"Stufe"), L"as given");
    EXPECT_EQ(ValueEx(L"Presse", L"Bindings", L"Stufe"), NotFound);
    EXPECT_EQ(ValueEx(L"Presse", nullptr, L"Druck"), NotFound);
    EXPECT_EQ(ValueEx(L"Presse", L"LocalSettings", L"Druck"), NotFound);
}

TEST_F(GetValueEx, AsksForTheParameterNamedDefaultWithoutAName)
{
    store.WriteDevice(L"Presse", Section(L"Bindings", L"default", L"a value like any other"));

    EXPECT_EQ(ValueEx(L"Presse", nullptr, nullptr), L"a value like any other");
    EXPECT_EQ(ValueEx(L"Presse", nullptr, L""), L"a value like any other");
    EXPECT_EQ(ValueEx(L"Presse", L"Bindings", nullptr), L"a value like any other");
    EXPECT_EQ(ValueEx(L"Presse", L"Ndi", nullptr), NotFound);
}

TEST_F(GetValueEx, ReadsTwoWordsAsAttributesWhateverTheSection)
{
    store.WriteDevice(L"Presse", Section(L"Ndi", L"DeviceID", L"the parameter"));
    WriteBytes(roots.logDevice(L"Band"),
               XmlFile(L"LogDevice", {{L"Name", L"the attribute"}}, Section(L"Ndi", L"CP_TYPE", L"L2")));

    EXPECT_EQ(ValueEx(L"Presse", L"Ndi", L"DeviceID"), L"AFK110");
    EXPECT_EQ(ValueEx(L"Presse", nullptr, L"CP_type"), L"MPI");
    EXPECT_EQ(ValueEx(L"Band", L"Ndi", L"CP_TYPE"), NotFound);
    EXPECT_EQ(ValueEx(L"Band", nullptr, L"Name"), NotFound);
}

// A value that doesn't fit isn't the answer: the next section is offered the whole buffer again.
TEST_F(GetValueEx, PassesOverAValueThatDoesNotFit)
{
    store.WriteDevice(L"Presse", Section(L"DeviceHeader", L"Ort", L"longer than it")
                                     .Raw(Section(L"LocalSettings", L"Ort", L"exact").utf8())
                                     .Raw(Section(L"Bindings", L"Ort", L"fits").utf8())
                                     .Raw(Section(L"Ndi", L"Ort", L"too").utf8()));
    OutputBuffer value(5);

    EXPECT_EQ(GetEx(L"Presse", nullptr, L"Ort", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"fits");
    EXPECT_EQ(value.length, 4U);
}

TEST_F(GetValueEx, IsTooShortForTheValueOfTheLastSectionAlone)
{
    store.WriteDevice(
        L"Presse",
        Section(L"DeviceHeader", L"Ort", L"longer than it").Raw(Section(L"Ndi", L"Ort", L"exact").utf8()));
    OutputBuffer value(5);

    EXPECT_EQ(GetEx(L"Presse", nullptr, L"Ort", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 5U);
}

TEST_F(GetValueEx, FindsNothingWhenOnlyAnEarlierSectionHasAValueThatDoesNotFit)
{
    store.WriteDevice(L"Presse", Section(L"DeviceHeader", L"Ort", L"longer than it"));
    OutputBuffer value(5);

    EXPECT_EQ(GetEx(L"Presse", nullptr, L"Ort", value), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_EQ(value.text(), L"");
    EXPECT_EQ(value.length, 0U);
}

TEST_F(GetValueEx, IsTooShortForTheSectionGivenThoughAnotherHasAValueThatFits)
{
    store.WriteDevice(
        L"Presse",
        Section(L"DeviceHeader", L"Ort", L"longer than it").Raw(Section(L"Ndi", L"Ort", L"fits").utf8()));
    OutputBuffer value(5);

    EXPECT_EQ(GetEx(L"Presse", L"DeviceHeader", L"Ort", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 14U);
}

TEST_F(GetValueEx, EmptiesTheBufferAfterEveryFailedRead)
{
    store.WriteDevice(L"Presse", {});
    WriteBytes(roots.logDevice(L"Band"), XmlFile(L"LogDevice", {}, {}));
    const std::vector<std::pair<const wchar_t*, const wchar_t*>> failing{
        {L"Presse", L"Ort"}, {L"Band", L"DeviceID"}, {L"gone", L"Ort"}, {L"gone\\subdevices\\Achse", L"Ort"}};

    for (const auto& [device, parameter] : failing)
    {
        OutputBuffer value(5);
        EXPECT_NE(GetEx(device, nullptr, parameter, value), PGSP_OK) << device;
        EXPECT_EQ(value.text(), L"") << device;
        EXPECT_EQ(value.length, 0U) << device;
    }
}

} // namespace
} // namespace norvepa::test

#include "TemplateScene.h"

namespace norvepa::test
{
namespace
{

class DefDeviceGetValue : public TemplateScene
{
protected:
    // The places that are asked behind the root's attributes, in their order.
    struct Place
    {
        const wchar_t* section;
        std::wstring value;
    };
    using Places = std::vector<Place>;

    // A template, "X", with a parameter "Name" in these places, the last of them ahead in the file.
    void WritePlaces(const Places& places, XmlAttributes root = {}) const
    {
        XmlContent content;
        for (auto place = places.rbegin(); place != places.rend(); ++place)
        {
            content.Element(place->section, XmlContent().Text(L"Name", place->value));
        }
        WriteBytes(roots.deviceTemplate(L"X"), XmlFile(L"LogDevice", root, content));
    }

    void WriteLinks() const
    {
        const auto page = [](std::wstring_view assembly) {
            return XmlContent().ParameterAssemblyLink(
                {.name = L"Page", .assembly = assembly, .path = L"%commonpath%", .function = L"Show"});
        };
        WriteTemplate(L"X", XmlContent()
                                .Element(L"UserInterface64", page(L"Wide.dll"))
                                .Element(L"UserInterface", page(L"Narrow.dll")));
    }

    [[nodiscard]] std::int32_t Ask(const wchar_t* parameter, OutputBuffer& value) const
    {
        return library.PGSP_DefDeviceGetValueBL(L"X", parameter, value.data(), &value.length, 0);
    }

    const Places sections{{L"DeviceHeader", L"1"},
                          {L"LocalSettings", L"2"},
                          {L"NetworkSettings", L"3"},
                          {L"Bindings", L"4"},
                          {L"Ndi", L"5"}};
};

TEST_F(DefDeviceGetValue, IsTheRootsAttributeAheadOfAll)
{
    WritePlaces(sections, {{L"Name", L"root"}});

    EXPECT_EQ(DeviceValue(L"X", L"Name"), L"root");
    EXPECT_EQ(DeviceValue(L"X", L"NAME"), L"root");
}

TEST_F(DefDeviceGetValue, IsOfTheSectionsInTheirOrderWhateverTheFiles)
{
    for (auto first = sections.begin(); first != sections.end(); ++first)
    {
        WritePlaces(Places(first, sections.end()));

        EXPECT_EQ(DeviceValue(L"X", L"name"), first->value);
    }
}

TEST_F(DefDeviceGetValue, IsOfNoOtherSection)
{
    WriteTemplate(L"X", XmlContent()
                            .Element(L"SpareSection", XmlContent().Text(L"a", L"1"))
                            .Element(L"Parameters", XmlContent().Text(L"a", L"1"))
                            .Element(L"UserInterface64", XmlContent().Text(L"a", L"1"))
                            .Element(L"Install", XmlContent().Text(L"a", L"1")));

    EXPECT_EQ(DeviceValue(L"X", L"a"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(DefDeviceGetValue, ComesAsItStandsAndMayBeEmpty)
{
    WritePlaces(sections, {{L"Name", L""}});
    EXPECT_EQ(DeviceValue(L"X", L"Name"), L"");

    WriteTemplate(L"X",
                  XmlContent().Element(L"Ndi", XmlContent().Text(L"Gr\u00F6\u00DFe", L" 9 \u2264 <&> ")));
    EXPECT_EQ(DeviceValue(L"X", L"GR\u00D6\u00DFE"), L" 9 \u2264 <&> ");
}

TEST_F(DefDeviceGetValue, IsTheDefaultWithoutAParameter)
{
    WriteTemplate(L"X", XmlContent().Element(L"Ndi", XmlContent().Text(L"(default)", L"that one")));
    OutputBuffer value(20);

    EXPECT_EQ(DeviceValue(L"X", L""), L"that one");
    EXPECT_EQ(Ask(nullptr, value), PGSP_OK);

    EXPECT_EQ(value.text(), L"that one");
}

TEST_F(DefDeviceGetValue, IsALinkWhenNoPlaceHasAValue)
{
    WriteLinks();

    EXPECT_EQ(DeviceValue(L"X", L"Page"), L"Wide.dll,Show");
    EXPECT_EQ(DeviceValue(L"X", L"PAGE"), L"Wide.dll,Show");
}

TEST_F(DefDeviceGetValue, IsAValueAheadOfALink)
{
    WriteTemplate(L"X", XmlContent()
                            .Element(L"UserInterface64",
                                     XmlContent().ParameterAssemblyLink(
                                         {.name = L"Page", .assembly = L"a", .path = L"b", .function = L"c"}))
                            .Element(L"Ndi", XmlContent().Text(L"Page", L"value")));

    EXPECT_EQ(DeviceValue(L"X", L"Page"), L"value");
}

TEST_F(DefDeviceGetValue, IsALinkOfTheSectionThatTheFlagChooses)
{
    WriteLinks();

    EXPECT_EQ(DeviceValue(L"X", L"Page", 0), L"Wide.dll,Show");
    for (const std::int32_t flag : {1, 2, -1, INT32_MAX, INT32_MIN})
    {
        EXPECT_EQ(DeviceValue(L"X", L"Page", flag), L"Narrow.dll,Show") << flag;
    }
}

TEST_F(DefDeviceGetValue, OfALinkEndsWithItsFunctionOrItsResource)
{
    WriteTemplate(
        L"X", XmlContent()
                  .Element(L"UserInterface64", XmlContent())
                  .Resource({.name = L"Text", .assembly = L"Texte.dll", .path = L"p", .resourceId = L"4711"})
                  .Element(L"UserInterface",
                           XmlContent().ParameterAssemblyLink(
                               {.name = L"Bare", .assembly = L"", .path = L"", .function = L""})));

    EXPECT_EQ(DeviceValue(L"X", L"Text", 0), L"Texte.dll,4711");
    EXPECT_EQ(DeviceValue(L"X", L"Bare", 1), L",");
}

TEST_F(DefDeviceGetValue, OfALinkWithoutItsPartsIsNotFound)
{
    WriteTemplate(L"X", XmlContent().Element(L"UserInterface64", XmlContent().ParameterAssemblyLink(
                                                                     {.name = L"Page", .assembly = L"a"})));

    EXPECT_EQ(DeviceValue(L"X", L"Page"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(DeviceValue(L"X", L"gone", 1), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(DefDeviceGetValue, SeesTheFileAsItIsNow)
{
    WritePlaces(sections, {{L"Name", L"old"}});
    ASSERT_EQ(DeviceValue(L"X", L"Name"), L"old");

    WritePlaces(sections, {{L"Name", L"new"}});

    EXPECT_EQ(DeviceValue(L"X", L"Name"), L"new");
}

TEST_F(DefDeviceGetValue, OfABrokenFileIsWhatStandsAheadOfTheDamage)
{
    WriteBytes(roots.deviceTemplate(L"X"),
               "<LogDevice Name='1'><Ndi><Parameter><Name>a</Name><Value>2</Value>"
               "</Parameter></LogDevice>");

    EXPECT_EQ(DeviceValue(L"X", L"Name"), L"1");
    EXPECT_EQ(DeviceValue(L"X", L"a"), L"2");
    EXPECT_EQ(DeviceValue(L"X", L"b"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
}

} // namespace
} // namespace norvepa::test

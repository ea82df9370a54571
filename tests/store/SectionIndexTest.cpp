#include "store/ReadScene.h"

#include <cstdint>
#include <limits>

namespace norvepa::test
{
namespace
{

// Where a parameter was found: the element of its entry and its section.
struct Place
{
    Result result;
    std::wstring element;
    std::wstring section;

    bool operator==(const Place&) const = default;
};

void PrintTo(const Place& place, std::ostream* out)
{
    *out << place.result << " \"" << ToUtf8(place.element) << "\" in \"" << ToUtf8(place.section) << '"';
}

Place PlaceOf(const std::wstring& file, std::uint32_t index, const wchar_t* parameter)
{
    std::wstring element(Before);
    std::wstring section(Before);
    const Result result = NorvXMLGetValueBySectionIndex(file.c_str(), index, parameter, &element, &section);
    return {result, element, section};
}

Place Nowhere()
{
    return {PGSP_ERR_PARAM_NOT_FOUND, {}, {}};
}

using SectionIndex = ReadScene;

TEST_F(SectionIndex, EachIndexHasItsSection)
{
    XmlContent sections;
    for (const std::wstring_view section :
         {L"SpareSection", L"Install", L"DeviceHeader", L"LocalSettings", L"NetworkSettings", L"Bindings",
          L"Ndi", L"UserInterface", L"UserInterface64"})
    {
        sections.Element(section, XmlContent().Text(L"a", section));
    }
    const std::wstring file = File(LogDeviceFile(sections));

    EXPECT_EQ(PlaceOf(file, 0, L"a"), (Place{PGSP_OK, L"Parameter", L"DeviceHeader"}));
    EXPECT_EQ(PlaceOf(file, 1, L"a"), (Place{PGSP_OK, L"Parameter", L"LocalSettings"}));
    EXPECT_EQ(PlaceOf(file, 2, L"a"), (Place{PGSP_OK, L"Parameter", L"NetworkSettings"}));
    EXPECT_EQ(PlaceOf(file, 3, L"a"), (Place{PGSP_OK, L"Parameter", L"Bindings"}));
    EXPECT_EQ(PlaceOf(file, 5, L"a"), (Place{PGSP_OK, L"Parameter", L"Ndi"}));
    EXPECT_EQ(PlaceOf(file, 6, L"a"), (Place{PGSP_OK, L"Parameter", L"UserInterface"}));
    EXPECT_EQ(PlaceOf(file, 7, L"a"), (Place{PGSP_OK, L"Parameter", L"UserInterface64"}));

    EXPECT_EQ(PlaceOf(file, 4, L"a"), Nowhere());
    EXPECT_EQ(PlaceOf(file, 8, L"a"), Nowhere());
    EXPECT_EQ(PlaceOf(file, 0x80000000, L"a"), Nowhere());
    EXPECT_EQ(PlaceOf(file, std::numeric_limits<std::uint32_t>::max(), L"a"), Nowhere());
}

TEST_F(SectionIndex, EachIndexLooksIntoItsOwnSectionOnly)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent().Element(L"Ndi", XmlContent().Bool(L"hidden", L"true"))));

    for (const std::uint32_t other : {0u, 1u, 2u, 3u, 4u, 6u, 7u, 8u})
    {
        EXPECT_EQ(PlaceOf(file, other, L"hidden"), Nowhere()) << "index " << other;
    }
}

TEST_F(SectionIndex, TellsTheElementAsTheFileSpellsItAndTheSectionAsTheTableDoes)
{
    const std::wstring file = File("<LogDevice><devicehEADER><pARAMETERiNT><Name>Unit</Name><Value>1</Value>"
                                   "</pARAMETERiNT></devicehEADER></LogDevice>");

    EXPECT_EQ(PlaceOf(file, 0, L"UNIT"), (Place{PGSP_OK, L"pARAMETERiNT", L"DeviceHeader"}));
}

TEST_F(SectionIndex, AnEntryNeedsNoValue)
{
    const std::wstring file = File(LogDeviceFile(XmlContent().Element(
        L"DeviceHeader", XmlContent().Element(L"ParameterBool", XmlContent().Element(L"Name", L"a")))));

    EXPECT_EQ(PlaceOf(file, 0, L"a"), (Place{PGSP_OK, L"ParameterBool", L"DeviceHeader"}));
}

TEST_F(SectionIndex, TheFirstEntryOfTheNameWins)
{
    const std::wstring file = File(LogDeviceFile(
        XmlContent()
            .Element(L"DeviceHeader", XmlContent().Text(L"b", L"0"))
            .Element(L"DeviceHeader", XmlContent().Text(L"b", L"0").Int(L"a", L"1").Bool(L"a", L"true"))));

    EXPECT_EQ(PlaceOf(file, 0, L"a"), (Place{PGSP_OK, L"ParameterInt", L"DeviceHeader"}));
}

TEST_F(SectionIndex, NoParameterIsTheEntryWithTheEmptyName)
{
    const std::wstring file = File(
        LogDeviceFile(XmlContent().Element(L"DeviceHeader", XmlContent().Text(L"a", L"1").Int(L"", L"2"))));

    EXPECT_EQ(PlaceOf(file, 0, nullptr), (Place{PGSP_OK, L"ParameterInt", L"DeviceHeader"}));
    EXPECT_EQ(PlaceOf(file, 0, L""), (Place{PGSP_OK, L"ParameterInt", L"DeviceHeader"}));
}

} // namespace
} // namespace norvepa::test

#include "GetLists.h"
#include "GetScene.h"

namespace norvepa::test
{
namespace
{

// The three reads of a log device on one file, side by side: where they look first, where they take the
// section from, whether a default stands in, and what an unknown parameter is to them.
class GetAtAGlance : public GetScene
{
protected:
    GetAtAGlance()
    {
        store.WriteBoard(Catalogue()
                             .Parameter(L"Takt", {{L"default", L"of the catalogue"}})
                             .Parameter(L"Stufe", {{L"section", L"SpareSection"}}));
        WriteBytes(roots.logDevice(L"Presse"),
                   XmlFile(L"LogDevice",
                           {{L"DeviceID", L"AFK110"}, {L"CP_TYPE", L"MPI"}, {L"Alias", L"attribute"}},
                           XmlContent()
                               .Element(L"Bindings", XmlContent()
                                                         .Text(L"DeviceID", L"parameter")
                                                         .Text(L"Alias", L"parameter")
                                                         .Text(L"Stufe", L"of Bindings"))
                               .Element(L"UserInterface64", XmlContent().Text(L"Titel", L"of the interface"))
                               .Element(L"SpareSection", XmlContent()
                                                             .Text(L"Stufe", L"of SpareSection")
                                                             .Text(L"Bemerkung", L"of SpareSection"))));
    }

    // By the list read, of a list with one name.
    [[nodiscard]] std::wstring ValueOfList(const wchar_t* section, const wchar_t* parameter) const
    {
        const std::wstring list = Packed({parameter});
        OutputBuffer values(600);
        const std::int32_t result = library.LogDeviceGetValueListBL(
            L"Presse", section, list.c_str(), CountOf(list), values.data(), &values.length);
        return TextOf(result, values);
    }
};

TEST_F(GetAtAGlance, OneValueTakesTwoAttributesFirst)
{
    EXPECT_EQ(Value(L"Presse", L"DeviceID"), L"AFK110");
    EXPECT_EQ(Value(L"Presse", L"CP_TYPE"), L"MPI");
    EXPECT_EQ(Value(L"Presse", L"Alias"), L"parameter");
}

TEST_F(GetAtAGlance, OneValueTakesTheSectionFromTheCatalogueOrElseFromTheFile)
{
    EXPECT_EQ(Value(L"Presse", L"Stufe"), L"of SpareSection");
    EXPECT_EQ(Value(L"Presse", L"Titel"), L"of the interface");
    EXPECT_EQ(Value(L"Presse", L"Bemerkung"), L"of SpareSection");
}

TEST_F(GetAtAGlance, OneValueHasADefault)
{
    EXPECT_EQ(Value(L"Presse", L"Takt"), L"of the catalogue");
}

TEST_F(GetAtAGlance, OneValueIsNotFoundWithoutOne)
{
    EXPECT_EQ(Value(L"Presse", L"Druck"), L"(result 8513)");
}

TEST_F(GetAtAGlance, AValueOfASectionTakesTwoAttributesFirst)
{
    EXPECT_EQ(ValueEx(L"Presse", L"Bindings", L"DeviceID"), L"AFK110");
    EXPECT_EQ(ValueEx(L"Presse", nullptr, L"CP_TYPE"), L"MPI");
    EXPECT_EQ(ValueEx(L"Presse", L"Bindings", L"Alias"), L"parameter");
}

TEST_F(GetAtAGlance, AValueOfASectionTakesTheSectionFromTheCallerOrElseFiveOfThem)
{
    EXPECT_EQ(ValueEx(L"Presse", L"SpareSection", L"Stufe"), L"of SpareSection");
    EXPECT_EQ(ValueEx(L"Presse", nullptr, L"Stufe"), L"of Bindings");
    EXPECT_EQ(ValueEx(L"Presse", nullptr, L"Titel"), L"(result 8513)");
    EXPECT_EQ(ValueEx(L"Presse", nullptr, L"Bemerkung"), L"(result 8513)");
}

TEST_F(GetAtAGlance, AValueOfASectionHasNoDefault)
{
    EXPECT_EQ(ValueEx(L"Presse", nullptr, L"Takt"), L"(result 8513)");
}

TEST_F(GetAtAGlance, AValueOfASectionThatIsUnknownIsTheStoresCodeAndEmptiesTheBuffer)
{
    OutputBuffer value(20);

    EXPECT_EQ(GetEx(L"Presse", nullptr, L"Druck", value), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_EQ(value.text(), L"");
    EXPECT_EQ(value.length, 0U);
}

TEST_F(GetAtAGlance, AListTakesTwoAttributesFirst)
{
    EXPECT_EQ(ValueOfList(L"Bindings", L"DeviceID"), L"AFK110");
    EXPECT_EQ(ValueOfList(nullptr, L"CP_TYPE"), L"MPI");
    EXPECT_EQ(ValueOfList(L"Bindings", L"Alias"), L"parameter");
}

TEST_F(GetAtAGlance, AListTakesTheSectionFromTheCallerOrElseFiveOfThem)
{
    EXPECT_EQ(ValueOfList(L"SpareSection", L"Stufe"), L"of SpareSection");
    EXPECT_EQ(ValueOfList(nullptr, L"Stufe"), L"of Bindings");
    EXPECT_EQ(ValueOfList(nullptr, L"Titel"), L"(result 87)");
    EXPECT_EQ(ValueOfList(nullptr, L"Bemerkung"), L"(result 87)");
}

TEST_F(GetAtAGlance, AListHasNoDefaults)
{
    EXPECT_EQ(ValueOfList(nullptr, L"Takt"), L"(result 87)");
}

TEST_F(GetAtAGlance, AListWithAnUnknownNameIsRefused)
{
    EXPECT_EQ(ValueOfList(nullptr, L"Druck"), L"(result 87)");
    EXPECT_EQ(ValueOfList(L"no such section", L"Stufe"), L"(result 87)");
}

} // namespace
} // namespace norvepa::test

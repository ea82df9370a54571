#include "GetScene.h"

namespace norvepa::test
{
namespace
{

constexpr const wchar_t* Axis = L"Presse\\subdevices\\Achse";
constexpr const wchar_t* NotFound = L"(result 8513)";

class GetSubdevice : public GetScene
{
protected:
    GetSubdevice()
    {
        store.WriteBoard(Catalogue()
                             .Parameter(L"Takt", {{L"default", L"5"}})
                             .Parameter(L"Anzeige", {{L"map", L"Ort"}, {L"section", L"LocalSettings"}}));
        store.WriteDevice(
            L"Presse",
            XmlContent()
                .Element(L"LocalSettings", XmlContent().Text(L"Ort", L"of the device").Text(L"Stufe", L"1"))
                .Element(L"Bindings",
                         XmlContent().Element(
                             L"Subdevices",
                             XmlContent()
                                 .Subdevice(L"Achse", XmlContent()
                                                          .Text(L"Ort", L"links")
                                                          .Text(L"default", L"0")
                                                          .Text(L"DeviceID", L"A1"))
                                 .Subdevice(L"Gro\u00DFe \u00C4xte", XmlContent().Int(L"Ort", L"7")))));
    }
};

TEST_F(GetSubdevice, ReadsItsParameterAndNotTheDevices)
{
    EXPECT_EQ(Value(Axis, L"Ort"), L"links");
    EXPECT_EQ(ValueEx(Axis, nullptr, L"Ort"), L"links");
    EXPECT_EQ(Value(Axis, L"Stufe"), NotFound);
    EXPECT_EQ(ValueEx(Axis, nullptr, L"Stufe"), NotFound);
}

TEST_F(GetSubdevice, IsFoundInAnyCase)
{
    for (const wchar_t* const name :
         {L"PRESSE\\SUBDEVICES\\ACHSE", L"presse\\Subdevices\\aCHSE", L"Presse\\subdevices\\Achse"})
    {
        EXPECT_EQ(Value(name, L"ORT"), L"links") << name;
        EXPECT_EQ(ValueEx(name, nullptr, L"ort"), L"links") << name;
    }
    EXPECT_EQ(Value(L"Presse\\subdevices\\GRO\u00DFE \u00C4XTE", L"Ort"), L"7");
    EXPECT_EQ(ValueEx(L"Presse\\subdevices\\gro\u00DFe \u00E4xte", nullptr, L"Ort"), L"7");
}

TEST_F(GetSubdevice, HasNoDefaultNoMapAndNoSection)
{
    EXPECT_EQ(Value(Axis, L"Takt"), NotFound);
    EXPECT_EQ(Value(Axis, L"Anzeige"), NotFound);
    EXPECT_EQ(ValueEx(Axis, L"no such section", L"Ort"), L"links");
    EXPECT_EQ(ValueEx(Axis, L"LocalSettings", L"Stufe"), NotFound);
}

TEST_F(GetSubdevice, IsAskedForTheParameterNamedDefaultWithoutAName)
{
    EXPECT_EQ(Value(Axis, nullptr), L"0");
    EXPECT_EQ(Value(Axis, L""), L"0");
    EXPECT_EQ(ValueEx(Axis, nullptr, nullptr), L"0");
    EXPECT_EQ(ValueEx(Axis, nullptr, L""), L"0");
}

TEST_F(GetSubdevice, HasNoAttributes)
{
    EXPECT_EQ(Value(Axis, L"DeviceID"), L"A1");
    EXPECT_EQ(ValueEx(Axis, nullptr, L"DeviceID"), L"A1");
    EXPECT_EQ(Value(Axis, L"CP_TYPE"), NotFound);
}

TEST_F(GetSubdevice, NeedsOneCharacterMoreThanTheValue)
{
    OutputBuffer enough(6);
    OutputBuffer enoughEx(6);
    EXPECT_EQ(Get(Axis, L"Ort", enough), PGSP_OK);
    EXPECT_EQ(GetEx(Axis, nullptr, L"Ort", enoughEx), PGSP_OK);
    EXPECT_EQ(enough.text(), L"links");
    EXPECT_EQ(enoughEx.text(), L"links");
    EXPECT_EQ(enoughEx.length, 5U);

    OutputBuffer tooShort(5);
    OutputBuffer tooShortEx(5);
    EXPECT_EQ(Get(Axis, L"Ort", tooShort), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(GetEx(Axis, nullptr, L"Ort", tooShortEx), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_TRUE(tooShort.isUntouched());
    EXPECT_TRUE(tooShortEx.isUntouched());
    EXPECT_EQ(tooShort.length, 5U);
    EXPECT_EQ(tooShortEx.length, 5U);
}

TEST_F(GetSubdevice, ThatIsNotThereIsAParameterThatIsNotFound)
{
    OutputBuffer value(20);
    OutputBuffer valueEx(20);

    EXPECT_EQ(Get(L"Presse\\subdevices\\Band", L"Ort", value), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(GetEx(L"Presse\\subdevices\\Band", nullptr, L"Ort", valueEx), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 20U);
    EXPECT_EQ(valueEx.text(), L"");
    EXPECT_EQ(valueEx.length, 0U);
}

TEST_F(GetSubdevice, OfADeviceThatIsNotThereIsTheDevicesOwnFailure)
{
    EXPECT_EQ(Value(L"gone\\subdevices\\Achse", L"Ort"), L"(result 8012)");
    EXPECT_EQ(ValueEx(L"gone\\subdevices\\Achse", nullptr, L"Ort"), L"(result 8508)");
}

TEST_F(GetSubdevice, WithoutADeviceOrAName)
{
    EXPECT_EQ(Value(L"subdevices\\Achse", L"Ort"), L"(result 8012)");
    EXPECT_EQ(Value(L"\\subdevices\\Achse", L"Ort"), L"(result 8012)");
    EXPECT_EQ(Value(L"Presse\\subdevices\\", L"Ort"), NotFound);
    EXPECT_EQ(Value(L"Presse\\subdevices", L"Ort"), L"(result 8012)");
}

// The list of values knows no subdevices: it looks for a file in a folder that isn't there.
TEST_F(GetSubdevice, IsNothingToTheListOfValues)
{
    OutputBuffer values(260);

    EXPECT_EQ(library.LogDeviceGetValueListBL(Axis, nullptr, L"Ort\0", 4, values.data(), &values.length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceGetValueListBL(Axis, nullptr, nullptr, 0, values.data(), &values.length),
              PGSP_OK);

    EXPECT_EQ(values.length, 1U);
}

} // namespace
} // namespace norvepa::test

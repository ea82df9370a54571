#include "SetScene.h"
#include "support/FreshThread.h"

namespace norvepa::test
{
namespace
{

class SetSubdevice : public SetScene
{
protected:
    SetSubdevice() { WriteValve(XmlContent().Text(L"Stufe", L"1")); }

    [[nodiscard]] static XmlContent Valve(const XmlContent& entries)
    {
        return XmlContent()
            .Element(L"LocalSettings", XmlContent().Int(L"Stufe", L"5"))
            .Subdevice(L"Ventil", entries)
            .Subdevice(L"Pumpe", XmlContent().Text(L"Stufe", L"6"))
            .Element(L"SpareSection", XmlContent());
    }

    void WriteValve(const XmlContent& entries) const { Write(Valve(entries)); }
    void ExpectValve(const XmlContent& entries) const { ExpectSaved(Valve(entries)); }

    [[nodiscard]] std::int32_t SetOf(const wchar_t* logDevice, const wchar_t* value,
                                     const wchar_t* parameter = L"Stufe") const
    {
        return library.LogDeviceSetValueBL(logDevice, parameter, value);
    }
};

TEST_F(SetSubdevice, ReplacesItsValueAndNoOther)
{
    EXPECT_EQ(SetOf(L"Presse\\subdevices\\Ventil", L"2"), PGSP_OK);

    ExpectValve(XmlContent().Text(L"Stufe", L"2"));
}

TEST_F(SetSubdevice, IsFoundInAnyCase)
{
    EXPECT_EQ(SetOf(L"PRESSE\\SubDevices\\VENTIL", L"2", L"STUFE"), PGSP_OK);

    ExpectValve(XmlContent().Text(L"Stufe", L"2"));
}

TEST_F(SetSubdevice, GetsAParameterThatItHasNot)
{
    EXPECT_EQ(SetOf(L"Presse\\subdevices\\Ventil", L"3", L"Takt"), PGSP_OK);

    ExpectValve(XmlContent().Text(L"Stufe", L"1").Text(L"Takt", L"3"));
}

TEST_F(SetSubdevice, GetsTheParameterDefaultWithoutAName)
{
    EXPECT_EQ(SetOf(L"Presse\\subdevices\\Ventil", L"3", nullptr), PGSP_OK);

    ExpectValve(XmlContent().Text(L"Stufe", L"1").Text(L"default", L"3"));
}

TEST_F(SetSubdevice, WithTheSameValueLeavesTheFileAsItIs)
{
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(SetOf(L"Presse\\subdevices\\Ventil", L"1"), PGSP_OK);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
}

// The catalogue is asked for the whole name, which no file has.
TEST_F(SetSubdevice, IsNotCheckedNorPlacedByItsDevicesCatalogue)
{
    store.WriteBoard(Catalogue().Parameter(
        L"Stufe", {{L"type", L"bool"}, {L"section", L"SpareSection"}, {L"map", L"stage"}}));

    EXPECT_EQ(SetOf(L"Presse\\subdevices\\Ventil", L"max"), PGSP_OK);

    ExpectValve(XmlContent().Text(L"Stufe", L"max"));
}

TEST_F(SetSubdevice, IsCheckedAndTypedButNotPlacedByABoardWithoutAnId)
{
    store.WriteBoard(
        Catalogue().Parameter(
            L"Stufe", {{L"type", L"int"}, {L"min", L"2"}, {L"section", L"SpareSection"}, {L"map", L"stage"}}),
        L"");

    EXPECT_EQ(SetOf(L"Presse\\subdevices\\Ventil", L"1"), PGSP_SET_VAL_LESS_THAN_MIN);
    EXPECT_EQ(SetOf(L"Presse\\subdevices\\Ventil", L"min"), PGSP_OK);

    ExpectValve(XmlContent().Text(L"Stufe", L"1").Int(L"Stufe", L"2"));
}

TEST_F(SetSubdevice, GetsATextBesideAnEntryOfAnotherKind)
{
    WriteValve(XmlContent().Int(L"Stufe", L"1"));

    EXPECT_EQ(SetOf(L"Presse\\subdevices\\Ventil", L"2"), PGSP_OK);

    ExpectValve(XmlContent().Int(L"Stufe", L"1").Text(L"Stufe", L"2"));
}

TEST_F(SetSubdevice, WithoutATypeTestsNeitherNameNorValue)
{
    EXPECT_EQ(SetOf(L"Presse\\subdevices\\Ventil", L"<1>", L"a b"), PGSP_OK);

    ExpectValve(XmlContent().Text(L"Stufe", L"1").Text(L"a b", L"<1>"));
}

TEST_F(SetSubdevice, ThatIsMissingIsNotMade)
{
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(SetOf(L"Presse\\subdevices\\Motor", L"2"), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(SetOf(L"Presse\\subdevices\\", L"2"), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
}

TEST_F(SetSubdevice, OfADeviceThatIsMissingFindsNoFile)
{
    EXPECT_EQ(SetOf(L"gone\\subdevices\\Ventil", L"2"), PGSP_ERR_FILE_NOT_FOUND);
}

TEST_F(SetSubdevice, OfADeviceThatCanNotBeLoadedLeavesTheFile)
{
    WriteBytes(roots.logDevice(L"Presse"), "no XML");

    EXPECT_EQ(SetOf(L"Presse\\subdevices\\Ventil", L"2"), PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_EQ(store.Bytes(L"Presse"), "no XML");
}

// A plain set looks after such a thread; this one doesn't.
TEST_F(SetSubdevice, NeedsCom)
{
    const std::string before = store.Bytes(L"Presse");

    OnFreshThread([&] {
        EXPECT_EQ(SetOf(L"Presse\\subdevices\\Ventil", L"2"), PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    EXPECT_EQ(store.Bytes(L"Presse"), before);
}

TEST_F(SetSubdevice, OfDevicesWithCodedNamesIsFound)
{
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName,
                          XmlContent().Subdevice(L"T\u00FCr #1", XmlContent().Text(L"Stufe", L"1")));
        const std::wstring name = std::wstring(coded.name) + L"\\subdevices\\T\u00DCR #1";

        EXPECT_EQ(SetOf(name.c_str(), L"2"), PGSP_OK) << ToUtf8(name);

        EXPECT_THAT(store.Bytes(coded.fileName), testing::HasSubstr("<Value>2</Value>"));
    }
}

} // namespace
} // namespace norvepa::test

#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

using SetSubdevValueTest = WriteScene;

// A log device with the subdevice "A", and another before and behind it.
std::string DeviceWithSubdevice(const XmlContent& content)
{
    return LogDeviceFile(XmlContent().Element(
        L"Bindings", XmlContent()
                         .Text(L"a", L"of the section")
                         .Element(L"Subdevices", XmlContent()
                                                     .Subdevice(L"First", XmlContent().Int(L"a", L"7"))
                                                     .Subdevice(L"A", content)
                                                     .Subdevice(L"Last", XmlContent().Int(L"a", L"8")))));
}

TEST_F(SetSubdevValueTest, OnlyItsOwnEntryIsSet)
{
    GivenFile(DeviceWithSubdevice(XmlContent().Int(L"b", L"0").Int(L"a", L"1")));

    EXPECT_EQ(SetSubdev(L"A", L"a", L"2", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWithSubdevice(XmlContent().Int(L"b", L"0").Int(L"a", L"2"))));
}

TEST_F(SetSubdevValueTest, NamesAreOfAnyCase)
{
    GivenFile(LogDeviceFile(XmlContent().Subdevice(L"\u00DCberhitzer", XmlContent().Int(L"Adresse", L"1"))));

    EXPECT_EQ(SetSubdev(L"\u00FCberhitzer", L"adresse", L"2", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(LogDeviceFile(
                           XmlContent().Subdevice(L"\u00DCberhitzer", XmlContent().Int(L"Adresse", L"2")))));
}

TEST_F(SetSubdevValueTest, TheEntrysElementIsOfAnyCaseUnlikeInAPlainSet)
{
    GivenFile(DeviceWithSubdevice(EntryIn(L"parameterINT", L"a", L"1")));

    EXPECT_EQ(SetSubdev(L"A", L"a", L"2", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWithSubdevice(EntryIn(L"parameterINT", L"a", L"2"))));
}

TEST_F(SetSubdevValueTest, SubdeviceAndItsAttributeAreOfExactCase)
{
    GivenFile("<LogDevice><subdevice SubdevName='A'/><Subdevice subdevname='A'/><Subdevice/></LogDevice>");

    EXPECT_EQ(SetSubdev(L"A", L"a", L"1", L"int"), PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(SetSubdevValueTest, NameAndValueAreOfExactCase)
{
    const XmlContent lower =
        XmlContent().Element(L"ParameterInt", XmlContent().Element(L"name", L"a").Element(L"value", L"1"));
    GivenFile(DeviceWithSubdevice(lower));

    EXPECT_EQ(SetSubdev(L"A", L"a", L"2", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWithSubdevice(XmlContent(lower).Int(L"a", L"2"))));
}

TEST_F(SetSubdevValueTest, ANewParameterGoesBehindAllThatTheSubdeviceHolds)
{
    GivenFile(DeviceWithSubdevice(XmlContent().Int(L"a", L"1").Comment(L"last")));

    EXPECT_EQ(SetSubdev(L"a", L"B", L"x", L"string"), PGSP_OK);

    EXPECT_EQ(Saved(),
              MeaningOf(DeviceWithSubdevice(XmlContent().Int(L"a", L"1").Comment(L"last").Text(L"B", L"x"))));
}

TEST_F(SetSubdevValueTest, ANewParameterIsOfTheLogDevicesKind)
{
    GivenFile("<root><Subdevice SubdevName='A'/></root>");

    EXPECT_EQ(SetSubdev(L"A", L"a", L"1", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(),
              MeaningOf("<root><Subdevice SubdevName='A'><ParameterInt xmlns='http://www.marvolt.example/"
                        "Automation/Corvane.Device.Driver/LogDevice'><Name>a</Name><Value>1</Value>"
                        "</ParameterInt></Subdevice></root>"));
}

TEST_F(SetSubdevValueTest, ASubdeviceIsNeverCreated)
{
    GivenFile(DeviceWithSubdevice({}));
    const std::string before = Bytes();

    EXPECT_EQ(SetSubdev(L"B", L"a", L"1", L"int"), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(SetSubdev(L"", L"a", L"1", L"int"), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(SetSubdev(nullptr, L"a", L"1", L"int"), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_EQ(Bytes(), before);
}

TEST_F(SetSubdevValueTest, ASecondSubdeviceOfTheNameIsSearchedToo)
{
    const auto device = [](std::wstring_view value) {
        return LogDeviceFile(XmlContent()
                                 .Subdevice(L"A", XmlContent().Int(L"b", L"1"))
                                 .Subdevice(L"a", XmlContent().Int(L"a", value)));
    };
    GivenFile(device(L"1"));

    EXPECT_EQ(SetSubdev(L"A", L"a", L"2", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(device(L"2")));
}

TEST_F(SetSubdevValueTest, TheSameValueWritesNothing)
{
    GivenFile(DeviceWithSubdevice(XmlContent().Text(L"a", L"Erdgas")));
    const std::string before = Bytes();

    EXPECT_EQ(SetSubdev(L"A", L"a", L"ERDGAS", L"string"), PGSP_ERR_SAME_VALUE);

    EXPECT_EQ(Bytes(), before);
}

TEST_F(SetSubdevValueTest, AnyValuePassesForABooleanAndStaysAsItIs)
{
    GivenFile(DeviceWithSubdevice({}));

    EXPECT_EQ(SetSubdev(L"A", L"my flag", L"yes", L"bool"), PGSP_OK);
    EXPECT_EQ(SetSubdev(L"A", L"other", L"TRUE", L"BOOL"), PGSP_OK);
    EXPECT_EQ(SetSubdev(L"A", L"third", L"<>", L"bool"), PGSP_OK);

    EXPECT_EQ(Saved(),
              MeaningOf(DeviceWithSubdevice(
                  XmlContent().Bool(L"my flag", L"yes").Bool(L"other", L"TRUE").Bool(L"third", L"<>"))));
}

TEST_F(SetSubdevValueTest, WithoutATypeNothingIsTested)
{
    GivenFile(DeviceWithSubdevice({}));

    EXPECT_EQ(SetSubdev(L"A", L"my param", L"<1>", L""), PGSP_OK);
    EXPECT_EQ(SetSubdev(L"A", L"<other>", L"<2>", nullptr), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWithSubdevice(
                           XmlContent().Text(L"my param", L"<1>").Text(L"<other>", L"<2>"))));
}

TEST_F(SetSubdevValueTest, NumbersAndStringsAreTested)
{
    GivenFile(DeviceWithSubdevice({}));
    const std::string before = Bytes();

    EXPECT_EQ(SetSubdev(L"A", L"a", L"12a", L"int"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetSubdev(L"A", L"a", L"<", L"string"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetSubdev(L"A", L"my param", L"1", L"String"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(SetSubdev(L"A", L"my param", nullptr, L"int"), PGSP_OK);
}

TEST_F(SetSubdevValueTest, AnotherWordIsTheElementItself)
{
    GivenFile(DeviceWithSubdevice({}));

    EXPECT_EQ(SetSubdev(L"A", L"my param", L"<1>", L"Messwert"), PGSP_OK);
    EXPECT_EQ(SetSubdev(L"A", L"a", L"1", L"two words"), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWithSubdevice(EntryIn(L"Messwert", L"my param", L"<1>"))));
}

} // namespace
} // namespace norvepa::test

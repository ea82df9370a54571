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

TEST_F(SetSubdevValueTest, ANewParameterGoesToTheLastSubdeviceOfTheName)
{
    GivenFile(LogDeviceFile(XmlContent()
                                .Subdevice(L"A", XmlContent().Int(L"b", L"1"))
                                .Subdevice(L"a", XmlContent().Int(L"c", L"2"))
                                .Subdevice(L"Other", {})));

    EXPECT_EQ(SetSubdev(L"A", L"a", L"3", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(),
              MeaningOf(LogDeviceFile(XmlContent()
                                          .Subdevice(L"A", XmlContent().Int(L"b", L"1"))
                                          .Subdevice(L"a", XmlContent().Int(L"c", L"2").Int(L"a", L"3"))
                                          .Subdevice(L"Other", {}))));
}

TEST_F(SetSubdevValueTest, OfTwoEntriesOfANameTheFirstIsSet)
{
    GivenFile(DeviceWithSubdevice(XmlContent().Int(L"a", L"1").Int(L"A", L"9")));

    EXPECT_EQ(SetSubdev(L"A", L"a", L"2", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWithSubdevice(XmlContent().Int(L"a", L"2").Int(L"A", L"9"))));
}

TEST_F(SetSubdevValueTest, AnotherTypeMakesASecondEntry)
{
    GivenFile(DeviceWithSubdevice(XmlContent().Int(L"a", L"1")));

    EXPECT_EQ(SetSubdev(L"A", L"a", L"1", nullptr), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWithSubdevice(XmlContent().Int(L"a", L"1").Text(L"a", L"1"))));
}

TEST_F(SetSubdevValueTest, AValueAheadOfItsNameIsNotTheParameters)
{
    const XmlContent reversed =
        XmlContent().Element(L"ParameterInt", XmlContent().Element(L"Value", L"1").Element(L"Name", L"a"));
    GivenFile(DeviceWithSubdevice(reversed));

    EXPECT_EQ(SetSubdev(L"A", L"a", L"2", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWithSubdevice(XmlContent(reversed).Int(L"a", L"2"))));
}

TEST_F(SetSubdevValueTest, OnlyChildrenOfTheSubdeviceAreItsEntries)
{
    const XmlContent deeper = XmlContent().Element(L"Group", XmlContent().Int(L"a", L"1"));
    GivenFile(DeviceWithSubdevice(deeper));

    EXPECT_EQ(SetSubdev(L"A", L"a", L"2", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWithSubdevice(XmlContent(deeper).Int(L"a", L"2"))));
}

TEST_F(SetSubdevValueTest, TheRootIsNoSubdevice)
{
    GivenFile("<Subdevice SubdevName='A'>" + XmlContent().Int(L"a", L"1").utf8() + "</Subdevice>");

    EXPECT_EQ(SetSubdev(L"A", L"a", L"2", L"int"), PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(SetSubdevValueTest, NoNameIsTheOneOfASubdeviceWithAnEmptyOne)
{
    const auto device = [](std::wstring_view value) {
        return LogDeviceFile(XmlContent()
                                 .EmptyTag(L"Subdevice")
                                 .Subdevice(L"A", XmlContent().Int(L"a", L"9"))
                                 .Subdevice(L"", XmlContent().Int(L"a", value)));
    };
    GivenFile(device(L"1"));

    EXPECT_EQ(SetSubdev(L"", L"a", L"2", L"int"), PGSP_OK);
    EXPECT_EQ(SetSubdev(nullptr, L"a", L"3", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(device(L"3")));
}

TEST_F(SetSubdevValueTest, TheSameValueWritesNothing)
{
    GivenFile(DeviceWithSubdevice(XmlContent().Text(L"a", L"Erdgas")));
    const std::string before = Bytes();

    EXPECT_EQ(SetSubdev(L"A", L"a", L"ERDGAS", L"string"), PGSP_ERR_SAME_VALUE);

    EXPECT_EQ(Bytes(), before);
}

} // namespace
} // namespace norvepa::test

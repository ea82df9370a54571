#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

using SetValueTest = WriteScene;

TEST_F(SetValueTest, AValueIsReplacedInItsPlace)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"1").Int(L"b", L"2").Int(L"c", L"3")));

    EXPECT_EQ(Set(L"LocalSettings", L"b", L"20", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(XmlContent().Int(L"a", L"1").Int(L"b", L"20").Int(L"c", L"3"))));
}

TEST_F(SetValueTest, TheNameIsComparedWithoutRegardToCaseAndKeepsItsOwn)
{
    GivenFile(DeviceWith(XmlContent().Text(L"\u00DCbertragung", L"1")));

    EXPECT_EQ(Set(L"LocalSettings", L"\u00FCBERTRAGUNG", L"2", L"string"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(XmlContent().Text(L"\u00DCbertragung", L"2"))));
}

TEST_F(SetValueTest, TheSameValueWritesNothing)
{
    GivenFile(DeviceWith(XmlContent().Text(L"a", L"\u00C4rger")));
    const std::string before = Bytes();

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"\u00C4rger", L"string"), PGSP_ERR_SAME_VALUE);
    EXPECT_EQ(Set(L"LocalSettings", L"a", L"\u00E4RGER", L"string"), PGSP_ERR_SAME_VALUE);

    EXPECT_EQ(Bytes(), before);
}

TEST_F(SetValueTest, ANormalisedBooleanIsComparedAsItWouldBeStored)
{
    GivenFile(DeviceWith(XmlContent().Bool(L"a", L"True")));

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"TRUE", L"bool"), PGSP_ERR_SAME_VALUE);
    EXPECT_EQ(Set(L"LocalSettings", L"a", L"FALSE", L"bool"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(XmlContent().Bool(L"a", L"false"))));
}

TEST_F(SetValueTest, ANewParameterGoesBehindAllThatTheSectionHolds)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"1").Comment(L"last")));

    EXPECT_EQ(Set(L"LocalSettings", L"b", L"2", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(XmlContent().Int(L"a", L"1").Comment(L"last").Int(L"b", L"2"))));
}

TEST_F(SetValueTest, ANewParameterFillsAnEmptySection)
{
    GivenFile(LogDeviceFile(XmlContent().EmptyTag(L"LocalSettings")));

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"x", nullptr), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(XmlContent().Text(L"a", L"x"))));
}

TEST_F(SetValueTest, ANewNameKeepsItsCase)
{
    GivenFile(DeviceWith({}));

    EXPECT_EQ(Set(L"LocalSettings", L"BaudRate", L"9600", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(XmlContent().Int(L"BaudRate", L"9600"))));
}

TEST_F(SetValueTest, ASectionThatIsNotThereIsNotCreated)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"1")));
    const std::string before = Bytes();

    EXPECT_EQ(Set(L"Bindings", L"a", L"2", L"int"), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_EQ(Bytes(), before);
}

TEST_F(SetValueTest, SectionsAreOfExactCaseUnlikeInReads)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"1")));

    EXPECT_EQ(Set(L"localsettings", L"a", L"2", L"int"), PGSP_ERR_CANT_SET_VALUE);

    std::wstring value;
    EXPECT_EQ(NorvXMLGetValue(path().c_str(), L"localsettings", L"a", &value), PGSP_OK);
}

TEST_F(SetValueTest, ElementsWithAPrefixAreNotFoundUnlikeInReads)
{
    GivenFile("<d:LogDevice xmlns:d='urn:d'><d:LocalSettings><d:ParameterInt><d:Name>a</d:Name>"
              "<d:Value>1</d:Value></d:ParameterInt></d:LocalSettings></d:LogDevice>");

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"2", L"int"), PGSP_ERR_CANT_SET_VALUE);

    std::wstring value;
    EXPECT_EQ(NorvXMLGetValue(path().c_str(), L"LocalSettings", L"a", &value), PGSP_OK);
}

TEST_F(SetValueTest, TheRootIsNoSection)
{
    GivenFile("<LocalSettings>" + XmlContent().Int(L"a", L"1").utf8() + "</LocalSettings>");

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"2", L"int"), PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(SetValueTest, ASectionIsFoundAtAnyDepth)
{
    const auto nested = [](std::wstring_view value) {
        return LogDeviceFile(
            XmlContent().Element(L"Bindings", XmlContent().Element(L"Inner", XmlContent().Int(L"a", value))));
    };
    GivenFile(nested(L"1"));

    EXPECT_EQ(Set(L"Inner", L"a", L"2", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(nested(L"2")));
}

TEST_F(SetValueTest, AllSectionsOfTheNameAreSearched)
{
    const auto device = [](std::wstring_view value) {
        return LogDeviceFile(XmlContent()
                                 .Element(L"LocalSettings", XmlContent().Int(L"a", L"1"))
                                 .Element(L"LocalSettings", XmlContent().Int(L"b", value)));
    };
    GivenFile(device(L"2"));

    EXPECT_EQ(Set(L"LocalSettings", L"b", L"3", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(device(L"3")));
}

TEST_F(SetValueTest, ANewParameterGoesToTheFirstSectionOfTheName)
{
    GivenFile(LogDeviceFile(XmlContent()
                                .Element(L"LocalSettings", XmlContent().Int(L"a", L"1"))
                                .Element(L"LocalSettings", XmlContent().Int(L"b", L"2"))));

    EXPECT_EQ(Set(L"LocalSettings", L"c", L"3", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(LogDeviceFile(
                           XmlContent()
                               .Element(L"LocalSettings", XmlContent().Int(L"a", L"1").Int(L"c", L"3"))
                               .Element(L"LocalSettings", XmlContent().Int(L"b", L"2")))));
}

TEST_F(SetValueTest, OfTwoEntriesOfANameTheFirstIsSet)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"1").Int(L"A", L"2")));

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"3", L"int"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(XmlContent().Int(L"a", L"3").Int(L"A", L"2"))));
}

TEST_F(SetValueTest, AnotherTypeMakesASecondEntry)
{
    GivenFile(DeviceWith(XmlContent().Text(L"a", L"true")));

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"true", L"bool"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(XmlContent().Text(L"a", L"true").Bool(L"a", L"true"))));
}

TEST_F(SetValueTest, WithoutASectionTheSpareOneIsMeant)
{
    for (const wchar_t* section : {L"", static_cast<const wchar_t*>(nullptr)})
    {
        GivenFile(LogDeviceFile(XmlContent().EmptyTag(L"LocalSettings").EmptyTag(L"SpareSection")));

        EXPECT_EQ(Set(section, L"a", L"1", L"int"), PGSP_OK);

        EXPECT_EQ(Saved(),
                  MeaningOf(LogDeviceFile(XmlContent()
                                              .EmptyTag(L"LocalSettings")
                                              .Element(L"SpareSection", XmlContent().Int(L"a", L"1")))));
    }
}

TEST_F(SetValueTest, TheSpareSectionMustBeThere)
{
    GivenFile(DeviceWith({}));

    EXPECT_EQ(Set(nullptr, L"a", L"1", L"int"), PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(SetValueTest, NullIsTheEmptyValue)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"1")));

    EXPECT_EQ(Set(L"LocalSettings", L"a", nullptr, L"int"), PGSP_OK);
    EXPECT_EQ(Set(L"LocalSettings", L"b", nullptr, nullptr), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(XmlContent().Int(L"a", L"").Text(L"b", L""))));
    EXPECT_EQ(Set(L"LocalSettings", L"a", L"", L"int"), PGSP_ERR_SAME_VALUE);
}

} // namespace
} // namespace norvepa::test

#include "store/ReadScene.h"

namespace norvepa::test
{
namespace
{

using GetSubdevValueTest = ReadScene;
using SubdevExistsTest = ReadScene;

std::string WithSubdevices(const XmlContent& subdevices)
{
    return LogDeviceFile(XmlContent().Element(L"Bindings", XmlContent().Element(L"Subdevices", subdevices)));
}

TEST_F(GetSubdevValueTest, ReadsFromTheSubdeviceOfThatName)
{
    const std::wstring file =
        File(WithSubdevices(XmlContent()
                                .Subdevice(L"Pumpe", XmlContent().Int(L"Unit", L"1"))
                                .Subdevice(L"Rührer", XmlContent().Int(L"Unit", L"2"))));

    EXPECT_EQ(GetSubdevValue(file, L"Pumpe", L"Unit"), Found(L"1"));
    EXPECT_EQ(GetSubdevValue(file, L"Rührer", L"Unit"), Found(L"2"));
    EXPECT_EQ(GetSubdevValue(file, L"Kessel", L"Unit"), NotFound());
    EXPECT_EQ(GetSubdevValue(file, L"Pumpe", L"Device"), NotFound());
}

TEST_F(GetSubdevValueTest, NamesMatchInAnyCaseAndTheValueKeepsItsOwn)
{
    const std::wstring file = File(
        "<LogDevice><SUBDEVICE subdevNAME='Rührer'><x><NAME>Größe</NAME><VALUE>Wert</VALUE></x></SUBDEVICE>"
        "</LogDevice>");

    EXPECT_EQ(GetSubdevValue(file, L"RÜHRER", L"GRÖßE"), Found(L"Wert"));
}

TEST_F(GetSubdevValueTest, TheElementOfAnEntryMayHaveAnyName)
{
    const std::wstring file = File(WithSubdevices(XmlContent().Subdevice(
        L"A", XmlContent()
                  .Element(L"Anything", XmlContent().Element(L"Name", L"a").Element(L"Value", L"1"))
                  .Element(L"Name", L"b")
                  .Element(L"Value", L"2"))));

    EXPECT_EQ(GetSubdevValue(file, L"A", L"a"), Found(L"1"));
    EXPECT_EQ(GetSubdevValue(file, L"A", L"b"), Found(L"2"));
}

TEST_F(GetSubdevValueTest, TheFirstEntryOfANameWins)
{
    const std::wstring file =
        File(WithSubdevices(XmlContent().Subdevice(L"A", XmlContent().Text(L"a", L"1").Text(L"a", L"2"))));

    EXPECT_EQ(GetSubdevValue(file, L"A", L"a"), Found(L"1"));
}

TEST_F(GetSubdevValueTest, ASubdeviceThatOccursSeveralTimesIsSearchedEachTime)
{
    const std::wstring file = File(WithSubdevices(XmlContent()
                                                      .Subdevice(L"A", XmlContent().Text(L"a", L"1"))
                                                      .Subdevice(L"B", XmlContent().Text(L"b", L"other"))
                                                      .Subdevice(L"a", XmlContent().Text(L"b", L"2"))));

    EXPECT_EQ(GetSubdevValue(file, L"A", L"b"), Found(L"2"));
}

TEST_F(GetSubdevValueTest, AValueIsTakenFromTheNextEntryWhenItsOwnIsMissing)
{
    const std::wstring file = File(WithSubdevices(XmlContent().Subdevice(
        L"A", XmlContent().Element(L"Parameter", XmlContent().Element(L"Name", L"a")).Text(L"b", L"2"))));

    EXPECT_EQ(GetSubdevValue(file, L"A", L"a"), Found(L"2"));
}

TEST_F(GetSubdevValueTest, AnEmptyValueTagIsNoValueAndTheSearchGoesOn)
{
    const std::wstring file = File(WithSubdevices(XmlContent().Subdevice(
        L"A", XmlContent()
                  .Element(L"Parameter", XmlContent().Element(L"Name", L"a").EmptyTag(L"Value"))
                  .Text(L"a", L"2"))));

    EXPECT_EQ(GetSubdevValue(file, L"A", L"a"), Found(L"2"));
}

TEST_F(GetSubdevValueTest, AnEmptyValueTagOfAnotherEntryEndsTheSearchOfThatSubdevice)
{
    const std::wstring file = File(WithSubdevices(XmlContent().Subdevice(
        L"A", XmlContent()
                  .Element(L"Parameter", XmlContent().Element(L"Name", L"a").EmptyTag(L"Value"))
                  .Text(L"b", L"2"))));

    EXPECT_EQ(GetSubdevValue(file, L"A", L"b"), NotFound());
}

TEST_F(GetSubdevValueTest, AValueOfTwoTagsWithNothingBetweenIsTheEmptyText)
{
    const std::wstring file =
        File(WithSubdevices(XmlContent().Subdevice(L"A", XmlContent().Text(L"a", L""))));

    EXPECT_EQ(GetSubdevValue(file, L"A", L"a"), Found(L""));
}

TEST_F(GetSubdevValueTest, ASubdeviceWithoutANameIsPassedOver)
{
    const std::wstring file =
        File(WithSubdevices(XmlContent()
                                .Element(L"Subdevice", XmlContent().Text(L"a", L"0"))
                                .Element(L"Subdevice", {{L"Name", L"A"}}, XmlContent().Text(L"a", L"0"))
                                .Subdevice(L"A", XmlContent().Text(L"a", L"1"))));

    EXPECT_EQ(GetSubdevValue(file, L"A", L"a"), Found(L"1"));
}

TEST_F(GetSubdevValueTest, TheEmptyNamesAreNamesLikeOthers)
{
    const std::wstring file = File(WithSubdevices(XmlContent()
                                                      .Subdevice(L"A", XmlContent().Text(L"", L"1"))
                                                      .Subdevice(L"", XmlContent().Text(L"a", L"2"))));

    EXPECT_EQ(GetSubdevValue(file, L"A", L""), Found(L"1"));
    EXPECT_EQ(GetSubdevValue(file, L"", L"a"), Found(L"2"));
}

TEST_F(GetSubdevValueTest, EntriesOutsideOfASubdeviceAreNotFound)
{
    const std::wstring file = File(LogDeviceFile(
        XmlContent()
            .Element(L"Bindings",
                     XmlContent().Text(L"a", L"0").Subdevice(L"A", XmlContent().Text(L"b", L"1")))
            .Element(L"Ndi", XmlContent().Text(L"a", L"0"))));

    EXPECT_EQ(GetSubdevValue(file, L"A", L"a"), NotFound());
}

TEST_F(SubdevExistsTest, SaysWhetherThereIsASubdeviceOfThatName)
{
    const std::wstring file = File(WithSubdevices(
        XmlContent().Subdevice(L"Pumpe", XmlContent()).Subdevice(L"Rührer", XmlContent().Text(L"a", L"1"))));

    EXPECT_EQ(NorvXMLSubdevExists(file.c_str(), L"pumpe"), PGSP_OK);
    EXPECT_EQ(NorvXMLSubdevExists(file.c_str(), L"RÜHRER"), PGSP_OK);
    EXPECT_EQ(NorvXMLSubdevExists(file.c_str(), L"Kessel"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(NorvXMLSubdevExists(file.c_str(), L"a"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(NorvXMLSubdevExists(file.c_str(), L""), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(SubdevExistsTest, ASubdeviceOfOneEmptyTagIsNone)
{
    const std::wstring file =
        File(WithSubdevices(XmlContent().EmptyTag(L"Subdevice", {{L"SubdevName", L"Pumpe"}})));

    EXPECT_EQ(NorvXMLSubdevExists(file.c_str(), L"Pumpe"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(SubdevExistsTest, ASubdeviceIsFoundAheadOfAMalformedPlaceOnly)
{
    const std::wstring file = File(
        "<LogDevice><Subdevice SubdevName='A'></Subdevice><x></wrong><Subdevice SubdevName='B'></Subdevice>");

    EXPECT_EQ(NorvXMLSubdevExists(file.c_str(), L"A"), PGSP_OK);
    EXPECT_EQ(NorvXMLSubdevExists(file.c_str(), L"B"), PGSP_ERR_PARAM_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test

#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

// What is deleted from sections without a schema is gone at once, from all others in the "(temp)" file.
class DelValueTest : public WriteScene
{
protected:
    [[nodiscard]] std::wstring temporary() const { return path() + L"(temp).xml"; }
};

class DelValueInPlace : public DelValueTest, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(DelValueInPlace, SavesTheFileItself)
{
    const auto document = [&](const XmlContent& content) {
        return XmlFile(L"PGSP", {{L"xmlns", L"urn:p"}}, XmlContent().Element(GetParam(), content));
    };
    GivenFile(document(XmlContent().Text(L"a", L"1").Text(L"b", L"2")));

    EXPECT_EQ(Delete(GetParam(), L"a"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(document(XmlContent().Text(L"b", L"2"))));
    EXPECT_FALSE(Exists(temporary()));
}

INSTANTIATE_TEST_SUITE_P(DelValue, DelValueInPlace,
                         testing::Values(L"NotificationSection", L"Updates", L"DateTimeSection",
                                         L"PGSP_Section"));

class DelValueBeside : public DelValueTest, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(DelValueBeside, SavesTheTemporaryFile)
{
    const auto document = [&](const XmlContent& content) {
        return LogDeviceFile(XmlContent().Element(GetParam(), content));
    };
    GivenFile(document(XmlContent().Text(L"a", L"1").Text(L"b", L"2")));
    const std::string before = Bytes();

    EXPECT_EQ(Delete(GetParam(), L"a"), PGSP_OK);

    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(document(XmlContent().Text(L"b", L"2"))));
}

INSTANTIATE_TEST_SUITE_P(DelValue, DelValueBeside,
                         testing::Values(L"Parameters", L"LocalSettings", L"SpareSection", L"Clients",
                                         L"updates"));

TEST_F(DelValueTest, EntriesOfTheThreeElementsAreDeleted)
{
    for (const std::wstring_view element : {L"Parameter", L"ParameterInt", L"ParameterBool"})
    {
        GivenFile(DeviceWith(EntryIn(element, L"\u00C4a", L"1")));

        EXPECT_EQ(Delete(L"LocalSettings", L"\u00E4A"), PGSP_OK);

        EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(DeviceWith({})));
    }
}

TEST_F(DelValueTest, EntriesOfOtherElementsAreNot)
{
    for (const std::wstring_view element : {L"parameter", L"Resource", L"ParameterText"})
    {
        GivenFile(DeviceWith(EntryIn(element, L"a", L"1")));

        EXPECT_EQ(Delete(L"LocalSettings", L"a"), PGSP_ERR_PARAM_NOT_FOUND);
    }
}

TEST_F(DelValueTest, AnEntryNeedsNoValueAndNoOrder)
{
    for (const XmlContent& children :
         {XmlContent().Element(L"Name", L"a"), XmlContent().Element(L"Value", L"1").Element(L"Name", L"a")})
    {
        GivenFile(DeviceWith(XmlContent().Element(L"Parameter", children)));

        EXPECT_EQ(Delete(L"LocalSettings", L"a"), PGSP_OK);

        EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(DeviceWith({})));
    }
}

TEST_F(DelValueTest, OnlyTheFirstEntryOfTheNameGoes)
{
    GivenFile(DeviceWith(XmlContent().Text(L"x", L"0").Int(L"a", L"1").Text(L"a", L"2")));

    EXPECT_EQ(Delete(L"LocalSettings", L"a"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(temporary()),
              MeaningOf(DeviceWith(XmlContent().Text(L"x", L"0").Text(L"a", L"2"))));
}

TEST_F(DelValueTest, OnlyTheFirstSectionOfTheNameIsSearched)
{
    GivenFile(LogDeviceFile(XmlContent()
                                .Element(L"LocalSettings", XmlContent().Int(L"b", L"1"))
                                .Element(L"LocalSettings", XmlContent().Int(L"a", L"1"))));

    EXPECT_EQ(Delete(L"LocalSettings", L"a"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(DelValueTest, ASecondEntryOfTheNameIsThereForTheNextDeletion)
{
    GivenFile(LogDeviceFile(
        XmlContent().Element(L"PGSP_Section", XmlContent().Text(L"a", L"1").Bool(L"A", L"true"))));

    EXPECT_EQ(Delete(L"PGSP_Section", L"a"), PGSP_OK);
    std::wstring value;
    EXPECT_EQ(NorvXMLGetValue(path().c_str(), L"PGSP_Section", L"a", &value), PGSP_OK);
    EXPECT_EQ(value, L"true");

    EXPECT_EQ(Delete(L"PGSP_Section", L"a"), PGSP_OK);
    EXPECT_EQ(Delete(L"PGSP_Section", L"a"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(DelValueTest, TheNameIsOfExactCaseAndAnyOfSeveralCounts)
{
    const XmlContent lower = XmlContent().Element(L"name", L"a").Element(L"Value", L"1");
    const XmlContent several = XmlContent().Element(L"Name", L"b").Element(L"Name", L"a");
    GivenFile(DeviceWith(XmlContent().Element(L"Parameter", lower).Element(L"Parameter", several)));

    EXPECT_EQ(Delete(L"LocalSettings", L"a"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(DeviceWith(XmlContent().Element(L"Parameter", lower))));
}

TEST_F(DelValueTest, OnlyChildrenOfTheSectionAreItsEntries)
{
    GivenFile(DeviceWith(XmlContent().Subdevice(L"A", XmlContent().Int(L"a", L"1"))));

    EXPECT_EQ(Delete(L"LocalSettings", L"a"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(DelValueTest, TheRootIsNoSection)
{
    GivenFile("<PGSP_Section>" + XmlContent().Int(L"a", L"1").utf8() + "</PGSP_Section>");

    EXPECT_EQ(Delete(L"PGSP_Section", L"a"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(DelValueTest, WhatBelongsToTheEntryGoesWithItAndNothingElse)
{
    const auto section = [](const XmlContent& entry) {
        return DeviceWith(XmlContent().Comment(L"before").Raw(entry.utf8()).Comment(L"behind"));
    };
    GivenFile(section(XmlContent().Element(
        L"Parameter", XmlContent().Comment(L"inside").Element(L"Name", L"a").Element(L"Unit", L"V"))));

    EXPECT_EQ(Delete(L"LocalSettings", L"a"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(section({})));
}

TEST_F(DelValueTest, WhatIsNotThereWritesNothing)
{
    GivenFile(LogDeviceFile(XmlContent()
                                .Element(L"LocalSettings", XmlContent().Int(L"a", L"1"))
                                .Element(L"PGSP_Section", XmlContent().Int(L"a", L"1"))));
    const std::string before = Bytes();

    EXPECT_EQ(Delete(L"LocalSettings", L"b"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Delete(L"PGSP_Section", L"b"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Delete(L"Bindings", L"a"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(Delete(L"localsettings", L"a"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_EQ(Bytes(), before);
    EXPECT_FALSE(Exists(temporary()));
}

TEST_F(DelValueTest, WhatIsNotThereLeavesALeftoverAlone)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"1")));
    WriteBytes(temporary(), "left over");

    EXPECT_EQ(Delete(L"LocalSettings", L"b"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_EQ(ReadBytes(temporary()), "left over");
}

TEST_F(DelValueTest, WithoutASectionTheSpareOneIsMeant)
{
    for (const wchar_t* section : {L"", static_cast<const wchar_t*>(nullptr)})
    {
        GivenFile(LogDeviceFile(XmlContent()
                                    .Element(L"LocalSettings", XmlContent().Int(L"a", L"1"))
                                    .Element(L"SpareSection", XmlContent().Int(L"a", L"2"))));

        EXPECT_EQ(Delete(section, L"a"), PGSP_OK);

        EXPECT_EQ(MeaningOfFile(temporary()),
                  MeaningOf(LogDeviceFile(XmlContent()
                                              .Element(L"LocalSettings", XmlContent().Int(L"a", L"1"))
                                              .EmptyTag(L"SpareSection"))));
    }
}

TEST_F(DelValueTest, ALeftoverIsReplaced)
{
    GivenFile(DeviceWith(XmlContent().Int(L"a", L"1")));
    WriteBytes(temporary(), "left over" + std::string(10'000, ' '));

    EXPECT_EQ(Delete(L"LocalSettings", L"a"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(temporary()), MeaningOf(DeviceWith({})));
}

TEST_F(DelValueTest, ANameWithCodesGoesToItsOwnTemporaryFile)
{
    WriteBytes(folder() / L"50#25 (nmbr)1.xml", DeviceWith(XmlContent().Int(L"a", L"1")));
    WriteBytes(folder() / L"50#25 (nmbr)1(temp).xml", "left over" + std::string(10'000, ' '));

    EXPECT_EQ(NorvXMLDelValue((folder() / L"50% #1").c_str(), L"LocalSettings", L"a"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(folder() / L"50#25 (nmbr)1(temp).xml"), MeaningOf(DeviceWith({})));
    EXPECT_THAT(FileNames(folder().path()),
                testing::ElementsAre(L"50#25 (nmbr)1(temp).xml", L"50#25 (nmbr)1.xml"));
}

// The escaped path is escaped once more for the leftover: another name's file is what goes.
TEST_F(DelValueTest, ALeftoverIsLookedForByATwiceEscapedName)
{
    WriteBytes(folder() / L"50#25.xml", DeviceWith(XmlContent().Int(L"a", L"1")));
    WriteBytes(folder() / L"50(nmbr)25(temp).xml", "of another name");

    EXPECT_EQ(NorvXMLDelValue((folder() / L"50%").c_str(), L"LocalSettings", L"a"), PGSP_OK);

    EXPECT_FALSE(Exists(folder() / L"50(nmbr)25(temp).xml"));
}

} // namespace
} // namespace norvepa::test

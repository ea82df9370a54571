#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

// Entries as nobody should write them. `before` stands in the section; the test tells what a set makes of it.
class SetValueEntryTest : public WriteScene
{
protected:
    [[nodiscard]] std::string AfterSetting(const XmlContent& before) const
    {
        GivenFile(DeviceWith(before));
        EXPECT_EQ(Set(L"LocalSettings", L"a", L"2", L"string"), PGSP_OK);
        return Saved();
    }

    [[nodiscard]] static std::string Section(const XmlContent& content)
    {
        return MeaningOf(DeviceWith(content));
    }

    [[nodiscard]] static XmlContent Entry(const XmlContent& children)
    {
        return XmlContent().Element(L"Parameter", children);
    }
};

TEST_F(SetValueEntryTest, AValueAheadOfItsNameIsNotTheParameters)
{
    const XmlContent reversed = Entry(XmlContent().Element(L"Value", L"1").Element(L"Name", L"a"));

    EXPECT_EQ(AfterSetting(reversed), Section(XmlContent(reversed).Text(L"a", L"2")));
}

TEST_F(SetValueEntryTest, AValueBehindTheNameIsFoundWhateverStandsBetween)
{
    const auto entry = [](std::wstring_view value) {
        return Entry(XmlContent()
                         .Element(L"Value", L"0")
                         .Comment(L"c")
                         .Element(L"Name", L"a")
                         .Element(L"Unit", L"V")
                         .Element(L"Value", value)
                         .Element(L"Value", L"9"));
    };

    EXPECT_EQ(AfterSetting(entry(L"1")), Section(entry(L"2")));
}

TEST_F(SetValueEntryTest, AnEntryWithoutANameIsPassedOver)
{
    const XmlContent nameless = Entry(XmlContent().Element(L"Value", L"1"));

    EXPECT_EQ(AfterSetting(XmlContent(nameless).Text(L"a", L"1")),
              Section(XmlContent(nameless).Text(L"a", L"2")));
}

TEST_F(SetValueEntryTest, AnEntryWithoutAValueIsNotFound)
{
    const XmlContent valueless = Entry(XmlContent().Element(L"Name", L"a"));

    EXPECT_EQ(AfterSetting(valueless), Section(XmlContent(valueless).Text(L"a", L"2")));
}

TEST_F(SetValueEntryTest, NameAndValueAreOfExactCase)
{
    const XmlContent lower = Entry(XmlContent().Element(L"name", L"a").Element(L"value", L"1"));

    EXPECT_EQ(AfterSetting(lower), Section(XmlContent(lower).Text(L"a", L"2")));
}

TEST_F(SetValueEntryTest, TheEntrysElementIsOfExactCase)
{
    const XmlContent lower = EntryIn(L"parameter", L"a", L"1");

    EXPECT_EQ(AfterSetting(lower), Section(XmlContent(lower).Text(L"a", L"2")));
}

TEST_F(SetValueEntryTest, OnlyChildrenOfTheSectionAreItsEntries)
{
    const XmlContent deeper = XmlContent().Element(L"Group", XmlContent().Text(L"a", L"1"));

    EXPECT_EQ(AfterSetting(deeper), Section(XmlContent(deeper).Text(L"a", L"2")));
}

TEST_F(SetValueEntryTest, AllThatStandsInAValueIsReplaced)
{
    EXPECT_EQ(AfterSetting(Entry(
                  XmlContent()
                      .Element(L"Name", L"a")
                      .Element(L"Value", XmlContent().CData(L"<1>").Element(L"b", L"c").Comment(L"d")))),
              Section(XmlContent().Text(L"a", L"2")));
}

TEST_F(SetValueEntryTest, TheTextOfANameMayBeSplit)
{
    const auto entry = [](std::wstring_view value) {
        return Entry(XmlContent()
                         .Element(L"Name", XmlContent().Raw("<!--the-->").CData(L"a"))
                         .Element(L"Value", value));
    };

    EXPECT_EQ(AfterSetting(entry(L"1")), Section(entry(L"2")));
}

} // namespace
} // namespace norvepa::test

#include "support/LogNameCalls.h"

namespace norvepa::test
{
namespace
{

class LogNameGetValueEntries : public LogNames
{
protected:
    void WriteSections(const XmlContent& sections) const
    {
        WriteBytes(roots.logName(L"Pumpe"), XmlFile(L"LogName", {}, sections));
    }
};

TEST_F(LogNameGetValueEntries, MatchInAnyCaseAndKeepTheValues)
{
    WriteSections(XmlContent().Element(
        L"PARAMETERS",
        XmlContent().Element(L"parameter",
                             XmlContent().Element(L"NAME", L"baudrate").Element(L"value", L"1.5 MBaud"))));

    EXPECT_EQ(Value(L"Pumpe", L"BAUDRATE"), L"1.5 MBaud");
}

TEST_F(LogNameGetValueEntries, MayBeOfAnyOfTheThreeKinds)
{
    Write(L"Pumpe", XmlContent().Text(L"text", L"a").Int(L"number", L"1").Bool(L"switch", L"true"));

    EXPECT_EQ(Value(L"Pumpe", L"text"), L"a");
    EXPECT_EQ(Value(L"Pumpe", L"number"), L"1");
    EXPECT_EQ(Value(L"Pumpe", L"switch"), L"true");
}

TEST_F(LogNameGetValueEntries, CountByTheFirstOfTheirName)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L"first").Text(L"Station", L"second"));

    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"first");
}

TEST_F(LogNameGetValueEntries, KeepTheBlanksOfTheirValues)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L"  Halle  2 "));

    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"  Halle  2 ");
}

TEST_F(LogNameGetValueEntries, GiveMarkupCharactersOfTheirValues)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L"<A> & \"B\""));

    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"<A> & \"B\"");
}

TEST_F(LogNameGetValueEntries, CountOnlyInTheirSection)
{
    WriteSections(XmlContent()
                      .Element(L"LocalSettings", XmlContent().Text(L"Station", L"elsewhere"))
                      .Element(L"Parameters", XmlContent().Text(L"Bereich", L"Leitwarte")));

    EXPECT_EQ(Value(L"Pumpe", L"Bereich"), L"Leitwarte");
    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(LogNameGetValueEntries, AreSearchedInEverySectionOfTheName)
{
    WriteSections(XmlContent()
                      .Element(L"Parameters", XmlContent().Text(L"Bereich", L"Leitwarte"))
                      .Element(L"Parameters", XmlContent().Text(L"Station", L"second section")));

    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"second section");
}

TEST_F(LogNameGetValueEntries, AreNotHiddenByAnEmptyTagAheadOfTheSection)
{
    WriteSections(
        XmlContent().EmptyTag(L"Anything").Element(L"Parameters", XmlContent().Text(L"Station", L"found")));

    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"found");
}

TEST_F(LogNameGetValueEntries, EndAtAnEmptyTagInTheSection)
{
    WriteSections(XmlContent().Element(
        L"Parameters",
        XmlContent().Text(L"Bereich", L"Leitwarte").EmptyTag(L"Anything").Text(L"Station", L"behind")));

    EXPECT_EQ(Value(L"Pumpe", L"Bereich"), L"Leitwarte");
    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(LogNameGetValueEntries, WithAnEmptyTagForTheValueAreNotFound)
{
    Write(L"Pumpe",
          XmlContent().Element(L"Parameter", XmlContent().Element(L"Name", L"Station").EmptyTag(L"Value")));

    EXPECT_EQ(Read(L"Pumpe", L"Station"), PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(LogNameGetValueEntries, WithTwoTagsAroundNoValueAreEmpty)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L""));

    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"");
}

} // namespace
} // namespace norvepa::test

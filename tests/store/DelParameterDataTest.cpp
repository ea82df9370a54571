#include "store/DataScene.h"
#include "store/NotXml.h"

namespace norvepa::test
{
namespace
{

class DelParameterDataTest : public DataScene
{
protected:
    void ExpectNotThere(const XmlContent& content, const wchar_t* name = L"a") const
    {
        GivenFile(DataFile(content));
        const std::string before = Bytes();

        EXPECT_EQ(DelData(name), PGSP_ERR_CANT_SET_VALUE);

        EXPECT_EQ(Bytes(), before);
    }
};

TEST_F(DelParameterDataTest, AnEntryOfEachElementGoesFromTheFileItself)
{
    for (const std::wstring_view element : {L"Parameter", L"ParameterInt", L"ParameterBool"})
    {
        GivenFile(DataFile(XmlContent().Text(L"b", L"1").Entry(element, L"\u00C4a", L"1").Int(L"c", L"1")));

        EXPECT_EQ(DelData(L"\u00E4A"), PGSP_OK);

        EXPECT_EQ(Saved(), MeaningOf(DataFile(XmlContent().Text(L"b", L"1").Int(L"c", L"1"))));
        EXPECT_THAT(FileNames(folder().path()), testing::SizeIs(1));
    }
}

TEST_F(DelParameterDataTest, AnEntryIsFoundAtAnyDepth)
{
    GivenFile(DataFile(XmlContent().Element(
        L"Group", XmlContent().Element(L"Inner", XmlContent().Int(L"a", L"1")).Comment(L"stays"))));

    EXPECT_EQ(DelData(L"a"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DataFile(XmlContent().Element(
                           L"Group", XmlContent().EmptyTag(L"Inner").Comment(L"stays")))));
}

TEST_F(DelParameterDataTest, OnlyTheFirstOfSeveralGoes)
{
    GivenFile(DataFile(XmlContent().Bool(L"A", L"true").Int(L"a", L"2")));

    EXPECT_EQ(DelData(L"a"), PGSP_OK);
    EXPECT_EQ(Saved(), MeaningOf(DataFile(XmlContent().Int(L"a", L"2"))));

    EXPECT_EQ(DelData(L"a"), PGSP_OK);
    EXPECT_EQ(DelData(L"a"), PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(DelParameterDataTest, AnEntryNeedsNoValueAndNoOrder)
{
    for (const XmlContent& children :
         {XmlContent().Element(L"Name", L"a"), XmlContent().Element(L"Value", L"1").Element(L"Name", L"a")})
    {
        GivenFile(DataFile(XmlContent().Element(L"Parameter", children)));

        EXPECT_EQ(DelData(L"a"), PGSP_OK);

        EXPECT_EQ(Saved(), MeaningOf(DataFile({})));
    }
}

TEST_F(DelParameterDataTest, WhatIsNotThereCannotBeSetRatherThanNotFound)
{
    ExpectNotThere({});
    ExpectNotThere(XmlContent().Text(L"b", L"a"));
    ExpectNotThere(XmlContent().Entry(L"parameter", L"a", L"1").Entry(L"Resource", L"a", L"1"));
    ExpectNotThere(XmlContent().Element(L"Parameter", XmlContent().Element(L"name", L"a")));
}

TEST_F(DelParameterDataTest, TheRootIsNoEntry)
{
    GivenFile(XmlContent().Text(L"a", L"1").utf8());

    EXPECT_EQ(DelData(L"a"), PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(DelParameterDataTest, ThereAreNoRulesForNames)
{
    GivenFile(DataFile(XmlContent().Text(L"<a b>", L"1")));
    EXPECT_EQ(DelData(L"<a b>"), PGSP_OK);
    EXPECT_EQ(Saved(), MeaningOf(DataFile({})));

    for (const std::wstring& name : TextsThatXmlCannotHold)
    {
        ExpectNotThere(XmlContent().Text(L"a", L"1"), name.c_str());
    }
}

TEST_F(DelParameterDataTest, ANullNameIsRefusedAndAnEmptyOneIsNot)
{
    GivenFile(DataFile(XmlContent().Text(L"", L"1")));

    EXPECT_EQ(DelData(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(DelData(L""), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DataFile({})));
}

} // namespace
} // namespace norvepa::test

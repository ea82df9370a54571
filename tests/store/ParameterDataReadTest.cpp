#include "store/DataScene.h"
#include "store/ReadScene.h"

namespace norvepa::test
{
namespace
{

class GetParameterDataTest : public DataScene
{
protected:
    [[nodiscard]] Answer Get(const wchar_t* name) const
    {
        std::wstring value(Before);
        const Result result = NorvXMLGetParameterData(path().c_str(), name, &value);
        return {result, value};
    }
};

const Answer NoneFound = Refused(PGSP_ERR_PARAM_NOT_FOUND);

TEST_F(GetParameterDataTest, EntriesOfTheThreeElementsAreFound)
{
    GivenFile(DataFile(XmlContent().Text(L"a", L"text").Int(L"b", L"2").Bool(L"c", L"true")));

    EXPECT_EQ(Get(L"a"), Found(L"text"));
    EXPECT_EQ(Get(L"b"), Found(L"2"));
    EXPECT_EQ(Get(L"c"), Found(L"true"));
}

TEST_F(GetParameterDataTest, EntriesOfOtherElementsAreNot)
{
    GivenFile(DataFile(XmlContent()
                           .Entry(L"parameter", L"a", L"1")
                           .Entry(L"ParameterText", L"a", L"1")
                           .Entry(L"Resource", L"a", L"1")));

    EXPECT_EQ(Get(L"a"), NoneFound);
}

TEST_F(GetParameterDataTest, EntriesAreFoundAtAnyDepth)
{
    GivenFile(DataFile(
        XmlContent().Element(L"Group", XmlContent().Element(L"Inner", XmlContent().Int(L"a", L"1")))));

    EXPECT_EQ(Get(L"a"), Found(L"1"));
}

TEST_F(GetParameterDataTest, TheRootIsNoEntry)
{
    GivenFile(XmlContent().Text(L"a", L"1").utf8());

    EXPECT_EQ(Get(L"a"), NoneFound);
}

TEST_F(GetParameterDataTest, TheNameIsComparedWithoutRegardToCase)
{
    GivenFile(DataFile(XmlContent().Text(L"\u00DCbertragung", L"Wert")));

    EXPECT_EQ(Get(L"\u00FCBERTRAGUNG"), Found(L"Wert"));
}

TEST_F(GetParameterDataTest, TheFirstOfSeveralInDocumentOrderIsMeant)
{
    GivenFile(DataFile(
        XmlContent().Element(L"Group", XmlContent().Bool(L"A", L"true")).Int(L"a", L"2").Text(L"a", L"3")));

    EXPECT_EQ(Get(L"a"), Found(L"true"));
}

TEST_F(GetParameterDataTest, TheFirstValueIsTheAnswerWhereverItStands)
{
    GivenFile(DataFile(XmlContent().Element(
        L"Parameter", XmlContent().Element(L"Value", L"1").Element(L"Name", L"a").Element(L"Value", L"2"))));

    EXPECT_EQ(Get(L"a"), Found(L"1"));
}

TEST_F(GetParameterDataTest, AnEmptyValueIsAnAnswer)
{
    GivenFile(DataFile(XmlContent().Text(L"a", L"")));

    EXPECT_EQ(Get(L"a"), Found(L""));
}

TEST_F(GetParameterDataTest, AnEntryWithoutAValueHasNoAnswer)
{
    GivenFile(DataFile(XmlContent().Element(L"Parameter", XmlContent().Element(L"Name", L"a"))));

    EXPECT_EQ(Get(L"a"), NoneFound);
}

TEST_F(GetParameterDataTest, AnEmptyNameIsAName)
{
    GivenFile(DataFile(XmlContent().Text(L"a", L"1").Text(L"", L"2")));

    EXPECT_EQ(Get(L""), Found(L"2"));
}

class EnumParameterDataTest : public DataScene
{
protected:
    [[nodiscard]] Item At(std::uint32_t index) const
    {
        Item item{PGSP_OK, std::wstring(Before), std::wstring(Before)};
        item.result = NorvXMLEnumParameterData(path().c_str(), index, &item.name, &item.value);
        return item;
    }

    // Not that of the other enumerations.
    [[nodiscard]] static Item End() { return NoItem(PGSP_ERR_PARAM_NOT_FOUND); }
};

TEST_F(EnumParameterDataTest, CountsEntriesOfTheThreeElementsInDocumentOrder)
{
    GivenFile(DataFile(XmlContent()
                           .Int(L"a", L"1")
                           .Entry(L"parameter", L"no", L"0")
                           .Element(L"Group", XmlContent().Bool(L"b", L"true").Resource({.name = L"no"}))
                           .Comment(L"no entry")
                           .Text(L"c", L"drei")));

    EXPECT_EQ(At(0), (Item{PGSP_OK, L"a", L"1"}));
    EXPECT_EQ(At(1), (Item{PGSP_OK, L"b", L"true"}));
    EXPECT_EQ(At(2), (Item{PGSP_OK, L"c", L"drei"}));
    EXPECT_EQ(At(3), End());
}

TEST_F(EnumParameterDataTest, EndsUnlikeOtherEnumerations)
{
    GivenFile(DataFile({}));

    EXPECT_EQ(At(0), End());
    EXPECT_EQ(At(0xFFFFFFFF), End());
}

TEST_F(EnumParameterDataTest, CountsAnEntryOfANameAgain)
{
    GivenFile(DataFile(XmlContent().Int(L"a", L"1").Int(L"a", L"2")));

    EXPECT_EQ(At(1), (Item{PGSP_OK, L"a", L"2"}));
}

TEST_F(EnumParameterDataTest, WhatAnEntryLacksIsEmpty)
{
    GivenFile(DataFile(XmlContent()
                           .EmptyTag(L"Parameter")
                           .Element(L"ParameterInt", XmlContent().Element(L"Value", L"1"))
                           .Element(L"ParameterBool", XmlContent().Element(L"Name", L"b"))));

    EXPECT_EQ(At(0), (Item{PGSP_OK, L"", L""}));
    EXPECT_EQ(At(1), (Item{PGSP_OK, L"", L"1"}));
    EXPECT_EQ(At(2), (Item{PGSP_OK, L"b", L""}));
}

} // namespace
} // namespace norvepa::test

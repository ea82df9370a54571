#include "store/DataScene.h"
#include "store/NotXml.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

class SetParameterDataTest : public DataScene
{
protected:
    // What a set makes of a file of this content.
    [[nodiscard]] std::string AfterSetting(const XmlContent& content, const wchar_t* name,
                                           const wchar_t* value, const wchar_t* type) const
    {
        GivenFile(DataFile(content));
        EXPECT_EQ(SetData(name, value, type), PGSP_OK);
        return Saved();
    }

    [[nodiscard]] static std::string File(const XmlContent& content) { return MeaningOf(DataFile(content)); }
};

TEST_F(SetParameterDataTest, AValueIsReplacedInItsPlace)
{
    const auto content = [](std::wstring_view value) {
        return XmlContent().Int(L"a", L"1").Int(L"b", value).Int(L"c", L"3");
    };

    EXPECT_EQ(AfterSetting(content(L"2"), L"b", L"20", L"int"), File(content(L"20")));
}

TEST_F(SetParameterDataTest, TheNameIsComparedWithoutRegardToCaseAndKeepsItsOwn)
{
    EXPECT_EQ(
        AfterSetting(XmlContent().Text(L"\u00DCbertragung", L"1"), L"\u00FCBERTRAGUNG", L"2", L"string"),
        File(XmlContent().Text(L"\u00DCbertragung", L"2")));
}

TEST_F(SetParameterDataTest, TheSameValueWritesNothing)
{
    GivenFile(DataFile(XmlContent().Text(L"a", L"\u00C4rger")));
    const std::string before = Bytes();

    EXPECT_EQ(SetData(L"A", L"\u00C4rger"), PGSP_ERR_SAME_VALUE);

    EXPECT_EQ(Bytes(), before);
}

TEST_F(SetParameterDataTest, AValueInAnotherCaseIsAnotherOne)
{
    EXPECT_EQ(AfterSetting(XmlContent().Text(L"a", L"Wert"), L"a", L"WERT", L"string"),
              File(XmlContent().Text(L"a", L"WERT")));
}

TEST_F(SetParameterDataTest, AnEntryIsFoundAtAnyDepth)
{
    const auto content = [](std::wstring_view value) {
        return XmlContent().Element(L"Group", XmlContent().Element(L"Inner", XmlContent().Int(L"a", value)));
    };

    EXPECT_EQ(AfterSetting(content(L"1"), L"a", L"2", L"int"), File(content(L"2")));
}

TEST_F(SetParameterDataTest, OfTwoEntriesOfANameTheFirstIsSet)
{
    EXPECT_EQ(AfterSetting(XmlContent().Int(L"A", L"1").Int(L"a", L"2"), L"a", L"3", L"int"),
              File(XmlContent().Int(L"A", L"3").Int(L"a", L"2")));
}

TEST_F(SetParameterDataTest, ANewEntryGoesBehindAllThatTheRootHolds)
{
    const XmlContent before =
        XmlContent().Element(L"Group", XmlContent().Int(L"b", L"1")).Int(L"c", L"1").Comment(L"last");

    EXPECT_EQ(AfterSetting(before, L"Größe", L"2", L"int"), File(XmlContent(before).Int(L"Größe", L"2")));
}

TEST_F(SetParameterDataTest, ANewEntryFillsAnEmptyRoot)
{
    GivenFile("<ParameterData/>");

    EXPECT_EQ(SetData(L"a", L"1"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf("<ParameterData><Parameter xmlns='" + ToUtf8(BaseNamespace) +
                                 "'><Name>a</Name><Value>1</Value></Parameter></ParameterData>"));
}

TEST_F(SetParameterDataTest, NoFolderSaysANewEntrysNamespace)
{
    const std::wstring device = folder() / L"LogDevices\\a";
    WriteBytes(device + L".xml", "<root/>");

    EXPECT_EQ(NorvXMLSetParameterData(device.c_str(), L"a", L"1", L"string"), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(device + L".xml"),
              MeaningOf("<root><Parameter xmlns='" + ToUtf8(BaseNamespace) +
                        "'><Name>a</Name><Value>1</Value></Parameter></root>"));
}

TEST_F(SetParameterDataTest, EntriesOfAnotherTypeDoNotCount)
{
    const XmlContent before = XmlContent().Text(L"a", L"true").Int(L"a", L"1");

    EXPECT_EQ(AfterSetting(before, L"a", L"true", L"bool"), File(XmlContent(before).Bool(L"a", L"true")));
}

TEST_F(SetParameterDataTest, TheRootIsNoEntry)
{
    GivenFile("<Parameter xmlns='" + ToUtf8(BaseNamespace) + "'><Name>a</Name><Value>1</Value></Parameter>");

    EXPECT_EQ(SetData(L"a", L"1"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf("<Parameter xmlns='" + ToUtf8(BaseNamespace) +
                                 "'><Name>a</Name><Value>1</Value><Parameter><Name>a</Name><Value>1</Value>"
                                 "</Parameter></Parameter>"));
}

TEST_F(SetParameterDataTest, TheValueMayStandAheadOfItsName)
{
    const auto content = [](std::wstring_view value) {
        return XmlContent().Element(L"Parameter",
                                    XmlContent().Element(L"Value", value).Element(L"Name", L"a"));
    };

    EXPECT_EQ(AfterSetting(content(L"1"), L"a", L"2", L"string"), File(content(L"2")));
}

TEST_F(SetParameterDataTest, NullIsTheEmptyValue)
{
    EXPECT_EQ(AfterSetting(XmlContent().Int(L"a", L"1"), L"a", nullptr, L"int"),
              File(XmlContent().Int(L"a", L"")));
    EXPECT_EQ(SetData(L"a", L"", L"int"), PGSP_ERR_SAME_VALUE);
    EXPECT_EQ(AfterSetting({}, L"a", nullptr, L"int"), File(XmlContent().Int(L"a", L"")));
}

TEST_F(SetParameterDataTest, ANullNameIsRefusedAndAnEmptyOneIsNot)
{
    GivenFile(DataFile({}));

    EXPECT_EQ(SetData(nullptr, L"1"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetData(L"", L"1"), PGSP_OK);

    EXPECT_EQ(Saved(), File(XmlContent().Text(L"", L"1")));
}

// A type word, and the element that it is.
struct TypeCase
{
    const wchar_t* type;
    std::wstring_view element;
};

void PrintTo(const TypeCase& each, std::ostream* out)
{
    *out << (each.type == nullptr ? "null" : ToUtf8(each.type));
}

class SetParameterDataTypes : public SetParameterDataTest, public testing::WithParamInterface<TypeCase>
{
};

TEST_P(SetParameterDataTypes, SayTheElement)
{
    const auto& [type, element] = GetParam();

    EXPECT_EQ(AfterSetting({}, L"a", L"1", type), File(XmlContent().Entry(element, L"a", L"1")));
    EXPECT_EQ(SetData(L"a", L"1", type), PGSP_ERR_SAME_VALUE);
}

INSTANTIATE_TEST_SUITE_P(OfNumbersAndFlags, SetParameterDataTypes,
                         testing::Values(TypeCase{L"int", L"ParameterInt"}, TypeCase{L"INT", L"ParameterInt"},
                                         TypeCase{L"bool", L"ParameterBool"},
                                         TypeCase{L"Bool", L"ParameterBool"}));

// Other than in log devices no word is itself an element.
INSTANTIATE_TEST_SUITE_P(AllElse, SetParameterDataTypes,
                         testing::Values(TypeCase{L"string", L"Parameter"}, TypeCase{L"", L"Parameter"},
                                         TypeCase{nullptr, L"Parameter"}, TypeCase{L"integer", L"Parameter"},
                                         TypeCase{L" int", L"Parameter"},
                                         TypeCase{L"ParameterInt", L"Parameter"},
                                         TypeCase{L"no element", L"Parameter"}));

class SetParameterDataTexts : public SetParameterDataTest, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(SetParameterDataTexts, PassInNamesAndValuesOfEveryType)
{
    const wchar_t* const text = GetParam();

    EXPECT_EQ(AfterSetting({}, text, text, L"int"), File(XmlContent().Int(text, text)));
    EXPECT_EQ(AfterSetting({}, text, text, L"bool"), File(XmlContent().Bool(text, text)));
    EXPECT_EQ(AfterSetting({}, text, text, L"string"), File(XmlContent().Text(text, text)));
    EXPECT_EQ(SetData(text, text), PGSP_ERR_SAME_VALUE);
}

INSTANTIATE_TEST_SUITE_P(, SetParameterDataTexts,
                         testing::Values(L"a b", L"12a", L"TRUE", L"<Value>2</Value>", L"]]>", L"<!--",
                                         L"[]^!\"\u00A7$%&()=?\u00B4'#+><*|;,", L"&amp;", L"&#1;",
                                         L"%s%n%08x", L"\u007F\u0085\u2028", L"\U0001F600\U0010FFFF"));

TEST_F(SetParameterDataTest, WhatXmlCannotHoldIsNotSet)
{
    GivenFile(DataFile(XmlContent().Text(L"a", L"1").Int(L"a", L"1")));
    const std::string before = Bytes();

    for (const std::wstring& text : TextsThatXmlCannotHold)
    {
        EXPECT_EQ(SetData(L"a", text.c_str()), PGSP_ERR_CANT_SET_VALUE);
        EXPECT_EQ(SetData(L"a", text.c_str(), L"int"), PGSP_ERR_CANT_SET_VALUE);
        EXPECT_EQ(SetData(L"b", text.c_str()), PGSP_ERR_CANT_SET_VALUE);
        EXPECT_EQ(SetData(text.c_str(), L"1"), PGSP_ERR_CANT_SET_VALUE);
    }

    EXPECT_EQ(Bytes(), before);
}

} // namespace
} // namespace norvepa::test

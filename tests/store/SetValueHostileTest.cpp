#include "store/NotXml.h"
#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

// Values as nobody should send them: either they come back as they were, or the file stays as it was.
class SetValueHostileTest : public WriteScene
{
protected:
    [[nodiscard]] std::wstring Get(const wchar_t* parameter) const
    {
        std::wstring value;
        return NorvXMLGetValue(path().c_str(), L"LocalSettings", parameter, &value) == PGSP_OK ? value
                                                                                               : L"none";
    }
};

class SetValueReturns : public SetValueHostileTest, public testing::WithParamInterface<std::wstring>
{
};

TEST_P(SetValueReturns, WhatWasSet)
{
    GivenFile(DeviceWith(XmlContent().Raw(EntryIn(L"any", L"a", L"1").utf8()).Text(L"b", L"1")));

    EXPECT_EQ(Set(L"LocalSettings", L"a", GetParam().c_str(), L"any"), PGSP_OK);

    EXPECT_EQ(Set(L"LocalSettings", L"a", GetParam().c_str(), L"any"), PGSP_ERR_SAME_VALUE);
    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(
                           XmlContent().Raw(EntryIn(L"any", L"a", GetParam()).utf8()).Text(L"b", L"1"))));
    EXPECT_EQ(Get(L"b"), L"1");
}

INSTANTIATE_TEST_SUITE_P(SetValue, SetValueReturns,
                         testing::Values(L"<Value>2</Value>", L"</Value>", L"]]>", L"<![CDATA[x]]>", L"<!--",
                                         L"&amp;", L"&#1;", L"&undefined;", L"<?xml?>", L"\"'", L"%s%n%08x",
                                         L"..\\..\\a", L"\u007F\u0085\u2028", L"\U0001F600\U0010FFFF",
                                         L"\uFFFD\uFEFF", L"\u202E right to left"));

class SetValueRefuses : public SetValueHostileTest, public testing::WithParamInterface<std::wstring>
{
};

TEST_P(SetValueRefuses, WhatXmlCannotHold)
{
    GivenFile(LogDeviceFile(XmlContent().Element(
        L"Bindings", XmlContent().Text(L"a", L"1").Subdevice(L"A", XmlContent().Text(L"a", L"1")))));
    const std::string before = Bytes();
    const wchar_t* const value = GetParam().c_str();

    EXPECT_EQ(Set(L"Bindings", L"a", value, L"string"), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(Set(L"Bindings", L"b", value, L"string"), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(Set(L"Bindings", value, L"1", L"string"), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(SetHeader(L"a", value), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(SetSubdev(L"A", L"a", value, L"string"), PGSP_ERR_CANT_SET_VALUE);
    EXPECT_EQ(SetSubdev(L"A", L"b", value, L"string"), PGSP_ERR_CANT_SET_VALUE);

    EXPECT_EQ(Bytes(), before);
}

INSTANTIATE_TEST_SUITE_P(SetValue, SetValueRefuses, testing::ValuesIn(TextsThatXmlCannotHold));

TEST_F(SetValueHostileTest, AVeryLongValueIsStoredWhole)
{
    GivenFile(DeviceWith(XmlContent().Text(L"b", L"1")));
    const std::wstring value(1'000'000, L'x');

    EXPECT_EQ(Set(L"LocalSettings", L"a", value.c_str(), L"string"), PGSP_OK);

    EXPECT_TRUE(Get(L"a") == value);
    EXPECT_EQ(Get(L"b"), L"1");
}

TEST_F(SetValueHostileTest, AVeryLongNameIsStoredWhole)
{
    GivenFile(DeviceWith({}));
    const std::wstring name(100'000, L'n');

    EXPECT_EQ(Set(L"LocalSettings", name.c_str(), L"1", L"string"), PGSP_OK);

    EXPECT_EQ(Get(name.c_str()), L"1");
    EXPECT_EQ(Set(L"LocalSettings", name.c_str(), L"1", L"string"), PGSP_ERR_SAME_VALUE);
}

TEST_F(SetValueHostileTest, AVeryLongTypeIsAnElementToo)
{
    GivenFile(DeviceWith({}));
    const std::wstring type(10'000, L't');

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"1", type.c_str()), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DeviceWith(EntryIn(type, L"a", L"1"))));
}

TEST_F(SetValueHostileTest, AFileThatGrowsBeyondTheLimitCannotBeWrittenAgain)
{
    GivenFile(DeviceWith({}));
    const std::wstring half(5'000'000, L'x');

    EXPECT_EQ(Set(L"LocalSettings", L"a", half.c_str(), L"string"), PGSP_OK);
    EXPECT_EQ(Set(L"LocalSettings", L"b", half.c_str(), L"string"), PGSP_OK);
    EXPECT_EQ(Set(L"LocalSettings", L"c", L"1", L"string"), PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_TRUE(Get(L"b") == half);
}

TEST_F(SetValueHostileTest, DeepNestingIsNoDanger)
{
    std::string nested = "<LocalSettings/>";
    for (int i = 0; i < 200; ++i)
    {
        nested = "<a>" + nested + "</a>";
    }
    GivenFile(nested);

    EXPECT_EQ(Set(L"LocalSettings", L"a", L"1", L"int"), PGSP_OK);
}

TEST_F(SetValueHostileTest, EntitiesThatExplodeAreNoDanger)
{
    GivenFile("<!DOCTYPE a [<!ENTITY a 'xxxxxxxxxx'><!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
              "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'><!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>"
              "<!ENTITY e '&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;'><!ENTITY f '&e;&e;&e;&e;&e;&e;&e;&e;&e;&e;'>"
              "<!ENTITY g '&f;&f;&f;&f;&f;&f;&f;&f;&f;&f;'><!ENTITY h '&g;&g;&g;&g;&g;&g;&g;&g;&g;&g;'>]>"
              "<a><LocalSettings/><b>&h;</b></a>");

    const Result result = Set(L"LocalSettings", L"a", L"1", L"int");

    EXPECT_THAT(result, testing::AnyOf(PGSP_OK, PGSP_ERR_CANT_LOAD_XML_FILE));
}

} // namespace
} // namespace norvepa::test

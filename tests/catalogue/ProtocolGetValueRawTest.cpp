#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class ProtocolGetValueRaw : public CatalogueScene
{
protected:
    [[nodiscard]] static TextAnswer Value(const std::wstring& file, const wchar_t* path,
                                          const wchar_t* name = L"a")
    {
        return TextOf([&](auto* out) { return NorvXMLProtocolGetValueRaw(file.c_str(), path, name, out); });
    }

    // The parameter's section, with one value that holds this.
    [[nodiscard]] static XmlContent Section(std::wstring_view parameter, std::wstring_view value,
                                            const XmlContent& content)
    {
        return XmlContent().ParamSection(parameter, Values(XmlContent().ParamSection(value, content)));
    }

    [[nodiscard]] static XmlContent Entry(std::wstring_view value) { return XmlContent().Text(L"a", value); }
};

TEST_F(ProtocolGetValueRaw, StartsAtTheConstraintsOrAtTheRoot)
{
    const std::wstring file =
        File(ProtocolFile(XmlContent()
                              .Element(L"Constraints", Section(L"p", L"v", Entry(L"below Constraints")))
                              .Raw(Section(L"p", L"v", Entry(L"below the root")).utf8())));

    EXPECT_EQ(Value(file, L"Constraints\\p\\v"), Found(L"below Constraints"));
    EXPECT_EQ(Value(file, L"p\\v"), Found(L"below the root"));
}

TEST_F(ProtocolGetValueRaw, TakesTheWordConstraintsInAnyCaseAndPlace)
{
    const std::wstring file = File(WithConstraints(Section(L"p", L"v", Entry(L"1"))));

    EXPECT_EQ(Value(file, L"CONSTRAINTS\\P\\V", L"A"), Found(L"1"));
    EXPECT_EQ(Value(file, L"p\\constraints\\v"), Found(L"1"));
    EXPECT_EQ(Value(file, L"p\\v\\Constraints\\Constraints"), Found(L"1"));
    EXPECT_EQ(Value(file, L"\\\\Constraints\\\\p\\v\\"), Found(L"1"));
    EXPECT_EQ(Value(file, L"p\\v"), NoText());
}

TEST_F(ProtocolGetValueRaw, GoesOnBelowASubParameter)
{
    const XmlContent value =
        Entry(L"of the value").Raw(Section(L"sp", L"sv", Entry(L"of the sub-value")).utf8());
    const std::wstring file = File(WithConstraints(Section(L"p", L"v", value)));

    EXPECT_EQ(Value(file, L"Constraints\\p\\v"), Found(L"of the value"));
    EXPECT_EQ(Value(file, L"Constraints\\p\\v\\sp\\sv"), Found(L"of the sub-value"));
    EXPECT_EQ(Value(file, L"Constraints\\p\\v\\SP\\SV"), Found(L"of the sub-value"));
    EXPECT_EQ(Value(file, L"Constraints\\p\\v\\sp\\other"), NoText());
    EXPECT_EQ(Value(file, L"Constraints\\p\\v\\other\\sv"), NoText());
}

TEST_F(ProtocolGetValueRaw, LeadsNowhereWithoutAWholeNumberOfPairs)
{
    const XmlContent value = Entry(L"1").Raw(Section(L"sp", L"sv", Entry(L"2")).utf8());
    const std::wstring file = File(WithConstraints(Section(L"p", L"v", value)));

    for (const wchar_t* path : {L"", L"\\", L"Constraints", L"Constraints\\p", L"Constraints\\p\\v\\sp"})
    {
        EXPECT_EQ(Value(file, path), NoText()) << ToUtf8(path);
    }
}

TEST_F(ProtocolGetValueRaw, IgnoresWhatFollowsTheFourthSegment)
{
    const XmlContent value = Section(L"sp", L"sv", Entry(L"2"));
    const std::wstring file = File(WithConstraints(Section(L"p", L"v", value)));

    EXPECT_EQ(Value(file, L"Constraints\\p\\v\\sp\\sv\\x"), Found(L"2"));
    EXPECT_EQ(Value(file, L"Constraints\\p\\v\\sp\\sv\\x\\y\\z\\9\\10"), Found(L"2"));
    EXPECT_EQ(Value(file, L"p\\v\\sp\\sv\\x\\y\\z\\Constraints"), Found(L"2"));
    EXPECT_EQ(Value(file, L"p\\v\\sp\\sv\\x\\y\\z\\8\\Constraints"), NoText())
        << "the ninth is no more looked at";
}

TEST_F(ProtocolGetValueRaw, ReadsEntriesOfAllThreeElements)
{
    const std::wstring file = File(WithConstraints(Section(
        L"p", L"v",
        XmlContent().Text(L"a", L"1").Int(L"b", L"2").Bool(L"c", L"true").Entry(L"Other", L"d", L"4"))));

    EXPECT_EQ(Value(file, L"Constraints\\p\\v", L"a"), Found(L"1"));
    EXPECT_EQ(Value(file, L"Constraints\\p\\v", L"b"), Found(L"2"));
    EXPECT_EQ(Value(file, L"Constraints\\p\\v", L"c"), Found(L"true"));
    EXPECT_EQ(Value(file, L"Constraints\\p\\v", L"d"), NoText());
}

TEST_F(ProtocolGetValueRaw, PassesOverAnEntryWithoutValueOrName)
{
    const XmlContent content = XmlContent()
                                   .Element(L"Parameter", XmlContent().Element(L"Name", L"a"))
                                   .Element(L"Parameter", XmlContent().Element(L"Value", L"1"))
                                   .Text(L"a", L"2");
    const std::wstring file = File(WithConstraints(Section(L"p", L"v", content)));

    EXPECT_EQ(Value(file, L"Constraints\\p\\v"), Found(L"2"));
}

TEST_F(ProtocolGetValueRaw, SearchesAllSectionsThatMatch)
{
    const XmlContent twoCollections = XmlContent()
                                          .Raw(Values(XmlContent().ParamSection(L"v", XmlContent())).utf8())
                                          .Raw(Values(XmlContent().ParamSection(L"v", Entry(L"1"))).utf8());
    const std::wstring file =
        File(WithConstraints(XmlContent()
                                 .ParamSection(L"p", XmlContent())
                                 .ParamSection(L"p", twoCollections)
                                 .ParamSection(L"p", Values(XmlContent().ParamSection(L"v", Entry(L"2"))))));

    EXPECT_EQ(Value(file, L"Constraints\\p\\v"), Found(L"1"));
}

TEST_F(ProtocolGetValueRaw, LooksAtChildrenOnly)
{
    const XmlContent section = Section(L"p", L"v", Entry(L"1"));
    const XmlContent deepValue = XmlContent().ParamSection(
        L"p", Values(XmlContent().Element(L"Deep", XmlContent().ParamSection(L"v", Entry(L"1")))));
    const std::wstring deep =
        File(WithConstraints(XmlContent().Element(L"Deep", section).Raw(deepValue.utf8())), L"deep");
    const std::wstring deepConstraints = File(
        ProtocolFile(XmlContent().Element(L"Deep", XmlContent().Element(L"Constraints", section))), L"dc");

    EXPECT_EQ(Value(deep, L"Constraints\\p\\v"), NoText());
    EXPECT_EQ(Value(deepConstraints, L"Constraints\\p\\v"), NoText());
}

TEST_F(ProtocolGetValueRaw, TakesWordsExactly)
{
    const auto fileOf = [&](std::wstring_view constraints, std::wstring_view section,
                            std::wstring_view attribute, std::wstring_view collection,
                            std::wstring_view entry) {
        const XmlContent value =
            XmlContent().Element(section, {{attribute, L"v"}}, XmlContent().Entry(entry, L"a", L"1"));
        const XmlContent parameter = XmlContent().Element(collection, value);
        return File(ProtocolFile(XmlContent().Element(
            constraints, XmlContent().Element(section, {{attribute, L"p"}}, parameter))));
    };
    const wchar_t* const path = L"Constraints\\p\\v";

    EXPECT_EQ(
        Value(fileOf(L"Constraints", L"ParamSection", L"Param", L"ValueCollection", L"Parameter"), path),
        Found(L"1"));
    EXPECT_EQ(
        Value(fileOf(L"constraints", L"ParamSection", L"Param", L"ValueCollection", L"Parameter"), path),
        NoText());
    EXPECT_EQ(
        Value(fileOf(L"Constraints", L"Paramsection", L"Param", L"ValueCollection", L"Parameter"), path),
        NoText());
    EXPECT_EQ(
        Value(fileOf(L"Constraints", L"ParamSection", L"param", L"ValueCollection", L"Parameter"), path),
        NoText());
    EXPECT_EQ(
        Value(fileOf(L"Constraints", L"ParamSection", L"Param", L"Valuecollection", L"Parameter"), path),
        NoText());
    EXPECT_EQ(
        Value(fileOf(L"Constraints", L"ParamSection", L"Param", L"ValueCollection", L"parameter"), path),
        NoText());
}

} // namespace
} // namespace norvepa::test

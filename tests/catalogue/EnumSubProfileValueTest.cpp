#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class EnumSubProfileValue : public CatalogueScene
{
protected:
    // The sub-value's section holds this.
    [[nodiscard]] std::wstring FileOf(const XmlContent& content) const
    {
        const XmlContent subValues = XmlContent().ParamSection(L"sv", content);
        const XmlContent values =
            XmlContent().ParamSection(L"v", XmlContent().ParamSection(L"sp", Values(subValues)));
        return File(WithConstraints(XmlContent().ParamSection(L"p", Values(values))));
    }

    [[nodiscard]] static PairAnswer Entry(const std::wstring& file, std::uint32_t index,
                                          const wchar_t* subValue = L"sv")
    {
        PairAnswer answer = NoPair();
        answer.result = NorvXMLEnumSubProfileValue(file.c_str(), L"P", L"V", L"SP", subValue, index,
                                                   &answer.name, &answer.value);
        return answer;
    }
};

TEST_F(EnumSubProfileValue, GoesByTagNumberThroughTheEntries)
{
    const std::wstring file =
        FileOf(XmlContent().Int(L"i", L"1").Bool(L"b", L"true").Text(L"t", L"1;2").Int(L"i", L"2"));

    EXPECT_EQ(Entry(file, 0), Found(L"t", L"1;2"));
    EXPECT_EQ(Entry(file, 1), Found(L"b", L"true"));
    EXPECT_EQ(Entry(file, 2), Found(L"i", L"1"));
    EXPECT_EQ(Entry(file, 3), Found(L"i", L"2"));
    EXPECT_EQ(Entry(file, 4), NoPair());
    EXPECT_EQ(Entry(file, 0xFFFFFFFF), NoPair());
}

TEST_F(EnumSubProfileValue, CountsWhatHasChildrenWhateverItIs)
{
    const std::wstring file = FileOf(XmlContent()
                                         .Element(L"ParamDesc", L"without children")
                                         .Element(L"option", L"")
                                         .Text(L"a", L"1")
                                         .Entry(L"Resource", L"b", L"2"));

    EXPECT_EQ(Entry(file, 0), Found(L"a", L"1"));
    EXPECT_EQ(Entry(file, 1), Found(L"b", L"2"));
    EXPECT_EQ(Entry(file, 2), NoPair());
}

TEST_F(EnumSubProfileValue, AnEntryThatLacksNameOrValueUsesUpItsNumber)
{
    const std::wstring file = FileOf(XmlContent()
                                         .Text(L"a", L"1")
                                         .Element(L"Parameter", XmlContent().Element(L"Name", L"b"))
                                         .Element(L"Parameter", XmlContent().Element(L"Value", L"3"))
                                         .Text(L"d", L"4"));

    EXPECT_EQ(Entry(file, 0), Found(L"a", L"1"));
    EXPECT_EQ(Entry(file, 1), NoPair());
    EXPECT_EQ(Entry(file, 2), NoPair());
    EXPECT_EQ(Entry(file, 3), Found(L"d", L"4"));
}

TEST_F(EnumSubProfileValue, DeliversTheFirstNameAndTheFirstValue)
{
    const std::wstring file = FileOf(XmlContent().Element(L"Parameter", XmlContent()
                                                                            .Element(L"Value", L"1")
                                                                            .Element(L"Value", L"2")
                                                                            .Element(L"Name", L"a")
                                                                            .Element(L"Name", L"b")));

    EXPECT_EQ(Entry(file, 0), Found(L"a", L"1"));
}

TEST_F(EnumSubProfileValue, HasNoItemsWithoutTheSection)
{
    const std::wstring file = FileOf(XmlContent().Text(L"a", L"1"));

    EXPECT_EQ(Entry(file, 0, L"other"), NoPair());
    EXPECT_EQ(Entry(file, 0, L"sv\\x"), NoPair()) << "a sixth step";
    EXPECT_EQ(Entry(file, 0, std::wstring(300, L'x').c_str()), NoPair());
}

} // namespace
} // namespace norvepa::test

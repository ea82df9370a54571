#include "store/ReadScene.h"

namespace norvepa::test
{
namespace
{

class GetValueRawBoard : public ReadScene
{
protected:
    [[nodiscard]] std::wstring Board(const XmlContent& content) const
    {
        return File(BoardFile(content), L"meta\\Boards\\Automation-OnlineAccess-BT-AFK110");
    }
};

TEST_F(GetValueRawBoard, ReadsAWordOfTheParamSectionInTheSection)
{
    const std::wstring file = Board(XmlContent().Element(
        L"BoardAttributes",
        XmlContent()
            .Text(L"min", L"an entry, not a word")
            .ParamSection(L"Channels", XmlContent().Element(L"type", L"int").Element(L"min", L"1"))
            .ParamSection(L"DualPortRam", XmlContent().Element(L"type", L"int").Element(L"min", L"64"))));

    EXPECT_EQ(GetValueRaw(file, L"BoardAttributes\\DualPortRam", L"min"), Found(L"64"));
    EXPECT_EQ(GetValueRaw(file, L"boardATTRIBUTES\\dualPORTram", L"MIN"), Found(L"64"));
    EXPECT_EQ(GetValueRaw(file, L"BoardAttributes\\Channels", L"min"), Found(L"1"));
}

TEST_F(GetValueRawBoard, ReadsEntriesOfTheSectionWithoutSubSection)
{
    const std::wstring file =
        Board(XmlContent().Element(L"BoardAttributes", XmlContent().Text(L"Asic_Type", L"AUE_32_B")));

    EXPECT_EQ(GetValueRaw(file, L"BoardAttributes", L"Asic_Type"), Found(L"AUE_32_B"));
}

TEST_F(GetValueRawBoard, AWordOrParamSectionThatIsNotThereIsNotFound)
{
    const std::wstring file =
        Board(XmlContent()
                  .Element(L"BoardAttributes",
                           XmlContent().ParamSection(L"DualPortRam", XmlContent().Element(L"min", L"64")))
                  .Element(L"Constraints",
                           XmlContent().ParamSection(L"Elsewhere", XmlContent().Element(L"min", L"1"))));

    EXPECT_EQ(GetValueRaw(file, L"BoardAttributes\\DualPortRam", L"max"), NotFound());
    EXPECT_EQ(GetValueRaw(file, L"BoardAttributes\\Channels", L"min"), NotFound());
    EXPECT_EQ(GetValueRaw(file, L"BoardAttributes\\Elsewhere", L"min"), NotFound());
}

TEST_F(GetValueRawBoard, AWordThatTheFirstParamSectionLacksComesFromTheNextOfItsName)
{
    const std::wstring file = Board(
        XmlContent()
            .Element(L"S", XmlContent()
                               .ParamSection(L"p", XmlContent().Element(L"min", L"1"))
                               .ParamSection(L"p", XmlContent().Element(L"min", L"2").Element(L"max", L"3")))
            .Element(L"S", XmlContent().ParamSection(L"p", XmlContent().Element(L"step", L"4"))));

    EXPECT_EQ(GetValueRaw(file, L"S\\p", L"min"), Found(L"1"));
    EXPECT_EQ(GetValueRaw(file, L"S\\p", L"max"), Found(L"3"));
    EXPECT_EQ(GetValueRaw(file, L"S\\p", L"step"), Found(L"4"));
}

TEST_F(GetValueRawBoard, AWordOfTwoTagsIsEmptyAndAnEmptyTagIsNoWord)
{
    const std::wstring file = Board(XmlContent().Element(
        L"S", XmlContent()
                  .ParamSection(L"p", XmlContent().Element(L"min", L"").EmptyTag(L"max"))
                  .ParamSection(L"q", XmlContent().EmptyTag(L"odd").Element(L"min", L"hidden"))));

    EXPECT_EQ(GetValueRaw(file, L"S\\p", L"min"), Found(L""));
    EXPECT_EQ(GetValueRaw(file, L"S\\p", L"max"), NotFound());
    EXPECT_EQ(GetValueRaw(file, L"S\\q", L"min"), NotFound());
}

TEST_F(GetValueRawBoard, AParamSectionWithoutItsAttributeIsPassedOver)
{
    const std::wstring file = Board(XmlContent().Element(
        L"S", XmlContent()
                  .Element(L"ParamSection", XmlContent().Element(L"min", L"0"))
                  .Element(L"ParamSection", {{L"Other", L"p"}}, XmlContent().Element(L"min", L"0"))
                  .ParamSection(L"p", XmlContent().Element(L"min", L"1"))));

    EXPECT_EQ(GetValueRaw(file, L"S\\p", L"min"), Found(L"1"));
}

TEST_F(GetValueRawBoard, ElementsOfOtherNamesAreNoParamSections)
{
    const std::wstring file = Board(XmlContent().Element(
        L"S", XmlContent()
                  .Element(L"p", XmlContent().Element(L"min", L"0"))
                  .Element(L"Section", {{L"Param", L"p"}}, XmlContent().Element(L"min", L"0"))));

    EXPECT_EQ(GetValueRaw(file, L"S\\p", L"min"), NotFound());
}

} // namespace
} // namespace norvepa::test

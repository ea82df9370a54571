#include "meta/MetaScene.h"

namespace norvepa::test
{
namespace
{

using testing::IsEmpty;
using testing::IsNull;
using testing::Pointee;

using enum EpaBlElementTag;
using Attribute = EpaBlAttributeTag;

TEST(Element, AloneHasNoTextNoChildrenAndNoAttributes)
{
    const cEpaBlElement element(Profile);

    EXPECT_EQ(element.GetTag(), Profile);
    EXPECT_THAT(element.GetText(), IsEmpty());
    EXPECT_THAT(element.GetChildren(), IsEmpty());
    EXPECT_THAT(element.GetAttributes(), IsEmpty());
    EXPECT_THAT(element.ChildrenOf(Name), IsEmpty());
    EXPECT_THAT(element.FirstChild(Name), IsNull());
    EXPECT_THAT(element.AttributeValue(Attribute::Name), IsNull());
}

TEST(Element, HasItsChildrenByNumberAndThenInTheOrderTheyCame)
{
    cEpaBlElement entry(Parameter);
    entry.AddChild(Value)->SetText(L"1");
    entry.AddChild(Name)->SetText(L"a");
    entry.AddChild(Value)->SetText(L"2");
    entry.AddChild(Assembly);

    EXPECT_EQ(Outline(&entry), R"(Parameter[Assembly Name="a" Value="1" Value="2"])");
}

TEST(Element, AnswersTheFrontOfAWordsList)
{
    cEpaBlElement entry(Parameter);
    const cEpaBlElement* const first = entry.AddChild(Name);
    const cEpaBlElement* const second = entry.AddChild(Name);

    EXPECT_EQ(entry.FirstChild(Name), first);
    ASSERT_EQ(entry.ChildrenOf(Name).size(), 2u);
    EXPECT_EQ(entry.ChildrenOf(Name)[1].get(), second);
}

TEST(Element, KeepsTheFirstAttributeOfANumber)
{
    cEpaBlElement section(ParamSection);
    section.AddAttribute(L"Param", L"first");
    section.AddAttribute(L"PARAM", L"second");

    EXPECT_THAT(section.AttributeValue(Attribute::Param), Pointee(std::wstring(L"first")));
    EXPECT_EQ(section.GetAttributes().size(), 1u);
}

TEST(Element, DropsAttributesOutsideOfTheVocabulary)
{
    cEpaBlElement section(ParamSection);
    section.AddAttribute(L"Parameter", L"1"); // an element's word
    section.AddAttribute(L"", L"2");

    EXPECT_THAT(section.GetAttributes(), IsEmpty());
}

TEST(Element, HasItsAttributesByNumber)
{
    cEpaBlElement device(Device);
    device.AddAttribute(L"Name", L"n");
    device.AddAttribute(L"deviceid", L"");
    device.AddAttribute(L"Alias", L"a");

    EXPECT_EQ(Outline(&device), "Device{Alias=a DeviceId= Name=n}");
}

TEST(Element, KeepsTheLastTextOnly)
{
    cEpaBlElement element(Value);
    element.SetText(L"first");
    element.SetText(L"second");

    EXPECT_EQ(element.GetText(), L"second");
}

TEST(Element, IsItsOwnParentAtTheRootOnly)
{
    cEpaBlElement root(Profile);
    cEpaBlElement* const child = root.AddChild(Constraints);

    EXPECT_EQ(root.GetParentOrSelf(), &root);
    EXPECT_EQ(child->GetParentOrSelf(), &root);
}

class MatchesRule : public testing::Test
{
protected:
    MatchesRule() { section.AddAttribute(L"Param", L"baudrate"); }

    cEpaBlElement section{ParamSection};
};

TEST_F(MatchesRule, IsFalseWithoutAnElement)
{
    EXPECT_FALSE(Matches(nullptr, ParamSection, Attribute::None, L""));
    EXPECT_FALSE(Matches(nullptr, None, Attribute::None, L""));
}

TEST_F(MatchesRule, IsFalseForAnotherNumber)
{
    EXPECT_FALSE(Matches(&section, Parameter, Attribute::None, L""));
    EXPECT_FALSE(Matches(&section, Parameter, Attribute::Param, L"baudrate"));
}

TEST_F(MatchesRule, DoesNotLookAtTheValueWithoutAnAttributeNumber)
{
    EXPECT_TRUE(Matches(&section, ParamSection, Attribute::None, L"anything"));
}

TEST_F(MatchesRule, IsFalseWithoutAnyAttributes)
{
    EXPECT_FALSE(Matches(section.AddChild(ParamSection), ParamSection, Attribute::Param, L""));
}

TEST_F(MatchesRule, IsFalseWithoutThisAttribute)
{
    EXPECT_FALSE(Matches(&section, ParamSection, Attribute::Name, L"baudrate"));
    EXPECT_FALSE(Matches(&section, ParamSection, Attribute::Name, L""));
}

TEST_F(MatchesRule, IsFalseForAnotherValue)
{
    EXPECT_FALSE(Matches(&section, ParamSection, Attribute::Param, L"baudrat"));
    EXPECT_FALSE(Matches(&section, ParamSection, Attribute::Param, L""));
}

TEST_F(MatchesRule, IsTrueForTheValueInAnyCase)
{
    EXPECT_TRUE(Matches(&section, ParamSection, Attribute::Param, L"baudrate"));
    EXPECT_TRUE(Matches(&section, ParamSection, Attribute::Param, L"BaudRate"));
}

} // namespace
} // namespace norvepa::test

#include "meta/MetaScene.h"

namespace norvepa::test
{
namespace
{

using testing::IsNull;

using enum EpaBlElementTag;
using Attribute = EpaBlAttributeTag;

cEpaBlElement* AddSection(cEpaBlElement& parent, const wchar_t* param)
{
    cEpaBlElement* const section = parent.AddChild(ParamSection);
    section->AddAttribute(L"Param", param);
    return section;
}

TEST(FindBreadthFirst, FindsTheStartItself)
{
    cEpaBlElement root(ParamSection);
    root.AddChild(ParamSection);

    EXPECT_EQ(FindBreadthFirst(&root, ParamSection), &root);
}

TEST(FindBreadthFirst, FindsTheNearestLevelFirst)
{
    cEpaBlElement root(Profile);
    root.AddChild(Constraints)->AddChild(Constraints)->AddChild(Value);
    const cEpaBlElement* const nearest = root.AddChild(ValueCollection)->AddChild(Value);

    EXPECT_EQ(FindBreadthFirst(&root, Value), nearest);
}

TEST(FindBreadthFirst, GoesByParentAheadOfNumber)
{
    cEpaBlElement root(Profile);
    cEpaBlElement* const second = AddSection(root, L"second in number");
    cEpaBlElement* const first = root.AddChild(Constraints); // came later, has the lower number
    second->AddChild(Value);
    const cEpaBlElement* const ofFirst = first->AddChild(Value);

    EXPECT_EQ(FindBreadthFirst(&root, Value), ofFirst);
}

TEST(FindBreadthFirst, GoesByNumberAheadOfTheFilesOrder)
{
    cEpaBlElement root(Profile);
    root.AddChild(ValueCollection)->AddChild(Step);
    const cEpaBlElement* const ofLowerNumber = root.AddChild(Bindings)->AddChild(Step);

    EXPECT_EQ(FindBreadthFirst(&root, Step), ofLowerNumber);
}

TEST(FindBreadthFirst, GoesByTheFilesOrderWithinANumber)
{
    cEpaBlElement root(Profile);
    const cEpaBlElement* const first = AddSection(root, L"same");
    AddSection(root, L"same");

    EXPECT_EQ(FindBreadthFirst(&root, ParamSection, Attribute::Param, L"same"), first);
}

TEST(FindBreadthFirst, PassesOverTheElementWithAnotherAttribute)
{
    cEpaBlElement root(Profile);
    cEpaBlElement* const outer = AddSection(root, L"outer");
    const cEpaBlElement* const inner = AddSection(*outer, L"inner");

    EXPECT_EQ(FindBreadthFirst(&root, ParamSection, Attribute::Param, L"INNER"), inner);
}

TEST(FindBreadthFirst, CrossesEveryWord)
{
    cEpaBlElement root(Profile);
    const cEpaBlElement* const deep =
        root.AddChild(Busparameter)->AddChild(Value)->AddChild(Name)->AddChild(Ndi);

    EXPECT_EQ(FindBreadthFirst(&root, Ndi), deep);
}

TEST(FindBreadthFirst, DoesNotLookAbove)
{
    cEpaBlElement root(Profile);
    root.AddChild(Value);

    EXPECT_THAT(FindBreadthFirst(root.AddChild(Constraints), Value), IsNull());
}

TEST(FindBreadthFirst, FindsNothingForTheNumber0)
{
    cEpaBlElement root(Profile);
    root.AddChild(Constraints);

    EXPECT_THAT(FindBreadthFirst(&root, None), IsNull());
}

TEST(FindBreadthFirst, FindsNothingWithoutAStart)
{
    EXPECT_THAT(FindBreadthFirst(nullptr, Profile), IsNull());
}

} // namespace
} // namespace norvepa::test

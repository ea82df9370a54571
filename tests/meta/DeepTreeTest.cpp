#include "meta/MetaScene.h"

#include <memory>

namespace norvepa::test
{
namespace
{

constexpr int Levels = 100'000; // far more than a stack holds calls

using DeepTree = MetaScene;

std::string Repeated(std::string_view text)
{
    std::string all;
    for (int i = 0; i < Levels; ++i)
    {
        all += text;
    }
    return all;
}

TEST_F(DeepTree, IsSearchedAndDestroyed)
{
    auto root = std::make_unique<cEpaBlElement>(EpaBlElementTag::Profile);
    cEpaBlElement* innermost = root.get();
    for (int i = 0; i < Levels; ++i)
    {
        innermost = innermost->AddChild(EpaBlElementTag::ParamSection);
    }
    innermost->AddAttribute(L"Param", L"innermost");

    const cEpaBlElement* found = nullptr;
    EXPECT_EQ(WalkPath(*root, L"Profile\\innermost", found), PGSP_OK);
    EXPECT_EQ(found, innermost);

    root.reset();
}

TEST_F(DeepTree, WithManyChildrenOnEachLevelIsDestroyed)
{
    auto root = std::make_unique<cEpaBlElement>(EpaBlElementTag::Profile);
    cEpaBlElement* innermost = root.get();
    for (int i = 0; i < Levels; ++i)
    {
        innermost->AddChild(EpaBlElementTag::Name);
        cEpaBlElement* const next = innermost->AddChild(EpaBlElementTag::ParamSection);
        innermost->AddChild(EpaBlElementTag::ParamSection)->AddChild(EpaBlElementTag::Value);
        innermost = next;
    }

    root.reset();

    EXPECT_EQ(root, nullptr);
}

// An engine may have a limit of its own for the levels it goes down; the parser has none.
TEST_F(DeepTree, OfAFileIsParsedAsDeepAsTheEngineGoes)
{
    const ParsedTree tree =
        Parsed("<Profile>" + Repeated("<Constraints>") + "1" + Repeated("</Constraints>") + "</Profile>");

    ASSERT_NE(tree.whole, nullptr);
    int levels = 0;
    for (const cEpaBlElement* element = tree.whole.get(); element != nullptr;
         element = element->FirstChild(EpaBlElementTag::Constraints))
    {
        ++levels;
    }
    EXPECT_GE(levels, 200);
}

TEST_F(DeepTree, OfEmptyElementsThatStayOpenIsParsed)
{
    const ParsedTree tree = Parsed("<Profile>" + Repeated("<min odd='1'/>") + "</Profile>");

    ASSERT_NE(tree.document, nullptr);
    int levels = 0;
    for (const cEpaBlElement* element = tree.whole.get(); element != tree.document;
         element = element->FirstChild(EpaBlElementTag::Min))
    {
        ++levels;
    }
    EXPECT_EQ(levels, Levels - 1); // the one end tag has closed the innermost
}

} // namespace
} // namespace norvepa::test

#include "meta/MetaScene.h"

namespace norvepa::test
{
namespace
{

using BrokenCatalogue = MetaScene;

TEST_F(BrokenCatalogue, ThatBreaksOffYieldsTheElementThatIsOpen)
{
    EXPECT_EQ(Document("<Profile><Constraints><min>1</wrong></Constraints></Profile>"), R"(min="1")");
    EXPECT_EQ(Document("<Profile><Constraints><min>1</min></wrong></Profile>"), R"(Constraints[min="1"])");
    EXPECT_EQ(Document("<Profile><Constraints><min>1</min></Constraints></wrong>"),
              R"(Profile[Constraints[min="1"]])");
}

TEST_F(BrokenCatalogue, ThatBreaksOffInAnUnknownElementYieldsTheOneAroundIt)
{
    EXPECT_EQ(Document("<Profile><Constraints><odd>1</wrong></Constraints></Profile>"), R"(Constraints="1")");
}

TEST_F(BrokenCatalogue, CutOffBehindATextKeepsIt)
{
    EXPECT_EQ(Document("<Profile><min>12<odd>3</odd>"), R"(Profile[min="3"])");
    EXPECT_EQ(Document("<Profile><min>12<!-- 3 -->4"), R"(min="12")");
    EXPECT_EQ(Document("<Profile><min>12<odd>3"), R"(min="12")");
}

TEST_F(BrokenCatalogue, KeepsTheWholeAboveTheElementThatIsOpen)
{
    const ParsedTree tree = Parsed("<Profile><Constraints><min>1</wrong></Constraints></Profile>");

    EXPECT_EQ(Outline(tree.whole.get()), R"(Profile[Constraints[min="1"]])");
}

TEST_F(BrokenCatalogue, WithASecondRootYieldsTheFirst)
{
    EXPECT_EQ(Document("<Profile><min>1</min></Profile><Device></Device>"), R"(Profile[min="1"])");
}

TEST_F(BrokenCatalogue, WithADoctypeYieldsNothing)
{
    EXPECT_EQ(Document("<!DOCTYPE Profile><Profile><min>1</min></Profile>"), "absent");
    EXPECT_EQ(Document("<?xml version='1.0'?><!DOCTYPE Profile [<!ENTITY e '1'>]><Profile>&e;</Profile>"),
              "absent");
}

TEST_F(BrokenCatalogue, WithoutABeginningYieldsNothing)
{
    EXPECT_EQ(Document(""), "absent");
    EXPECT_EQ(Document("no markup"), "absent");
    EXPECT_EQ(Document("</Profile>"), "absent");
}

TEST_F(BrokenCatalogue, CutOffAnywhereComesToAnEnd)
{
    const std::string whole = BoardFile(XmlContent()
                                            .Comment(L"made by hand")
                                            .Element(L"LocalSettings", XmlContent().Text(L"a", L"1 & 2"))
                                            .EmptyTag(L"Bindings", {{L"Name", L"b"}})
                                            .Element(L"odd", XmlContent().CData(L"text").EmptyTag(L"min")));
    // Not within or right behind the declaration: there an engine may end the whole process.
    for (std::size_t length = XmlDeclaration.size() + 1; length < whole.size(); ++length)
    {
        const ParsedTree tree = Parsed(whole.substr(0, length));

        ASSERT_EQ(tree.whole == nullptr, tree.document == nullptr) << "cut off after " << length;
    }
}

} // namespace
} // namespace norvepa::test

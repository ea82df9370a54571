#include "meta/MetaScene.h"

namespace norvepa::test
{
namespace
{

using ParserStructure = MetaScene;

TEST_F(ParserStructure, OfKnownWordsIsTheFiles)
{
    EXPECT_EQ(
        Document("<Profile><Constraints><ParamSection Param='a'><min>1</min></ParamSection></Constraints>"
                 "<Parameters></Parameters></Profile>"),
        R"(Profile[Constraints[ParamSection{Param=a}[min="1"]] Parameters])");
}

TEST_F(ParserStructure, HasANameAheadOfItsValueHoweverTheyStand)
{
    EXPECT_EQ(Document("<Parameter><Value>1</Value><Name>a</Name></Parameter>"),
              R"(Parameter[Name="a" Value="1"])");
}

TEST_F(ParserStructure, KnowsWordsInAnyCase)
{
    EXPECT_EQ(Document("<PROFILE><constraints/><paramsection PARAM='a'></paramsection></PROFILE>"),
              "Profile[Constraints ParamSection{Param=a}]");
}

TEST_F(ParserStructure, PopsOneLevelAtTheEndTagOfAnUnknownElement)
{
    EXPECT_EQ(Document("<Profile><Constraints><odd></odd><min>1</min></Constraints></Profile>"),
              R"(Profile[Constraints min="1"])");
}

TEST_F(ParserStructure, GivesTheChildrenOfAnUnknownElementToTheOneAroundIt)
{
    EXPECT_EQ(Document("<Profile><Constraints><odd><min>1</min></odd><max>2</max></Constraints></Profile>"),
              R"(Profile[Constraints[min="1"] max="2"])");
}

TEST_F(ParserStructure, CountsTheEndTagsOfUnknownElementsWithinEachOther)
{
    EXPECT_EQ(Document("<Profile><Constraints><ParamSection Param='a'><odd><even></even></odd><min>1</min>"
                       "</ParamSection></Constraints></Profile>"),
              R"(Profile[Constraints[ParamSection{Param=a}] min="1"])");
}

TEST_F(ParserStructure, StopsPoppingAtTheRoot)
{
    EXPECT_EQ(Document("<Profile><odd></odd><odd></odd><min>1</min><odd></odd><max>2</max></Profile>"),
              R"(Profile[max="2" min="1"])");
}

TEST_F(ParserStructure, HasNoTraceOfAnEmptyUnknownElement)
{
    EXPECT_EQ(Document("<Profile><Constraints><odd/><odd Param='a'/><min>1</min></Constraints></Profile>"),
              R"(Profile[Constraints[min="1"]])");
}

TEST_F(ParserStructure, LeavesAnEmptyElementWithAttributesOpen)
{
    EXPECT_EQ(
        Document("<Profile><Constraints><ParamSection Param='a'/><ParamSection Param='b'></ParamSection>"
                 "</Constraints></Profile>"),
        "Profile[Constraints[ParamSection{Param=a}[ParamSection{Param=b}]]]");
}

TEST_F(ParserStructure, LeavesItOpenForAnAttributeOutsideOfTheVocabulary)
{
    EXPECT_EQ(Document("<Profile><Constraints odd='1'/><min>1</min></Profile>"),
              R"(Profile[Constraints[min="1"]])");
}

TEST_F(ParserStructure, LeavesItOpenForANamespaceToo)
{
    EXPECT_EQ(Document("<Profile><Constraints xmlns='urn:odd'/><min>1</min></Profile>"),
              R"(Profile[Constraints[min="1"]])");
}

TEST_F(ParserStructure, ClosesAnEmptyElementWithoutAttributes)
{
    EXPECT_EQ(Document("<Profile><Constraints/><min>1</min></Profile>"), R"(Profile[Constraints min="1"])");
}

TEST_F(ParserStructure, EndsAboveTheInnermostOfTheElementsLeftOpen)
{
    const ParsedTree tree = Parsed("<Profile><Constraints odd='1'/><min odd='1'/></Profile>");

    EXPECT_EQ(Outline(tree.document), "Constraints[min]");
    EXPECT_EQ(Outline(tree.whole.get()), "Profile[Constraints[min]]");
}

TEST_F(ParserStructure, TakesLocalNamesWhateverThePrefix)
{
    EXPECT_EQ(
        Document("<p:Profile xmlns:p='urn:odd'><p:Constraints p:Param='a'></p:Constraints></p:Profile>"),
        "Profile[Constraints{Param=a}]");
}

TEST_F(ParserStructure, DropsAttributesOutsideOfTheVocabulary)
{
    EXPECT_EQ(Document("<Device xmlns='urn:odd' DeviceID='1' odd='2' Name='3' Value='4'></Device>"),
              "Device{DeviceId=1 Name=3}");
}

TEST_F(ParserStructure, KeepsTheFirstOfTwoAttributesWithOneNumber)
{
    EXPECT_EQ(Document("<Device Name='first' NAME='second'></Device>"), "Device{Name=first}");
}

TEST_F(ParserStructure, HasADeclarationAndInstructionsLeaveNoTrace)
{
    EXPECT_EQ(Document("<?xml version='1.0' encoding='UTF-8' standalone='yes'?><?odd Name='a'?>"
                       "<Profile><?odd Param='b'?><min>1</min></Profile><!-- end -->"),
              R"(Profile[min="1"])");
}

TEST_F(ParserStructure, BelowAnUnknownRootBeginsWithTheFirstKnownElement)
{
    EXPECT_EQ(Document("<odd>text<Profile>1</Profile><Constraints></Constraints></odd>"),
              R"(Profile="1"[Constraints])");
}

TEST_F(ParserStructure, IsAbsentWhereNothingKnownIsMet)
{
    EXPECT_EQ(Document("<odd></odd>"), "absent");
    EXPECT_EQ(Document("<odd/>"), "absent");
    EXPECT_EQ(Document("<odd Name='a'>text<even>text</even></odd>"), "absent");
}

TEST_F(ParserStructure, IsAbsentWhereNothingKnownIsEverOpen)
{
    EXPECT_EQ(Document("<Profile/>"), "absent");
    EXPECT_EQ(Document("<odd><Profile/><Constraints/></odd>"), "absent");
}

TEST_F(ParserStructure, HasARootOfOneEmptyTagWithAttributes)
{
    EXPECT_EQ(Document("<Profile Name='a'/>"), "Profile{Name=a}");
}

} // namespace
} // namespace norvepa::test

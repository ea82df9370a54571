#include "handover/BuildScene.h"

#include <string>
#include <string_view>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// Documents that aren't read by their bytes, where the engine has to say what their texts are, and two that
// look like others.
class DriverOtherDocuments : public BuildScene
{
protected:
    [[nodiscard]] static ReceivedRecords BuildRaw(std::string_view raw)
    {
        return BuildFile(LogDeviceFile(XmlContent().Raw(raw)));
    }
};

constexpr std::string_view LoadA = "<Load><s>A</s></Load>";

TEST_F(DriverOtherDocuments, GiveTheTextAroundACommentAndAnInstruction)
{
    EXPECT_THAT(BuildRaw("<A><Parameter><Name>a<!-- x -->b</Name><Value>1<?x y?>2</Value></Parameter></A>"
                         "<Load><s>A<!-- x --></s></Load>"),
                ElementsAre(TextRecord(L"ab", L"12")));
}

TEST_F(DriverOtherDocuments, GiveTheTextOfCData)
{
    EXPECT_THAT(BuildRaw("<A><Parameter><Name>n</Name><Value>1<![CDATA[<2>]]>3</Value></Parameter></A>" +
                         std::string(LoadA)),
                ElementsAre(TextRecord(L"n", L"1<2>3")));
}

TEST_F(DriverOtherDocuments, GiveTheCharactersThatReferencesStandFor)
{
    EXPECT_THAT(BuildRaw("<A><Parameter><Name>&#220;&#x62;</Name><Value>a&#x9;b</Value></Parameter></A>" +
                         std::string(LoadA)),
                ElementsAre(TextRecord(L"\u00DCb", L"a\tb")));
}

TEST_F(DriverOtherDocuments, GiveTheTextOfElementsWithinAText)
{
    EXPECT_THAT(BuildRaw("<A><ParameterInt><Name>a<b>c</b></Name><Value>1<b>2</b></Value></ParameterInt></A>"
                         "<Load><s><b>A</b></s></Load>"),
                ElementsAre(IntRecord(L"ac", 12)));
}

TEST_F(DriverOtherDocuments, GiveTheParametersOfParametersIfTheyAreNamed)
{
    EXPECT_THAT(BuildRaw("<A><Parameter><Name>a</Name><ParameterInt><Value>2</Value></ParameterInt>"
                         "</Parameter></A><Load><s>Parameter</s><s>A</s></Load>"),
                ElementsAre(IntRecord(L"", 2), TextRecord(L"a", L"2")));
}

TEST_F(DriverOtherDocuments, GiveWhatStandsBehindADocumentType)
{
    const std::string file =
        LogDeviceFile(XmlContent().Element(L"A", XmlContent().Int(L"n", L"1")).Load({L"A"}));

    EXPECT_THAT(BuildFile(std::string(file).insert(XmlDeclaration.size(), "<!DOCTYPE LogDevice>")),
                ElementsAre(IntRecord(L"n", 1)));
}

TEST_F(DriverOtherDocuments, TakeAWordWithAPrefixForAnotherWord)
{
    const std::string file = XmlFile(L"d", {{L"xmlns:x", L"urn:x"}},
                                     XmlContent()
                                         .Element(L"x:A", XmlContent().Int(L"n", L"1"))
                                         .Element(L"A", XmlContent().Entry(L"x:ParameterInt", L"n", L"2"))
                                         .Load({L"A"}));

    EXPECT_THAT(BuildFile(file), IsEmpty());
    EXPECT_THAT(BuildFile(ForTheEngine(file)), IsEmpty());
}

TEST_F(DriverOtherDocuments, GiveNothingOfTheRoot)
{
    const std::string file = XmlFile(L"A", {}, XmlContent().Int(L"n", L"1").Load({L"A"}));

    EXPECT_THAT(BuildFile(file), IsEmpty());
    EXPECT_THAT(BuildFile(ForTheEngine(file)), IsEmpty());
}

} // namespace
} // namespace norvepa::test

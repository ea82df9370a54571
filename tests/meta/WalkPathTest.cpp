#include "meta/MetaScene.h"

namespace norvepa::test
{
namespace
{

class WalkPathRule : public MetaScene
{
protected:
    // The outcome of a walk: the element it ended with, and the result if that isn't 0.
    [[nodiscard]] std::string Walk(std::wstring_view path) const
    {
        const cEpaBlElement* found = nullptr;
        const Result result = WalkPath(*tree.document, path, found);
        return (result == PGSP_OK ? "" : std::to_string(result) + " ") + Outline(found);
    }

    const ParsedTree tree = Parsed(ProtocolFile(XmlContent().Element(
        L"Constraints",
        XmlContent()
            .ParamSection(L"a", XmlContent().ParamSection(
                                    L"b", XmlContent().ParamSection(
                                              L"c", XmlContent().ParamSection(
                                                        L"d", XmlContent().ParamSection(L"e", {})))))
            .ParamSection(L"BAUDRATE", XmlContent().Element(L"min", L"9600")))));
};

TEST_F(WalkPathRule, AFirstPartIsAnElementsWord)
{
    EXPECT_THAT(Walk(L"constraints"), testing::StartsWith("Constraints["));
}

TEST_F(WalkPathRule, AFurtherPartIsTheParamOfASectionInAnyCase)
{
    EXPECT_EQ(Walk(L"Constraints\\baudrate"), R"(ParamSection{Param=BAUDRATE}[min="9600"])");
}

TEST_F(WalkPathRule, AFurtherPartIsFoundAtAnyDepth)
{
    EXPECT_EQ(Walk(L"Constraints\\d"), "ParamSection{Param=d}[ParamSection{Param=e}]");
    EXPECT_EQ(Walk(L"Constraints\\b\\e"), "ParamSection{Param=e}");
}

TEST_F(WalkPathRule, FiveSegmentsAreTheLongestPath)
{
    EXPECT_EQ(Walk(L"Constraints\\a\\b\\c\\d"), "ParamSection{Param=d}[ParamSection{Param=e}]");
}

TEST_F(WalkPathRule, SixSegmentsAreRefusedAheadOfAnySearch)
{
    EXPECT_EQ(Walk(L"Constraints\\a\\b\\c\\d\\e"), "8513 absent");
    EXPECT_EQ(Walk(L"Unknown\\1\\2\\3\\4\\5"), "8513 absent");
}

TEST_F(WalkPathRule, AnUnknownWordIsNotFound)
{
    EXPECT_EQ(Walk(L"Unknown\\a"), "-1 absent");
    EXPECT_EQ(Walk(L"Busparameter"), "-1 absent"); // known, but not in this file
}

TEST_F(WalkPathRule, AWalkThatFailsStopsAtTheLastElementFound)
{
    EXPECT_EQ(Walk(L"Constraints\\baudrate\\a"), R"(-1 ParamSection{Param=BAUDRATE}[min="9600"])");
}

TEST_F(WalkPathRule, TheWordOfASectionIsNoPartOfAPath)
{
    EXPECT_THAT(Walk(L"Constraints\\ParamSection"), testing::StartsWith("-1 Constraints["));
}

TEST_F(WalkPathRule, AStepMayFindTheElementItStartsFrom)
{
    EXPECT_EQ(Walk(L"Constraints\\e\\e"), "ParamSection{Param=e}");
    EXPECT_THAT(Walk(L"Profile"), testing::StartsWith("Profile{CP_TYPE=MPI}["));
}

TEST_F(WalkPathRule, APathWithoutSegmentsIsNotFound)
{
    EXPECT_EQ(Walk(L""), "-1 absent");
    EXPECT_EQ(Walk(L"\\\\\\"), "-1 absent");
}

TEST_F(WalkPathRule, RunsOfBackslashesCountAsOneAndThoseAtTheEndsForNothing)
{
    EXPECT_EQ(Walk(L"Constraints\\\\baudrate"), Walk(L"Constraints\\baudrate"));
    EXPECT_EQ(Walk(L"\\\\Constraints\\baudrate\\\\"), Walk(L"Constraints\\baudrate"));
    EXPECT_EQ(Walk(L"\\Constraints\\a\\\\b\\c\\d\\"), Walk(L"Constraints\\a\\b\\c\\d"));
}

TEST_F(WalkPathRule, BlanksBelongToASegment)
{
    EXPECT_THAT(Walk(L"Constraints\\ baudrate"), testing::StartsWith("-1 Constraints["));
}

TEST_F(WalkPathRule, APathOf259CharactersIsTheLongestThatIsWalked)
{
    const std::wstring start = L"Constraints\\baudrate";
    const std::wstring path = start + std::wstring(259 - start.size(), L'\\');

    EXPECT_EQ(Walk(path), Walk(start));
    EXPECT_EQ(Walk(path + L'\\'), "8513 absent");
    EXPECT_EQ(Walk(std::wstring(100'000, L'x')), "8513 absent");
}

} // namespace
} // namespace norvepa::test

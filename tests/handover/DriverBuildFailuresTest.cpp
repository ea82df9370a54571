#include "handover/BuildScene.h"
#include "handover/StreamHeap.h"
#include "support/ImportHook.h"

#include <windows.h>

#include <optional>

namespace norvepa::test
{
namespace
{

using testing::IsEmpty;

// All of them leave the outputs alone, which is seen by ResultOf.
class DriverBuildFailures : public BuildScene
{
protected:
    // A section with so many parameters that their records take `size` bytes and a little more.
    [[nodiscard]] static XmlContent Large(std::size_t size)
    {
        XmlContent section;
        for (std::size_t record = 0; record <= size / 100; ++record)
        {
            section.Text(L"n", std::wstring(46, L'x'));
        }
        return XmlContent().Element(L"A", section).Load({L"A"});
    }
};

TEST_F(DriverBuildFailures, WithoutALoadThereIsNothingToRead)
{
    const XmlContent section = XmlContent().Element(L"A", XmlContent().Int(L"n", L"1"));

    EXPECT_EQ(ResultOf(section), PGSP_ERR_DRIVER_READ);
    EXPECT_EQ(ResultOf(XmlContent(section).Element(L"load", XmlContent().Element(L"section", L"A"))),
              PGSP_ERR_DRIVER_READ);
    EXPECT_EQ(ResultOf(XmlContent(section).Element(L"LOAD", XmlContent().Element(L"section", L"A"))),
              PGSP_ERR_DRIVER_READ);
}

TEST_F(DriverBuildFailures, AnEmptyLoadIsNoneToo)
{
    const XmlContent section = XmlContent().Element(L"A", XmlContent().Int(L"n", L"1"));

    EXPECT_EQ(ResultOf(XmlContent(section).EmptyTag(L"Load")), PGSP_ERR_DRIVER_READ);
    EXPECT_EQ(ResultOf(XmlContent(section).Load({})), PGSP_ERR_DRIVER_READ);
    EXPECT_EQ(ResultOf(XmlContent(section).Element(L"Load", L"A")), PGSP_ERR_DRIVER_READ);
    EXPECT_EQ(ResultOf(XmlContent(section).Element(L"Load", XmlContent().Comment(L"A").CData(L"A"))),
              PGSP_ERR_DRIVER_READ);
}

TEST_F(DriverBuildFailures, AnEntryWithoutATextIsOne)
{
    EXPECT_EQ(ResultOf(XmlContent().Load({L""})), PGSP_OK);
    EXPECT_EQ(ResultOf(XmlContent().Element(L"Load", XmlContent().EmptyTag(L"section"))), PGSP_OK);
}

TEST_F(DriverBuildFailures, ADocumentWithoutElementsBelowItsRootLoadsNothing)
{
    const DriverReadContext context = ContextOf("<Load/>");
    HandedOut out;

    EXPECT_EQ(DriverBuildRecords(context, &out.block, &out.length), PGSP_ERR_DRIVER_READ);

    EXPECT_TRUE(out.isUntouched());
}

TEST_F(DriverBuildFailures, WithoutAFirstBufferTheFirstFieldFails)
{
    StreamHeap heap;
    heap.RefuseToBegin();

    EXPECT_EQ(ResultOf(Large(1)), PGSP_ERR_DRIVER_BUFFER);
    EXPECT_EQ(ResultOf(XmlContent().Element(L"A", XmlContent()).Load({L"A"})), PGSP_OK);
    EXPECT_EQ(ResultOf(XmlContent().Load({})), PGSP_ERR_DRIVER_READ);
}

TEST_F(DriverBuildFailures, ABufferThatCanNotGrowEndsTheRead)
{
    for (std::size_t nth = 1; nth <= 3; ++nth)
    {
        StreamHeap heap;
        heap.RefuseToGrow(nth);

        EXPECT_EQ(ResultOf(Large(nth * 1000)), PGSP_ERR_DRIVER_NO_MEMORY);

        EXPECT_EQ(heap.grownFrom().size(), nth - 1);
        EXPECT_FALSE(heap.isHeld());
    }
}

TEST_F(DriverBuildFailures, NoReadHoldsItsBufferBeyondItsEnd)
{
    const StreamHeap heap;

    EXPECT_EQ(ResultOf(Large(5000)), PGSP_OK);
    EXPECT_FALSE(heap.isHeld());

    EXPECT_EQ(ResultOf(XmlContent()), PGSP_ERR_DRIVER_READ);
    EXPECT_FALSE(heap.isHeld());
}

// What is asked of the system for the block that is handed out.
struct BlockRequest
{
    UINT flags;
    SIZE_T size;
};
std::optional<BlockRequest> request;

HGLOBAL WINAPI LackMemory(UINT flags, SIZE_T size)
{
    request = BlockRequest{flags, size};
    return nullptr;
}

TEST_F(DriverBuildFailures, WithoutABlockToHandOutTheReadFails)
{
    const ImportHook hook("GlobalAlloc", LackMemory);

    EXPECT_EQ(ResultOf(XmlContent().Element(L"A", XmlContent().Int(L"n", L"1")).Load({L"A"})),
              PGSP_ERR_DRIVER_BUFFER);

    ASSERT_TRUE(request);
    EXPECT_EQ(request->flags, static_cast<UINT>(GMEM_FIXED));
    EXPECT_EQ(request->size, 12U);
    request.reset();
}

// Whatever isn't read by its bytes gives what the engine tells, and that is what its form for reading by the
// bytes would give.
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
                testing::ElementsAre(TextRecord(L"ab", L"12")));
}

TEST_F(DriverOtherDocuments, GiveTheTextOfCData)
{
    EXPECT_THAT(BuildRaw("<A><Parameter><Name>n</Name><Value>1<![CDATA[<2>]]>3</Value></Parameter></A>" +
                         std::string(LoadA)),
                testing::ElementsAre(TextRecord(L"n", L"1<2>3")));
}

TEST_F(DriverOtherDocuments, GiveTheCharactersThatReferencesStandFor)
{
    EXPECT_THAT(BuildRaw("<A><Parameter><Name>&#220;&#x62;</Name><Value>a&#x9;b</Value></Parameter></A>" +
                         std::string(LoadA)),
                testing::ElementsAre(TextRecord(L"\u00DCb", L"a\tb")));
}

TEST_F(DriverOtherDocuments, GiveTheTextOfElementsWithinAText)
{
    EXPECT_THAT(BuildRaw("<A><ParameterInt><Name>a<b>c</b></Name><Value>1<b>2</b></Value></ParameterInt></A>"
                         "<Load><s><b>A</b></s></Load>"),
                testing::ElementsAre(IntRecord(L"ac", 12)));
}

TEST_F(DriverOtherDocuments, GiveTheParametersOfParametersIfTheyAreNamed)
{
    EXPECT_THAT(BuildRaw("<A><Parameter><Name>a</Name><ParameterInt><Value>2</Value></ParameterInt>"
                         "</Parameter></A><Load><s>Parameter</s><s>A</s></Load>"),
                testing::ElementsAre(IntRecord(L"", 2), TextRecord(L"a", L"2")));
}

TEST_F(DriverOtherDocuments, GiveAWordWithAPrefixForAnotherWord)
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

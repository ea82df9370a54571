#include "handover/BuildScene.h"
#include "handover/StreamHeap.h"
#include "support/ImportHook.h"

#include <windows.h>

#include <optional>

namespace norvepa::test
{
namespace
{

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

} // namespace
} // namespace norvepa::test

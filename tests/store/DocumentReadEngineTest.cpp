#include "store/BrokenEngine.h"
#include "store/EveryRead.h"
#include "store/ReadScene.h"
#include "support/WatchedEngine.h"

namespace norvepa::test
{
namespace
{

// The reads that load a document, with an engine that can't be had or lacks memory.
class DocumentReadWithoutEngine : public ReadScene, public testing::WithParamInterface<Read>
{
};

INSTANTIATE_TEST_SUITE_P(, DocumentReadWithoutEngine, testing::ValuesIn(DocumentReads()), NameOf);

TEST_P(DocumentReadWithoutEngine, IsRefusedAndLeavesItsOutputsAlone)
{
    const std::wstring file = File(LogDeviceFile(ReadableContent()));
    const BrokenEngine engine({REGDB_E_CLASSNOTREG});

    EXPECT_EQ(GetParam().call(file.c_str()), GetParam().Refused(PGSP_ERR_CANT_CREATE_XML_ENGINE));

    EXPECT_EQ(engine.asked(), 1);
}

class DocumentReadOutOfMemory : public ReadScene, public testing::WithParamInterface<Read>
{
};

INSTANTIATE_TEST_SUITE_P(, DocumentReadOutOfMemory, testing::ValuesIn(DocumentReads()), NameOf);

TEST_P(DocumentReadOutOfMemory, NoLessThanTheFileHolds)
{
    const std::wstring file = File(LogDeviceFile(ReadableContent()));
    Outcome outcome{};

    WithEachEngineCallFailing([] {}, [&] { outcome = GetParam().call(file.c_str()); },
                              [&](bool ranOut) { EXPECT_TRUE(ranOut || outcome == GetParam().found); });
}

TEST_P(DocumentReadOutOfMemory, NoVerdictThatThereIsNothing)
{
    const std::wstring file = File(LogDeviceFile(XmlContent().EmptyTag(L"Other")));
    Outcome outcome{};

    WithEachEngineCallFailing([] {}, [&] { outcome = GetParam().call(file.c_str()); },
                              [&](bool ranOut) { EXPECT_TRUE(ranOut || outcome == GetParam().notFound); });
}

} // namespace
} // namespace norvepa::test

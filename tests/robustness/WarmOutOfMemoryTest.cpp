// Memory that runs out while files are read whose images the library has kept from earlier calls.

#include "Questions.h"
#include "norvepa.h"
#include "support/FileAge.h"
#include "support/ImportHook.h"
#include "xml/ImageCache.h"

#include <windows.h>
#include <xmllite.h>

namespace norvepa::test
{
namespace
{

using testing::AnyOf;
using testing::Eq;

constexpr std::int32_t OutOfMemoryCode = 14; // the system's number

std::size_t engines = 0; // that were made

HRESULT WINAPI MakeEngine(const IID& interfaceId, void** engine, IMalloc* memory)
{
    static const auto original = reinterpret_cast<decltype(&CreateXmlReader)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"xmllite.dll"), "CreateXmlReader")));
    ++engines;
    return original(interfaceId, engine, memory);
}

// A store whose files are old, and all of whose images are kept: reads leave it so. Both take a wait, so one
// test asks all questions.
class WarmOutOfMemory : public SmallStore
{
protected:
    WarmOutOfMemory()
    {
        WriteBytes(PathOf(L"last"), "");
        AwaitAge(PathOf(L"last"));
        DropWhatIsKept(); // of another test's store
        DropImages();
        EXPECT_GT(EnginesForAllReads(), 0U);
        EXPECT_EQ(EnginesForAllReads(), 0U);
    }

    static std::size_t EnginesForAllReads()
    {
        engines = 0;
        const ImportHook hook("CreateXmlReader", &MakeEngine);
        for (const Question& question : Reads())
        {
            EXPECT_EQ(Ask(question).result, PGSP_OK) << question.name;
        }
        return engines;
    }

    static void ExpectTheTruthInAShortage(const Question& question, Shortage shortage,
                                          const std::function<void()>& prepare)
    {
        SCOPED_TRACE(question.name);
        const Outcome normal = Ask(question);
        const Outcome outOfMemory{OutOfMemoryCode, question.afterAFailure};
        AskWithEachAllocationFailing(question, shortage, prepare, [&](const Outcome& outcome) {
            EXPECT_THAT(outcome, AnyOf(Eq(outOfMemory), Eq(normal)));
            EXPECT_EQ(Ask(question), normal); // and nothing false has been kept
        });
    }
};

TEST_F(WarmOutOfMemory, IsToldOfEachReadOrDoesNotMatter)
{
    for (const Question& question : Reads())
    {
        ExpectTheTruthInAShortage(question, Shortage::Passing, [] {});
        ExpectTheTruthInAShortage(question, Shortage::Lasting, [] {});
    }
    // The images alone are kept, and all that else is made of files has to be made of them.
    for (const Question& question : StoreReads())
    {
        ExpectTheTruthInAShortage(question, Shortage::Passing, DropWhatIsKept);
    }
    EXPECT_EQ(EnginesForAllReads(), 0U);
}

} // namespace
} // namespace norvepa::test

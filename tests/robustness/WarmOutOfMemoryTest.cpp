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

// A store whose files are old. One wait serves all questions: reads leave it as it is.
class WarmOutOfMemory : public SmallStore
{
protected:
    WarmOutOfMemory()
    {
        WriteBytes(PathOf(L"last"), "");
        AwaitAge(PathOf(L"last"));
        DropImages();
        for (const Question& question : Reads())
        {
            EXPECT_EQ(Ask(question).result, PGSP_OK) << question.name;
        }
    }

    static void ExpectTheTruthInAShortage(const Question& question, Shortage shortage)
    {
        const Outcome normal = Ask(question);
        const Outcome outOfMemory{OutOfMemoryCode, question.afterAFailure};
        // Their images are all that is kept: everything else has to be made anew.
        AskWithEachAllocationFailing(question, shortage, DropWhatIsKept, [&](const Outcome& outcome) {
            EXPECT_THAT(outcome, AnyOf(Eq(outOfMemory), Eq(normal)));
            EXPECT_EQ(Ask(question), normal); // and nothing false has been kept
        });
    }
};

TEST_F(WarmOutOfMemory, IsToldOfEachReadOrDoesNotMatter)
{
    for (const Question& question : Reads())
    {
        SCOPED_TRACE(question.name);
        ExpectTheTruthInAShortage(question, Shortage::Passing);
        ExpectTheTruthInAShortage(question, Shortage::Lasting);
    }
}

// Without this the test above might be one of files that are read anew.
TEST_F(WarmOutOfMemory, IsMetWithImagesThatAreKept)
{
    engines = 0;
    const ImportHook hook("CreateXmlReader", &MakeEngine);
    for (const Question& question : Reads())
    {
        EXPECT_EQ(Ask(question).result, PGSP_OK) << question.name;
    }
    EXPECT_EQ(engines, 0U);

    DropImages();
    for (const Question& question : Reads())
    {
        EXPECT_EQ(Ask(question).result, PGSP_OK) << question.name;
    }
    EXPECT_GT(engines, 0U);
}

} // namespace
} // namespace norvepa::test

#include "support/LibraryPresence.h"
#include "support/LogNameCalls.h"

#include <windows.h>
#include <objbase.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace norvepa::test
{
namespace
{

// What COM says of the calling thread: S_OK with its kind, or CO_E_NOTINITIALIZED.
HRESULT ApartmentOf(APTTYPE& type)
{
    APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
    return CoGetApartmentType(&type, &qualifier);
}

class Module : public testing::Test
{
protected:
    Module() { WriteBytes(roots.logName(L"Pumpe"), LogNameFile(XmlContent().Text(L"Station", L"Halle 2"))); }

    [[nodiscard]] static std::wstring Value(const Exports& library)
    {
        OutputBuffer value(20);
        const std::int32_t result =
            library.LogNameGetValueBL(L"Pumpe", L"Station", value.data(), &value.length);
        return result == PGSP_OK ? value.text() : L"(result " + std::to_wstring(result) + L")";
    }

    StoreRoots roots;
};

TEST_F(Module, MayBeLoadedAndUnloadedTwice)
{
    for (int i = 0; i < 2; ++i)
    {
        {
            const Exports library;
            EXPECT_TRUE(IsLibraryLoaded());
            EXPECT_EQ(Value(library), L"Halle 2");
        }
        EXPECT_FALSE(IsLibraryLoaded());
    }
}

TEST_F(Module, StaysUsableAfterDeinit)
{
    const Exports library;
    EXPECT_EQ(Value(library), L"Halle 2");

    library.NorvepaBl64x_deinit();
    library.NorvepaBl64x_deinit();

    EXPECT_EQ(Value(library), L"Halle 2");
}

TEST_F(Module, MayBeDeinitialisedAheadOfAnythingElse)
{
    const Exports library;

    library.NorvepaBl64x_deinit();

    EXPECT_EQ(Value(library), L"Halle 2");
}

TEST_F(Module, BringsComToTheThreadThatLoadsIt)
{
    std::thread([&] {
        APTTYPE type = APTTYPE_NA;
        ASSERT_EQ(ApartmentOf(type), CO_E_NOTINITIALIZED);
        {
            const Exports library;
            EXPECT_EQ(ApartmentOf(type), S_OK);
            EXPECT_TRUE(type == APTTYPE_STA || type == APTTYPE_MAINSTA);
        }
        EXPECT_EQ(ApartmentOf(type), CO_E_NOTINITIALIZED);
    }).join();
}

TEST_F(Module, MayBeLoadedWhereComIsInAnotherMode)
{
    std::thread([&] {
        ASSERT_EQ(CoInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK);
        CoInitializeEx(nullptr, COINIT_MULTITHREADED); // the unload takes one of the two away

        {
            const Exports library;
            APTTYPE type = APTTYPE_NA;
            EXPECT_EQ(ApartmentOf(type), S_OK);
            EXPECT_EQ(type, APTTYPE_MTA);
            EXPECT_EQ(Value(library), L"Halle 2");
        }

        CoUninitialize();
    }).join();
}

TEST_F(Module, AnswersOnThreadsWithoutCom)
{
    const Exports library;

    std::thread([&] {
        APTTYPE type = APTTYPE_NA;
        EXPECT_EQ(ApartmentOf(type), CO_E_NOTINITIALIZED);
        EXPECT_EQ(Value(library), L"Halle 2");
        EXPECT_EQ(ApartmentOf(type), CO_E_NOTINITIALIZED);
    }).join();
}

TEST_F(Module, AnswersManyThreadsAtOnce)
{
    constexpr int threadCount = 4;
    constexpr int callsEach = 50;
    const Exports library;
    std::vector<std::thread> threads;
    std::atomic<int> answered = 0;

    for (int i = 0; i < threadCount; ++i)
    {
        threads.emplace_back([&] {
            for (int call = 0; call < callsEach; ++call)
            {
                answered += Value(library) == L"Halle 2" ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }

    EXPECT_EQ(answered, threadCount * callsEach);
}

} // namespace
} // namespace norvepa::test

#include "DriverReadScene.h"
#include "support/AllAtOnce.h"

#include <objbase.h>

namespace norvepa::test
{
namespace
{

constexpr int Threads = 4;
constexpr int Rounds = 25;

// Threads that have COM read at once.
class DriverReadThreads : public DriverReadScene
{
protected:
    template <typename Body>
    static void EachWithCom(const Body& body)
    {
        AllAtOnce(Threads, [&](int thread) {
            CoInitialize(nullptr);
            for (int round = 0; round < Rounds; ++round)
            {
                body(thread);
            }
            CoUninitialize();
        });
    }
};

TEST_F(DriverReadThreads, ReadOneDevice)
{
    Write(Holding(L"of all"));

    EachWithCom([&](int /*thread*/) { EXPECT_EQ(Read(), Held(L"of all")); });
}

TEST_F(DriverReadThreads, ReadADeviceOfTheirOwn)
{
    for (int thread = 0; thread < Threads; ++thread)
    {
        Write(Holding(L"of " + std::to_wstring(thread)), std::to_wstring(thread));
    }

    EachWithCom([&](int thread) {
        EXPECT_EQ(Read(std::to_wstring(thread)), Held(L"of " + std::to_wstring(thread)));
        EXPECT_EQ(ResultOf(L"gone"), PGSP_ERR_CANT_LOAD_XML_FILE);
    });
}

} // namespace
} // namespace norvepa::test

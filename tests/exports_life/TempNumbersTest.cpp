#include "LifeScene.h"
#include "support/AllAtOnce.h"
#include "support/FreshThread.h"
#include "support/ImportHook.h"

#include <windows.h>

#include <atomic>
#include <mutex>

namespace norvepa::test
{
namespace
{

class TempNumbers : public LifeScene
{
protected:
    TempNumbers() { Write(Rights(L"false", L"true").Comment(L" the original ")); }

    [[nodiscard]] std::int32_t Make(OutputBuffer& name) const
    {
        return library.LogDeviceCreateTempBL(L"Presse", name.data(), &name.length);
    }
};

TEST_F(TempNumbers, BeginAtZeroAndHaveThreeDigits)
{
    EXPECT_EQ(MakeTemporary(), L"PGSP_TEMP_LOG_DEVICE____000");
    EXPECT_EQ(MakeTemporary(), L"PGSP_TEMP_LOG_DEVICE____001");
    TakeNumbers(2, 10);
    EXPECT_EQ(MakeTemporary(), L"PGSP_TEMP_LOG_DEVICE____010");
    TakeNumbers(11, 100);
    EXPECT_EQ(MakeTemporary(), L"PGSP_TEMP_LOG_DEVICE____100");
}

TEST_F(TempNumbers, AreTakenAgainOnceTheyAreFree)
{
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));
    ASSERT_EQ(MakeTemporary(), TemporaryName(1));

    ASSERT_EQ(library.LogDeviceDelTempBL(TemporaryName(0).c_str()), PGSP_OK);

    EXPECT_EQ(MakeTemporary(), TemporaryName(0));
    EXPECT_EQ(MakeTemporary(), TemporaryName(2));
}

TEST_F(TempNumbers, AreTheLowestThatIsFree)
{
    TakeNumbers(0, 20);
    ASSERT_EQ(library.LogDeviceDelBL(TemporaryName(17).c_str(), 0), PGSP_OK);
    ASSERT_EQ(library.LogDeviceDelBL(TemporaryName(5).c_str(), 0), PGSP_OK);

    EXPECT_EQ(MakeTemporary(), TemporaryName(5));
    EXPECT_EQ(MakeTemporary(), TemporaryName(17));
    EXPECT_EQ(MakeTemporary(), TemporaryName(20));
}

TEST_F(TempNumbers, AreTakenByWhateverHasTheName)
{
    WriteBytes(roots.logDevice(L"pgsp_temp_log_device____000"), "");
    MakeFolders(roots.logDevice(TemporaryName(1)));

    EXPECT_EQ(MakeTemporary(), TemporaryName(2));
}

TEST_F(TempNumbers, EndAt254)
{
    TakeNumbers(0, 254);

    EXPECT_EQ(MakeTemporary(), L"PGSP_TEMP_LOG_DEVICE____254");
    EXPECT_EQ(MakeTemporary(), NoNumber);
}

TEST_F(TempNumbers, ThatAreAllTakenLeaveNoneAndMakeNoFile)
{
    TakeNumbers(0, TemporaryNumbers);
    const Names before = Files();
    OutputBuffer name(TemporaryNameRoom);

    EXPECT_EQ(Make(name), PGSP_CANT_CREATE_TEMP_LOG_DEVICE);

    EXPECT_EQ(Files(), before);
    EXPECT_TRUE(name.isUntouched());
    EXPECT_EQ(name.length, TemporaryNameRoom);
    EXPECT_EQ(store.Bytes(TemporaryName(254)), "taken");
}

TEST_F(TempNumbers, AreNoneOfThoseBehindTheLast)
{
    WriteBytes(roots.logDevice(TemporaryName(255)), "");
    WriteBytes(roots.logDevice(TemporaryName(999)), "");

    EXPECT_EQ(MakeTemporary(), TemporaryName(0));
}

TEST_F(TempNumbers, MakeNoFolder)
{
    std::filesystem::remove_all(store.deviceFolder());

    EXPECT_EQ(MakeTemporary(), NoNumber);

    EXPECT_FALSE(Exists(store.deviceFolder()));
}

TEST_F(TempNumbers, WithoutTheDataFolderAreThoseBelowTheCurrentOne)
{
    TakeNumbers(0, 3);
    const CurrentFolder current;
    store.TakeDataFolderAway();
    WriteBytes(current.logDevice(L"Pumpe"), "relative");

    EXPECT_EQ(MakeTemporary(L"Presse"), NoNumber);
    EXPECT_EQ(MakeTemporary(L"Pumpe"), TemporaryName(0));

    EXPECT_EQ(ReadBytes(current.logDevice(TemporaryName(0))), "relative");
}

TEST_F(TempNumbers, NeedNoComAndNoProgramFolder)
{
    store.TakeProgramFolderAway();

    OnFreshThread([&] { EXPECT_EQ(MakeTemporary(), TemporaryName(0)); });
}

TEST_F(TempNumbers, NeedRoomForTheNameAndItsTerminator)
{
    OutputBuffer name(28);

    EXPECT_EQ(Make(name), PGSP_OK);

    EXPECT_EQ(name.text(), TemporaryName(0));
    EXPECT_EQ(name.length, 27U);
}

TEST_F(TempNumbers, AreLostToABufferThatIsTooShort)
{
    unsigned number = 0;
    for (const std::uint32_t capacity : {27U, 26U, 1U, 0U})
    {
        OutputBuffer name(capacity);

        EXPECT_EQ(Make(name), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;

        EXPECT_EQ(name.length, 27U) << capacity;
        EXPECT_TRUE(name.isUntouched()) << capacity;
        EXPECT_EQ(store.Bytes(TemporaryName(number++)), store.Bytes(L"Presse")) << capacity;
    }
    EXPECT_EQ(MakeTemporary(), TemporaryName(number));
}

TEST_F(TempNumbers, ThatAreAllTakenAreToldAheadOfTheRoomForOne)
{
    TakeNumbers(0, TemporaryNumbers);
    OutputBuffer name(0);

    EXPECT_EQ(Make(name), PGSP_CANT_CREATE_TEMP_LOG_DEVICE);

    EXPECT_EQ(name.length, 0U);
}

std::atomic<int> lookups;

LSTATUS WINAPI CountLookup(HKEY key, LPCWSTR subkey, LPCWSTR value, DWORD flags, LPDWORD type, PVOID data,
                           LPDWORD size)
{
    ++lookups;
    return RegGetValueW(key, subkey, value, flags, type, data, size);
}

TEST_F(TempNumbers, LookForTheDataFolderAnewWithEachTry)
{
    TakeNumbers(0, 7);
    lookups = 0;
    const ImportHook counting("RegGetValueW", CountLookup, library.module());

    ASSERT_EQ(MakeTemporary(), TemporaryName(7));
    EXPECT_EQ(lookups, 8);

    EXPECT_EQ(MakeTemporary(L"gone"), NoNumber);
    EXPECT_EQ(lookups, 8 + 255);
}

TEST_F(TempNumbers, AreGivenToOneThreadEach)
{
    constexpr int threads = 4;
    constexpr int perThread = 10;
    Names all;
    std::mutex mutex;

    AllAtOnce(threads, [&](int) {
        for (int taken = 0; taken < perThread; ++taken)
        {
            const std::wstring name = MakeTemporary();
            const std::lock_guard lock(mutex);
            all.push_back(name);
        }
    });

    Names expected;
    for (unsigned number = 0; number < threads * perThread; ++number)
    {
        expected.push_back(TemporaryName(number));
        EXPECT_EQ(store.Bytes(expected.back()), store.Bytes(L"Presse"));
    }
    EXPECT_THAT(all, testing::UnorderedElementsAreArray(expected));
}

} // namespace
} // namespace norvepa::test

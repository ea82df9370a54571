#include "LifeScene.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class DropTemp : public LifeScene
{
protected:
    [[nodiscard]] std::int32_t Drop(const std::wstring& name) const
    {
        return library.LogDeviceDelTempBL(name.c_str());
    }
};

TEST_F(DropTemp, RemovesATemporaryDeviceAndLeavesItsOriginal)
{
    Write({});
    ASSERT_EQ(MakeTemporary(), TemporaryName(0));

    EXPECT_EQ(Drop(TemporaryName(0)), PGSP_OK);
    EXPECT_EQ(Drop(TemporaryName(0)), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(DropTemp, AsksForNoPermission)
{
    store.WriteDevice(TemporaryName(0), Rights(L"false", L"false"));

    EXPECT_EQ(Drop(TemporaryName(0)), PGSP_OK);
}

TEST_F(DropTemp, RefusesADeviceWithoutTheWordInItsName)
{
    for (const wchar_t* const name : {L"Presse", L"PGSP_TEMP_LOG_DEVIC____000", L"PGSP_TEMP_LOG",
                                      L"pgsp_temp_log_device____000", L"PGSP_TEMP_LOG_Device____000"})
    {
        store.WriteDevice(name, Rights(L"true", L"false"));

        EXPECT_EQ(Drop(name), PGSP_ERR_INVALID_PARAMETERS) << ToUtf8(name);

        EXPECT_TRUE(IsThere(name)) << ToUtf8(name);
    }
}

TEST_F(DropTemp, RemovesADeviceWithTheWordAnywhereInItsName)
{
    for (const wchar_t* const name :
         {L"PGSP_TEMP_LOG_DEVICE", L"PGSP_TEMP_LOG_DEVICE_1", L"Alte PGSP_TEMP_LOG_DEVICE Presse"})
    {
        store.WriteDevice(name, Rights(L"false", L"false"));

        EXPECT_EQ(Drop(name), PGSP_OK) << ToUtf8(name);

        EXPECT_THAT(Files(), IsEmpty()) << ToUtf8(name);
    }
}

TEST_F(DropTemp, NeedsTheDataFolderAndRemovesNothingBelowTheCurrentOne)
{
    const CurrentFolder current;
    store.TakeDataFolderAway();
    WriteBytes(current.logDevice(TemporaryName(0)), "");

    EXPECT_EQ(Drop(TemporaryName(0)), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_TRUE(Exists(current.logDevice(TemporaryName(0))));
}

TEST_F(DropTemp, LooksAtTheNameAheadOfTheFolder)
{
    store.TakeDataFolderAway();

    EXPECT_EQ(Drop(L"Presse"), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(DropTemp, LeavesAFileThatAnotherProcessReads)
{
    store.WriteDevice(TemporaryName(0), {});
    {
        const HeldElsewhere held(roots, roots.logDevice(TemporaryName(0)), Sharing::Reading);
        EXPECT_EQ(Drop(TemporaryName(0)), PGSP_ERR_CANT_DELETE_FILE);
        EXPECT_TRUE(IsThere(TemporaryName(0)));
    }

    EXPECT_EQ(Drop(TemporaryName(0)), PGSP_OK);
}

TEST_F(DropTemp, LeavesAReadOnlyFile)
{
    store.WriteDevice(TemporaryName(0), {});
    SetFileAttributesW(roots.logDevice(TemporaryName(0)).c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(Drop(TemporaryName(0)), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_TRUE(IsThere(TemporaryName(0)));
    SetFileAttributesW(roots.logDevice(TemporaryName(0)).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(DropTemp, EscapesTheName)
{
    for (const CodedName& coded : CodedNames)
    {
        WriteBytes(roots.logDevice(L"PGSP_TEMP_LOG_DEVICE " + std::wstring(coded.fileName)), "");

        EXPECT_EQ(Drop(L"PGSP_TEMP_LOG_DEVICE " + std::wstring(coded.name)), PGSP_OK) << ToUtf8(coded.name);

        EXPECT_THAT(Files(), IsEmpty()) << ToUtf8(coded.name);
    }
}

TEST_F(DropTemp, TakesAPathOf259CharactersAndNoMore)
{
    const std::wstring word = L"PGSP_TEMP_LOG_DEVICE";
    const auto nameForPathOf = [&](std::size_t length) {
        return word + store.DeviceForPathOf(length).substr(word.size());
    };

    EXPECT_EQ(Drop(nameForPathOf(260)), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Drop(nameForPathOf(259)), PGSP_ERR_CANT_DELETE_FILE);
}

} // namespace
} // namespace norvepa::test

#include "EnumScene.h"

#include <algorithm>
#include <filesystem>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class EnumBuffer : public EnumScene
{
};

TEST_F(EnumBuffer, LeavesBufferAndLengthAsTheyWerePastTheEnd)
{
    store.WriteDevice(L"Presse", {});
    OutputBuffer name(260);

    EXPECT_EQ(GetEnum(nullptr, 1, name), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(GetEnum(nullptr, UINT32_MAX, name), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_EQ(name.length, 260U);
}

TEST_F(EnumBuffer, RefusesABufferOfNoCharactersAlsoWithoutDevices)
{
    OutputBuffer name(0);

    EXPECT_EQ(GetEnum(nullptr, 0, name), PGSP_ERR_INVALID_PARAMETERS);
    store.WriteDevice(L"Presse", {});
    EXPECT_EQ(GetEnum(nullptr, 0, name), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetEnum(L"MPI", 7, name), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_EQ(name.length, 0U);
}

TEST_F(EnumBuffer, RefusesOutputsThatAreNotThere)
{
    OutputBuffer name(260);

    EXPECT_EQ(library.LogDeviceGetEnumBL(nullptr, 0, nullptr, &name.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.LogDeviceGetEnumBL(nullptr, 0, name.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_EQ(name.length, 260U);
}

TEST_F(EnumBuffer, NeedsOneCharacterMoreThanTheName)
{
    store.WriteDevice(L"Presse", {});

    EXPECT_THAT(All(nullptr, 7), ElementsAre(L"Presse"));
    EXPECT_THAT(All(nullptr, 6, PGSP_ERR_BUFFER_TOO_SHORT), IsEmpty());
    EXPECT_THAT(All(nullptr, 1, PGSP_ERR_BUFFER_TOO_SHORT), IsEmpty());
}

TEST_F(EnumBuffer, StopsAtANameThatDoesNotFitThoughItIsNotTheOneAskedFor)
{
    for (const wchar_t* const name : {L"a1", L"b1", L"c1", L"d1"})
    {
        store.WriteDevice(name, {});
    }
    const std::wstring longer = FoldersOrder()[2] + L"x";
    std::filesystem::rename(roots.logDevice(FoldersOrder()[2]), roots.logDevice(longer));
    const Names order = FoldersOrder();
    const auto place = std::find(order.begin(), order.end(), longer);
    OutputBuffer last(3);

    EXPECT_THAT(All(nullptr, 3, PGSP_ERR_BUFFER_TOO_SHORT), testing::ElementsAreArray(order.begin(), place));
    EXPECT_EQ(GetEnum(nullptr, 3, last), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(All(nullptr, 4), order);
}

TEST_F(EnumBuffer, StopsAtANameThatDoesNotFitThoughItIsLeftOut)
{
    store.WriteDevice(L"a1", {});
    WriteHidden(L"hidden one", L"true");
    WriteType(L"another type", L"L2");
    store.WriteDevice(L"PGSP_TEMP_LOG_DEVICE____001", {});
    OutputBuffer past(3);

    EXPECT_EQ(GetEnum(L"MPI", 1, past), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(past.isUntouched());
    EXPECT_EQ(past.length, 3U);
    EXPECT_THAT(All(L"MPI", 28), ElementsAre(L"a1"));
}

} // namespace
} // namespace norvepa::test

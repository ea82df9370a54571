#include "frame/StoreLocations.h"

#include <gmock/gmock.h>

namespace norvepa
{
namespace
{

TEST(JoinPath, PutsOneBackslashBetweenTheParts)
{
    EXPECT_EQ(JoinPath(L"C:\\Store", L"data"), L"C:\\Store\\data");
}

TEST(JoinPath, AddsItsBackslashAlsoToOneThatIsThere)
{
    EXPECT_EQ(JoinPath(L"C:\\Store\\", L"data"), L"C:\\Store\\\\data");
    EXPECT_EQ(JoinPath(L"C:\\Store", L"\\data"), L"C:\\Store\\\\data");
}

TEST(JoinPath, AddsNoBackslashWhenAPartIsEmpty)
{
    EXPECT_EQ(JoinPath(L"", L"data"), L"data");
    EXPECT_EQ(JoinPath(L"C:\\Store", L""), L"C:\\Store");
    EXPECT_EQ(JoinPath(L"", L""), L"");
}

TEST(MakeStoreFolder, JoinsRootMiddleAndLeaf)
{
    EXPECT_EQ(MakeStoreFolder(L"C:\\Store", L"data", L"LogNames"), L"C:\\Store\\data\\LogNames");
}

TEST(MakeStoreFolder, LeavesEmptyPartsOut)
{
    EXPECT_EQ(MakeStoreFolder(L"", L"data", L"LogNames"), L"data\\LogNames");
    EXPECT_EQ(MakeStoreFolder(L"C:\\Store", L"", L"Schemes"), L"C:\\Store\\Schemes");
    EXPECT_EQ(MakeStoreFolder(L"C:\\Store", L"data", L""), L"C:\\Store\\data");
    EXPECT_EQ(MakeStoreFolder(L"", L"", L""), L"");
}

} // namespace
} // namespace norvepa

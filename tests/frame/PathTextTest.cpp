#include "frame/PathText.h"

#include <gtest/gtest.h>
#include <string>

namespace norvepa
{
namespace
{

TEST(PathText, IsEmptyInTheBeginning)
{
    EXPECT_EQ(PathText().view(), L"");
    EXPECT_EQ(PathText(L"").view(), L"");
}

TEST(PathText, HoldsItsPartsOneBehindTheOther)
{
    PathText path(L"C:\\store");
    path.Append(L"\\");
    path.Append(L"");
    path.Append(L"file");

    EXPECT_EQ(path.view(), L"C:\\store\\file");
}

TEST(PathText, HoldsAnyNumberOfCharacters)
{
    PathText path;
    std::wstring whole;
    for (std::size_t i = 0; i < 3 * PathCapacity; ++i)
    {
        path.Append(std::to_wstring(i));
        whole += std::to_wstring(i);
        ASSERT_EQ(path.view(), whole);
    }
}

TEST(PathText, HoldsAnOverlongTextAtOnce)
{
    const std::wstring overlong(100'000, L'a');

    EXPECT_EQ(PathText(overlong).view(), overlong);
}

TEST(PathText, IsExtendedAsAnyPath)
{
    PathText bare(L"a");
    PathText extended(L"folder.xml\\a");

    ExtendByAnywhereRule(bare);
    ExtendByAnywhereRule(extended);

    EXPECT_EQ(bare.view(), L"a.xml");
    EXPECT_EQ(extended.view(), L"folder.xml\\a");
}

} // namespace
} // namespace norvepa

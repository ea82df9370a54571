#include "handover/norvepaFileCache.h"

#include <gmock/gmock.h>

namespace norvepa
{
namespace
{

TEST(StripInterTagWhitespace, DropsWhatStandsBetweenTags)
{
    EXPECT_EQ(StripInterTagWhitespace("<a> \t\r\n<b/>\n</a>"), "<a><b/></a>");
}

TEST(StripInterTagWhitespace, DropsTheBlanksThatBeginAText)
{
    EXPECT_EQ(StripInterTagWhitespace("<a>  zwei Worte </a>"), "<a>zwei Worte </a>");
}

} // namespace
} // namespace norvepa

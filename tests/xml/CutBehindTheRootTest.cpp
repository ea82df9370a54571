// Files that end where an engine can't be asked what it stands on: they come to an end, and the process
// doesn't.

#include "xml/PullScene.h"

namespace norvepa::test
{
namespace
{

using CutBehindTheRoot = PullScene;

TEST_F(CutBehindTheRoot, AnInstructionEndsTheFile)
{
    for (const std::string_view rest : {"<?odd", "<?odd data", "<?odd data?", "<?o"})
    {
        PullReader reader = Reading("<a></a>" + std::string(rest));

        EXPECT_EQ(RestOf(reader), "<a> </a>") << rest;
        EXPECT_FALSE(XmlReaderActive(reader)) << rest;
    }
}

TEST_F(CutBehindTheRoot, AZeroByteInAnInstructionEndsTheFile)
{
    PullReader reader = Reading(std::string("<a></a><?odd\0?>", 15));

    EXPECT_EQ(RestOf(reader), "<a> </a>");
    EXPECT_FALSE(XmlReaderActive(reader));
}

TEST_F(CutBehindTheRoot, ACommentEndsTheFile)
{
    for (const std::string_view rest : {"<!-- made by", "<!--", "<!", "\r\n<!-- made by"})
    {
        PullReader reader = Reading("<a></a>" + std::string(rest));

        EXPECT_THAT(RestOf(reader), testing::StartsWith("<a> </a>")) << rest;
        EXPECT_FALSE(XmlReaderActive(reader)) << rest;
    }
}

TEST_F(CutBehindTheRoot, AMarkOfItsEncodingAloneIsAFileWithoutNodes)
{
    for (const std::string_view bytes : {"\xEF\xBB\xBF", "\xEF\xBB\xBF<", "\xFF\xFE", "\xFE\xFF"})
    {
        PullReader reader = Reading(bytes);

        EXPECT_EQ(RestOf(reader), "");
        EXPECT_FALSE(XmlReaderActive(reader));
    }
}

} // namespace
} // namespace norvepa::test

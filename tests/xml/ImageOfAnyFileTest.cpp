// What the reader tells of a file is what the pull engine itself tells of it, node by node.

#include "xml/MetFile.h"
#include "xml/PullScene.h"
#include "xml/RandomXml.h"

#include <array>
#include <set>
#include <string_view>

namespace norvepa::test
{
namespace
{

using namespace std::string_view_literals;

class ImageOfAnyFile : public PullScene
{
protected:
    void ExpectWhatTheEngineTells(std::string_view bytes) const
    {
        WriteBytes(file(), bytes);

        ASSERT_EQ(WalkByAReader(file()), WalkByTheEngine(file())) << bytes;
    }
};

constexpr std::uint32_t Documents = 1'000;
constexpr std::uint32_t DamagesEach = 2;

TEST_F(ImageOfAnyFile, TellsOfRandomDocumentsWhatTheEngineTells)
{
    for (std::uint32_t number = 0; number < Documents; ++number)
    {
        SCOPED_TRACE("document " + std::to_string(number));
        ASSERT_NO_FATAL_FAILURE(ExpectWhatTheEngineTells(MakeDocument(number).bytes));
    }
}

TEST_F(ImageOfAnyFile, TellsOfDamagedDocumentsWhatTheEngineTells)
{
    for (std::uint32_t number = 0; number < Documents * DamagesEach; ++number)
    {
        SCOPED_TRACE("damage " + std::to_string(number));
        const RandomDocument whole = MakeDocument(number / DamagesEach);
        ASSERT_NO_FATAL_FAILURE(ExpectWhatTheEngineTells(Damaged(whole, number)));
    }
}

// Without this the tests above might compare files that end at their beginning.
TEST_F(ImageOfAnyFile, IsAskedOfNodesOfEveryType)
{
    std::set<XmlNodeType> types;
    std::size_t nodes = 0;
    std::size_t attributes = 0;
    for (std::uint32_t number = 0; number < 100; ++number)
    {
        WriteBytes(file(), MakeDocument(number).bytes);
        for (const MetNode& node : WalkByTheEngine(file()).nodes)
        {
            types.insert(node.type);
            attributes += node.attributes.size();
            ++nodes;
        }
    }

    EXPECT_THAT(types, testing::ElementsAre(XmlNodeType_Element, XmlNodeType_Text, XmlNodeType_CDATA,
                                            XmlNodeType_ProcessingInstruction, XmlNodeType_Comment,
                                            XmlNodeType_Whitespace, XmlNodeType_EndElement,
                                            XmlNodeType_XmlDeclaration));
    EXPECT_GT(nodes, 500U);
    EXPECT_GT(attributes, 100U);
}

constexpr std::array Special{
    ""sv,
    " "sv,
    "\r\n"sv,
    "text"sv,
    "\xEF\xBB\xBF   "sv,
    "\xFF\xFE"sv,
    "\xFF\xFE<\0a\0/\0>\0"sv,
    "\xFE\xFF\0<\0a\0/\0>"sv,
    "<\0a\0/\0>\0"sv,
    "\0<\0a\0/\0>"sv,
    "\xFF\xFE\0\0<\0\0\0"sv,
    "<?xml version='1.0' encoding='UTF-16'?><a/>"sv,
    "<?xml version='1.0' encoding='x-unknown'?><a/>"sv,
    "<?xml version='1.1'?><a/>"sv,
    " <?xml version='1.0'?><a/>"sv,
    "<?xml version='1.0' encoding='ISO-8859-1'?><a b='\xE4'>\xF6\xFC</a>"sv,
    "<?xml version='1.0' encoding='windows-1252'?><a>\x80</a>"sv,
    "<?xml version='1.0' encoding='US-ASCII'?><a>\x80</a>"sv,
    "<!DOCTYPE a><a/>"sv,
    "<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>"sv,
    "<a>&e;</a>"sv,
    "<a/><b/>"sv,
    "<a/>text"sv,
    "<a/><!-- c --><?p?>  "sv,
    "<a b='1' b='2'/>"sv,
    "<a p:b='1'/>"sv,
    "<p:a/>"sv,
    "<a xmlns:p='urn:p' p:b='1' p:c='2' xmlns='urn:a'><p:b/></a>"sv,
    "<a xml:lang='de' xml:space='preserve'> </a>"sv,
    "<a :b='1'/>"sv,
    "<a b:='1'/>"sv,
    "<a b='<'/>"sv,
    "<a b='&#0;'/>"sv,
    "<a b=1/>"sv,
    "<a b/>"sv,
    "<a b='1'c='2'/>"sv,
    "<a b='1"sv,
    "<a b='1'"sv,
    "<a b='1' c"sv,
    "<a b='1' />"sv,
    "<a b='1'></a >"sv,
    "<a></a b='1'>"sv,
    "<a>]]></a>"sv,
    "<a><![CDATA[</a>"sv,
    "<a><!-- -- --></a>"sv,
    "<a><?xml version='1.0'?></a>"sv,
    "<a>\x01</a>"sv,
    "<a>\xFF</a>"sv,
    "<a>\xC3</a>"sv,
    "<a>\xED\xA0\x80</a>"sv,
    "<a>1<b>2</b>3<b/>4</a>"sv,
    "<a\0/>"sv,
    "<a>1\0</a>"sv,
    "<a>1</a>\0"sv,
    "<a><b></a></b>"sv,
    "<a></A>"sv,
    "<1/>"sv,
    "< a/>"sv,
    "<a/"sv,
    "<"sv,
};

TEST_F(ImageOfAnyFile, TellsOfOddFilesWhatTheEngineTells)
{
    for (const std::string_view bytes : Special)
    {
        EXPECT_NO_FATAL_FAILURE(ExpectWhatTheEngineTells(bytes));
    }
}

} // namespace
} // namespace norvepa::test

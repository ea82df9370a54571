#include "support/GuardedBytes.h"
#include "xml/PlainReader.h"

#include <windows.h>

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

using Token = PlainReader::Token;

constexpr int TooManyTags = 1'000;

// Asks at each tag for all that can be asked for. The number of tags.
int ReadAll(std::string_view bytes)
{
    PlainReader reader(bytes);
    int tags = 0;
    for (Token token = reader.Read(); tags < TooManyTags && token != Token::End && token != Token::NotPlain;
         token = reader.Read())
    {
        ++tags;
        std::optional<std::wstring> attribute;
        std::wstring text;
        (void)reader.ReadAttribute("name", attribute);
        (void)reader.ReadText(text);
    }
    return tags;
}

class PlainReaderEnd : public testing::Test
{
protected:
    void ExpectAnEnd(std::string_view bytes)
    {
        EXPECT_LT(ReadAll(m_guarded.Copy(bytes)), TooManyTags) << bytes;
    }

private:
    GuardedBytes m_guarded{4'096};
};

constexpr std::string_view Whole =
    "\uFEFF<?xml version = '1.0' encoding='UTF-8' ?>\r\n<!-- - --><a name='ä&lt;' b=\"'\">"
    "<b name = \"c\" >ü&amp;&quot; </b ><!----><c d='>'/>\r\n<p:d p:name='1'/>"
    "<e>&#65;<![CDATA[f]]></e><?p q?></a>\n";

TEST(PlainReaderEndScene, HasNothingToReadBehindItsBytes)
{
    GuardedBytes guarded(1);
    const std::string_view copy = guarded.Copy("a");
    MEMORY_BASIC_INFORMATION pages{};

    ASSERT_NE(VirtualQuery(copy.data() + copy.size(), &pages, sizeof pages), 0U);

    EXPECT_EQ(copy, "a");
    EXPECT_EQ(pages.State, static_cast<DWORD>(MEM_RESERVE));
}

TEST_F(PlainReaderEnd, IsNotPassedWhereverBytesAreCutOff)
{
    for (std::size_t begin = 0; begin < Whole.size(); ++begin)
    {
        for (std::size_t end = begin; end <= Whole.size(); ++end)
        {
            ExpectAnEnd(Whole.substr(begin, end - begin));
        }
    }
}

TEST_F(PlainReaderEnd, IsNotPassedWhateverTheLastBytesAre)
{
    for (const std::string_view ahead :
         {"", "<a>", "<a name='", "<a name=\"b\" ", "<a>b</a", "<!--", "<?xml ", "<a>&"})
    {
        for (int last = 0; last <= 0xFF; ++last)
        {
            const std::string one = std::string(ahead) + static_cast<char>(last);
            for (const char behind : {'<', '>', '/', '&', '\'', '"', '=', '-', '!', '?', ' ', '\xC3'})
            {
                ExpectAnEnd(one + behind);
            }
        }
    }
}

} // namespace
} // namespace norvepa::test

#include "handover/OutlineScene.h"

#include <random>
#include <vector>

namespace norvepa::test
{
namespace
{

using Pieces = std::vector<std::string_view>;

// What comes up more than once comes up more often.
const Pieces Sections{"S", "T", "Load", "Subdevice", "Subdevices", "p:S"};
const Pieces Parts{"Name", "Value", "Name", "Value", "Name", "Value", "Unit"};
const Pieces Entries{"section", "section", "Name", "Größe"};
const Pieces Contents{"Parameter", "ParameterInt", "ParameterBool", "S",
                      "T",         "Subdevice",    "Load",          "Parameter"};
const Pieces AnyWord{"S",      "Größe",  "Parameter",   "ParameterBool", "Name",      "Value", "Load",
                     "q:Load", "p:Name", "q:Parameter", "name",          "Subdevice", "Load1", "p:Load"};

const Pieces Attributes{" ",
                        "\r\n",
                        " a='/>'",
                        " SubdevName='x'",
                        " SubdevName='x'",
                        " SubdevName=\"&lt;ä>\"",
                        " a='SubdevName=\"y\"' SubdevName = 'z'",
                        " q:SubdevName='w'",
                        " SubdevName='a\tb'",
                        " SubdevName='&#65;'",
                        " xmlns='urn:x'",
                        " xmlns:q='urn:q'",
                        " xml:space='preserve'"};

const Pieces PlainTexts{"", "a", "a b", "\ta\n", " a ", "&lt;", "ä&amp;", "\u00A0", "\U0001F600", "-->"};
const Pieces AnyText{"\n",      " ",        "\r\n ",    "a\rb",         "&#65;",         "&#13;",
                     "&#x20;",  "<!-- -->", "<!-->-->", "<!--</S>-->",  "<![CDATA[c]]>", "<?Name b?>",
                     "<!---->", "]",        "\n\t\n",   "<!-- \" ' -->"};

const Pieces Prologues{"", "\uFEFF", "\n", "<?xml version='1.0' encoding='utf-8'?>\n", "<!-- a -->"};

// What mostly stands in an element; nothing where it is only text.
const Pieces& WordsBelow(std::string_view word)
{
    static const Pieces none;
    if (word == "d")
    {
        return Sections;
    }
    if (word.starts_with("Parameter"))
    {
        return Parts;
    }
    if (word == "Load")
    {
        return Entries;
    }
    return word == "S" || word == "T" || word.starts_with("Subdevice") ? Contents : none;
}

// Documents much like those of log devices, with something odd here and there; well-formed, but that a prefix
// may have no namespace, which some engines let pass.
class OutlineRandom : public OutlineScene
{
protected:
    [[nodiscard]] std::string SomeDocument()
    {
        m_left = 1 + m_random() % 40;
        m_rarely = 4 + m_random() % 200;
        return std::string(Some(Prologues)) + "<d xmlns:p='urn:p'>" + SomeContent("d") + "</d>\n";
    }

private:
    [[nodiscard]] bool Rarely() { return m_random() % m_rarely == 0; }

    [[nodiscard]] std::string_view Some(const Pieces& pieces) { return pieces[m_random() % pieces.size()]; }

    [[nodiscard]] std::string SomeContent(std::string_view word)
    {
        const Pieces& words = WordsBelow(word);
        std::string content(words.empty() ? Some(PlainTexts) : "");
        for (std::size_t count = words.empty() ? 0 : m_random() % 6; count > 0 && m_left > 0; --count)
        {
            --m_left;
            content += SomeElement(Rarely() ? Some(AnyWord) : Some(words));
        }
        return content.append(Rarely() ? Some(AnyText) : "");
    }

    [[nodiscard]] std::string SomeElement(std::string_view word)
    {
        const bool mayHaveAny = word == "Subdevice" ? m_random() % 4 != 0 : Rarely();
        const std::string tag = std::string(word).append(mayHaveAny ? Some(Attributes) : "");
        return m_random() % 8 == 0 ? '<' + tag + "/>"
                                   : '<' + tag + '>' + SomeContent(word) + "</" + std::string(word) + '>';
    }

    std::mt19937 m_random{20'260'106};
    std::size_t m_left = 0;     // how many elements there may still be
    std::size_t m_rarely = 100; // once in so many times
};

TEST_F(OutlineRandom, DocumentIsReadAlikeOrNotAtAll)
{
    int loaded = 0;
    int read = 0;
    for (int number = 0; number < 5'000 && !HasFailure(); ++number)
    {
        const std::string bytes = SomeDocument();

        const OutlineLine line = ByTheBytes(bytes);
        const OutlineLine engineLine = ByTheEngine(bytes);

        loaded += engineLine ? 1 : 0;
        if (line && engineLine)
        {
            ++read;
            EXPECT_EQ(line, engineLine) << bytes;
        }
    }

    EXPECT_GT(loaded, 4'000);
    EXPECT_GT(read, 1'000);
    EXPECT_GT(loaded - read, 1'000);
}

} // namespace
} // namespace norvepa::test

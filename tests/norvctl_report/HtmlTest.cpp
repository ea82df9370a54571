#include "norvctl/report/Html.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace norvctl::report
{
namespace
{

TEST(ReportHtml, EscapesWhateverCouldBecomeMarkup)
{
    EXPECT_EQ(Escaped("<b>\"x\" & 'y'</b>"), "&lt;b&gt;&quot;x&quot; &amp; &#39;y&#39;&lt;/b&gt;");
    EXPECT_EQ(Escaped("&lt;"), "&amp;lt;");
    EXPECT_EQ(Escaped("Überhitzer µΩ"), "Überhitzer µΩ");
}

TEST(ReportHtml, EscapesTextsAndAttributes)
{
    Html html;

    html.Element("td", "</td><script>", {{"class", "\"><script>"}});

    EXPECT_EQ(html.Page(), "<td class=\"&quot;&gt;&lt;script&gt;\">&lt;/td&gt;&lt;script&gt;</td>");
}

TEST(ReportHtml, AnchorsHaveNoCharacterThatNeedsAnEscape)
{
    EXPECT_EQ(AsAnchor("Presse#3"), "Presse_233");
    EXPECT_EQ(AsAnchor("a-Z 9"), "a-Z_209");
    EXPECT_EQ(AsAnchor("\xC3\x9C"), "_c3_9c");
}

TEST(ReportHtml, DifferentNamesHaveDifferentAnchors)
{
    std::set<std::string> anchors;

    for (const char* const name : {"a b", "a_20b", "a-b", "a__b", "a_b", "A b", "a", ""})
    {
        EXPECT_TRUE(anchors.insert(AsAnchor(name)).second) << name;
    }
}

} // namespace
} // namespace norvctl::report

#include "engine/Markup.h"
#include "engine/FindReplace.h"
#include "tests/engine/Rows.h"

namespace nerlo::engine {
namespace {

TEST(Markup, RemovesBulletsAndReplyMarks) {
    expectRows({{"bullets with their space", u"\u2022 one\n\u25E6 two", u"one\ntwo"},
                {"anywhere in the text", u"a\u2022b", u"ab"},
                {"only one space goes", u"\u27A2  a", u" a"},
                {"a space that an earlier row uncovers", u"\u2022\u2219 a", u"a"},
                {"the small o of word processors", u"Line\no\titem\r\no \titem",
                 u"Line\n\titem\r\n\titem"},
                {"not at the very start", u"o\titem", u"o\titem"}},
               removeBullets);
    expectRows({{"every mark, blunt as it is", u"> quoted\n>> twice", u" quoted\n twice"},
                {"in the middle too", u"a > b", u"a  b"}},
               removeReplyQuotes);
}

TEST(Markup, RemovesEverythingBetweenAngles) {
    expectRows({{"tags", u"<b>bold</b> text", u"bold text"},
                {"whatever stands between", u"a < b and c > d", u"a  d"},
                {"an open end", u"x < y", u"x "},
                {"a closing angle alone", u"a > b", u"a > b"},
                {"entities stay", u"&amp;", u"&amp;"}},
               [](const std::u16string &text) { return removeHTMLTags(text, false); });
}

TEST(Markup, RemovesTagsByTheirPattern) {
    expectRows({{"script contents go", u"<p>a<script>var s='<b>';</script>b</p>", u"ab"},
                {"in any letter case", u"a<SCRIPT src=x>b</Script>c", u"ac"},
                {"comments, across lines", u"<!-- c\n <b> -->d", u"d"},
                {"instructions up to the last end of the line", u"<?a ?> b ?>c\n<?d", u"c\n<?d"},
                {"no tag", u"x < y", u"x < y"},
                {"nothing to do", u"plain", u"plain"},
                {"a quoted angle", u"<a title=\"x>y\">z", u"z"},
                {"a quote that is never closed", u"<a title=\"x>y", u"<a title=\"x>y"},
                {"names of signs alone are none", u"<-:> <a:b-c>", u"<-:> "},
                {"styles keep their contents", u"<style>p{}</style>", u"p{}"},
                {"a Kelvin sign folds to k", u"<\u212A>x", u"x"},
                {"the split marker puts the turns out", u"a%%%%%%SPLIT-ME%%%%%%b<i>c", u"ab"}},
               [](const std::u16string &text) { return removeHTMLTags(text, true); });
}

// Each of these took a backtracking matcher minutes, or its stack.
TEST(Markup, TakesHostileTagsInItsStride) {
    const auto repeated = [](std::u16string_view piece, std::size_t count) {
        std::u16string text;
        for (std::size_t i = 0; i < count; ++i) {
            text.append(piece);
        }
        return text;
    };
    for (const std::u16string_view piece :
         {u"<!--", u"<?x ", u"<a ", u"<-:", u"<a '", u"<a \"'", u"<a '\" ", u"<x\"<y'<z"}) {
        const std::u16string text = repeated(piece, 100'000);
        EXPECT_LE(removeHTMLTags(text, true).size(), text.size());
    }
    const std::u16string unclosed = repeated(u"<!--", 100'000);
    EXPECT_EQ(removeHTMLTags(unclosed, true), unclosed);
    EXPECT_EQ(removeHTMLTags(u"<a " + repeated(u"b='>' ", 200'000) + u">x", true), u"x");
}

} // namespace
} // namespace nerlo::engine

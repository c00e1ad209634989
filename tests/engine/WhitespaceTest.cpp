#include "engine/Whitespace.h"
#include "tests/engine/Rows.h"

namespace nerlo::engine {
namespace {

TEST(Whitespace, CollapsesRuns) {
    expectRows({{"two spaces become one", u"a  b", u"a b"},
                {"each kind of space by itself", u"a \u00A0 b", u"a \u00A0 b"},
                {"no-break spaces too", u"a\u00A0\u00A0\u00A0b", u"a\u00A0b"},
                {"nothing to do", u"a b", u"a b"}},
               removeMultipleSpaces);
    expectRows({{"tabs", u"\t\ta\t\tb", u"\ta\tb"}}, removeMultipleTabs);
    expectRows({{"ends keep one space each", u"\ta\r\n b\n", u" a b "},
                {"Unicode's spaces count", u"a\u2003\u3000b\u0085c", u"a b c"},
                {"a zero-width space is none", u"a\u200Bb", u"a\u200Bb"}},
               removeMultipleSpacesTabsNewLines);
}

TEST(Whitespace, RemovesAndTrims) {
    expectRows({{"line breaks go too", u"a b\r\nc\td\u00A0e", u"abcde"}}, removeAllSpaces);
    expectRows({{"both ends, not the middle", u" \n\ta  \n  b\u00A0\r\n", u"a  \n  b"},
                {"nothing but space", u" \u2028\t", u""},
                {"empty", u"", u""}},
               removeSpacesStartAndEnd);
    expectRows({{"all tabs", u"a\t\tb\tc", u"abc"}}, removeMultipleTabsToNone);
}

TEST(Whitespace, ConvertsTabsAndFourSpaces) {
    expectRows({{"five spaces", u"     a", u"\t a"},
                {"three stay", u"   a", u"   a"},
                {"no-break spaces", u"\u00A0\u00A0\u00A0\u00A0\u00A0", u"\t\u00A0"},
                {"mixed runs stay", u"  \u00A0\u00A0", u"  \u00A0\u00A0"}},
               changeSpacesToTabs);
    expectRows({{"a tab", u"a\tb", u"a    b"}}, changeTabsToSpaces);
}

TEST(Whitespace, RemovesOneSpaceBeforeEachDot) {
    expectRows({{"one of two", u"a  .", u"a ."},
                {"a space and a no-break space both go, in that order", u"a\u00A0 .", u"a."},
                {"but not in the other order", u"a \u00A0.", u"a ."},
                {"other dots", u"a \u3002b\u00A0\u30FBc", u"a\u3002b\u30FBc"},
                {"nothing else", u"a ,", u"a ,"}},
               removeSpaceBeforeDot);
}

TEST(Whitespace, RemovesSpacesAroundTabsAndBreaks) {
    expectRows({{"one on each side", u"a \t b", u"a\tb"},
                {"each of the passes takes one more", u"a  \t  b", u"a\tb"},
                {"a third stays", u"a   \t   b", u"a \t b"},
                {"no-break spaces", u"a\u00A0\t\u00A0b", u"a\tb"}},
               removeSpaceBeforeAfterTab);
    expectRows({{"every kind of break", u"a \r\n b \r c \n d", u"a\r\nb\rc\nd"},
                {"indentation loses two", u"a\n    b", u"a\n   b"},
                {"a no-break space on either side", u"a\u00A0\r\n\u00A0b", u"a\r\nb"}},
               removeSpaceBeforeAfterReturn);
}

TEST(Whitespace, ConvertsEllipses) {
    expectRows({{"four dots", u"....", u"\u2026."}, {"six", u"......", u"\u2026\u2026"}},
               change3DotsToEllipsis);
    expectRows({{"back", u"a\u2026", u"a..."}}, changeEllipsisTo3Dots);
}

TEST(Whitespace, RemovesHyphensAndDashes) {
    expectRows({{"with a space and a break the lines are joined", u"exam\u2010 \nple", u"example"},
                {"with a break alone it stays", u"exam\u2010\nple", u"exam\nple"},
                {"CR LF", u"exam\u2010 \r\nple", u"example"},
                {"the hyphen-minus is left alone", u"a-b", u"a-b"}},
               removeHyphens);
    expectRows({{"minus sign and hyphen-minus", u"3 \u2212 2 - 1", u"3 2 1"},
                {"every dash", u"\u2010\u2012\u2013\u2014\u2015\u2212-x", u"x"},
                {"a mark that another uncovers", u"\u2013- \nx", u"x"}},
               removeAllHyphensDashesMinusSign);
    expectRows({{"after a letter", u"exam- ple", u"example"},
                {"after what lies between Z and a", u"[- x", u"[x"},
                {"not after a digit", u"1- 2", u"1- 2"},
                {"not at the start", u"- a", u"- a"},
                {"without a space it stays", u"a-b", u"a-b"}},
               changeDash);
}

TEST(Whitespace, ReplacesRunsOfLineBreaks) {
    const auto option = [](std::int32_t number, std::u16string custom1 = u"",
                           std::u16string custom2 = u"") {
        return [=](const std::u16string &text) {
            return removeSingleOrMultipleReturns(text, number, custom1, custom2);
        };
    };
    expectRows({{"single", u"a\r\n\r\n\nb\rc", u"a\nb\nc"}}, option(1));
    expectRows({{"double", u"a\r\n\r\n\r\nb", u"a\n\nb"}, {"up from one", u"a\rb", u"a\n\nb"}},
               option(2));
    expectRows({{"space", u"a\n\nb\n", u"a b "}}, option(3));
    expectRows({{"custom text", u"a\n\nb", u"a\n> b"}}, option(6, u"> "));
    expectRows({{"which is a template", u"a\n\nb", u"a\n[\n\n]b"}}, option(6, u"[$0]"));
    expectRows({{"a backslash makes plain", u"a\nb", u"a\n$0b"}}, option(6, u"\\$0"));
    expectRows({{"a dollar may be just that", u"a\n\nb", u"a\n$9 US$b"}}, option(6, u"$9 US$"));
    expectRows({{"paragraphs, empty ones too", u"a\n\nb", u"<p>a</p>\n<p></p>\n<p>b</p>"},
                {"and a last empty one", u"a\r\n", u"<p>a</p>\n<p></p>"}},
               option(7));
    expectRows({{"custom tags are literal", u"a\nb", u"$0a\\\n$0b\\"}}, option(9, u"$0", u"\\"));
    expectRows({{"unknown options join", u"a\nb", u"ab"}}, option(10));
}

} // namespace
} // namespace nerlo::engine

// Line joining, sorting, repeated lines and the counts.
#include "engine/LineJoining.h"
#include "engine/Sorting.h"
#include "engine/Statistics.h"
#include "tests/engine/Rows.h"

#include <algorithm>

namespace nerlo::engine {
namespace {

std::u16string joined(const std::u16string &text) {
    return changeWrongInsertedReturnsTo(text, 1);
}

TEST(LineJoining, PutsBrokenSentencesTogether) {
    expectRows(
        {{"the break inside the sentence goes, the one after it stays",
          u"This is a\nbroken sentence.\nNext one.", u"This is a broken sentence.\nNext one."},
         {"a blank line disappears", u"One.\n\nTwo.", u"One.\nTwo."},
         {"nothing but a break", u"\r\n", u"\n"},
         {"an acronym ends a sentence", u"made by NASA\nand others", u"made by NASA\nand others"},
         {"a single capital after a space does not", u"plan B\nwas used.", u"plan B was used."},
         {"a quote after a full stop ends it", u"\"Yes.\"\nHe left.", u"\"Yes.\"\nHe left."},
         {"a comma keeps a line that begins a sentence apart", u"Dear Ann,\nThank you.",
          u"Dear Ann,\nThank you."},
         {"hyphenated words are put together", u"exam-\nple text.", u"example text."},
         {"spaces at the ends do not hide the sentence", u"One.  \n  Two.", u"One.  \n  Two."},
         {"CJK full stop", u"\u4E00\u3002\n\u4E8C\u3002", u"\u4E00\u3002\n\u4E8C\u3002"}},
        joined);
    expectRows({{"nothing is put between", u"This is a\nbroken sentence.\nNext one.",
                 u"This is abroken sentence.\nNext one."}},
               [](const std::u16string &text) { return changeWrongInsertedReturnsTo(text, 0); });
}

TEST(LineJoining, HandlesAQuarterMillionSpacesOnALine) {
    const std::u16string spaces(250'000, u' ');
    EXPECT_FALSE(checkLineForFirstSentenceChar(spaces));
    EXPECT_FALSE(checkLineForEndSentenceChar(spaces, false));
    EXPECT_EQ(joined(u"a" + spaces + u"\nb").size(), 1 + spaces.size() + 2);
}

TEST(Sorting, OrdersItems) {
    struct Case {
        const char *shows;
        std::int64_t option;
        std::int64_t separator;
        std::u16string text;
        std::u16string expected;
    };
    const Case cases[] = {
        {"the empty item after a last break comes first", 0, 0, u"b\na\n", u"\na\nb"},
        {"case ignored, accents count", 0, 0, u"e\nE\n\u00E9\nd", u"d\ne\nE\n\u00E9"},
        {"descending", 1, 0, u"a\nC\nb", u"C\nb\na"},
        {"lower before upper", 2, 0, u"b\nB\na", u"a\nb\nB"},
        {"code units", 4, 0, u"b\nB\na", u"B\na\nb"},
        {"reverse", 6, 3, u"1,2,3", u"3,2,1"},
        {"unknown options sort like the first", 8, 3, u"b,A", u"A,b"},
        {"repeated items", 10, 4, u"a, b, a", u"a, b"},
        {"case keeps items apart, an empty one is kept once", 10, 0, u"A\na\n\n\nA", u"A\na\n"},
        {"an empty custom separator", 0, 8, u"b\na", u"b\na"},
    };
    for (const Case &row : cases) {
        EXPECT_EQ(reference::escaped(sortLines(row.text, row.option, row.separator, u"", "en_US")),
                  reference::escaped(row.expected))
            << row.shows;
    }
    EXPECT_EQ(sortLines(u"b--a--c", 0, 8, u"--", "en_US"), u"a--b--c");
    EXPECT_EQ(sortLines(u"z\n\u00E4\na", 2, 0, u"", "de_DE"), u"a\n\u00E4\nz");
    EXPECT_EQ(sortLines(u"z\n\u00E4\na", 2, 0, u"", "sv_SE"), u"a\nz\n\u00E4");
}

TEST(Sorting, ShufflesEveryItemToEveryPlace) {
    const std::vector<std::size_t> items{0, 1, 2};
    std::array<std::array<int, 3>, 3> seen{};
    for (int round = 0; round < 3000; ++round) {
        const auto shuffled = shuffleArray(items);
        ASSERT_TRUE(std::ranges::is_permutation(shuffled, items));
        for (std::size_t place = 0; place < 3; ++place) {
            ++seen[place][shuffled[place]];
        }
    }
    for (const auto &place : seen) {
        for (const int count : place) { // 1000 expected; off by 200 has odds below 10^-13
            EXPECT_NEAR(count, 1000, 200);
        }
    }
}

TEST(Statistics, CountsTheFour) {
    const std::pair<std::u16string, TextStatistics> rows[] = {
        {u"", {0, 0, 0, 0}},
        {u"a\n\nb", {4, 0, 2, 3}},
        {u"a\n\n", {3, 0, 1, 2}},
        {u"\r\n", {2, 0, 0, 1}},
        {u"a b\u00A0c", {5, 2, 3, 1}},
        {u"It's well-known, isn't it?", {26, 3, 5, 1}},
        {u"\U0001F389 \u65E5\u672C\u8A9E", {6, 1, 1, 1}},
    };
    for (const auto &[text, expected] : rows) {
        EXPECT_TRUE(countAll(text, "en_US") == expected) << reference::escaped(text);
    }
    EXPECT_EQ(integerToString(1234567, "en_US"), u"1,234,567");
    EXPECT_EQ(integerToString(1234567, "de_DE"), u"1.234.567");
    EXPECT_EQ(integerToString(UINT64_MAX, "en_US"), u"18,446,744,073,709,551,615");
}

} // namespace
} // namespace nerlo::engine

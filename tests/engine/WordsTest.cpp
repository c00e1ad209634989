// Words that were cut, and what pages leave in a text.
#include "engine/PageRepair.h"
#include "engine/TextLanguage.h"
#include "engine/WordRepair.h"
#include "tests/engine/Rows.h"

#include <algorithm>
#include <set>
#include <utility>

namespace nerlo::engine {
namespace {

// A dictionary of English with a few words.
text::KnowsWord fewWords(std::string_view locale) {
    static const std::set<std::u16string_view> words{
        u"verification", u"verified", u"format", u"for",   u"mat",    u"well", u"known", u"mother",
        u"in",           u"law",      u"office", u"first", u"finds",  u"sci",  u"movie", u"if",
        u"flags",        u"back",     u"end",    u"of",    u"select", u"flow"};
    const auto knows = [](std::u16string_view word) { return words.contains(word); };
    return locale.starts_with("en") ? text::KnowsWord(knows) : text::KnowsWord();
}

text::KnowsWord noWords(std::string_view) {
    return {};
}

TEST(CutWords, AreWholeAgain) {
    expectRows(
        {
            {"the rest of the line stays below", u"a veri-\nfication, and\nmore",
             u"a verification,\nand\nmore"},
            {"a line that is used up goes", u"a veri-\n  fication.\r\nmore",
             u"a verification.\r\nmore"},
            {"indent and blanks", u"  a veri- \r\n  fied b", u"  a verified\r\n  b"},
            {"real hyphens", u"a well-\nknown mother-\nin-law, in-\nlaw",
             u"a well-known\nmother-in-law,\nin-law"},
            {"digits and capitals", u"GPL-\n2 Jean-\nPierre, x86-\nbased\n--foo-\nbar /a-\nb",
             u"GPL-2\nJean-Pierre,\nx86-based\n--foo-bar\n/a-b"},
            {"cut more than once", u"veri-\nfica-\ntion verification",
             u"verification\nverification"},
            {"a soft hyphen is a cut", u"abra\u00AD\ncadabra", u"abracadabra"},
            {"the same word elsewhere", u"Foobars: a foo-\nbars, quux-\nbaz or quux-baz",
             u"Foobars: a foobars,\nquux-baz\nor quux-baz"},
            {"the beginning of another word", u"configurable by a config-\nuration",
             u"configurable by a configuration"},
            {"cut short on purpose", u"pre-\nand postfix, in-\nor out, 5-\nand 6",
             u"pre-\nand postfix, in-\nor out, 5-\nand 6"},
            {"unsure, and nothing else is cut here", u"a for-\nmat or a blor-\nbex",
             u"a for-\nmat or a blor-\nbex"},
            {"unsure, but others are cut", u"a for-\nmat or a veri-\nfied blor-\nbex",
             u"a format\nor a verified\nblorbex"},
            {"no words", u"- \n-\na\nx -\ny\n-\nz-", u"- \n-\na\nx -\ny\n-\nz-"},
        },
        [](std::u16string text) { return rejoinWords(std::move(text), "en_US", fewWords); });
    expectRows(
        {
            {"without a dictionary, the text decides",
             u"Verification: a veri-\nfication, un-\nknown as known",
             u"Verification: a verification,\nunknown\nas known"},
            {"or nothing does", u"a veri-\nfication", u"a veri-\nfication"},
            {"two words of the text", u"a file of the system: a file-\nsystem",
             u"a file of the system: a file-system"},
        },
        [](std::u16string text) { return rejoinWords(std::move(text), "en_US", noWords); });
}

TEST(CutWords, LoseTheGapsBesideLigatures) {
    expectRows(
        {
            {"all around", u"Veri fi cation of the o ffi ce", u"Veri fi cation of the office"},
            {"on one side, and at words' ends", u"fi nds fi rst if fl ags of fice veri fied",
             u"finds first if flags office verified"},
            {"the characters", u"veri \uFB01 cation", u"verification"},
            {"words of their own", u"a sci fi movie, back flow", u"a sci fi movie, back flow"},
        },
        [](std::u16string text) { return rejoinWords(std::move(text), "en_US", fewWords); });
}

TEST(CutWords, ASecondRunChangesNothing) {
    static constexpr std::u16string_view tokens[] = {
        u"veri", u"fi",   u"cation", u"verified", u"-",     u"-\n",    u"-\n  ",
        u"\n",   u" ",    u" ",      u"well",     u"known", u"mother", u"in",
        u"law",  u"and",  u"\u00AD", u"X",        u"2",     u"\uFB01", u"fl",
        u"ags",  u"\r\n", u".",      u"\f",       u"the",   u"12",     u"- "};
    reference::Random random(11);
    for (int round = 0; round < 5'000; ++round) {
        const std::u16string text = random.text(tokens);
        for (const auto &find : {FindDictionary(fewWords), FindDictionary(noWords)}) {
            const auto run = [&](std::u16string value) {
                return removeFootnoteMarks(
                    rejoinWords(removePageLines(std::move(value)), "en_US", find));
            };
            const std::u16string once = run(text);
            ASSERT_EQ(reference::escaped(run(once)), reference::escaped(once))
                << reference::escaped(text);
        }
    }
}

TEST(TextLanguage, IsToldByTheCommonestWords) {
    EXPECT_EQ(languageOf(u"Der Hund und die Katze sind nicht in dem Haus.", "en"), "de");
    EXPECT_EQ(languageOf(u"The dog and the cat are not in the house.", "de"), "en");
    EXPECT_EQ(languageOf(u"Кошка и собака не в доме, но это не для всех.", "en"), "ru");
    EXPECT_EQ(languageOf(u"xyzzy plugh og", "en"), "en");
}

// Pages with a title, a chapter and a number.
std::u16string pages(std::initializer_list<std::u16string_view> texts) {
    std::u16string result;
    char16_t number = u'0';
    for (const std::u16string_view text : texts) {
        const std::u16string shown(1, ++number);
        result += u"Title\nChapter " + shown + u"\n\n";
        result.append(text).append(u"\n\n- ").append(shown).append(u" -\n\f");
    }
    return result;
}

TEST(Pages, LoseWhatTheyShare) {
    expectRows(
        {
            {"titles and numbers", pages({u"One\ntwo.", u"Three\nfour", u"five\nsix."}),
             u"\nOne\ntwo.\n\n\nThree\nfour\nfive\nsix.\n\n"},
            {"numbers alone, and a sentence that goes on", u"one two,\n\n7\n\fthree\nfour.\n\n8\n",
             u"one two,\nthree\nfour.\n\n"},
            {"left and right pages", u"L\na.\n\fR\nb.\n\fL\nc.\n\fR\nd.\n\fL\ne.\n\fR\nf.",
             u"a.\nb.\nc.\nd.\ne.\nf."},
            {"two pages may begin alike", u"A\nb\n\fA\nc", u"A\nb\nA\nc"},
            {"empty pages", u"a\f\f \n\fB\n\f\f", u"a\n \nB\n"},
            {"no pages", u"1\nA\nA\nA\n2", u"1\nA\nA\nA\n2"},
        },
        removePageLines);
}

TEST(Footnotes, AreDigitsThatGoUp) {
    expectRows(
        {
            {"behind words and sentences", u"A theory4 is proved.5 Some claim6 so.",
             u"A theory is proved. Some claim so."},
            {"two may be anything", u"A theory4 is proved.5 So.", u"A theory4 is proved.5 So."},
            {"names", u"item1, item2, item3, utf8", u"item1, item2, item3, utf8"},
            {"numbers", u"version 1.2 of 3, in 4.5 or 5.6", u"version 1.2 of 3, in 4.5 or 5.6"},
            {"chapters begin anew", u"some1 word2 here3 this1 time2 again3",
             u"some word here this time again"},
        },
        removeFootnoteMarks);
}

} // namespace
} // namespace nerlo::engine

#include "engine/StructureGuard.h"
#include "engine/Operations.h"
#include "tests/engine/Rows.h"

namespace nerlo::engine {
namespace {

using storage::PropertyDictionary;

std::u16string clean(const std::u16string &text, const PropertyDictionary &settings) {
    CleaningOptions options;
    options.setAllBools(settings);
    options.udProtectStructure = true;
    return runPipeline(text, {options, "en_US"});
}

const PropertyDictionary spacesAndBreaks{{"udChangeMultipleSpacesToSingleSpace", 1},
                                         {"udRemoveSpaceBeforeAfterReturn", 1},
                                         {"udChangeWrongInsertedReturnsTo", 1},
                                         {"udChangeWrongInsertedReturnsOption", 1},
                                         {"udRemoveSpacesBeforeAndAfterText", 1}};

TEST(StructureGuard, TidiesProseAndLeavesStructure) {
    expectRows(
        {{"prose", u"  One   two \n three  \n", u"One two\nthree"},
         {"code in a fence", u"Do  this:\n\n```\na   =  b \n```\n",
          u"Do this:\n\n```\na   =  b \n```"},
         {"indented code", u"Do  this:\n\n    a   =  b\n\nEnd  .",
          u"Do this:\n\n    a   =  b\n\nEnd ."},
         {"the text begins with code", u"\n    a   b\n\nwords  too", u"    a   b\n\nwords too"},
         {"a list and its indents", u"-   on e\n-   two\n    -   in side\n",
          u"-   on e\n-   two\n    -   in side"},
         {"an item of two lines", u"* one  a \n  goes  on\n* two", u"* one a\n  goes on\n* two"},
         {"a quotation", u"> one   a\n> b > c\n", u"> one a\n> b > c"},
         {"keys and values", u"a  b\nc:\n  d:\n    e: f  g\n - h",
          u"a b\nc:\n  d:\n    e: f  g\n - h"},
         {"code and addresses in prose",
          u"See  `a  b`, <a  b=\"c\">, https://a.org/b__c  and  me@a.org .",
          u"See `a  b`, <a  b=\"c\">, https://a.org/b__c and me@a.org ."},
         {"a break behind an address", u"https://a.org  \nb  c", u"https://a.org  \nb c"},
         {"signs of its own", u"a  \u16F9  b\n\u16F8 c `\u16F8\u16F9`",
          u"a \u16F9 b\n\u16F8 c `\u16F8\u16F9`"}},
        [](const std::u16string &text) { return clean(text, spacesAndBreaks); });
}

TEST(StructureGuard, LeavesWhatIsLaidOutOrWasCut) {
    for (const char16_t *const text :
         {u"2025-03-01T10:12:44 a  b\n[22.1.25, 9:04:11] c  d\nJan  2 10:00 e  f",
          u"Total      1\nTip   2\n\n| a  b\n\na   # b", u"a: b\na : $(c)  d\n\nA=b  c",
          u"a\n\n  [ B  C ]\n  * d\n\n -- E <e@f>  Sun", u"===\n      a  b",
          u"    1 a\nc\n    2 b\n c\n    3", u"one  \ntwo \\\nthree", u"#1  0x1\n[  1.25] d  e",
          u"Jane Doe\n12 Long Street\nLondon",
          u"> The quick brown fox jumps over the lazy dog and\n> sleeps.\n\nNext",
          u"Somebody wrote these words and a\nnarrow window cut them wherever i\nts last column "
          u"came, so that nobo\ndy could tell afterwards where an\ny blank might still belong, nor "
          u"w\nhether some other letters were lo\nst together with them."}) {
        EXPECT_EQ(clean(text, spacesAndBreaks), text);
    }
}

TEST(StructureGuard, JoinsOnlyWhatWasWrapped) {
    expectRows(
        {{"a paragraph",
          u"The quick brown fox jumps over the lazy dog and\nthen it sleeps under the old oak tree "
          u"until morn-\ning comes. It was a long day for all of the\ndogs.\n\nNext",
          u"The quick brown fox jumps over the lazy dog and then it sleeps under the old oak tree "
          u"until morning comes. It was a long day for all of the dogs.\n\nNext"},
         {"a compound", u"The quick brown fox jumps over the state-\nof-the-art fence.",
          u"The quick brown fox jumps over the state-of-the-art fence."}},
        [](const std::u16string &text) { return clean(text, spacesAndBreaks); });
    auto reply = spacesAndBreaks;
    reply.set("udRemoveReplyQuotes", 1);
    EXPECT_EQ(
        clean(u"> The quick brown fox jumps over the lazy dog and\n> sleeps until morning comes "
              u"and it is time.\n>> The quick",
              reply),
        u"The quick brown fox jumps over the lazy dog and sleeps until morning comes and it is "
        u"time.\nThe quick");
}

TEST(StructureGuard, MarksGoByTheirRulesOnly) {
    expectRows(
        {{"a reply", u"> a > b\n>> c\nnew", u"a > b\nc\nnew"},
         {"a table", u"> a\n>\n> b | c\n> d | e\n>\n> f", u"a\n\n> b | c\n> d | e\n>\nf"},
         {"two blanks in words", u"> Oh:  it is so  as we do\n> as it is  be we  go",
          u"Oh:  it is so  as we do\nas it is  be we  go"},
         {"words in columns", u"> To:  us\n>\n> it is  so as  we do\n> an ox  is a cow  to me",
          u"> To:  us\n>\n> it is  so as  we do\n> an ox  is a cow  to me"},
         {"bullets", u"\u2022 a \u2022 b\n  \u25E6 c\n- d", u"a \u2022 b\n  c\n- d"}},
        [](const std::u16string &text) {
            return clean(text, {{"udRemoveReplyQuotes", 1}, {"udRemoveBullets", 1}});
        });
}

TEST(StructureGuard, ApostrophesAreNoQuotes) {
    EXPECT_EQ(clean(u"\u2018Don\u2019t\u2019, he\u2019d said", {{"udChangeQuotes", 1}}),
              u"\u201CDon\u2019t\u201D, he\u2019d said");
}

TEST(StructureGuard, CharactersAndWordsOfCodeStay) {
    expectRows({{"characters", u"It\u2019s so\u2026\n\n    it\u2019s\u2026\n\n# It\u2019s",
                 u"It's so...\n\n    it\u2019s\u2026\n\n# It\u2019s"},
                {"behind code in the same line", u"`\u2026` is\u2026", u"`\u2026` is..."},
                {"words", u"A transfor-\nmation, as any transformation\n\n```\na transfor-\nmation",
                 u"A transformation,\nas any transformation\n\n```\na transfor-\nmation"}},
               [](const std::u16string &text) {
                   return clean(text, {{"udCleanCharacters", 1},
                                       {"udCleanCharactersPlainMarks", 1},
                                       {"udRejoinWords", 1}});
               });
    EXPECT_EQ(clean(u"# A **b**\n\n```\n a  b\n```\n\nc  d",
                    {{"udCleanCharacters", 1},
                     {"udCleanCharactersMarkdown", 1},
                     {"udChangeMultipleSpacesToSingleSpace", 1}}),
              u"A b\n\n a  b\n\nc d")
        << "what marks of Markdown tell is still known when they go";
}

TEST(StructureGuard, HoldsForSingleOperationsToo) {
    CleaningOptions options;
    options.udProtectStructure = true;
    EXPECT_EQ(runOperation(16, u"a  b\n\n    c  d", {options, "en_US"}), u"a b\n\n    c  d");
    EXPECT_EQ(runOperation(5, u" a \n\n    c  d\n", {options, "en_US"}), u"a \n\n    c  d");
    EXPECT_EQ(runOperation(23, u"- b\n- a", {options, "en_US"}), u"- a\n- b") << "sees the whole";
}

} // namespace
} // namespace nerlo::engine

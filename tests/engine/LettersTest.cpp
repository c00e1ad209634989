// Letter case and quotation marks.
#include "engine/CaseConversion.h"
#include "engine/QuoteLanguages.h"
#include "engine/Quotes.h"
#include "tests/engine/Rows.h"

namespace nerlo::engine {
namespace {

TEST(CaseConversion, FollowsTheLocale) {
    EXPECT_EQ(changeToCapitalized(u"mcDONALD iPhone it's", "en_US"), u"Mcdonald Iphone It's");
    EXPECT_EQ(changeToCapitalized(u"ijs", "nl_NL"), u"IJs");
    EXPECT_EQ(changeToUppercase(u"stra\u00DFe i", "de_DE"), u"STRASSE I");
    EXPECT_EQ(changeToUppercase(u"i", "tr_TR"), u"\u0130");
    EXPECT_EQ(changeToLowercase(u"\u039F\u0394\u039F\u03A3 \u03A3", "el_GR"),
              u"\u03BF\u03B4\u03BF\u03C2 \u03C3");
    EXPECT_EQ(changeToLowercase(u"I", "tr_TR"), u"\u0131");
    EXPECT_EQ(changeToLowercase(u"I", ""), u"i");
    EXPECT_EQ(changeFirstLetterToCapitalized(u"\u00DFa", "de_DE"), u"SSa");
    EXPECT_EQ(changeFirstLetterToCapitalized(u"", "de_DE"), u"");
}

TEST(CaseConversion, CapitalizesSentences) {
    expectRows(
        {{"two sentences", u"hello. world", u"Hello. World"},
         {"three dots", u"end... next", u"End... Next"},
         {"an ellipsis without a space", u"end\u2026next", u"End\u2026next"},
         {"an ellipsis hides full stops in the same sentence", u"a\u2026 b. c", u"A\u2026 B. c"},
         {"a lone separator at the end", u"done. ", u"Done. "},
         {"a quote stays in front of its small letter", u"\"yes.", u"\"yes."},
         {"other letters are left", u"mcDonald", u"McDonald"},
         {"outside the basic plane nothing changes", u"\U00010428\U00010428",
          u"\U00010428\U00010428"},
         {"a letter that grows", u"\u00DFa. \u00DFb", u"SSa. SSb"}},
        [](const std::u16string &text) {
            return changeToCapitalizedFirstWordOfSentence(text, "en_US");
        });
}

TEST(Quotes, ConvertsSingleToDouble) {
    const auto from = [](std::int64_t single, std::int64_t twofold, bool all) {
        return [=](const std::u16string &text) {
            return replaceSingleQuotesToDoubleQuotes(text, single, twofold, all);
        };
    };
    expectRows({{"straight marks, the apostrophe included", u"'Hello,' she said. It's",
                 u"\"Hello,\" she said. It\"s"}},
               from(9, 8, false));
    expectRows({{"a pair", u"\u2018word\u2019", u"\u201Cword\u201D"},
                {"after a space, and inside a word", u"x \u2018y\u2019 x\u2018y",
                 u"x \u201Cy\u201D x\u201Cy"},
                {"after an entity in any case", u"&NBSP;\u2018a", u"&NBSP;\u201Ca"},
                {"other styles stay", u"'a'", u"'a'"}},
               from(0, 0, false));
    expectRows(
        {{"straight to typographic", u"'a' ('b') --'c' &mdash;'d'",
          u"\u201Ca\u201D (\u201Db\u201D) --\u201Cc\u201D &mdash;\u201Cd\u201D"},
         {"a mark between two others stays for the last step", u"x'''a", u"x\u201D\u201C\u201Da"},
         {"a mark at the start, before punctuation, closes", u"'''a", u"\u201D\u201D\u201Da"}},
        from(9, 0, false));
    expectRows({{"every style at once", u"'a' \u2018b\u2019 \u2039 c \u203A \u300Ed\u300F",
                 u"\u201Ca\u201D \u201Cb\u201D \u201Cc\u201D \u201Cd\u201D"}},
               from(9, 0, true));
}

TEST(Quotes, ConvertsDoubleToSingleAndRemovesMarks) {
    EXPECT_EQ(replaceDoubleQuotesToSingleQuotes(u"\u00AB a \u00BB", 0, 0, true), u"\u2018a\u2019");
    EXPECT_EQ(replaceDoubleQuotesToSingleQuotes(u"\"a\"", 9, 8, false), u"'a'");
    EXPECT_EQ(removeSingleQuotes(u"\u2039 a \u203A", true, 0), u" a ");
    EXPECT_EQ(removeSingleQuotes(u"\u2039 a \u203A", false, 5), u"a");
    EXPECT_EQ(removeSingleQuotes(u"'a'", true, 99), u"a")
        << "all styles: the index is not looked at";
    EXPECT_EQ(removeDoubleQuotes(u"\u00ABa\u00BB \"b\" \u300Cc\u300D 'd'", true, 0), u"a b c 'd'");
}

TEST(Quotes, HasDefaultsByLanguage) {
    const struct {
        const char *language;
        std::int64_t single;
        std::int64_t twofold;
    } rows[] = {{"fr", 5, 5},      {"fr-FR", 0, 0}, {"nb", 1, 4}, {"it", 0, 4},
                {"zh-Hant", 7, 7}, {"uk", 2, 2},    {"FR", 0, 0}, {"", 0, 0}};
    nrDefaultQuotesLanguage defaults;
    for (const auto &row : rows) {
        defaults.setDefaultQuotesForLanguage(row.language);
        EXPECT_EQ(defaults.getDefaultQuoteSingle(), row.single) << row.language;
        EXPECT_EQ(defaults.getDefaultQuoteDouble(), row.twofold) << row.language;
    }
}

} // namespace
} // namespace nerlo::engine

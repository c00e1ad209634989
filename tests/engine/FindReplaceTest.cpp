#include "engine/FindReplace.h"
#include "tests/engine/Rows.h"

#include <algorithm>

namespace nerlo::engine {
namespace {

using storage::PropertyArray;
using storage::PropertyDictionary;
using storage::PropertyValue;

PropertyValue rule(const char16_t *find, const char16_t *replace) {
    return PropertyDictionary{{"checkbox", true}, {"find", find}, {"replace", replace}};
}

std::u16string apply(PropertyArray rules, const std::u16string &text) {
    CleaningOptions options;
    options.udFindAndReplaceItemsProfile.emplace(std::move(rules));
    return replaceStringInFindReplace(text, options);
}

TEST(FindReplace, ARulesKindIsToldByTheBeginningOfItsReplacement) {
    const struct {
        std::u16string_view stored;
        RuleKind kind;
        std::u16string_view argument;
    } rows[] = {
        {u"x", RuleKind::text, u"x"},
        {u"x{delete}", RuleKind::text, u"x{delete}"},
        {u"!x", RuleKind::text, u"!x"},
        {u"!!{delete}", RuleKind::text, u"!!{delete}"},
        {u"{delete}", RuleKind::replaceMatches, u""},
        {u"{delete}{search}$1", RuleKind::replaceMatches, u"{search}$1"},
        {u"{search}, ", RuleKind::keepMatches, u", "},
        {u"!{search}", RuleKind::keepMatchesUntested, u""},
        {u"!{delete}!", RuleKind::replaceMatchesUntested, u"!"},
    };
    for (const auto &row : rows) {
        const RuleReplacement read = readReplacement(row.stored);
        EXPECT_EQ(read, (RuleReplacement{row.kind, std::u16string(row.argument)}));
        EXPECT_EQ(writeReplacement(read), row.stored);
    }
    EXPECT_EQ(ruleTrouble(u"a(b", u"x"), std::nullopt);
    EXPECT_EQ(ruleTrouble(u"", u"{delete}"), std::nullopt);
    EXPECT_EQ(ruleTrouble(u"ab)c", u"{delete}"), (text::PatternPlace{1, 3}));
    EXPECT_EQ(ruleGroups(u"(a)(?:b)(?<n>c)", u"{delete}"), 2U);
    EXPECT_EQ(ruleGroups(u"(a)", u"{delete"), 0U);
}

TEST(FindReplace, AppliesARule) {
    struct Case {
        const char *shows;
        const char16_t *find;
        const char16_t *replace;
        std::u16string text;
        std::u16string expected;
    };
    const Case cases[] = {
        {"literal, letter case counts", u"colour", u"color", u"Colour colour", u"Colour color"},
        {"not a pattern without a token", u".", u"x", u"a.b", u"axb"},
        {"a token later on is plain text", u"a", u"x{delete}", u"ab", u"x{delete}b"},
        {"an empty find occurs nowhere", u"", u"x", u"ab", u"ab"},
        {"matches with a separator, after the last too", u"[0-9]+", u"{search}, ", u"a1b22c",
         u"1, 22, "},
        {"a line each", u"[0-9]+", u"{search}", u"a1b22c", u"1\n22\n"},
        {"no match leaves the text", u"[0-9]+", u"{search}", u"abc", u"abc"},
        {"unless told not to look first", u"[0-9]+", u"!{search}", u"abc", u""},
        {"groups in the template", u"(\\w+)=(\\w+)", u"{delete}$2 is $1", u"key=value",
         u"value is key"},
        {"the end of the text, not of every line", u" +$", u"{delete}", u"a \nb \n", u"a \nb\n"},
        {"letter case counts in patterns", u"A", u"{delete}", u"aA", u"a"},
        {"a pattern that does not compile is skipped", u"(", u"{delete}x", u"(a", u"(a"},
        {"in search mode too", u"(", u"{search}", u"(a", u"(a"},
        {"but untested it finds nothing", u"(", u"!{search}", u"(a", u""},
        {"a \"$\" that names no group is one", u"(?<n>a)(b)?", u"{delete}$ US$5 ${x} ${n $3 $",
         u"a", u"$ US$5 ${x} ${n $3 $"},
        {"groups by name and number", u"(?<n>a)(b)?", u"{delete}${n}$10$2$0", u"ab", u"aa0bab"},
        {"an escape in the template", u"a", u"{delete}\\$1\\\\", u"a", u"$1\\"},
        {"the empty text can match", u"x*", u"{search}-", u"", u"-"},
    };
    for (const Case &row : cases) {
        EXPECT_EQ(reference::escaped(apply({rule(row.find, row.replace)}, row.text)),
                  reference::escaped(row.expected))
            << row.shows;
    }
}

TEST(FindReplace, WalksTheListInOrder) {
    EXPECT_EQ(apply({rule(u"a", u"b"), rule(u"b", u"c")}, u"a"), u"c");
    EXPECT_EQ(apply({rule(u"b", u"c"), rule(u"a", u"b")}, u"a"), u"b");
    EXPECT_EQ(apply({rule(u"(", u"{delete}"), rule(u"a", u"b")}, u"a("), u"b(");
    EXPECT_EQ(apply({PropertyDictionary{{"checkbox", false}, {"find", u"a"}, {"replace", u"b"}},
                     PropertyDictionary{{"find", u"a"}, {"replace", u"b"}}, u"no rule", 7},
                    u"a"),
              u"a");
    CleaningOptions options;
    options.udFindAndReplaceItems = PropertyValue(PropertyArray{rule(u"a", u"shared")});
    options.udFindAndReplaceItemsProfile = PropertyValue(PropertyArray{rule(u"a", u"own")});
    EXPECT_EQ(replaceStringInFindReplace(u"a", options), u"own");
    options.udOnlyOneProfile = true;
    EXPECT_EQ(replaceStringInFindReplace(u"a", options), u"shared");
    options.udFindAndReplaceItems = PropertyValue(u"not a list");
    EXPECT_EQ(replaceStringInFindReplace(u"a", options), u"a");
}

TEST(CustomPattern, DeletesOrKeepsMatches) {
    EXPECT_EQ(insertYourPattern(u"a1b22c", u"[0-9]+", 0), u"abc");
    EXPECT_EQ(insertYourPattern(u"a1b22c", u"[0-9]+", 1), u"1\n22\n");
    EXPECT_EQ(insertYourPattern(u"a1b22c", u"[0-9]+", 2), u"abc");
    EXPECT_EQ(insertYourPattern(u"abc", u"[0-9]+", 1), u"");
    EXPECT_EQ(insertYourPattern(u"abc", u"(", 1), u"");
    EXPECT_EQ(insertYourPattern(u"abc", u"(", 0), u"abc");
    EXPECT_EQ(insertYourPattern(u"abc", u"", 0), u"abc");
    EXPECT_EQ(insertYourPattern(u"a\nB", u"^.$", 0), u"a\nB") << "anchors are those of the text";
}

// A user's pattern may be as bad as it likes: the text comes back as it was, and that is told.
TEST(CustomPattern, CannotHangOrCrash) {
    const std::u16string letters = std::u16string(40, u'a') + u'!';
    // With what the patterns need: a text without that is not searched at all.
    const std::u16string longer = u"x" + std::u16string(100'000, u'b');
    const std::u16string far(200'000, u'a');
    const std::u16string marks = std::u16string(200'000, u'\u0301') + u"!!x";
    struct Case {
        std::u16string_view pattern;
        std::int64_t mode;
        const std::u16string &text;
    };
    const Case cases[] = {
        {u"(a+)+$", 0, letters},
        {u"(?:.|\n|\\p{L})*x", 1, longer},
        {u"(?:[^x]*+y)?", 0, longer}, // from here on far looks that save no states
        {u"a(?=[\\s\\S]*+)", 1, far},
        {u"(?:(?=[\\s\\S]*+)a)*", 0, far},
        {u"(a*)b|(?:(a*)\\2)|\\p{N}", 1, far},
        {u"(?:.|..|\\p{L})*\\b!x", 0, marks},
    };
    for (const Case &row : cases) {
        CleaningReport report;
        EXPECT_TRUE(insertYourPattern(row.text, row.pattern, row.mode, &report) == row.text);
        EXPECT_EQ(report, CleaningReport{PatternFailure{}}) << reference::escaped(row.pattern);
    }
}

TEST(CustomPattern, WorksOnLongTextsWhereItIsSound) {
    std::u16string lines;
    while (lines.size() < 1'000'000) {
        lines += u"one line among many others, none of which is long\n";
    }
    EXPECT_EQ(insertYourPattern(lines + u"it was quoted here\n", u".*quoted.*", 1),
              u"it was quoted here\n");
    std::u16string one = lines;
    std::ranges::replace(one, u'\n', u' ');
    EXPECT_EQ(insertYourPattern(one, u".*quoted.*", 1), u"");
    EXPECT_EQ(insertYourPattern(lines, u"(?s).*quoted", 1), u"");
    EXPECT_EQ(insertYourPattern(lines, u"(?:.|\\n)*x", 1), u"");
    EXPECT_EQ(insertYourPattern(std::u16string(100'000, u'a') + u'!', u"(a+)+$", 1), u"");
    EXPECT_EQ(insertYourPattern(std::u16string(900'000, u'b'), u"(?:b|c)*", 0), u"");
    EXPECT_EQ(apply({rule(u"(b|c)*", u"{delete}$1")}, std::u16string(900'000, u'b')), u"b");
}

TEST(FindReplace, TellsWhichRulesCouldNotBeUsed) {
    using Why = PatternFailure::Why;
    const std::u16string text = std::u16string(40, u'a') + u'!';
    CleaningReport report;
    CleaningOptions options;
    options.udFindAndReplaceItemsProfile = PropertyValue(PropertyArray{
        rule(u"!", u"?"), rule(u"a\nb(", u"{delete}"), rule(u"(a+)+$", u"{search}"),
        PropertyDictionary{{"checkbox", false}, {"find", u"("}, {"replace", u"{delete}"}},
        rule(u"", u"{delete}"), rule(u"", u"{search}"), rule(u"(a+)+$", u"!{delete}x")});
    EXPECT_EQ(replaceStringInFindReplace(text, options, &report), std::u16string(40, u'a') + u'?');
    const CleaningReport expected{
        {2, Why::DoesNotCompile, {2, 2}}, {3, Why::GivenUp, {}}, {7, Why::GivenUp, {}}};
    EXPECT_EQ(report, expected);
    insertYourPattern(u"a", u"", 0, &report);
    EXPECT_EQ(report, expected) << "no pattern yet";
    insertYourPattern(u"a", u"", 1, &report);
    EXPECT_EQ(report.back(), (PatternFailure{0, Why::DoesNotCompile, {}})) << "loses the text";
}

} // namespace
} // namespace nerlo::engine

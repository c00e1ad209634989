// The quick ways to count words and find sentences against ICU's rules themselves.
#include "text/Segmentation.h"

#include "tests/reference/PlainEngine.h"
#include "tests/reference/RandomText.h"
#include "text/WordClasses.h"

#include <gtest/gtest.h>

#include <unicode/ubrk.h>

#include <map>
#include <vector>

namespace nerlo::text {
namespace {

// ICU's versions differ in their rules, so every unit is asked for, in all company that matters.
TEST(Words, AreCountedByTheRulesForEveryUnit) {
    constexpr std::u16string_view contexts[][2] = {
        {u"", u""},    {u"a", u"b"},   {u"1", u"2"},           {u"a", u"2"},
        {u"1", u"b"},  {u"a.", u"b"},  {u"1,", u"2"},          {u"a", u".b"},
        {u"1", u";2"}, {u"a ", u" b"}, {u"a'", u"'b"},         {u"(", u")"},
        {u" ", u"a"},  {u"a", u" "},   {u"a\u00B7", u"b"},     {u"\"", u"\""},
        {u"_", u"a"},  {u"a@", u"b"},  {u"\u05D0", u"\u05D0"}, {u"\u30AB", u"\u30AB"}};
    int failures = 0;
    for (std::uint32_t unit = 0; unit <= 0xFFFF && failures < 20; ++unit) {
        std::u16string text;
        for (const auto &[before, after] : contexts) {
            text.append(before).push_back(static_cast<char16_t>(unit));
            text.append(after).append(u" x \n");
        }
        const auto words = countWordSegments(text, "en_US");
        const auto expected = reference::count(text, "en_US").words;
        if (words == expected) {
            continue;
        }
        ++failures;
        for (const auto &[before, after] : contexts) {
            const std::u16string one =
                std::u16string(before) + static_cast<char16_t>(unit) + std::u16string(after);
            EXPECT_EQ(countWordSegments(one, "en_US"), reference::count(one, "en_US").words)
                << reference::escaped(one);
        }
    }
}

TEST(Words, AreCountedByTheRulesInLongTexts) {
    constexpr std::u16string_view tokens[] = {
        u"a",
        u"word",
        u"'",
        u".",
        u",",
        u";",
        u":",
        u"1",
        u"23",
        u" ",
        u"  ",
        u"\n",
        u"_",
        u"@",
        u"\u2019",
        u"\u00E9",
        u"\u0436",
        u"\u0301",
        u"\u65E5\u672C",
        u"\u0E01\u0E32\u0E23",
        u"\U0001F389",
        u"\u200D",
        u"-",
        u"plain words of a plain sentence with nothing in it ",
        u"\u00A0",
        u"\u05D0\"\u05D1",
        u"\u30AB\u30BF",
        u"\u3006"};
    reference::Random random(11);
    for (int round = 0; round < 20'000; ++round) {
        const std::u16string text = random.text(tokens);
        ASSERT_EQ(countWordSegments(text, "de_DE"), reference::count(text, "de_DE").words)
            << reference::escaped(text);
    }
}

// The shortcut holds for the root's rules; this finds locales that have others.
TEST(Words, HaveRulesOfTheirOwnInTheLocalesThatAreSaidTo) {
    const auto rulesOf = [](const char *locale) {
        UErrorCode status = U_ZERO_ERROR;
        UBreakIterator *iterator = ubrk_open(UBRK_WORD, locale, nullptr, 0, &status);
        std::vector<std::uint8_t> rules(
            static_cast<std::size_t>(ubrk_getBinaryRules(iterator, nullptr, 0, &status)));
        ubrk_getBinaryRules(iterator, rules.data(), static_cast<std::int32_t>(rules.size()),
                            &status);
        ubrk_close(iterator);
        EXPECT_TRUE(U_SUCCESS(status)) << locale;
        return rules;
    };
    const auto root = rulesOf("");
    for (std::int32_t i = 0; i < ubrk_countAvailable(); ++i) {
        const char *const locale = ubrk_getAvailable(i);
        if (hasRootWordRules(locale)) {
            EXPECT_EQ(rulesOf(locale), root) << locale;
        }
    }
}

} // namespace
} // namespace nerlo::text

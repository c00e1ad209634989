// The quick ways to count words and find sentences against ICU's rules themselves.
#include "text/Segmentation.h"

#include "tests/reference/PlainEngine.h"
#include "tests/reference/RandomText.h"
#include "text/SentenceRules.h"
#include "text/WordClasses.h"

#include <gtest/gtest.h>

#include <unicode/ubrk.h>
#include <unicode/utf16.h>

#include <map>
#include <vector>

namespace nerlo::text {
namespace {

// Our own rules are asked here whatever ICU there is, also where the program would not trust them.
// ICU's versions differ in theirs, so every unit is asked for, in all company that matters.
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
        const auto words = countWordSegments(text, "en_US", SegmentRules::Own);
        const auto expected = reference::count(text, "en_US").words;
        if (words == expected) {
            continue;
        }
        ++failures;
        for (const auto &[before, after] : contexts) {
            const std::u16string one =
                std::u16string(before) + static_cast<char16_t>(unit) + std::u16string(after);
            EXPECT_EQ(countWordSegments(one, "en_US", SegmentRules::Own),
                      reference::count(one, "en_US").words)
                << reference::escaped(one);
        }
    }
}

std::vector<std::size_t> sentenceEnds(const std::u16string &text) {
    std::vector<std::size_t> ends;
    forEachSentence(
        text, "en_US",
        [&](std::u16string_view sentence) {
            ends.push_back(
                static_cast<std::size_t>(sentence.data() + sentence.size() - text.data()));
        },
        SegmentRules::Own);
    return ends;
}

std::vector<std::size_t> sentenceEndsByICU(const std::u16string &text) {
    UErrorCode status = U_ZERO_ERROR;
    static UBreakIterator *iterator = ubrk_open(UBRK_SENTENCE, "en_US", nullptr, 0, &status);
    ubrk_setText(iterator, text.data(), static_cast<std::int32_t>(text.size()), &status);
    std::vector<std::size_t> ends;
    while (ubrk_next(iterator) != UBRK_DONE) {
        ends.push_back(static_cast<std::size_t>(ubrk_current(iterator)));
    }
    return ends;
}

// All short texts of one character of each class, and of all that are treated by themselves.
TEST(Sentences, EndByTheRulesInShortTexts) {
    constexpr std::u16string_view units = u"aA\u65E51.!,) \u0301\u2028\r\n#";
    std::vector<std::u16string> shorter{u""};
    for (int size = 1; size <= 5; ++size) {
        std::vector<std::u16string> texts;
        for (const auto &start : shorter) {
            for (const char16_t unit : units) {
                texts.push_back(start + unit);
                ASSERT_EQ(sentenceEnds(texts.back()), sentenceEndsByICU(texts.back()))
                    << reference::escaped(texts.back());
            }
        }
        shorter = std::move(texts);
    }
}

TEST(Sentences, EndByTheRulesForEveryCharacterAndInLongTexts) {
    std::u16string all;
    for (UChar32 character = 0; character <= 0x1FFFF; ++character) {
        for (const std::u16string_view context : {u"a", u". a", u".) A", u"! ", u"A", u"\n"}) {
            all.append(context);
            if (character > 0xFFFF) {
                all.push_back(static_cast<char16_t>(U16_LEAD(character)));
            }
            all.push_back(
                static_cast<char16_t>(character > 0xFFFF ? U16_TRAIL(character) : character));
        }
    }
    EXPECT_EQ(sentenceEnds(all), sentenceEndsByICU(all));
    reference::Random random(12);
    for (int round = 0; round < 20'000; ++round) {
        const std::u16string text = random.text(reference::plainTokens());
        ASSERT_EQ(sentenceEnds(text), sentenceEndsByICU(text)) << reference::escaped(text);
    }
}

// The shortcuts hold for the root's rules; this finds locales that have others.
TEST(Segmentation, FollowsOtherRulesInTheLocalesThatHaveThem) {
    const auto rulesOf = [](UBreakIteratorType kind, const char *locale) {
        UErrorCode status = U_ZERO_ERROR;
        UBreakIterator *iterator = ubrk_open(kind, locale, nullptr, 0, &status);
        std::vector<std::uint8_t> rules(
            static_cast<std::size_t>(ubrk_getBinaryRules(iterator, nullptr, 0, &status)));
        ubrk_getBinaryRules(iterator, rules.data(), static_cast<std::int32_t>(rules.size()),
                            &status);
        ubrk_close(iterator);
        EXPECT_TRUE(U_SUCCESS(status)) << locale;
        return rules;
    };
    const auto rootWords = rulesOf(UBRK_WORD, "");
    const auto rootSentences = rulesOf(UBRK_SENTENCE, "");
    for (std::int32_t i = 0; i < ubrk_countAvailable(); ++i) {
        const char *const locale = ubrk_getAvailable(i);
        if (hasRootWordRules(locale)) {
            EXPECT_EQ(rulesOf(UBRK_WORD, locale), rootWords) << locale;
        }
        if (hasRootSentenceRules(locale)) {
            EXPECT_EQ(rulesOf(UBRK_SENTENCE, locale), rootSentences) << locale;
        }
    }
    std::vector<std::u16string_view> sentences;
    const std::u16string greek = u"\u03B1; \u0391.";
    forEachSentence(greek, "el_GR", [&](auto sentence) { sentences.push_back(sentence); });
    EXPECT_EQ(sentences.size(), 2u) << "a Greek question mark";
    sentences.clear();
    const std::u16string text = u"One. Two, 3.5 a.b? Three";
    forEachSentence(
        text, "en_US", [&](auto sentence) { sentences.push_back(sentence); }, SegmentRules::Icu);
    EXPECT_EQ(sentences.size(), 3u) << "where our own rules are not trusted";
    EXPECT_EQ(countWordSegments(text, "en_US", SegmentRules::Icu), 5u);
}

} // namespace
} // namespace nerlo::text

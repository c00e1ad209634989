#include "engine/Trace.h"
#include "engine/CharacterCleaning.h"
#include "engine/FindReplace.h"
#include "tests/reference/RandomText.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace nerlo::engine {

namespace {

using reference::escaped;
using reference::Random;

std::u16string applied(std::u16string_view text, std::u16string_view after,
                       const std::vector<text::Change> &changes) {
    std::u16string result;
    std::size_t from = 0;
    for (const text::Change &change : changes) {
        EXPECT_GE(change.before.begin, from);
        result.append(text.substr(from, change.before.begin - from));
        EXPECT_EQ(result.size(), change.after.begin);
        result.append(after.substr(change.after.begin, change.after.end - change.after.begin));
        from = change.before.end;
    }
    return result.append(text.substr(from));
}

std::vector<text::Change> changesOf(const TraceStep &step) {
    std::vector<text::Change> changes;
    for (const TracedChange &place : step.places) {
        changes.push_back(place.change);
    }
    return changes;
}

std::string written(std::u16string_view before, std::u16string_view after) {
    const text::Difference difference = text::differenceOf(before, after, 100);
    std::string result;
    for (const text::Change &change : difference.changes) {
        result +=
            std::to_string(change.before.begin) + ":" +
            escaped(before.substr(change.before.begin, change.before.end - change.before.begin)) +
            ">" + escaped(after.substr(change.after.begin, change.after.end - change.after.begin)) +
            " ";
    }
    return result;
}

TEST(ADifference, IsWhatAPersonWouldMark) {
    const struct {
        std::u16string_view before, after;
        const char *changes;
    } rows[] = {
        {u"a  b   c", u"a b c", "2: > 4:  > "},
        {u"Hello you", u"HELLO YOU", "1:ello>ELLO 6:you>YOU "},
        {u"one two three four", u"onetwothreefour", "3: > 7: > 13: > "},
        {u"b\na\nc", u"a\nb\nc", "0:b\\u000A> 4:>b\\u000A "},
        {u"a\na\nb\na\n", u"a\nb\n", "2:a\\u000A> 6:a\\u000A> "},
        {u"b\na\n", u"b\na", "3:\\u000A> "},
        // A pair of surrogates goes as a whole, also where it shares a half with the other.
        {u"x\U0001F389y", u"x\U0001F388y", "1:\\uD83C\\uDF89>\\uD83C\\uDF88 "},
        {u"", u"a", "0:>a "},
        {u"a", u"", "0:a> "},
        {u"a", u"a", ""},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(written(row.before, row.after), row.changes) << escaped(row.before);
    }
}

TEST(ADifference, LeadsFromOneTextToTheOther) {
    Random random(21);
    std::u16string last;
    for (int round = 0; round < 5000; ++round) {
        const std::u16string text = random.text(reference::plainTokens());
        const text::Difference difference = text::differenceOf(last, text, SIZE_MAX);
        ASSERT_EQ(difference.count, difference.changes.size());
        ASSERT_EQ(escaped(applied(last, text, difference.changes)), escaped(text));
        ASSERT_EQ(difference.count == 0, last == text);
        ASSERT_EQ(text::differenceOf(last, text, 2).count, difference.count);
        last = text;
    }
}

storage::PropertyArray someRules() {
    storage::PropertyArray rules;
    for (const auto &[find, replace] :
         {std::pair(u"a", u"{delete}<$0>"), std::pair(u"o", u"aa"), std::pair(u"zzz", u"")}) {
        rules.emplace_back(
            storage::PropertyDictionary{{"checkbox", true}, {"find", find}, {"replace", replace}});
    }
    return rules;
}

// A step that is said to change nothing gives what it was given, and the others do not.
void expectNoOtherStepToChange(const Trace &trace, std::u16string text,
                               const CleaningContext &context) {
    const std::vector<NumberedRule> rules = activeRules(context.options);
    for (const TraceStep &step : trace.steps) {
        const std::u16string before = text;
        if (!step.characters.empty()) {
            text = std::ranges::find(characterClasses(), step.characters, &CharacterClass::name)
                       ->cleaned(std::move(text));
        } else if (step.rule == 0) {
            text = step.operation->run(std::move(text), context);
        } else {
            text = applyRule(std::move(text),
                             *std::ranges::find(rules, step.rule, &NumberedRule::number));
        }
        ASSERT_EQ(step.changes == 0, text == before) << step.operation->name << step.rule;
    }
}

// Ten times 10,000 random texts and options, so that each part stays short.
class ATraceOfRandomTexts : public testing::TestWithParam<std::uint64_t> {};
INSTANTIATE_TEST_SUITE_P(Seeds, ATraceOfRandomTexts, testing::Range<std::uint64_t>(22, 32));

TEST_P(ATraceOfRandomTexts, EndsWithTheCleanTextAndCountsOnlyWhatChanged) {
    Random random(GetParam());
    for (int round = 0; round < 10000; ++round) {
        CleaningOptions options = random.options();
        if (random.oneIn(4)) {
            options.udFindReplaceBool = true;
            options.udFindAndReplaceItemsProfile = someRules();
            options.udOnlyOneProfile = false;
        }
        const CleaningContext context{options, random.locale()};
        const std::u16string source =
            random.text(random.oneIn(3) ? reference::quoteTokens() : reference::plainTokens());
        const Trace trace = tracePipeline(source, context, SIZE_MAX);
        ASSERT_EQ(escaped(trace.text), escaped(runPipeline(source, context)));

        // Each step's changes lead to the next text, and all together to the last.
        std::vector<text::Change> all;
        for (const TraceStep &step : trace.steps) {
            ASSERT_EQ(step.changes, step.places.size());
            const std::vector<text::Change> changes = changesOf(step);
            all = text::composed(all, changes);
            for (const TracedChange &place : step.places) {
                ASSERT_LE(place.source.begin, place.source.end);
                ASSERT_LE(place.source.end, source.size());
                ASSERT_LE(place.result.begin, place.result.end);
                ASSERT_LE(place.result.end, trace.text.size());
            }
        }
        ASSERT_EQ(escaped(applied(source, trace.text, all)), escaped(trace.text));

        // Where structure is protected, no step runs alone.
        if (!options.udProtectStructure) {
            expectNoOtherStepToChange(trace, source, context);
        }

        // A shorter list has the same beginnings, as far as it goes, and the same counts.
        const Trace brief = tracePipeline(source, context, random.below(4));
        for (std::size_t step = 0; step < trace.steps.size(); ++step) {
            const TraceStep &whole = trace.steps[step];
            const TraceStep &part = brief.steps[step];
            ASSERT_EQ(part.changes, whole.changes);
            ASSERT_LE(part.places.size(), 3U);
            for (std::size_t at = 0; at < part.places.size(); ++at) {
                ASSERT_EQ(part.places[at].change, whole.places[at].change);
                ASSERT_EQ(part.places[at].source, whole.places[at].source);
                ASSERT_EQ(part.places[at].result, whole.places[at].result);
            }
        }
    }
}

TEST(ATrace, FindsItsPlacesInTheFirstAndTheLastText) {
    CleaningOptions options;
    options.udRemoveBullets = true;
    options.udChangeMultipleSpacesToSingleSpace = true;
    options.udFindReplaceBool = true;
    options.udFindAndReplaceItemsProfile = someRules();
    const std::u16string source = u"\u2022 o  b";
    const Trace trace = tracePipeline(source, {.options = options, .locale = "en_US"});
    EXPECT_EQ(escaped(trace.text), "aa b");
    ASSERT_EQ(trace.steps.size(), 5U);
    const auto told = [&](std::size_t step) {
        const TraceStep &one = trace.steps[step];
        std::string text = std::string(one.operation->name) + " " + std::to_string(one.rule) + " " +
                           std::to_string(one.changes);
        for (const TracedChange &place : one.places) {
            text +=
                " " +
                escaped(source.substr(place.source.begin, place.source.end - place.source.begin)) +
                "@" + std::to_string(place.source.begin) + ">" +
                escaped(
                    trace.text.substr(place.result.begin, place.result.end - place.result.begin)) +
                "@" + std::to_string(place.result.begin);
        }
        return text;
    };
    EXPECT_EQ(told(0), "remove-bullets 0 1 \\u2022 @0>@0");
    EXPECT_EQ(told(1), "find-replace-list 1 0");
    EXPECT_EQ(told(2), "find-replace-list 2 1 o@2>aa@0");
    EXPECT_EQ(told(3), "find-replace-list 3 0");
    EXPECT_EQ(told(4), "collapse-spaces 0 1  @4>@3");
}

TEST(Trace, TakesClassesOfCharactersOneByOne) {
    CleaningOptions options;
    options.udCleanCharacters = true;
    std::string told;
    for (const TraceStep &step :
         tracePipeline(u"a\u200Bb\u00ADc\u00A0d\u00ADe", {.options = options, .locale = "en_US"})
             .steps) {
        if (step.changes > 0) {
            told.append(step.characters).append(" " + std::to_string(step.changes) + " ");
        }
    }
    EXPECT_EQ(told, "soft-hyphens 2 invisible 1 blanks 1 ");
}

TEST(Trace, ShowsTheTextsOfAStepAndEndsWhenTold) {
    CleaningOptions options;
    options.udCleanCharacters = true;
    options.udChangeMultipleSpacesToSingleSpace = true;
    options.udAddSuffix = true;
    options.udSuffixTextField = u"!";
    std::stop_source stop;
    std::string told;
    const auto watch = [&](const ShownStep &shown) {
        told += escaped(shown.before) + ">" + escaped(shown.after) + " " +
                std::to_string(shown.difference.count) + "\n";
        if (shown.step.operation->name == "collapse-spaces") {
            stop.request_stop();
        }
    };
    for (const bool guarded : {false, true}) {
        options.udProtectStructure = guarded;
        told.clear();
        stop = std::stop_source();
        tracePipeline(u"So\u00ADme  words\u200B", {.options = options, .locale = "en_US"}, 1,
                      {.characterClasses = false, .stop = stop.get_token(), .watch = watch});
        EXPECT_EQ(told, "So\\u00ADme  words\\u200B>Some  words 2\nSome  words>Some words 1\n");
    }
}

} // namespace

} // namespace nerlo::engine

#include "settings/RuleList.h"
#include "settings/FindReplaceList.h"
#include "settings/RuleTrials.h"
#include "tests/reference/RandomText.h"

#include <gtest/gtest.h>

namespace nerlo::settings {

namespace {

using reference::escaped;
using storage::PropertyArray;
using storage::PropertyDictionary;

TEST(AListOfRules, IsReadBackAsItWasWritten) {
    reference::Random random(41);
    const auto text = [&] {
        return random.oneIn(4) ? std::u16string(u"\" \\ \u00A0")
                               : random.text(reference::plainTokens());
    };
    for (int round = 0; round < 2000; ++round) {
        RuleList list{text(), {}};
        for (std::size_t rules = random.below(4); rules > 0; --rules) {
            list.rules.push_back({random.oneIn(2), text(), text(), {}});
            if (random.oneIn(2)) {
                list.rules.back().samples = {{text(), text()}, {u"", u""}};
            }
        }
        const std::string written = writeRuleList(list);
        const ParsedRuleList read = parseRuleList(written);
        ASSERT_TRUE(read.list) << read.error << "\n" << written;
        ASSERT_TRUE(*read.list == list) << written;
        // Nothing in it hides, and a line stays a line.
        for (const char byte : written) {
            ASSERT_TRUE(byte == '\n' || static_cast<unsigned char>(byte) >= 0x20) << written;
        }
    }
}

TEST(AListOfRules, IsWrittenForPeople) {
    const RuleList list{
        u"Dates",
        {{true, u"(\\d)\\.", u"{delete}$1", {{u"1. ", u"1 "}}}, {false, u" \"x\"", u"", {}}}};
    EXPECT_EQ(writeRuleList(list), "nerlo-rules 1\n"
                                   "title Dates\n"
                                   "\n"
                                   "rule\n"
                                   "find (\\d)\\.\n"
                                   "replace {delete}$1\n"
                                   "before \"1. \"\n"
                                   "after \"1 \"\n"
                                   "\n"
                                   "rule off\n"
                                   "find \" \\\"x\\\"\"\n"
                                   "replace\n");
}

TEST(AListOfRules, SaysWhatIsWrongAndWhere) {
    const std::string head = "nerlo-rules 1\n";
    const struct {
        std::string text;
        const char *error; // empty: it is read
    } rows[] = {
        {head, ""},
        {"\xEF\xBB\xBFnerlo-rules 1\r\n# note\r\n\r\nrule on\r\nfind a\r\n", ""},
        {head + "rule\nfind \"\\u{1F389}\\u{A0}\"", ""},
        {"", "line 0: no \"nerlo-rules 1\""},
        {"title x", "line 1: no \"nerlo-rules 1\""},
        {"nerlo-rules 2", "line 1: only version 1"},
        {head + "find a", "line 2: neither"},
        {head + "rule\nrule\n", "line 3: the rule before"},
        {head + "rule\n", "line 2: the rule before"},
        {head + "rule maybe\n", "line 2: a rule is on or off"},
        {head + "rule\nfind a\nseek b\n", "line 4: unknown word"},
        {head + "rule\nfind a\ntitle b\n", "line 4: the title"},
        {head + "rule\nfind a\nbefore b\nfind c\n", "line 5: a \"before\""},
        {head + "rule\nfind a\nbefore b\n", "line 4: a \"before\""},
        {head + "rule\nfind a\nafter b\n", "line 4: an \"after\""},
        {head + "rule\nfind \"a\n", "line 3: the quotes"},
        {head + "rule\nfind \"a\" b\n", "line 3: the quotes"},
        {head + "rule\nfind \"\\x\"\n", "line 3: the quotes"},
        {head + "rule\nfind \"\\u{110000}\"\n", "line 3: the quotes"},
        {head + "rule\nfind \"\\u{}\"\n", "line 3: the quotes"},
        {head + "rule\nfind \"\\u{12\"\n", "line 3: the quotes"},
        {head + "rule\nfind \"\\", "line 3: the quotes"},
        {head + "\xFF", "invalid UTF-8 at byte 14"},
        {std::string(mostRuleListBytes + 1, '\n'), "too long"},
    };
    for (const auto &row : rows) {
        const ParsedRuleList read = parseRuleList(row.text);
        EXPECT_EQ(read.list.has_value(), *row.error == '\0') << row.text.substr(0, 99);
        EXPECT_TRUE(read.error.starts_with(row.error)) << read.error;
    }
}

TEST(ASample, HoldsWhereTheRuleDoesWhatItSays) {
    const struct {
        TravelRule rule;
        RuleSample sample;
        bool holds, failure;
    } rows[] = {
        {{true, u"a", u"b", {}}, {u"aA", u"bA"}, true, false},
        {{false, u"a", u"b", {}}, {u"a", u"b"}, true, false},
        {{true, u"[0-9]+", u"{search}, ", {}}, {u"a1b22", u"1, 22, "}, true, false},
        {{true, u"a", u"b", {}}, {u"a", u"a"}, false, false},
        {{true, u"(", u"{delete}", {}}, {u"a", u"a"}, false, true},
        {{true, u"(", u"b", {}}, {u"(", u"b"}, true, false},
    };
    for (const auto &row : rows) {
        const SampleResult result = trySample(row.rule, row.sample);
        EXPECT_EQ(result.holds, row.holds) << escaped(result.given);
        EXPECT_EQ(result.failure.has_value(), row.failure);
    }
}

PropertyDictionary stored(std::u16string find, std::u16string replace) {
    return {{"checkbox", 0}, {"find", std::move(find)}, {"replace", std::move(replace)}};
}

TEST(AnImport, AddsAndChangesAndLeaves) {
    using Effect = ImportedRule::Effect;
    const PropertyArray mine{stored(u"a", u"1"), stored(u"b", u"2"), stored(u"b", u"3"), u"odd"};
    const RuleList list{u"",
                        {{true, u"b", u"4", {}},
                         {true, u"b", u"2", {}},
                         {true, u"c", u"5", {}},
                         {true, u"a", u"1", {}},
                         {true, u"a", u"9", {}}}};
    const std::vector<ImportedRule> expected{{Effect::changed, 2},
                                             {Effect::left, 1},
                                             {Effect::added, 0},
                                             {Effect::left, 0},
                                             {Effect::added, 0}};
    EXPECT_EQ(planImport(list, mine), expected);
    const PropertyArray result = imported(list, mine);
    const PropertyArray wanted{
        stored(u"a", u"1"),
        stored(u"b", u"2"),
        stored(u"b", u"4"),
        u"odd",
        PropertyDictionary{{"checkbox", true}, {"find", u"c"}, {"replace", u"5"}},
        PropertyDictionary{{"checkbox", true}, {"find", u"a"}, {"replace", u"9"}}};
    EXPECT_EQ(result, wanted);
    // Once more changes only what two rules of the list say differently.
    EXPECT_EQ(planImport(list, result)[2].effect, Effect::left);
    // What others have stored survives an export.
    RuleList exported = travelRules(result);
    ASSERT_EQ(exported.rules.size(), 5U);
    EXPECT_FALSE(exported.rules[0].on);
    EXPECT_EQ(storedRules(RuleList{u"", {list.rules[2]}})[0], result[4]);
}

// Other editions read and keep what they do not know in a rule, and a rule without samples has no
// more in it than theirs.
TEST(Samples, StandInTheirRule) {
    const PropertyArray mine{stored(u"a", u"1"), stored(u"b", u"2")};
    const RuleList list{u"",
                        {{true, u"a", u"1", {{u"xa", u"x1"}}}, {true, u"c", u"3", {{u"c", u"3"}}}}};
    EXPECT_EQ(planImport(list, mine)[0], (ImportedRule{ImportedRule::Effect::changed, 0}));
    const PropertyArray result = imported(list, mine);
    EXPECT_EQ(result[1], mine[1]);
    EXPECT_EQ(travelRules(result).rules[0].samples, list.rules[0].samples);
    EXPECT_EQ(travelRules(result).rules[2], list.rules[1]);
    EXPECT_EQ(imported(list, result), result);

    FindReplaceList edited([](std::u16string_view key) { return std::u16string(key); });
    edited.setItems(result);
    edited.setSamples(0, {});
    EXPECT_EQ(edited.items()[0], mine[0]);
}

// A rule is tried on what the steps and the rules before it leave, and so are rules that are off.
TEST(RulesOnTrial, FindWhatTheyWouldFindInAClean) {
    engine::CleaningOptions options;
    options.udRemoveAllTabs = true;
    options.udFindAndReplaceItemsProfile.emplace(
        storedRules({u"",
                     {{true, u"\t", u"x", {}},
                      {true, u"a", u"bb", {{u"a", u"bb"}, {u"a", u"a"}}},
                      {false, u"(b)(b)", u"{delete}$2-$1", {}},
                      {true, u"b", u"c", {}},
                      {true, u"(", u"{delete}", {}},
                      {true, u"(x+x+)+y", u"{delete}", {}}}}));
    std::u16string text(60, u'x');
    text += u"\na\t b\n";
    const auto trials = tryRules(text, {options, "en_US"});
    ASSERT_EQ(trials.size(), 6U);
    const std::optional<std::size_t> counts[] = {0, 1, 1, 3, {}, {}};
    for (std::size_t at = 0; at < trials.size(); ++at) {
        EXPECT_EQ(trials[at].finds.matches, counts[at]) << at;
    }
    EXPECT_EQ(trials[1].finds.example, u"a b");
    EXPECT_EQ(trials[1].exampleAfter, u"bb b");
    EXPECT_EQ(trials[2].exampleAfter, u"b-b b");
    EXPECT_TRUE(trials[1].samples[0].holds);
    EXPECT_FALSE(trials[1].samples[1].holds);
    EXPECT_FALSE(trials[4].finds.givenUp);
    EXPECT_TRUE(trials[5].finds.givenUp);
}

} // namespace

} // namespace nerlo::settings

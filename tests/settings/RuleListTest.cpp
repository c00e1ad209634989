#include "settings/RuleList.h"
#include "tests/TemporaryFolder.h"
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

TEST(Samples, StandBesideTheRulesInAFileOfTheirOwn) {
    const test::TemporaryFolder folder;
    TravelRule rule{true, u"a", u"b", {{u"xa", u"xb"}, {u"", u""}}};
    {
        RuleSamplesFile file(folder / "samples.nrp");
        RecordItems items = file.load();
        file.setSamples(items, rule);
        file.setSamples(items, {true, u"a", u"c", {{u"a", u"c"}}});
        ASSERT_EQ(file.save(items), "");
    }
    RuleSamplesFile file(folder / "samples.nrp");
    RecordItems items = file.load();
    EXPECT_EQ(samplesOf(items, u"a", u"b"), rule.samples);
    EXPECT_EQ(samplesOf(items, u"a", u"x"), std::vector<RuleSample>());
    rule.samples.pop_back();
    file.setSamples(items, rule);
    EXPECT_EQ(samplesOf(items, u"a", u"b"), rule.samples);
    rule.samples.clear();
    file.setSamples(items, rule);
    EXPECT_EQ(items.size(), 1U);
}

} // namespace

} // namespace nerlo::settings

// Lists of find-and-replace rules that travel: a title, rules, and samples of what each does, in a
// text that people can read.
//
//   nerlo-rules 1
//   title Dates to ISO
//
//   rule
//   find (\d\d)\.(\d\d)\.(\d{4})
//   replace {delete}$3-$2-$1
//   before born on 03.12.2024
//   after born on 2024-12-03
//
// A line is a word and, behind a space, its value. "rule off" is a rule that is switched off. Blank
// lines and lines that begin with "#" say nothing. A value in quotes may hold \n, \r, \t, \",
// \\ and \u{HEX}; without quotes it is taken as it stands. The bytes are UTF-8, texts UTF-16. Any
// thread.
#pragma once

#include "engine/CleaningReport.h"
#include "storage/PropertyValue.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::settings {

struct RuleSample {
    std::u16string before;
    std::u16string after;
    bool operator==(const RuleSample &) const = default;
};

struct TravelRule {
    bool on = true;
    std::u16string find;
    std::u16string replace; // may begin with a token that makes `find` a pattern
    std::vector<RuleSample> samples;
    bool operator==(const TravelRule &) const = default;
};

struct RuleList {
    std::u16string title;
    std::vector<TravelRule> rules;
    bool operator==(const RuleList &) const = default;
};

struct ParsedRuleList {
    std::optional<RuleList> list;
    std::string error; // English, with the number of the line; empty when there is a list
};

inline constexpr std::size_t mostRuleListBytes = 4 * 1024 * 1024;

// Any bytes. A byte order mark and CR LF are taken too.
ParsedRuleList parseRuleList(std::string_view bytes);
// What that reads back, with a line break at the end.
std::string writeRuleList(const RuleList &list);

// Whether a rule, on or off, makes `after` of `before`.
struct SampleResult {
    bool holds = false;
    std::u16string given;                          // what the rule makes of `before`
    std::optional<engine::PatternFailure> failure; // its pattern could not be used
};
SampleResult trySample(const TravelRule &rule, const RuleSample &sample);

// The samples of a stored rule stand in it under a key that other editions do not know and keep; a
// rule without samples has no such key.
std::vector<RuleSample> samplesOf(const storage::PropertyValue &rule);
storage::PropertyArray storedSamples(const std::vector<RuleSample> &samples);

// The rules as the settings hold them; what is no rule there is left out.
storage::PropertyArray storedRules(const RuleList &list);
RuleList travelRules(const storage::PropertyArray &stored);

// What an import does to a list, rule by rule.
struct ImportedRule {
    enum class Effect : std::uint8_t {
        added,   // at the end of the list
        changed, // the rule at `row` finds the same and gets another replacement, or new samples
        left,    // the rule at `row` is the same
    };
    Effect effect = Effect::added;
    std::size_t row = 0;
    bool operator==(const ImportedRule &) const = default;
};
std::vector<ImportedRule> planImport(const RuleList &list, const storage::PropertyArray &stored);
// Carries out what planImport() gives for the same lists. Whether a rule is on stays as it is.
storage::PropertyArray imported(const RuleList &list, storage::PropertyArray stored);

} // namespace nerlo::settings

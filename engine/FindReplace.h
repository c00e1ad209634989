// The user's own replacements: fixed pairs, patterns and the list of find-and-replace rules.
//
// Texts are UTF-16. Every function may run on any thread and never fails: a pattern that does not
// compile, or that runs out of its budget, leaves the text as it was, except where a rule keeps
// only its matches and has no expression to find them with. Either is told in `report`, which may
// be null.
#pragma once

#include "engine/CleaningOptions.h"
#include "engine/CleaningReport.h"
#include "text/Range.h"
#include "text/Regex.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::engine {

// Literal, letter case counts; an empty `find` changes nothing.
std::u16string replaceString(std::u16string text, std::u16string_view find,
                             std::u16string_view replace);

// Mode 1 keeps only the matches of the pattern, one a line; any other mode removes them. Letter
// case counts.
std::u16string insertYourPattern(std::u16string text, std::u16string_view pattern,
                                 std::int64_t mode, CleaningReport *report = nullptr);

// A rule of find and replace.
struct NumberedRule {
    std::size_t number; // in the list, from 1
    std::u16string find;
    std::u16string replace; // may begin with a token that makes `find` a pattern
};

// What a rule does with what it finds, told by the beginning of its replacement.
enum class RuleKind : std::uint8_t {
    text,                   // found as it stands, and replaced
    replaceMatches,         // a pattern; its matches are replaced by a template
    keepMatches,            // a pattern; a text that has matches becomes these alone
    replaceMatchesUntested, // as above; what it does is the same
    keepMatchesUntested,    // as above; a text without a match becomes empty
};
constexpr bool isPattern(RuleKind kind) {
    return kind != RuleKind::text;
}

struct RuleReplacement {
    RuleKind kind = RuleKind::text;
    std::u16string argument; // what stands behind the token; the whole replacement of a text
    bool operator==(const RuleReplacement &) const = default;
};
RuleReplacement readReplacement(std::u16string_view replace);
// What that reads; a text whose argument begins with a token is read as what the token says.
std::u16string writeReplacement(const RuleReplacement &replacement);

// What a rule finds in a text that it is given.
struct RuleFinds {
    std::optional<std::size_t> matches; // nothing where its pattern cannot be used
    bool givenUp = false;               // since it takes too much work on this text
    std::u16string example; // the lines around the first match; empty where they are long
};
RuleFinds findsOf(std::u16string_view text, const NumberedRule &rule);

// The list that these options use; null where they have none.
const storage::PropertyArray *activeList(const CleaningOptions &options);
// The rules of it that are switched on, in order.
std::vector<NumberedRule> activeRules(const CleaningOptions &options);
std::u16string applyRule(std::u16string text, const NumberedRule &rule,
                         CleaningReport *report = nullptr);

// Applies all of these.
std::u16string replaceStringInFindReplace(std::u16string text, const CleaningOptions &options,
                                          CleaningReport *report = nullptr);

// Whether a pattern of the user's compiles. The empty pattern is not an error: the user has not
// typed one yet.
bool patternIsUsable(std::u16string_view pattern);
// The same for what a rule searches for, if its replacement makes that a pattern: where it stops to
// make sense. Nothing for a pattern that compiles and for a literal rule.
std::optional<text::PatternPlace> ruleTrouble(std::u16string_view find,
                                              std::u16string_view replace);
// How many groups its replacement may name; 0 for a pattern that does not compile.
std::size_t ruleGroups(std::u16string_view find, std::u16string_view replace);

// Text, match, text, ..., text. A text that holds the marker "%%%%%%SPLIT-ME%%%%%%" is split there
// too; from there on text and match have swapped places.
std::vector<std::u16string> splitByMatchesInString(std::u16string_view text,
                                                   std::span<const text::Range> matches);
// Whether the marker may play a part in splitting this text.
bool holdsSplitMarker(std::u16string_view text);

} // namespace nerlo::engine

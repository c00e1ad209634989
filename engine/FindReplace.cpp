#include "engine/FindReplace.h"

#include "text/Replace.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace nerlo::engine {

namespace {

using text::Range;
using text::Regex;

// What a replacement may begin with. No row is the beginning of another one.
struct Token {
    std::u16string_view text;
    RuleKind kind;
};
constexpr Token tokens[] = {
    {u"{search}", RuleKind::keepMatches},
    {u"{delete}", RuleKind::replaceMatches},
    {u"!{search}", RuleKind::keepMatchesUntested},
    {u"!{delete}", RuleKind::replaceMatchesUntested},
};
constexpr std::u16string_view splitMarker = u"%%%%%%SPLIT-ME%%%%%%";

// What is left of the marker in a text that has only a part of it.
constexpr std::u16string_view splitMarkerCore = u"SPLIT-ME";

// One pattern of the user's. Why it could not be used goes into the report, which may be null.
class UserPattern {
  public:
    UserPattern(std::u16string_view pattern, std::size_t rule, CleaningReport *report)
        : isEmpty_(pattern.empty())
        , rule_(rule)
        , report_(report)
        , regex_(Regex::compile(pattern, Regex::Case::Sensitive, &place_)) {}

    // Each match followed by the separator, or the text where there is none and it is `tested` for
    // one. A pattern that does not compile has no matches.
    std::u16string keepMatches(std::u16string text, std::u16string_view separator, bool tested) {
        if (!regex_) {
            // An empty pattern is not typed yet. That is no mistake while it costs nothing.
            if (!tested || !isEmpty_) {
                tell(PatternFailure::Why::DoesNotCompile);
            }
            return tested ? std::move(text) : std::u16string();
        }
        const auto matches = regex_->findAll(text);
        if (!matches) {
            tell(PatternFailure::Why::GivenUp);
        }
        if (!matches || (tested && matches->empty())) {
            return text;
        }
        return joined(text, *matches, separator);
    }

    // Each match replaced by the template.
    std::u16string replaceMatches(std::u16string text, std::u16string_view replacement) {
        if (!regex_) {
            if (!isEmpty_) {
                tell(PatternFailure::Why::DoesNotCompile);
            }
        } else if (!regex_->replaceAll(text, replacement)) {
            tell(PatternFailure::Why::GivenUp);
        }
        return text;
    }

  private:
    void tell(PatternFailure::Why why) {
        if (report_) {
            report_->push_back({rule_, why, place_});
        }
    }

    static std::u16string joined(std::u16string_view text, const std::vector<Range> &matches,
                                 std::u16string_view separator) {
        std::size_t size = 0;
        for (const Range &match : matches) {
            size += match.end - match.begin + separator.size();
        }
        std::u16string result;
        result.reserve(size);
        for (const Range &match : matches) {
            result.append(text, match.begin, match.end - match.begin);
            result.append(separator);
        }
        return result;
    }

    bool isEmpty_;
    std::size_t rule_;
    CleaningReport *report_;
    text::PatternPlace place_;
    std::optional<Regex> regex_;
};

// Nothing for a rule that is switched off, or is no rule at all.
std::optional<NumberedRule> activeRule(const storage::PropertyValue &item, std::size_t number) {
    const auto *record = item.as<storage::PropertyDictionary>();
    const auto *checkbox = record ? record->find("checkbox") : nullptr;
    if (!checkbox || !checkbox->boolValue()) {
        return std::nullopt;
    }
    const auto text = [&](std::string_view key) {
        const auto *value = record->find(key);
        return value ? value->stringValue() : std::u16string();
    };
    return NumberedRule{number, text("find"), text("replace")};
}

// Nothing where a pattern does not compile or is given up.
std::optional<std::vector<Range>> matchesIn(std::u16string_view text, const NumberedRule &rule) {
    if (isPattern(readReplacement(rule.replace).kind)) {
        auto regex = Regex::compile(rule.find, Regex::Case::Sensitive);
        return regex ? regex->findAll(text) : std::nullopt;
    }
    std::vector<Range> found;
    for (std::size_t at = 0; !rule.find.empty();) {
        at = text::find(text, at, rule.find);
        if (at == text.size()) {
            break;
        }
        found.push_back({at, at + rule.find.size()});
        at += rule.find.size();
    }
    return found;
}

// The lines in which a match stands, up to so many units.
std::u16string linesAround(std::u16string_view text, Range match) {
    constexpr std::u16string_view breaks = u"\n\r\u2028\u2029";
    constexpr std::size_t longest = 400;
    const std::size_t before =
        match.begin == 0 ? text.npos : text.find_last_of(breaks, match.begin - 1);
    const std::size_t begin = before == text.npos ? 0 : before + 1;
    const std::size_t end = std::min(text.find_first_of(breaks, match.end), text.size());
    return end - begin > longest ? std::u16string()
                                 : std::u16string(text.substr(begin, end - begin));
}

} // namespace

std::u16string replaceString(std::u16string text, std::u16string_view find,
                             std::u16string_view replace) {
    return text::replaceAll(std::move(text), find, replace);
}

std::u16string insertYourPattern(std::u16string text, std::u16string_view pattern,
                                 std::int64_t mode, CleaningReport *report) {
    UserPattern own(pattern, PatternFailure::ownPattern, report);
    return mode == 1 ? own.keepMatches(std::move(text), u"\n", false)
                     : own.replaceMatches(std::move(text), u"");
}

RuleReplacement readReplacement(std::u16string_view replace) {
    for (const Token &token : tokens) {
        if (replace.starts_with(token.text)) {
            return {token.kind, std::u16string(replace.substr(token.text.size()))};
        }
    }
    return {RuleKind::text, std::u16string(replace)};
}

std::u16string writeReplacement(const RuleReplacement &replacement) {
    for (const Token &token : tokens) {
        if (token.kind == replacement.kind) {
            return std::u16string(token.text) + replacement.argument;
        }
    }
    return replacement.argument;
}

// A pattern that matches the whole of a text, the empty one included, also occurs in it, so that
// finding no match is the only test.
std::u16string applyRule(std::u16string text, const NumberedRule &rule, CleaningReport *report) {
    const auto [kind, argument] = readReplacement(rule.replace);
    if (!isPattern(kind)) {
        return replaceString(std::move(text), rule.find, argument);
    }
    UserPattern pattern(rule.find, rule.number, report);
    if (kind == RuleKind::replaceMatches || kind == RuleKind::replaceMatchesUntested) {
        return pattern.replaceMatches(std::move(text), argument);
    }
    return pattern.keepMatches(std::move(text), argument.empty() ? u"\n" : argument,
                               kind == RuleKind::keepMatches);
}

RuleFinds findsOf(std::u16string_view text, const NumberedRule &rule) {
    const auto matches = matchesIn(text, rule);
    if (!matches) {
        return {.matches = {}, .givenUp = !ruleTrouble(rule.find, rule.replace), .example = {}};
    }
    return {.matches = matches->size(),
            .givenUp = false,
            .example = matches->empty() ? std::u16string() : linesAround(text, matches->front())};
}

const storage::PropertyArray *activeList(const CleaningOptions &options) {
    const auto &list = options.udOnlyOneProfile ? options.udFindAndReplaceItems
                                                : options.udFindAndReplaceItemsProfile;
    return list ? list->as<storage::PropertyArray>() : nullptr;
}

std::vector<NumberedRule> activeRules(const CleaningOptions &options) {
    const storage::PropertyArray *items = activeList(options);
    std::vector<NumberedRule> rules;
    for (std::size_t at = 0; items && at < items->size(); ++at) {
        if (auto rule = activeRule((*items)[at], at + 1)) {
            rules.push_back(std::move(*rule));
        }
    }
    return rules;
}

std::u16string replaceStringInFindReplace(std::u16string text, const CleaningOptions &options,
                                          CleaningReport *report) {
    for (const NumberedRule &rule : activeRules(options)) {
        text = applyRule(std::move(text), rule, report);
    }
    return text;
}

bool patternIsUsable(std::u16string_view pattern) {
    return pattern.empty() || Regex::compile(pattern, Regex::Case::Sensitive);
}

std::optional<text::PatternPlace> ruleTrouble(std::u16string_view find,
                                              std::u16string_view replace) {
    text::PatternPlace place;
    const bool pattern = isPattern(readReplacement(replace).kind) && !find.empty();
    return pattern && !Regex::compile(find, Regex::Case::Sensitive, &place) ? std::optional(place)
                                                                            : std::nullopt;
}

std::size_t ruleGroups(std::u16string_view find, std::u16string_view replace) {
    const auto regex = isPattern(readReplacement(replace).kind)
                           ? Regex::compile(find, Regex::Case::Sensitive)
                           : std::nullopt;
    return regex ? regex->groups() : 0;
}

std::vector<std::u16string> splitByMatchesInString(std::u16string_view text,
                                                   std::span<const Range> matches) {
    std::u16string marked;
    std::size_t from = 0;
    for (const Range &match : matches) {
        marked.append(text, from, match.begin - from);
        marked.append(splitMarker);
        from = match.end;
    }
    marked.append(text, from);

    std::vector<std::u16string> pieces;
    std::size_t match = 0;
    std::size_t begin = 0;
    for (;;) {
        const std::size_t end = marked.find(splitMarker, begin);
        pieces.push_back(marked.substr(begin, end - begin));
        if (match < matches.size()) {
            pieces.emplace_back(
                text.substr(matches[match].begin, matches[match].end - matches[match].begin));
            ++match;
        }
        if (end == std::u16string::npos) {
            return pieces;
        }
        begin = end + splitMarker.size();
    }
}

bool holdsSplitMarker(std::u16string_view text) {
    return text::find(text, 0, splitMarkerCore) < text.size();
}

} // namespace nerlo::engine

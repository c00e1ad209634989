#include "engine/FindReplace.h"

#include "text/Replace.h"

#include <optional>
#include <utility>

namespace nerlo::engine {

namespace {

using text::Range;
using text::Regex;

constexpr std::u16string_view searchToken = u"{search}";
constexpr std::u16string_view deleteToken = u"{delete}";
constexpr std::u16string_view splitMarker = u"%%%%%%SPLIT-ME%%%%%%";

// What is left of the marker in a text that has only a part of it.
constexpr std::u16string_view splitMarkerCore = u"SPLIT-ME";

bool startsWithToken(std::u16string_view replacement) {
    return replacement.starts_with(searchToken) || replacement.starts_with(deleteToken);
}

// Each match followed by the separator. A pattern that does not compile has no matches.
std::u16string keepMatches(std::u16string text, std::u16string_view pattern,
                           std::u16string_view separator) {
    auto regex = Regex::compile(pattern, Regex::Case::Sensitive);
    if (!regex) {
        return {};
    }
    const auto matches = regex->findAll(text);
    if (!matches) {
        return text;
    }
    std::size_t size = 0;
    for (const Range &match : *matches) {
        size += match.end - match.begin + separator.size();
    }
    std::u16string result;
    result.reserve(size);
    for (const Range &match : *matches) {
        result.append(text, match.begin, match.end - match.begin);
        result.append(separator);
    }
    return result;
}

std::u16string replaceMatches(std::u16string text, std::u16string_view pattern,
                              std::u16string_view replacement) {
    if (auto regex = Regex::compile(pattern, Regex::Case::Sensitive)) {
        regex->replaceAll(text, replacement); // a budget that ran out leaves the text as it is
    }
    return text;
}

// A pattern that matches the whole of a text, the empty one included, also occurs in it, so that
// this is the only test.
bool occurs(std::u16string_view text, std::u16string_view pattern) {
    auto regex = Regex::compile(pattern, Regex::Case::Sensitive);
    return regex && regex->occursIn(text).value_or(false);
}

struct Rule {
    std::u16string find;
    std::u16string replace;
};

// Nothing for a rule that is switched off, or is no rule at all.
std::optional<Rule> activeRule(const storage::PropertyValue &item) {
    const auto *record = item.as<storage::PropertyDictionary>();
    const auto *checkbox = record ? record->find("checkbox") : nullptr;
    if (!checkbox || !checkbox->boolValue()) {
        return std::nullopt;
    }
    const auto text = [&](std::string_view key) {
        const auto *value = record->find(key);
        return value ? value->stringValue() : std::u16string();
    };
    return Rule{text("find"), text("replace")};
}

// Begins with a token whose matches are not looked for first.
bool isUntested(std::u16string_view replacement) {
    return replacement.starts_with(u'!') && startsWithToken(replacement.substr(1));
}

std::u16string applyRule(std::u16string text, const Rule &rule) {
    std::u16string_view replacement = rule.replace;
    const bool untested = isUntested(replacement);
    if (untested) {
        replacement.remove_prefix(1);
    } else if (!startsWithToken(replacement)) {
        return replaceString(std::move(text), rule.find, replacement);
    }
    if (!untested && !occurs(text, rule.find)) {
        return text;
    }
    return insertYourPatternForFindReplace(std::move(text), replacement, rule.find);
}

} // namespace

std::u16string replaceString(std::u16string text, std::u16string_view find,
                             std::u16string_view replace) {
    return text::replaceAll(std::move(text), find, replace);
}

std::u16string insertYourPattern(std::u16string text, std::u16string_view pattern,
                                 std::int64_t mode) {
    if (mode == 1) {
        return keepMatches(std::move(text), pattern, u"\n");
    }
    return replaceMatches(std::move(text), pattern, u"");
}

std::u16string replaceStringInFindReplace(std::u16string text, const CleaningOptions &options) {
    const auto &list = options.udOnlyOneProfile ? options.udFindAndReplaceItems
                                                : options.udFindAndReplaceItemsProfile;
    const auto *items = list ? list->as<storage::PropertyArray>() : nullptr;
    if (!items) {
        return text;
    }
    for (const storage::PropertyValue &item : *items) {
        if (const auto rule = activeRule(item)) {
            text = applyRule(std::move(text), *rule);
        }
    }
    return text;
}

std::u16string insertYourPatternForFindReplace(std::u16string text, std::u16string_view replacement,
                                               std::u16string_view pattern) {
    if (replacement.starts_with(searchToken)) {
        const std::u16string_view separator = replacement.substr(searchToken.size());
        return keepMatches(std::move(text), pattern, separator.empty() ? u"\n" : separator);
    }
    if (replacement.starts_with(deleteToken)) {
        return replaceMatches(std::move(text), pattern, replacement.substr(deleteToken.size()));
    }
    return text;
}

bool patternIsUsable(std::u16string_view pattern) {
    return pattern.empty() || Regex::compile(pattern, Regex::Case::Sensitive);
}

bool ruleIsUsable(std::u16string_view find, std::u16string_view replace) {
    return !(startsWithToken(replace) || isUntested(replace)) || patternIsUsable(find);
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

#include "text/PatternSyntax.h"

#include <algorithm>
#include <cctype>

namespace nerlo::text {

namespace {

bool isAsciiAlphanumeric(char16_t unit) {
    return unit < 0x80 && std::isalnum(unit) != 0;
}

bool holds(std::u16string_view pattern, std::u16string_view what) {
    return pattern.find(what) != std::u16string_view::npos;
}

bool isOneOf(char16_t unit, std::u16string_view units) {
    return units.find(unit) != std::u16string_view::npos;
}

// The units between brackets at `at`, which is moved behind them: single ones and ranges of them.
std::optional<UnitSet> plainClass(std::u16string_view pattern, std::size_t &at) {
    UnitSet units;
    for (++at; at < pattern.size() && isAsciiAlphanumeric(pattern[at]); ++at) {
        const char16_t first = pattern[at];
        if (at + 2 < pattern.size() && pattern[at + 1] == u'-') {
            at += 2;
        }
        if (!isAsciiAlphanumeric(pattern[at]) || pattern[at] < first || units.isFull()) {
            return std::nullopt;
        }
        units.add(first, pattern[at]);
    }
    return at < pattern.size() && pattern[at++] == u']' ? std::optional(units) : std::nullopt;
}

// The length of "\s" and the like at `at`; 0 for anything else.
std::size_t lengthOfKind(std::u16string_view pattern, std::size_t at) {
    const bool is =
        at + 1 < pattern.size() && pattern[at] == u'\\' && isOneOf(pattern[at + 1], u"dDsSwW");
    return is ? 2 : 0;
}

// The length of a class in brackets that has no other class inside; 0 for any other.
std::size_t lengthOfSimpleClass(std::u16string_view pattern) {
    std::size_t at = pattern.starts_with(u"[^") ? 2 : 1;
    const std::size_t first = at;
    while (at < pattern.size()) {
        if (const std::size_t kind = lengthOfKind(pattern, at)) {
            at += kind;
            continue;
        }
        if (isOneOf(pattern[at], u"[]&-{\\")) {
            break;
        }
        ++at;
        const bool isRange =
            at + 1 < pattern.size() && pattern[at] == u'-' && isAsciiAlphanumeric(pattern[at + 1]);
        at += isRange ? 2 : 0;
    }
    const bool closed = at > first && at < pattern.size() && pattern[at] == u']';
    return closed ? at + 1 : 0;
}

// The length of what stands for exactly one character at the beginning; 0 if that is not plain.
std::size_t lengthOfOneCharacter(std::u16string_view pattern) {
    if (pattern.empty()) {
        return 0;
    }
    if (pattern.front() == u'[') {
        return lengthOfSimpleClass(pattern);
    }
    if (pattern.front() == u'\\') {
        return lengthOfKind(pattern, 0);
    }
    return pattern.front() == u'.' || isAsciiAlphanumeric(pattern.front()) ? 1 : 0;
}

// Whether groups of flags may let blanks and comments into the pattern, or change what the end of a
// word is.
bool changesSyntax(std::u16string_view pattern) {
    for (std::size_t at = pattern.find(u"(?"); at != pattern.npos; at = pattern.find(u"(?", at)) {
        for (at += 2;
             at < pattern.size() && (isAsciiAlphanumeric(pattern[at]) || pattern[at] == u'-');
             ++at) {
            if (pattern[at] == u'x' || pattern[at] == u'w') {
                return true;
            }
        }
    }
    return holds(pattern, u"\\Q");
}

// Whether a "|" outside all groups divides the pattern.
bool mayDivide(std::u16string_view pattern) {
    if (!holds(pattern, u"|")) {
        return false;
    }
    if (holds(pattern, u"[")) {
        return true; // brackets may hold parentheses that are none
    }
    std::size_t depth = 0;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        switch (pattern[at]) {
        case u'\\':
            ++at;
            break;
        case u'(':
            ++depth;
            break;
        case u')':
            depth -= depth > 0 ? 1 : 0;
            break;
        case u'|':
            if (depth == 0) {
                return true;
            }
            break;
        default:
            break;
        }
    }
    return false;
}

bool hasBackReference(std::u16string_view pattern) {
    for (std::size_t at = 0; at + 1 < pattern.size(); ++at) {
        if (pattern[at] == u'\\' && isOneOf(pattern[at + 1], u"123456789k")) {
            return true;
        }
    }
    return false;
}

// X where the pattern begins with a greedy X* or X+, alone in a group or in none, and goes on.
std::u16string_view leadingRun(std::u16string_view pattern) {
    if (pattern.starts_with(u"(?s).")) {
        constexpr std::u16string_view flag = u"(?s)";
        return leadingRun(pattern.substr(flag.size())).empty() ? std::u16string_view{} : u"(?s:.)";
    }
    const bool grouped = pattern.starts_with(u'(');
    pattern.remove_prefix(grouped ? 1 : 0);
    const std::size_t length = lengthOfOneCharacter(pattern);
    const std::u16string_view character = pattern.substr(0, length);
    pattern.remove_prefix(length);
    if (length == 0 || pattern.empty() || !isOneOf(pattern.front(), u"*+")) {
        return {};
    }
    pattern.remove_prefix(1);
    if (grouped) {
        if (!pattern.starts_with(u')')) {
            return {};
        }
        pattern.remove_prefix(1);
        return pattern.empty() || isOneOf(pattern.front(), u"*+?{") ? std::u16string_view{}
                                                                    : character;
    }
    return pattern.empty() || isOneOf(pattern.front(), u"?{") ? std::u16string_view{} : character;
}

} // namespace

std::optional<UnitSet> firstUnits(std::u16string_view pattern) {
    // "|" may bring another beginning, "\G" asks where the match before ended.
    if (holds(pattern, u"|") || holds(pattern, u"\\G")) {
        return std::nullopt;
    }
    std::optional<UnitSet> units;
    std::size_t at = 0;
    if (pattern.starts_with(u"\\d")) {
        units.emplace(u"0123456789");
        units->add(u'\u0080', u'\uFFFF'); // the digits of other scripts are among these
        at = 2;
    } else if (pattern.starts_with(u'[')) {
        units = plainClass(pattern, at);
    } else if (isAsciiAlphanumeric(pattern.front())) {
        units.emplace(pattern.substr(0, 1));
        at = 1;
    }
    const bool isOptional =
        at < pattern.size() && std::u16string_view(u"*?{").find(pattern[at]) != pattern.npos;
    return isOptional ? std::nullopt : units;
}

std::u16string withFewerStarts(std::u16string_view pattern) {
    const std::u16string_view character = leadingRun(pattern);
    if (character.empty() || changesSyntax(pattern) || mayDivide(pattern) ||
        hasBackReference(pattern) || holds(pattern, u"\\G")) {
        return std::u16string(pattern);
    }
    // Behind no X, or where the match before ended.
    return std::u16string(u"(?:(?<!").append(character).append(u")|\\G)").append(pattern);
}

FarLooks farLooks(std::u16string_view pattern) {
    for (const std::u16string_view far :
         {u"(?=", u"(?!", u"(?<", u"(?>", u"*+", u"++", u"?+", u"}+", u"\\X"}) {
        if (holds(pattern, far)) {
            return FarLooks::Anywhere;
        }
    }
    if (hasBackReference(pattern) || changesSyntax(pattern)) {
        return FarLooks::Anywhere;
    }
    return holds(pattern, u"\\b") || holds(pattern, u"\\B") ? FarLooks::AcrossMarks
                                                            : FarLooks::Never;
}

} // namespace nerlo::text

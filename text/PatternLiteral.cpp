#include "text/PatternLiteral.h"

#include "text/UnitScan.h"

#include <unicode/utf16.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <utility>

namespace nerlo::text {

namespace {

// A literal that is met more often than this saves nothing.
constexpr unsigned mostCommon = 150;

constexpr UnitSet lineEnds{{u'\n', u'\r'}, {u'\u0085', u'\u0085'}, {u'\u2028', u'\u2029'}};

bool isAsciiLetter(char16_t unit) {
    return static_cast<char16_t>((unit | 0x20) - u'a') < 26;
}

bool isLetterOrDigit(char16_t unit) {
    return isAsciiLetter(unit) || (unit >= u'0' && unit <= u'9');
}

char16_t lowered(char16_t unit) {
    return isAsciiLetter(unit) ? static_cast<char16_t>(unit | 0x20) : unit;
}

// Of the 64 units there, those that are this unit of the literal.
std::uint64_t placesOf(const char16_t *units, const Literal &literal, std::size_t place) {
    const char16_t unit = literal.units[place];
    const std::uint64_t same = scanUnit(units + place, unit);
    return literal.ignoresCase && isAsciiLetter(unit)
               ? same | scanUnit(units + place, static_cast<char16_t>(unit - 0x20))
               : same;
}

bool standsAt(std::u16string_view text, std::size_t at, const Literal &literal) {
    const std::u16string_view there = text.substr(at, literal.units.size());
    return literal.ignoresCase ? std::ranges::equal(there, literal.units, {}, lowered)
                               : there == literal.units;
}

// Reads a pattern from left to right. What it does not know makes it give up.
class LiteralReader {
  public:
    LiteralReader(std::u16string_view pattern, bool ignoresCase)
        : pattern_(pattern)
        , ignoresCase_(ignoresCase) {}

    RequiredLiteral find() {
        readChoice();
        close();
        return failed_ || at_ < pattern_.size() ? RequiredLiteral() : std::move(known_.best);
    }

  private:
    struct Known {
        std::u16string run; // of characters that follow each other in every match
        bool runInLine = true;
        RequiredLiteral best;
    };

    bool isAt(std::u16string_view what) const { return pattern_.substr(at_).starts_with(what); }
    bool take(std::u16string_view what) {
        const bool there = isAt(what);
        at_ += there ? what.size() : 0;
        return there;
    }
    char16_t takeUnit() {
        failed_ = failed_ || at_ == pattern_.size();
        return failed_ ? u'\0' : pattern_[at_++];
    }

    // Up to a ")" or the end. Of alternatives, none is in every match.
    void readChoice() {
        const Known before = known_;
        bool divided = false;
        while (!failed_ && at_ < pattern_.size() && !isAt(u")")) {
            if (take(u"|")) {
                divided = true;
            } else {
                readPart();
            }
        }
        if (divided) {
            known_ = before;
            close();
        }
    }

    void readPart() {
        const Known before = known_;
        readAtom();
        std::uint32_t least = 1;
        if (!failed_ && takeQuantifier(least)) {
            if (least == 0) {
                known_ = before;
            }
            close();
        }
    }

    bool takeQuantifier(std::uint32_t &least) {
        if (take(u"*") || take(u"?")) {
            least = 0;
        } else if (take(u"{")) {
            least = takeBounds();
        } else if (!take(u"+")) {
            return false;
        }
        if (!take(u"+")) {
            take(u"?");
        }
        return true;
    }

    // 0 or 1, where it is more.
    std::uint32_t takeBounds() {
        const std::size_t end = pattern_.find(u'}', at_);
        failed_ = failed_ || end == pattern_.npos;
        if (failed_) {
            return 0;
        }
        const std::u16string_view bounds = pattern_.substr(at_, end - at_);
        at_ = end + 1;
        const std::u16string_view first = bounds.substr(0, bounds.find(u','));
        failed_ = first.empty() || first.find_first_not_of(u"0123456789") != first.npos;
        return first.find_first_not_of(u'0') == first.npos ? 0 : 1;
    }

    void readAtom() {
        switch (const char16_t unit = takeUnit()) {
        case u'(':
            readGroup();
            break;
        case u'[':
            readSet();
            break;
        case u'\\':
            readEscape();
            break;
        case u'.':
            passUnknown(!dotIsAll_);
            break;
        case u'^':
        case u'$':
            break; // take no character
        case u'*':
        case u'+':
        case u'?':
        case u'{':
        case u'}':
        case u']':
            failed_ = true;
            break;
        default:
            add(unit);
            break;
        }
    }

    void readGroup() {
        if (take(u"?=")) {
            readLook(true);
            return;
        }
        for (const std::u16string_view look : {u"?!", u"?<=", u"?<!"}) {
            if (take(look)) {
                readLook(false);
                return;
            }
        }
        if (take(u"?<")) {
            const std::size_t end = pattern_.find(u'>', at_);
            failed_ = end == pattern_.npos;
            at_ = end + 1;
        } else if (!take(u"?>") && isAt(u"?") && readFlags()) {
            return;
        }
        if (!failed_) {
            readChoice();
            failed_ = failed_ || !take(u")");
        }
    }

    // Takes no character. What is ahead stands behind the beginning of the match, and that is all
    // that is asked of a literal.
    void readLook(bool ahead) {
        Known before = known_;
        const bool inLine = inLine_;
        readChoice();
        close();
        failed_ = failed_ || !take(u")");
        if (ahead) {
            before.best = std::move(known_.best);
        }
        known_ = std::move(before);
        inLine_ = inLine;
    }

    // True behind flags that are no group.
    bool readFlags() {
        const bool isFirst = at_ == 1;
        ++at_;
        for (;;) {
            switch (takeUnit()) {
            case u'm':
                break;
            case u's':
                dotIsAll_ = true;
                break;
            case u'i':
                failed_ = failed_ || !isFirst;
                ignoresCase_ = true;
                break;
            case u':':
                failed_ = failed_ || (isFirst && ignoresCase_); // it may end with the group
                return false;
            case u')':
                return true;
            default:
                failed_ = true;
                return true;
            }
        }
    }

    // Sets may be nested. In line are those written with plain ASCII alone.
    void readSet() {
        bool plain = !take(u"^");
        failed_ = failed_ || isAt(u"]");
        for (std::size_t depth = 1; depth > 0 && !failed_;) {
            const char16_t unit = takeUnit();
            plain = plain && unit >= u' ' && unit < 0x80 && unit != u'[';
            if (unit == u'\\') {
                plain = escapeInSet() && plain;
            } else if (unit == u'[') {
                ++depth;
                take(u"^");
                failed_ = failed_ || isAt(u"]");
            } else if (unit == u']') {
                --depth;
            }
        }
        passUnknown(plain);
    }

    // Whether it stays in line.
    bool escapeInSet() {
        const char16_t unit = takeUnit();
        failed_ = failed_ || unit == u'Q';
        return unit == u'p' ? takeProperty()
                            : inLineKinds.find(unit) != inLineKinds.npos ||
                                  (!isLetterOrDigit(unit) && unit < 0x80);
    }

    void readEscape() {
        const char16_t unit = takeUnit();
        constexpr std::u16string_view edges = u"bBAZz";
        constexpr std::u16string_view others = u"WDHsSvVRXntrfae123456789";
        if (unit == u'Q') {
            while (!failed_ && !take(u"\\E")) {
                add(takeUnit());
            }
        } else if (unit == u'p' || unit == u'P') {
            passUnknown(takeProperty() && unit == u'p');
        } else if (!isLetterOrDigit(unit) && unit < 0x80) {
            add(unit);
        } else if (edges.find(unit) == edges.npos) {
            const bool staysInLine = inLineKinds.find(unit) != inLineKinds.npos;
            passUnknown(staysInLine);
            failed_ = failed_ || (!staysInLine && others.find(unit) == others.npos);
        }
    }

    // Letters, marks, numbers, punctuation and symbols are no line ends; other names may be.
    bool takeProperty() {
        failed_ = failed_ || !take(u"{");
        const std::size_t end = std::min(pattern_.find(u'}', at_), pattern_.size());
        const std::u16string_view name = pattern_.substr(at_, end - at_);
        failed_ = failed_ || end == pattern_.size();
        at_ = failed_ ? at_ : end + 1;
        constexpr std::u16string_view kinds = u"LMNPS";
        return !name.empty() && name.size() <= 2 && kinds.find(name.front()) != kinds.npos &&
               (name.size() == 1 || (name[1] >= u'a' && name[1] <= u'z'));
    }

    void add(char16_t unit) {
        if (ignoresCase_ && unit >= 0x80) {
            passUnknown(!lineEnds.contains(unit));
            return;
        }
        const bool isSecondHalf = U16_IS_TRAIL(unit) && !known_.run.empty();
        if (known_.run.empty()) {
            known_.runInLine = inLine_;
        }
        known_.run += ignoresCase_ ? lowered(unit) : unit;
        inLine_ = inLine_ && !lineEnds.contains(unit);
        if (U16_IS_LEAD(unit) && at_ < pattern_.size() && U16_IS_TRAIL(pattern_[at_]) &&
            !isSecondHalf) {
            known_.run += takeUnit(); // one character for a quantifier
        }
    }

    // A character that is not known.
    void passUnknown(bool staysInLine) {
        close();
        inLine_ = inLine_ && staysInLine;
    }

    void close() {
        std::u16string run = std::exchange(known_.run, {});
        if (run.empty()) {
            return;
        }
        Literal literal = literalOf(std::move(run), ignoresCase_);
        Literal &best = known_.best.literal;
        if (literal.places < (best.units.empty() ? mostCommon : best.places)) {
            known_.best = {std::move(literal), known_.runInLine};
        }
    }

    static constexpr std::u16string_view inLineKinds = u"wdh";

    std::u16string_view pattern_;
    std::size_t at_ = 0;
    bool failed_ = false;
    bool ignoresCase_;
    bool dotIsAll_ = false;
    bool inLine_ = true; // all that was read
    Known known_;
};

} // namespace

Literal literalOf(std::u16string units, bool ignoresCase) {
    const auto rarestOf = [&units](std::size_t except) {
        std::size_t rarest = except == 0 && units.size() > 1 ? 1 : 0;
        for (std::size_t at = 0; at < units.size(); ++at) {
            if (at != except && commonness(units[at]) < commonness(units[rarest])) {
                rarest = at;
            }
        }
        return rarest;
    };
    constexpr unsigned all = 10'000;
    const std::size_t rarest = rarestOf(units.size());
    const std::size_t second = rarestOf(rarest);
    const unsigned one = commonness(units[rarest]);
    const unsigned places =
        units.size() == 1 ? one : std::max(1u, 4 * one * commonness(units[second]) / all);
    return {std::move(units), ignoresCase, rarest, second, places};
}

std::size_t findLiteral(std::u16string_view text, std::size_t from, const Literal &literal) {
    if (text.size() < literal.units.size()) {
        return text.size();
    }
    const std::size_t places = text.size() - literal.units.size() + 1;
    for (; from + scanBlock <= places; from += scanBlock) {
        std::uint64_t both = placesOf(text.data() + from, literal, literal.rarest);
        both &= both == 0 || literal.second == literal.rarest
                    ? both
                    : placesOf(text.data() + from, literal, literal.second);
        for (; both != 0; both &= both - 1) {
            const std::size_t at = from + static_cast<std::size_t>(std::countr_zero(both));
            if (standsAt(text, at, literal)) {
                return at;
            }
        }
    }
    for (; from < places; ++from) {
        if (standsAt(text, from, literal)) {
            return from;
        }
    }
    return text.size();
}

unsigned commonness(char16_t unit) {
    if (unit == u' ') {
        return 1600;
    }
    constexpr std::u16string_view letters = u"etaoinsrhldcumfpgwybvkxjqz";
    constexpr unsigned most = 1000;
    const std::size_t rank = letters.find(unit);
    if (rank != letters.npos) {
        return most / static_cast<unsigned>(1 + rank / 3);
    }
    constexpr std::u16string_view usual = u",.-'\"\n\r";
    constexpr unsigned ofUsual = 100;
    constexpr unsigned ofOthers = 10;
    return usual.find(unit) != usual.npos ? ofUsual : ofOthers;
}

RequiredLiteral requiredLiteral(std::u16string_view pattern, bool ignoresCase) {
    return LiteralReader(pattern, ignoresCase).find();
}

bool foldsIntoAscii(std::u16string_view text) {
    constexpr UnitSet units{{u'\u00DF', u'\u00DF'}, {u'\u0130', u'\u0130'}, {u'\u0149', u'\u0149'},
                            {u'\u017F', u'\u017F'}, {u'\u01F0', u'\u01F0'}, {u'\u1E96', u'\u1E9A'},
                            {u'\u1E9E', u'\u1E9E'}, {u'\u212A', u'\u212A'}, {u'\uFB00', u'\uFB06'}};
    return findUnit(text, 0, units) != text.size();
}

} // namespace nerlo::text

#include "text/PatternTree.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace nerlo::text {

namespace {

using Kind = PatternNode::Kind;

constexpr char32_t nothing = UINT32_MAX;
constexpr std::uint32_t mostRepeats = 1000;
constexpr int deepest = 100;

bool isOneOf(char32_t character, std::u32string_view characters) {
    return characters.find(character) != characters.npos;
}

bool isAsciiLetter(char32_t character) {
    return (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z');
}

bool isAsciiDigit(char32_t character) {
    return character >= U'0' && character <= U'9';
}

struct Flags {
    bool ignoresCase = false;
    bool dotTakesAll = false;
    bool lines = false;
};

// Each function returns false, or nothing, where the pattern goes beyond what is known.
class Parser {
  public:
    Parser(std::u32string pattern, Flags flags)
        : pattern_(std::move(pattern))
        , flags_(flags) {}

    std::optional<PatternTree> parse() {
        const bool isWhole = choice(tree_.root) && at_ == pattern_.size();
        if (!isWhole || tree_.sets.size() > maxSets || (lineStarts_ > 0 && !beginsLines())) {
            return std::nullopt;
        }
        return std::move(tree_);
    }

  private:
    static constexpr std::size_t maxSets = 200;

    // "^" for lines is true between "\r" and "\n" too, but not where a pattern begins with it: ICU
    // looks for lines itself then.
    bool beginsLines() const {
        const PatternNode &root = tree_.root;
        return lineStarts_ == 1 && root.kind == Kind::Sequence &&
               root.parts.front().kind == Kind::Assert &&
               root.parts.front().assertion == Assertion::LineStart;
    }

    char32_t peek(std::size_t ahead = 0) const {
        return at_ + ahead < pattern_.size() ? pattern_[at_ + ahead] : nothing;
    }

    bool take(char32_t character) {
        const bool is = peek() == character;
        at_ += is ? 1 : 0;
        return is;
    }

    bool choice(PatternNode &node) {
        node.kind = Kind::Choice;
        if (++depth_ > deepest) {
            return false;
        }
        do {
            if (!sequence(node.parts.emplace_back())) {
                return false;
            }
        } while (take(U'|'));
        --depth_;
        if (node.parts.size() == 1) {
            PatternNode only = std::move(node.parts.front());
            node = std::move(only);
        }
        return true;
    }

    bool sequence(PatternNode &node) {
        for (;;) {
            if (peek() == nothing || peek() == U'|' || peek() == U')') {
                return flush(node);
            }
            if (!item(node) || (isOneOf(peek(), U"*+?{") && !quantified(node))) {
                return false;
            }
        }
    }

    // The last item with the quantifier behind it. Of a run of literal characters, that is the
    // last.
    bool quantified(PatternNode &node) {
        if (!run_.empty()) {
            const std::u32string last(1, run_.back());
            run_.pop_back();
            flush(node);
            run_ = last;
            flush(node);
            if (node.parts.back().kind != Kind::Set) {
                return false;
            }
        }
        PatternNode repeat;
        repeat.kind = Kind::Repeat;
        if (lastWasFlags_ || node.parts.empty() || node.parts.back().kind == Kind::Assert ||
            !bounds(repeat)) {
            return false;
        }
        repeat.greedy = !take(U'?');
        if (isOneOf(peek(), U"*+?{")) {
            return false; // possessive, or a quantifier of a quantifier
        }
        repeat.parts.push_back(std::move(node.parts.back()));
        if (repeat.most > 1 && repeat.parts.front().mayBeEmpty()) {
            return false;
        }
        node.parts.back() = std::move(repeat);
        return true;
    }

    bool bounds(PatternNode &repeat) {
        const char32_t mark = pattern_[at_++];
        repeat.least = mark == U'+' ? 1 : 0;
        repeat.most = mark == U'?' ? 1 : PatternNode::unlimited;
        if (mark != U'{') {
            return true;
        }
        const auto least = number();
        if (!least) {
            return false;
        }
        repeat.least = repeat.most = *least;
        if (take(U',')) {
            repeat.most = PatternNode::unlimited;
            if (peek() != U'}') {
                const auto most = number();
                if (!most || *most < *least) {
                    return false;
                }
                repeat.most = *most;
            }
        }
        return take(U'}') && repeat.most > 0;
    }

    std::optional<std::uint32_t> number() {
        std::uint32_t value = 0;
        const std::size_t begin = at_;
        for (; isAsciiDigit(peek()) && value <= mostRepeats; ++at_) {
            value = 10 * value + (pattern_[at_] - U'0');
        }
        return at_ > begin && value <= mostRepeats ? std::optional(value) : std::nullopt;
    }

    bool item(PatternNode &node) {
        lastWasFlags_ = false;
        const char32_t character = pattern_[at_++];
        switch (character) {
        case U'(':
            return flush(node) && group(node);
        case U'[':
            return flush(node) && set(node);
        case U'.':
            return flush(node) && dot(node);
        case U'^':
            return flush(node) &&
                   assertion(node, flags_.lines ? Assertion::LineStart : Assertion::TextStart);
        case U'$':
            return flush(node) &&
                   assertion(node, flags_.lines ? Assertion::LineEnd : Assertion::TextEnd);
        case U'\\':
            return escape(node);
        case U'*':
        case U'+':
        case U'?':
        case U'{':
        case U'}':
        case U']':
            return false;
        default:
            run_ += character;
            return true;
        }
    }

    bool assertion(PatternNode &node, Assertion what) {
        lineStarts_ += what == Assertion::LineStart ? 1 : 0;
        PatternNode &made = node.parts.emplace_back();
        made.kind = Kind::Assert;
        made.assertion = what;
        return true;
    }

    bool addSet(PatternNode &node, CodePoints points) {
        PatternNode &made = node.parts.emplace_back();
        made.kind = Kind::Set;
        const auto known = std::ranges::find(tree_.sets, points);
        made.number = static_cast<std::size_t>(known - tree_.sets.begin());
        if (known == tree_.sets.end()) {
            tree_.sets.push_back(std::move(points));
        }
        return true;
    }

    bool dot(PatternNode &node) {
        if (!flags_.dotTakesAll) {
            return addSet(node, CodePoints::lineEnds().complement());
        }
        // "\r\n" is one character to it.
        PatternNode either;
        either.kind = Kind::Choice;
        PatternNode pair;
        addSet(pair, {U'\r', U'\r'});
        addSet(pair, {U'\n', U'\n'});
        PatternNode single;
        addSet(single, {U'\r', U'\r'});
        assertion(single, Assertion::NoLineFeed);
        either.parts = {std::move(pair), std::move(single)};
        addSet(either, CodePoints(U'\r', U'\r').complement());
        node.parts.push_back(std::move(either));
        return true;
    }

    bool group(PatternNode &node) {
        const Flags outside = flags_;
        PatternNode made;
        made.kind = Kind::Sequence;
        if (peek() == U'?' && peek(1) == U'<' && isAsciiLetter(peek(2))) {
            const std::size_t end = pattern_.find(U'>', at_);
            at_ = end == pattern_.npos ? pattern_.size() : end + 1;
            made.kind = Kind::Group;
        } else if (take(U'?')) {
            if (!groupFlags()) {
                return false;
            }
            if (take(U')')) {
                lastWasFlags_ = true;
                return true; // until the group round it ends
            }
            if (!take(U':')) {
                return false;
            }
        } else {
            made.kind = Kind::Group;
        }
        if (made.kind == Kind::Group) {
            made.number = ++tree_.groups;
        }
        if (!choice(made.parts.emplace_back()) || !take(U')')) {
            return false;
        }
        if (made.kind == Kind::Group) {
            mayBeEmpty_[made.number] = made.mayBeEmpty();
        }
        flags_ = outside;
        lastWasFlags_ = false;
        node.parts.push_back(std::move(made));
        return true;
    }

    bool groupFlags() {
        bool on = true;
        for (; isAsciiLetter(peek()) || peek() == U'-'; ++at_) {
            switch (peek()) {
            case U'-':
                on = false;
                break;
            case U'i':
                flags_.ignoresCase = on;
                break;
            case U's':
                flags_.dotTakesAll = on;
                break;
            case U'm':
                flags_.lines = on;
                break;
            default:
                return false;
            }
        }
        return true;
    }

    static const CodePoints *kindOf(char32_t letter) {
        switch (letter) {
        case U'w':
        case U'W':
            return &CodePoints::word();
        case U'd':
        case U'D':
            return &CodePoints::digit();
        case U's':
        case U'S':
            return &CodePoints::space();
        default:
            return nullptr;
        }
    }

    static CodePoints kind(const CodePoints &points, char32_t letter) {
        return letter < U'a' ? points.complement() : points;
    }

    bool escape(PatternNode &node) {
        const char32_t letter = peek();
        if (const CodePoints *points = kindOf(letter)) {
            ++at_;
            return flush(node) && addSet(node, kind(*points, letter));
        }
        constexpr std::array<std::pair<char32_t, Assertion>, 5> assertions{
            {{U'b', Assertion::WordEdge},
             {U'B', Assertion::NoWordEdge},
             {U'A', Assertion::TextStart},
             {U'Z', Assertion::TextEnd},
             {U'z', Assertion::VeryEnd}}};
        for (const auto &[name, what] : assertions) {
            if (letter == name) {
                ++at_;
                return flush(node) && assertion(node, what);
            }
        }
        if (isAsciiDigit(letter)) {
            return flush(node) && again(node);
        }
        const auto character = escaped();
        if (character) {
            run_ += *character;
        }
        return character.has_value();
    }

    bool again(PatternNode &node) {
        const std::size_t number = peek() - U'0';
        ++at_;
        const auto closed = mayBeEmpty_.find(number);
        if (closed == mayBeEmpty_.end() || isAsciiDigit(peek()) || flags_.ignoresCase) {
            return false;
        }
        PatternNode &made = node.parts.emplace_back();
        made.kind = Kind::Again;
        made.number = number;
        made.least = closed->second ? 0 : 1;
        tree_.hasAgain = true;
        return true;
    }

    // The character that a backslash and what follows stand for.
    std::optional<char32_t> escaped() {
        const char32_t letter = peek();
        if (letter == nothing) {
            return std::nullopt;
        }
        ++at_;
        switch (letter) {
        case U't':
            return U'\t';
        case U'n':
            return U'\n';
        case U'r':
            return U'\r';
        case U'f':
            return U'\f';
        case U'u':
            return hexadecimal(4);
        case U'x':
            return hexadecimal(2);
        default:
            return letter < 0x80 && !isAsciiLetter(letter) && !isAsciiDigit(letter)
                       ? std::optional(letter)
                       : std::nullopt;
        }
    }

    std::optional<char32_t> hexadecimal(std::size_t digits) {
        char32_t value = 0;
        for (; digits > 0; --digits, ++at_) {
            const char32_t digit = peek();
            if (isAsciiDigit(digit)) {
                value = 16 * value + (digit - U'0');
            } else if (isAsciiLetter(digit) && (digit | 0x20) <= U'f') {
                value = 16 * value + ((digit | 0x20) - U'a' + 10);
            } else {
                return std::nullopt;
            }
        }
        return U_IS_SURROGATE(value) ? std::nullopt : std::optional(value);
    }

    bool set(PatternNode &node) {
        const bool negated = take(U'^');
        CodePoints points;
        bool isFirst = true;
        for (; !take(U']'); isFirst = false) {
            if (!setItem(points, isFirst)) {
                return false;
            }
        }
        if (flags_.ignoresCase) {
            points = points.withOtherCases();
        }
        if (negated) {
            points = points.complement();
        }
        switch (points.sizeUpToTwo()) {
        case 0:
            return false;
        case 1: // is a literal to ICU, which counts where case is ignored
            run_ += points.spans().front().first;
            return true;
        default:
            return addSet(node, std::move(points));
        }
    }

    bool setItem(CodePoints &points, bool isFirst) {
        const char32_t first = peek();
        if (first == nothing || isOneOf(first, U"[&{}^") ||
            (first == U'-' && !isFirst && peek(1) != U']') ||
            (first == U'-' && isFirst && (peek(1) == U'-' || peek(1) == U']'))) {
            return false;
        }
        ++at_;
        if (first == U'\\') {
            if (const CodePoints *known = kindOf(peek())) {
                points.add(kind(*known, pattern_[at_++]));
                return peek() != U'-' || peek(1) == U']';
            }
            --at_;
        } else {
            --at_;
        }
        const auto begin = setCharacter();
        if (!begin) {
            return false;
        }
        auto end = begin;
        if (first != U'-' && peek() == U'-' && peek(1) != U']') {
            ++at_;
            if (isOneOf(peek(), U"[-")) {
                return false;
            }
            end = setCharacter();
        }
        if (!end || *end < *begin) {
            return false;
        }
        points.add(*begin, *end);
        return true;
    }

    std::optional<char32_t> setCharacter() {
        if (take(U'\\')) {
            return escaped();
        }
        if (peek() == nothing || peek() == U']') {
            return std::nullopt;
        }
        return pattern_[at_++];
    }

    // The run of literal characters as a part of the sequence.
    bool flush(PatternNode &node) {
        const std::u32string run = std::exchange(run_, {});
        if (!flags_.ignoresCase) {
            for (const char32_t character : run) {
                addSet(node, {character, character});
            }
            return true;
        }
        const std::u32string folded = foldedCase(run);
        if (folded.size() == 1) {
            return addSet(node, sameSimpleFolding(folded.front()));
        }
        if (folded.size() > 1) {
            PatternNode &made = node.parts.emplace_back();
            made.kind = Kind::Folded;
            made.folded = folded;
            tree_.hasFolded = true;
        }
        return true;
    }

    // ICU compares a single character by the folding that keeps it one.
    static CodePoints sameSimpleFolding(char32_t folded) {
        const CodePoints self(folded, folded);
        if (u_hasBinaryProperty(static_cast<UChar32>(folded), UCHAR_CASE_SENSITIVE) == 0) {
            return self;
        }
        CodePoints same;
        const CodePoints all = self.withOtherCases();
        for (const CodePoints::Span &span : all.spans()) {
            for (char32_t character = span.first; character <= span.last; ++character) {
                if (u_foldCase(static_cast<UChar32>(character), U_FOLD_CASE_DEFAULT) ==
                    static_cast<UChar32>(folded)) {
                    same.add(character, character);
                }
            }
        }
        return same;
    }

    std::u32string pattern_;
    Flags flags_;
    PatternTree tree_;
    std::u32string run_;
    std::size_t at_ = 0;
    int depth_ = 0;
    int lineStarts_ = 0;
    std::map<std::size_t, bool> mayBeEmpty_; // by group, once it is closed
    bool lastWasFlags_ = false;
};

} // namespace

bool PatternNode::mayBeEmpty() const {
    const auto empty = [](const PatternNode &part) { return part.mayBeEmpty(); };
    switch (kind) {
    case Kind::Set:
    case Kind::Folded:
        return false;
    case Kind::Sequence:
    case Kind::Group:
        return std::ranges::all_of(parts, empty);
    case Kind::Choice:
        return std::ranges::any_of(parts, empty);
    case Kind::Repeat:
        return least == 0 || parts.front().mayBeEmpty();
    case Kind::Again:
        return least == 0;
    case Kind::Assert:
        return true;
    }
    return true;
}

std::u32string foldedCase(std::u32string_view text) {
    std::u32string folded;
    for (const char32_t character : text) {
        std::array<char16_t, U16_MAX_LENGTH> units{};
        std::int32_t length = 0;
        U16_APPEND_UNSAFE(units, length, character);
        std::array<char16_t, 8> to{};
        UErrorCode status = U_ZERO_ERROR;
        const std::int32_t size = u_strFoldCase(to.data(), static_cast<std::int32_t>(to.size()),
                                                units.data(), length, U_FOLD_CASE_DEFAULT, &status);
        for (std::int32_t at = 0; at < size;) {
            UChar32 next = 0;
            U16_NEXT(to, at, size, next);
            folded += static_cast<char32_t>(next);
        }
    }
    return folded;
}

std::optional<PatternTree> parsePattern(std::u16string_view pattern, bool ignoresCase) {
    std::u32string characters;
    for (std::size_t at = 0; at < pattern.size();) {
        UChar32 next = 0;
        U16_NEXT(pattern, at, pattern.size(), next);
        if (U_IS_SURROGATE(next)) {
            return std::nullopt;
        }
        characters += static_cast<char32_t>(next);
    }
    Flags flags;
    flags.ignoresCase = ignoresCase;
    return Parser(std::move(characters), flags).parse();
}

} // namespace nerlo::text

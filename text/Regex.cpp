#include "text/Regex.h"

#include "text/CountedText.h"
#include "text/PatternLiteral.h"
#include "text/PatternSearch.h"
#include "text/PatternSyntax.h"
#include "text/Replace.h"
#include "text/ReplacementTemplate.h"

#include <unicode/uregex.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace nerlo::text {

namespace {

constexpr std::size_t longest = std::numeric_limits<std::int32_t>::max();

std::int32_t size32(std::size_t size) {
    return static_cast<std::int32_t>(std::min(size, longest));
}

// ICU reports every so many steps. A step is a saved state; it takes about ten nanoseconds, with
// what is done between two of them.
constexpr std::uint64_t stepsBetweenReports = 10'000;

// Runaway patterns are given up after half a second or so on a short text. Sound ones take up to
// some ten steps a unit, and more where each place may begin with any of many words.
constexpr std::uint64_t stepsPerUnit = 128;
std::uint64_t stepsAllowed(std::size_t units, std::size_t patternSize) {
    return 50'000'000 + std::uint64_t{units} * (stepsPerUnit + patternSize);
}

// A find that does not go on where the last one ended starts ICU's count again, and the steps since
// the last report are lost. What a jump over this many units can afford is charged for them, so
// that jumps alone never spend the budget.
constexpr std::size_t worthJumping = 32;
constexpr std::uint64_t stepsForJump = worthJumping * stepsPerUnit;

// A saved state holds every group and loop of the pattern, and copying it is what takes long.
std::uint64_t weightOfStep(std::u16string_view pattern, std::int32_t groups) {
    const auto loops = std::ranges::count_if(
        pattern, [](char16_t unit) { return unit == u'*' || unit == u'+' || unit == u'{'; });
    return 1 + (2 * static_cast<std::uint64_t>(groups) + static_cast<std::uint64_t>(loops)) / 6;
}

// Shorter texts are done before our own search is made.
constexpr std::size_t smallestForSearch = 4096;

// Where a text is counted by pieces, a step may look at most of a piece.
constexpr std::uint64_t weightOfFarStep = 8;

// Bytes for saved states. A greedy group takes about twelve a code unit.
std::int32_t memoryBudget(std::size_t units) {
    return size32((std::size_t{64} << 20) + 16 * units);
}

constexpr UnitSet marks = [] {
    UnitSet units(u"\u00AD");
    units.add(u'\u0300', u'\uFFFF'); // and much else
    return units;
}();

} // namespace

struct Regex::Matcher {
    URegularExpression *expression = nullptr;
    std::size_t patternSize = 0;
    std::optional<UnitSet> firstUnits; // of which one begins every match
    RequiredLiteral required;
    FarLooks farLooks = FarLooks::Never;
    std::uint64_t weight = 1;
    StepBudget budget;
    std::uint64_t charge = 0;            // for each report
    std::int64_t stopBehind = INT64_MAX; // where no match begins
    CountedText counted;
    std::u16string pattern;
    bool ignoresCase = false;
    std::optional<std::unique_ptr<PatternSearch>> search; // null if there can be none

    Matcher() = default;
    Matcher(const Matcher &) = delete;
    Matcher &operator=(const Matcher &) = delete;
    ~Matcher() { uregex_close(expression); }

    static UBool goOn(const void *context, std::int32_t) {
        StepBudget &budget = static_cast<Matcher *>(const_cast<void *>(context))->budget;
        budget.done += static_cast<const Matcher *>(context)->charge;
        return !budget.isSpent();
    }

    static UBool goOnFinding(const void *context, std::int64_t at) {
        const auto *const matcher = static_cast<const Matcher *>(context);
        return at <= matcher->stopBehind && !matcher->budget.isSpent();
    }

    bool looksFarIn(std::u16string_view text) const {
        return text.size() > CountedText::pieceSize &&
               (farLooks == FarLooks::Anywhere ||
                (farLooks == FarLooks::AcrossMarks && findUnit(text, 0, marks) != text.size()));
    }

    bool setText(std::u16string_view text);
    PatternSearch *searchFor(std::u16string_view text);
};

// One way through a text, match by match: with our own search, and with ICU where there is none or
// it gives the text up. ICU has its whole budget then, so that nothing is lost by having tried.
class Regex::Walk {
  public:
    Walk(Matcher &matcher, std::u16string_view text)
        : matcher_(matcher)
        , text_(text)
        , search_(matcher.searchFor(text)) {
        if (!search_) {
            beginWithIcu();
        }
    }

    bool next() {
        if (search_) {
            switch (nextBySearch()) {
            case Found::Yes:
                return true;
            case Found::No:
                return false;
            case Found::GivenUp:
                search_ = nullptr;
                beginWithIcu();
                goesOnFrom_ = from_;
            }
        }
        return good_ && nextByIcu();
    }

    // Of the match; the empty range at 0 for one that has no part in it. Group 0 is the match.
    Range group(std::int32_t number) {
        if (search_) {
            if (number == 0) {
                return match_;
            }
            if (std::exchange(groupsAreOfMatch_, true) || search_->findGroups() == Found::Yes) {
                return search_->group(static_cast<std::size_t>(number));
            }
            goOnWithIcuFromMatch();
        }
        const std::int64_t begin = uregex_start64(matcher_.expression, number, &status_);
        const std::int64_t end = uregex_end64(matcher_.expression, number, &status_);
        return begin < 0 ? Range{}
                         : Range{static_cast<std::size_t>(begin), static_cast<std::size_t>(end)};
    }

    // False when a budget ran out.
    bool isGood() const { return good_; }

  private:
    void beginWithIcu() {
        good_ = matcher_.setText(text_);
        if (good_ && matcher_.firstUnits) {
            cursor_.emplace(text_, *matcher_.firstUnits);
        }
        const Literal &literal = matcher_.required.literal;
        hasLiteral_ = !literal.units.empty() && !(literal.ignoresCase && foldsIntoAscii(text_));
        matcher_.stopBehind = INT64_MAX;
    }

    // When the groups take too much work for our own search.
    void goOnWithIcuFromMatch() {
        search_ = nullptr;
        beginWithIcu();
        const bool found =
            good_ && uregex_find64(matcher_.expression, static_cast<std::int64_t>(match_.begin),
                                   &status_) != 0;
        good_ = found && U_SUCCESS(status_) && !matcher_.budget.isSpent();
        end_ = match_.end;
    }

    Found nextBySearch() {
        if (from_ > text_.size()) {
            return Found::No;
        }
        const auto found = search_->find(from_, match_);
        if (found == Found::Yes) {
            groupsAreOfMatch_ = false;
            from_ = end_ = match_.end;
            if (match_.begin == match_.end && from_ < text_.size()) {
                U16_FWD_1(text_, from_, text_.size());
            } else if (match_.begin == match_.end) {
                ++from_;
            }
        }
        return found;
    }

    bool nextByIcu() {
        const bool found = find();
        // Once the budget is spent, what was found may be the work of a blank.
        good_ = U_SUCCESS(status_) && !matcher_.budget.isSpent();
        if (!good_ || !found) {
            return false;
        }
        end_ = group(0).end;
        return true;
    }

    bool find() {
        if (goesOnFrom_) {
            const std::size_t at = *std::exchange(goesOnFrom_, std::nullopt);
            return at <= text_.size() && findFrom(at);
        }
        for (std::size_t from = end_; toLiteral(from); from = lastLiteral_ + 1) {
            if (findBetween(from, std::max(from, literalsBegin_))) {
                return true;
            }
            // All places up to the last literal have been tried.
            const bool stopped =
                hasLiteral_ && status_ == U_REGEX_STOPPED_BY_CALLER && !matcher_.budget.isSpent();
            if (!stopped) {
                return false;
            }
            status_ = U_ZERO_ERROR;
        }
        return false;
    }

    // Whether a literal that every match needs stands at or behind `from`. Then literalsBegin_ and
    // lastLiteral_ are of the next ones between which jumping is not worth it.
    bool toLiteral(std::size_t from) {
        if (!hasLiteral_ || (lastLiteral_ != none && from <= lastLiteral_)) {
            return true;
        }
        const auto &[literal, inLine] = matcher_.required;
        std::size_t next = findLiteral(text_, from, literal);
        if (next == text_.size()) {
            return false;
        }
        literalsBegin_ = inLine ? beginOfLine(next, from) : from;
        do {
            lastLiteral_ = next;
            next = findLiteral(text_, next + 1, literal);
        } while (next != text_.size() &&
                 (!inLine || beginOfLine(next, lastLiteral_) - lastLiteral_ < worthJumping));
        matcher_.stopBehind = static_cast<std::int64_t>(lastLiteral_);
        return true;
    }

    std::size_t beginOfLine(std::size_t at, std::size_t least) const {
        while (at > least && !CodePoints::lineEnds().contains(text_[at - 1])) {
            --at;
        }
        return at;
    }

    // The next match; it does not begin before `least`. The last find went on up to `from`.
    bool findBetween(std::size_t from, std::size_t least) {
        if (cursor_) {
            least = cursor_->nextFrom(least);
            if (least == text_.size()) {
                return false;
            }
        }
        if (least - end_ >= worthJumping) {
            matcher_.budget.done += stepsForJump;
            return findFrom(least);
        }
        return from == end_ ? uregex_findNext(matcher_.expression, &status_) != 0 : findFrom(least);
    }

    bool findFrom(std::size_t at) {
        return uregex_find64(matcher_.expression, static_cast<std::int64_t>(at), &status_) != 0;
    }

    static constexpr std::size_t none = std::u16string_view::npos;

    Matcher &matcher_;
    std::u16string_view text_;
    PatternSearch *search_;
    Range match_{};        // found by our own search
    std::size_t from_ = 0; // where its next search begins; behind the text when there is none
    bool groupsAreOfMatch_ = false;
    std::optional<std::size_t> goesOnFrom_; // where ICU begins in its place
    std::optional<UnitCursor> cursor_;
    std::size_t end_ = 0; // of the last match
    bool hasLiteral_ = false;
    std::size_t literalsBegin_ = 0;
    std::size_t lastLiteral_ = none;
    UErrorCode status_ = U_ZERO_ERROR;
    bool good_ = true;
};

Regex::Regex(std::unique_ptr<Matcher> matcher)
    : matcher_(std::move(matcher)) {}
Regex::Regex(Regex &&) noexcept = default;
Regex &Regex::operator=(Regex &&) noexcept = default;
Regex::~Regex() = default;

std::optional<Regex> Regex::compile(std::u16string_view pattern, Case letterCase,
                                    PatternPlace *trouble) {
    if (trouble) {
        *trouble = {};
    }
    if (pattern.empty() || pattern.size() > longest / 2) {
        return std::nullopt;
    }
    auto matcher = std::make_unique<Matcher>();
    UErrorCode status = U_ZERO_ERROR;
    const std::uint32_t flags =
        letterCase == Case::Insensitive ? std::uint32_t{UREGEX_CASE_INSENSITIVE} : 0u;
    const auto open = [&](std::u16string_view source) {
        UParseError place{};
        auto *const expression =
            uregex_open(source.data(), size32(source.size()), flags, &place, &status);
        if (U_FAILURE(status) && trouble) {
            *trouble = {std::max(place.line, 1), std::max(place.offset, 1)};
        }
        return expression;
    };
    const std::u16string sooner = withFewerStarts(pattern);
    matcher->expression = open(sooner);
    if (U_FAILURE(status) && sooner != pattern) {
        status = U_ZERO_ERROR;
        matcher->expression = open(pattern); // a place in the pattern as it was given
    }
    if (U_FAILURE(status)) {
        return std::nullopt;
    }
    matcher->pattern = pattern;
    matcher->ignoresCase = letterCase == Case::Insensitive;
    matcher->patternSize = pattern.size();
    matcher->farLooks = farLooks(pattern);
    matcher->weight = weightOfStep(pattern, uregex_groupCount(matcher->expression, &status));
    if (letterCase == Case::Sensitive) {
        matcher->firstUnits = firstUnits(pattern);
    }
    matcher->required = requiredLiteral(pattern, letterCase == Case::Insensitive);
    uregex_setMatchCallback(matcher->expression, Matcher::goOn, matcher.get(), &status);
    return U_SUCCESS(status) ? std::optional(Regex(std::move(matcher))) : std::nullopt;
}

PatternSearch *Regex::Matcher::searchFor(std::u16string_view text) {
    if (text.size() < smallestForSearch || text.size() > longest) {
        return nullptr;
    }
    if (!search) {
        search = PatternSearch::make(pattern, ignoresCase);
    }
    if (*search) {
        (*search)->setText(text);
    }
    return search->get();
}

bool Regex::Matcher::setText(std::u16string_view text) {
    if (text.size() > longest) {
        return false;
    }
    UErrorCode status = U_ZERO_ERROR;
    budget = {0, stepsAllowed(text.size(), patternSize)};
    charge = weight * stepsBetweenReports;
    if (looksFarIn(text)) {
        charge *= weightOfFarStep;
        UText *const pieces = counted.open(text, budget);
        if (!pieces) {
            return false;
        }
        uregex_setUText(expression, pieces, &status);
    } else {
        uregex_setText(expression, text.empty() ? u"" : text.data(), size32(text.size()), &status);
    }
    const bool asks = looksFarIn(text) || !required.literal.units.empty();
    uregex_setFindProgressCallback(expression, asks ? goOnFinding : nullptr, asks ? this : nullptr,
                                   &status);
    uregex_setStackLimit(expression, memoryBudget(text.size()), &status);
    return U_SUCCESS(status);
}

std::size_t Regex::groups() const {
    UErrorCode status = U_ZERO_ERROR;
    return static_cast<std::size_t>(uregex_groupCount(matcher_->expression, &status));
}

std::optional<bool> Regex::occursIn(std::u16string_view text) {
    Walk walk(*matcher_, text);
    const bool found = walk.next();
    return walk.isGood() ? std::optional(found) : std::nullopt;
}

std::optional<std::vector<Range>> Regex::findAll(std::u16string_view text) {
    std::vector<Range> ranges;
    Walk walk(*matcher_, text);
    while (walk.next()) {
        ranges.push_back(walk.group(0));
    }
    return walk.isGood() ? std::optional(std::move(ranges)) : std::nullopt;
}

namespace {

struct Replaced {
    Range match;
    std::size_t size; // of what takes its place
};

// In the text's own memory if it gets longer at no place.
std::u16string withReplaced(std::u16string text, const std::vector<Replaced> &replaced,
                            std::u16string_view inserted) {
    std::size_t size = text.size();
    bool fits = true;
    for (const auto &[match, length] : replaced) {
        size = size - (match.end - match.begin) + length;
        fits = fits && size <= text.size();
    }
    std::u16string made;
    if (!fits) {
        made.resize(size);
    }
    char16_t *to = fits ? text.data() : made.data();
    std::size_t copied = 0;
    const auto copy = [&to](const char16_t *from, std::size_t count) {
        std::char_traits<char16_t>::move(to, from, count);
        to += count;
    };
    for (const auto &[match, length] : replaced) {
        copy(text.data() + copied, match.begin - copied);
        copy(inserted.data(), length);
        inserted.remove_prefix(length);
        copied = match.end;
    }
    copy(text.data() + copied, text.size() - copied);
    if (fits) {
        text.resize(size);
        return text;
    }
    return made;
}

} // namespace

bool Regex::replaceAll(std::u16string &text, std::u16string_view replacement) {
    const auto pieces = parseTemplate(replacement, matcher_->expression);
    if (pieces.size() == 1) {
        const auto matches = findAll(text);
        if (matches) {
            text = replaceRanges(std::move(text), *matches, pieces.front().text);
        }
        return matches.has_value();
    }
    const std::u16string_view source = text;
    std::u16string inserted; // for one match after another
    std::vector<Replaced> replaced;
    Walk walk(*matcher_, text);
    while (walk.next()) {
        const Range match = walk.group(0);
        const std::size_t before = inserted.size();
        for (const TemplatePiece &piece : pieces) {
            inserted.append(piece.text);
            if (piece.group != TemplatePiece::noGroup) {
                const Range part = walk.group(piece.group);
                inserted.append(source, part.begin, part.end - part.begin);
            }
        }
        replaced.push_back({match, inserted.size() - before});
    }
    if (walk.isGood()) {
        text = withReplaced(std::move(text), replaced, inserted);
    }
    return walk.isGood();
}

} // namespace nerlo::text

#include "text/Regex.h"

#include "text/Replace.h"
#include "text/UnitScan.h"

#include <unicode/uregex.h>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cstdint>
#include <limits>
#include <utility>

#include <time.h>

namespace nerlo::text {

namespace {

using Nanoseconds = std::chrono::nanoseconds;

// By a clock that costs next to nothing to read, because it is read often, and is good to some
// milliseconds.
Nanoseconds now() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC_COARSE, &time);
    return std::chrono::seconds(time.tv_sec) + Nanoseconds(time.tv_nsec);
}

constexpr std::size_t longest = std::numeric_limits<std::int32_t>::max();

std::int32_t size32(std::size_t size) {
    return static_cast<std::int32_t>(std::min(size, longest));
}

// ICU counts 10,000 saved states as one unit of time (0.1 to 0.3 ms), over all finds in one text.
// A sound pattern uses less than one unit in 6,000 code units.
std::int32_t stepBudget(std::size_t units) {
    return size32(1500 + units / 1000);
}

// For patterns that scan far from every position but save no states on the way.
Nanoseconds timeBudget(std::size_t units) {
    return std::chrono::milliseconds(700) + std::chrono::microseconds(units);
}

// Bytes for saved states. A greedy group takes about twelve a code unit.
std::int32_t memoryBudget(std::size_t units) {
    return size32((std::size_t{64} << 20) + 16 * units);
}

bool isAsciiAlphanumeric(char16_t unit) {
    return unit < 0x80 && std::isalnum(unit) != 0;
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

// Units of which one begins every match, where that shows at the pattern's own beginning: in most
// patterns that people write, a character or a class, neither of them optional. ICU tries each
// position of a text by itself; these are found many at a time.
std::optional<UnitSet> firstUnits(std::u16string_view pattern) {
    // "|" may bring another beginning, "\G" asks where the match before ended.
    if (pattern.find(u'|') != std::u16string_view::npos ||
        pattern.find(u"\\G") != std::u16string_view::npos) {
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

} // namespace

struct Regex::Matcher {
    URegularExpression *expression = nullptr;
    std::optional<UnitSet> firstUnits; // of which one begins every match
    Nanoseconds deadline{};
    unsigned untilClock = 0;

    Matcher() = default;
    Matcher(const Matcher &) = delete;
    Matcher &operator=(const Matcher &) = delete;
    ~Matcher() { uregex_close(expression); }

    bool inTime() { return ++untilClock % 16 != 0 || now() < deadline; }

    static UBool keepFinding(const void *context, std::int64_t) {
        return static_cast<Matcher *>(const_cast<void *>(context))->inTime();
    }

    static UBool keepMatching(const void *context, std::int32_t) {
        return now() < static_cast<const Matcher *>(context)->deadline;
    }
};

Regex::Regex(std::unique_ptr<Matcher> matcher)
    : matcher_(std::move(matcher)) {}
Regex::Regex(Regex &&) noexcept = default;
Regex &Regex::operator=(Regex &&) noexcept = default;
Regex::~Regex() = default;

std::optional<Regex> Regex::compile(std::u16string_view pattern, Case letterCase) {
    if (pattern.empty() || pattern.size() > longest) {
        return std::nullopt;
    }
    auto matcher = std::make_unique<Matcher>();
    UErrorCode status = U_ZERO_ERROR;
    const std::uint32_t flags =
        letterCase == Case::Insensitive ? std::uint32_t{UREGEX_CASE_INSENSITIVE} : 0u;
    matcher->expression =
        uregex_open(pattern.data(), size32(pattern.size()), flags, nullptr, &status);
    if (U_FAILURE(status)) {
        return std::nullopt;
    }
    if (letterCase == Case::Sensitive) {
        matcher->firstUnits = firstUnits(pattern);
    }
    uregex_setFindProgressCallback(matcher->expression, Matcher::keepFinding, matcher.get(),
                                   &status);
    uregex_setMatchCallback(matcher->expression, Matcher::keepMatching, matcher.get(), &status);
    return Regex(std::move(matcher));
}

bool Regex::setText(std::u16string_view text) {
    if (text.size() > longest) {
        return false;
    }
    UErrorCode status = U_ZERO_ERROR;
    uregex_setText(matcher_->expression, text.empty() ? u"" : text.data(), size32(text.size()),
                   &status);
    uregex_setTimeLimit(matcher_->expression, stepBudget(text.size()), &status);
    uregex_setStackLimit(matcher_->expression, memoryBudget(text.size()), &status);
    matcher_->deadline = now() + timeBudget(text.size());
    matcher_->untilClock = 0;
    return U_SUCCESS(status);
}

std::optional<bool> Regex::occursIn(std::u16string_view text) {
    if (!setText(text)) {
        return std::nullopt;
    }
    UErrorCode status = U_ZERO_ERROR;
    const bool found = uregex_find(matcher_->expression, 0, &status) != 0;
    return U_SUCCESS(status) ? std::optional(found) : std::nullopt;
}

std::optional<std::vector<Range>> Regex::findAll(std::u16string_view text) {
    if (!setText(text)) {
        return std::nullopt;
    }
    std::vector<Range> ranges;
    UErrorCode status = U_ZERO_ERROR;
    URegularExpression *const expression = matcher_->expression;
    // ICU watches the time only where it finds nothing.
    const auto take = [&] {
        ranges.push_back({static_cast<std::size_t>(uregex_start(expression, 0, &status)),
                          static_cast<std::size_t>(uregex_end(expression, 0, &status))});
        return matcher_->inTime();
    };
    bool inTime = true;
    if (matcher_->firstUnits) {
        UnitCursor cursor(text, *matcher_->firstUnits);
        for (std::size_t at = cursor.next();
             inTime && at < text.size() && uregex_find(expression, size32(at), &status);
             at = cursor.nextFrom(ranges.back().end)) {
            inTime = take();
        }
    } else {
        while (inTime && uregex_findNext(expression, &status)) {
            inTime = take();
        }
    }
    return inTime && U_SUCCESS(status) ? std::optional(std::move(ranges)) : std::nullopt;
}

bool Regex::replaceAll(std::u16string &text, std::u16string_view replacement) {
    if (replacement.find_first_of(u"$\\") != std::u16string_view::npos) {
        return expandAll(text, replacement);
    }
    const auto matches = findAll(text);
    if (!matches) {
        return false;
    }
    text = replaceRanges(std::move(text), *matches, replacement);
    return true;
}

// ICU expands the template; it needs a buffer that is large enough beforehand.
bool Regex::expandAll(std::u16string &text, std::u16string_view replacement) {
    if (!setText(text) || replacement.size() > longest) {
        return false;
    }
    URegularExpression *const expression = matcher_->expression;
    const auto dollars = static_cast<std::size_t>(std::ranges::count(replacement, u'$'));
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t groups = uregex_groupCount(expression, &status);
    std::u16string result;
    std::u16string piece;
    std::size_t copied = 0;
    while (uregex_findNext(expression, &status)) {
        if (!matcher_->inTime()) {
            return false;
        }
        const auto begin = static_cast<std::size_t>(uregex_start(expression, 0, &status));
        std::size_t longestGroup = 0;
        for (std::int32_t group = 0; group <= groups; ++group) {
            longestGroup = std::max(
                longestGroup, static_cast<std::size_t>(uregex_end(expression, group, &status) -
                                                       uregex_start(expression, group, &status)));
        }
        const std::size_t capacity =
            begin - copied + replacement.size() + dollars * longestGroup + 1;
        if (capacity > longest) {
            return false;
        }
        piece.resize(capacity);
        char16_t *to = piece.data();
        std::int32_t left = size32(capacity);
        const std::int32_t written = uregex_appendReplacement(
            expression, replacement.data(), size32(replacement.size()), &to, &left, &status);
        if (U_FAILURE(status)) {
            return false;
        }
        result.append(piece, 0, static_cast<std::size_t>(written));
        copied = static_cast<std::size_t>(uregex_end(expression, 0, &status));
    }
    if (U_FAILURE(status)) {
        return false;
    }
    result.append(text, copied);
    text = std::move(result);
    return true;
}

} // namespace nerlo::text

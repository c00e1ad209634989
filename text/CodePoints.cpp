#include "text/CodePoints.h"

#include <unicode/uset.h>

#include <algorithm>
#include <iterator>
#include <memory>

namespace nerlo::text {

namespace {

constexpr char32_t lastCodePoint = 0x10FFFF;

struct CloseSet {
    void operator()(USet *set) const { uset_close(set); }
};
using IcuSet = std::unique_ptr<USet, CloseSet>;

CodePoints fromIcu(const USet *set) {
    CodePoints points;
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t count = uset_getItemCount(set);
    for (std::int32_t item = 0; item < count; ++item) {
        UChar32 first = 0;
        UChar32 last = 0;
        if (uset_getItem(set, item, &first, &last, nullptr, 0, &status) == 0) { // not a string
            points.add(static_cast<char32_t>(first), static_cast<char32_t>(last));
        }
    }
    return points;
}

} // namespace

CodePoints CodePoints::ofPattern(std::u16string_view pattern) {
    UErrorCode status = U_ZERO_ERROR;
    const IcuSet set(
        uset_openPattern(pattern.data(), static_cast<std::int32_t>(pattern.size()), &status));
    return U_SUCCESS(status) ? fromIcu(set.get()) : CodePoints();
}

const CodePoints &CodePoints::word() {
    static const CodePoints points =
        ofPattern(u"[\\p{Alphabetic}\\p{M}\\p{Nd}\\p{Pc}\\u200c\\u200d]");
    return points;
}

const CodePoints &CodePoints::digit() {
    static const CodePoints points = ofPattern(u"[\\p{Nd}]");
    return points;
}

const CodePoints &CodePoints::space() {
    static const CodePoints points = ofPattern(u"[\\p{WhiteSpace}]");
    return points;
}

const CodePoints &CodePoints::marks() {
    static const CodePoints points = ofPattern(u"[\\p{Grapheme_Extend}\\p{Cf}]");
    return points;
}

const CodePoints &CodePoints::lineEnds() {
    static const CodePoints points = [] {
        CodePoints ends(u'\n', u'\r');
        ends.add(u'\u0085', u'\u0085');
        ends.add(u'\u2028', u'\u2029');
        return ends;
    }();
    return points;
}

void CodePoints::add(char32_t first, char32_t last) {
    const auto touches =
        std::ranges::find_if(spans_, [&](const Span &span) { return first <= span.last + 1; });
    auto behind = touches;
    for (; behind != spans_.end() && behind->first <= last + 1; ++behind) {
        first = std::min(first, behind->first);
        last = std::max(last, behind->last);
    }
    spans_.insert(spans_.erase(touches, behind), {first, last});
}

void CodePoints::add(const CodePoints &other) {
    std::vector<Span> both;
    both.reserve(spans_.size() + other.spans_.size());
    std::ranges::merge(spans_, other.spans_, std::back_inserter(both), {}, &Span::first,
                       &Span::first);
    spans_.clear();
    for (const Span &span : both) {
        if (!spans_.empty() && span.first <= spans_.back().last + 1) {
            spans_.back().last = std::max(spans_.back().last, span.last);
        } else {
            spans_.push_back(span);
        }
    }
}

CodePoints CodePoints::complement() const {
    CodePoints others;
    char32_t next = 0;
    for (const Span &span : spans_) {
        if (span.first > next) {
            others.spans_.push_back({next, span.first - 1});
        }
        next = span.last + 1;
    }
    if (next <= lastCodePoint) {
        others.spans_.push_back({next, lastCodePoint});
    }
    return others;
}

CodePoints CodePoints::withOtherCases() const {
    const IcuSet set(uset_openEmpty());
    for (const Span &span : spans_) {
        uset_addRange(set.get(), static_cast<UChar32>(span.first), static_cast<UChar32>(span.last));
    }
    uset_closeOver(set.get(), USET_CASE_INSENSITIVE);
    return fromIcu(set.get());
}

bool CodePoints::contains(char32_t character) const {
    const auto span = std::ranges::lower_bound(spans_, character, {}, &Span::last);
    return span != spans_.end() && span->first <= character;
}

std::uint32_t CodePoints::sizeUpToTwo() const {
    if (spans_.empty()) {
        return 0;
    }
    return spans_.size() == 1 && spans_.front().first == spans_.front().last ? 1 : 2;
}

} // namespace nerlo::text

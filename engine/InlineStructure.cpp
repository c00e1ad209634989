#include "engine/InlineStructure.h"

#include "text/Ascii.h"
#include "text/CaseMapping.h"
#include "text/UnitClasses.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <bit>
#include <map>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;
using text::isAsciiDigit;
using text::isAsciiLetter;
using text::Range;

bool isOneOf(char16_t unit, View units) {
    return units.find(unit) != View::npos;
}

bool isInAddress(char16_t unit) {
    return unit > u' ' && unit != u'\u00A0' &&
           !isOneOf(unit, u"<>\"`|\\^{}\u201C\u201D\u2018\u00AB\u00BB");
}

bool isInMailName(char16_t unit) {
    return isAsciiLetter(unit) || isAsciiDigit(unit) || isOneOf(unit, u"._%+-");
}

bool isInHost(char16_t unit) {
    return isAsciiLetter(unit) || isAsciiDigit(unit) || unit == u'.' || unit == u'-';
}

constexpr text::UnitClasses classes = [] {
    text::UnitClasses some;
    some.add(0, inlineMarks);
    some.add(1, text::UnitSet(u"w"));
    return some;
}();

// Walks over the places of a text in order.
class PlaceCursor {
  public:
    explicit PlaceCursor(const PlacedText &text)
        : places_(text.places)
        , begin_(text.begin)
        , end_(text.begin + text.text.size()) {}

    // The first place at or behind `from`, or the text's size.
    std::size_t nextFrom(std::size_t from) const {
        const std::size_t at = begin_ + from;
        if (at >= end_) {
            return end_ - begin_;
        }
        std::size_t word = at / 64;
        std::uint64_t mask = places_[word] & ~std::uint64_t{0} << at % 64;
        while (mask == 0) {
            if (++word * 64 >= end_) {
                return end_ - begin_;
            }
            mask = places_[word];
        }
        const std::size_t place = word * 64 + static_cast<std::size_t>(std::countr_zero(mask));
        return std::min(place, end_) - begin_;
    }

  private:
    const InlinePlaces &places_;
    const std::size_t begin_;
    const std::size_t end_;
};

class InlineScan {
  public:
    InlineScan(View text, std::span<const std::size_t> breaks, bool tagsGo,
               std::vector<Range> &ranges)
        : text_(text)
        , breaks_(breaks)
        , tagsGo_(tagsGo)
        , ranges_(ranges) {}

    void run(const PlaceCursor &cursor) {
        for (std::size_t at = cursor.nextFrom(0); at < text_.size();) {
            at = cursor.nextFrom(std::max(at + 1, after(at)));
        }
    }

  private:
    // Where to go on behind the mark at `at`.
    std::size_t after(std::size_t at) {
        switch (text_[at]) {
        case u'`':
            return code(at);
        case u'\\': // a mark behind it is none
            return at + 1 < text_.size() && !structureSigns.contains(text_[at + 1]) ? at + 2
                                                                                    : at + 1;
        case u'<':
            return tag(at);
        case u'@':
            return mail(at);
        case u':':
            return text_.substr(at).starts_with(u"://") ? address(schemeBefore(at), at) : at;
        case u']':
            return text_.substr(at).starts_with(u"](") ? link(at) : at;
        case u'\'':
        case u'\u2019':
            return isInsideWord(at) ? add(at, at + 1) : at;
        case u'w': // the second one
            return at > 0 && text_.substr(at - 1).starts_with(u"www.") && startsWord(at - 1)
                       ? address(at - 1, at - 1)
                       : at;
        default:
            return structureSigns.contains(text_[at]) && !isBreak(at) ? add(at, at + 1) : at;
        }
    }

    bool isBreak(std::size_t at) const { return std::ranges::binary_search(breaks_, at); }

    std::size_t add(std::size_t begin, std::size_t end) {
        while (!ranges_.empty() && ranges_.back().begin >= begin) {
            ranges_.pop_back();
        }
        if (!ranges_.empty() && ranges_.back().end > begin) {
            begin = ranges_.back().end;
        }
        if (begin < end) {
            ranges_.push_back({begin, end});
        }
        return end;
    }

    std::size_t limit() const { return ranges_.empty() ? 0 : ranges_.back().end; }

    bool startsWord(std::size_t at) const {
        return at == 0 || (!isAsciiLetter(text_[at - 1]) && !isAsciiDigit(text_[at - 1]));
    }

    // An apostrophe. In scripts without letter case it may well be a quotation mark.
    bool isInsideWord(std::size_t at) const {
        const auto isLetter = [&](std::size_t place) {
            return text::letterCase(text_[place]) != text::LetterCase::Caseless;
        };
        return at > limit() && at + 1 < text_.size() && isLetter(at - 1) && isLetter(at + 1);
    }

    // The end of the paragraph that `at` stands in.
    std::size_t paragraphEnd(std::size_t at) {
        if (at >= paragraphEnd_) {
            closers_.clear();
            paragraphEnd_ = text_.size();
            for (std::size_t line = text_.find_first_of(u"\r\n", at); line < text_.size();
                 line = text_.find_first_of(u"\r\n", line)) {
                line += text_.substr(line).starts_with(u"\r\n") ? 2 : 1;
                const std::size_t ink =
                    std::min(text_.find_first_not_of(u" \t", line), text_.size());
                if (ink < text_.size() && isOneOf(text_[ink], u"\r\n")) {
                    paragraphEnd_ = line;
                    break;
                }
            }
            const View paragraph = text_.substr(0, paragraphEnd_);
            for (std::size_t run = text::findUnit(paragraph, at, u'`'); run < paragraphEnd_;) {
                const std::size_t end = std::min(text_.find_first_not_of(u'`', run), text_.size());
                closers_[end - run].push_back(run);
                run = text::findUnit(paragraph, end, u'`');
            }
            for (auto &[size, places] : closers_) {
                std::ranges::reverse(places);
            }
        }
        return paragraphEnd_;
    }

    // "`code`": up to as many marks in the same paragraph.
    std::size_t code(std::size_t at) {
        const std::size_t end = std::min(text_.find_first_not_of(u'`', at), text_.size());
        paragraphEnd(at);
        auto &places = closers_[end - at];
        while (!places.empty() && places.back() <= at) {
            places.pop_back();
        }
        return places.empty() ? end : add(at, places.back() + (end - at));
    }

    std::size_t tag(std::size_t at) {
        const std::size_t behind = at + 1;
        if (behind >= text_.size() ||
            !(isAsciiLetter(text_[behind]) || isOneOf(text_[behind], u"/!?"))) {
            return at;
        }
        const std::size_t end = paragraphEnd(at);
        if (at >= noTagFrom_ && at < noTagTo_) {
            return at;
        }
        const std::size_t close = text_.substr(0, end).find(u'>', behind);
        if (close == View::npos) {
            noTagFrom_ = at;
            noTagTo_ = end;
            return at;
        }
        const View inside = text_.substr(behind, close - behind);
        const bool isAddress =
            inside.find_first_of(u" \n") == View::npos &&
            (inside.find(u':') != View::npos || inside.find(u'@') != View::npos) &&
            inside.find(u'=') == View::npos;
        const bool goes =
            tagsGo_ && !isAddress && text::findUnit(inside, 0, structureSigns) == inside.size();
        return goes ? close + 1 : add(at, close + 1);
    }

    std::size_t mail(std::size_t at) {
        std::size_t begin = at;
        while (begin > limit() && isInMailName(text_[begin - 1])) {
            --begin;
        }
        std::size_t end = at + 1;
        while (end < text_.size() && isInHost(text_[end])) {
            ++end;
        }
        while (end > at + 1 && isOneOf(text_[end - 1], u".-")) {
            --end;
        }
        return begin < at && end > at + 1 ? add(begin, end) : at;
    }

    std::size_t schemeBefore(std::size_t at) const {
        std::size_t begin = at;
        while (begin > limit() &&
               (isAsciiLetter(text_[begin - 1]) || isAsciiDigit(text_[begin - 1]) ||
                isOneOf(text_[begin - 1], u"+.-"))) {
            --begin;
        }
        return begin;
    }

    // From `begin` on, over `at`. What ends a sentence does not belong to it.
    std::size_t address(std::size_t begin, std::size_t at) {
        std::size_t end = at;
        while (end < text_.size() && isInAddress(text_[end]) &&
               !structureSigns.contains(text_[end])) {
            ++end;
        }
        while (end > at && isOneOf(text_[end - 1], u".,;:!?'")) {
            --end;
        }
        return end > at + 3 && begin < end ? add(begin, end) : at;
    }

    // "](address "title")", on one line.
    std::size_t link(std::size_t at) {
        std::size_t depth = 0;
        for (std::size_t end = at + 1; end < text_.size() && end < at + longestLink; ++end) {
            const char16_t unit = text_[end];
            if (isOneOf(unit, u"\r\n") || (structureSigns.contains(unit) && isBreak(end))) {
                break;
            }
            depth += unit == u'(' ? 1 : 0;
            depth -= unit == u')' ? 1 : 0;
            if (depth == 0) {
                return add(at, end + 1);
            }
        }
        return at;
    }

    static constexpr std::size_t longestLink = 2048;

    const View text_;
    const std::span<const std::size_t> breaks_;
    const bool tagsGo_;
    std::vector<Range> &ranges_;
    std::size_t paragraphEnd_ = 0;
    std::map<std::size_t, std::vector<std::size_t>> closers_; // places of marks by their number
    std::size_t noTagFrom_ = 0;
    std::size_t noTagTo_ = 0;
};

} // namespace

void findInlinePlaces(View text, InlinePlaces &places) {
    places.clear();
    std::uint64_t before = 0;
    for (std::size_t at = 0; at < text.size(); at += text::scanBlock) {
        const std::size_t left = std::min(text.size() - at, text::scanBlock);
        const text::ClassMasks found = left == text::scanBlock
                                           ? text::scanClasses(text.data() + at, classes)
                                           : text::scanTailClasses(text.data() + at, left, classes);
        places.push_back(found[0] | (found[1] & (found[1] << 1 | before >> 63)));
        before = found[1];
    }
}

void findInlineStructure(const PlacedText &text, std::span<const std::size_t> breaks, bool tagsGo,
                         std::vector<Range> &ranges) {
    ranges.clear();
    InlineScan(text.text, breaks, tagsGo, ranges).run(PlaceCursor(text));
}

} // namespace nerlo::engine

#include "text/Segmentation.h"

#include "text/BreakIterators.h"
#include "text/SentenceRules.h"
#include "text/UnitScan.h"
#include "text/WordClasses.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <bit>
#include <cstddef>

namespace nerlo::text {

namespace {

// ICU addresses texts by 32-bit numbers. A longer text is cut after a line feed, where every kind
// of segment ends anyway.
constexpr std::size_t longestPiece = std::size_t{1} << 30;

std::u16string_view takePiece(std::u16string_view &text) {
    std::size_t size = text.size();
    if (size > longestPiece) {
        const std::size_t feed = text.substr(0, longestPiece).rfind(u'\n');
        size = feed == std::u16string_view::npos ? longestPiece : feed + 1;
    }
    const std::u16string_view piece = text.substr(0, size);
    text.remove_prefix(size);
    return piece;
}

bool setText(UBreakIterator *iterator, std::u16string_view piece) {
    UErrorCode status = U_ZERO_ERROR;
    ubrk_setText(iterator, piece.data(), static_cast<std::int32_t>(piece.size()), &status);
    return U_SUCCESS(status);
}

} // namespace

SegmentRules trustedRules() {
    static const SegmentRules rules = [] {
        UVersionInfo version;
        u_getUnicodeVersion(version);
        // A newer version may be added once the tests of the segments pass with it.
        return version[0] == 15 && version[1] == 0 ? SegmentRules::Own : SegmentRules::Icu;
    }();
    return rules;
}

void forEachSentence(std::u16string_view text, const std::string &locale,
                     const std::function<void(std::u16string_view)> &visit, SegmentRules rules) {
    if (rules == SegmentRules::Own && hasRootSentenceRules(locale)) {
        SentenceEnds ends(text);
        for (std::size_t begin = 0, end = 0; begin < text.size(); begin = end) {
            end = ends.endOf(begin);
            visit(text.substr(begin, end - begin));
        }
        return;
    }
    UBreakIterator *const iterator = breakIterator(UBRK_SENTENCE, locale);
    while (!text.empty()) {
        const std::u16string_view piece = takePiece(text);
        if (!iterator || !setText(iterator, piece)) {
            visit(piece);
            continue;
        }
        std::int32_t begin = ubrk_first(iterator);
        for (std::int32_t end = ubrk_next(iterator); end != UBRK_DONE;
             begin = end, end = ubrk_next(iterator)) {
            visit(piece.substr(static_cast<std::size_t>(begin),
                               static_cast<std::size_t>(end - begin)));
        }
    }
}

namespace {

std::uint64_t countWithRules(std::u16string_view text, const std::string &locale) {
    UBreakIterator *const iterator = breakIterator(UBRK_WORD, locale);
    std::uint64_t words = 0;
    while (!text.empty()) {
        const std::u16string_view piece = takePiece(text);
        if (!iterator || !setText(iterator, piece)) {
            continue;
        }
        ubrk_first(iterator);
        while (ubrk_next(iterator) != UBRK_DONE) {
            words += ubrk_getRuleStatus(iterator) >= UBRK_WORD_NONE_LIMIT ? 1 : 0;
        }
    }
    return words;
}

bool isBlank(char16_t unit) {
    return unit == u' ' || unit == u'\n' || unit == u'\r' || unit == u'\t';
}

// Counts the words that begin.
class WordTally {
  public:
    void add(WordClass unit) { words_ += begins_.add(unit) ? 1 : 0; }
    void add(const AsciiWordBits &bits) {
        words_ += static_cast<std::uint64_t>(std::popcount(begins_.add(bits)));
    }
    void reset() { begins_.reset(); }
    void addWords(std::uint64_t words) { words_ += words; }
    std::uint64_t words() const { return words_; }

  private:
    std::uint64_t words_ = 0;
    WordBegins begins_;
};

// No word rule looks across a blank, except that a combining mark right behind a blank belongs to
// it. So each token between two blanks is counted by itself, and only tokens with something special
// are given to ICU.
class WordCounter {
  public:
    WordCounter(std::u16string_view text, const std::string &locale)
        : text_(text)
        , locale_(locale) {}

    std::uint64_t count() {
        std::size_t at = 0;
        while (at < text_.size()) {
            if (text_.size() - at >= scanBlock) {
                AsciiWordBits bits;
                if (scanAsciiWords(text_.data() + at, bits)) {
                    tally_.add(bits);
                    at += scanBlock;
                    continue;
                }
            }
            const std::size_t end = std::min(at + scanBlock, text_.size());
            while (at < end) {
                const WordClass unit = wordClass(text_[at]);
                if (unit == WordClass::Ask) {
                    at = countByRules(at);
                    break;
                }
                tally_.add(unit);
                ++at;
            }
        }
        return tally_.words();
    }

  private:
    // Has ICU count the token around `at`, together with neighbouring tokens that need ICU as well.
    // Returns where they end.
    std::size_t countByRules(std::size_t at) {
        std::size_t begin = at;
        while (begin > 0 && !isBlank(text_[begin - 1])) {
            --begin;
        }
        WordTally countedBefore;
        for (std::size_t i = begin; i < at; ++i) {
            countedBefore.add(wordClass(text_[i]));
        }
        std::size_t end = at;
        for (std::size_t next = endOfSpecialToken(at); next > end; next = endOfSpecialToken(end)) {
            end = next;
        }
        begin -= begin > 0 ? 1 : 0; // the blank that a mark may belong to
        tally_.addWords(countWithRules(text_.substr(begin, end - begin), locale_) -
                        countedBefore.words());
        tally_.reset();
        return end;
    }

    // The end of the next token behind `from`, the blanks before it included, if that token needs
    // ICU; else `from`.
    std::size_t endOfSpecialToken(std::size_t from) const {
        std::size_t at = from;
        while (at < text_.size() && isBlank(text_[at])) {
            ++at;
        }
        bool special = false;
        for (; at < text_.size() && !isBlank(text_[at]); ++at) {
            special = special || wordClass(text_[at]) == WordClass::Ask;
        }
        return special ? at : from;
    }

    std::u16string_view text_;
    const std::string &locale_;
    WordTally tally_;
};

} // namespace

std::uint64_t countWordSegments(std::u16string_view text, const std::string &locale,
                                SegmentRules rules) {
    return rules == SegmentRules::Own && hasRootWordRules(locale)
               ? WordCounter(text, locale).count()
               : countWithRules(text, locale);
}

WordJoint wordJoint(char16_t before, char16_t after) {
    const auto isPlain = [](char16_t unit) {
        return unit < 0x80 &&
               (wordClass(unit) == WordClass::Letter || wordClass(unit) == WordClass::Digit);
    };
    // A mark belongs to what stands before it, unless that is a line break.
    const bool isBreak = before == u'\n' || before == u'\r';
    const bool isMark = wordClass(after) == WordClass::Ask && u_isalpha(after) == 0;
    const bool isStop = before == u'\u3001' || before == u'\u3002' || before == u'\uFF0C';
    if (isBreak || ((isBlank(before) || isStop) && !isMark)) {
        return WordJoint::apart;
    }
    return isPlain(before) && isPlain(after) ? WordJoint::sameWord : WordJoint::unknown;
}

} // namespace nerlo::text

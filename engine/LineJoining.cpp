#include "engine/LineJoining.h"

#include "engine/Whitespace.h"
#include "text/Ascii.h"
#include "text/CaseMapping.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <bit>
#include <utility>
#include <vector>

namespace nerlo::engine {

namespace {

using text::LetterCase;

constexpr std::u16string_view sentenceMarks = u".?!\u2026\u00B7\u3002\u22C5\u30FB\u1427\u2024_:";

constexpr text::UnitSet lineBreaks(u"\r\n");

// One pass over the lines of a text, in the text's own memory: a line is copied down to its place
// at once, and what can still change is only what stands between it and the next one. The result is
// never longer: each line break gives way to one unit at most. Only the last line may get a break
// that it did not have.
class JoiningPass {
  public:
    JoiningPass(std::u16string &text, bool withSpace, bool inputHasSpace)
        : text_(text)
        , withSpace_(withSpace)
        , inputHasSpace_(inputHasSpace) {}

    void run() {
        const std::size_t size = text_.size();
        text_.push_back(u'\n'); // room for a last break
        text::UnitCursor cursor(std::u16string_view(text_).substr(0, size), lineBreaks);
        for (std::size_t begin = 0; begin <= size;) {
            const std::size_t end = cursor.next();
            if (end > begin) {
                take(begin, end);
            }
            begin = end + 1;
        }
        if (pending_) {
            text_[to_++] = u'\n';
        }
        text_.resize(to_);
    }

  private:
    void take(std::size_t begin, std::size_t end) {
        const std::u16string_view line(text_.data() + begin, end - begin);
        const bool begins = checkLineForFirstSentenceChar(line);
        if (!checkLineForEndSentenceChar(line, false)) {
            if (open_ && begins) {
                open_ = false;
                if (pending_) {
                    join();
                    put(begin, end);
                    close();
                } else {
                    start(begin, end);
                }
            } else {
                if (pending_) {
                    join();
                    put(begin, end);
                } else {
                    start(begin, end);
                }
                open_ = true;
            }
        } else {
            if (pending_) {
                const bool apart =
                    inputHasSpace_ && begins && checkLineForEndSentenceChar(pendingText(), true);
                if (apart) {
                    text_[to_++] = u'\n';
                } else {
                    join();
                }
            }
            put(begin, end);
            close();
        }
    }

    std::u16string_view pendingText() const {
        return std::u16string_view(text_).substr(pendingBegin_, to_ - pendingBegin_);
    }

    void start(std::size_t begin, std::size_t end) {
        pendingBegin_ = to_;
        put(begin, end);
        pending_ = true;
    }

    void join() {
        if (withSpace_) {
            text_[to_++] = u' ';
        }
    }

    void put(std::size_t begin, std::size_t end) {
        if (to_ != begin) {
            std::char_traits<char16_t>::move(text_.data() + to_, text_.data() + begin, end - begin);
        }
        to_ += end - begin;
    }

    void close() {
        text_[to_++] = u'\n';
        pending_ = false;
    }

    std::u16string &text_;
    const bool withSpace_;
    const bool inputHasSpace_;
    bool pending_ = false; // the lines from pendingBegin_ on may get another one joined
    bool open_ = false;    // the last of these lines does not end a sentence
    std::size_t pendingBegin_ = 0;
    std::size_t to_ = 0;
};

// Whether the text has fewer than two units once its breaks are LF.
bool isShort(std::u16string_view text) {
    return text.size() < 2 || text == u"\r\n";
}

} // namespace

bool checkSpecialCharsInTheEndOfSentence(char16_t unit) {
    return sentenceMarks.find(unit) != std::u16string_view::npos;
}

bool checkLineForFirstSentenceChar(std::u16string_view line) {
    const std::size_t first = line.find_first_not_of(u' ');
    return first != std::u16string_view::npos && text::letterCase(line[first]) == LetterCase::Upper;
}

bool checkLineForEndSentenceChar(std::u16string_view line, bool checkComma) {
    const std::size_t last = line.find_last_not_of(u' ');
    if (last == std::u16string_view::npos) {
        return false;
    }
    if (last + 1 < line.size()) {
        checkComma = false; // a comma counts only as the very last unit
    }
    const char16_t unit = line[last];
    const LetterCase letterCase = text::letterCase(unit);
    if (letterCase == LetterCase::Upper) {
        return last == 0 || line[last - 1] != u' ';
    }
    if (letterCase == LetterCase::Caseless && last > 0) {
        const char16_t before = line[last - 1];
        if (text::letterCase(before) == LetterCase::Upper ||
            checkSpecialCharsInTheEndOfSentence(before)) {
            return true;
        }
    }
    return checkSpecialCharsInTheEndOfSentence(unit) || (checkComma && unit == u',');
}

std::u16string changeWrongInsertedReturnsTo(std::u16string text, std::int32_t option) {
    if (isShort(text)) {
        return changeAllBreaks(std::move(text));
    }
    const bool withSpace = option == 1;
    const bool inputHasSpace = text::findUnit(text, 0, u' ') < text.size();
    // CR and LF each end a line. A CR LF so gives an empty line, which is dropped like every blank
    // line.
    for (int pass = 0; pass < 2; ++pass) {
        JoiningPass(text, withSpace, inputHasSpace).run();
    }
    if (text.ends_with(u'\n')) {
        text.pop_back();
    }
    return changeDash(std::move(text));
}

namespace {

// Shorter lines may be meant, however even they are.
constexpr std::size_t leastWrapped = 32;
constexpr std::size_t leastWrappedIdeographs = 16;

bool isIdeograph(char16_t unit) {
    return unit >= u'\u2E80' && (unit < u'\uAC00' || unit > u'\uD7A3') &&
           (unit < 0xD800 || unit > 0xF8FF);
}

bool isBlank(char16_t unit) {
    return unit == u' ' || unit == u'\u00A0' || unit == u'\t';
}

// Joins the lines of wrapped paragraphs in the text's own memory. The result is never longer: each
// line break gives way to one unit at most.
class WrappedParagraphs {
  public:
    WrappedParagraphs(std::u16string &text, bool withSpace)
        : text_(text)
        , withSpace_(withSpace) {}

    void run() {
        const std::u16string_view all = text_;
        text::UnitCursor cursor(all, lineBreaks);
        for (std::size_t at = 0; at < all.size();) {
            const std::size_t end = cursor.next();
            const bool pair = end + 1 < all.size() && all[end] == u'\r' && all[end + 1] == u'\n';
            const std::size_t next = std::min((pair ? cursor.next() : end) + 1, all.size());
            if (!addLine(at, end)) {
                endParagraph(next);
            }
            at = next;
        }
        endParagraph(all.size());
        text_.resize(to_);
    }

  private:
    // The words of a line.
    struct Line {
        std::size_t begin;
        std::size_t end;
        std::size_t wordEnd; // of the first one
        bool hasBlanks;      // more than one between them
    };

    // False for a blank line.
    bool addLine(std::size_t begin, std::size_t end) {
        while (begin < end && isBlank(text_[begin])) {
            ++begin;
        }
        while (end > begin && isBlank(text_[end - 1])) {
            --end;
        }
        if (begin < end) {
            lines_.push_back(lineOf(begin, end));
        }
        return begin < end;
    }

    // Its first blanks are mostly among its first units, which are looked at all at once: a loop
    // would jump anew at each word.
    Line lineOf(std::size_t begin, std::size_t end) const {
        if (begin + text::scanBlock <= text_.size()) {
            const std::uint64_t blanks = text::scanUnit(text_.data() + begin, u' ');
            const std::uint64_t more = blanks & (blanks - 1);
            if (more != 0) {
                const auto first = static_cast<std::size_t>(std::countr_zero(blanks));
                const auto second = static_cast<std::size_t>(std::countr_zero(more));
                return {begin, end, std::min(end, begin + first), begin + second < end};
            }
        }
        const std::u16string_view line = std::u16string_view(text_).substr(begin, end - begin);
        const std::size_t word = text::findUnit(line, 0, u' ');
        return {begin, end, begin + word, text::findUnit(line, word + 1, u' ') < line.size()};
    }

    // What stands behind the last line, up to `next`, goes with the paragraph.
    void endParagraph(std::size_t next) {
        if (isWrapped()) {
            for (std::size_t at = 0; at < lines_.size(); ++at) {
                putLine(at);
            }
            begin_ = lines_.back().end;
        }
        put(begin_, next);
        begin_ = next;
        lines_.clear();
    }

    bool isWrapped() const {
        std::size_t width = 0;
        for (const Line &line : lines_) {
            width = std::max(width, line.end - line.begin);
        }
        bool goesOn = false; // some line begins as no sentence and no name does
        for (std::size_t at = 0; at + 1 < lines_.size(); ++at) {
            const bool full = roomOf(at) * 5 > width * 4;
            if (!hasWords(at) || isCut(at, width) || (!full && !staysApart(at))) {
                return false;
            }
            const bool lower = text::letterCase(firstOf(at + 1)) == LetterCase::Other;
            goesOn = goesOn || ((lower || isIdeograph(firstOf(at + 1))) && !isStatus(at + 1));
        }
        return goesOn && width >= (isIdeograph(firstOf(0)) ? leastWrappedIdeographs : leastWrapped);
    }

    void putLine(std::size_t at) {
        const std::size_t begin = lines_[at].begin;
        const std::size_t end = lines_[at].end;
        const bool last = at + 1 == lines_.size();
        if (last || staysApart(at)) {
            put(begin, end);
            if (!last) {
                text_[to_++] = u'\n';
            }
            return;
        }
        const bool hyphen = isHyphenated(at);
        const bool apart =
            withSpace_ && !hyphen && !(isIdeograph(lastOf(at)) && isIdeograph(firstOf(at + 1)));
        put(begin, hyphen && !isCompound(at + 1) ? end - 1 : end);
        if (apart) {
            text_[to_++] = u' ';
        }
    }

    void put(std::size_t begin, std::size_t end) {
        if (to_ != begin) {
            std::char_traits<char16_t>::move(text_.data() + to_, text_.data() + begin, end - begin);
        }
        to_ += end - begin;
    }

    std::u16string_view lineAt(std::size_t at) const {
        return std::u16string_view(text_).substr(lines_[at].begin,
                                                 lines_[at].end - lines_[at].begin);
    }
    char16_t firstOf(std::size_t at) const { return text_[lines_[at].begin]; }
    char16_t lastOf(std::size_t at) const { return text_[lines_[at].end - 1]; }

    // Units that the line would have with the next word behind it.
    std::size_t roomOf(std::size_t at) const {
        const Line &next = lines_[at + 1];
        const std::size_t word = isIdeograph(text_[next.begin]) ? 1 : next.wordEnd - next.begin + 1;
        return lines_[at].end - lines_[at].begin + word;
    }

    // A line of a list of names or paths has no blanks, or one.
    bool hasWords(std::size_t at) const { return isIdeograph(firstOf(at)) || lines_[at].hasBlanks; }

    // Whether a screen of a usual width may have cut a word here, so that no blank belongs there.
    bool isCut(std::size_t at, std::size_t width) const {
        const bool usual = width == 80 || width == 100 || width == 120 || width == 132;
        return usual && lineAt(at).size() == width && text::isAsciiLetter(lastOf(at)) &&
               text::isAsciiLetter(firstOf(at + 1));
    }

    // The name of a file alone in the last row, as pagers write it there.
    bool isStatus(std::size_t at) const {
        if (lines_[at].end != text_.size()) {
            return false;
        }
        const std::u16string_view line = lineAt(at);
        const std::size_t dot = line.rfind(u'.');
        return dot != line.npos && dot > 2 && line.size() - dot > 1 && line.size() - dot < 6 &&
               line.find(u' ') == line.npos;
    }

    // A letter alone would end no sentence any more once it is joined to the line above.
    bool staysApart(std::size_t at) const {
        if (isStatus(at + 1)) {
            return true;
        }
        return text::letterCase(firstOf(at + 1)) != LetterCase::Other && lineAt(at).size() > 1 &&
               checkLineForEndSentenceChar(lineAt(at), false);
    }

    bool isHyphenated(std::size_t at) const {
        const std::u16string_view line = lineAt(at);
        return line.size() > 1 && line.back() == u'-' &&
               text::letterCase(line[line.size() - 2]) != LetterCase::Caseless &&
               text::letterCase(firstOf(at + 1)) == LetterCase::Other;
    }

    // The first word has a hyphen of its own, as "of-the-art" has.
    bool isCompound(std::size_t at) const {
        const Line &line = lines_[at];
        const std::u16string_view word = lineAt(at).substr(0, line.wordEnd - line.begin);
        return word.find(u'-') < word.size() - 1;
    }

    std::u16string &text_;
    const bool withSpace_;
    std::vector<Line> lines_; // of the paragraph at hand
    std::size_t begin_ = 0;   // of that paragraph
    std::size_t to_ = 0;
};

} // namespace

std::u16string joinWrappedLines(std::u16string text, bool withSpace) {
    if (text::findUnit(text, 0, lineBreaks) < text.size()) {
        WrappedParagraphs(text, withSpace).run();
    }
    return text;
}

} // namespace nerlo::engine

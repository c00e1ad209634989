#include "engine/LineJoining.h"

#include "engine/Whitespace.h"
#include "text/Ascii.h"
#include "text/CaseMapping.h"
#include "text/Range.h"
#include "text/UnitScan.h"

#include <algorithm>
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

// A paragraph, line by line.
class WrappedParagraph {
  public:
    explicit WrappedParagraph(std::u16string_view text)
        : text_(text) {}

    // Units of the lines' words; [begin, end) of the text.
    void addLine(std::size_t begin, std::size_t end) { lines_.push_back({begin, end}); }
    void clear() { lines_.clear(); }

    bool isWrapped() const {
        std::size_t width = 0;
        for (const text::Range &line : lines_) {
            width = std::max(width, line.end - line.begin);
        }
        bool goesOn = false; // some line begins as no sentence and no name does
        for (std::size_t at = 0; at + 1 < lines_.size(); ++at) {
            const bool full = roomOf(at) * 5 > width * 4;
            if (!hasWords(at) || isCut(at, width) || (!full && !staysApart(at))) {
                return false;
            }
            goesOn = goesOn || text::letterCase(firstOf(at + 1)) == LetterCase::Other ||
                     isIdeograph(firstOf(at + 1));
        }
        return goesOn && width >= (isIdeograph(firstOf(0)) ? leastWrappedIdeographs : leastWrapped);
    }

    void append(std::u16string &result, bool withSpace) const {
        for (std::size_t at = 0; at < lines_.size(); ++at) {
            std::u16string_view line = lineAt(at);
            const bool last = at + 1 == lines_.size();
            if (last || staysApart(at)) {
                result.append(line);
                result.append(last ? u"" : u"\n");
                continue;
            }
            const bool hyphen = isHyphenated(at);
            const bool apart =
                withSpace && !hyphen && !(isIdeograph(line.back()) && isIdeograph(firstOf(at + 1)));
            line.remove_suffix(hyphen ? 1 : 0);
            result.append(line).append(apart ? u" " : u"");
        }
    }

  private:
    std::u16string_view lineAt(std::size_t at) const {
        return text_.substr(lines_[at].begin, lines_[at].end - lines_[at].begin);
    }
    char16_t firstOf(std::size_t at) const { return text_[lines_[at].begin]; }

    // Units that the line would have with the next word behind it.
    std::size_t roomOf(std::size_t at) const {
        const std::u16string_view next = lineAt(at + 1);
        const std::size_t word =
            isIdeograph(next[0]) ? 1 : std::min(next.find(u' '), next.size()) + 1;
        return lineAt(at).size() + word;
    }

    // A line of a list of names or paths has no blanks.
    bool hasWords(std::size_t at) const {
        return isIdeograph(firstOf(at)) || std::ranges::count(lineAt(at), u' ') > 1;
    }

    // Whether a screen of a usual width may have cut a word here, so that no blank belongs there.
    bool isCut(std::size_t at, std::size_t width) const {
        const bool usual = width == 80 || width == 100 || width == 120 || width == 132;
        return usual && lineAt(at).size() == width && text::isAsciiLetter(lineAt(at).back()) &&
               text::isAsciiLetter(firstOf(at + 1));
    }

    // A letter alone would end no sentence any more once it is joined to the line above.
    bool staysApart(std::size_t at) const {
        return lineAt(at).size() > 1 && checkLineForEndSentenceChar(lineAt(at), false) &&
               text::letterCase(firstOf(at + 1)) != LetterCase::Other;
    }

    bool isHyphenated(std::size_t at) const {
        const std::u16string_view line = lineAt(at);
        return line.size() > 1 && line.back() == u'-' &&
               text::letterCase(line[line.size() - 2]) != LetterCase::Caseless &&
               text::letterCase(firstOf(at + 1)) == LetterCase::Other;
    }

    const std::u16string_view text_;
    std::vector<text::Range> lines_;
};

} // namespace

std::u16string joinWrappedLines(std::u16string text, bool withSpace) {
    constexpr std::u16string_view blanks = u" \u00A0\t";
    const std::u16string_view all = text;
    std::u16string result;
    result.reserve(text.size());
    WrappedParagraph paragraph(all);
    std::size_t begin = 0; // of the paragraph
    const auto endParagraph = [&](std::size_t end, std::size_t next) {
        if (paragraph.isWrapped()) {
            paragraph.append(result, withSpace);
            result.append(all.substr(end, next - end));
        } else {
            result.append(all.substr(begin, next - begin));
        }
        paragraph.clear();
        begin = next;
    };
    std::size_t inkedEnd = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text::findUnit(text, at, lineBreaks);
        const std::u16string_view line = all.substr(at, end - at);
        const std::size_t first = line.find_first_not_of(blanks);
        const bool pair = all.substr(end).starts_with(u"\r\n");
        const std::size_t next = std::min(text.size(), end + (pair ? 2 : 1));
        if (first != std::u16string_view::npos) {
            inkedEnd = at + line.find_last_not_of(blanks) + 1;
            paragraph.addLine(at + first, inkedEnd);
        } else {
            endParagraph(inkedEnd, next);
        }
        at = next;
    }
    endParagraph(inkedEnd, text.size());
    return result;
}

} // namespace nerlo::engine

#include "engine/WrappedLines.h"

#include "engine/CutRows.h"
#include "engine/ScreenRows.h"
#include "text/Ascii.h"
#include "text/CaseMapping.h"
#include "text/Characters.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <span>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;
using Lines = std::vector<StructuredLine>;

// Up to here a text must fill all its lines to be taken for wrapped: addresses and verses have
// lines of that length too.
constexpr std::size_t doubtfulWidth = 36;

bool isOneOf(char16_t unit, View units) {
    return units.find(unit) != View::npos;
}

// "Name: words", as the heads of mails and commits have them below each other.
bool isField(View row) {
    const std::size_t end = row.find_first_of(u" :");
    return end != View::npos && end > 1 && row.substr(end).starts_with(u": ") && row[0] >= u'A' &&
           row[0] <= u'Z';
}

// Lines of a log begin with the same number or day.
bool beginAlike(View above, View below) {
    return !above.empty() && text::isAsciiDigit(above[0]) && firstWord(above) == firstWord(below);
}

struct Pair {
    std::size_t row = 0;     // which may go on in the next one
    std::size_t begin = 0;   // of the words of the next one
    std::size_t width = 0;   // columns up to its last word
    std::size_t least = 0;   // the narrowest screen that could show the row so
    std::size_t fitting = 0; // columns that it would have with the next word behind it
    bool wide = false;       // both sides are of a script without blanks
    bool oneWord = false;
    bool blank = false;    // the next one begins with the blank that had no room
    bool marked = false;   // the next one begins like a list item
    bool doubtful = false; // one of them looks like code or a table
    bool chance = false;   // and no other item counts up to it
    bool listed = false;   // its paragraph is mostly a word a line
    bool rejected = false; // what was joined would not be prose
};

// What may not stand at the begin of a row, of the scripts that are broken anywhere.
bool staysBehind(char32_t character) {
    constexpr View signs = u"\u3001\u3002\uFF0C\uFF0E\u30FB\uFF1A\uFF1B\uFF1F\uFF01\u300D\u300F"
                           u"\uFF09\u3011\u300B\u3009\u3015\uFF3D\uFF5D\u30FC\u3005\u201D\u2019"
                           u"\u2026\u3041\u3043\u3045\u3047\u3049\u3063\u3083\u3085\u3087\u30A1"
                           u"\u30A3\u30A5\u30A7\u30A9\u30C3\u30E3\u30E5\u30E7";
    return character < 0x10000 && isOneOf(static_cast<char16_t>(character), signs);
}

// The columns of what a screen moves to the next row in one piece.
std::size_t columnsOfPiece(View words) {
    std::size_t at = 0;
    bool wideBefore = false;
    while (at < words.size() && words[at] != u' ') {
        const char32_t character = text::characterAt(words, at);
        const bool wide = isIdeographic(character);
        if (wide && wideBefore && !staysBehind(character)) {
            break;
        }
        wideBefore = wide;
        at += text::sizeOf(character);
    }
    return columnsOf(words.substr(0, at));
}

class WrappedLines {
  public:
    WrappedLines(std::u16string text, bool wasCut)
        : text_(std::move(text))
        , wasCut_(wasCut)
        , lines_(scanStructure(text_))
        , inkedEnd_(inkedEnd(lines_)) {
        if (!lines_.empty()) {
            keepsBlanks_ = keepsBlanks();
            findPairs();
            findWidth();
        }
    }

    std::u16string run() {
        if (width_ == 0) {
            return std::move(text_);
        }
        rejectItems();
        rejectOthers();
        std::u16string result;
        result.reserve(text_.size());
        std::size_t pair = 0;
        std::size_t begin = 0;
        for (std::size_t at = 0; at < lines_.size(); ++at) {
            const auto &line = lines_[at];
            while (pair < pairs_.size() && pairs_[pair].row < at) {
                ++pair;
            }
            if (pair < pairs_.size() && pairs_[pair].row == at && isJoined(pairs_[pair])) {
                appendWords(result, wordsOf(text_, begin, line.end));
                join(result, pairs_[pair]);
                begin = pairs_[pair].begin;
            } else {
                result.append(text_, begin, line.next() - begin);
                begin = line.next();
            }
        }
        return result;
    }

  private:
    // Without blanks around it.
    View rowAt(const StructuredLine &line) const {
        const View row = wordsOf(text_, line.begin, line.end);
        return row.substr(indentOf(row));
    }

    // The marks of a quotation.
    View marksOf(const StructuredLine &line) const {
        return View(text_).substr(line.begin, line.quoted - line.begin);
    }

    // Blanks in front, behind the marks of a quotation.
    std::size_t indentAt(const StructuredLine &line) const {
        return indentOf(View(text_).substr(line.quoted, line.end - line.quoted));
    }

    // Some tools leave the blank behind the last word of a row. They break at blanks alone.
    bool keepsBlank(const StructuredLine &line) const {
        return line.end > line.begin && text_[line.end - 1] == u' ';
    }

    // Whether the widest rows that are no last ones do.
    bool keepsBlanks() const {
        std::size_t widest = 0;
        for (const auto &line : lines_) {
            widest = keepsBlank(line) ? std::max(widest, line.end - line.begin) : widest;
        }
        std::size_t kept = 0;
        std::size_t others = 0;
        for (std::size_t at = 0; at + 1 < lines_.size(); ++at) {
            const auto &line = lines_[at];
            const auto &below = lines_[at + 1];
            if (below.kind != LineKind::blank && !below.item && isCandidate(line) &&
                (line.end - line.begin) * 4 > widest * 3) {
                ++(keepsBlank(line) ? kept : others);
            }
        }
        return kept > 2 && kept > 3 * others;
    }

    static bool isCandidate(const StructuredLine &line) {
        return line.kind == LineKind::prose || isDoubtful(line);
    }

    // The sign at the begin of a row makes it a quotation only if others are quoted, too.
    bool isOneQuoted(std::size_t at) const {
        const auto isQuoted = [&](std::size_t line) {
            return line < lines_.size() && lines_[line].quoted > lines_[line].begin;
        };
        return at > 0 && isQuoted(at) && !isQuoted(at - 1) && !isQuoted(at + 1);
    }

    // Whether the words of the line below may go on with those of the line `at`. `first` is the
    // first line of the paragraph.
    bool fits(const StructuredLine &first, std::size_t at) const {
        const auto &above = lines_[at];
        const auto &below = lines_[at + 1];
        if ((at + 2 == inkedEnd_ && isStatus(rowAt(below))) ||
            (isField(rowAt(above)) && isField(rowAt(below))) ||
            beginAlike(rowAt(above), rowAt(below)) || isCodeItem(text_, first)) {
            return false;
        }
        const bool marked = below.item || isOneQuoted(at + 1);
        const bool begins = isCandidate(above) || above.kind == LineKind::data;
        if (!begins || !isCandidate(below) || (below.words == below.end && !marked) ||
            (above.words == above.end && !above.item)) {
            return false;
        }
        const bool setApart = isSetApart(first) && !beginsIndented(first, (&first)[1]);
        const std::size_t quoted = isOneQuoted(at + 1) ? below.begin : below.quoted;
        const View marks = View(text_).substr(below.begin, quoted - below.begin);
        const bool chance = isOneQuoted(at) && !pairs_.empty() && pairs_.back().row + 1 == at;
        const View marksAbove = chance ? View() : marksOf(above);
        if (setApart || (marks != marksAbove && !(marks.empty() && keepsBlank(above)))) {
            return false;
        }
        const std::size_t indent = indentOf(View(text_).substr(quoted, below.end - quoted));
        if ((!marked && quoted + indent != below.words) || (indent >= codeIndent && !first.item)) {
            return false; // a tab, or a block of its own
        }
        // Below the words of a list item, where the paragraph begins, or at the edge of the screen,
        // where one blank may have stood behind a word that filled the row.
        return indent <= 1 || indent == first.words - first.quoted || indent == indentAt(first) ||
               (indent < codeIndent && (&above == &first || indent == indentAt(above)));
    }

    // An indented block, most probably of code.
    bool isSetApart(const StructuredLine &line) const {
        return indentAt(line) >= codeIndent && isDoubtful(line) && !line.item;
    }

    // Whether it may be the indented first line of a paragraph.
    bool beginsIndented(const StructuredLine &line, const StructuredLine &below) const {
        const bool begins = &line == lines_.data() || (&line)[-1].kind == LineKind::blank;
        const char16_t first = text_[line.words];
        return begins && first >= u'A' && first <= u'Z' && indentAt(below) < codeIndent;
    }

    void findPairs() {
        std::size_t first = 0;  // row of the paragraph
        std::size_t paired = 0; // pairs of the paragraphs above
        bool belowCode = false;
        const auto endParagraph = [&](std::size_t end) {
            if (isList(paired, end)) {
                std::for_each(pairs_.begin() + static_cast<std::ptrdiff_t>(paired), pairs_.end(),
                              [](Pair &pair) { pair.listed = true; });
            }
            paired = pairs_.size();
        };
        for (std::size_t at = 0; at + 1 < lines_.size(); ++at) {
            if (lines_[at].item) {
                first = at;
            }
            // Right below an indented line stands what had no room in it.
            const bool apart = isSetApart(lines_[at]) && indentAt(lines_[at + 1]) < codeIndent;
            const auto &below = lines_[at + 1];
            const bool ends = below.item || (below.words == below.end && !isOneQuoted(at + 1));
            belowCode =
                !ends && (belowCode || (apart && !beginsIndented(lines_[at], lines_[at + 1])));
            if (!belowCode && fits(lines_[first], at) &&
                !((lines_[at + 1].item || isOneQuoted(at + 1)) && isItem(first, at + 1))) {
                pairs_.push_back(pairOf(at));
                const std::size_t indent = indentAt(lines_[at + 1]);
                pairs_.back().blank = indent == 1 && indentAt(lines_[first]) != 1 &&
                                      lines_[first].words - lines_[first].quoted != 1;
            } else {
                endParagraph(at);
                first = at + 1;
            }
        }
        endParagraph(lines_.size() - 1);
    }

    // Whether the line that begins like an item is one, by the lines around it.
    bool isItem(std::size_t first, std::size_t at) const {
        const auto &line = lines_[at];
        const auto isSibling = [&](const StructuredLine &other) {
            return line.item && other.item && indentAt(other) == indentAt(line);
        };
        const View above = rowAt(lines_[at - 1]);
        if (keepsBlanks_) {
            const bool oneWord = above.find(u' ') == View::npos;
            return !keepsBlank(lines_[at - 1]) && !(oneWord && mayBeCutOff(above, rowAt(line)));
        }
        const bool outdented =
            line.item && lines_[first].item && indentAt(line) <= indentAt(lines_[first]);
        if (outdented || endsSentence(above)) {
            return true;
        }
        constexpr std::size_t farthest = 16; // lines that one item may have
        for (std::size_t below = at + 1; below < std::min(lines_.size(), at + farthest); ++below) {
            const auto &other = lines_[below];
            if (other.kind == LineKind::blank ||
                (other.item && indentAt(other) <= indentAt(line))) {
                return isSibling(other);
            }
        }
        return false;
    }

    // Most lines of the paragraph with the last line `end` are a word each: nobody writes so.
    bool isList(std::size_t firstPair, std::size_t end) const {
        if (firstPair == pairs_.size() || pairs_[firstPair].wide) {
            return false;
        }
        const std::size_t begin = pairs_[firstPair].row;
        std::ptrdiff_t blanks = 0;
        for (std::size_t at = begin; at <= end; ++at) {
            blanks += std::ranges::count(wordsOf(text_, lines_[at].words, lines_[at].end), u' ');
        }
        const std::size_t rows = end - begin + 1;
        return blanks < static_cast<std::ptrdiff_t>(rows) && (rows > 2 || !lines_[begin].item);
    }

    Pair pairOf(std::size_t at) const {
        const auto &next = lines_[at + 1];
        const View above = wordsOf(text_, lines_[at].begin, lines_[at].end);
        Pair pair;
        pair.row = at;
        pair.marked = next.item || isOneQuoted(at + 1);
        const View row = View(text_).substr(next.begin, next.end - next.begin);
        pair.begin = isOneQuoted(at + 1) ? next.begin + indentOf(row)
                     : next.item         ? next.quoted + indentAt(next)
                                         : next.words;
        const View below = wordsOf(text_, pair.begin, next.end);
        constexpr View column = u"    ";
        pair.doubtful = isDoubtful(lines_[at]) || isDoubtful(next) ||
                        above.find(column, indentOf(above)) != View::npos ||
                        below.find(column) != View::npos;
        pair.width = columnsOf(above);
        pair.wide = isIdeographic(text::characterBefore(above, above.size())) &&
                    isIdeographic(text::characterAt(below, 0));
        // A word alone may be longer than the screen is wide.
        pair.oneWord = wordsOf(text_, lines_[at].words, lines_[at].end).find(u' ') == View::npos;
        pair.least = pair.oneWord ? 0 : pair.width;
        pair.fitting =
            pair.width + (pair.wide ? 0 : 1) +
            (keepsBlank(lines_[at]) ? columnsOf(firstWord(below)) : columnsOfPiece(below));
        return pair;
    }

    bool isWrapped(const Pair &pair) const {
        return pair.least <= width_ && pair.fitting > width_ &&
               (!pair.blank || pair.width >= width_);
    }
    bool isJoined(const Pair &pair) const { return !pair.rejected && isWrapped(pair); }

    // "12." or "c)": its place in a list. 0 for a sign.
    std::uint32_t ordinalOf(std::size_t begin) const {
        View mark = View(text_).substr(begin, 10);
        mark.remove_prefix(mark.starts_with(u'(') ? 1 : 0);
        if (text::isAsciiLetter(mark[0])) {
            return (mark[0] | 0x20u) - u'a' + 1;
        }
        std::uint32_t ordinal = 0;
        for (std::size_t at = 0; at < mark.size() && text::isAsciiDigit(mark[at]); ++at) {
            ordinal = ordinal * 10 + (mark[at] - u'0');
        }
        return ordinal;
    }

    // A number or a letter that no other counts up to, nor on from, is no item's.
    void findChanceOrdinals() {
        std::unordered_set<std::uint32_t> ordinals;
        for (const StructuredLine &line : lines_) {
            if (line.item) {
                ordinals.insert(ordinalOf(line.quoted + indentAt(line)));
            }
        }
        for (Pair &pair : pairs_) {
            const std::uint32_t ordinal = lines_[pair.row + 1].item ? ordinalOf(pair.begin) : 0;
            pair.chance =
                ordinal > 1 && !ordinals.contains(ordinal - 1) && !ordinals.contains(ordinal + 1);
        }
    }

    // What begins like an item, but has no sibling, is taken for words of the row above only if
    // most of that kind had no room there.
    void rejectItems() {
        findChanceOrdinals();
        std::array<std::ptrdiff_t, 2> fitted{}; // of signs, of numbers and letters
        const auto isNumber = [&](const Pair &pair) {
            return text::isWordCharacter(text_[pair.begin]) || text_[pair.begin] == u'(';
        };
        for (const Pair &pair : pairs_) {
            const bool item = lines_[pair.row + 1].item && !pair.chance;
            fitted.at(isNumber(pair)) += !item ? 0 : isWrapped(pair) ? -1 : 1;
        }
        for (Pair &pair : pairs_) {
            const bool item = lines_[pair.row + 1].item && fitted.at(isNumber(pair)) >= 0;
            pair.rejected = item && !pair.chance && !keepsBlanks_;
        }
    }

    void findWidth() {
        constexpr std::size_t most = 4; // pairs of a paragraph that may not be prose
        std::vector<Pair> sure;
        std::vector<Pair> all;
        std::size_t doubtful = 0;
        for (const Pair &pair : pairs_) {
            doubtful = !all.empty() && all.back().row + 1 == pair.row ? doubtful : 0;
            doubtful += pair.doubtful ? 1 : 0;
            if (pair.marked || pair.listed || pair.blank) {
                continue;
            }
            if (!pair.doubtful) {
                sure.push_back(pair);
            }
            if (doubtful <= most) {
                all.push_back(pair);
            }
        }
        width_ = widthOf(sure);
        if (width_ == 0) {
            width_ = widthOf(all);
        }
        if (width_ == 0 && !wasCut_) {
            width_ = widthOfFew(sure);
        }
        std::size_t exact = 0;
        std::size_t wrapped = 0;
        for (const Pair &pair : all) {
            wrapped += isWrapped(pair);
            exact += isWrapped(pair) && pair.width >= width_;
        }
        justified_ = wrapped > 2 && exact * 4 >= wrapped * 3 && hasGaps();
    }

    // The width at which most lines are full and none is longer. A pair speaks for the widths from
    // its own to just below that with the next word, and against all that are larger.
    std::size_t widthOf(const std::vector<Pair> &pairs) const {
        std::vector<std::ptrdiff_t> full(mostWidth + 2);
        std::vector<std::ptrdiff_t> unfilled(mostWidth + 2);
        std::vector<std::ptrdiff_t> tooLong(mostWidth + 2);
        std::vector<std::ptrdiff_t> broken(mostWidth + 2); // so early that it was meant
        std::vector<std::ptrdiff_t> over(mostWidth + 2);   // lines that a screen would have broken
        for (const Pair &pair : pairs) {
            const std::size_t from = std::min(pair.least, mostWidth + 1);
            const std::size_t to = std::min(pair.fitting, mostWidth + 1);
            ++full[from];
            --full[to];
            ++unfilled[to];
            ++tooLong[0];
            --tooLong[from];
            ++broken[std::clamp(pair.width * 3 / 2, to, mostWidth + 1)];
        }
        std::size_t widest = 0;
        for (const auto &line : lines_) {
            const View row = wordsOf(text_, line.begin, line.end);
            const std::size_t columns = std::min(columnsOf(row), mostWidth + 1);
            widest = std::max(widest, std::min(columns, mostWidth));
            if (isCandidate(line) && line.words - line.begin < codeIndent &&
                wordsOf(text_, line.words, line.end).find(u' ') != View::npos) {
                ++over[columns];
            }
        }
        std::ptrdiff_t lines = std::accumulate(over.begin(), over.end(), std::ptrdiff_t{0});
        std::ptrdiff_t filled = 0;
        std::ptrdiff_t early = 0;
        std::ptrdiff_t meant = 0;
        std::ptrdiff_t longer = 0;
        std::ptrdiff_t best = 0;
        std::size_t found = 0;
        for (std::size_t width = 0; width <= widest; ++width) {
            filled += full[width];
            early += unfilled[width];
            meant += broken[width];
            longer += tooLong[width];
            lines -= over[width];
            const std::ptrdiff_t score = filled - early - 2 * longer;
            const bool fills = width > doubtfulWidth
                                   ? 2 * filled > 3 * (early - meant) && 4 * filled > early
                                   : filled > 8 * early;
            const bool sure = filled > 1 && fills && filled >= 2 * lines;
            if (width >= leastWidth && sure && score >= best) {
                best = score;
                found = width;
            }
        }
        return found;
    }

    // Nobody breaks so long a row by hand in the midst of a sentence.
    std::size_t widthOfFew(const std::vector<Pair> &pairs) const {
        constexpr std::size_t least = 72;
        std::size_t widest = 0;
        for (const auto &line : lines_) {
            const View row = wordsOf(text_, line.begin, line.end);
            if (isCandidate(line) && row.find(u' ', indentOf(row)) != View::npos) {
                widest = std::max(widest, columnsOf(row));
            }
        }
        std::ptrdiff_t score = 0;
        for (const Pair &pair : pairs) {
            if (pair.width * 3 > widest * 2) {
                const bool full = pair.least <= widest && pair.fitting > widest;
                score += !full ? -1 : pair.width + 24 > widest && readsOn(pair) ? 1 : 0;
            }
        }
        return widest >= least && widest <= mostWidth && score > 0 ? widest : 0;
    }

    // Whether the lines from this one to the next blank one end as sentences do.
    bool endsParagraph(std::size_t at) const {
        constexpr std::size_t farthest = 8;
        const std::size_t end = std::min(at + farthest, lines_.size() - 1);
        while (at < end && lines_[at + 1].kind != LineKind::blank && !lines_[at + 1].item) {
            ++at;
        }
        View row = rowAt(lines_[at]);
        while (row.size() > 1 && isOneOf(row.back(), u")]*_`\"'\u201D")) {
            row.remove_suffix(1);
        }
        return endsSentence(row) || row.size() < rowAt(lines_[at]).size();
    }

    bool readsOn(const Pair &pair) const {
        const auto &line = lines_[pair.row];
        const View above = wordsOf(text_, line.words, line.end);
        const View next = firstWord(View(text_).substr(pair.begin));
        const bool begins = text::letterCase(next[0]) == text::LetterCase::Upper ||
                            text::isAsciiDigit(next[0]) || next.ends_with(u':');
        return std::ranges::count(above, u' ') > 3 && !endsSentence(above) && !begins &&
               endsParagraph(pair.row);
    }

    // Lines that were filled up with blanks between their words.
    bool hasGaps() const {
        return std::ranges::any_of(pairs_, [&](const Pair &pair) {
            const auto &line = lines_[pair.row];
            return wordsOf(text_, line.words, line.end).find(u"  ") != View::npos;
        });
    }

    // A paragraph that looks like code is one unless all its lines are full and it reads as prose.
    void rejectOthers() {
        const auto isItem = [&](const Pair &pair) { return pair.marked && !isWrapped(pair); };
        for (std::size_t begin = 0; begin < pairs_.size();) {
            std::size_t end = begin + 1;
            while (!isItem(pairs_[begin]) && end < pairs_.size() && !isItem(pairs_[end]) &&
                   pairs_[end].row == pairs_[end - 1].row + 1) {
                ++end;
            }
            const auto paragraph = std::span(pairs_).subspan(begin, end - begin);
            const bool unsure = std::ranges::any_of(
                paragraph, [](const Pair &pair) { return pair.doubtful || pair.listed; });
            if (unsure && !isProse(paragraph)) {
                std::ranges::for_each(paragraph, [](Pair &pair) { pair.rejected = true; });
            }
            begin = end;
        }
    }

    bool isProse(std::span<const Pair> paragraph) const {
        if (!std::ranges::all_of(paragraph, [&](const Pair &pair) { return isWrapped(pair); })) {
            return false;
        }
        if (lines_[paragraph.front().row].item ||
            std::ranges::none_of(paragraph, &Pair::doubtful)) {
            return true;
        }
        std::u16string joined;
        std::size_t begin = lines_[paragraph.front().row].begin;
        for (const Pair &pair : paragraph) {
            joined.append(wordsOf(text_, begin, lines_[pair.row].end)).push_back(u' ');
            begin = pair.begin;
        }
        const auto &last = lines_[paragraph.back().row + 1];
        joined.append(wordsOf(text_, begin, last.end));
        const bool indented = isSetApart(lines_[paragraph.front().row]);
        return isProseWhole(joined) && (!indented || endsSentence(joined));
    }

    void appendWords(std::u16string &result, View words) const {
        if (!justified_) {
            result.append(words);
            return;
        }
        const std::size_t indent = indentOf(words);
        result.append(words.substr(0, indent));
        for (const char16_t unit : words.substr(indent)) {
            if (unit != u' ' || result.back() != u' ') {
                result.push_back(unit);
            }
        }
    }

    void join(std::u16string &result, const Pair &pair) const {
        const View next = wordsOf(text_, pair.begin, lines_[pair.row + 1].end);
        if (result.back() == u'\u2010' || result.back() == u'\u00AD') {
            result.pop_back(); // a hyphen of the formatter's own
        } else if (pair.blank || keepsBlank(lines_[pair.row]) ||
                   (!pair.wide && !isCutWord(result, next, pair) && !isHyphenated(result, next) &&
                    !isCutAddress(result, next, pair))) {
            result.push_back(u' ');
        }
    }

    // A word that fills a row alone was longer than the screen, unless it ends like one.
    bool isCutWord(View above, View below, const Pair &pair) const {
        if (!pair.oneWord || pair.width < width_) {
            return false;
        }
        const char32_t next = text::characterAt(below, 0);
        const bool word = text::isWordCharacter(next) && next != U'_';
        return !(word && (isOneOf(above.back(), u"),]") || isEnclosed(pair))) &&
               !(isOneOf(above.back(), u".!?:;") && next >= U'A' && next <= U'Z');
    }

    // "`code`", "<address>", "\"word\"".
    bool isEnclosed(const Pair &pair) const {
        const View row = rowAt(lines_[pair.row]);
        return (isOneOf(row[0], u"`\"") && row.back() == row[0]) ||
               (row[0] == u'<' && row.find(u'>') == row.size() - 1 &&
                row.find_first_of(u":@") != View::npos);
    }

    static bool isHyphenated(View above, View below) {
        const auto isLetter = [](char16_t unit) { return text::isWordCharacter(unit); };
        return above.size() > 1 && above.back() == u'-' && isLetter(above[above.size() - 2]) &&
               isLetter(below[0]);
    }

    // An address or a path that fills its line to the end and goes on below.
    bool isCutAddress(View above, View below, const Pair &pair) const {
        constexpr std::size_t longest = 4096; // rows that go on for ever are looked at in part
        above.remove_prefix(above.size() - std::min(above.size(), longest));
        const std::size_t blank = above.find_last_of(u" \n\t");
        const View token = above.substr(blank == View::npos ? 0 : blank + 1);
        const View next = below.substr(0, std::min(below.find(u' '), below.size()));
        const bool address = token.find(u"://") != View::npos || token.starts_with(u"www.");
        const bool path =
            token.starts_with(u'/') || token.starts_with(u"~/") || token.starts_with(u"./");
        const bool closed = isOneOf(token.back(), u")>],;\"'") || token.ends_with(u">.") ||
                            isOneOf(next[0], u"[(<!\"'");
        if ((!address && !path) || token.size() < 8 || closed) {
            return false;
        }
        const bool goesOn = next.size() == below.size() ||
                            next.find_first_of(u"/=&%?#_0123456789-") != View::npos ||
                            next.substr(0, next.size() - 1).find(u'.') != View::npos;
        const bool breaksHere = isOneOf(token.back(), u"/-?&=_.%");
        return goesOn && (pair.width >= width_ || breaksHere);
    }

    std::u16string text_;
    const bool wasCut_; // by a screen, which breaks nothing between words
    Lines lines_;
    std::size_t inkedEnd_ = 0; // behind the last line with words
    std::vector<Pair> pairs_;
    std::size_t width_ = 0;
    bool keepsBlanks_ = false;
    bool justified_ = false;
};

} // namespace

std::u16string joinWrappedLines(std::u16string text, std::size_t screen) {
    auto whole = joinCutRows(text, screen);
    const bool wasCut = !whole.empty();
    return WrappedLines(wasCut ? std::move(whole) : std::move(text), wasCut).run();
}

} // namespace nerlo::engine

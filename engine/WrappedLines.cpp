#include "engine/WrappedLines.h"

#include "engine/ScreenText.h"
#include "engine/Structure.h"
#include "text/Ascii.h"
#include "text/CaseMapping.h"
#include "text/Characters.h"

#include <algorithm>
#include <array>
#include <cstddef>
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

// No terminal is narrower than people can read, nor wider than they can afford.
constexpr std::size_t leastWidth = 24;
constexpr std::size_t mostWidth = 400;
// Up to here a text must fill all its lines to be taken for wrapped: addresses and verses have
// lines of that length too.
constexpr std::size_t doubtfulWidth = 36;
// Blanks that set a block apart from the text around it.
constexpr std::size_t codeIndent = 4;

bool isOneOf(char16_t unit, View units) {
    return units.find(unit) != View::npos;
}

View wordsOf(View text, std::size_t begin, std::size_t end) {
    const View words = text.substr(begin, end - begin);
    return words.substr(0, inkEnd(words));
}

// The first word of a row that has one.
View firstWord(View row) {
    row.remove_prefix(indentOf(row));
    return row.substr(0, std::min(row.find(u' '), row.size()));
}

// Of the scripts that are broken between any two characters.
bool isIdeographic(char32_t character) {
    return text::columnsOf(character) == 2 && !text::isHangul(character) &&
           character < U'\U0001F000';
}

bool endsSentence(View row) {
    return isOneOf(row.back(), u".:;!?");
}

// A gap inside that is not behind the end of a sentence.
bool hasGap(View words) {
    for (std::size_t at = words.find(u"  "); at != View::npos; at = words.find(u"  ", at)) {
        if (at > 0 && !endsSentence(words.substr(0, at))) {
            return true;
        }
        at = std::min(words.find_first_not_of(u' ', at), words.size());
    }
    return false;
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

// What a pager or an editor writes into its last row.
bool isStatus(View row) {
    const std::size_t dot = row.rfind(u'.');
    const bool file = row.find(u' ') == View::npos && dot != View::npos && dot > 2 &&
                      row.size() - dot > 1 && row.size() - dot < 6;
    const bool editor = row.starts_with(u'"') && row.find(u"\" ") != View::npos &&
                        (row.ends_with(u"B") || row.ends_with(u" bytes"));
    return row == u":" || editor || row.ends_with(u"(END)") || row.starts_with(u"lines ") ||
           row.starts_with(u"Manual page ") || row.starts_with(u"--More--") || file;
}

// Whether a paragraph that shares its looks with code or with a table is prose once it is whole.
bool isProseWhole(View paragraph) {
    paragraph.remove_prefix(std::min(paragraph.find_first_not_of(u" \"'([*_`"), paragraph.size()));
    paragraph.remove_prefix(paragraph.starts_with(u"<http") ? 1 : 0);
    const Lines lines = scanStructure(paragraph);
    return lines.size() == 1 && lines[0].kind == LineKind::prose && !hasGap(paragraph);
}

// Whether what begins a row like the mark of an item or of a quotation may be the end of the word
// that the row above had no room for.
bool mayBeCutOff(View above, View below) {
    const char16_t first = below.front();
    return text::isWordCharacter(first) || first == u'(' || first == u' ' ||
           first == above.back() || (first == u'>' && above.find(u'<') != View::npos);
}

// Behind the last line that is not blank.
std::size_t inkedEnd(const Lines &lines) {
    std::size_t end = lines.size();
    while (end > 0 && lines[end - 1].kind == LineKind::blank) {
        --end;
    }
    return end;
}

bool isDoubtful(const StructuredLine &line) {
    return line.kind == LineKind::code || line.kind == LineKind::table;
}

// "-     code": an item whose words stand so far behind its mark.
bool isCodeItem(View text, const StructuredLine &line) {
    return line.item && line.kind == LineKind::code &&
           text.substr(line.begin, line.words - line.begin).ends_with(u"     ");
}

// --- rows that the screen cut at its last column

class CutRows {
  public:
    CutRows(View text, std::size_t screen)
        : text_(text)
        , screen_(screen)
        , lines_(scanStructure(text))
        , inkedEnd_(inkedEnd(lines_)) {
        widths_.reserve(lines_.size());
        for (const auto &line : lines_) {
            widths_.push_back(columnsOf(rowAt(line)));
        }
    }

    static constexpr int wordBonus = 15; // for a word of the text that an edge has cut

    // Empty if nothing was cut.
    std::u16string run() {
        width_ = widthOfMost();
        std::u16string result;
        if (width_ < std::max(leastWidth, screen_) || width_ > mostWidth) {
            return result;
        }
        if (!isCut(wordBonus)) {
            return result; // whatever the words
        }
        collectWords();
        if (!isCut(0)) {
            return result;
        }
        brokenElsewhere_ = isBrokenElsewhere();
        result.reserve(text_.size());
        for (std::size_t at = 0; at < lines_.size();) {
            at = isTail_ ? appendTail(result, at) : appendLine(result, at);
        }
        return result;
    }

  private:
    // The widest width but for a few rows, of which terminals and we think differently: with tabs,
    // or characters that were not always wide.
    std::size_t widthOfMost() const {
        constexpr std::size_t fewest = 4;
        std::array<std::size_t, mostWidth + 1> rows{};
        std::size_t wider = 0;
        for (const std::size_t width : widths_) {
            ++rows[std::min(width, mostWidth)];
        }
        for (std::size_t width = mostWidth; width > 0; --width) {
            if (rows[width] >= fewest && rows[width] >= 8 * wider) {
                return width;
            }
            wider += rows[width];
        }
        return widths_.empty() ? 0 : std::ranges::max(widths_);
    }

    View rowAt(const StructuredLine &line) const { return wordsOf(text_, line.begin, line.end); }

    bool isJoinable(std::size_t at) const {
        const auto &line = lines_[at];
        const bool looks =
            indentOf(rowAt(line)) < codeIndent && isDoubtful(line) && !isCodeItem(text_, line);
        return looks || line.kind == LineKind::prose || line.kind == LineKind::heading ||
               line.kind == LineKind::data;
    }

    // A cut row goes on without the marks of a quotation.
    bool isQuoted(std::size_t at) const { return lines_[at].quoted > lines_[at].begin + 1; }

    // What the row that goes on is taken for says nothing.
    bool mayGoOn(std::size_t at, bool inside = false) const {
        if (at + 1 >= lines_.size() || widths_[at] == 0 || widths_[at + 1] == 0 ||
            !(inside || isJoinable(at)) || lines_[at + 1].kind == LineKind::fence ||
            isQuoted(at + 1)) {
            return false;
        }
        return at + 2 != inkedEnd_ || !isStatus(rowAt(lines_[at + 1]));
    }

    bool beginsWide(std::size_t at) const {
        return text::columnsOf(text::characterAt(text_, lines_[at].begin)) == 2;
    }

    // A cut fills all rows but the last of each line, whatever the words; a wrap at words leaves
    // most of them short of the edge by less than the next word. The weights are about ten times
    // the logarithms of how much likelier a row is with a cut. `bonus` is what words could add to
    // each full row before they are known.
    bool isCut(int bonus) const {
        int full = 0;
        int gaps = 0;
        int score = 0;
        int contrary = 0;
        for (std::size_t at = 0; at + 1 < lines_.size(); ++at) {
            if (!mayGoOn(at) || (isIdeographic(lastOf(at)) && beginsWide(at + 1))) {
                continue;
            }
            const View below = rowAt(lines_[at + 1]);
            const View words = wordsOf(text_, lines_[at].words, lines_[at].end);
            const bool wide = text::columnsOf(lastOf(at)) == 2 && beginsWide(at + 1);
            if (words.find(u' ') == View::npos) {
                continue; // a word that is longer than the screen is cut in any case
            }
            if (widths_[at] == width_ && keepsBlank(at)) {
                ++contrary; // of a word that had room, not of a screen's last column
            } else if (widths_[at] == width_ || (wide && widths_[at] + 1 == width_)) {
                ++full;
                gaps += hasGap(words) ? 1 : 0;
                const std::size_t last = words.size() - words.rfind(u' ');
                score += indentOf(below) > 1    ? -25
                         : indentOf(below) == 1 ? 35
                         : wide                 ? 8
                         : last > 20            ? 3
                         : endsWithWord(at)     ? 0
                         : isWordCut(at)        ? 15 + wordBonus
                                                : 15;
                score += bonus;
            } else if (widths_[at] + 1 == width_) {
                score -= 1;
            } else if (widths_[at] + 12 > width_ &&
                       widths_[at] + 1 + columnsOf(firstWord(below)) > width_) {
                ++contrary;
            }
        }
        const bool usual = width_ == 80 || width_ == 100 || width_ == 120 || width_ == 132 ||
                           width_ == 160 || width_ == 200;
        const int least = contrary > 0 ? (usual ? 30 : 40) : usual ? 15 : 30;
        return score - 25 * contrary >= least && gaps * 3 <= full;
    }

    bool keepsBlank(std::size_t at) const { return text_[lines_[at].end - 1] == u' '; }

    // A cut in front of a sign would have left a blank in the last column; letters and numbers may
    // be what was cut off.
    bool isItem(std::size_t at) const {
        const auto &line = lines_[at];
        const View above = rowAt(lines_[at - 1]);
        const View below = rowAt(line);
        const bool ends = endsSentence(above) && line.words < line.end && below[0] != u' ';
        const bool cutOff = mayBeCutOff(above, below) && !ends;
        return line.item && !cutOff;
    }

    char32_t lastOf(std::size_t at) const {
        const View row = rowAt(lines_[at]);
        return text::characterBefore(row, row.size());
    }

    bool goesOn(std::size_t at, bool inside) const {
        if (!mayGoOn(at, inside) || indentOf(rowAt(lines_[at + 1])) > 1) {
            return false;
        }
        if (widths_[at] == width_) {
            return !isItem(at + 1) && !(brokenElsewhere_ && endsWithWord(at));
        }
        // The next character was too wide for the last column, or a blank stood in it.
        return widths_[at] + 1 == width_ && text_[lines_[at + 1].begin] != u' ' &&
               (beginsWide(at + 1) || !lines_[at + 1].item);
    }

    // Whether the text had lines of its own before the screen cut it. Then a full row may end where
    // such a line did.
    bool isBrokenElsewhere() const {
        std::size_t full = 0;
        std::size_t broken = 0;
        std::size_t wide = 0; // where the author had about as many columns as the screen
        for (std::size_t at = 0; at + 1 < lines_.size(); ++at) {
            if (!mayGoOn(at) || lines_[at].kind != LineKind::prose) {
                continue;
            }
            const bool prose = lines_[at + 1].kind == LineKind::prose && !lines_[at + 1].item;
            full += widths_[at] == width_;
            const bool ends = prose && widths_[at] + 1 < width_;
            broken += ends && widths_[at] * 2 > width_;
            wide += ends && widths_[at] * 8 > width_ * 7;
        }
        return broken * 4 >= full || wide * 16 >= full;
    }

    // The words that no edge has cut; no more than a long book has, because a larger table would
    // not stay in the cache.
    void collectWords() {
        constexpr std::size_t most = 1 << 16;
        for (std::size_t at = 0; at < lines_.size() && words_.size() < most; ++at) {
            const View row = rowAt(lines_[at]);
            std::size_t begin = at > 0 && widths_[at - 1] == width_ ? row.find(u' ') : 0;
            const std::size_t last = widths_[at] == width_ ? row.rfind(u' ') : row.size();
            while (begin < last && last != View::npos) {
                const std::size_t end = std::min(row.find_first_of(u" .,;:!?)", begin), last);
                if (end > begin) {
                    words_.insert(row.substr(begin, end - begin));
                }
                begin = end + 1;
            }
        }
    }

    // Whether the row ends with a word of the text and the next one begins with another.
    bool endsWithWord(std::size_t at) const {
        if (words_.empty() || text_[lines_[at + 1].begin] == u' ') {
            return false;
        }
        const auto [above, below] = partsAt(at);
        const bool word = words_.contains(below) || (above.size() > 2 && below.size() > 3);
        return word && words_.contains(above) && !isWordCut(at);
    }

    // Whether a word of the text goes on in the next row.
    bool isWordCut(std::size_t at) const {
        if (words_.empty()) {
            return false;
        }
        const auto [above, below] = partsAt(at);
        return words_.contains(View(std::u16string(above).append(below)));
    }

    // The last word of the row and the first one of the next.
    std::pair<View, View> partsAt(std::size_t at) const {
        const View row = rowAt(lines_[at]);
        const View next = firstWord(rowAt(lines_[at + 1]));
        return {row.substr(row.find_last_of(u" (") + 1),
                next.substr(0, std::min(next.find_first_of(u".,;:!?)"), next.size()))};
    }

    // Whether the row is a full one of what is not joined, and its rest stands below.
    bool hasTail(std::size_t at) const {
        return at + 1 < lines_.size() && widths_[at] == width_ && widths_[at + 1] > 0 &&
               !isJoinable(at) && !isItem(at + 1);
    }

    // The rest of a line that is not joined stays apart, too.
    std::size_t appendTail(std::u16string &result, std::size_t at) {
        const auto &line = lines_[at];
        result.append(text_, line.begin, line.next() - line.begin);
        isTail_ = widths_[at] == width_;
        return at + 1;
    }

    // Returns the line behind.
    std::size_t appendLine(std::u16string &result, std::size_t begin) {
        std::size_t end = begin;
        bool doubtful = isDoubtful(lines_[begin]);
        std::u16string joined;
        for (; goesOn(end, end > begin); ++end) {
            joined.append(rowAt(lines_[end]));
            if (widths_[end] < width_ && !beginsWide(end + 1)) {
                joined.push_back(u' ');
            }
            doubtful = doubtful || isDoubtful(lines_[end + 1]);
        }
        const auto &last = lines_[end];
        joined.append(text_, last.begin, last.end - last.begin);
        if (end > begin && doubtful && !lines_[begin].item && !isProseWhole(joined)) {
            joined.assign(text_, lines_[begin].begin, last.end - lines_[begin].begin);
        }
        result.append(joined).append(text_, last.end, last.breakSize);
        isTail_ = hasTail(end);
        return end + 1;
    }

    const View text_;
    const std::size_t screen_;
    const Lines lines_;
    const std::size_t inkedEnd_; // behind the last line with words
    std::vector<std::size_t> widths_;
    std::size_t width_ = 0;
    std::unordered_set<View> words_;
    bool brokenElsewhere_ = false;
    bool isTail_ = false; // the next row is the rest of one that is not joined
};

// --- lines that were broken between words

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
        const bool setApart =
            isSetApart(first) && !(&above == &first && beginsIndented(first, below));
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

    // What begins like an item, but has no sibling, is taken for words of the row above only if
    // most of that kind had no room there.
    void rejectItems() {
        std::array<std::ptrdiff_t, 2> fitted{}; // of signs, of numbers and letters
        const auto isNumber = [&](const Pair &pair) {
            return text::isWordCharacter(text_[pair.begin]) || text_[pair.begin] == u'(';
        };
        for (const Pair &pair : pairs_) {
            const bool item = lines_[pair.row + 1].item;
            fitted.at(isNumber(pair)) += !item ? 0 : isWrapped(pair) ? -1 : 1;
        }
        for (Pair &pair : pairs_) {
            const bool item = lines_[pair.row + 1].item && fitted.at(isNumber(pair)) >= 0;
            pair.rejected = item && !keepsBlanks_;
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
        const char32_t next = text::characterAt(below, 0);
        const bool ends = (isOneOf(above.back(), u"),]") && text::isWordCharacter(next)) ||
                          (isOneOf(above.back(), u".!?:;") && next >= U'A' && next <= U'Z');
        return pair.oneWord && pair.width >= width_ && !ends;
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
    auto whole = CutRows(text, screen).run();
    const bool wasCut = !whole.empty();
    return WrappedLines(wasCut ? std::move(whole) : std::move(text), wasCut).run();
}

} // namespace nerlo::engine

#include "engine/CutRows.h"

#include "engine/ScreenRows.h"
#include "text/Characters.h"

#include <algorithm>
#include <array>
#include <unordered_set>
#include <utility>
#include <vector>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;
using Lines = std::vector<StructuredLine>;

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
               line.kind == LineKind::data || line.kind == LineKind::numbered;
    }

    // A cut row goes on without the marks of a quotation, unless the sign closes what it opened.
    bool isQuoted(std::size_t at) const {
        if (lines_[at].quoted <= lines_[at].begin + 1) {
            return false;
        }
        const View above = rowAt(lines_[at - 1]);
        const std::size_t open = above.rfind(u'<');
        return open == View::npos || above.find_first_of(u"> ", open) != View::npos;
    }

    // The first row of a paragraph, with blanks in front of it alone.
    bool isSetIn(std::size_t at) const {
        const bool begins = at == 0 || widths_[at - 1] == 0;
        if (!begins || lines_[at].kind != LineKind::code || lines_[at].item ||
            widths_[at] != width_ || at + 1 == lines_.size()) {
            return false;
        }
        const View row = rowAt(lines_[at]);
        const std::size_t indent = indentOf(row);
        return indent >= codeIndent && row[indent] >= u'A' && row[indent] <= u'Z' &&
               indentOf(rowAt(lines_[at + 1])) < 2;
    }

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
        if (!mayGoOn(at, inside || isSetIn(at)) || indentOf(rowAt(lines_[at + 1])) > 1) {
            return false;
        }
        if (widths_[at] == width_) {
            return !isItem(at + 1) && !(brokenElsewhere_ && endsWithWord(at));
        }
        // The next character was too wide for the last column, or a blank stood in it, or both.
        if (widths_[at] + 2 == width_ && text::isHangul(lastOf(at))) {
            return beginsWide(at + 1);
        }
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
            if (widths_[end] < width_ && (!beginsWide(end + 1) || widths_[end] + 2 == width_)) {
                joined.push_back(u' ');
            }
            doubtful = doubtful || isDoubtful(lines_[end + 1]);
        }
        const auto &last = lines_[end];
        joined.append(text_, last.begin, last.end - last.begin);
        if (end > begin && doubtful && !lines_[begin].item &&
            !(isProseWhole(joined) && (!isSetIn(begin) || endsSentence(joined)))) {
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

} // namespace

std::u16string joinCutRows(std::u16string_view text, std::size_t screen) {
    return CutRows(text, screen).run();
}

} // namespace nerlo::engine

#include "engine/StructureGuard.h"

#include "engine/CharacterCleaning.h"
#include "engine/CutSigns.h"
#include "engine/InlineStructure.h"
#include "engine/LineJoining.h"
#include "engine/MarkdownMarks.h"
#include "engine/Markup.h"
#include "engine/StepStream.h"
#include "engine/Structure.h"
#include "text/Characters.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;
constexpr text::UnitSet lineBreaks(u"\r\n");
using Steps = std::span<const Operation *const>;

bool isBlank(char16_t unit) {
    return unit == u' ' || unit == u'\u00A0';
}

std::size_t inkBegin(View words) {
    return static_cast<std::size_t>(std::ranges::find_if_not(words, isBlank) - words.begin());
}

std::size_t inkEnd(View words) {
    std::size_t end = words.size();
    while (end > 0 && isBlank(words[end - 1])) {
        --end;
    }
    return end;
}

// All blanks next to breaks go, so that a second clean finds none.
std::u16string removeLineEnds(std::u16string text, const CleaningContext &) {
    std::size_t to = 0;
    text::UnitCursor cursor(text, lineBreaks);
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = cursor.next();
        const View line = View(text).substr(begin, end - begin);
        const std::size_t from = begin == 0 ? 0 : inkBegin(line);
        const std::size_t till = end == text.size() ? line.size() : inkEnd(line);
        if (from < till) {
            if (to != begin + from) {
                std::char_traits<char16_t>::move(text.data() + to, line.data() + from, till - from);
            }
            to += till - from;
        }
        if (end < text.size()) {
            text[to++] = text[end];
        }
        begin = end + 1;
    }
    text.resize(to);
    return text;
}

std::u16string joinLines(std::u16string text, const CleaningContext &context) {
    return joinWrappedLines(std::move(text),
                            context.options.udChangeWrongInsertedReturnsOption == 1);
}

std::u16string cleanCharactersOfProse(std::u16string text, const CleaningContext &context) {
    return cleanCharactersAlone(std::move(text), context.options);
}

bool always(const CleaningOptions &) {
    return true;
}

// What the guard runs in place of operations that know nothing of structure.
const Operation *guarded(const Operation *step) {
    static const Operation joints{33, {}, {}, {}, joinLines, nullptr, Reach::lineJoints};
    static const Operation lineEnds{21, {}, {}, {}, removeLineEnds, always};
    static const Operation characters{cleanCharactersOperation, {}, {}, {}, cleanCharactersOfProse};
    return step->reach == Reach::lineJoints          ? &joints
           : step->reach == Reach::lineEnds          ? &lineEnds
           : step->index == cleanCharactersOperation ? &characters
                                                     : step;
}

std::vector<const Operation *> onProse(Steps steps, bool joinsLines) {
    std::vector<const Operation *> some;
    for (const Operation *const step : steps) {
        if (step->reach == Reach::prose || step->reach == Reach::lineEnds ||
            (joinsLines && step->reach == Reach::lineJoints)) {
            some.push_back(guarded(step));
        }
    }
    return some;
}

// Of the steps that can be cut, only the one for breaks puts in a text of the user's.
bool putsSignsIn(const CleaningOptions &options) {
    const std::u16string text = options.udChangeReturnsCustom1.stringValue();
    return text::findUnit(text, 0, structureSigns) < text.size();
}

// What signs of one kind stand for, in their order.
class Literals {
  public:
    void add(View literal) {
        if (next_ == ends_.size()) {
            units_.clear();
            ends_.clear();
            next_ = 0;
        }
        units_.append(literal);
        ends_.push_back(units_.size());
    }

    // The first one that was not taken yet. The next add() ends its life.
    View take() {
        const std::size_t begin = next_ == 0 ? 0 : ends_[next_ - 1];
        return View(units_).substr(begin, ends_[next_++] - begin);
    }

  private:
    std::u16string units_;
    std::vector<std::size_t> ends_;
    std::size_t next_ = 0;
};

bool isIndented(View text, const StructuredLine &line) {
    return line.begin < line.end && isBlank(text[line.begin]);
}

bool hasInk(View line) {
    return line.find_first_not_of(u" \t\u00A0") != View::npos;
}

// From the first line with ink to the last one.
text::Range inkedLines(View text) {
    const View noInk = u" \t\u00A0\r\n";
    const std::size_t first = text.find_first_not_of(noInk);
    if (first == View::npos) {
        return {};
    }
    const std::size_t last = text.find_last_not_of(noInk);
    return {text.find_last_of(u"\r\n", first) + 1, text::findUnit(text, last, lineBreaks)};
}

// A text that takes the place of another one, unit by unit: where it has grown beyond what is done
// with, it goes on in memory of its own.
class TextInPlace {
  public:
    explicit TextInPlace(std::u16string &text)
        : text_(text) {}

    // The units up to `end` may be overwritten from now on.
    void free(std::size_t end) { free_ = end; }

    // May be a part of the old text that is free from now on.
    void append(View more) {
        if (longer_.empty() && size_ + more.size() <= free_) {
            std::char_traits<char16_t>::move(text_.data() + size_, more.data(), more.size());
        } else {
            if (longer_.empty()) {
                longer_.reserve(text_.size() + more.size());
                longer_.assign(text_, 0, size_);
            }
            longer_.append(more);
        }
        size_ += more.size();
    }

    std::size_t size() const { return size_; }

    void finish() {
        if (longer_.empty()) {
            text_.resize(size_);
        } else {
            text_ = std::move(longer_);
        }
    }

  private:
    std::u16string &text_;
    std::u16string longer_;
    std::size_t size_ = 0;
    std::size_t free_ = 0;
};

// Does not move what it has when it grows, which would touch twice the memory.
using Lines = std::deque<StructuredLine>;

// The lines of a text, of which paragraphs of prose, with blank lines between them, count as one:
// but for those in lists and quotations, and up to a break that may be meant.
class GuardedLines {
  public:
    explicit GuardedLines(View text)
        : text_(text) {}

    void add(const StructuredLine &line) {
        const bool isProse = line.kind == LineKind::prose && line.words < line.end;
        if (inProse_ && isPlain(line)) {
            addProse(line);
        } else if (isMarked_ && isProse && !line.item) {
            lines_.push_back(line); // the paragraph in the list or the quotation goes on
        } else {
            const bool isBlank = line.kind == LineKind::blank;
            inList_ = line.item || (inList_ && (isBlank || isIndented(text_, line)));
            isMarked_ = isProse && (inList_ || line.quoted > line.begin);
            inProse_ = isBlank ? inProse_ : isProse && !isMarked_;
            if (inProse_ && !isBlank) {
                prose_ = lines_.size();
            }
            lines_.push_back(line);
        }
    }

    // Whether the line is words alone, not those of a list item or a quotation.
    static bool isPlain(const StructuredLine &line) {
        return line.kind == LineKind::prose && !line.item && line.quoted == line.begin;
    }

    Lines lines() && { return std::move(lines_); }

  private:
    void addProse(const StructuredLine &line) {
        if (lines_[prose_].mayBreak) {
            prose_ = lines_.size();
            lines_.push_back(line);
            return;
        }
        while (lines_.size() > prose_ + 1) {
            lines_.pop_back();
        }
        StructuredLine &last = lines_.back();
        last.end = line.end;
        last.breakSize = line.breakSize;
        last.mayBreak = line.mayBreak && line.end - line.words > 1;
    }

    const View text_;
    Lines lines_;
    bool inList_ = false;
    bool isMarked_ = false;
    bool inProse_ = false;
    std::size_t prose_ = 0; // the line that the prose above was added to
};

class Guard {
  public:
    Guard(std::u16string &text, Steps steps, const CleaningContext &context, std::size_t pieceSize)
        : text_(text)
        , context_(context)
        , pieceSize_(pieceSize)
        , steps_(steps)
        , result_(text) {
        for (const Operation *const step : steps) {
            joinsLines_ = joinsLines_ || step->reach == Reach::lineJoints;
            marksGo_ = marksGo_ || step->reach == Reach::quoteMarks;
            bulletsGo_ = bulletsGo_ || step->reach == Reach::bullets;
            lineEndsGo_ = lineEndsGo_ || step->reach == Reach::lineEnds;
            links_ = step->reach == Reach::addresses ? step : links_;
            tagsGo_ = tagsGo_ || step->index == tagsOperation;
            if (step->index == cleanCharactersOperation) {
                apostrophe_ = cleanCharactersAlone(apostrophe_, context.options);
            }
        }
    }

    void run() {
        if (!findLines()) {
            fixed_ = inkedLines(text_);
            return;
        }
        stream_.emplace(onProse(steps_, joinsLines_), context_, structureSigns,
                        putsSignsIn(context_.options), [this](View done) { appendCleaned(done); });
        bool inList = false;
        for (std::size_t at = 0; at < lines_.size();) {
            const auto &line = lines_[at];
            inList =
                line.item || (inList && (isIndented(text_, line) || line.kind == LineKind::blank));
            if (line.kind != LineKind::prose || line.words == line.end) {
                appendFixed(at++);
            } else if (inList || line.quoted > line.begin) {
                at = markedParagraph(at);
            } else {
                at = paragraphs(at);
            }
        }
        result_.finish();
    }

    // From the first to behind the last unit of the result that is protected.
    text::Range fixed() const { return fixed_; }

  private:
    enum class Ends : std::uint8_t { no, yes, stripped };

    View cut(std::size_t begin, std::size_t end) const { return text_.substr(begin, end - begin); }

    // False where nothing is prose. Lines that a screen cut are not joined: no blank belongs there.
    bool findLines() {
        GuardedLines lines(text_);
        CutSigns signs(text_);
        const auto take = [&](const StructuredLine &line) {
            if (joinsLines_) {
                signs.add(line);
            }
            lines.add(line);
        };
        places_.reserve(text_.size() / text::scanBlock + 1);
        const bool program = scanStructure(
            text_,
            [&](std::span<const StructuredLine> some) {
                for (const StructuredLine &line : some) {
                    take(tagsGo_ && line.kind == LineKind::markup ? asText(line) : line);
                }
            },
            &places_);
        lines_ = std::move(lines).lines();
        joinsLines_ = joinsLines_ && !signs.areCut();
        return !program;
    }

    // A line of HTML whose tags go.
    static StructuredLine asText(StructuredLine line) {
        line.kind = line.words < line.end ? LineKind::prose : LineKind::blank;
        return line;
    }

    void markFixed(std::size_t begin) {
        fixed_.begin = fixed_.end == 0 ? begin : fixed_.begin;
        fixed_.end = result_.size();
    }

    void appendFixed(std::size_t at) {
        const auto &line = lines_[at];
        const std::size_t begin = result_.size();
        const View all = cut(line.begin, line.end);
        const bool inked = hasInk(all);
        result_.free(line.next());
        const bool goes = marksGo_ && isQuotedProse(at); // a blank line of a quotation
        if (!goes) {
            result_.append(all);
            if (inked) {
                markFixed(begin);
            }
        }
        result_.append(cut(line.end, line.next()));
    }

    // Whether the paragraph of the line above goes on.
    bool goesOn(std::size_t at) const {
        return at < lines_.size() && lines_[at].kind == LineKind::prose && !lines_[at].item &&
               lines_[at].words < lines_[at].end;
    }

    // Two blanks or a backslash at the end of a line mean its break.
    bool isMeant(std::size_t at) const {
        const View line = cut(lines_[at].words, lines_[at].end);
        if (!lines_[at].mayBreak || line.size() < 2) {
            return false;
        }
        const std::size_t ink = inkEnd(line);
        return ink > 0 && (line.substr(ink) == u"  " || ink == line.size()) && goesOn(at + 1);
    }

    // Of paragraphs with nothing but blank lines between them, from the line `at` on.
    std::size_t lastOfParagraphs(std::size_t at) const {
        std::size_t last = at;
        for (std::size_t row = at + 1; row < lines_.size(); ++row) {
            if (GuardedLines::isPlain(lines_[row])) {
                last = row;
            } else if (lines_[row].kind != LineKind::blank) {
                break;
            }
        }
        return last;
    }

    // Returns the line below them.
    std::size_t paragraphs(std::size_t at) {
        const std::size_t last = lastOfParagraphs(at);
        const StructuredLine &end = lines_[last];
        std::size_t from = lines_[at].begin;
        if (lineEndsGo_ && at > 0) {
            from += inkBegin(cut(from, lines_[at].end));
        }
        for (std::size_t row = at; row < last; ++row) {
            const auto &line = lines_[row];
            from = cleanPieces(from, line.next());
            if (isMeant(row)) {
                const std::size_t ink = line.begin + inkEnd(cut(line.begin, line.end));
                block_.append(cut(from, ink));
                addBreak(cut(ink, line.next()));
                from = line.next();
            }
        }
        from = cleanPieces(from, end.end);
        const bool stripped = lineEndsGo_ && end.end < end.next();
        cleanPiece(from, end.end, stripped ? Ends::stripped : Ends::yes);
        result_.free(end.next());
        result_.append(cut(end.end, end.next()));
        return last + 1;
    }

    // Cleans what is large enough of the paragraphs up to `end`; returns where the rest begins.
    // Nothing inside a sentence reaches across an empty line.
    std::size_t cleanPieces(std::size_t from, std::size_t end) {
        while (end - from >= pieceSize_) {
            // What was found still holds for a place before it: rows are added one by one, and
            // the next empty line may be far away.
            if (emptyLineEnd_ < from + pieceSize_) {
                emptyLineEnd_ = behindEmptyLine(from, from + pieceSize_);
            }
            if (emptyLineEnd_ > end) {
                break;
            }
            cleanPiece(from, emptyLineEnd_, Ends::no);
            from = emptyLineEnd_;
        }
        return from;
    }

    // Where the first empty line behind `from` ends, at `least` or later; npos for none.
    std::size_t behindEmptyLine(std::size_t from, std::size_t least) const {
        const auto isBreak = [&](std::size_t at) {
            return text_[at] == u'\n' || text_[at] == u'\r';
        };
        std::size_t at = std::max(from, least - std::min<std::size_t>(least, 2));
        for (at = text::findUnit(text_, at, lineBreaks); at < text_.size();
             at = text::findUnit(text_, at, lineBreaks)) {
            const bool isSecond = at > 0 && text_[at] == u'\n' && text_[at - 1] == u'\r';
            const std::size_t next = at + (text_.substr(at).starts_with(u"\r\n") ? 2 : 1);
            if (!isSecond && next >= least && (at == from || isBreak(at - 1))) {
                return next;
            }
            at = next;
        }
        return View::npos;
    }

    // A paragraph in a list or a quotation.
    std::size_t markedParagraph(std::size_t at) {
        marks_.clear();
        appendMarks(marks_, at);
        std::size_t row = at;
        for (bool more = true; more; row += more ? 1 : 0) {
            const auto &line = lines_[row];
            const View words = cut(line.words, line.end);
            const bool kept = isMeant(row) || !lineEndsGo_ || line.end == line.next();
            more = goesOn(row + 1);
            if (more && mayBeJoined(at, row)) {
                block_.append(cut(line.words, line.next()));
                block_.append(cut(lines_[row + 1].quoted, lines_[row + 1].words));
                continue;
            }
            block_.append(words.substr(0, more || !kept ? inkEnd(words) : words.size()));
            if (more) {
                literal_.assign(kept ? words.substr(inkEnd(words)) : View());
                literal_.append(cut(line.end, line.next()));
                appendMarks(literal_, row + 1);
                addBreak(literal_);
            }
        }
        const auto &last = lines_[row];
        const std::size_t begin = result_.size();
        result_.free(last.end);
        result_.append(marks_);
        cleanPiece(last.end, last.end, Ends::yes);
        if (!marks_.empty() || row > at) {
            markFixed(begin);
        }
        result_.free(last.next());
        result_.append(cut(last.end, last.next()));
        return row + 1;
    }

    // Whether nothing stands between the line and the next one any more, so that they are as those
    // of any paragraph. `first` is the first one of theirs.
    bool mayBeJoined(std::size_t first, std::size_t at) {
        const auto depth = [&](std::size_t row) {
            const View marks = cut(lines_[row].begin, lines_[row].quoted);
            return std::ranges::count(marks, u'>');
        };
        return marksGo_ && !lines_[first].item && !isMeant(at) && depth(at) == depth(at + 1) &&
               isQuotedProse(at) && isQuotedProse(at + 1);
    }

    void addBreak(View literal) {
        breakPlaces_.push_back(block_.size());
        block_.push_back(breakSign);
        blockBreaks_.add(literal);
    }

    // What stands in front of the words of a line, without what is to go.
    void appendMarks(std::u16string &to, std::size_t at) {
        const auto &line = lines_[at];
        if (!marksGo_ || !isQuotedProse(at)) {
            to.append(cut(line.begin, line.quoted));
        }
        const View mark = cut(line.quoted, line.words);
        if (bulletsGo_ && line.item) {
            if (mark != itemMark_) {
                itemMark_ = mark;
                // An "o" is a bullet behind a break only.
                itemMarkLeft_ = removeBullets(std::u16string(u"\n").append(mark)).substr(1);
            }
            to.append(itemMarkLeft_);
        } else {
            to.append(mark);
        }
    }

    // Whether the line is part of a paragraph of a quotation that is nothing but prose. Blank lines
    // go with the paragraph above.
    bool isQuotedProse(std::size_t at) {
        const auto isQuoted = [&](std::size_t row) {
            return row < lines_.size() && lines_[row].quoted > lines_[row].begin;
        };
        if (isQuoted(at) && at >= quotationEnd_) {
            quotedProse_ = true;
            bool inked = false;
            bool blankAbove = false;
            for (quotationEnd_ = at; isQuoted(quotationEnd_); ++quotationEnd_) {
                const auto &line = lines_[quotationEnd_];
                const bool blank = line.words == line.end;
                if (inked && blankAbove && !blank) {
                    break;
                }
                inked = inked || !blank;
                blankAbove = blank;
                quotedProse_ = quotedProse_ && line.kind == LineKind::prose;
            }
        }
        return isQuoted(at) && quotedProse_;
    }

    // Gives what waits, and the words from `from` to `end` behind it, to the steps. `ends` says
    // whether their text ends here, and without the blanks at its end.
    void cleanPiece(std::size_t from, std::size_t end, Ends ends) {
        const bool isStretch = block_.empty();
        block_.append(cut(from, end));
        if (ends == Ends::stripped) {
            block_.resize(inkEnd(block_));
        }
        if (isStretch) {
            hideInlineStructure(places_, from);
        } else {
            findInlinePlaces(block_, blockPlaces_);
            hideInlineStructure(blockPlaces_, 0);
            breakPlaces_.clear();
        }
        result_.free(end);
        stream_->put(block_, ends != Ends::no);
    }

    // Takes code and addresses out of the block, and the signs where it has them. The places of the
    // block begin at `begin`.
    void hideInlineStructure(const InlinePlaces &places, std::size_t begin) {
        findInlineStructure({block_, places, begin}, breakPlaces_, tagsGo_, ranges_);
        std::size_t to = 0;
        std::size_t from = 0;
        auto place = breakPlaces_.cbegin();
        const auto keepUpTo = [&](std::size_t end) {
            if (to != from) {
                std::char_traits<char16_t>::move(&block_[to], &block_[from], end - from);
            }
            to += end - from;
            for (; place != breakPlaces_.cend() && *place < end; ++place) {
                breaks_.add(blockBreaks_.take());
            }
        };
        for (const text::Range &range : ranges_) {
            keepUpTo(range.begin);
            from = range.begin;
            literal_.clear();
            for (; place != breakPlaces_.cend() && *place < range.end; from = *place++ + 1) {
                literal_.append(block_, from, *place - from).append(blockBreaks_.take());
            }
            words_.add(literal_.append(block_, from, range.end - from));
            block_[to++] = wordSign;
            from = range.end;
        }
        keepUpTo(block_.size());
        block_.resize(to);
    }

    void appendCleaned(View text) {
        std::size_t from = 0;
        text::UnitCursor cursor(text, structureSigns);
        for (std::size_t at = cursor.next(); at < text.size(); at = cursor.next()) {
            result_.append(text.substr(from, at - from));
            if (text[at] == breakSign) {
                result_.append(breaks_.take());
            } else {
                appendWord(words_.take());
            }
            from = at + 1;
        }
        result_.append(text.substr(from));
    }

    void appendWord(View word) {
        if (word == u"\u2019") {
            result_.append(apostrophe_);
        } else if (links_ && word.size() > 1 && !word.starts_with(u'`')) {
            result_.append(links_->run(std::u16string(word), context_));
        } else {
            result_.append(word);
        }
    }

    const View text_;
    const CleaningContext &context_;
    const std::size_t pieceSize_;
    std::size_t emptyLineEnd_ = 0; // that was found last; see cleanPieces()
    Lines lines_;
    InlinePlaces places_;
    const Steps steps_;
    TextInPlace result_;
    std::optional<StepStream> stream_;
    bool joinsLines_ = false;
    bool marksGo_ = false;
    bool bulletsGo_ = false;
    bool lineEndsGo_ = false;
    bool tagsGo_ = false;
    const Operation *links_ = nullptr;      // what is to be done to addresses
    std::u16string apostrophe_ = u"\u2019"; // what becomes of one
    std::u16string block_;                  // words for the steps, with signs in them
    std::vector<std::size_t> breakPlaces_;  // in it, of signs for breaks, while it is put together
    Literals blockBreaks_;                  // what these stand for
    InlinePlaces blockPlaces_;
    Literals words_; // what the signs in the blocks stand for
    Literals breaks_;
    std::vector<text::Range> ranges_;
    std::u16string marks_;
    std::u16string itemMark_;     // of the last item; most are like the one before
    std::u16string itemMarkLeft_; // what is left of it without its bullet
    std::u16string literal_;
    text::Range fixed_;
    std::size_t quotationEnd_ = 0; // of the quoted paragraph looked at last
    bool quotedProse_ = false;
};

// White space at both ends goes, up to what is protected.
std::u16string trimmed(std::u16string text, text::Range fixed) {
    const std::size_t most = fixed.end == 0 ? text.size() : fixed.begin;
    std::size_t end = text.size();
    while (end > fixed.end && text::isWhiteSpace(text[end - 1])) {
        --end;
    }
    std::size_t begin = 0;
    while (begin < std::min(most, end) && text::isWhiteSpace(text[begin])) {
        ++begin;
    }
    text.resize(end);
    text.erase(0, begin);
    return text;
}

bool has(Steps steps, std::int32_t operation) {
    return std::ranges::find(steps, operation, &Operation::index) != steps.end();
}

} // namespace

Steps guardedSteps(Steps steps) {
    const auto isWhole = [](const Operation *step) { return step->reach == Reach::whole; };
    const auto first = std::ranges::find_if_not(steps, isWhole);
    return {first, std::find_if(first, steps.end(), isWhole)};
}

std::u16string runGuarded(std::u16string text, Steps steps, const CleaningContext &context,
                          std::size_t pieceSize) {
    const Steps guarded = guardedSteps(steps);
    text = runSteps(std::move(text), {steps.begin(), guarded.begin()}, context, pieceSize);
    if (!guarded.empty()) {
        Guard guard(text, guarded, context, pieceSize);
        guard.run();
        const bool trims = std::ranges::any_of(
            guarded, [](const Operation *step) { return step->reach == Reach::textEnds; });
        text = trims ? trimmed(std::move(text), guard.fixed()) : std::move(text);
        if (context.options.udCleanCharactersMarkdown && has(guarded, cleanCharactersOperation)) {
            std::size_t count = 0;
            text = removeMarkdown(std::move(text), count);
        }
    }
    return runSteps(std::move(text), {guarded.end(), steps.end()}, context, pieceSize);
}

} // namespace nerlo::engine

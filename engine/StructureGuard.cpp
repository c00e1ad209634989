#include "engine/StructureGuard.h"

#include "engine/CharacterCleaning.h"
#include "engine/InlineStructure.h"
#include "engine/LineJoining.h"
#include "engine/MarkdownMarks.h"
#include "engine/Markup.h"
#include "engine/StepStream.h"
#include "engine/Structure.h"
#include "text/Characters.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;
constexpr text::UnitSet lineBreaks(u"\r\n");
using Steps = std::span<const Operation *const>;

// What stands in a text for code or an address: a letter without cases, so that words and sentences
// are still seen around it. Of runes, as hardly any text has them.
constexpr char16_t wordSign = u'\u16F8';
// What stands for a break that stays, with the marks behind it: the number of no character, so that
// no word has it and no rule takes it for anything.
constexpr char16_t breakSign = u'\u16F9';
constexpr text::UnitSet signs{{wordSign, breakSign}};

constexpr View blanks = u" \u00A0";

std::size_t inkBegin(View words) {
    return std::min(words.find_first_not_of(blanks), words.size());
}

std::size_t inkEnd(View words) {
    return words.find_last_not_of(blanks) + 1; // npos + 1 is 0
}

// All blanks next to breaks go, so that a second clean finds none.
std::u16string removeLineEnds(std::u16string text, const CleaningContext &) {
    std::size_t to = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = text::findUnit(text, begin, lineBreaks);
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

std::vector<const Operation *> onProse(Steps steps) {
    std::vector<const Operation *> some;
    for (const Operation *const step : steps) {
        if (step->reach == Reach::prose || step->reach == Reach::lineJoints ||
            step->reach == Reach::lineEnds) {
            some.push_back(guarded(step));
        }
    }
    return some;
}

// Of the steps that can be cut, only the one for breaks puts in a text of the user's.
bool putsSignsIn(const CleaningOptions &options) {
    const std::u16string text = options.udChangeReturnsCustom1.stringValue();
    return text::findUnit(text, 0, signs) < text.size();
}

constexpr std::int32_t removeTagsOperation = 11;

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

class Guard {
  public:
    Guard(View text, Steps steps, const CleaningContext &context, std::size_t pieceSize)
        : text_(text)
        , context_(context)
        , pieceSize_(pieceSize)
        , lines_(scanStructure(text))
        , stream_(onProse(steps), context, signs, putsSignsIn(context.options),
                  [this](View done) { appendCleaned(done); }) {
        for (const Operation *const step : steps) {
            marksGo_ = marksGo_ || step->reach == Reach::quoteMarks;
            bulletsGo_ = bulletsGo_ || step->reach == Reach::bullets;
            lineEndsGo_ = lineEndsGo_ || step->reach == Reach::lineEnds;
            links_ = step->reach == Reach::addresses ? step : links_;
            tagsGo_ = tagsGo_ || step->index == removeTagsOperation;
            if (step->index == cleanCharactersOperation) {
                apostrophe_ = cleanCharactersAlone(apostrophe_, context.options);
            }
        }
        for (StructuredLine &line : lines_) {
            if (tagsGo_ && line.kind == LineKind::markup) {
                line.kind = LineKind::prose;
            }
        }
    }

    std::u16string run() {
        result_.reserve(text_.size());
        bool inList = false;
        for (std::size_t at = 0; at < lines_.size();) {
            const auto &line = lines_[at];
            const bool indented =
                line.begin < line.end && blanks.find(text_[line.begin]) != View::npos;
            inList = line.item || (inList && (indented || line.kind == LineKind::blank));
            if (line.kind != LineKind::prose || line.words == line.end) {
                appendFixed(at++);
            } else if (inList || line.quoted > line.begin) {
                at = markedParagraph(at);
            } else {
                at = paragraphs(at);
            }
        }
        return std::move(result_);
    }

    // From the first to behind the last unit of the result that is protected.
    text::Range fixed() const { return fixed_; }

  private:
    View cut(std::size_t begin, std::size_t end) const { return text_.substr(begin, end - begin); }

    void markFixed(std::size_t begin) {
        fixed_.begin = fixed_.end == 0 ? begin : fixed_.begin;
        fixed_.end = result_.size();
    }

    void appendFixed(std::size_t at) {
        const auto &line = lines_[at];
        const std::size_t begin = result_.size();
        if (!marksGo_ || !isQuotedProse(at)) { // else it is a blank line of a quotation
            result_.append(cut(line.begin, line.end));
        }
        if (View(result_).find_first_not_of(u" \t\u00A0", begin) != View::npos) {
            markFixed(begin);
        }
        result_.append(cut(line.end, line.next()));
    }

    // Whether the line is words alone, not those of a list item or a quotation.
    bool isPlain(std::size_t at) const {
        const auto &line = lines_[at];
        return line.kind == LineKind::prose && !line.item && line.quoted == line.begin;
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
            if (isPlain(row)) {
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
            if (isMeant(row)) {
                const std::size_t ink = line.begin + inkEnd(cut(line.begin, line.end));
                block_.append(cut(from, ink));
                addBreak(cut(ink, line.next()));
                from = line.next();
            } else if (line.begin == line.end && line.next() - from >= pieceSize_) {
                // Nothing inside a sentence reaches across an empty line.
                block_.append(cut(from, line.next()));
                from = line.next();
                clean(false);
            }
        }
        const bool stripped = lineEndsGo_ && end.end < end.next();
        const View words = cut(from, end.end);
        block_.append(words.substr(0, stripped ? inkEnd(words) : words.size()));
        clean(true);
        result_.append(cut(end.end, end.next()));
        return last + 1;
    }

    // A paragraph in a list or a quotation.
    std::size_t markedParagraph(std::size_t at) {
        const std::size_t begin = result_.size();
        appendMarks(result_, at);
        const bool marked = result_.size() > begin;
        std::size_t row = at;
        for (bool more = true; more; row += more ? 1 : 0) {
            const auto &line = lines_[row];
            const View words = cut(line.words, line.end);
            const bool kept = isMeant(row) || !lineEndsGo_ || line.end == line.next();
            more = goesOn(row + 1);
            block_.append(words.substr(0, more || !kept ? inkEnd(words) : words.size()));
            if (more) {
                literal_.assign(kept ? words.substr(inkEnd(words)) : View());
                literal_.append(cut(line.end, line.next()));
                appendMarks(literal_, row + 1);
                addBreak(literal_);
            }
        }
        clean(true);
        if (marked || row > at) {
            markFixed(begin);
        }
        result_.append(cut(lines_[row].end, lines_[row].next()));
        return row + 1;
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
            // An "o" is a bullet behind a break only.
            to.append(removeBullets(std::u16string(u"\n").append(mark)), 1);
        } else {
            to.append(mark);
        }
    }

    // Whether the line is part of a quotation of nothing but prose.
    bool isQuotedProse(std::size_t at) {
        const auto isQuoted = [&](std::size_t row) {
            return row < lines_.size() && lines_[row].quoted > lines_[row].begin;
        };
        if (isQuoted(at) && at >= quotationEnd_) {
            quotedProse_ = true;
            for (quotationEnd_ = at; isQuoted(quotationEnd_); ++quotationEnd_) {
                quotedProse_ = quotedProse_ && lines_[quotationEnd_].kind == LineKind::prose;
            }
        }
        return isQuoted(at) && quotedProse_;
    }

    // Gives the block to the steps; with `last`, its text ends here.
    void clean(bool last) {
        hideInlineStructure();
        breakPlaces_.clear();
        stream_.put(block_, last);
    }

    // Code, addresses, and the signs themselves where the text has them.
    void hideInlineStructure() {
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
        for (const text::Range &range : findInlineStructure(block_, signs, breakPlaces_, tagsGo_)) {
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
        text::UnitCursor cursor(text, signs);
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
    std::vector<StructuredLine> lines_;
    StepStream stream_;
    bool marksGo_ = false;
    bool bulletsGo_ = false;
    bool lineEndsGo_ = false;
    bool tagsGo_ = false;
    const Operation *links_ = nullptr;      // what is to be done to addresses
    std::u16string apostrophe_ = u"\u2019"; // what becomes of one
    std::u16string block_; // words that the steps have not seen yet, with signs in them
    std::vector<std::size_t> breakPlaces_; // in it, of the signs that stand for breaks
    Literals blockBreaks_;                 // what these stand for
    Literals words_;                       // what the signs in the text further on stand for
    Literals breaks_;
    std::u16string literal_;
    std::u16string result_;
    text::Range fixed_;
    std::size_t quotationEnd_ = 0; // of the quotation looked at last
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
        std::u16string result = guard.run();
        const bool trims = std::ranges::any_of(
            guarded, [](const Operation *step) { return step->reach == Reach::textEnds; });
        text = trims ? trimmed(std::move(result), guard.fixed()) : std::move(result);
        if (context.options.udCleanCharactersMarkdown && has(guarded, cleanCharactersOperation)) {
            std::size_t count = 0;
            text = removeMarkdown(std::move(text), count);
        }
    }
    return runSteps(std::move(text), {guarded.end(), steps.end()}, context, pieceSize);
}

} // namespace nerlo::engine

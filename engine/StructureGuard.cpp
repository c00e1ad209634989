#include "engine/StructureGuard.h"

#include "engine/InlineStructure.h"
#include "engine/LineJoining.h"
#include "engine/Markup.h"
#include "engine/Structure.h"
#include "text/Characters.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;
constexpr text::UnitSet lineBreaks(u"\r\n");
using Steps = std::span<const Operation *const>;

// What stands in a text for a break that stays, with the marks behind it; no word has it.
constexpr char16_t breakSign = u'\uFDD0';
// What stands in for code or an address: a letter without cases, so that words and sentences are
// still seen around it.
constexpr char16_t wordSign = u'\uA000';

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
            std::char_traits<char16_t>::move(text.data() + to, line.data() + from, till - from);
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

// What the guard runs in place of operations that know nothing of structure.
const Operation *guarded(const Operation *step) {
    static const Operation joints{33, {}, {}, {}, joinLines};
    static const Operation lineEnds{21, {}, {}, {}, removeLineEnds};
    return step->reach == Reach::lineJoints ? &joints
           : step->reach == Reach::lineEnds ? &lineEnds
                                            : step;
}

bool runsOnProse(const Operation *step) {
    return step->reach == Reach::prose || step->reach == Reach::lineJoints ||
           step->reach == Reach::lineEnds;
}

// A text in which signs stand for the literals, in their order.
struct Signed {
    std::u16string text;
    std::vector<std::u16string> literals;

    void add(char16_t sign, View literal) {
        text.push_back(sign);
        literals.emplace_back(literal);
    }
};

std::u16string withLiterals(std::u16string &&text, char16_t sign,
                            const std::vector<std::u16string> &literals) {
    if (literals.empty()) {
        return std::move(text);
    }
    std::u16string result;
    std::size_t from = 0;
    for (const std::u16string &literal : literals) {
        const std::size_t at = text.find(sign, from);
        result.append(text, from, at - from).append(literal);
        from = at + 1;
    }
    return result.append(text, from);
}

constexpr std::int32_t removeTagsOperation = 11;

// Code and addresses, and the sign itself where the text has it.
Signed withoutInlineStructure(std::u16string &&text, bool tagsGo) {
    Signed result;
    const auto ranges = findInlineStructure(text, wordSign, tagsGo);
    if (ranges.empty()) {
        result.text = std::move(text);
        return result;
    }
    std::size_t from = 0;
    for (const text::Range &range : ranges) {
        result.text.append(text, from, range.begin - from);
        result.add(wordSign, View(text).substr(range.begin, range.end - range.begin));
        from = range.end;
    }
    result.text.append(text, from);
    return result;
}

class Guard {
  public:
    Guard(View text, Steps steps, const CleaningContext &context, std::size_t pieceSize)
        : text_(text)
        , context_(context)
        , pieceSize_(pieceSize)
        , lines_(scanStructure(text)) {
        for (const Operation *const step : steps) {
            marksGo_ = marksGo_ || step->reach == Reach::quoteMarks;
            bulletsGo_ = bulletsGo_ || step->reach == Reach::bullets;
            lineEndsGo_ = lineEndsGo_ || step->reach == Reach::lineEnds;
            links_ = step->reach == Reach::addresses ? step : links_;
            tagsGo_ = tagsGo_ || step->index == removeTagsOperation;
            if (runsOnProse(step)) {
                steps_.push_back(guarded(step));
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
        if (line.size() < 2 || (line.back() != u' ' && line.back() != u'\\')) {
            return false;
        }
        const std::size_t ink = inkEnd(line);
        return ink > 0 && (line.substr(ink) == u"  " || ink == line.size()) && goesOn(at + 1);
    }

    // Paragraphs with nothing but blank lines between them, from the line `at` on. Returns the line
    // below them.
    std::size_t paragraphs(std::size_t at) {
        std::size_t last = at;
        for (std::size_t row = at + 1; row < lines_.size(); ++row) {
            if (isPlain(row)) {
                last = row;
            } else if (lines_[row].kind != LineKind::blank) {
                break;
            }
        }
        const StructuredLine &end = lines_[last];
        Signed signs;
        std::size_t from = lines_[at].begin;
        for (std::size_t row = at; row < last; ++row) {
            if (isMeant(row)) {
                const auto &line = lines_[row];
                const std::size_t ink = line.begin + inkEnd(cut(line.begin, line.end));
                appendWords(signs, cut(from, ink));
                signs.add(breakSign, cut(ink, line.next()));
                from = line.next();
            }
        }
        const bool stripped = lineEndsGo_ && end.end < end.next();
        const View words = cut(from, end.end);
        appendWords(signs, words.substr(0, stripped ? inkEnd(words) : words.size()));
        if (lineEndsGo_ && at > 0) {
            signs.text.erase(0, inkBegin(signs.text));
        }
        result_.append(clean(std::move(signs))).append(cut(end.end, end.next()));
        return last + 1;
    }

    // A paragraph in a list or a quotation.
    std::size_t markedParagraph(std::size_t at) {
        const std::size_t begin = result_.size();
        result_.append(marksOf(at));
        const bool marked = result_.size() > begin;
        Signed signs;
        std::size_t row = at;
        for (bool more = true; more; row += more ? 1 : 0) {
            const auto &line = lines_[row];
            const View words = cut(line.words, line.end);
            const bool kept = isMeant(row) || !lineEndsGo_ || line.end == line.next();
            more = goesOn(row + 1);
            appendWords(signs, words.substr(0, more || !kept ? inkEnd(words) : words.size()));
            if (more) {
                std::u16string literal(kept ? words.substr(inkEnd(words)) : View());
                literal.append(cut(line.end, line.next())).append(marksOf(row + 1));
                signs.add(breakSign, literal);
            }
        }
        result_.append(clean(std::move(signs)));
        if (marked || row > at) {
            markFixed(begin);
        }
        result_.append(cut(lines_[row].end, lines_[row].next()));
        return row + 1;
    }

    static void appendWords(Signed &signs, View words) {
        std::size_t from = 0;
        for (std::size_t at = text::findUnit(words, 0, breakSign); at < words.size();
             at = text::findUnit(words, from, breakSign)) {
            signs.text.append(words.substr(from, at - from));
            signs.add(breakSign, words.substr(at, 1));
            from = at + 1;
        }
        signs.text.append(words.substr(from));
    }

    // What stands in front of the words of a line, without what is to go.
    std::u16string marksOf(std::size_t at) {
        const auto &line = lines_[at];
        std::u16string marks(cut(line.begin, line.quoted));
        if (marksGo_ && isQuotedProse(at)) {
            marks.clear();
        }
        const View mark = cut(line.quoted, line.words);
        if (bulletsGo_ && line.item) {
            // An "o" is a bullet behind a break only.
            return marks.append(removeBullets(std::u16string(u"\n").append(mark)), 1);
        }
        return marks.append(mark);
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

    std::u16string clean(Signed &&breaks) const {
        Signed words = withoutInlineStructure(std::move(breaks.text), tagsGo_);
        std::u16string text;
        if (words.literals.empty() && breaks.literals.empty()) {
            text = runSteps(std::move(words.text), steps_, context_, pieceSize_);
        } else {
            text = cleanAround(words.text);
        }
        for (std::u16string &word : words.literals) {
            if (links_ && !word.starts_with(u'`')) {
                word = links_->run(std::move(word), context_);
            }
        }
        text = withLiterals(std::move(text), wordSign, words.literals);
        return withLiterals(std::move(text), breakSign, breaks.literals);
    }

    // Without the steps that take a sign out or put one in.
    std::u16string cleanAround(const std::u16string &words) const {
        const auto hasAllSigns = [&](View text) {
            return std::ranges::all_of(std::array{wordSign, breakSign}, [&](char16_t sign) {
                return std::ranges::count(text, sign) == std::ranges::count(words, sign);
            });
        };
        std::u16string all = runSteps(words, steps_, context_, pieceSize_);
        if (hasAllSigns(all)) {
            return all;
        }
        std::u16string text = words;
        for (const Operation *const step : steps_) {
            std::u16string next = runSteps(text, {&step, 1}, context_, pieceSize_);
            if (hasAllSigns(next)) {
                text = std::move(next);
            }
        }
        return text;
    }

    const View text_;
    const CleaningContext &context_;
    const std::size_t pieceSize_;
    std::vector<StructuredLine> lines_;
    std::vector<const Operation *> steps_;
    bool marksGo_ = false;
    bool bulletsGo_ = false;
    bool lineEndsGo_ = false;
    bool tagsGo_ = false;
    const Operation *links_ = nullptr; // what is to be done to addresses
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
    }
    return runSteps(std::move(text), {guarded.end(), steps.end()}, context, pieceSize);
}

} // namespace nerlo::engine

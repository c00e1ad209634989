#include "engine/Structure.h"

#include "engine/LineLooks.h"
#include "text/Ascii.h"
#include "text/Range.h"
#include "text/UnitClasses.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <span>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;
using Lines = std::vector<StructuredLine>;
using text::isAsciiDigit;
using text::isAsciiLetter;

// What is looked for in each line.
enum Class : std::size_t {
    control,   // breaks, tabs and the like
    blank,     // the space
    separator, // of values
    mark,      // what prose seldom has and code mostly: brackets but for round ones, operators
    bar,       // between columns, and what frames are drawn with
    inlineMark,
    letterW,
};
constexpr text::UnitClasses classes = [] {
    text::UnitClasses some;
    some.add(control, {{u'\0', u'\x1F'}});
    some.add(blank, text::UnitSet(u" "));
    some.add(separator, text::UnitSet(u",;"));
    some.add(mark,
             {{u'#', u'$'}, {u':', u'>'}, {u'@', u'@'}, {u'[', u'`'}, {u'{', u'{'}, {u'}', u'~'}});
    some.add(bar, {{u'|', u'|'}, {u'\u2500', u'\u257F'}});
    some.add(inlineMark, inlineMarks);
    some.add(letterW, text::UnitSet(u"w"));
    return some;
}();

// Walks over the breaks of a text and tells for each line whether it has marks or wide gaps.
class LineScan {
  public:
    // With `places`, adds the places at which something may stand inside lines.
    LineScan(View text, Lines &lines, InlinePlaces *places)
        : text_(text)
        , lines_(lines)
        , places_(places) {}

    // Adds the lines that end in the next `count` units or so. False at the end of the text.
    bool advance(std::size_t count) {
        const std::size_t end = std::min(text_.size(), block_ + count);
        for (; block_ < end; block_ += text::scanBlock) {
            const std::size_t left = text_.size() - block_;
            take(left >= text::scanBlock
                     ? text::scanClasses(text_.data() + block_, classes)
                     : text::scanTailClasses(text_.data() + block_, left, classes));
        }
        if (block_ >= text_.size() && begin_ < text_.size()) {
            endLine(text_.size(), 0);
        }
        return block_ < text_.size();
    }

  private:
    // Masks of a block.
    struct Signs {
        std::uint64_t marks;
        std::uint64_t values;
        std::uint64_t columns;
    };

    // Each unit's bit where the next unit's is. `before` is the last block's mask, and then this
    // one.
    static std::uint64_t shifted(std::uint64_t mask, std::uint64_t &before) {
        const std::uint64_t moved = mask << 1 | before >> 63;
        before = mask;
        return moved;
    }

    void take(const text::ClassMasks &found) {
        const std::uint64_t gaps = found[blank] & shifted(found[blank], blankBefore_);
        const std::uint64_t ink = ~(found[control] | found[blank]);
        const Signs signs{found[mark], shifted(found[separator], separatorBefore_) & ink,
                          found[bar] | (gaps != 0 ? wideGaps(gaps) : 0)};
        if (places_) {
            const std::uint64_t twice = found[letterW] & shifted(found[letterW], letterBefore_);
            places_->push_back(found[inlineMark] | twice);
        }
        std::uint64_t rest = ~std::uint64_t{0};
        for (std::uint64_t left = found[control]; left != 0; left &= left - 1) {
            const auto bit = static_cast<std::size_t>(std::countr_zero(left));
            const std::uint64_t below = (std::uint64_t{1} << bit) - 1;
            notice(signs, rest & below);
            rest = ~below;
            takeControl(block_ + bit);
        }
        notice(signs, rest);
    }

    // What a part of the block says about the line at hand.
    void notice(const Signs &signs, std::uint64_t part) {
        marked_ = marked_ || (signs.marks & part) != 0;
        valued_ = valued_ || (signs.values & part) != 0;
        tabular_ = tabular_ || (signs.columns & part) != 0;
    }

    // Those at whose end there is more than how some people end a sentence.
    std::uint64_t wideGaps(std::uint64_t gaps) const {
        std::uint64_t wide = gaps;
        for (std::uint64_t left = gaps; left != 0; left &= left - 1) {
            const std::size_t at = block_ + static_cast<std::size_t>(std::countr_zero(left));
            const char16_t before = at > 1 ? text_[at - 2] : u' ';
            if (before == u'.' || before == u'!' || before == u'?') {
                wide &= ~(left & (~left + 1));
            }
        }
        return wide;
    }

    void takeControl(std::size_t at) {
        const char16_t unit = text_[at];
        if (unit != u'\n' && unit != u'\r') {
            tabular_ = valued_ = true;
        } else if (at >= begin_) {
            const bool pair = unit == u'\r' && at + 1 < text_.size() && text_[at + 1] == u'\n';
            endLine(at, pair ? 2 : 1);
        }
    }

    void endLine(std::size_t end, std::uint8_t breakSize) {
        const View whole = text_.substr(begin_, end - begin_);
        StructuredLine &line = lines_.emplace_back();
        line.begin = line.quoted = line.words = begin_;
        line.end = end;
        line.breakSize = breakSize;
        line.marked = marked_;
        line.tabular = tabular_;
        line.valued = valued_;
        line.mayBreak = whole.ends_with(u"  ") || whole.ends_with(u'\\');
        line.ordinary = !marked_ && !tabular_ && looks::isOrdinary(whole);
        begin_ = end + breakSize;
        marked_ = tabular_ = valued_ = false;
    }

    const View text_;
    Lines &lines_;
    InlinePlaces *const places_;
    std::size_t block_ = 0;         // the units up to it have been looked at
    std::uint64_t blankBefore_ = 0; // masks of the block before
    std::uint64_t separatorBefore_ = 0;
    std::uint64_t letterBefore_ = 0;
    std::size_t begin_ = 0; // of the line at hand
    bool marked_ = false;
    bool tabular_ = false;
    bool valued_ = false;
};

// Where the line at `at` ends, and where the next one begins.
text::Range endOfLine(View text, std::size_t at) {
    static constexpr text::UnitSet breaks(u"\r\n");
    const std::size_t end = text::findUnit(text, at, breaks);
    const std::size_t size = looks::begins(text.substr(end), u"\r\n") ? 2 : 1;
    return {end, std::min(end + size, text.size())};
}

// Where YAML between two "---" at the very top ends, with the break behind it; 0 for none.
std::size_t endOfFrontMatter(View text) {
    std::size_t at = looks::begins(text, u"---") ? endOfLine(text, 0).begin : 0;
    if (at != 3) {
        return 0;
    }
    at = endOfLine(text, 0).end;
    for (bool first = true; at < text.size(); first = false) {
        const text::Range end = endOfLine(text, at);
        const View line = text.substr(at, end.begin - at);
        if (looks::trimmed(line).empty() || (first && line.find(u':') == View::npos)) {
            return 0;
        }
        if (line == u"---" || line == u"...") {
            return end.end;
        }
        at = end.end;
    }
    return 0;
}

// The first pass: what a line says by itself and by the lines above it.
class MarkedStructure {
  public:
    MarkedStructure(View text, Lines &lines)
        : text_(text)
        , lines_(lines)
        , frontMatter_(endOfFrontMatter(text)) {}

    // Takes the lines that have been added since the last call.
    void advance() {
        for (; at_ < lines_.size(); ++at_) {
            auto &line = lines_[at_];
            if (line.begin < frontMatter_) {
                line.kind = LineKind::data;
                continue;
            }
            line_ = text_.substr(line.begin, line.end - line.begin);
            line.kind = line.ordinary && !isInsideBlock() ? ordinary() : next();
            above_ = line.kind;
        }
    }

    // The first lines are there no more.
    void forget(std::size_t count) { at_ -= count; }

  private:
    bool isInsideBlock() const {
        return fenceSize_ > 0 || signature_ || markupEnd_ || patch_ || numbered_;
    }

    LineKind ordinary() {
        if (content_ > 0 && (blankAbove_ || above_ != LineKind::prose)) {
            content_ = 0;
        }
        blankAbove_ = false;
        quotedAbove_ = false;
        return LineKind::prose;
    }

    LineKind next() {
        auto &line = lines_[at_];
        std::size_t words = looks::firstInk(line_);
        line.words = line.begin + words;
        if (fenceSize_ > 0) {
            return insideFence();
        }
        if (signature_) {
            return LineKind::signature;
        }
        if (markupEnd_) {
            return insideMarkup();
        }
        if (words == line_.size()) {
            patch_ = patch_ && !line_.empty();
            numbered_ = false;
            numberEnd_ = 0;
            blankAbove_ = true;
            quotedAbove_ = false;
            return LineKind::blank;
        }
        const bool blankAbove = blankAbove_ || line.begin == 0;
        blankAbove_ = false;
        if (line_ == u"-- " || (line_ == u"--" && blankAbove)) {
            signature_ = true;
            return LineKind::signature;
        }
        patch_ = looks::isPatchHead(line_) || (patch_ && looks::goesOnInPatch(line_));
        if (patch_) {
            return LineKind::diff;
        }
        numbered_ = isNumbered(words) || numbered_;
        if (numbered_) {
            return LineKind::numbered;
        }
        const LineKind kind = withoutQuote(words, blankAbove);
        numberEnd_ = line.item ? 0 : numberEnd_;
        return kind;
    }

    LineKind withoutQuote(std::size_t words, bool blankAbove) {
        auto &line = lines_[at_];
        std::size_t column = looks::columnOf(line_, words);
        bool apart = blankAbove || above_ == LineKind::code || above_ == LineKind::heading ||
                     above_ == LineKind::rule || above_ == LineKind::fence;
        if (column >= content_ + 4 && apart) {
            return LineKind::code;
        }
        const std::size_t quote = words;
        std::size_t behind = words; // the marks and one blank each
        while (words < line_.size() && line_[words] == u'>' &&
               !looks::begins(line_.substr(words), u">>> ")) {
            behind = words + 1;
            behind += behind < line_.size() && looks::isBlank(line_[behind]) ? 1 : 0;
            words = looks::firstInk(line_, words + 1);
        }
        const bool quoted = words > quote;
        apart = apart || (quoted && !quotedAbove_);
        quotedAbove_ = quoted;
        line.words = line.begin + words;
        if (!quoted) {
            return inside(line_.substr(words), column, apart);
        }
        line.quoted = line.begin + behind;
        if (words == line_.size()) {
            blankAbove_ = true;
            return LineKind::prose; // "> " alone: a blank line of the quotation
        }
        // A tab behind the mark reaches as far as it would without the mark.
        const std::size_t marksEnd =
            looks::columnOf(line_, behind - (line_[behind - 1] == u'\t' ? 1 : 0));
        column = looks::columnOf(line_, words) - marksEnd - (line_[behind - 1] == u'\t' ? 1 : 0);
        return inside(line_.substr(words), column, apart);
    }

    // Whether the line counts on from the last one that began with blanks and a number. Those
    // between them are what had no room on the screen.
    bool isNumbered(std::size_t words) {
        constexpr std::size_t most = 9; // digits
        const std::size_t end = words + (words > 0 ? looks::digitsAt(line_, words) : 0);
        if (end == words || end - words > most ||
            (end < line_.size() && !looks::isBlank(line_[end]))) {
            numberEnd_ = words > 1 ? 0 : numberEnd_;
            return false;
        }
        std::uint32_t number = 0;
        for (const char16_t digit : line_.substr(words, end - words)) {
            number = number * 10 + (digit - u'0');
        }
        const bool follows = numberEnd_ == end && number == number_ + 1;
        numberEnd_ = end;
        number_ = number;
        return follows;
    }

    LineKind inside(View words, std::size_t column, bool apart) {
        auto &line = lines_[at_];
        if (!apart && isUnderline(words)) {
            lines_[at_ - 1].kind = LineKind::heading;
            return LineKind::rule;
        }
        if (opensFence(words)) {
            return LineKind::fence;
        }
        // Four columns more than the list item or the text that it stands in.
        if (column >= content_ + 4 && apart) {
            return LineKind::code;
        }
        if (column < content_ && (apart || above_ != LineKind::prose)) {
            content_ = 0;
        }
        if (looks::beginsLikeProse(words) &&
            !(line.marked && (looks::beginsWithHost(words) || looks::isStamped(words)))) {
            return LineKind::prose;
        }
        if (looks::isRule(looks::trimmed(words))) {
            content_ = 0;
            const bool underlines = words[0] == u'=' || words[0] == u'-';
            if (underlines && above_ == LineKind::prose && !apart) {
                lines_[at_ - 1].kind = LineKind::heading;
            }
            return LineKind::rule;
        }
        if (looks::isHeading(words)) {
            return LineKind::heading;
        }
        if (looks::isLinkDefinition(words)) {
            return LineKind::data;
        }
        if ((markupEnd_ = looks::endOfMarkup(words, !apart && above_ == LineKind::prose))) {
            return insideMarkup();
        }
        if (looks::isPrompt(words) && (words[0] != u'.' || above_ == LineKind::prompt)) {
            return LineKind::prompt;
        }
        if (looks::isFileMode(words) || looks::isStamped(words) || looks::isSigned(words)) {
            return LineKind::table;
        }
        if (looks::isStackFrame(words)) {
            return LineKind::code;
        }
        if (const std::size_t mark = looks::listMark(words)) {
            line.item = true;
            line.words += mark;
            content_ = column + mark;
            const View rest = words.substr(mark);
            if (opensFence(rest)) {
                return LineKind::fence;
            }
            // So far behind its mark, the item begins with code.
            const std::size_t ink = words.substr(0, mark).find_last_not_of(u" \t\u00A0");
            const bool far = words[0] < 0x80 && mark - ink > 5;
            return far && mark < words.size() ? LineKind::code : LineKind::prose;
        }
        return LineKind::prose;
    }

    // Tildes as long as the line above make it a heading, as in reStructuredText.
    bool isUnderline(View words) const {
        return words.size() > 3 && words[0] == u'~' && looks::runOf(words, u'~') == words.size() &&
               above_ == LineKind::prose &&
               lines_[at_ - 1].end - lines_[at_ - 1].words == words.size();
    }

    bool opensFence(View words) {
        const char16_t sign = words.empty() ? u'\0' : words[0];
        const std::size_t size = sign == u'`' || sign == u'~' ? looks::runOf(words, sign) : 0;
        if (size < 3 || (sign == u'`' && words.find(sign, size) != View::npos)) {
            return false;
        }
        fenceSize_ = size;
        fenceSign_ = sign;
        return true;
    }

    LineKind insideFence() {
        View words = line_.substr(looks::firstInk(line_));
        while (words.starts_with(u'>')) {
            words = words.substr(looks::firstInk(words, 1));
        }
        words = looks::trimmed(words);
        if (words.size() >= fenceSize_ && looks::runOf(words, fenceSign_) == words.size()) {
            fenceSize_ = 0;
        }
        return LineKind::fence;
    }

    LineKind insideMarkup() {
        const View end(markupEnd_);
        const bool ends =
            end.empty() ? looks::firstInk(line_) == line_.size() : line_.find(end) != View::npos;
        if (ends) {
            markupEnd_ = nullptr;
            if (end.empty()) {
                blankAbove_ = true;
                return LineKind::blank;
            }
        }
        return LineKind::markup;
    }

    const View text_;
    Lines &lines_;
    const std::size_t frontMatter_; // where it ends
    std::size_t at_ = 0;
    View line_;
    LineKind above_ = LineKind::blank;
    bool blankAbove_ = false;
    bool quotedAbove_ = false;
    std::size_t numberEnd_ = 0; // of the last one that a line began with, behind blanks
    std::uint32_t number_ = 0;
    std::size_t content_ = 0; // the column at which the words of the present list item begin
    std::size_t fenceSize_ = 0;
    char16_t fenceSign_ = 0;
    const char16_t *markupEnd_ = nullptr;
    bool signature_ = false;
    bool patch_ = false;
    bool numbered_ = false;
};

// The second pass: what lines say together. Takes each run of lines that the first pass left as
// prose.
class Paragraphs {
  public:
    Paragraphs(View text, Lines &lines)
        : text_(text)
        , lines_(lines) {}

    // Takes the lines up to `end`, of which the first pass knows all.
    void advance(std::size_t end) {
        for (; at_ < end; ++at_) {
            auto &line = lines_[at_];
            const bool prose = line.kind == LineKind::prose;
            if (prose || line.kind == LineKind::code) {
                ++inked_;
                line.codeLike = !line.ordinary && looksLikeCodeAt(at_);
                code_ += line.codeLike ? 1 : 0;
            }
            if (prose) {
                add(line);
            } else {
                endRun();
            }
        }
    }

    void finish() { endRun(); }

    // The lines of which all is known.
    std::size_t known() const { return at_ - run_.lines; }

    void forget(std::size_t count) { at_ -= count; }

    // A file of a program: what is prose in it are comments.
    bool isProgram() const { return inked_ > 3 && code_ * 4 > inked_; }

  private:
    // Lines of prose below each other.
    struct Run {
        std::size_t lines = 0;
        std::size_t code = 0;
        std::size_t leastIndent = View::npos;
        std::size_t mostIndent = 0; // below the first line
        bool tabular = false;
        bool marked = false; // has items or quotations
    };

    View wordsAt(std::size_t at) const {
        return text_.substr(lines_[at].words, lines_[at].end - lines_[at].words);
    }
    View lineAt(std::size_t at) const {
        return text_.substr(lines_[at].begin, lines_[at].end - lines_[at].begin);
    }

    static constexpr std::size_t hanging = 8;

    bool looksLikeCodeAt(std::size_t at) const {
        const View words = wordsAt(at);
        return !words.empty() && (lines_[at].marked || looks::mayBeCode(words)) &&
               looks::looksLikeCode(words);
    }

    void add(const StructuredLine &line) {
        ++run_.lines;
        if (line.ordinary) {
            run_.leastIndent = 0;
            return;
        }
        const std::size_t indent = line.words - line.begin;
        run_.leastIndent = std::min(run_.leastIndent, indent);
        run_.mostIndent = run_.lines > 1 ? std::max(run_.mostIndent, indent) : 0;
        run_.tabular = run_.tabular || line.tabular;
        run_.marked = run_.marked || line.item || line.quoted > line.begin;
        run_.code += line.codeLike ? 1 : 0;
    }

    void endRun() {
        if (run_.lines > 0) {
            paragraph(at_ - run_.lines, at_);
            run_ = {};
        }
    }

    // A line above a list with signs, as far in as these.
    bool leadsIntoList(std::size_t begin) const {
        const auto &line = lines_[begin];
        const auto &below = lines_[begin + 1];
        const View words = lineAt(begin + 1);
        const std::size_t indent = looks::firstInk(words);
        const bool signs = below.item && !isAsciiDigit(words[indent]) &&
                           !isAsciiLetter(words[indent]) && words[indent] != u'(';
        return signs && indent > 0 && indent == looks::firstInk(lineAt(begin)) && !line.item &&
               line.quoted == line.begin;
    }

    void paragraph(std::size_t begin, std::size_t end) {
        if (run_.marked && end - begin > 1 && leadsIntoList(begin)) {
            lines_[begin].kind = LineKind::heading;
        }
        if (run_.tabular) {
            tables(begin, end);
            hangingCells(begin, end);
        }
        if (run_.mostIndent > run_.leastIndent) {
            valuesOfKeys(begin, end);
        }
        if (isListOfValues(begin, end)) {
            become(LineKind::table, begin, end);
        } else if (isMostlyCode(begin, end) || isIndentedUnevenly()) {
            become(LineKind::code, begin, end);
        }
    }

    // Of the lines that are no table.
    bool isMostlyCode(std::size_t begin, std::size_t end) const {
        std::size_t code = run_.code;
        std::size_t counted = run_.lines;
        for (std::size_t at = begin; run_.tabular && at < end; ++at) {
            const bool table = lines_[at].kind == LineKind::table;
            counted -= table ? 1 : 0;
            code -= table && lines_[at].codeLike ? 1 : 0;
        }
        return code > 0 && code * 2 >= counted;
    }

    // The rest of what stands in a cell, below it, or a row without columns.
    void hangingCells(std::size_t begin, std::size_t end) {
        for (std::size_t at = begin + 1; at < end; ++at) {
            const auto &line = lines_[at];
            const auto &above = lines_[at - 1];
            const std::size_t indent = line.words - line.begin;
            const bool same = indent > 0 && indent == above.words - above.begin;
            if (above.kind == LineKind::table && (indent >= hanging || same)) {
                lines_[at].kind = LineKind::table;
            }
        }
    }

    // What stands further in below a key belongs to it, as in YAML and in the heads of mails.
    void valuesOfKeys(std::size_t begin, std::size_t end) {
        bool below = false;
        std::size_t keyIndent = 0;
        for (std::size_t at = begin; at < end; ++at) {
            auto &line = lines_[at];
            const std::size_t indent = line.words - line.begin;
            below = below && indent > keyIndent;
            if (line.item || line.quoted > line.begin) {
                continue;
            }
            if (below) {
                line.kind = LineKind::code;
            } else if (line.marked && looks::isKeyed(wordsAt(at))) {
                below = true;
                keyIndent = indent;
            }
        }
    }

    void become(LineKind kind, std::size_t begin, std::size_t end) {
        for (std::size_t at = begin; at < end; ++at) {
            lines_[at].kind = lines_[at].kind == LineKind::prose ? kind : lines_[at].kind;
        }
    }

    // As many separators in the first two lines, and no prose between them.
    bool isListOfValues(std::size_t begin, std::size_t end) const {
        if (end - begin < 2 || !lines_[begin].valued || !lines_[begin + 1].valued) {
            return false;
        }
        const std::size_t first = looks::separators(wordsAt(begin));
        return first > 0 && (first > 1 || end - begin > 2) &&
               looks::separators(wordsAt(begin + 1)) == first;
    }

    // Below its first line, prose outside of lists keeps to one edge.
    bool isIndentedUnevenly() const {
        return !run_.marked && run_.mostIndent > run_.leastIndent + 1;
    }

    void tables(std::size_t begin, std::size_t end) {
        bool below = false; // the rule of a table of Markdown
        looks::Columns columns;
        std::size_t tabs = 0;
        bool barredAbove = false;
        for (std::size_t at = begin; at < end; ++at) {
            if (!lines_[at].tabular) {
                below = false;
                columns = {};
                tabs = 0;
                barredAbove = false;
                continue;
            }
            const View words = wordsAt(at);
            below = (below && words.find(u'|') != View::npos) || looks::isTableRule(words);
            looks::Columns own = looks::columnsOf(lineAt(at), lines_[at].words - lines_[at].begin);
            const std::size_t ownTabs = looks::innerTabs(words);
            const std::size_t indent = lines_[at].words - lines_[at].begin;
            const bool hangs = // in the column above, or behind a sign in it: "= words"
                indent >= hanging && std::ranges::any_of(columns.starts, [&](std::size_t start) {
                    return start <= indent && indent <= start + 2;
                });
            const bool aligned = at > begin && (hangs || looks::isAligned(columns, own) ||
                                                (ownTabs > 0 && ownTabs == tabs) ||
                                                (columns.isField && own.isField));
            if (aligned || (below && at > begin && looks::isTableRule(words))) {
                lines_[at - 1].kind = LineKind::table;
            }
            const bool barred = words.find(u'|') != View::npos;
            if (barred && barredAbove) {
                lines_[at - 1].kind = LineKind::table;
            }
            const bool alone = own.wide > 1 || own.isFar || (own.isField && !own.isProse) ||
                               (barred && barredAbove);
            barredAbove = barred;
            if (aligned || alone || below || ownTabs > 1 || words.starts_with(u'|') ||
                looks::isDrawn(words)) {
                lines_[at].kind = LineKind::table;
            }
            columns = std::move(own);
            tabs = ownTabs;
        }
    }

    const View text_;
    Lines &lines_;
    std::size_t at_ = 0;
    Run run_; // the lines above it that are prose
    std::size_t inked_ = 0;
    std::size_t code_ = 0; // lines that look like it
};

} // namespace

std::vector<StructuredLine> splitLines(View text) {
    Lines lines;
    LineScan(text, lines, nullptr).advance(text.size());
    return lines;
}

bool scanStructure(View text, const LinesFound &found, InlinePlaces *places) {
    Lines lines;
    LineScan scan(text, lines, places);
    MarkedStructure marked(text, lines);
    Paragraphs paragraphs(text, lines);
    // In parts, so that all passes over one find it in the cache.
    constexpr std::size_t part = 16 * 1024;
    for (bool more = true; more;) {
        more = scan.advance(part);
        marked.advance();
        if (more && !lines.empty()) {
            // The next line may make a heading of the last one.
            paragraphs.advance(lines.size() - 1);
        } else {
            paragraphs.advance(lines.size());
            paragraphs.finish();
        }
        const std::size_t known = paragraphs.known();
        found({lines.data(), known});
        lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(known));
        marked.forget(known);
        paragraphs.forget(known);
    }
    return paragraphs.isProgram();
}

std::vector<StructuredLine> scanStructure(View text) {
    Lines lines;
    const bool program = scanStructure(text, [&](std::span<const StructuredLine> some) {
        lines.insert(lines.end(), some.begin(), some.end());
    });
    for (StructuredLine &line : lines) {
        const bool stays = !program || line.kind == LineKind::blank ||
                           line.kind == LineKind::fence || line.kind == LineKind::rule;
        line.kind = stays ? line.kind : LineKind::code;
    }
    return lines;
}

} // namespace nerlo::engine

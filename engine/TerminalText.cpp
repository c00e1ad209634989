#include "engine/TerminalText.h"

#include "engine/Structure.h"
#include "text/Characters.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;

constexpr char16_t escape = u'\x1B';
constexpr char16_t sequenceIntroducer = u'\x9B'; // "ESC [" in one character

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

// --- control sequences

// Without control sequences and without the letters that a back space struck over ("_\bx").
std::u16string withoutControls(std::u16string text) {
    constexpr View controls = u"\x1B\x9B\b\a";
    std::size_t at = text.find_first_of(controls);
    if (at == View::npos) {
        return text;
    }
    std::u16string result(text, 0, at);
    while (at < text.size()) {
        const char16_t unit = text[at];
        if (unit == escape || unit == sequenceIntroducer) {
            at = endOfControlSequence(text, at);
            continue;
        }
        if (unit == u'\b') {
            if (!result.empty() && result.back() != u'\n') {
                result.pop_back();
            }
        } else if (unit != u'\a') {
            result.push_back(unit);
        }
        ++at;
    }
    return result;
}

// --- rows: the lines of the screen

struct Row {
    std::u16string words;
    View lineBreak;
};

std::vector<Row> rowsOf(View text) {
    std::vector<Row> rows;
    for (const auto &line : splitLines(text)) {
        rows.push_back({std::u16string(text.substr(line.begin, line.end - line.begin)),
                        text.substr(line.end, line.breakSize)});
    }
    return rows;
}

std::u16string textOf(const std::vector<Row> &rows) {
    std::u16string text;
    for (const Row &row : rows) {
        text.append(row.words).append(row.lineBreak);
    }
    return text;
}

std::size_t indentOf(View words) {
    return std::min(words.find_first_not_of(u' '), words.size());
}

std::size_t inkEnd(View words) {
    return words.find_last_not_of(u" \u00A0") + 1; // npos + 1 is 0
}

std::size_t columnsOf(View words) {
    std::size_t columns = 0;
    for (std::size_t at = 0; at < words.size();) {
        const char32_t character = text::characterAt(words, at);
        columns = character == U'\t' ? columns / 8 * 8 + 8 : columns + text::columnsOf(character);
        at += text::sizeOf(character);
    }
    return columns;
}

constexpr View verticals = u"\u2502\u2503\u2551";
constexpr View bars = u"\u2502\u2503\u2551\u258E\u258C\u258F\u2595\u258D";

enum class Edge { none, top, bottom, sides, across };

// What part of a frame the row may be.
Edge edgeOf(View words) {
    words = words.substr(0, inkEnd(words));
    words.remove_prefix(indentOf(words));
    if (words.size() < 2) {
        return Edge::none;
    }
    const char16_t first = words.front();
    const char16_t last = words.back();
    if (isOneOf(first, u"\u256D\u250C\u2554\u250F") && isOneOf(last, u"\u256E\u2510\u2557\u2513")) {
        return Edge::top;
    }
    if (isOneOf(first, u"\u2570\u2514\u255A\u2517") && isOneOf(last, u"\u256F\u2518\u255D\u251B")) {
        return Edge::bottom;
    }
    if (isOneOf(first, u"\u251C\u2560\u2523") && isOneOf(last, u"\u2524\u2563\u252B")) {
        return Edge::across;
    }
    return isOneOf(first, verticals) && last == first ? Edge::sides : Edge::none;
}

// A line inside would make it a table.
bool hasColumns(View words) {
    const std::size_t begin = indentOf(words) + 1;
    const std::size_t end = inkEnd(words);
    return end > begin &&
           words.substr(begin, end - begin - 1)
                   .find_first_of(u"\u2502\u2503\u2551\u252C\u2533\u2566\u253C\u254B\u256C"
                                  u"\u2534\u253B\u2569") != View::npos;
}

// The words of a title that stands in the upper edge: "╭─ Title ──╮".
std::u16string titleOf(View edge) {
    const auto isInk = [](char16_t unit) { return unit < u'\u2500' || unit > u'\u257F'; };
    const auto first =
        std::ranges::find_if(edge, [&](char16_t unit) { return isInk(unit) && unit != u' '; });
    auto last = edge.end();
    while (last != first && (!isInk(*(last - 1)) || *(last - 1) == u' ')) {
        --last;
    }
    return {first, last};
}

// Takes `count` units at the begin and all blanks at the end off.
void keepInside(Row &row, std::size_t count) {
    row.words.resize(inkEnd(row.words));
    row.words.erase(0, std::min(count, row.words.size()));
}

// The blanks that all rows with words have in front.
std::size_t commonIndent(const std::vector<Row> &rows) {
    std::size_t least = View::npos;
    for (const Row &row : rows) {
        if (inkEnd(row.words) > 0) {
            least = std::min(least, indentOf(row.words));
        }
    }
    return least == View::npos ? 0 : least;
}

// The words between the sides of a frame, and its title. The edges themselves are no lines of the
// text.
std::vector<Row> insideOf(std::span<Row> frame) {
    std::vector<Row> inside;
    std::vector<Row> titles;
    for (Row &row : frame) {
        if (edgeOf(row.words) == Edge::sides) {
            row.words.resize(inkEnd(row.words) - 1);
            keepInside(row, indentOf(row.words) + 1);
            inside.push_back(std::move(row));
        } else if (auto title = titleOf(row.words); !title.empty()) {
            titles.push_back({std::move(title), row.lineBreak});
        }
    }
    const std::size_t padding = commonIndent(inside);
    for (Row &row : inside) {
        keepInside(row, padding);
    }
    inside.insert(inside.begin(), titles.begin(), titles.end());
    return inside;
}

// A frame may have lost its upper or lower edge when it was selected.
bool openFrames(std::vector<Row> &rows) {
    std::vector<Row> result;
    bool opened = false;
    for (std::size_t begin = 0; begin < rows.size();) {
        std::size_t end = begin;
        std::size_t sides = 0;
        bool table = false;
        bool edges = false;
        while (end < rows.size()) {
            const Edge edge = edgeOf(rows[end].words);
            if (edge == Edge::none || (edge == Edge::top && end > begin)) {
                break;
            }
            sides += edge == Edge::sides;
            edges = edges || edge == Edge::top || edge == Edge::bottom;
            table = table || hasColumns(rows[end].words);
            ++end;
            if (edge == Edge::bottom) {
                break;
            }
        }
        if (!table && sides > 0 && (edges || sides > 1)) {
            std::ranges::move(insideOf(std::span(rows).subspan(begin, end - begin)),
                              std::back_inserter(result));
            opened = true;
        } else {
            end = std::max(end, begin + 1);
            for (std::size_t at = begin; at < end; ++at) {
                result.push_back(std::move(rows[at]));
            }
        }
        begin = end;
    }
    rows = std::move(result);
    return opened;
}

// A bar in front of every row: "│ words".
// Whether there was one.
bool removeBars(std::vector<Row> &rows) {
    char16_t bar = 0;
    std::size_t barred = 0;
    for (const Row &row : rows) {
        const std::size_t indent = indentOf(row.words);
        if (inkEnd(row.words) == 0) {
            continue;
        }
        const char16_t first = row.words[indent];
        if (!isOneOf(first, bars) || (bar != 0 && bar != first) || hasColumns(row.words)) {
            return false;
        }
        bar = first;
        ++barred;
    }
    if (barred < 2) {
        return false;
    }
    for (Row &row : rows) {
        const std::size_t indent = indentOf(row.words);
        if (indent < row.words.size()) {
            const bool blank = row.words.size() > indent + 1 && row.words[indent + 1] == u' ';
            row.words.erase(0, indent + (blank ? 2 : 1));
        }
    }
    return true;
}

// Blanks at the ends that fill up rows to one column, as a screen is copied with them. Two blanks
// at the end of some lines may be meant.
// Whether there was padding.
bool removePadding(std::vector<Row> &rows) {
    std::map<std::size_t, std::size_t> ends; // columns, and how many rows are filled up to them
    std::size_t inked = 0;
    for (const Row &row : rows) {
        inked += inkEnd(row.words) > 0;
        if (inkEnd(row.words) < row.words.size()) {
            ++ends[columnsOf(row.words)];
        }
    }
    const auto most =
        std::ranges::max_element(ends, {}, &std::pair<const std::size_t, std::size_t>::second);
    if (most == ends.end() || most->second < 2 || most->second * 2 < inked) {
        return false;
    }
    for (Row &row : rows) {
        if (columnsOf(row.words) == most->first) {
            row.words.resize(inkEnd(row.words));
        }
    }
    return true;
}

// --- wrapped prose

struct Pair {
    std::size_t row = 0;     // which may go on in the next one
    std::size_t width = 0;   // columns up to its last word
    std::size_t least = 0;   // the narrowest screen that could show the row so
    std::size_t fitting = 0; // columns that it would have with the next word behind it
    bool wide = false;       // both sides are of a script without blanks
};

bool isIdeographic(char32_t character) {
    return text::columnsOf(character) == 2 && !(character >= U'\uAC00' && character <= U'\uD7A3') &&
           character < U'\U0001F000';
}

class Unwrapping {
  public:
    explicit Unwrapping(std::u16string text)
        : text_(std::move(text))
        , lines_(scanStructure(text_)) {
        if (!lines_.empty()) {
            findPairs();
            findWidth();
        }
    }

    // Whether most lines with words are prose.
    bool mostlyProse() const {
        std::size_t prose = 0;
        std::size_t inked = 0;
        for (const auto &line : lines_) {
            inked += line.kind != LineKind::blank;
            prose += line.kind == LineKind::prose;
        }
        return prose * 2 > inked;
    }

    std::u16string run() {
        if (width_ == 0) {
            return std::move(text_);
        }
        std::u16string result;
        result.reserve(text_.size());
        std::size_t pair = 0;
        bool joins = false; // the line above goes on in this one
        for (std::size_t at = 0; at < lines_.size(); ++at) {
            const auto &line = lines_[at];
            const std::size_t begin = joins ? line.words : line.begin;
            while (pair < pairs_.size() && pairs_[pair].row < at) {
                ++pair;
            }
            joins = pair < pairs_.size() && pairs_[pair].row == at && isWrapped(pairs_[pair]);
            if (joins) {
                appendWords(result, wordsOf(begin, line.end));
                join(result, pairs_[pair]);
            } else {
                result.append(text_, begin, line.next() - begin);
            }
        }
        return result;
    }

  private:
    // Without blanks at the end.
    View wordsOf(std::size_t begin, std::size_t end) const {
        const View words = View(text_).substr(begin, end - begin);
        return words.substr(0, inkEnd(words));
    }

    View prefixOf(const StructuredLine &line) const {
        return View(text_).substr(line.begin, line.words - line.begin);
    }

    // Whether the words of `below` may go on with those of the line above it. `first` is the first
    // line of the paragraph.
    bool fits(const StructuredLine &first, const StructuredLine &above,
              const StructuredLine &below) const {
        if (below.kind != LineKind::prose || below.item || below.words == below.end ||
            above.words == above.end) {
            return false;
        }
        const View prefix = prefixOf(below);
        if (prefix.find_first_not_of(u' ') != View::npos) {
            return prefix == prefixOf(above); // the marks of a quotation
        }
        if (prefix.size() >= codeIndent && !first.item) {
            return false;
        }
        // Below the words of a list item, where the paragraph begins, or at the edge of the screen.
        return prefix.empty() || prefix.size() == first.words - first.begin ||
               prefix.size() == indentOf(View(text_).substr(first.begin, first.end - first.begin));
    }

    void findPairs() {
        std::size_t first = 0;  // row of the paragraph
        std::size_t paired = 0; // pairs of the paragraphs above
        const auto endParagraph = [&](std::size_t end) {
            if (isList(paired, end)) {
                pairs_.resize(paired);
            }
            paired = pairs_.size();
        };
        for (std::size_t at = 0; at + 1 < lines_.size(); ++at) {
            const bool prose = lines_[at].kind == LineKind::prose;
            if (prose && lines_[at].item) {
                first = at;
            }
            if (prose && fits(lines_[first], lines_[at], lines_[at + 1])) {
                pairs_.push_back(pairOf(at));
            } else {
                endParagraph(at);
                first = at + 1;
            }
        }
        endParagraph(lines_.size() - 1);
    }

    // Most lines of the paragraph with the last line `end` are a word each: nobody writes so.
    bool isList(std::size_t firstPair, std::size_t end) const {
        if (firstPair == pairs_.size() || pairs_[firstPair].wide) {
            return false;
        }
        const std::size_t begin = pairs_[firstPair].row;
        std::ptrdiff_t blanks = 0;
        for (std::size_t at = begin; at <= end; ++at) {
            blanks += std::ranges::count(wordsOf(lines_[at].words, lines_[at].end), u' ');
        }
        return blanks < static_cast<std::ptrdiff_t>(end - begin + 1);
    }

    Pair pairOf(std::size_t at) const {
        const View above = wordsOf(lines_[at].begin, lines_[at].end);
        const View below = wordsOf(lines_[at + 1].words, lines_[at + 1].end);
        Pair pair;
        pair.row = at;
        pair.width = columnsOf(above);
        pair.wide = isIdeographic(lastOf(above)) && isIdeographic(text::characterAt(below, 0));
        // A word alone may be longer than the screen is wide. Some tools count the blank behind a
        // word, so that only the end of a cut word reaches the last column.
        const bool oneWord = wordsOf(lines_[at].words, lines_[at].end).find(u' ') == View::npos;
        pair.least = oneWord ? 0 : pair.width - 1;
        const View word = below.substr(0, std::min(below.find(u' '), below.size()));
        pair.fitting = pair.width + (pair.wide ? 2 : 1 + columnsOf(word));
        return pair;
    }

    static char32_t lastOf(View words) {
        const std::size_t last = words.size() - 1;
        const bool low = words[last] >= 0xDC00 && words[last] <= 0xDFFF;
        return text::characterAt(words, low && last > 0 ? last - 1 : last);
    }

    bool isWrapped(const Pair &pair) const { return pair.least <= width_ && pair.fitting > width_; }

    // The width at which most lines are full and none is longer. A pair speaks for the widths from
    // its own to just below that with the next word, and against all that are larger.
    void findWidth() {
        std::vector<std::ptrdiff_t> full(mostWidth + 2);
        std::vector<std::ptrdiff_t> unfilled(mostWidth + 2);
        std::vector<std::ptrdiff_t> tooLong(mostWidth + 2);
        for (const Pair &pair : pairs_) {
            const std::size_t from = std::min(pair.least, mostWidth + 1);
            const std::size_t to = std::min(pair.fitting, mostWidth + 1);
            ++full[from];
            --full[to];
            ++unfilled[to];
            ++tooLong[0];
            --tooLong[from];
        }
        std::ptrdiff_t pairs = 0;
        std::ptrdiff_t early = 0;
        std::ptrdiff_t longer = 0;
        std::ptrdiff_t best = 0;
        for (std::size_t width = 0; width <= mostWidth; ++width) {
            pairs += full[width];
            early += unfilled[width];
            longer += tooLong[width];
            const std::ptrdiff_t score = pairs - early - 2 * longer;
            const bool sure =
                pairs > 1 && pairs > 2 * early && (width > doubtfulWidth || early == 0);
            if (width >= leastWidth && sure && score >= best) {
                best = score;
                width_ = width;
            }
        }
        std::size_t exact = 0;
        std::size_t almost = 0; // a blank may have stood in the last column
        std::size_t wrapped = 0;
        for (const Pair &pair : pairs_) {
            wrapped += isWrapped(pair);
            exact += isWrapped(pair) && pair.width >= width_;
            almost += isWrapped(pair) && pair.width + 1 == width_;
        }
        const bool even = wrapped > 2 && exact * 4 >= wrapped * 3;
        justified_ = even && hasGaps();
        cut_ = !justified_ && exact + almost == wrapped &&
               (almost == 0 ? even : exact * 2 >= wrapped && wrapped > 2 && showsCut());
    }

    // A width that screens have, or a blank that was cut off the line above.
    bool showsCut() const {
        const bool usual = width_ == 80 || width_ == 100 || width_ == 120 || width_ == 132;
        return usual || std::ranges::any_of(pairs_, [&](const Pair &pair) {
                   return isWrapped(pair) && beginsWithBlank(pair);
               });
    }

    bool beginsWithBlank(const Pair &pair) const { return prefixOf(lines_[pair.row + 1]) == u" "; }

    // Lines that were filled up with blanks between their words.
    bool hasGaps() const {
        return std::ranges::any_of(pairs_, [&](const Pair &pair) {
            const auto &line = lines_[pair.row];
            return wordsOf(line.words, line.end).find(u"  ") != View::npos;
        });
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
        const auto &below = lines_[pair.row + 1];
        const View next = wordsOf(below.words, below.end);
        if (result.back() == u'\u2010' || result.back() == u'\u00AD') {
            result.pop_back(); // a hyphen of the formatter's own
        } else if (!pair.wide && !(cut_ && pair.width >= width_ && !beginsWithBlank(pair)) &&
                   !isHyphenated(result, next) && !isCutAddress(result, next, pair)) {
            result.push_back(u' ');
        }
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
        const bool closed = isOneOf(token.back(), u")>],;\"'") || isOneOf(next[0], u"[(<!\"'");
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
    std::vector<StructuredLine> lines_;
    std::vector<Pair> pairs_;
    std::size_t width_ = 0;
    bool justified_ = false;
    bool cut_ = false; // in the middle of words
};

} // namespace

// A string sequence ends with BEL or "ESC \" on its line; without an end only its introducer goes.
std::size_t endOfControlSequence(View text, std::size_t at) {
    std::size_t from = at + 1;
    if (text[at] == escape) {
        if (from == text.size()) {
            return from;
        }
        const char16_t kind = text[from];
        if (isOneOf(kind, u"]P^_X")) {
            const std::size_t end = text.find_first_of(u"\a\x1B\n", from + 1);
            if (end == View::npos || text[end] == u'\n') {
                return from + 1;
            }
            const bool closed = text[end] == u'\a' || text.substr(end).starts_with(u"\x1B\\");
            return closed ? end + (text[end] == u'\a' ? 1 : 2) : end;
        }
        if (kind != u'[') {
            while (from < text.size() && text[from] >= u' ' && text[from] <= u'/') {
                ++from; // "ESC ( B" chooses a character set
            }
            const bool final = from < text.size() && text[from] >= u'0' && text[from] <= u'~';
            return final ? from + 1 : from;
        }
        ++from;
    }
    while (from < text.size() && text[from] >= u' ' && text[from] <= u'?') {
        ++from;
    }
    return from < text.size() && text[from] >= u'@' && text[from] <= u'~' ? from + 1 : from;
}

std::u16string unwrapTerminal(std::u16string text) {
    text = withoutControls(std::move(text));
    std::vector<Row> rows = rowsOf(text);
    // Blanks in front of every line are a gutter where something else shows a screen, or where most
    // is prose; a piece of code keeps its indent.
    bool screen = openFrames(rows);
    screen = removeBars(rows) || screen;
    screen = removePadding(rows) || screen;
    std::u16string framed = textOf(rows);
    if (const std::size_t gutter = commonIndent(rows); gutter > 0) {
        for (Row &row : rows) {
            row.words.erase(0, std::min(gutter, indentOf(row.words)));
        }
        Unwrapping unwrapping(textOf(rows));
        if (screen || unwrapping.mostlyProse()) {
            return unwrapping.run();
        }
    }
    return Unwrapping(std::move(framed)).run();
}

} // namespace nerlo::engine

#include "engine/TerminalText.h"

#include "engine/ScreenText.h"
#include "engine/Structure.h"
#include "engine/WrappedLines.h"

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

// Lines inside most rows make them a table.
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
// text. `screen` becomes the columns for words.
std::vector<Row> insideOf(std::span<Row> frame, std::size_t &screen) {
    std::vector<Row> inside;
    std::vector<Row> titles;
    for (Row &row : frame) {
        if (edgeOf(row.words) == Edge::sides) {
            row.words.resize(inkEnd(row.words) - 1);
            screen = columnsOf(row.words) - indentOf(row.words) - 1;
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
    screen -= std::min(screen, 2 * padding);
    inside.insert(inside.begin(), titles.begin(), titles.end());
    return inside;
}

// Rows from `begin` on that may be a frame.
struct Frame {
    std::size_t end = 0;
    std::size_t sides = 0;   // rows with both sides
    std::size_t columns = 0; // those with lines inside, too
    bool edges = false;      // has an upper or a lower one
    bool even = true;        // the right sides stand below each other

    // One that was selected may have lost its edges.
    bool isFrame() const {
        return columns * 2 <= sides && sides > 0 && (edges || (sides > 1 && even));
    }
};

Frame frameAt(const std::vector<Row> &rows, std::size_t begin) {
    Frame frame{begin};
    std::size_t width = 0;
    while (frame.end < rows.size()) {
        const std::u16string &words = rows[frame.end].words;
        const Edge edge = edgeOf(words);
        if (edge == Edge::none || (edge == Edge::top && frame.end > begin)) {
            break;
        }
        frame.edges = frame.edges || edge == Edge::top || edge == Edge::bottom;
        frame.columns += hasColumns(words);
        if (edge == Edge::sides) {
            const std::size_t columns = columnsOf(View(words).substr(0, inkEnd(words)));
            frame.even = frame.even && (++frame.sides == 1 || columns == width);
            width = columns;
        }
        ++frame.end;
        if (edge == Edge::bottom) {
            break;
        }
    }
    return frame;
}

// The signs that open a fence; empty if the row opens none.
View fenceOf(View words) {
    words.remove_prefix(indentOf(words));
    const char16_t sign = words.empty() ? u'\0' : words[0];
    const std::size_t size = std::min(words.find_first_not_of(sign), words.size());
    const bool opens =
        isOneOf(sign, u"`~") && size > 2 && (sign == u'~' || words.find(sign, size) == View::npos);
    return words.substr(0, opens ? size : 0);
}

// Whether the row lies between the signs of a fence, for each.
std::vector<bool> fencedRows(const std::vector<Row> &rows) {
    std::vector<bool> fenced(rows.size());
    View fence;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < rows.size(); ++at) {
        const View words(rows[at].words);
        if (fence.empty()) {
            fence = fenceOf(words);
            begin = at + 1;
        } else if (const View own = fenceOf(words);
                   own.starts_with(fence) && inkEnd(words) == indentOf(words) + own.size()) {
            std::fill(fenced.begin() + static_cast<std::ptrdiff_t>(begin),
                      fenced.begin() + static_cast<std::ptrdiff_t>(at), true);
            fence = {};
        }
    }
    return fenced;
}

// What is drawn in a fence stays. Returns the columns inside of the last frame, 0 where there was
// none.
std::size_t openFrames(std::vector<Row> &rows) {
    const std::vector<bool> fenced = fencedRows(rows);
    std::vector<Row> result;
    std::size_t screen = 0;
    for (std::size_t begin = 0; begin < rows.size();) {
        const Frame frame = fenced[begin] ? Frame{} : frameAt(rows, begin);
        const std::size_t end = std::max(frame.end, begin + 1);
        const auto part = std::span(rows).subspan(begin, end - begin);
        if (frame.isFrame()) {
            std::ranges::move(insideOf(part, screen), std::back_inserter(result));
        } else {
            std::ranges::move(part, std::back_inserter(result));
        }
        begin = end;
    }
    rows = std::move(result);
    return screen;
}

// A bar in front of every row: "│ words".
// Whether there was one.
bool removeBars(std::vector<Row> &rows) {
    char16_t bar = 0;
    std::size_t barred = 0;
    std::size_t columned = 0;
    for (const Row &row : rows) {
        const std::size_t indent = indentOf(row.words);
        if (inkEnd(row.words) == 0) {
            continue;
        }
        const char16_t first = row.words[indent];
        if (!isOneOf(first, bars) || (bar != 0 && bar != first)) {
            return false;
        }
        bar = first;
        ++barred;
        columned += hasColumns(row.words);
    }
    if (barred < 2 || columned * 2 > barred) {
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
// Returns that column, 0 where there was no padding.
std::size_t removePadding(std::vector<Row> &rows) {
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
        return 0;
    }
    for (Row &row : rows) {
        if (columnsOf(row.words) == most->first) {
            row.words.resize(inkEnd(row.words));
        }
    }
    return most->first;
}

// Whether most lines with words are prose, those in fences aside; in Markdown, tables, HTML and
// indented blocks aside, too.
bool isMostlyProse(View text) {
    std::size_t prose = 0;
    std::size_t inked = 0;
    std::size_t aside = 0;
    bool markdown = false;
    const auto count = [&](const StructuredLine &line) {
        const bool fence = line.kind == LineKind::fence;
        const View mark = text.substr(line.words, 2);
        const bool mayBeComment = mark.starts_with(u'#') && mark != u"##";
        const bool heading = line.kind == LineKind::heading && !mayBeComment;
        const bool indented = line.kind == LineKind::code && line.words - line.begin >= 4;
        markdown = markdown || fence || heading;
        inked += line.kind != LineKind::blank && !fence;
        aside += line.kind == LineKind::table || line.kind == LineKind::markup || indented;
        prose += line.kind == LineKind::prose || heading;
    };
    const bool program = scanStructure(
        text, [&](std::span<const StructuredLine> lines) { std::ranges::for_each(lines, count); });
    return markdown ? prose * 2 > inked - aside : !program && prose * 2 > inked;
}

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
    // is prose; a piece of code keeps its indent. One blank alone is how some indent paragraphs.
    std::size_t width = openFrames(rows);
    const bool barred = removeBars(rows);
    width = std::max(width, removePadding(rows));
    const bool screen = barred || width > 0;
    std::u16string framed = textOf(rows);
    if (const std::size_t gutter = commonIndent(rows); gutter > (screen ? 0 : 1)) {
        for (Row &row : rows) {
            row.words.erase(0, std::min(gutter, indentOf(row.words)));
        }
        const std::u16string bare = textOf(rows);
        std::u16string joined = joinWrappedLines(bare, width - std::min(width, gutter));
        if (screen || joined != bare || isMostlyProse(bare)) {
            return joined;
        }
    }
    return joinWrappedLines(std::move(framed), width);
}

} // namespace nerlo::engine

#include "engine/PageRepair.h"

#include "text/Ascii.h"
#include "text/CaseMapping.h"
#include "text/Characters.h"
#include "text/Range.h"
#include "text/Replace.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <array>
#include <map>
#include <unordered_map>
#include <vector>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;
using text::Range;

constexpr std::size_t edgeLines = 2; // at the top and at the bottom of a page
constexpr std::size_t longestEdge = 200;

bool isBlank(char16_t unit) {
    return unit == u' ' || unit == u'\t' || unit == u'\u00A0';
}

bool isBreak(char16_t unit) {
    return unit == u'\n' || unit == u'\r';
}

bool isLetter(char16_t unit) {
    return unit < 0x80 ? text::isAsciiLetter(unit) : text::isWordCharacter(unit);
}

bool isLower(char16_t unit) {
    return isLetter(unit) && text::letterCase(unit) != text::LetterCase::Upper;
}

View trimmed(View line) {
    while (!line.empty() && isBlank(line.front())) {
        line.remove_prefix(1);
    }
    while (!line.empty() && isBlank(line.back())) {
        line.remove_suffix(1);
    }
    return line;
}

// The same on every page, whatever its number is.
std::u16string patternOf(View line) {
    std::u16string pattern;
    for (const char16_t unit : line) {
        const char16_t shown = text::isAsciiDigit(unit) ? u'0' : unit;
        const bool again = !pattern.empty() && (shown == u'0' || isBlank(shown)) &&
                           pattern.back() == (isBlank(shown) ? u' ' : shown);
        if (!again) {
            pattern += isBlank(shown) ? u' ' : shown;
        }
    }
    return pattern;
}

// "12", "- 12 -", "[12]", "xii".
bool isPageNumber(View line) {
    constexpr View around = u"-\u2013\u2014[]()|. ";
    const std::size_t begin = line.find_first_not_of(around);
    if (begin == View::npos) {
        return false;
    }
    const View number = line.substr(begin, line.find_last_not_of(around) + 1 - begin);
    return number.size() <= 5 && (std::ranges::all_of(number, text::isAsciiDigit<char16_t>) ||
                                  number.find_first_not_of(u"ivx") == View::npos);
}

struct Edge {
    Range line; // with the break behind it
    View words;
    bool outermost = false;
};

class Pages {
  public:
    explicit Pages(View text)
        : text_(text) {
        for (std::size_t begin = 0; begin <= text.size();) {
            const std::size_t end = std::min(text.find(u'\f', begin), text.size());
            addPage({begin, end});
            begin = end + 1;
        }
    }

    // In order.
    std::vector<Range> toRemove() const {
        std::unordered_map<std::u16string, std::size_t> counts;
        for (const Edge &edge : edges_) {
            ++counts[patternOf(edge.words)];
        }
        std::vector<Range> ranges;
        for (const Edge &edge : edges_) {
            const std::size_t count = counts[patternOf(edge.words)];
            // Left and right pages may differ.
            const bool repeated = count >= 3 && count * 5 >= pages_ * 2;
            if (repeated || (edge.outermost && isPageNumber(edge.words))) {
                ranges.push_back(edge.line);
            }
        }
        return ranges;
    }

  private:
    void addPage(Range page) {
        std::vector<Edge> lines;
        for (std::size_t begin = page.begin; begin < page.end;) {
            std::size_t end = begin;
            while (end < page.end && !isBreak(text_[end])) {
                ++end;
            }
            const bool pair = text_.substr(end).starts_with(u"\r\n");
            const std::size_t next = std::min(page.end, end + (pair ? 2 : 1));
            const View words = trimmed(text_.substr(begin, end - begin));
            if (!words.empty()) {
                lines.push_back({{begin, next}, words});
            }
            begin = next;
        }
        pages_ += !lines.empty();
        for (std::size_t at = 0; at < lines.size(); ++at) {
            const std::size_t fromEnd = lines.size() - 1 - at;
            lines[at].outermost = at == 0 || fromEnd == 0;
            if ((at < edgeLines || fromEnd < edgeLines) && lines[at].words.size() <= longestEdge) {
                edges_.push_back(lines[at]);
            }
        }
    }

    View text_;
    std::size_t pages_ = 0;
    std::vector<Edge> edges_;
};

bool goesOn(char16_t last, char16_t first) {
    return (isLower(last) || last == u',' || last == u'-' || last == u'\u2010') && isLower(first);
}

// Pages one below the other. Where a sentence goes on, nothing stands between them but a line
// break.
std::u16string withoutFormFeeds(View text) {
    constexpr View between = u" \t\r\n\f";
    std::u16string result;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t feed = std::min(text.find(u'\f', begin), text.size());
        result.append(text.substr(begin, feed - begin));
        // All up to the next words at once: there may be any number of empty pages.
        const std::size_t first = std::min(text.find_first_not_of(between, feed), text.size());
        const std::size_t last = text.substr(begin, feed - begin).find_last_not_of(between);
        if (last != View::npos && first < text.size() && feed < text.size() &&
            goesOn(text[begin + last], text[first])) {
            result.resize(result.size() - (feed - begin - last - 1));
            result += u'\n';
        } else {
            for (const char16_t unit : text.substr(feed, first - feed)) {
                const bool ends = unit == u'\f' && !result.empty() && !isBreak(result.back());
                result.append(unit != u'\f' || ends ? 1 : 0, ends ? u'\n' : unit);
            }
        }
        begin = first;
    }
    return result;
}

// --- footnotes

// Digits that may count a footnote, with the word in front of them.
struct Mark {
    Range digits;
    std::size_t number = 0;
    View word; // empty behind a sentence
};

std::vector<Mark> marksOf(View text) {
    constexpr std::size_t longestWord = 64;
    std::vector<Mark> marks;
    static constexpr text::UnitSet digits(u"0123456789");
    text::UnitCursor cursor(text, digits);
    for (std::size_t at = cursor.next(); at < text.size();) {
        std::size_t end = at;
        std::size_t number = 0;
        while (end < text.size() && text::isAsciiDigit(text[end])) {
            number = std::min<std::size_t>(number * 10 + (text[end] - u'0'), 1000);
            ++end;
        }
        std::size_t word = at;
        while (word > 0 && at - word < longestWord && isLetter(text[word - 1])) {
            --word;
        }
        const bool closed = end == text.size() || isBlank(text[end]) || isBreak(text[end]) ||
                            (View(u".,;:!?)").find(text[end]) != View::npos &&
                             (end + 1 == text.size() || !isLetter(text[end + 1])));
        const bool apart = word == 0 || isBlank(text[word - 1]) || isBreak(text[word - 1]) ||
                           View(u"(\"'\u201C\u201E\u2018").find(text[word - 1]) != View::npos;
        const bool behindWord = at - word >= 4 && apart && isLower(text[at - 1]);
        const bool behindSentence =
            at == word && at > 3 &&
            View(u".,;!?\"\u201D\u2019)").find(text[at - 1]) != View::npos &&
            isLower(text[at - 2]) && isLower(text[at - 3]);
        if (number > 0 && number < 1000 && text[at] != u'0' && closed &&
            (behindWord || behindSentence)) {
            marks.push_back({{at, end}, number, text.substr(word, at - word)});
        }
        at = cursor.nextFrom(end);
    }
    return marks;
}

// Names of things are counted, too: "item1" and "item2".
void dropNames(std::vector<Mark> &marks) {
    std::unordered_map<View, std::size_t> times;
    for (const Mark &mark : marks) {
        times[mark.word] += !mark.word.empty();
    }
    std::erase_if(marks, [&](const Mark &mark) { return times[mark.word] > 1; });
}

// Those that belong to a row of three or more, each one higher than the one before it.
std::vector<Range> rowsOf(const std::vector<Mark> &marks) {
    constexpr std::size_t leastRow = 3;
    struct Row {
        std::vector<std::size_t> marks;
    };
    std::vector<Row> rows;
    std::map<std::size_t, std::vector<std::size_t>> open; // by the number that they end with
    for (std::size_t at = 0; at < marks.size(); ++at) {
        auto &ending = open[marks[at].number - 1];
        std::size_t row = rows.size();
        if (ending.empty()) {
            rows.emplace_back();
        } else {
            row = ending.back();
            ending.pop_back();
        }
        rows[row].marks.push_back(at);
        open[marks[at].number].push_back(row);
    }
    std::vector<Range> ranges;
    for (const Row &row : rows) {
        if (row.marks.size() >= leastRow) {
            for (const std::size_t at : row.marks) {
                ranges.push_back(marks[at].digits);
            }
        }
    }
    std::ranges::sort(ranges, {}, &Range::begin);
    return ranges;
}

} // namespace

std::u16string removePageLines(std::u16string text) {
    if (text.find(u'\f') == std::u16string::npos) {
        return text;
    }
    const std::vector<Range> ranges = Pages(text).toRemove();
    return withoutFormFeeds(text::replaceRanges(std::move(text), ranges, u""));
}

std::u16string removeFootnoteMarks(std::u16string text) {
    std::vector<Mark> marks = marksOf(text);
    dropNames(marks);
    const std::vector<Range> ranges = rowsOf(marks);
    return ranges.empty() ? text : text::replaceRanges(std::move(text), ranges, u"");
}

} // namespace nerlo::engine

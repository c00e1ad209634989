#include "engine/MarkdownMarks.h"

#include "text/Characters.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <vector>

namespace nerlo::engine {

namespace {

using View = std::u16string_view;
using text::UnitSet;

constexpr UnitSet lineBreaks(u"\r\n");
constexpr UnitSet inlineMarks(u"*`");
constexpr View blanks = u" \t";

bool isOneOf(char32_t character, View units) {
    return character <= U'\uFFFF' && units.find(static_cast<char16_t>(character)) != View::npos;
}

std::size_t firstInk(View line, std::size_t from = 0) {
    return std::min(line.find_first_not_of(blanks, from), line.size());
}

std::size_t endOfRun(View line, std::size_t at) {
    return std::min(line.find_first_not_of(line[at], at), line.size());
}

// --- marks inside of a line

// A row of "*" or "`".
struct Run {
    std::size_t begin = 0;
    std::size_t end = 0;
    char32_t before = 0; // the characters beside it and the runs that touch it; 0 for none
    char32_t behind = 0;
    bool code = false; // belongs to code that stays as it is
    bool goes = false;

    std::size_t size() const { return end - begin; }
};

// Whether it goes with the character before it: before a mark of that kind, "*" is a key or carries
// an accent.
bool attaches(char32_t character) {
    const bool joiner = character >= U'\u200B' && character <= U'\u200D';
    const bool partOfSyllable = character >= U'\u115F' && character <= U'\u11FF';
    return joiner || partOfSyllable || text::isMark(character);
}

std::vector<Run> runsOf(View line) {
    std::vector<Run> runs;
    for (std::size_t at = text::findUnit(line, 0, inlineMarks); at < line.size();) {
        const std::size_t end = endOfRun(line, at);
        const bool escaped = at > 0 && line[at - 1] == u'\\';
        if (!escaped && !(end < line.size() && attaches(text::characterAt(line, end)))) {
            runs.push_back({at, end});
        }
        at = text::findUnit(line, end, inlineMarks);
    }
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const bool touches = i > 0 && runs[i - 1].end == runs[i].begin;
        const std::size_t begin = runs[i].begin;
        runs[i].before = touches      ? runs[i - 1].before
                         : begin == 0 ? 0
                                      : text::characterBefore(line, begin);
    }
    for (std::size_t i = runs.size(); i-- > 0;) {
        const bool touches = i + 1 < runs.size() && runs[i + 1].begin == runs[i].end;
        const std::size_t end = runs[i].end;
        runs[i].behind = touches              ? runs[i + 1].behind
                         : end == line.size() ? 0
                                              : text::characterAt(line, end);
    }
    return runs;
}

// Code stands between rows of "`" of one length.
void findCode(View line, std::vector<Run> &runs) {
    std::vector<std::size_t> next(runs.size(), runs.size());
    std::map<std::size_t, std::size_t> seen; // by length
    for (std::size_t i = runs.size(); i-- > 0;) {
        if (line[runs[i].begin] == u'`') {
            const auto [place, isNew] = seen.try_emplace(runs[i].size(), i);
            next[i] = isNew ? runs.size() : place->second;
            place->second = i;
        }
    }
    for (std::size_t i = 0; i < runs.size();) {
        const std::size_t close = next[i];
        if (close == runs.size()) {
            ++i;
            continue;
        }
        const View code = line.substr(runs[i].end, runs[close].begin - runs[i].end);
        const bool plain =
            text::findUnit(code, 0, inlineMarks) == code.size() && firstInk(code) < code.size();
        for (; i <= close; ++i) {
            runs[i].code = true;
            runs[i].goes = plain;
        }
    }
}

bool isWide(char32_t character) {
    return text::columnsOf(character) == 2;
}

// A letter of a script that has blanks between words: marks do not begin or end inside of these.
bool isInWord(char32_t character) {
    return character == U'_' || (text::isLetterOrNumber(character) && !isWide(character));
}

bool isBlank(char32_t character) {
    return character == 0 || text::isWhiteSpace(character);
}

// One "*" is a sign of arithmetics and of file names too.
bool mayStandOutside(char32_t character, bool single, View signs) {
    if (isOneOf(character, u"/\\")) {
        return false;
    }
    return single ? isBlank(character) || isWide(character) || isOneOf(character, signs)
                  : !isInWord(character);
}

bool opens(const Run &run) {
    return !isBlank(run.behind) && !isOneOf(run.behind, u"/\\") &&
           mayStandOutside(run.before, run.size() == 1,
                           u"([{\"'\u201C\u2018\u201E\u00AB\u00BF\u00A1-\u2013\u2014");
}

bool closes(const Run &run) {
    return !isBlank(run.before) && !isOneOf(run.before, u"/\\") &&
           mayStandOutside(run.behind, run.size() == 1,
                           u".,;:!?)]}\"'\u201D\u2019\u201C\u00BB\u2026-\u2013\u2014");
}

// Without the run, those beside it would become one.
bool keepsApart(View line, const std::vector<Run> &runs, std::size_t i) {
    const std::size_t end = runs[i].end;
    const bool between = runs[i].begin > 0 && line[runs[i].begin - 1] == u'`' &&
                         end < line.size() && line[end] == u'`';
    return between && !(i > 0 && runs[i - 1].goes) && !(i + 1 < runs.size() && runs[i + 1].goes);
}

// Each length by itself, so that a second look at what is left finds no further pair.
void findEmphasis(View line, std::vector<Run> &runs) {
    std::array<std::vector<Run *>, 4> open; // by length
    for (std::size_t i = 0; i < runs.size(); ++i) {
        Run &run = runs[i];
        if (run.code || line[run.begin] != u'*' || run.size() >= open.size() ||
            keepsApart(line, runs, i)) {
            continue;
        }
        auto &same = open[run.size()];
        if (closes(run) && !same.empty()) {
            run.goes = same.back()->goes = true;
            same.pop_back();
        } else if (opens(run)) {
            same.push_back(&run);
        }
    }
}

std::u16string withoutInlineMarks(View line, std::size_t &count) {
    std::vector<Run> runs = runsOf(line);
    findCode(line, runs);
    findEmphasis(line, runs);
    std::u16string result;
    std::size_t done = 0;
    for (const Run &run : runs) {
        if (run.goes) {
            result.append(line, done, run.begin - done);
            done = run.end;
            ++count;
        }
    }
    return result.append(line, done);
}

// --- marks at the begin of a line

// The words of a heading with what may close it; the line itself where it is none.
View withoutHeading(View line) {
    const std::size_t begin = line.find_first_not_of(u' ');
    if (begin > 3 || line[begin] != u'#') {
        return line;
    }
    const std::size_t end = endOfRun(line, begin);
    const std::size_t words = firstInk(line, end);
    const bool heading = end - begin <= 6 && words > end && words < line.size();
    return heading ? line.substr(words) : line;
}

// "Words #" of a heading that is closed.
View withoutClosing(View words) {
    const std::size_t last = words.find_last_not_of(blanks);
    const std::size_t close = words.find_last_not_of(u'#', last);
    const bool closed = close < last && isOneOf(words[close], blanks);
    return closed ? words.substr(0, words.find_last_not_of(blanks, close) + 1) : words;
}

std::size_t columnOf(View indent) {
    std::size_t column = 0;
    for (const char16_t unit : indent) {
        column = unit == u'\t' ? column / 4 * 4 + 4 : column + 1;
    }
    return column;
}

// Whether a list item begins at `at`. A line of nothing but such signs is drawn across the page.
bool isItem(View line, std::size_t at) {
    return at + 1 < line.size() && isOneOf(line[at], u"-*") && isOneOf(line[at + 1], blanks) &&
           line.find_first_not_of(u"-* \t", at) != View::npos;
}

std::u16string withBullet(View line, std::size_t &count) {
    std::u16string result(line);
    const std::size_t at = firstInk(line);
    if (isItem(line, at)) {
        constexpr View bullets =
            u"\u2022\u25E6\u2023"; // of a list, of one inside of it, and deeper
        const std::size_t column = columnOf(line.substr(0, at));
        result[at] = bullets[column < 2 ? 0 : column < 6 ? 1 : 2];
        ++count;
    }
    return result;
}

std::u16string withoutLeadingMarks(View line, std::size_t &count) {
    const View whole = line;
    for (View words = withoutHeading(line); words.size() < line.size();
         words = withoutHeading(line)) {
        line = words;
        ++count;
    }
    return withBullet(line.size() < whole.size() ? withoutClosing(line) : line, count);
}

// --- lines

// The row of signs that opens a block of code, without its indent; empty for other lines.
View fenceOf(View line) {
    line.remove_prefix(firstInk(line));
    if (!line.starts_with(u"```") && !line.starts_with(u"~~~")) {
        return {};
    }
    const View fence = line.substr(0, endOfRun(line, 0));
    const bool inlineCode = fence[0] == u'`' && line.find(u'`', fence.size()) != View::npos;
    return inlineCode ? View() : fence;
}

bool closesFence(View line, View fence) {
    const View signs = fenceOf(line);
    return signs.size() >= fence.size() && signs[0] == fence[0] &&
           firstInk(line, firstInk(line) + signs.size()) == line.size();
}

bool mayHaveMarks(View line) {
    const std::size_t ink = firstInk(line);
    return ink < line.size() &&
           (isOneOf(line[ink], u"#-") || text::findUnit(line, ink, inlineMarks) < line.size());
}

std::u16string cleanedLine(View line, std::size_t &count) {
    if (!mayHaveMarks(line)) {
        return std::u16string(line);
    }
    std::size_t found = 0;
    const std::u16string words = withoutInlineMarks(line, found);
    std::u16string result = withoutLeadingMarks(words, found);
    // Code at the begin of the line is not to be taken for a mark, nor what is left for a fence.
    const bool code = firstInk(line) < line.size() && line[firstInk(line)] == u'`';
    if ((code && result != words) || !fenceOf(result).empty()) {
        return std::u16string(line);
    }
    count += found;
    return result;
}

class Markdown {
  public:
    Markdown(View text, std::size_t &count)
        : text_(text)
        , count_(count) {}

    std::u16string run() {
        result_.reserve(text_.size());
        while (at_ < text_.size()) {
            const View line = lineAt(at_);
            if (const View fence = fenceOf(line); !fence.empty()) {
                passFence(fence);
                continue;
            }
            result_.append(cleanedLine(line, count_));
            const std::size_t end = at_ + line.size();
            at_ = behindLine(at_);
            result_.append(text_, end, at_ - end);
        }
        return std::move(result_);
    }

  private:
    View lineAt(std::size_t at) const {
        return text_.substr(at, text::findUnit(text_, at, lineBreaks) - at);
    }

    std::size_t behindLine(std::size_t at) const {
        const std::size_t end = text::findUnit(text_, at, lineBreaks);
        return std::min(text_.size(), end + (text_.substr(end).starts_with(u"\r\n") ? 2 : 1));
    }

    // Only the code of a fence stays, if nothing in it looks like a mark. One that does not end
    // goes on to the end of the text.
    void passFence(View fence) {
        const std::size_t code = behindLine(at_);
        bool plain = true;
        std::size_t end = code;
        while (end < text_.size() && !closesFence(lineAt(end), fence)) {
            std::size_t marks = 0;
            const View line = lineAt(end);
            plain = plain && fenceOf(line).empty() && cleanedLine(line, marks) == line;
            end = behindLine(end);
        }
        plain = plain && end < text_.size();
        const std::size_t next = end < text_.size() ? behindLine(end) : end;
        const std::size_t from = plain ? code : at_;
        result_.append(text_, from, (plain ? end : next) - from);
        count_ += plain ? 2 : 0;
        at_ = next;
    }

    const View text_;
    std::size_t &count_;
    std::size_t at_ = 0;
    std::u16string result_;
};

} // namespace

std::u16string removeMarkdown(std::u16string text, std::size_t &count) {
    std::size_t found = 0;
    std::u16string result = Markdown(text, found).run();
    count += found;
    return found > 0 ? result : text;
}

} // namespace nerlo::engine

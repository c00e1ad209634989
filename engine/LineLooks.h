// What a line says by itself: whether it begins like an item of a list, a prompt or a block of
// HTML, whether it looks like code, and where its columns stand.
//
// Lines come without their breaks. `words` is a line from its first unit with ink on, and has one.
// Texts are UTF-16, places and sizes count units. Pure, any thread, in time in proportion to the
// line.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>
#include <vector>

namespace nerlo::engine::looks {

using View = std::u16string_view;

inline bool isBlank(char16_t unit) {
    return unit == u' ' || unit == u'\t' || unit == u'\u00A0';
}

// The first place at or behind `from` that is not blank, or the line's size.
inline std::size_t firstInk(View line, std::size_t from = 0) {
    while (from < line.size() && isBlank(line[from])) {
        ++from;
    }
    return from;
}

// Without the blanks at both ends.
inline View trimmed(View line) {
    line.remove_prefix(firstInk(line));
    while (!line.empty() && isBlank(line.back())) {
        line.remove_suffix(1);
    }
    return line;
}

// Of a literal, whose length the compiler knows; a view would count it anew each time.
template <std::size_t size>
bool begins(View text, const char16_t (&literal)[size]) {
    return text.size() >= size - 1 && text[0] == literal[0] &&
           std::memcmp(text.data(), literal, (size - 1) * sizeof *literal) == 0;
}

// How often the text has the unit at its beginning.
inline std::size_t runOf(View text, char16_t unit) {
    return std::min(text.find_first_not_of(unit), text.size());
}

// How many digits the words have from `at` on.
std::size_t digitsAt(View words, std::size_t at);

// Columns in front of `at`; a tab goes to the next multiple of four.
std::size_t columnOf(View line, std::size_t at);

// Whether a look at both ends of a line without marks, tabs and gaps is enough to see that it is
// prose, or goes with the lines around it. The line may be empty.
bool isOrdinary(View line);
// Whether a look at the first units is enough to see that no block begins with these words, unless
// they have marks.
bool beginsLikeProse(View words);

// A line of three or more of one sign, blanks between them allowed: "---", "* * *".
bool isRule(View words);
bool isHeading(View words);
// The size of a list mark with the blanks behind it, or 0: "- ", "12. ", "(a) ", "[x] ", "• ".
std::size_t listMark(View words);
// "user@host" at the beginning.
bool beginsWithHost(View words);
// "$ make", "user@host:~/dir$ ls", ">>> x", "PS C:\> dir".
bool isPrompt(View words);
// "-rw-r--r-- 1 root": a line of a list of files.
bool isFileMode(View words);
// A day with the time of it, as entries of logs and of chats begin, or "[  12.345678]".
bool isStamped(View words);
// "#1  main ()": a row of a debugger's stack.
bool isStackFrame(View words);
// "-- Name <mail>  day": below an entry of a changelog.
bool isSigned(View words);
// "key: value", the key a single word.
bool isKeyed(View words);
// "[name]: address"
bool isLinkDefinition(View words);
// What ends a block of HTML that begins with these words: a text, "" for a blank line. Inside of a
// paragraph, a tag alone on its line begins none; then null.
const char16_t *endOfMarkup(View words, bool insideParagraph);
bool isPatchHead(View line);
// Whether the line may stand in a patch below its head.
bool goesOnInPatch(View line);

// Whether a line may look like code although it has no marks.
bool mayBeCode(View line);
bool looksLikeCode(View words);

// "|---|:-:|": below the head of a table of Markdown.
bool isTableRule(View words);
// Has lines of a drawn frame.
bool isDrawn(View words);
std::size_t innerTabs(View words);
// Separators of a list of values: not followed by a blank, nor between digits.
std::size_t separators(View words);

// The columns of a line: where ink ends before a gap of two or more blanks and begins behind it. A
// gap behind the end of a sentence is how some people type; behind a name with a colon it is not.
struct Columns {
    std::vector<std::size_t> ends;
    std::vector<std::size_t> starts;
    std::size_t wide = 0; // gaps of more than two blanks
    bool isFar = false;   // a gap that nobody leaves by mistake, or one before a remark
    bool isField = false; // "Name:   value"
    bool isProse = false; // words with no gap of more than two blanks, as justified text has
};

// `words` is where they begin in the line.
Columns columnsOf(View line, std::size_t words);
// In prose, one of several gaps may well stand below another by chance, but hardly the first one.
bool isAligned(const Columns &a, const Columns &b);

} // namespace nerlo::engine::looks

// What the lines of a text are: prose, or something whose layout carries meaning.
//
// Told from the text alone, line by line, in time in proportion to it. What is unsure is called
// something else than prose: a caller that leaves alone all that is not prose does no harm. Texts
// are UTF-16, places count units. Pure, any thread.
#pragma once

#include "engine/InlineStructure.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

namespace nerlo::engine {

enum class LineKind : std::uint8_t {
    blank,
    prose,     // also the words of a list item or of a quotation
    heading,   // "# ...", or the line above a line of "=" or "-"
    rule,      // a line of such signs
    fence,     // "```" and all up to the line that closes it
    code,      // indented, or code by its looks
    table,     // columns between "|", between tabs, or below each other
    prompt,    // a shell's prompt with its command
    diff,      // a patch
    markup,    // blocks of HTML
    data,      // front matter, definitions of links
    signature, // below the "-- " of a mail
    numbered,  // rows of an editor that shows the numbers of its lines
};

struct StructuredLine {
    std::size_t begin = 0;
    std::size_t end = 0;    // of the line without its break
    std::size_t quoted = 0; // behind the marks of a quotation; begin where there are none
    std::size_t words = 0;  // where the words begin: behind indent, quotation and list marks
    LineKind kind = LineKind::blank;
    std::uint8_t breakSize = 0; // 0 for a last line without one
    bool item = false;          // a list mark stands before the words
    bool marked = false;        // has signs that are seldom in prose
    bool tabular = false;       // has tabs, bars or gaps
    bool valued = false;        // may have separators of values
    bool mayBreak = false;      // ends in two blanks or a backslash
    bool codeLike = false;      // looks like code by itself
    bool ordinary = false;      // nothing in it says that it is something else than prose

    // Where the line below begins; the text's size for the last.
    std::size_t next() const { return end + breakSize; }
};

// The lines alone, of no kind yet. A break is CR LF, CR or LF. The text "" has no line, "a\n" has
// one.
std::vector<StructuredLine> splitLines(std::u16string_view text);

std::vector<StructuredLine> scanStructure(std::u16string_view text);

// The same in parts: `found` is given some lines after the other, in order. True where the text is
// a program's; then all its lines are code but for blank ones, fences and rules, whatever `found`
// was told. Adds to `places`, where it is given, where something may stand inside the lines.
using LinesFound = std::function<void(std::span<const StructuredLine>)>;
bool scanStructure(std::u16string_view text, const LinesFound &found,
                   InlinePlaces *places = nullptr);

} // namespace nerlo::engine

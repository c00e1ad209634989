// What is said of the changes of a trace: where they are and what they do.
//
// Texts are UTF-16; what is returned is UTF-8. Any thread.
#pragma once

#include "engine/Trace.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace nerlo::cli {

// Lines and columns count from 1. A line ends with CR LF, CR or LF; columns count characters, of
// which a pair of surrogates is one.
struct TextPosition {
    std::size_t offset = 0;
    std::size_t line = 1;
    std::size_t column = 1;
    std::size_t lineByFeeds = 1; // as programs count that know LF alone

    // `text` is the same each time, and `to` never lies before the offset.
    void moveTo(std::u16string_view text, std::size_t to);
};

// In one line: what can be seen in quotes, other characters as U+XXXX. A space is seen where it
// stands between two that are.
std::string shown(std::u16string_view text);

// "removes U+0020", "adds "> "", "U+0009 becomes U+0020".
std::string effectOf(const engine::TracedChange &change);
// " after "Some", before "prose"": the characters around a place of the text; empty for a text that
// has nothing else.
std::string surroundingsOf(text::Range place, std::u16string_view text);
// "collapse-spaces", "find-replace-list, rule 3", "clean-characters, blanks".
std::string nameOf(const engine::TraceStep &step);

// Members of a JSON object, without braces: operation, and rule or characters where there are some.
std::string jsonMembers(const engine::TraceStep &step);
// line, column, endLine, endColumn, removed and added; cut where one of these is not whole.
std::string jsonMembers(const engine::TracedChange &change, const TextPosition &begin,
                        const TextPosition &end);

} // namespace nerlo::cli

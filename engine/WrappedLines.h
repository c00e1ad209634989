// Lines that were broken at the edge of a screen, as they were before.
//
// Texts are UTF-16. Pure, any thread, never fails, takes time in proportion to the text.
#pragma once

#include <cstddef>
#include <string>

namespace nerlo::engine {

// First joins the rows that a screen cut at its last column, also inside of words, then those that
// were broken between words. Both widths are found in the text itself. Code, tables, list items,
// prompts and indented blocks are never joined with anything. `screen` is the columns of the
// screen, where a frame or padding showed them, or 0.
std::u16string joinWrappedLines(std::u16string text, std::size_t screen);

} // namespace nerlo::engine

// Text that was copied out of a terminal or one of its full-screen programs, as it was before the
// terminal laid it out.
//
// Texts are UTF-16. Pure, any thread, never fails, takes time in proportion to the text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace nerlo::engine {

// Where the control sequence that begins at `at` with ESC or U+009B ends.
std::size_t endOfControlSequence(std::u16string_view text, std::size_t at);

// Takes out control sequences, frames of box-drawing characters, the gutter on the left and the
// padding on the right, and joins the lines of prose that were cut at a column or wrapped at a
// width. Both are found in the text itself: a line goes on below where the next word would not have
// fitted. Code, tables, list items, prompts and indented blocks are never joined with anything. A
// text that shows no sign of a terminal comes back as it was given.
std::u16string unwrapTerminal(std::u16string text);

} // namespace nerlo::engine

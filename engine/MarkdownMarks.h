// Markdown's marks out of a text that is to be read as it stands.
//
// Texts are UTF-16. Pure, any thread, never fails, takes time in proportion to the text.
#pragma once

#include <cstddef>
#include <string>

namespace nerlo::engine {

// Takes out the marks of bold and emphasized words ("**", "*"), of headings ("#") and of code
// ("`"), and turns the "- " and "* " of lists into bullets. Code stays as it is; where it would
// look like marks of Markdown without its own, those stay too. Adds the number of marks to `count`.
std::u16string removeMarkdown(std::u16string text, std::size_t &count);

} // namespace nerlo::engine

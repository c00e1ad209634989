// What the pages of a print leave in a text that was copied out of it.
//
// Texts are UTF-16. Pure, any thread, never fails, takes time in proportion to the text.
#pragma once

#include <string>

namespace nerlo::engine {

// In a text with form feeds between its pages: takes out the lines at the top and at the bottom of
// the pages that most pages have, of three or more (digits in them may differ), numbers of pages
// alone on the first or the last line, and the form feeds. A sentence that goes on across pages has
// nothing but a line break there.
std::u16string removePageLines(std::u16string text);

// Takes out digits behind words and sentences that count footnotes: three or more of them that go
// up by one through the text ("theory4 ... paper.5 ... said6"). Words that are called so (utf8,
// item1, item2) stay.
std::u16string removeFootnoteMarks(std::u16string text);

} // namespace nerlo::engine

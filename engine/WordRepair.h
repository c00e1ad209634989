// Words that were cut where a line ended, and what else the pages of a print leave in a text.
//
// Texts are UTF-16. Any thread; nothing fails. Takes time in proportion to the text.
#pragma once

#include "text/Dictionary.h"

#include <functional>
#include <string>
#include <string_view>

namespace nerlo::engine {

// The dictionary of a language ("de") or locale ("de_AT"); empty where there is none.
using FindDictionary = std::function<text::KnowsWord(std::string_view locale)>;

// Puts words that end in a hyphen at a line's end together with their rest, which comes up to the
// line above; the hyphen goes where it was made by the cut. That is told by the same word elsewhere
// in the text, then by a dictionary, which is asked only where the text does not tell. Blanks that
// stand for a gap beside a ligature ("veri fi cation") go where a dictionary knows the word. The
// language is that of the text as its commonest words tell it, else that of the locale.
std::u16string rejoinWords(std::u16string text, std::string_view locale,
                           const FindDictionary &find);

} // namespace nerlo::engine

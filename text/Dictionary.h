// The dictionaries for spelling that are installed, in the format of Hunspell.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace nerlo::text {

// Whether a word, in UTF-16 and as it stands in a text, is one of the language. May be called on
// any thread, many at a time. Words of more than 64 units are none.
using KnowsWord = std::function<bool(std::u16string_view word)>;

// The dictionary for a locale ("de_AT") or a language ("de"): that of the country, else that of the
// country where the language has its name from, else any other. Empty where none is installed, or
// it cannot be read. It is loaded at the first question (some 50 ms) and kept. Dictionaries lie in
// the folders that DICPATH names, with colons between them, and in the system's.
KnowsWord dictionaryFor(std::string_view locale);

} // namespace nerlo::text

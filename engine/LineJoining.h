// Joining lines that were broken inside sentences.
//
// Texts are UTF-16. Every function is pure, may run on any thread, never fails and takes time in
// proportion to its text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace nerlo::engine {

// Joins with a space when `option` is 1, else with nothing. Breaks that end a sentence stay, blank
// lines go, and words hyphenated at a line end are put together.
std::u16string changeWrongInsertedReturnsTo(std::u16string text, std::int32_t option);

// The lines of paragraphs that were wrapped at some width, as nearly every line shows by having no
// room for the word below it. Verses, addresses and other short or uneven lines stay, as do blank
// lines and a break between two sentences. Doing it again changes nothing.
std::u16string joinWrappedLines(std::u16string text, bool withSpace);

bool checkLineForFirstSentenceChar(std::u16string_view line);
// With `checkComma`, a comma at the end counts too.
bool checkLineForEndSentenceChar(std::u16string_view line, bool checkComma);
bool checkSpecialCharsInTheEndOfSentence(char16_t unit);

} // namespace nerlo::engine

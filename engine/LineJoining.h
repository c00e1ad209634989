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

bool checkLineForFirstSentenceChar(std::u16string_view line);
// With `checkComma`, a comma at the end counts too.
bool checkLineForEndSentenceChar(std::u16string_view line, bool checkComma);
bool checkSpecialCharsInTheEndOfSentence(char16_t unit);

} // namespace nerlo::engine

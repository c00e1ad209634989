// What the rows of a screen look like, for those who put them together again.
//
// Texts are UTF-16, rows without their breaks. Pure, any thread, never fails.
#pragma once

#include "engine/ScreenText.h"
#include "engine/Structure.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace nerlo::engine {

// No terminal is narrower than people can read, nor wider than they can afford.
inline constexpr std::size_t leastWidth = 24;
inline constexpr std::size_t mostWidth = 400;
// Blanks that set a block apart from the text around it.
inline constexpr std::size_t codeIndent = 4;

// Without the blanks at the end.
inline std::u16string_view wordsOf(std::u16string_view text, std::size_t begin, std::size_t end) {
    const auto words = text.substr(begin, end - begin);
    return words.substr(0, inkEnd(words));
}

// The first word of a row that has one.
std::u16string_view firstWord(std::u16string_view row);

// Of the scripts that are broken between any two characters.
bool isIdeographic(char32_t character);

// Of a row that has words.
bool endsSentence(std::u16string_view row);

// A gap inside that is not behind the end of a sentence.
bool hasGap(std::u16string_view words);

// What a pager or an editor writes into its last row.
bool isStatus(std::u16string_view row);

// Whether a paragraph that shares its looks with code or with a table is prose once it is whole.
bool isProseWhole(std::u16string_view paragraph);

// Whether what begins a row like the mark of an item or of a quotation may be the end of the word
// that the row above had no room for. Both have words.
bool mayBeCutOff(std::u16string_view above, std::u16string_view below);

// Behind the last line that is not blank.
std::size_t inkedEnd(const std::vector<StructuredLine> &lines);

// Whether it may as well be prose.
bool isDoubtful(const StructuredLine &line);

// "-     code": an item whose words stand so far behind its mark.
bool isCodeItem(std::u16string_view text, const StructuredLine &line);

} // namespace nerlo::engine

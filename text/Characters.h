// Properties of characters, as ICU's regular expressions see them.
//
// Positions count UTF-16 code units; a pair of surrogates is one character.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace nerlo::text {

// The character that begins at `at`, which must be inside the text.
char32_t characterAt(std::u16string_view text, std::size_t at);
std::size_t sizeOf(char32_t character);
void appendCharacter(std::u16string &to, char32_t character);

bool isWhiteSpace(char32_t character);    // "\s"
bool isWordCharacter(char32_t character); // "\w"
bool isPunctuation(char32_t character);   // "[:PUNCT:]"
bool isShown(char32_t character);         // a letter, mark, number, punctuation mark or symbol
// How many columns of a terminal it takes: 0, 1 or 2. As Unicode's East Asian widths say; what is
// ambiguous there takes one.
std::size_t columnsOf(char32_t character);
bool isLineEnd(char16_t unit); // what "." does not match

// "\b": combining and format characters belong to the character before them.
bool isWordBoundary(std::u16string_view text, std::size_t at);

} // namespace nerlo::text

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
// The one that ends at `at`, which must not be 0.
char32_t characterBefore(std::u16string_view text, std::size_t at);
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

bool isLetterOrNumber(char32_t character);
bool isDigit(char32_t character); // of any script
bool isMark(char32_t character);  // stands on or beside the character before it
// Whether it is shown as a picture: what zero-width joiners may join.
bool isPictograph(char32_t character);
// A letter or mark of a script in which zero-width joiners and non-joiners change the shapes or the
// spelling. Also of scripts of which that is not known.
bool needsJoiners(char32_t character);
// A letter or mark of a script that is written without blanks between words, where a zero-width
// space may stand for them.
bool isWrittenWithoutBlanks(char32_t character);
bool isHangul(char32_t character);

// "\b": combining and format characters belong to the character before them.
bool isWordBoundary(std::u16string_view text, std::size_t at);

} // namespace nerlo::text

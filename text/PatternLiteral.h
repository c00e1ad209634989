// A literal that every match of a pattern needs, so that a text is searched only where that stands.
//
// For patterns that are left to ICU: they are read only so far as is needed to be sure, and where
// that fails there is no literal. Units are UTF-16. Any thread.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace nerlo::text {

struct Literal {
    std::u16string units{};   // empty if there is none, or none that is rare
    bool ignoresCase = false; // the units are ASCII then, and no capital letters
    std::size_t rarest = 0;   // the place of its rarest unit
    std::size_t second = 0;   // and of the one after that; the same in a literal of one unit
    unsigned places = 0;      // how often these two are met together, in ten thousand
};
Literal literalOf(std::u16string units, bool ignoresCase = false);

// Where the literal stands first from `from` on; the text's size if nowhere.
std::size_t findLiteral(std::u16string_view text, std::size_t from, const Literal &literal);

// How often a unit is met in ordinary text, in ten thousand.
unsigned commonness(char16_t unit);

struct RequiredLiteral {
    Literal literal;     // stands at or behind the beginning of each match
    bool inLine = false; // no line end is between
};
// The pattern must be one that ICU compiles.
RequiredLiteral requiredLiteral(std::u16string_view pattern, bool ignoresCase);

// Whether the text holds a character outside ASCII whose case folding has ASCII in it: such a text
// may match without holding a literal whose case is ignored.
bool foldsIntoAscii(std::u16string_view text);

} // namespace nerlo::text

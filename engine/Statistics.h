// The four counts of a text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace nerlo::engine {

struct TextStatistics {
    std::uint64_t characters = 0; // UTF-16 code units
    std::uint64_t spaces = 0;     // U+0020 and U+00A0
    std::uint64_t words = 0;
    std::uint64_t paragraphs = 0;

    TextStatistics &operator+=(const TextStatistics &other);
    bool operator==(const TextStatistics &) const = default;
};

std::uint64_t countCharacters(std::u16string_view text);
std::uint64_t countSpaces(std::u16string_view text);
// Segments of `locale`'s word rules that hold letters, numbers, kana or ideographs.
std::uint64_t countWords(std::u16string_view text, const std::string &locale);
// Lines. One line break at the end of the text does not begin another line; the empty text has no
// line.
std::uint64_t countParagraphs(std::u16string_view text);

TextStatistics countAll(std::u16string_view text, const std::string &locale);

// The last place, at or beyond `from`, at which a text may be cut so that the counts of the pieces
// add up to those of the whole: after a LF. 0 where there is none.
std::size_t lastCountingCut(std::u16string_view text, std::size_t from);

// Decimal digits, grouped by `locale`'s conventions.
std::u16string integerToString(std::uint64_t count, const std::string &locale);

} // namespace nerlo::engine

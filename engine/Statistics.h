// The four counts of a text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

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

// Counts a text that comes in pieces, cut anywhere, as countAll() counts the whole. Memory does not
// grow with it, but with the longest stretch of a script without spaces that no punctuation ends.
// One thread at a time.
class StreamCounter {
  public:
    explicit StreamCounter(std::string locale)
        : locale_(std::move(locale)) {}

    void feed(std::u16string_view text);
    // The counts of all that was fed.
    TextStatistics counts() const;

  private:
    std::string locale_;
    TextStatistics counts_;    // with the breaks as paragraphs
    std::u16string uncounted_; // its words are not counted yet
    char16_t last_ = 0;
};

// Decimal digits, grouped by `locale`'s conventions.
std::u16string integerToString(std::uint64_t count, const std::string &locale);

} // namespace nerlo::engine

// How a code unit takes part in words, as far as that can be told from the unit alone.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace nerlo::text {

enum class WordClass : std::uint8_t {
    Break,     // belongs to no word and joins nothing
    Letter,    //
    Digit,     //
    MidLetter, // joins a letter before it to a letter behind it
    MidDigit,  // joins a digit before it to a digit behind it
    MidBoth,   // joins either
    Ask,       // marks, scripts without spaces, and whatever else only ICU can decide
};

// By the root's word rules, of the units that are not ASCII.
WordClass wordClassBeyondAscii(char16_t unit);

inline constexpr auto asciiWordClasses = [] {
    std::array<WordClass, 0x80> classes{};
    const auto set = [&](std::string_view units, WordClass as) {
        for (const char unit : units) {
            classes[static_cast<unsigned char>(unit)] = as;
        }
    };
    set("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ", WordClass::Letter);
    set("0123456789", WordClass::Digit);
    set(",;", WordClass::MidDigit);
    set(".'", WordClass::MidBoth);
    set("_@", WordClass::Ask);
    return classes;
}();

// By the root's word rules.
inline WordClass wordClass(char16_t unit) {
    return unit < 0x80 ? asciiWordClasses[unit] : wordClassBeyondAscii(unit);
}

// What each of 64 units is, one bit a unit; a unit that is in no mask separates words.
struct AsciiWordBits {
    std::uint64_t letters = 0;
    std::uint64_t digits = 0;
    std::uint64_t midDigit = 0;
    std::uint64_t midBoth = 0;

    WordClass at(unsigned unit) const {
        const auto has = [unit](std::uint64_t mask) { return (mask >> unit & 1) != 0; };
        return has(letters)    ? WordClass::Letter
               : has(digits)   ? WordClass::Digit
               : has(midDigit) ? WordClass::MidDigit
               : has(midBoth)  ? WordClass::MidBoth
                               : WordClass::Break;
    }
};

// Reads exactly 64 units. False, and nothing of use in `bits`, when they are not all ASCII that
// wordClass() can tell.
bool scanAsciiWords(const char16_t *units, AsciiWordBits &bits);

// Finds where words begin: at each run of letters and digits that is not joined to the run before
// it. Fed with a text from front to back.
class WordBegins {
  public:
    bool add(WordClass unit) {
        const bool begins =
            isAlphanumeric(unit) && !isAlphanumeric(last_) && !joins(beforeLast_, last_, unit);
        beforeLast_ = last_;
        last_ = unit;
        return begins;
    }

    // As add(), for 64 units at once.
    std::uint64_t add(const AsciiWordBits &bits) {
        const auto lastIs = [this](WordClass a) -> std::uint64_t { return last_ == a ? 1 : 0; };
        const auto beforeIs = [this](WordClass a) -> std::uint64_t {
            return beforeLast_ == a ? 1 : 0;
        };
        const std::uint64_t lastLetter = lastIs(WordClass::Letter);
        const std::uint64_t lastDigit = lastIs(WordClass::Digit);
        const std::uint64_t lastBoth = lastIs(WordClass::MidBoth);
        const std::uint64_t runs = bits.letters | bits.digits;
        const std::uint64_t begins = runs & ~(runs << 1 | lastLetter | lastDigit);
        const std::uint64_t joinedLetters =
            bits.letters & (bits.midBoth << 1 | lastBoth | lastIs(WordClass::MidLetter)) &
            (bits.letters << 2 | lastLetter << 1 | beforeIs(WordClass::Letter));
        const std::uint64_t joinedDigits =
            bits.digits &
            ((bits.midBoth | bits.midDigit) << 1 | lastBoth | lastIs(WordClass::MidDigit)) &
            (bits.digits << 2 | lastDigit << 1 | beforeIs(WordClass::Digit));
        beforeLast_ = bits.at(62);
        last_ = bits.at(63);
        return begins & ~(joinedLetters | joinedDigits);
    }

    void reset() { last_ = beforeLast_ = WordClass::Break; }

  private:
    static bool isAlphanumeric(WordClass unit) {
        return unit == WordClass::Letter || unit == WordClass::Digit;
    }

    static bool joins(WordClass before, WordClass middle, WordClass after) {
        return before == after && (middle == WordClass::MidBoth ||
                                   (middle == WordClass::MidLetter && after == WordClass::Letter) ||
                                   (middle == WordClass::MidDigit && after == WordClass::Digit));
    }

    WordClass last_ = WordClass::Break;
    WordClass beforeLast_ = WordClass::Break;
};

// Whether the locale's word rules are the root's.
bool hasRootWordRules(std::string_view locale);

} // namespace nerlo::text

#include "text/WordClasses.h"

#include "text/Simd.h"
#include "text/UnitPages.h"
#include "text/UnitScan.h"

#include <unicode/uchar.h>
#include <unicode/uscript.h>

#include <algorithm>

namespace nerlo::text {

namespace {

bool isDictionaryScript(UChar32 character) {
    UErrorCode status = U_ZERO_ERROR;
    switch (uscript_getScript(character, &status)) {
    case USCRIPT_HAN:
    case USCRIPT_HANGUL:
    case USCRIPT_HIRAGANA:
    case USCRIPT_KATAKANA:
        return true;
    default:
        return u_getIntPropertyValue(character, UCHAR_LINE_BREAK) == U_LB_COMPLEX_CONTEXT;
    }
}

WordClass classify(char16_t unit) {
    // ICU's word rules treat the ideographic closing mark and two colons differently from what
    // their properties say.
    if (unit == u'\u3006' || isDictionaryScript(unit)) {
        return WordClass::Ask;
    }
    if (unit == u'\uFE55' || unit == u'\uFF1A') {
        return WordClass::Break;
    }
    switch (u_getIntPropertyValue(unit, UCHAR_WORD_BREAK)) {
    case U_WB_ALETTER:
        return WordClass::Letter;
    case U_WB_NUMERIC:
        return WordClass::Digit;
    case U_WB_MIDLETTER:
        return WordClass::MidLetter;
    case U_WB_MIDNUM:
        return WordClass::MidDigit;
    case U_WB_MIDNUMLET:
    case U_WB_SINGLE_QUOTE:
        return WordClass::MidBoth;
    case U_WB_OTHER:
    case U_WB_CR:
    case U_WB_LF:
    case U_WB_NEWLINE:
    case U_WB_WSEGSPACE:
    case U_WB_DOUBLE_QUOTE:
        return U_IS_SURROGATE(unit) ? WordClass::Ask : WordClass::Break;
    default:
        return WordClass::Ask;
    }
}

} // namespace

WordClass wordClassBeyondAscii(char16_t unit) {
    static UnitPages<WordClass, classify> classes;
    return classes[unit];
}

NERLO_CLONES bool scanAsciiWords(const char16_t *units, AsciiWordBits &bits) {
    unsigned all = 0;
    for (std::size_t i = 0; i < scanBlock; ++i) {
        all |= units[i];
    }
    if (all >= 0x80) {
        return false;
    }
    std::uint8_t letters[scanBlock];
    std::uint8_t digits[scanBlock];
    std::uint8_t midDigit[scanBlock];
    std::uint8_t midBoth[scanBlock];
    std::uint8_t ask[scanBlock];
    // Conditional expressions would become branches here.
    const auto either = [](std::uint8_t unit, std::uint8_t one, std::uint8_t other) {
        return static_cast<std::uint8_t>(static_cast<int>(unit == one) |
                                         static_cast<int>(unit == other));
    };
    for (std::size_t i = 0; i < scanBlock; ++i) {
        const auto unit = static_cast<std::uint8_t>(units[i]);
        letters[i] = static_cast<std::uint8_t>((unit | 0x20) - 'a') < 26;
        digits[i] = static_cast<std::uint8_t>(unit - '0') < 10;
        midDigit[i] = either(unit, ',', ';');
        midBoth[i] = either(unit, '.', '\'');
        ask[i] = either(unit, '_', '@');
    }
    if (packFlags(ask) != 0) {
        return false;
    }
    bits = {packFlags(letters), packFlags(digits), packFlags(midDigit), packFlags(midBoth)};
    return true;
}

bool hasRootWordRules(std::string_view locale) {
    const std::string_view language = locale.substr(0, locale.find_first_of("_-@"));
    return language != "fi" && language != "sv" && locale.find("POSIX") == std::string_view::npos &&
           locale.find('@') == std::string_view::npos;
}

} // namespace nerlo::text

#include "text/Characters.h"

#include "text/Ascii.h"

#include <unicode/uchar.h>
#include <unicode/uscript.h>
#include <unicode/utf16.h>

#include <array>

namespace nerlo::text {

namespace {

UChar32 code(char32_t character) {
    return static_cast<UChar32>(character);
}

// Characters that never stand apart from the one before them.
bool extends(char32_t character) {
    return character >= 0x80 && (u_hasBinaryProperty(code(character), UCHAR_GRAPHEME_EXTEND) ||
                                 u_charType(code(character)) == U_FORMAT_CHAR);
}

bool isLetterOrMark(char32_t character) {
    return (U_GET_GC_MASK(code(character)) & (U_GC_L_MASK | U_GC_M_MASK)) != 0;
}

UScriptCode scriptOf(char32_t character) {
    UErrorCode error = U_ZERO_ERROR;
    const UScriptCode script = uscript_getScript(code(character), &error);
    return U_FAILURE(error) ? USCRIPT_UNKNOWN : script;
}

} // namespace

char32_t characterAt(std::u16string_view text, std::size_t at) {
    UChar32 character = 0;
    U16_GET(text.data(), 0, at, text.size(), character);
    return static_cast<char32_t>(character);
}

char32_t characterBefore(std::u16string_view text, std::size_t at) {
    UChar32 character = 0;
    U16_PREV(text.data(), 0, at, character);
    return static_cast<char32_t>(character);
}

std::size_t sizeOf(char32_t character) {
    return character > 0xFFFF ? 2 : 1;
}

void appendCharacter(std::u16string &to, char32_t character) {
    std::array<char16_t, U16_MAX_LENGTH> units{};
    std::size_t size = 0;
    U16_APPEND_UNSAFE(units, size, character);
    to.append(units.data(), size);
}

bool isWhiteSpace(char32_t character) {
    if (character < 0x80) {
        return character == U' ' || (character >= U'\t' && character <= U'\r');
    }
    return u_isUWhiteSpace(code(character));
}

bool isWordCharacter(char32_t character) {
    if (character < 0x80) {
        return isAsciiLetterOrDigit(character) || character == U'_';
    }
    constexpr std::uint32_t marksDigitsConnectors = U_GC_M_MASK | U_GC_ND_MASK | U_GC_PC_MASK;
    return u_isUAlphabetic(code(character)) ||
           (U_GET_GC_MASK(code(character)) & marksDigitsConnectors) != 0 ||
           character == U'\u200C' || character == U'\u200D';
}

bool isPunctuation(char32_t character) {
    return (U_GET_GC_MASK(code(character)) & U_GC_P_MASK) != 0;
}

bool isShown(char32_t character) {
    return (U_GET_GC_MASK(code(character)) &
            (U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK | U_GC_P_MASK | U_GC_S_MASK)) != 0;
}

std::size_t columnsOf(char32_t character) {
    if (character < 0x300) {
        return 1;
    }
    if (extends(character)) {
        return 0;
    }
    const int width = u_getIntPropertyValue(code(character), UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

bool isLineEnd(char16_t unit) {
    return (unit >= u'\n' && unit <= u'\r') || unit == u'\u0085' || unit == u'\u2028' ||
           unit == u'\u2029';
}

bool isLetterOrNumber(char32_t character) {
    return (U_GET_GC_MASK(code(character)) & (U_GC_L_MASK | U_GC_N_MASK)) != 0;
}

bool isDigit(char32_t character) {
    return u_charType(code(character)) == U_DECIMAL_DIGIT_NUMBER;
}

bool isMark(char32_t character) {
    return (U_GET_GC_MASK(code(character)) & U_GC_M_MASK) != 0;
}

bool isPictograph(char32_t character) {
    return u_hasBinaryProperty(code(character), UCHAR_EXTENDED_PICTOGRAPHIC) != 0;
}

bool needsJoiners(char32_t character) {
    if (!isLetterOrMark(character)) {
        return false;
    }
    switch (scriptOf(character)) {
    case USCRIPT_INVALID_CODE:
    case USCRIPT_COMMON:
    case USCRIPT_INHERITED:
    case USCRIPT_UNKNOWN:
    case USCRIPT_LATIN:
    case USCRIPT_GREEK:
    case USCRIPT_CYRILLIC:
    case USCRIPT_ARMENIAN:
    case USCRIPT_GEORGIAN:
    case USCRIPT_ETHIOPIC:
    case USCRIPT_CHEROKEE:
    case USCRIPT_CANADIAN_ABORIGINAL:
    case USCRIPT_HAN:
    case USCRIPT_HIRAGANA:
    case USCRIPT_KATAKANA:
    case USCRIPT_BOPOMOFO:
    case USCRIPT_HANGUL:
    case USCRIPT_YI:
        return false;
    default:
        return true;
    }
}

bool isWrittenWithoutBlanks(char32_t character) {
    if (u_getIntPropertyValue(code(character), UCHAR_LINE_BREAK) == U_LB_COMPLEX_CONTEXT) {
        return true;
    }
    const UScriptCode script = isLetterOrMark(character) ? scriptOf(character) : USCRIPT_COMMON;
    return script == USCRIPT_BALINESE || script == USCRIPT_JAVANESE;
}

bool isHangul(char32_t character) {
    return scriptOf(character) == USCRIPT_HANGUL;
}

bool isWordBoundary(std::u16string_view text, std::size_t at) {
    bool isWord = false;
    if (at < text.size()) {
        const char32_t character = characterAt(text, at);
        if (extends(character)) {
            return false;
        }
        isWord = isWordCharacter(character);
    }
    bool wasWord = false;
    while (at > 0) {
        UChar32 before = 0;
        U16_PREV(text.data(), 0, at, before);
        if (!extends(static_cast<char32_t>(before))) {
            wasWord = isWordCharacter(static_cast<char32_t>(before));
            break;
        }
    }
    return isWord != wasWord;
}

} // namespace nerlo::text

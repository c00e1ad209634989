#include "text/CaseMapping.h"

#include "text/BreakIterators.h"
#include "text/Simd.h"
#include "text/UnitPages.h"
#include "text/UnitScan.h"
#include "text/WordClasses.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <initializer_list>
#include <utility>

namespace nerlo::text {

namespace {

using Mapping = std::int32_t (*)(char16_t *to, std::int32_t room, const char16_t *from,
                                 std::int32_t size, const char *locale, UErrorCode *status);

constexpr std::size_t longestPiece = std::size_t{1} << 29;

bool isBlank(char16_t unit) {
    return unit == u' ' || unit == u'\n' || unit == u'\r' || unit == u'\t';
}

// Appends ICU's mapping of `from`.
void appendMapped(std::u16string &to, std::u16string_view from, const char *locale,
                  Mapping mapping) {
    while (!from.empty()) {
        std::size_t size = from.size();
        if (size > longestPiece) { // ICU counts in 32 bits; no mapping looks past a blank
            size = longestPiece;
            while (size > 1 && !isBlank(from[size - 1])) {
                --size;
            }
        }
        const std::size_t begin = to.size();
        std::size_t room = size + size / 16 + 16;
        for (;;) {
            UErrorCode status = U_ZERO_ERROR;
            to.resize(begin + room);
            const std::int32_t written =
                mapping(to.data() + begin, static_cast<std::int32_t>(room), from.data(),
                        static_cast<std::int32_t>(size), locale, &status);
            if (status == U_BUFFER_OVERFLOW_ERROR) {
                room = static_cast<std::size_t>(written) + 1;
                continue;
            }
            if (U_FAILURE(status)) {
                to.resize(begin);
                to.append(from, 0, size);
            } else {
                to.resize(begin + static_cast<std::size_t>(written));
            }
            break;
        }
        from.remove_prefix(size);
    }
}

std::u16string mapped(std::u16string_view text, const std::string &locale, Mapping mapping) {
    std::u16string result;
    appendMapped(result, text, locale.c_str(), mapping);
    return result;
}

std::int32_t lower(char16_t *to, std::int32_t room, const char16_t *from, std::int32_t size,
                   const char *locale, UErrorCode *status) {
    return u_strToLower(to, room, from, size, locale, status);
}

std::int32_t upper(char16_t *to, std::int32_t room, const char16_t *from, std::int32_t size,
                   const char *locale, UErrorCode *status) {
    return u_strToUpper(to, room, from, size, locale, status);
}

std::int32_t titled(char16_t *to, std::int32_t room, const char16_t *from, std::int32_t size,
                    const char *locale, UErrorCode *status) {
    return u_strToTitle(to, room, from, size, breakIterator(UBRK_WORD, locale), locale, status);
}

// The mapping of a unit that does not depend on its neighbours, or `special` where it does.
constexpr char16_t special = 0xFFFF;

template <Mapping mapping>
char16_t mappedAlone(char16_t unit) {
    constexpr char16_t capitalSigma = u'\u03A3'; // its neighbours say which small sigma it becomes
    if (U16_IS_SURROGATE(unit) || (mapping != upper && unit == capitalSigma)) {
        return special;
    }
    const std::u16string result = mapped(std::u16string_view(&unit, 1), "", mapping);
    return result.size() == 1 ? result.front() : special;
}

UnitPages<char16_t, mappedAlone<lower>> lowerCase;
UnitPages<char16_t, mappedAlone<upper>> upperCase;
UnitPages<char16_t, mappedAlone<titled>> titleCase;

// Units whose title or lower case depends on nothing but whether a word begins with them.
bool computedPlainInTitles(char16_t unit) {
    const WordClass wordClassOfUnit = wordClass(unit);
    if (wordClassOfUnit == WordClass::Ask || mappedAlone<titled>(unit) == special ||
        mappedAlone<lower>(unit) == special) {
        return false;
    }
    // ICU skips signs at the beginning of a word and gives the first letter behind them title case.
    constexpr std::uint32_t taken =
        (U_GC_L_MASK & ~U_GC_LM_MASK) | U_GC_N_MASK | U_GC_S_MASK | U_GC_CO_MASK;
    const bool inWords =
        wordClassOfUnit == WordClass::Letter || wordClassOfUnit == WordClass::Digit;
    return !inWords || (U_GET_GC_MASK(unit) & taken) != 0;
}

UnitPages<bool, computedPlainInTitles> plainInTitles;

// Languages with letters of their own rules: the dotless i, accents that stay, "ij".
bool hasMappingsOfItsOwn(std::string_view locale, std::initializer_list<std::string_view> others) {
    const std::string_view language = locale.substr(0, locale.find_first_of("_-@"));
    constexpr std::string_view languages[] = {"tr", "tur", "az", "aze", "lt", "lit"};
    return std::ranges::find(languages, language) != std::end(languages) ||
           std::ranges::find(others, language) != others.end();
}

// ASCII letters of the range that begins at `first` have their case flipped.
NERLO_CLONES void flipCase(char16_t *units, char16_t first) {
    for (std::size_t i = 0; i < scanBlock; ++i) {
        const auto distance = static_cast<char16_t>(units[i] - first);
        units[i] = static_cast<char16_t>(units[i] ^ (distance < 26 ? 0x20 : 0));
    }
}

// A text whose parts are replaced from front to back, in its own memory for as long as no part
// changes its length.
class Rewriting {
  public:
    explicit Rewriting(std::u16string text)
        : text_(std::move(text)) {}

    char16_t *data() { return text_.data(); }
    std::size_t size() const { return text_.size(); }
    std::u16string_view view() const { return text_; }

    // Parts must be given in order: none before the part that was replaced last.
    void replace(std::size_t begin, std::size_t end, std::u16string_view with) {
        if (with.size() == end - begin) {
            std::ranges::copy(with, text_.begin() + static_cast<std::ptrdiff_t>(begin));
            return;
        }
        if (copied_ == 0) {
            result_.reserve(text_.size() + text_.size() / 64 + with.size());
        }
        result_.append(text_, copied_, begin - copied_).append(with);
        copied_ = end;
        moved_ = true;
    }

    std::u16string take() {
        if (!moved_) {
            return std::move(text_);
        }
        result_.append(text_, copied_);
        return std::move(result_);
    }

  private:
    std::u16string text_;
    std::u16string result_; // what stands before copied_, once a part has changed its length
    std::size_t copied_ = 0;
    bool moved_ = false;
};

std::size_t tokenBegin(std::u16string_view text, std::size_t at) {
    while (at > 0 && !isBlank(text[at - 1])) {
        --at;
    }
    return at;
}

std::size_t tokenEnd(std::u16string_view text, std::size_t at) {
    while (at < text.size() && !isBlank(text[at])) {
        ++at;
    }
    return at;
}

// Most texts are of letters whose cases lie a fixed distance apart, and of scripts without case.
// Maps a block of nothing else; false for any other block, which stays as it was.
inline __attribute__((always_inline)) bool mapCommon(char16_t *units, bool up) {
    const auto in = [](char16_t unit, char16_t first, char16_t last) {
        return static_cast<unsigned>(static_cast<char16_t>(unit - first) <= last - first);
    };
    char16_t mapped[scanBlock];
    unsigned others = 0;
    for (std::size_t i = 0; i < scanBlock; ++i) {
        const char16_t unit = units[i];
        // What has case is asked for by the letters of the case that goes.
        const auto by32 = up ? in(unit, u'a', u'z') |
                                   (in(unit, 0xE0, 0xFE) & static_cast<unsigned>(unit != 0xF7)) |
                                   in(unit, 0x430, 0x44F)
                             : in(unit, u'A', u'Z') |
                                   (in(unit, 0xC0, 0xDE) & static_cast<unsigned>(unit != 0xD7)) |
                                   in(unit, 0x410, 0x42F);
        const auto by80 = up ? in(unit, 0x450, 0x45F) : in(unit, 0x400, 0x40F);
        const unsigned distance = by32 * 32 + by80 * 80;
        mapped[i] = static_cast<char16_t>(up ? unit - distance : unit + distance);
        const unsigned common = in(unit, 0, 0xFF) | in(unit, 0x400, 0x45F) |
                                in(unit, 0x590, 0x109F) | in(unit, 0x2000, 0x206F) |
                                in(unit, 0x2E80, 0xA63F) | in(unit, 0xAC00, 0xD7FF);
        const unsigned odd =
            up ? in(unit, 0xB5, 0xB5) | in(unit, 0xDF, 0xDF) | in(unit, 0xFF, 0xFF) : 0;
        others |= (common ^ 1) | odd;
    }
    if (others != 0) {
        return false;
    }
    std::copy_n(mapped, scanBlock, units);
    return true;
}

NERLO_CLONES bool lowerCommon(char16_t *units) {
    return mapCommon(units, false);
}

NERLO_CLONES bool upperCommon(char16_t *units) {
    return mapCommon(units, true);
}

// Maps unit by unit. A unit whose mapping depends on its neighbours hands its whole token to ICU:
// no mapping looks past a blank, and mapping what is already mapped changes nothing.
template <class Pages>
std::u16string mapUnits(std::u16string input, const std::string &locale, Pages &pages,
                        Mapping mapping, UChar32 (*simple)(UChar32),
                        bool (*mapCommonBlock)(char16_t *units)) {
    Rewriting text(std::move(input));
    char16_t *const units = text.data();
    const std::size_t size = text.size();
    for (std::size_t at = 0; at < size;) {
        if (size - at >= scanBlock && mapCommonBlock(units + at)) {
            at += scanBlock;
            continue;
        }
        for (const std::size_t end = std::min(at + scanBlock, size); at < end;) {
            const char16_t unit = pages[units[at]];
            if (unit != special) {
                units[at++] = unit;
                continue;
            }
            if (U16_IS_LEAD(units[at]) && at + 1 < size && U16_IS_TRAIL(units[at + 1])) {
                const UChar32 character = simple(U16_GET_SUPPLEMENTARY(units[at], units[at + 1]));
                units[at++] = U16_LEAD(character);
                units[at++] = U16_TRAIL(character);
                continue;
            }
            if (U16_IS_SURROGATE(units[at])) {
                ++at;
                continue;
            }
            const std::size_t begin = tokenBegin(text.view(), at);
            at = tokenEnd(text.view(), at);
            text.replace(begin, at, mapped(text.view().substr(begin, at - begin), locale, mapping));
        }
    }
    return text.take();
}

} // namespace

std::u16string toLowercase(std::u16string text, const std::string &locale) {
    if (hasMappingsOfItsOwn(locale, {})) {
        return mapped(text, locale, lower);
    }
    return mapUnits(std::move(text), locale, lowerCase, lower, u_tolower, lowerCommon);
}

std::u16string toUppercase(std::u16string text, const std::string &locale) {
    if (hasMappingsOfItsOwn(locale, {"el", "ell"})) {
        return mapped(text, locale, upper);
    }
    return mapUnits(std::move(text), locale, upperCase, upper, u_toupper, upperCommon);
}

namespace {

// Title case, token by token: a token that is all letters, digits and what may stand between them
// is done here, any other by ICU.
class Titling {
  public:
    Titling(std::u16string input, const std::string &locale)
        : text_(std::move(input))
        , locale_(locale) {}

    std::u16string run() {
        for (std::size_t at = 0; at < text_.size();) {
            AsciiWordBits bits;
            if (text_.size() - at >= scanBlock && scanAsciiWords(text_.data() + at, bits)) {
                // If the rest of the token turns out to need ICU, the whole token is mapped again.
                // Letters that are mapped here already do not disturb that.
                char16_t *const units = text_.data() + at;
                flipCase(units, u'A');
                for (std::uint64_t begins = words_.add(bits) & bits.letters; begins != 0;
                     begins &= begins - 1) {
                    units[std::countr_zero(begins)] ^= 0x20;
                }
                at += scanBlock;
                continue;
            }
            const std::size_t blockEnd = std::min(at + scanBlock, text_.size());
            do {
                at = title(at);
            } while (at < blockEnd);
        }
        return text_.take();
    }

  private:
    // Does the rest of the token at `at`, and the blanks behind it.
    std::size_t title(std::size_t at) {
        const std::u16string_view text = text_.view();
        std::size_t end = tokenEnd(text, at);
        if (isPlain(at, end)) {
            char16_t *const units = text_.data();
            for (; at < end; ++at) {
                const bool begins = words_.add(wordClass(units[at]));
                units[at] = begins ? titleCase[units[at]] : lowerCase[units[at]];
            }
        } else {
            // Tokens behind it that need ICU as well are taken along, as a call costs more than a
            // token.
            for (;;) {
                const std::size_t next = blanksEnd(end);
                const std::size_t nextEnd = tokenEnd(text, next);
                if (next == nextEnd || isPlain(next, nextEnd)) {
                    break;
                }
                end = nextEnd;
            }
            const std::size_t begin = tokenBegin(text, at);
            text_.replace(begin, end, mapped(text.substr(begin, end - begin), locale_, titled));
        }
        if (end < text.size()) {
            words_.reset(); // behind a blank
        }
        return blanksEnd(end);
    }

    std::size_t blanksEnd(std::size_t at) const {
        while (at < text_.size() && isBlank(text_.view()[at])) {
            ++at;
        }
        return at;
    }

    bool isPlain(std::size_t begin, std::size_t end) const {
        return std::ranges::all_of(text_.view().substr(begin, end - begin),
                                   [](char16_t unit) { return plainInTitles[unit]; });
    }

    Rewriting text_;
    const std::string &locale_;
    WordBegins words_;
};

} // namespace

std::u16string toTitlecase(std::u16string text, const std::string &locale) {
    if (hasMappingsOfItsOwn(locale, {"nl", "nld"}) || !hasRootWordRules(locale)) {
        return mapped(text, locale, titled);
    }
    return Titling(std::move(text), locale).run();
}

namespace {

// Full mapping of one unit in the root locale.
std::u16string fullMapping(char16_t unit, Mapping mapping) {
    return mapped(std::u16string_view(&unit, 1), "", mapping);
}

LetterCase computedCase(char16_t unit) {
    const bool upperIsItself = fullMapping(unit, upper) == std::u16string_view(&unit, 1);
    const bool lowerIsItself = fullMapping(unit, lower) == std::u16string_view(&unit, 1);
    if (!upperIsItself) {
        return LetterCase::Other;
    }
    return lowerIsItself ? LetterCase::Caseless : LetterCase::Upper;
}

UnitPages<LetterCase, computedCase> letterCases;

} // namespace

LetterCase letterCase(char16_t unit) {
    if (unit < 0x80) { // ASCII needs no table, and so no call of ICU
        if (unit >= u'A' && unit <= u'Z') {
            return LetterCase::Upper;
        }
        return unit >= u'a' && unit <= u'z' ? LetterCase::Other : LetterCase::Caseless;
    }
    return letterCases[unit];
}

bool isCaseNeutral(char16_t unit) {
    return !U16_IS_SURROGATE(unit) && u_hasBinaryProperty(unit, UCHAR_CASED) == 0 &&
           u_hasBinaryProperty(unit, UCHAR_CASE_IGNORABLE) == 0 && u_getCombiningClass(unit) == 0;
}

} // namespace nerlo::text

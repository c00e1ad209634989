#include "text/UtfVectors.h"

#if defined(__x86_64__) && defined(__GNUC__)

#include <array>
#include <bit>
#include <cstdint>

#include <immintrin.h>

#define NERLO_AVX2 __attribute__((target("avx2,bmi,popcnt")))

namespace nerlo::text {

namespace {

using Shuffle = std::array<std::uint8_t, 16>;

constexpr std::uint8_t nothing = 0x80; // a shuffle puts zero there

// For each set of eight units: those of them side by side.
constexpr auto keptUnits = [] {
    std::array<Shuffle, 256> shuffles{};
    for (std::size_t set = 0; set < 256; ++set) {
        std::size_t to = 0;
        for (std::size_t unit = 0; unit < 8; ++unit) {
            if ((set >> unit & 1) != 0) {
                shuffles[set][to++] = static_cast<std::uint8_t>(2 * unit);
                shuffles[set][to++] = static_cast<std::uint8_t>(2 * unit + 1);
            }
        }
        while (to < 16) {
            shuffles[set][to++] = nothing;
        }
    }
    return shuffles;
}();

// For four characters in three bytes and one that is not used: the last one, two or three of each
// side by side. The lower half of the index says which have more than one, the upper which three.
struct Packing {
    Shuffle shuffle{};
    std::uint8_t size = 0;
};
constexpr auto packings = [] {
    std::array<Packing, 256> all{};
    for (std::size_t index = 0; index < 256; ++index) {
        Packing &packing = all[index];
        std::size_t to = 0;
        for (std::size_t character = 0; character < 4; ++character) {
            const std::size_t size = 1 + (index >> character & 1) + (index >> (character + 4) & 1);
            for (std::size_t byte = 3 - size; byte < 3; ++byte) {
                packing.shuffle[to++] = static_cast<std::uint8_t>(4 * character + byte);
            }
        }
        packing.size = static_cast<std::uint8_t>(to);
        while (to < 16) {
            packing.shuffle[to++] = nothing;
        }
    }
    return all;
}();

// What may be wrong with two bytes side by side, as far as half a byte tells; it is wrong if all
// three halves that are looked at say so.
enum Wrong : std::uint8_t {
    tooShort = 1 << 0,  // a lead that no trail follows
    tooLong = 1 << 1,   // a trail behind ASCII
    overlong3 = 1 << 2, // E0 80..9F
    tooLarge = 1 << 3,  // F4 90.., F5 and more
    surrogate = 1 << 4, // ED A0..BF
    overlong2 = 1 << 5, // C0, C1
    beyond4 = 1 << 6,   // F0 80..8F, and F5 and more with 80..8F
    twoTrails = 1 << 7, // right only as the third or fourth byte
};
constexpr std::uint8_t anyTrail = tooShort | tooLong | twoTrails;

alignas(16) constexpr std::uint8_t firstHigh[16] = {tooLong,
                                                    tooLong,
                                                    tooLong,
                                                    tooLong,
                                                    tooLong,
                                                    tooLong,
                                                    tooLong,
                                                    tooLong,
                                                    twoTrails,
                                                    twoTrails,
                                                    twoTrails,
                                                    twoTrails,
                                                    tooShort | overlong2,
                                                    tooShort,
                                                    tooShort | overlong3 | surrogate,
                                                    tooShort | tooLarge | beyond4};
alignas(16) constexpr std::uint8_t firstLow[16] = {anyTrail | overlong3 | overlong2 | beyond4,
                                                   anyTrail | overlong2,
                                                   anyTrail,
                                                   anyTrail,
                                                   anyTrail | tooLarge,
                                                   anyTrail | tooLarge | beyond4,
                                                   anyTrail | tooLarge | beyond4,
                                                   anyTrail | tooLarge | beyond4,
                                                   anyTrail | tooLarge | beyond4,
                                                   anyTrail | tooLarge | beyond4,
                                                   anyTrail | tooLarge | beyond4,
                                                   anyTrail | tooLarge | beyond4,
                                                   anyTrail | tooLarge | beyond4,
                                                   anyTrail | tooLarge | beyond4 | surrogate,
                                                   anyTrail | tooLarge | beyond4,
                                                   anyTrail | tooLarge | beyond4};
constexpr std::uint8_t trail = tooLong | overlong2 | twoTrails;
alignas(16) constexpr std::uint8_t secondHigh[16] = {tooShort,
                                                     tooShort,
                                                     tooShort,
                                                     tooShort,
                                                     tooShort,
                                                     tooShort,
                                                     tooShort,
                                                     tooShort,
                                                     trail | overlong3 | beyond4,
                                                     trail | overlong3 | tooLarge,
                                                     trail | surrogate | tooLarge,
                                                     trail | surrogate | tooLarge,
                                                     tooShort,
                                                     tooShort,
                                                     tooShort,
                                                     tooShort};

NERLO_AVX2 inline __m256i load(const char *at) {
    return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(at));
}

NERLO_AVX2 inline __m128i loadHalf(const char *at) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i *>(at));
}

NERLO_AVX2 inline __m256i table(const std::uint8_t *values) {
    return _mm256_broadcastsi128_si256(_mm_load_si128(reinterpret_cast<const __m128i *>(values)));
}

NERLO_AVX2 inline __m256i highHalves(__m256i bytes) {
    return _mm256_and_si256(_mm256_srli_epi16(bytes, 4), _mm256_set1_epi8(0x0F));
}

// Whether the 32 bytes go on well from the three before them.
NERLO_AVX2 inline bool goesOnWell(const char *at) {
    const __m256i bytes = load(at);
    const __m256i before = load(at - 1);
    const __m256i low = _mm256_and_si256(before, _mm256_set1_epi8(0x0F));
    const __m256i wrong =
        _mm256_and_si256(_mm256_and_si256(_mm256_shuffle_epi8(table(firstHigh), highHalves(before)),
                                          _mm256_shuffle_epi8(table(firstLow), low)),
                         _mm256_shuffle_epi8(table(secondHigh), highHalves(bytes)));
    // Third and fourth bytes have their highest bit set here: just there two trails are right.
    const __m256i third = _mm256_subs_epu8(load(at - 2), _mm256_set1_epi8(0xE0 - 0x80));
    const __m256i fourth = _mm256_subs_epu8(load(at - 3), _mm256_set1_epi8(0xF0 - 0x80));
    const __m256i later =
        _mm256_and_si256(_mm256_or_si256(third, fourth), _mm256_set1_epi8(static_cast<char>(0x80)));
    const __m256i bad = _mm256_xor_si256(later, wrong);
    return _mm256_testz_si256(bad, bad) != 0;
}

bool isTrail(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

char16_t *decodeOneWellFormed(const char *&at, char16_t *to) {
    const auto byte = [&](std::size_t i) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(at[i]));
    };
    const std::uint32_t lead = byte(0);
    if (lead < 0x80) {
        *to++ = static_cast<char16_t>(lead);
        at += 1;
    } else if (lead < 0xE0) {
        *to++ = static_cast<char16_t>((lead & 0x1F) << 6 | (byte(1) & 0x3F));
        at += 2;
    } else if (lead < 0xF0) {
        *to++ =
            static_cast<char16_t>((lead & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F));
        at += 3;
    } else {
        const std::uint32_t character =
            (lead & 0x07) << 18 | (byte(1) & 0x3F) << 12 | (byte(2) & 0x3F) << 6 | (byte(3) & 0x3F);
        *to++ = static_cast<char16_t>(0xD7C0 + (character >> 10));
        *to++ = static_cast<char16_t>(0xDC00 + (character & 0x3FF));
        at += 4;
    }
    return to;
}

NERLO_AVX2 inline char16_t *keep(__m128i units, std::uint32_t set, char16_t *to) {
    const __m128i shuffle =
        _mm_loadu_si128(reinterpret_cast<const __m128i *>(keptUnits[set].data()));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(to), _mm_shuffle_epi8(units, shuffle));
    return to + std::popcount(set);
}

// The characters of one to three bytes that begin in 16 bytes, of which two more are there.
NERLO_AVX2 inline char16_t *decodeSixteen(const char *at, __m128i bytes, char16_t *to) {
    const __m256i first = _mm256_cvtepu8_epi16(bytes);
    const __m256i low = _mm256_set1_epi16(0x3F);
    const __m256i second = _mm256_and_si256(_mm256_cvtepu8_epi16(loadHalf(at + 1)), low);
    const __m256i third = _mm256_and_si256(_mm256_cvtepu8_epi16(loadHalf(at + 2)), low);
    const __m256i two = _mm256_or_si256(_mm256_slli_epi16(first, 6), second);
    const __m256i three = _mm256_or_si256(_mm256_slli_epi16(two, 6), third);
    const __m256i isTwo = _mm256_cmpgt_epi16(first, _mm256_set1_epi16(0xBF));
    const __m256i isThree = _mm256_cmpgt_epi16(first, _mm256_set1_epi16(0xDF));
    __m256i units =
        _mm256_blendv_epi8(first, _mm256_and_si256(two, _mm256_set1_epi16(0x7FF)), isTwo);
    units = _mm256_blendv_epi8(units, three, isThree);
    const auto begins = static_cast<std::uint32_t>(
        _mm_movemask_epi8(_mm_cmpgt_epi8(bytes, _mm_set1_epi8(static_cast<char>(0xBF)))));
    to = keep(_mm256_castsi256_si128(units), begins & 0xFF, to);
    return keep(_mm256_extracti128_si256(units, 1), begins >> 8, to);
}

NERLO_AVX2 inline char *pack(__m128i characters, std::uint32_t lengths, char *to) {
    const Packing &packing = packings[lengths];
    const __m128i shuffle =
        _mm_loadu_si128(reinterpret_cast<const __m128i *>(packing.shuffle.data()));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(to), _mm_shuffle_epi8(characters, shuffle));
    return to + packing.size;
}

// Eight units that are no surrogates.
NERLO_AVX2 inline char *encodeEight(__m128i units, char *to) {
    const __m256i wide = _mm256_cvtepu16_epi32(units);
    const __m256i isMore = _mm256_cmpgt_epi32(wide, _mm256_set1_epi32(0x7F));
    const __m256i isThree = _mm256_cmpgt_epi32(wide, _mm256_set1_epi32(0x7FF));
    const __m256i low = _mm256_set1_epi32(0x3F);
    const __m256i first = _mm256_or_si256(_mm256_srli_epi32(wide, 12), _mm256_set1_epi32(0xE0));
    const __m256i second = _mm256_or_si256(
        _mm256_and_si256(_mm256_srli_epi32(wide, 6), low),
        _mm256_blendv_epi8(_mm256_set1_epi32(0xC0), _mm256_set1_epi32(0x80), isThree));
    const __m256i third = _mm256_blendv_epi8(
        wide, _mm256_or_si256(_mm256_and_si256(wide, low), _mm256_set1_epi32(0x80)), isMore);
    const __m256i characters = _mm256_or_si256(
        first, _mm256_or_si256(_mm256_slli_epi32(second, 8), _mm256_slli_epi32(third, 16)));
    const auto more = static_cast<std::uint32_t>(_mm256_movemask_ps(_mm256_castsi256_ps(isMore)));
    const auto three = static_cast<std::uint32_t>(_mm256_movemask_ps(_mm256_castsi256_ps(isThree)));
    to = pack(_mm256_castsi256_si128(characters), (more & 0xF) | (three & 0xF) << 4, to);
    return pack(_mm256_extracti128_si256(characters, 1), more >> 4 | (three & 0xF0), to);
}

NERLO_AVX2 inline void encodeAscii(const char16_t *&at, const char16_t *end, char *&to,
                                   const char *full) {
    constexpr std::ptrdiff_t block = 32;
    for (; end - at >= block && full - to >= block; at += block, to += block) {
        const __m256i first = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(at));
        const __m256i second = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(at + 16));
        if (_mm256_testz_si256(_mm256_or_si256(first, second),
                               _mm256_set1_epi16(static_cast<short>(0xFF80))) == 0) {
            return;
        }
        // Packing works on each half of a register by itself, and so leaves the quarters mixed.
        const __m256i packed =
            _mm256_permute4x64_epi64(_mm256_packus_epi16(first, second), 0b11'01'10'00);
        _mm256_storeu_si256(reinterpret_cast<__m256i *>(to), packed);
    }
}

} // namespace

bool hasUtfVectors() {
    static const bool has = __builtin_cpu_supports("avx2") != 0 &&
                            __builtin_cpu_supports("bmi") != 0 &&
                            __builtin_cpu_supports("popcnt") != 0;
    return has;
}

NERLO_AVX2 std::size_t checkUtf8Vectors(std::string_view bytes) {
    constexpr std::size_t block = 32;
    constexpr std::size_t before = 3; // bytes that a block looks back at
    const char *const begin = bytes.data();
    // Nothing is known of what stands before the first block: it is looked at with blanks.
    char head[block + before] = {' ', ' ', ' '};
    if (bytes.size() < block) {
        return 0;
    }
    bytes.copy(head + before, block);
    if (!goesOnWell(head + before)) {
        return 0;
    }
    std::size_t at = block;
    const auto isAscii = [begin](std::size_t from) NERLO_AVX2 {
        return _mm256_movemask_epi8(
                   _mm256_or_si256(load(begin + from), load(begin + from - before))) == 0;
    };
    while (at + block <= bytes.size() && (isAscii(at) || goesOnWell(begin + at))) {
        at += block;
    }
    return at;
}

NERLO_AVX2 std::size_t decodeUtf8Vectors(std::string_view bytes, char16_t *to) {
    constexpr std::ptrdiff_t block = 16;
    const char *at = bytes.data();
    const char *const end = at + bytes.size();
    const char16_t *const begin = to;
    while (end - at >= block + 2) {
        const __m128i sixteen = loadHalf(at);
        if (_mm_movemask_epi8(sixteen) == 0) {
            const __m256i units = _mm256_cvtepu8_epi16(sixteen);
            _mm256_storeu_si256(reinterpret_cast<__m256i *>(to), units);
            to += block;
            at += block;
            continue;
        }
        const __m128i four = _mm_subs_epu8(sixteen, _mm_set1_epi8(static_cast<char>(0xEF)));
        if (_mm_testz_si128(four, four) != 0) {
            to = decodeSixteen(at, sixteen, to);
            at += block;
            continue;
        }
        // A character of four bytes. What the block begins with may be the end of one done before.
        const char *const next = at + block;
        while (at < next && isTrail(*at)) {
            ++at;
        }
        while (at < next) {
            to = decodeOneWellFormed(at, to);
        }
    }
    while (at < end && isTrail(*at)) {
        ++at;
    }
    while (at < end) {
        to = decodeOneWellFormed(at, to);
    }
    return static_cast<std::size_t>(to - begin);
}

NERLO_AVX2 void encodeUtf8Vectors(const char16_t *&at, const char16_t *end, char *&to,
                                  const char *full) {
    constexpr std::ptrdiff_t block = 8;
    constexpr std::ptrdiff_t mostBytes = 3 * block + 4;
    while (end - at >= block && full - to >= mostBytes) {
        const __m128i units = _mm_loadu_si128(reinterpret_cast<const __m128i *>(at));
        const __m128i high = _mm_and_si128(units, _mm_set1_epi16(static_cast<short>(0xF800)));
        const __m128i surrogates =
            _mm_cmpeq_epi16(high, _mm_set1_epi16(static_cast<short>(0xD800)));
        if (_mm_testz_si128(surrogates, surrogates) == 0) {
            return;
        }
        if (_mm_testz_si128(units, _mm_set1_epi16(static_cast<short>(0xFF80))) != 0) {
            _mm_storel_epi64(reinterpret_cast<__m128i *>(to), _mm_packus_epi16(units, units));
            to += block;
            at += block;
            encodeAscii(at, end, to, full);
            continue;
        }
        to = encodeEight(units, to);
        at += block;
    }
}

} // namespace nerlo::text

#else

namespace nerlo::text {

bool hasUtfVectors() {
    return false;
}

std::size_t checkUtf8Vectors(std::string_view) {
    return 0;
}

std::size_t decodeUtf8Vectors(std::string_view, char16_t *) {
    return 0;
}

void encodeUtf8Vectors(const char16_t *&, const char16_t *, char *&, const char *) {}

} // namespace nerlo::text

#endif

#include "text/UnitClasses.h"

#include <cstring>

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#define NERLO_AVX2 __attribute__((target("avx2")))
#endif

namespace nerlo::text {

namespace {

ClassMasks scanEach(const char16_t *units, const UnitClasses &classes) {
    ClassMasks masks{};
    for (std::size_t which = 0; which < masks.size(); ++which) {
        const UnitSet &set = classes.set(which);
        masks[which] = set.begin() == set.end() ? 0 : scanUnits(units, set);
    }
    return masks;
}

#ifdef NERLO_AVX2

void addBeyond(ClassMasks &masks, const char16_t *units, const UnitClasses &classes) {
    for (std::size_t which = 0; which < masks.size(); ++which) {
        const UnitSet &set = classes.beyond(which);
        masks[which] |= set.begin() == set.end() ? 0 : scanUnits(units, set);
    }
}

// The classes of 32 units of ASCII, a byte each; 0 for others, whose bytes have the top bit set.
// Looks in each row of sixteen: only in the one that the unit belongs to, the index has a top bit
// of 0.
NERLO_AVX2 __m256i classesOf(__m256i bytes, const std::array<std::uint8_t, 128> &ascii) {
    __m256i found = _mm256_setzero_si256();
    for (std::size_t row = 0; row < 8; ++row) {
        __m128i table;
        std::memcpy(&table, ascii.data() + 16 * row, sizeof table);
        const __m256i index =
            _mm256_adds_epu8(_mm256_xor_si256(bytes, _mm256_set1_epi8(static_cast<char>(16 * row))),
                             _mm256_set1_epi8(0x70));
        found =
            _mm256_or_si256(found, _mm256_shuffle_epi8(_mm256_broadcastsi128_si256(table), index));
    }
    return found;
}

// Units above 0xFF become 0xFF.
NERLO_AVX2 __m256i narrow(const char16_t *units) {
    __m256i low;
    __m256i high;
    std::memcpy(&low, units, sizeof low);
    std::memcpy(&high, units + 16, sizeof high);
    const __m256i top = _mm256_set1_epi16(0xFF);
    const __m256i packed =
        _mm256_packus_epi16(_mm256_min_epu16(low, top), _mm256_min_epu16(high, top));
    return _mm256_permute4x64_epi64(packed, 0xD8); // packing goes by halves
}

NERLO_AVX2 std::uint64_t topBits(__m256i low, __m256i high) {
    return static_cast<std::uint32_t>(_mm256_movemask_epi8(low)) |
           static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm256_movemask_epi8(high))) << 32;
}

NERLO_AVX2 ClassMasks scanRows(const char16_t *units, const UnitClasses &classes) {
    const __m256i low = narrow(units);
    const __m256i high = narrow(units + 32);
    __m256i lowClasses = classesOf(low, classes.ascii());
    __m256i highClasses = classesOf(high, classes.ascii());
    ClassMasks masks;
    for (std::size_t which = masks.size(); which-- > 0;) {
        masks[which] = topBits(lowClasses, highClasses);
        lowClasses = _mm256_add_epi8(lowClasses, lowClasses);
        highClasses = _mm256_add_epi8(highClasses, highClasses);
    }
    if (topBits(low, high) != 0) {
        addBeyond(masks, units, classes);
    }
    return masks;
}

// The same with one look at the whole table.
__attribute__((target("avx512bw,avx512vbmi"))) ClassMasks scanTable(const char16_t *units,
                                                                    const UnitClasses &classes) {
    __m512i low;
    __m512i high;
    std::memcpy(&low, units, sizeof low);
    std::memcpy(&high, units + 32, sizeof high);
    const __m512i top = _mm512_set1_epi16(0xFF);
    const __m512i packed =
        _mm512_packus_epi16(_mm512_min_epu16(low, top), _mm512_min_epu16(high, top));
    const __m512i order = _mm512_set_epi64(7, 5, 3, 1, 6, 4, 2, 0); // packing goes by quarters
    const __m512i bytes = _mm512_maskz_permutexvar_epi64(0xFF, order, packed);
    const std::uint64_t beyond = _mm512_movepi8_mask(bytes);
    __m512i first;
    __m512i second;
    std::memcpy(&first, classes.ascii().data(), sizeof first);
    std::memcpy(&second, classes.ascii().data() + 64, sizeof second);
    const __m512i found = _mm512_permutex2var_epi8(first, bytes, second);
    ClassMasks masks;
    for (std::size_t which = 0; which < masks.size(); ++which) {
        masks[which] =
            _mm512_test_epi8_mask(found, _mm512_set1_epi8(static_cast<char>(1u << which))) &
            ~beyond;
    }
    if (beyond != 0) {
        addBeyond(masks, units, classes);
    }
    return masks;
}

#endif

} // namespace

ClassMasks scanClasses(const char16_t *units, const UnitClasses &classes) {
#ifdef NERLO_AVX2
    static const auto scan = __builtin_cpu_supports("avx512vbmi") ? scanTable
                             : __builtin_cpu_supports("avx2")     ? scanRows
                                                                  : scanEach;
    return scan(units, classes);
#else
    return scanEach(units, classes);
#endif
}

ClassMasks scanTailClasses(const char16_t *units, std::size_t count, const UnitClasses &classes) {
    char16_t block[scanBlock] = {};
    std::memcpy(block, units, count * sizeof *units);
    ClassMasks masks = scanClasses(block, classes);
    for (std::uint64_t &mask : masks) {
        mask &= count < scanBlock ? (std::uint64_t{1} << count) - 1 : ~std::uint64_t{0};
    }
    return masks;
}

} // namespace nerlo::text

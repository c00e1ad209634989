#include "text/Variations.h"

#include "text/VariationTable.h"

#include <unicode/uchar.h>
#include <unicode/unorm2.h>

#include <algorithm>
#include <vector>

namespace nerlo::text {

namespace {

constexpr char32_t firstSelector = U'\uFE00';
constexpr char32_t firstIdeographicSelector = U'\U000E0100';

// The ideographs that compatibility ideographs stand for, each as often as there are of these.
std::vector<char32_t> unifiedIdeographs() {
    std::vector<char32_t> bases;
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2 *const canonical = unorm2_getNFCInstance(&error);
    if (U_FAILURE(error)) {
        return bases;
    }
    const auto addAll = [&](UChar32 first, UChar32 last) {
        for (UChar32 character = first; character <= last; ++character) {
            UChar units[4];
            error = U_ZERO_ERROR;
            const int32_t size =
                unorm2_getDecomposition(canonical, character, units, std::size(units), &error);
            if (size > 0 && U_SUCCESS(error)) {
                UChar32 base = 0;
                U16_GET(units, 0, 0, size, base);
                bases.push_back(static_cast<char32_t>(base));
            }
        }
    };
    addAll(0xF900, 0xFAFF);
    addAll(0x2F800, 0x2FA1F);
    std::ranges::sort(bases);
    return bases;
}

// The n-th compatibility ideograph of a base is its variant with the n-th selector.
bool isCompatibilityVariant(char32_t base, char32_t selector) {
    static const std::vector<char32_t> bases = unifiedIdeographs();
    return selector - firstSelector < std::ranges::equal_range(bases, base).size();
}

bool isInTable(char32_t base, char32_t selector) {
    const auto *const row = std::ranges::lower_bound(variationTable, base, {}, &VariationRow::last);
    return row != variationTable.end() && base >= row->first &&
           (row->selectors >> (selector - firstSelector) & 1) != 0;
}

} // namespace

bool isVariationSelector(char32_t character) {
    return (character >= firstSelector && character <= U'\uFE0F') ||
           (character >= firstIdeographicSelector && character <= U'\U000E01EF');
}

bool isVariationSequence(char32_t base, char32_t selector) {
    if (!isVariationSelector(selector)) {
        return false;
    }
    const bool ideograph =
        u_hasBinaryProperty(static_cast<UChar32>(base), UCHAR_UNIFIED_IDEOGRAPH) != 0;
    if (selector >= firstIdeographicSelector) {
        return ideograph;
    }
    return isInTable(base, selector) || (ideograph && isCompatibilityVariant(base, selector));
}

} // namespace nerlo::text

#include "text/UnitScan.h"

#include "text/Simd.h"

#include <cstring>

namespace nerlo::text {

NERLO_CLONES std::uint64_t scanUnits(const char16_t *units, const UnitSet &set) {
    std::uint16_t flags[scanBlock] = {};
    for (const UnitSet::UnitRange range : set) {
        const auto first = static_cast<std::uint16_t>(range.first);
        const auto span = static_cast<std::uint16_t>(range.last - range.first);
        for (std::size_t i = 0; i < scanBlock; ++i) {
            const auto distance = static_cast<std::uint16_t>(units[i] - first);
            flags[i] = static_cast<std::uint16_t>(flags[i] | (distance <= span ? 1 : 0));
        }
    }
    std::uint8_t narrow[scanBlock];
    for (std::size_t i = 0; i < scanBlock; ++i) {
        narrow[i] = static_cast<std::uint8_t>(flags[i]);
    }
    return packFlags(narrow);
}

NERLO_CLONES std::uint64_t scanUnit(const char16_t *units, char16_t unit) {
    std::uint8_t flags[scanBlock];
    for (std::size_t i = 0; i < scanBlock; ++i) {
        flags[i] = units[i] == unit ? 1 : 0;
    }
    return packFlags(flags);
}

NERLO_CLONES std::uint64_t scanPairs(const char16_t *units, char16_t unit) {
    std::uint8_t flags[scanBlock];
    for (std::size_t i = 0; i < scanBlock; ++i) {
        flags[i] = ((units[i] ^ unit) | (units[i + 1] ^ unit)) == 0 ? 1 : 0;
    }
    return packFlags(flags);
}

NERLO_CLONES std::uint64_t scanUnits(const char *bytes, const UnitSet &ascii) {
    std::uint8_t flags[scanBlock] = {};
    for (const UnitSet::UnitRange range : ascii) {
        const auto first = static_cast<std::uint8_t>(range.first);
        const auto span = static_cast<std::uint8_t>(range.last - range.first);
        for (std::size_t i = 0; i < scanBlock; ++i) {
            const auto distance = static_cast<std::uint8_t>(bytes[i] - first);
            flags[i] = static_cast<std::uint8_t>(flags[i] | (distance <= span ? 1 : 0));
        }
    }
    return packFlags(flags);
}

NERLO_CLONES std::uint64_t scanUnit(const char *bytes, char byte) {
    std::uint8_t flags[scanBlock];
    for (std::size_t i = 0; i < scanBlock; ++i) {
        flags[i] = bytes[i] == byte ? 1 : 0;
    }
    return packFlags(flags);
}

namespace {

template <class Unit>
std::uint64_t scanLess(const Unit *units, std::size_t count, const UnitSet &set) {
    Unit block[scanBlock] = {};
    std::memcpy(block, units, count * sizeof *units);
    const std::uint64_t mask = scanUnits(block, set);
    return count < scanBlock ? mask & ((std::uint64_t{1} << count) - 1) : mask;
}

} // namespace

std::uint64_t scanTail(const char16_t *units, std::size_t count, const UnitSet &set) {
    return scanLess(units, count, set);
}

std::uint64_t scanTail(const char *bytes, std::size_t count, const UnitSet &ascii) {
    return scanLess(bytes, count, ascii);
}

std::uint64_t scanTailPairs(const char16_t *units, std::size_t count, char16_t unit) {
    char16_t block[scanBlock + 1] = {};
    std::memcpy(block, units, count * sizeof *units);
    return scanPairs(block, unit);
}

std::uint64_t scanEnd(std::u16string_view text, std::size_t from, const UnitSet &set) {
    const std::size_t left = text.size() - from;
    return text.size() < scanBlock
               ? scanTail(text.data() + from, left, set)
               : scanUnits(text.data() + text.size() - scanBlock, set) >> (scanBlock - left);
}

std::size_t findUnit(std::u16string_view text, std::size_t from, const UnitSet &set) {
    for (; from + scanBlock <= text.size(); from += scanBlock) {
        if (const std::uint64_t mask = scanUnits(text.data() + from, set)) {
            return from + static_cast<std::size_t>(std::countr_zero(mask));
        }
    }
    const std::uint64_t mask = from < text.size() ? scanEnd(text, from, set) : 0;
    return mask != 0 ? from + static_cast<std::size_t>(std::countr_zero(mask)) : text.size();
}

std::size_t findUnit(std::u16string_view text, std::size_t from, char16_t unit) {
    for (; from + scanBlock <= text.size(); from += scanBlock) {
        if (const std::uint64_t mask = scanUnit(text.data() + from, unit)) {
            return from + static_cast<std::size_t>(std::countr_zero(mask));
        }
    }
    // Sentences and tags are mostly shorter than a block.
    constexpr std::size_t step = 8;
    for (; from + step <= text.size(); from += step) {
        std::uint16_t found = 0;
        for (std::size_t i = 0; i < step; ++i) {
            found = static_cast<std::uint16_t>(found | (text[from + i] == unit ? 1 : 0));
        }
        if (found != 0) {
            break;
        }
    }
    for (; from < text.size(); ++from) {
        if (text[from] == unit) {
            return from;
        }
    }
    return text.size();
}

NERLO_CLONES std::size_t countUnits(std::u16string_view text, const UnitSet &set) {
    std::size_t count = 0;
    std::size_t at = 0;
    for (; at + scanBlock <= text.size(); at += scanBlock) {
        count += static_cast<std::size_t>(std::popcount(scanUnits(text.data() + at, set)));
    }
    return count + static_cast<std::size_t>(
                       std::popcount(scanTail(text.data() + at, text.size() - at, set)));
}

} // namespace nerlo::text

// NERLO_CLONES before a function compiles it for several instruction sets; which one runs is
// decided once, when the program is loaded. Not under a sanitizer: the function that chooses would
// be instrumented too, and runs before the sanitizer is ready.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) &&                             \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define NERLO_CLONES __attribute__((target_clones("arch=x86-64-v4", "arch=x86-64-v3", "default")))
#else
#define NERLO_CLONES
#endif

namespace nerlo::text {

// Several units are read into one word, where the first has to come out as the lowest: in the other
// order, masks would be mirrored in groups of eight and texts mangled in silence.
static_assert(std::endian::native == std::endian::little,
              "packFlags() and the scans of ASCII read words of a little-endian machine");

// 64 bytes of 0 or 1, to one bit each.
inline std::uint64_t packFlags(const std::uint8_t *flags) {
    std::uint64_t mask = 0;
    for (std::uint64_t group = 0; group < 8; ++group) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, flags + 8 * group, sizeof eight);
        mask |= (eight * 0x0102040810204080u >> 56) << (8 * group);
    }
    return mask;
}

} // namespace nerlo::text

// Telling up to eight classes of code units apart in one look at a text, 64 units at a time.
#pragma once

#include "text/UnitScan.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace nerlo::text {

class UnitClasses {
  public:
    static constexpr std::size_t most = 8;

    // A unit may have several classes. `which` is below `most`.
    constexpr void add(std::size_t which, const UnitSet &set) {
        for (const UnitSet::UnitRange &range : set) {
            sets_.at(which).add(range.first, range.last);
            for (std::size_t unit = range.first; unit <= range.last && unit < ascii_.size();
                 ++unit) {
                ascii_[unit] = static_cast<std::uint8_t>(ascii_[unit] | 1u << which);
            }
            if (range.last >= ascii_.size()) {
                beyond_[which].add(range.first, range.last);
            }
        }
    }

    const UnitSet &set(std::size_t which) const { return sets_[which]; }
    // Those of its ranges that reach beyond ASCII.
    const UnitSet &beyond(std::size_t which) const { return beyond_[which]; }
    // The classes of each unit of ASCII, a bit for each.
    const std::array<std::uint8_t, 128> &ascii() const { return ascii_; }

  private:
    std::array<UnitSet, most> sets_{};
    std::array<UnitSet, most> beyond_{};
    std::array<std::uint8_t, 128> ascii_{};
};

// Bit i of the k-th says whether units[i] has class k.
using ClassMasks = std::array<std::uint64_t, UnitClasses::most>;

// Reads exactly 64 units.
ClassMasks scanClasses(const char16_t *units, const UnitClasses &classes);
// Of the `count` (at most 64) units at `units`.
ClassMasks scanTailClasses(const char16_t *units, std::size_t count, const UnitClasses &classes);

} // namespace nerlo::text

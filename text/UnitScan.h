// Finding code units of a small set, 64 at a time.
//
// The loops are plain C++ that the compiler turns into vector code, once for each instruction set
// worth having; the processor's own is chosen when the program starts.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string_view>

namespace nerlo::text {

// A set of code units, as at most `maxRanges` ranges.
class UnitSet {
  public:
    struct UnitRange {
        char16_t first;
        char16_t last;
    };
    static constexpr std::size_t maxRanges = 24;

    constexpr UnitSet() = default;
    constexpr explicit UnitSet(std::u16string_view units) {
        for (const char16_t unit : units) {
            add(unit, unit);
        }
    }
    constexpr UnitSet(std::initializer_list<UnitRange> ranges) {
        for (const UnitRange &range : ranges) {
            add(range.first, range.last);
        }
    }

    constexpr void add(char16_t first, char16_t last) {
        for (std::size_t at = 0; at < size_; ++at) {
            UnitRange &range = ranges_[at];
            if (first >= range.first && last <= range.last) {
                return;
            }
            if (first == range.last + 1) {
                range.last = last;
                return;
            }
            if (last + 1 == range.first) {
                range.first = first;
                return;
            }
        }
        ranges_.at(size_++) = {first, last};
    }

    constexpr bool isFull() const { return size_ == maxRanges; }

    constexpr bool contains(char16_t unit) const {
        for (std::size_t at = 0; at < size_; ++at) {
            if (unit >= ranges_[at].first && unit <= ranges_[at].last) {
                return true;
            }
        }
        return false;
    }

    constexpr const UnitRange *begin() const { return ranges_.data(); }
    constexpr const UnitRange *end() const { return ranges_.data() + size_; }

  private:
    std::array<UnitRange, maxRanges> ranges_{};
    std::size_t size_ = 0;
};

inline constexpr std::size_t scanBlock = 64;

// Bit i says whether units[i] is in the set. Reads exactly 64 units.
std::uint64_t scanUnits(const char16_t *units, const UnitSet &set);
// The same for a single unit.
std::uint64_t scanUnit(const char16_t *units, char16_t unit);
// Bit i says whether units[i] and units[i + 1] are both `unit`. Reads exactly 65 units.
std::uint64_t scanPairs(const char16_t *units, char16_t unit);

// Whether the texts are the same; the string's own operator looks at one unit after another.
inline bool sameUnits(std::u16string_view a, std::u16string_view b) {
    return a.size() == b.size() &&
           (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t)) == 0);
}

// The mask of the `count` (at most 64) units at `units`.
std::uint64_t scanTail(const char16_t *units, std::size_t count, const UnitSet &set);
// The same for pairs in them; `unit` is not 0.
std::uint64_t scanTailPairs(const char16_t *units, std::size_t count, char16_t unit);

// The mask of the units from `from` on: 1 to 63 of them, or none of an empty text.
std::uint64_t scanEnd(std::u16string_view text, std::size_t from, const UnitSet &set);

// The same for UTF-8 and a set of ASCII.
std::uint64_t scanUnits(const char *bytes, const UnitSet &ascii);
std::uint64_t scanUnit(const char *bytes, char byte);
std::uint64_t scanTail(const char *bytes, std::size_t count, const UnitSet &ascii);

// The position of the first unit of the set at or after `from`, or the text's size.
std::size_t findUnit(std::u16string_view text, std::size_t from, const UnitSet &set);
std::size_t findUnit(std::u16string_view text, std::size_t from, char16_t unit);

std::size_t countUnits(std::u16string_view text, const UnitSet &set);

// Walks the positions of a set in a text in order, keeping the mask of the block at hand.
class UnitCursor {
  public:
    // Both must outlive the cursor. With `pair`, two of that unit in a row are a position too: that
    // of the first.
    UnitCursor(std::u16string_view text, const UnitSet &set, char16_t pair = u'\0')
        : text_(text)
        , set_(set)
        , pair_(pair) {
        load();
    }

    // The next position, or the text's size when there is none.
    std::size_t next() {
        while (mask_ == 0) {
            block_ += scanBlock;
            if (block_ >= text_.size()) {
                return end();
            }
            load();
        }
        const auto bit = static_cast<std::size_t>(std::countr_zero(mask_));
        mask_ &= mask_ - 1;
        return block_ + bit;
    }

    // The next position at or after `from`, which may be before those given already; what is before
    // `from` may have changed.
    std::size_t nextFrom(std::size_t from) {
        if (from < block_ || from >= block_ + scanBlock) {
            if (from >= text_.size()) {
                return end();
            }
            block_ = from / scanBlock * scanBlock;
            load();
        }
        mask_ = all_ & ~std::uint64_t{0} << (from - block_);
        return next();
    }

  private:
    void load() {
        const std::size_t left = text_.size() - block_;
        all_ = left >= scanBlock ? scanUnits(text_.data() + block_, set_)
                                 : scanEnd(text_, block_, set_);
        if (pair_ != u'\0') {
            all_ |= left > scanBlock ? scanPairs(text_.data() + block_, pair_)
                                     : scanTailPairs(text_.data() + block_, left, pair_);
        }
        mask_ = all_;
    }
    std::size_t end() {
        block_ = text_.size();
        all_ = mask_ = 0;
        return block_;
    }

    std::u16string_view text_;
    const UnitSet &set_;
    const char16_t pair_;
    std::size_t block_ = 0;
    std::uint64_t all_ = 0;  // of the block
    std::uint64_t mask_ = 0; // those of its bits that have not been given yet
};

} // namespace nerlo::text

#include "text/Distinct.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <random>
#include <span>
#include <utility>
#include <vector>

namespace nerlo::text {

namespace {

std::uint64_t newKey() {
    std::random_device source;
    return std::uint64_t{source()} << 32 | source();
}

// Both halves of the product of two numbers, folded into one.
std::uint64_t mix(std::uint64_t a, std::uint64_t b) {
    __extension__ using Wide = unsigned __int128;
    const Wide product = static_cast<Wide>(a) * b;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

class Hash {
  public:
    std::uint64_t operator()(std::u16string_view text) const {
        const char *bytes = reinterpret_cast<const char *>(text.data());
        std::size_t left = text.size() * sizeof(char16_t);
        std::uint64_t state = first_ ^ left;
        for (; left >= 16; bytes += 16, left -= 16) {
            state = mix(load(bytes, 8) ^ state, load(bytes + 8, 8) ^ second_);
        }
        const std::size_t head = left < 8 ? left : 8;
        state = mix(load(bytes, head) ^ state, load(bytes + head, left - head) ^ third_);
        return mix(state, third_);
    }

  private:
    static std::uint64_t load(const char *bytes, std::size_t count) {
        std::uint64_t value = 0;
        std::memcpy(&value, bytes, count);
        return value;
    }

    std::uint64_t first_ = newKey();
    std::uint64_t second_ = newKey();
    std::uint64_t third_ = newKey() | 1;
};

// The items that have been seen, in the text that they make, and a table of their places in it.
class Seen {
  public:
    // A look into the table and at the item found there misses the cache each time, so that many
    // are under way together.
    static constexpr std::size_t together = 16;

    explicit Seen(const Items &items)
        : separator_(items.separator())
        , joiner_(items)
        , slots_(256) {}

    // At most `together`.
    void add(std::span<const std::u16string_view> items) {
        if ((count_ + items.size()) * 2 > slots_.size()) {
            grow();
        }
        std::array<std::uint64_t, together> codes;
        for (std::size_t i = 0; i < items.size(); ++i) {
            codes[i] = hash_(items[i]);
            __builtin_prefetch(&slots_[home(codes[i])]);
        }
        for (std::size_t i = 0; i < items.size(); ++i) {
            const std::uint64_t slot = slots_[home(codes[i])];
            if (slot != free && (slot ^ codes[i]) <= placeMask) {
                __builtin_prefetch(joiner_.text().data() + placeIn(slot));
            }
        }
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (remember(items[i], codes[i], joiner_.text().size())) {
                joiner_.add(items[i]);
            }
        }
    }

    std::u16string take() { return joiner_.take(); }

  private:
    // A slot holds the place, counted from 1, and the upper bits of the hash.
    static constexpr std::uint64_t free = 0;
    static constexpr std::uint64_t placeMask = (std::uint64_t{1} << 40) - 1;

    std::size_t home(std::uint64_t code) const { return code & (slots_.size() - 1); }
    static std::size_t placeIn(std::uint64_t slot) { return (slot & placeMask) - 1; }

    bool holds(std::uint64_t slot, std::uint64_t code, std::u16string_view item) const {
        if ((slot ^ code) > placeMask) {
            return false;
        }
        const auto there = std::u16string_view(joiner_.text()).substr(placeIn(slot));
        return there.starts_with(item) && there.substr(item.size()).starts_with(separator_) &&
               // A longer separator may begin within what looks like the item.
               (separator_.size() == 1 || Items(there, separator_).at(0).size() == item.size());
    }

    // False when the item has been seen; else it is to stand at `place`.
    bool remember(std::u16string_view item, std::uint64_t code, std::size_t place) {
        std::size_t at = home(code);
        for (; slots_[at] != free; at = (at + 1) & (slots_.size() - 1)) {
            if (holds(slots_[at], code, item)) {
                return false;
            }
        }
        slots_[at] = (code & ~placeMask) | (place + 1);
        ++count_;
        return true;
    }

    // The hashes are made again, in the order of the text: to keep them would double the table.
    void grow() {
        const std::size_t size = slots_.size() * 2;
        std::vector<std::uint64_t>().swap(slots_);
        slots_.resize(size);
        std::u16string_view text = joiner_.text();
        if (std::exchange(count_, 0) != 0) {
            text.remove_suffix(separator_.size());
            Items(text, separator_).forEach([this](std::size_t place, std::u16string_view item) {
                remember(item, hash_(item), place);
            });
        }
    }

    static const Hash hash_;

    std::u16string_view separator_;
    Joiner joiner_;
    std::vector<std::uint64_t> slots_; // a power of two
    std::size_t count_ = 0;
};

const Hash Seen::hash_;

} // namespace

std::u16string distinct(const Items &items) {
    Seen seen(items);
    std::array<std::u16string_view, Seen::together> batch;
    std::size_t count = 0;
    items.forEach([&](std::size_t, std::u16string_view item) {
        batch[count++] = item;
        if (count == batch.size()) {
            seen.add(batch);
            count = 0;
        }
    });
    seen.add({batch.data(), count});
    return seen.take();
}

} // namespace nerlo::text

#include "text/Distinct.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <random>

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

} // namespace

std::vector<std::u16string_view> distinct(const std::vector<std::u16string_view> &texts) {
    struct Slot {
        std::uint64_t hash = 0;
        std::uint64_t result = 0; // its place in the result, counted from 1; 0 is free
    };
    // A look into the table, at the text found there and at its units misses the cache each time,
    // so that many are under way together.
    constexpr std::size_t together = 16;
    static const Hash hash;
    std::vector<std::u16string_view> result;
    std::vector<Slot> slots(256);
    for (std::size_t begin = 0; begin < texts.size(); begin += together) {
        const std::size_t count = std::min(together, texts.size() - begin);
        if ((result.size() + count) * 2 > slots.size()) {
            std::vector<Slot> larger(slots.size() * 4);
            for (const Slot &slot : slots) {
                if (slot.result != 0) {
                    std::size_t at = slot.hash & (larger.size() - 1);
                    while (larger[at].result != 0) {
                        at = (at + 1) & (larger.size() - 1);
                    }
                    larger[at] = slot;
                }
            }
            slots.swap(larger);
        }
        std::array<std::uint64_t, together> codes;
        const auto home = [&](std::size_t i) -> Slot & {
            return slots[codes[i] & (slots.size() - 1)];
        };
        for (std::size_t i = 0; i < count; ++i) {
            codes[i] = hash(texts[begin + i]);
            __builtin_prefetch(&home(i));
        }
        for (std::size_t i = 0; i < count; ++i) {
            if (home(i).hash == codes[i] && home(i).result != 0) {
                __builtin_prefetch(result.data() + home(i).result - 1);
            }
        }
        for (std::size_t i = 0; i < count; ++i) {
            if (home(i).hash == codes[i] && home(i).result != 0) {
                __builtin_prefetch(result[home(i).result - 1].data());
            }
        }
        for (std::size_t i = 0; i < count; ++i) {
            const std::u16string_view text = texts[begin + i];
            std::size_t at = codes[i] & (slots.size() - 1);
            while (slots[at].result != 0 &&
                   (slots[at].hash != codes[i] || result[slots[at].result - 1] != text)) {
                at = (at + 1) & (slots.size() - 1);
            }
            if (slots[at].result == 0) {
                result.push_back(text);
                slots[at] = {codes[i], result.size()};
            }
        }
    }
    return result;
}

} // namespace nerlo::text

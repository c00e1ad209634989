#include "text/Collation.h"

#include <unicode/ucol.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>

namespace nerlo::text {

namespace {

struct CloseCollator {
    void operator()(UCollator *collator) const { ucol_close(collator); }
};

// Eight bytes of an item's key as a number, which decide most comparisons without touching the key
// itself.
struct Entry {
    std::uint64_t prefix = 0;
    std::uint64_t item = 0;
};

// Puts the items whose keys keyOf(item) gives in the order of the keys, byte by byte, and of their
// numbers where the keys are equal. Items that agree in eight bytes are sorted by the next eight,
// so that common beginnings are read once and no recursion goes deep.
template <class KeyOf, class LoadPrefix>
void sortByKeys(std::vector<Entry> &entries, KeyOf keyOf, LoadPrefix loadPrefix,
                std::size_t prefixSize) {
    struct Part {
        std::size_t begin;
        std::size_t end;
        std::size_t depth; // of the prefix in the key
    };
    std::vector<Part> parts{{0, entries.size(), 0}};
    while (!parts.empty()) {
        const Part part = parts.back();
        parts.pop_back();
        const auto begin = entries.begin() + static_cast<std::ptrdiff_t>(part.begin);
        const auto end = entries.begin() + static_cast<std::ptrdiff_t>(part.end);
        for (auto entry = begin; entry != end; ++entry) {
            entry->prefix = loadPrefix(keyOf(entry->item), part.depth);
        }
        std::sort(begin, end, [](const Entry &a, const Entry &b) { return a.prefix < b.prefix; });
        for (auto first = begin; first != end;) {
            const auto last = std::find_if(
                first, end, [&](const Entry &entry) { return entry.prefix != first->prefix; });
            if (last - first > 1) {
                // Keys that end here come first, the shorter before the longer: what is missing
                // reads as zeros, and must not pass for zeros that are there.
                const auto goesOn = std::partition(first, last, [&](const Entry &entry) {
                    return keyOf(entry.item).size() <= part.depth + prefixSize;
                });
                std::sort(first, goesOn, [&](const Entry &a, const Entry &b) {
                    const std::size_t sizeOfA = keyOf(a.item).size();
                    const std::size_t sizeOfB = keyOf(b.item).size();
                    return sizeOfA != sizeOfB ? sizeOfA < sizeOfB : a.item < b.item;
                });
                if (last - goesOn > 1) {
                    parts.push_back({static_cast<std::size_t>(goesOn - entries.begin()),
                                     static_cast<std::size_t>(last - entries.begin()),
                                     part.depth + prefixSize});
                }
            }
            first = last;
        }
    }
}

// The items in the order of the entries. Descending, the order of unequal items is turned round
// and that of equal ones, which `same` tells, is not.
template <class Same>
void arrange(std::vector<std::u16string_view> &items, std::vector<Entry> &entries, bool descending,
             Same same) {
    if (descending) {
        std::ranges::reverse(entries);
        for (auto first = entries.begin(); first != entries.end();) {
            const auto last = std::find_if(first + 1, entries.end(), [&](const Entry &entry) {
                return !same(first->item, entry.item);
            });
            std::reverse(first, last);
            first = last;
        }
    }
    std::vector<std::u16string_view> sorted;
    sorted.reserve(items.size());
    for (const Entry &entry : entries) {
        sorted.push_back(items[entry.item]);
    }
    items.swap(sorted);
}

std::vector<Entry> entriesFor(std::size_t count) {
    std::vector<Entry> entries(count);
    for (std::size_t i = 0; i < count; ++i) {
        entries[i].item = i;
    }
    return entries;
}

// Big-endian, with zeros for what is missing.
std::uint64_t bytesAt(std::string_view key, std::size_t depth) {
    std::uint64_t prefix = 0;
    if (depth + 8 <= key.size()) {
        std::memcpy(&prefix, key.data() + depth, 8);
        return std::endian::native == std::endian::little ? __builtin_bswap64(prefix) : prefix;
    }
    for (std::size_t i = depth; i < depth + 8; ++i) {
        prefix = prefix << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0u);
    }
    return prefix;
}

std::uint64_t unitsAt(std::u16string_view key, std::size_t depth) {
    std::uint64_t prefix = 0;
    for (std::size_t i = depth; i < depth + 4; ++i) {
        prefix = prefix << 16 | (i < key.size() ? key[i] : 0u);
    }
    return prefix;
}

// The sort keys of many items, one behind the other.
class SortKeys {
  public:
    SortKeys(const UCollator *collator, const std::vector<std::u16string_view> &items) {
        ends_.reserve(items.size() + 1);
        ends_.push_back(0);
        for (const std::u16string_view item : items) {
            append(collator, item);
        }
    }

    std::string_view operator[](std::size_t item) const {
        return {bytes_.data() + ends_[item], ends_[item + 1] - ends_[item]};
    }

  private:
    void append(const UCollator *collator, std::u16string_view item) {
        const std::size_t used = ends_.back();
        std::size_t room = item.size() * 2 + 32; // mostly enough
        for (;;) {
            if (bytes_.size() - used < room) {
                bytes_.resize(std::max(bytes_.size() + bytes_.size() / 2, used + room));
            }
            const auto size = static_cast<std::size_t>(ucol_getSortKey(
                collator, item.empty() ? u"" : item.data(), static_cast<std::int32_t>(item.size()),
                reinterpret_cast<std::uint8_t *>(bytes_.data() + used),
                static_cast<std::int32_t>(room)));
            if (size <= room) {
                ends_.push_back(used + size);
                return;
            }
            room = size;
        }
    }

    std::vector<char> bytes_;
    std::vector<std::size_t> ends_;
};

} // namespace

void sortByLocale(std::vector<std::u16string_view> &items, const std::string &locale,
                  Strength strength, bool descending) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UCollator, CloseCollator> collator(ucol_open(locale.c_str(), &status));
    const bool addressable = std::ranges::all_of(items, [](std::u16string_view item) {
        return item.size() < std::numeric_limits<std::int32_t>::max() / 8;
    });
    if (U_FAILURE(status) || !addressable) {
        sortByCodeUnits(items, descending);
        return;
    }
    if (strength == Strength::IgnoreCase) {
        ucol_setStrength(collator.get(), UCOL_SECONDARY);
    }
    const SortKeys keys(collator.get(), items);
    const auto keyOf = [&](std::size_t item) { return keys[item]; };
    std::vector<Entry> entries = entriesFor(items.size());
    sortByKeys(entries, keyOf, bytesAt, 8);
    arrange(items, entries, descending,
            [&](std::size_t a, std::size_t b) { return keys[a] == keys[b]; });
}

void sortByCodeUnits(std::vector<std::u16string_view> &items, bool descending) {
    const auto keyOf = [&](std::size_t item) { return items[item]; };
    std::vector<Entry> entries = entriesFor(items.size());
    sortByKeys(entries, keyOf, unitsAt, 4);
    // Equal items are the same, so their order among themselves does not show.
    arrange(items, entries, descending, [](std::size_t, std::size_t) { return false; });
}

} // namespace nerlo::text

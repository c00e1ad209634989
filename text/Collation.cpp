#include "text/Collation.h"

#include <unicode/ucol.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <span>
#include <vector>

namespace nerlo::text {

namespace {

struct CloseCollator {
    void operator()(UCollator *collator) const { ucol_close(collator); }
};
using Collator = std::unique_ptr<UCollator, CloseCollator>;

constexpr std::size_t placeBytes = 5; // enough for a million million

// A piece of an item's key as a number, which decides most comparisons without touching the item,
// and where the item is. Packed, because a text may have a line for every second byte.
struct [[gnu::packed]] Entry {
    std::uint64_t prefix;
    std::uint32_t low;
    std::uint8_t high;

    Entry(std::uint64_t keyPrefix, std::uint64_t place)
        : prefix(keyPrefix)
        , low(static_cast<std::uint32_t>(place))
        , high(static_cast<std::uint8_t>(place >> 32)) {}
    std::uint64_t place() const { return std::uint64_t{high} << 32 | low; }
};

// Bytes, one behind the other. Grown and cut with realloc(), which moves large blocks by their page
// tables instead of copying them.
class Buffer {
  public:
    void append(const void *bytes, std::size_t count) {
        if (capacity_ - size_ < count) {
            reserve(std::max(capacity_ + capacity_ / 2, size_ + count));
        }
        std::memcpy(data() + size_, bytes, count);
        size_ += count;
    }
    void reserve(std::size_t capacity) {
        void *moved = std::realloc(bytes_.get(), capacity);
        if (!moved) {
            throw std::bad_alloc();
        }
        static_cast<void>(bytes_.release()); // realloc() has taken it over
        bytes_.reset(static_cast<char *>(moved));
        capacity_ = capacity;
    }
    // Gives back what is behind the first `size` bytes.
    void cut(std::size_t size) {
        size_ = size;
        reserve(std::max<std::size_t>(size, 1));
    }
    char *data() { return bytes_.get(); }
    const char *data() const { return bytes_.get(); }
    std::size_t size() const { return size_; }

  private:
    struct Free {
        void operator()(char *bytes) const { std::free(bytes); }
    };
    std::unique_ptr<char, Free> bytes_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

void putPlace(char *to, std::uint64_t place) {
    for (std::size_t i = 0; i < placeBytes; ++i) {
        to[i] = static_cast<char>(place >> 8 * i);
    }
}

std::uint64_t placeAt(const char *from) {
    std::uint64_t place = 0;
    for (std::size_t i = placeBytes; i-- > 0;) {
        place = place << 8 | static_cast<unsigned char>(from[i]);
    }
    return place;
}

class Entries {
  public:
    explicit Entries(std::size_t count) { buffer_.reserve(count * sizeof(Entry)); }

    void add(std::uint64_t prefix, std::uint64_t place) {
        const Entry entry(prefix, place);
        buffer_.append(&entry, sizeof entry);
    }
    std::span<Entry> all() {
        return {reinterpret_cast<Entry *>(buffer_.data()), buffer_.size() / sizeof(Entry)};
    }
    // The items that begin at itemOf(place), in the order of the entries or its reverse. The
    // entries shrink to that, so that they and the result are never whole at the same time.
    template <class ItemOf>
    std::u16string join(const Items &items, bool reversed, ItemOf itemOf) {
        std::size_t size = 0;
        for (const Entry &entry : all()) {
            const std::uint64_t item = itemOf(entry.place());
            putPlace(buffer_.data() + size, item);
            size += placeBytes;
        }
        buffer_.cut(size);
        Joiner joiner(items);
        for (std::size_t at = 0; at < size; at += placeBytes) {
            joiner.add(
                items.at(placeAt(buffer_.data() + (reversed ? size - placeBytes - at : at))));
        }
        return joiner.take();
    }

  private:
    Buffer buffer_;
};

// Sorts by keys, of which load(place, depth) gives the piece at `depth` and ended(piece) tells
// whether it is the key's last; entries of equal keys are handed to `equal`. Keys that agree in one
// piece are sorted by the next, `step` further, so that common beginnings are read once and no
// recursion goes deep. The entries come with their first pieces.
template <class Load, class Ended, class Equal>
void sortByKeys(std::span<Entry> entries, std::size_t step, Load load, Ended ended, Equal equal) {
    struct Part {
        std::size_t begin;
        std::size_t end;
        std::size_t depth;
    };
    std::vector<Part> parts{{0, entries.size(), 0}};
    while (!parts.empty()) {
        const Part part = parts.back();
        parts.pop_back();
        const auto begin = entries.begin() + static_cast<std::ptrdiff_t>(part.begin);
        const auto end = entries.begin() + static_cast<std::ptrdiff_t>(part.end);
        if (part.depth > 0) {
            for (auto entry = begin; entry != end; ++entry) {
                entry->prefix = load(entry->place(), part.depth);
            }
        }
        std::sort(begin, end, [](const Entry &a, const Entry &b) { return a.prefix < b.prefix; });
        for (auto first = begin; first != end;) {
            const std::uint64_t prefix = first->prefix;
            const auto last = std::find_if(
                first, end, [&](const Entry &entry) { return entry.prefix != prefix; });
            if (last - first > 1 && ended(prefix)) {
                equal(std::span(first, last));
            } else if (last - first > 1) {
                parts.push_back({static_cast<std::size_t>(first - entries.begin()),
                                 static_cast<std::size_t>(last - entries.begin()),
                                 part.depth + step});
            }
            first = last;
        }
    }
}

// Sorts by the collator's keys, strings of bytes that end with a zero and have no other. A key that
// fits into the first piece is kept nowhere else; its entry's place is the item's. Of the others,
// the place is in the store, where the item's place and the key are.
class LocaleSort {
  public:
    LocaleSort(Collator collator, const Items &items, std::size_t count, bool descending)
        : collator_(std::move(collator))
        , items_(items)
        , turn_(descending ? ~std::uint64_t{0} : 0)
        , entries_(count) {}

    std::u16string run() {
        items_.forEach([this](std::size_t begin, std::u16string_view item) { add(begin, item); });
        sortByKeys(
            entries_.all(), sizeof(std::uint64_t),
            [this](std::uint64_t place, std::size_t depth) {
                return pieceOf(stored_.data() + (place - inStore) + placeBytes + depth);
            },
            [this](std::uint64_t piece) { return isLast(piece); },
            [](std::span<Entry> equal) { std::ranges::sort(equal, {}, &Entry::place); });
        return entries_.join(items_, false, [this](std::uint64_t place) {
            return place < inStore ? place : placeAt(stored_.data() + (place - inStore));
        });
    }

  private:
    static constexpr std::uint64_t inStore = std::uint64_t{1} << (8 * placeBytes - 1);

    // Big-endian, with zeros behind the end of the key; for the descending order turned round, so
    // that equal items still keep theirs.
    std::uint64_t pieceOf(const char *key) const {
        std::uint64_t piece = 0;
        for (std::size_t left = sizeof piece; left-- > 0; ++key) {
            piece |= std::uint64_t{static_cast<unsigned char>(*key)} << 8 * left;
            if (*key == 0) {
                break;
            }
        }
        return piece ^ turn_;
    }
    bool isLast(std::uint64_t piece) const { return ((piece ^ turn_) & 0xFF) == 0; }

    void add(std::size_t begin, std::u16string_view item) {
        const std::size_t size = makeKey(item);
        const std::uint64_t piece = pieceOf(key_.data());
        if (isLast(piece)) {
            entries_.add(piece, begin);
            return;
        }
        entries_.add(piece, stored_.size() + inStore);
        char place[placeBytes];
        putPlace(place, begin);
        stored_.append(place, placeBytes);
        stored_.append(key_.data(), size);
    }

    // Returns the size of the key, which is then at the front of key_.
    std::size_t makeKey(std::u16string_view item) {
        for (;;) {
            const auto size = static_cast<std::size_t>(
                ucol_getSortKey(collator_.get(), item.empty() ? u"" : item.data(),
                                static_cast<std::int32_t>(item.size()),
                                reinterpret_cast<std::uint8_t *>(key_.data()),
                                static_cast<std::int32_t>(key_.size())));
            if (size <= key_.size()) {
                return size;
            }
            key_.resize(size);
        }
    }

    Collator collator_;
    const Items &items_;
    const std::uint64_t turn_; // all ones to turn the order of the keys round
    Entries entries_;
    Buffer stored_;
    std::vector<char> key_ = std::vector<char>(256);
};

struct Extent {
    std::size_t count = 0;
    std::size_t longest = 0;
};

Extent extentOf(const Items &items) {
    Extent extent;
    items.forEach([&](std::size_t, std::u16string_view item) {
        ++extent.count;
        extent.longest = std::max(extent.longest, item.size());
    });
    return extent;
}

// Three units, and how many of them the item has from there on: four if it goes on behind them.
std::uint64_t unitsAt(const Items &items, std::size_t at) {
    const std::u16string_view text = items.text();
    const char16_t stop = items.separator().front();
    if (at + 4 <= text.size() && text[at] != stop && text[at + 1] != stop && text[at + 2] != stop &&
        text[at + 3] != stop) {
        return std::uint64_t{text[at]} << 48 | std::uint64_t{text[at + 1]} << 32 |
               std::uint64_t{text[at + 2]} << 16 | 4;
    }
    std::uint64_t piece = 0;
    std::uint64_t count = 0;
    for (; count < 3 && !items.endsAt(at + count); ++count) {
        piece |= std::uint64_t{text[at + count]} << (48 - 16 * count);
    }
    return piece | (count == 3 && !items.endsAt(at + count) ? 4 : count);
}

} // namespace

std::u16string sortedByLocale(const Items &items, const std::string &locale, Strength strength,
                              bool descending) {
    UErrorCode status = U_ZERO_ERROR;
    Collator collator(ucol_open(locale.c_str(), &status));
    const Extent extent = extentOf(items);
    if (U_FAILURE(status) || extent.longest >= std::numeric_limits<std::int32_t>::max() / 8) {
        return sortedByCodeUnits(items, descending);
    }
    if (strength == Strength::IgnoreCase) {
        ucol_setStrength(collator.get(), UCOL_SECONDARY);
    }
    return LocaleSort(std::move(collator), items, extent.count, descending).run();
}

std::u16string sortedByCodeUnits(const Items &items, bool descending) {
    Entries entries(extentOf(items).count);
    items.forEach(
        [&](std::size_t begin, std::u16string_view) { entries.add(unitsAt(items, begin), begin); });
    sortByKeys(
        entries.all(), 3,
        [&](std::uint64_t place, std::size_t depth) { return unitsAt(items, place + depth); },
        [](std::uint64_t piece) { return (piece & 0xFFFF) < 4; },
        [](std::span<Entry>) {}); // equal items are the same, so that their order does not show
    return entries.join(items, descending, [](std::uint64_t place) { return place; });
}

} // namespace nerlo::text

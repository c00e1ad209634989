#include "text/Replace.h"

#include "text/Simd.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <type_traits>

namespace nerlo::text {

namespace {

// Texts are of UTF-16 units, or of bytes where that is enough.
template <class Unit>
using Text = std::basic_string<Unit>;
template <class Unit>
using View = std::basic_string_view<Unit>;

template <class Unit>
void move(Unit *to, const Unit *from, std::size_t count) {
    std::memmove(to, from, count * sizeof *to);
}

// Takes the marked units out of a block. Returns the place after the last one kept.
template <class Unit>
Unit *keepUnmarked(Unit *to, const Unit *block, std::size_t count, std::uint64_t marked) {
    if (std::popcount(marked) > 6) {
        for (std::size_t i = 0; i < count; ++i) {
            *to = block[i];
            to += (~marked >> i) & 1;
        }
        return to;
    }
    std::size_t from = 0;
    while (marked != 0) {
        const auto at = static_cast<std::size_t>(std::countr_zero(marked));
        marked &= marked - 1;
        move(to, block + from, at - from);
        to += at - from;
        from = at + 1;
    }
    move(to, block + from, count - from);
    return to + (count - from);
}

// Removes the units that `mark` says, block by block: mark(units, count) gets 64 units, or fewer at
// the end, may change them, and returns their mask.
template <class Unit, class Mark>
Text<Unit> removeMarked(Text<Unit> text, Mark mark) {
    Unit *to = text.data();
    Unit *from = text.data();
    Unit *const end = from + text.size();
    while (from < end) {
        const auto count =
            static_cast<std::size_t>(std::min<std::ptrdiff_t>(end - from, scanBlock));
        const std::uint64_t marked = mark(from, count);
        if (marked != 0) {
            to = keepUnmarked(to, from, count, marked);
        } else {
            if (to != from) {
                move(to, from, count);
            }
            to += count;
        }
        from += count;
    }
    text.resize(static_cast<std::size_t>(to - text.data()));
    return text;
}

template <class Unit>
std::uint64_t scan(const Unit *units, std::size_t count, const UnitSet &set) {
    return count == scanBlock ? scanUnits(units, set) : scanTail(units, count, set);
}

// Where `find` can begin among the 64 units at `units`, by its first and last unit.
template <class Unit>
std::uint64_t candidates(const Unit *units, View<Unit> find) {
    std::uint64_t mask = scanUnit(units, find.front());
    if (mask != 0 && find.size() > 1) {
        mask &= scanUnit(units + find.size() - 1, find.back());
    }
    return mask;
}

// Calls found(position) for every non-overlapping occurrence; the text behind the one reported
// last may change meanwhile.
template <class Unit, class Found>
void forEachOccurrence(View<Unit> text, View<Unit> find, Found found) {
    const auto matches = [&](std::size_t at) {
        return std::memcmp(text.data() + at, find.data(), find.size() * sizeof(Unit)) == 0;
    };
    std::size_t free = 0; // where the next occurrence may begin
    std::size_t block = 0;
    for (; block + scanBlock + find.size() - 1 <= text.size(); block += scanBlock) {
        std::uint64_t mask = candidates(text.data() + block, find);
        while (mask != 0) {
            const std::size_t at = block + static_cast<std::size_t>(std::countr_zero(mask));
            mask &= mask - 1;
            if (at >= free && matches(at)) {
                free = at + find.size();
                found(at);
            }
        }
    }
    for (std::size_t at = std::max(block, free); at + find.size() <= text.size();) {
        if (text[at] == find.front() && matches(at)) {
            found(at);
            at += find.size();
        } else {
            ++at;
        }
    }
}

// Replaces parts of a text from front to back, in its own memory; no replacement may be longer than
// its part.
template <class Unit>
class Compaction {
  public:
    explicit Compaction(Text<Unit> &text)
        : text_(text) {}

    void replace(std::size_t begin, std::size_t end, View<Unit> with) {
        keepUpTo(begin);
        move(text_.data() + to_, with.data(), with.size());
        to_ += with.size();
        from_ = end;
    }

    void finish() {
        keepUpTo(text_.size());
        text_.resize(to_);
    }

  private:
    void keepUpTo(std::size_t at) {
        if (to_ != from_) {
            move(text_.data() + to_, text_.data() + from_, at - from_);
        }
        to_ += at - from_;
    }

    Text<Unit> &text_;
    std::size_t to_ = 0;   // what is written
    std::size_t from_ = 0; // what is read
};

template <class Unit>
Text<Unit> replaceEach(Text<Unit> text, View<Unit> find, View<Unit> replacement) {
    if (find.empty() || find.size() > text.size()) {
        return text;
    }
    if (replacement.size() <= find.size()) {
        Compaction<Unit> compaction(text);
        forEachOccurrence<Unit>(text, find, [&](std::size_t at) {
            compaction.replace(at, at + find.size(), replacement);
        });
        compaction.finish();
        return text;
    }
    std::size_t count = 0;
    forEachOccurrence<Unit>(text, find, [&](std::size_t) { ++count; });
    if (count == 0) {
        return text;
    }
    Text<Unit> result;
    result.reserve(text.size() + count * (replacement.size() - find.size()));
    std::size_t from = 0;
    forEachOccurrence<Unit>(text, find, [&](std::size_t at) {
        result.append(text, from, at - from);
        result.append(replacement);
        from = at + find.size();
    });
    result.append(text, from);
    return result;
}

template <class Unit>
Text<Unit> removeMembers(Text<Unit> text, const UnitSet &set) {
    return removeMarked(std::move(text), [&](const Unit *units, std::size_t count) {
        return scan(units, count, set);
    });
}

template <class Unit>
Text<Unit> runsToUnit(Text<Unit> text, const UnitSet &set, Unit unit) {
    bool inRun = false;
    return removeMarked(std::move(text), [&](Unit *units, std::size_t count) {
        const std::uint64_t members = scan(units, count, set);
        const std::uint64_t followers = members & (members << 1 | (inRun ? 1 : 0));
        inRun = members >> (count - 1) & 1;
        for (std::uint64_t first = members & ~followers; first != 0; first &= first - 1) {
            units[std::countr_zero(first)] = unit;
        }
        return followers;
    });
}

template <class Unit>
Text<Unit> runsToOne(Text<Unit> text, Unit unit) {
    const auto code = static_cast<char16_t>(static_cast<std::make_unsigned_t<Unit>>(unit));
    const UnitSet set(std::u16string_view(&code, 1));
    bool inRun = false;
    return removeMarked(std::move(text), [&](const Unit *units, std::size_t count) {
        const std::uint64_t members =
            count == scanBlock ? scanUnit(units, unit) : scanTail(units, count, set);
        const std::uint64_t followers = members & (members << 1 | (inRun ? 1 : 0));
        inRun = members >> (count - 1) & 1;
        return followers;
    });
}

} // namespace

std::u16string replaceAll(std::u16string text, std::u16string_view find,
                          std::u16string_view replacement) {
    return replaceEach<char16_t>(std::move(text), find, replacement);
}

std::string replaceAll(std::string text, std::string_view find, std::string_view replacement) {
    return replaceEach<char>(std::move(text), find, replacement);
}

std::u16string replaceRanges(std::u16string text, std::span<const Range> ranges,
                             std::u16string_view replacement) {
    const auto fits = [&](const Range &range) {
        return replacement.size() <= range.end - range.begin;
    };
    if (std::ranges::all_of(ranges, fits)) {
        Compaction compaction(text);
        for (const Range &range : ranges) {
            compaction.replace(range.begin, range.end, replacement);
        }
        compaction.finish();
        return text;
    }
    std::size_t replaced = 0;
    for (const Range &range : ranges) {
        replaced += range.end - range.begin;
    }
    std::u16string result;
    result.reserve(text.size() - replaced + ranges.size() * replacement.size());
    std::size_t from = 0;
    for (const Range &range : ranges) {
        result.append(text, from, range.begin - from);
        result.append(replacement);
        from = range.end;
    }
    result.append(text, from);
    return result;
}

std::size_t find(std::u16string_view text, std::size_t from, std::u16string_view what) {
    for (std::size_t at = findUnit(text, from, what.front()); at < text.size();
         at = findUnit(text, at + 1, what.front())) {
        if (text.substr(at).starts_with(what)) {
            return at;
        }
    }
    return text.size();
}

std::u16string removeUnits(std::u16string text, const UnitSet &set) {
    return removeMembers(std::move(text), set);
}

std::string removeUnits(std::string text, const UnitSet &ascii) {
    return removeMembers(std::move(text), ascii);
}

std::u16string replaceRuns(std::u16string text, const UnitSet &set, char16_t unit) {
    return runsToUnit(std::move(text), set, unit);
}

std::u16string collapseRuns(std::u16string text, char16_t unit) {
    return runsToOne(std::move(text), unit);
}

std::string collapseRuns(std::string text, char ascii) {
    return runsToOne(std::move(text), ascii);
}

std::string collapseRuns(std::string text, std::string_view character) {
    std::string two(character);
    two += character;
    Compaction compaction(text);
    for (std::size_t at = text.find(two); at != std::string::npos; at = text.find(two, at)) {
        std::size_t end = at + two.size();
        while (std::string_view(text).substr(end).starts_with(character)) {
            end += character.size();
        }
        compaction.replace(at, end, character);
        at = end;
    }
    compaction.finish();
    return text;
}

std::u16string replaceRuns(std::u16string text, const UnitSet &set,
                           std::u16string_view replacement) {
    if (replacement.empty()) {
        return removeUnits(std::move(text), set);
    }
    if (replacement.size() == 1) {
        return replaceRuns(std::move(text), set, replacement.front());
    }
    std::size_t runs = 0;
    std::size_t members = 0;
    std::size_t afterLast = text.size() + 1;
    for (UnitCursor cursor(text, set);;) {
        const std::size_t at = cursor.next();
        if (at == text.size()) {
            break;
        }
        ++members;
        runs += at == afterLast ? 0 : 1;
        afterLast = at + 1;
    }
    if (runs == 0) {
        return text;
    }
    std::u16string result;
    result.reserve(text.size() - members + runs * replacement.size());
    std::size_t from = 0;
    for (UnitCursor cursor(text, set);;) {
        const std::size_t at = cursor.next();
        if (at == text.size()) {
            break;
        }
        if (at != from || at == 0) {
            result.append(text, from, at - from);
            result.append(replacement);
        }
        from = at + 1;
    }
    result.append(text, from);
    return result;
}

std::string replaceRuns(std::string text, const UnitSet &ascii, std::string_view replacement) {
    if (replacement.empty()) {
        return removeUnits(std::move(text), ascii);
    }
    if (replacement.size() == 1) {
        return runsToUnit(std::move(text), ascii, replacement.front());
    }
    // No other character has this byte, so that it can mark the runs.
    constexpr char mark = '\xFF';
    return replaceAll(runsToUnit(std::move(text), ascii, mark), std::string_view(&mark, 1),
                      replacement);
}

namespace {

// A cache of results for clusters of up to four units. A text holds few different ones, again and
// again.
class ClusterMemory {
  public:
    static constexpr std::size_t longest = 4;

    struct Entry {
        std::uint64_t units = 0;
        std::uint8_t size = 0; // 0: not in use
        std::uint8_t resultSize = 0;
        std::array<char16_t, longest> result{};
    };

    Entry &of(const char16_t *cluster, std::size_t size, bool &known) {
        std::uint64_t units = 0;
        std::memcpy(&units, cluster, size * sizeof *cluster);
        Entry &entry = entries_[(units * 0x9E3779B97F4A7C15u) >> 58];
        known = entry.units == units && entry.size == size;
        entry.units = units;
        entry.size = static_cast<std::uint8_t>(size);
        return entry;
    }

  private:
    std::array<Entry, 64> entries_{};
};

void applyRows(std::u16string &cluster, std::span<const Replacement> rows) {
    for (const Replacement &row : rows) {
        // Most rows do not occur in a cluster of a few units.
        if (cluster.find(row.find) != std::u16string::npos) {
            cluster = replaceAll(std::move(cluster), row.find, row.replace);
        }
    }
}

} // namespace

std::u16string ReplacementTable::apply(std::u16string text) const {
    UnitCursor cursor(text, pivots_);
    std::size_t pivot = cursor.next();
    if (pivot == text.size()) {
        return text;
    }
    std::optional<ClusterMemory> memory; // short texts mostly need none
    std::u16string cluster;
    char16_t *const units = text.data();
    const std::size_t size = text.size();
    std::size_t to = 0;   // what is written
    std::size_t from = 0; // what is read; nothing behind it is looked at again
    while (pivot < size) {
        std::size_t begin = pivot;
        while (begin > from && isInCluster(units[begin - 1])) {
            --begin;
        }
        std::size_t end = pivot + 1;
        while (end < size && isInCluster(units[end])) {
            ++end;
        }
        const std::size_t length = end - begin;
        if (length < shortest_) {
            pivot = cursor.nextFrom(end);
            continue;
        }
        if (to != from) {
            move(units + to, units + from, begin - from);
        }
        to += begin - from;
        if (length <= ClusterMemory::longest) {
            if (!memory) {
                memory.emplace();
            }
            bool known = false;
            ClusterMemory::Entry &entry = memory->of(units + begin, length, known);
            if (!known) {
                cluster.assign(units + begin, length);
                applyRows(cluster, rows_);
                entry.resultSize = static_cast<std::uint8_t>(cluster.size());
                std::ranges::copy(cluster, entry.result.begin());
            }
            std::copy_n(entry.result.begin(), entry.resultSize, units + to);
            to += entry.resultSize;
        } else {
            cluster.assign(units + begin, length);
            applyRows(cluster, rows_);
            move(units + to, cluster.data(), cluster.size());
            to += cluster.size();
        }
        from = end;
        pivot = cursor.nextFrom(end);
    }
    if (to != from) {
        move(units + to, units + from, size - from);
    }
    text.resize(to + size - from);
    return text;
}

} // namespace nerlo::text

#include "text/Difference.h"

#include "text/UnitScan.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <optional>
#include <span>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace nerlo::text {

namespace {

// How many items at the beginning are the same, looked at in words of eight bytes.
template <class Item>
std::size_t sameAtBegin(std::span<const Item> before, std::span<const Item> after) {
    constexpr std::size_t inWord = sizeof(std::uint64_t) / sizeof(Item);
    const std::size_t size = std::min(before.size(), after.size());
    std::size_t at = 0;
    for (; at + inWord <= size; at += inWord) {
        std::uint64_t one = 0;
        std::uint64_t other = 0;
        std::memcpy(&one, before.data() + at, sizeof one);
        std::memcpy(&other, after.data() + at, sizeof other);
        if (one != other) {
            break;
        }
    }
    while (at < size && before[at] == after[at]) {
        ++at;
    }
    return at;
}

std::size_t sameAtBegin(std::u16string_view before, std::u16string_view after) {
    return sameAtBegin<char16_t>(std::span(before), std::span(after));
}

// Units at the end of both texts that are the same.
std::size_t sameAtEnd(std::u16string_view before, std::u16string_view after) {
    const auto same = std::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend());
    return static_cast<std::size_t>(same.first - before.rbegin());
}

// Without what both sides begin or end with.
Change trimmed(Change change, std::u16string_view before, std::u16string_view after) {
    const auto partOf = [](std::u16string_view text, Range range) {
        return text.substr(range.begin, range.end - range.begin);
    };
    const std::size_t atBegin =
        sameAtBegin(partOf(before, change.before), partOf(after, change.after));
    change.before.begin += atBegin;
    change.after.begin += atBegin;
    const std::size_t atEnd = sameAtEnd(partOf(before, change.before), partOf(after, change.after));
    change.before.end -= atEnd;
    change.after.end -= atEnd;
    return change;
}

// Joins what touches, keeps pairs of surrogates whole, counts, and lists the first changes.
class ChangeList {
  public:
    ChangeList(std::u16string_view before, std::u16string_view after, std::size_t mostListed)
        : before_(before)
        , after_(after)
        , mostListed_(mostListed) {}

    // In order; what lies between two changes is the same in both texts.
    void add(Change change) {
        if (!isNothing(change) && !join(open_, change)) {
            settle();
            open_ = change;
        }
    }

    Difference take() {
        settle();
        list();
        return std::move(result_);
    }

  private:
    static bool isNothing(const Change &change) {
        return change.before.begin == change.before.end && change.after.begin == change.after.end;
    }

    // Whether they touch; then `change` becomes a part of `other`.
    static bool join(std::optional<Change> &other, const Change &change) {
        if (!other || change.before.begin > other->before.end ||
            change.after.begin > other->after.end) {
            return false;
        }
        other->before.end = std::max(other->before.end, change.before.end);
        other->after.end = std::max(other->after.end, change.after.end);
        return true;
    }

    // The open change is complete: what stands next to it is kept, so that it may take the other
    // half of a pair from there.
    void settle() {
        if (!open_) {
            return;
        }
        Change change = trimmed(*open_, before_, after_);
        open_.reset();
        if (isNothing(change)) {
            return;
        }
        if (cutsPair(before_, change.before.begin) || cutsPair(after_, change.after.begin)) {
            --change.before.begin;
            --change.after.begin;
        }
        if (cutsPair(before_, change.before.end) || cutsPair(after_, change.after.end)) {
            ++change.before.end;
            ++change.after.end;
        }
        if (!join(settled_, change)) {
            list();
            settled_ = change;
        }
    }

    void list() {
        if (settled_ && ++result_.count <= mostListed_) {
            result_.changes.push_back(*settled_);
        }
    }

    std::u16string_view before_;
    std::u16string_view after_;
    std::size_t mostListed_;
    std::optional<Change> open_;    // the next one may touch it
    std::optional<Change> settled_; // so may the next one that takes half a pair
    Difference result_;
};

// Told of parts that differ, in order.
using Report = std::function<void(Change part)>;

struct Effort {
    // That many equal items end a search for the shortest way: the texts have met again.
    std::size_t meeting;
    // Items in a row that are looked up together when the short ways have failed.
    std::size_t gram;
};

constexpr Effort forUnits{8, 12};
constexpr Effort forLines{2, 1};

constexpr int mostEdits = 24; // on one short way
constexpr std::size_t firstWindow = 64;
constexpr std::size_t lastWindow = 256 * 1024;

// Compares two sequences from the front. Where they part, the shortest way of at most `mostEdits`
// items left out or put in is searched for. Without one, equal grams are searched in windows that
// grow until one is found; the time for that is in proportion to what is passed over.
template <class Item>
class Comparison {
  public:
    Comparison(std::span<const Item> before, std::span<const Item> after, Effort effort,
               const Report &report)
        : before_(before)
        , after_(after)
        , effort_(effort)
        , report_(report) {}

    void run() {
        Place at;
        for (;;) {
            at = behindEqual(at, end());
            if (at.before == before_.size() || at.after == after_.size()) {
                tell(at, end());
                return;
            }
            if (const auto reached = shortWay(at, end(), false)) {
                at = *reached;
                continue;
            }
            const Place met = meetingFrom(at);
            bridge(at, met);
            at = met;
        }
    }

  private:
    struct Place {
        std::size_t before = 0;
        std::size_t after = 0;
    };

    Place end() const { return {before_.size(), after_.size()}; }

    void tell(Place from, Place to) const {
        report_({{from.before, to.before}, {from.after, to.after}});
    }

    Place behindEqual(Place at, Place end) const {
        const std::size_t same = sameAtBegin(before_.subspan(at.before, end.before - at.before),
                                             after_.subspan(at.after, end.after - at.after));
        return {at.before + same, at.after + same};
    }

    // How far into `before` one comes on a diagonal (items of `before` less items of `after`).
    struct Reached {
        int before;
        bool leftOut; // by leaving out an item of `before`, else by putting one in
    };
    static constexpr int unreachable = -1;
    static constexpr int middle = mostEdits + 2;
    using Row = std::array<Reached, 2 * mostEdits + 5>; // a cell for each diagonal

    struct Goal {
        int edits;
        int diagonal;
    };

    // Diagonals are negative where more was put in than left out; a row has two cells more on
    // either side, which nothing reaches.
    static constexpr std::size_t cellOf(int diagonal) {
        return static_cast<std::size_t>(middle + diagonal);
    }
    Row &rowOf(int edits) { return rows_[static_cast<std::size_t>(edits)]; }
    // The cells that the next row will look at.
    void clear(int edits) {
        for (int diagonal = -edits - 2; diagonal <= edits + 2; ++diagonal) {
            rowOf(edits)[cellOf(diagonal)] = {unreachable, false};
        }
    }

    // Goes on from `at` with as few edits as can be until the sequences have met or are at their
    // ends, and tells them. If they do not meet: as far as one comes, or nothing unless `anyway`.
    std::optional<Place> shortWay(Place at, Place end, bool anyway) {
        const auto goal = search(at, end, anyway);
        return goal ? std::optional(walk(at, *goal)) : std::nullopt;
    }

    std::optional<Goal> search(Place at, Place end, bool anyway) {
        clear(0);
        rowOf(0)[cellOf(0)].before = 0;
        Goal furthest{0, 0};
        for (int edits = 1; edits <= mostEdits; ++edits) {
            clear(edits);
            std::int64_t best = -1;
            for (int diagonal = -edits; diagonal <= edits; diagonal += 2) {
                Reached &cell = rowOf(edits)[cellOf(diagonal)];
                cell = oneEditFurther(rowOf(edits - 1), diagonal, at, end);
                if (cell.before == unreachable) {
                    continue;
                }
                Place here = placeOf(at, cell.before, diagonal);
                std::size_t same = 0;
                while (same < effort_.meeting && here.before < end.before &&
                       here.after < end.after && before_[here.before] == after_[here.after]) {
                    ++here.before;
                    ++here.after;
                    ++same;
                }
                cell.before += static_cast<int>(same);
                if (same == effort_.meeting ||
                    (here.before == end.before && here.after == end.after)) {
                    return Goal{edits, diagonal};
                }
                if (const std::int64_t sum = 2 * std::int64_t{cell.before} - diagonal; sum > best) {
                    best = sum;
                    furthest = {edits, diagonal};
                }
            }
        }
        return anyway ? std::optional(furthest) : std::nullopt;
    }

    static Reached oneEditFurther(const Row &last, int diagonal, Place at, Place end) {
        const int in = last[cellOf(diagonal + 1)].before;
        const int out = last[cellOf(diagonal - 1)].before;
        const bool mayPutIn =
            in != unreachable && in - diagonal <= static_cast<std::int64_t>(end.after - at.after);
        const bool mayLeaveOut =
            out != unreachable && out < static_cast<std::int64_t>(end.before - at.before);
        if (mayLeaveOut && (!mayPutIn || out + 1 > in)) {
            return {out + 1, true};
        }
        return {mayPutIn ? in : unreachable, false};
    }

    static Place placeOf(Place at, int before, int diagonal) {
        return {at.before + static_cast<std::size_t>(before),
                at.after + static_cast<std::size_t>(before - diagonal)};
    }

    // Tells the edits on the way to the goal, and returns where it lies.
    Place walk(Place at, Goal goal) {
        std::array<Change, mostEdits> edits; // the last of them first
        std::size_t count = 0;
        int diagonal = goal.diagonal;
        for (int edit = goal.edits; edit > 0; --edit) {
            const bool leftOut = rowOf(edit)[cellOf(diagonal)].leftOut;
            diagonal += leftOut ? -1 : 1;
            const Place from = placeOf(at, rowOf(edit - 1)[cellOf(diagonal)].before, diagonal);
            edits[count++] = {{from.before, from.before + (leftOut ? 1 : 0)},
                              {from.after, from.after + (leftOut ? 0 : 1)}};
        }
        while (count > 0) {
            report_(edits[--count]);
        }
        return placeOf(at, rowOf(goal.edits)[cellOf(goal.diagonal)].before, goal.diagonal);
    }

    // The nearest places at which the same gram stands; the ends of the windows, or of the
    // sequences, where there is none.
    Place meetingFrom(Place at) {
        for (std::size_t window = firstWindow;; window *= 4) {
            const Place limit{std::min(at.before + window, before_.size()),
                              std::min(at.after + window, after_.size())};
            if (const auto met = meetingBefore(at, limit)) {
                return *met;
            }
            const bool all = limit.before == before_.size() && limit.after == after_.size();
            if (all || window >= lastWindow) {
                return limit;
            }
        }
    }

    std::optional<Place> meetingBefore(Place at, Place limit) {
        grams_.clear();
        eachGram(before_, at.before, limit.before, [&](std::uint64_t hash, std::size_t place) {
            grams_.emplace_back(hash, place);
            return true;
        });
        std::ranges::sort(grams_);
        std::optional<Place> met;
        std::size_t best = SIZE_MAX; // items passed over
        eachGram(after_, at.after, limit.after, [&](std::uint64_t hash, std::size_t place) {
            const auto gram = std::ranges::lower_bound(grams_, std::pair(hash, std::size_t{0}));
            if (gram != grams_.end() && gram->first == hash && sameGram(gram->second, place)) {
                const std::size_t passed = gram->second - at.before + (place - at.after);
                if (passed < best) {
                    best = passed;
                    met = {gram->second, place};
                }
            }
            return place - at.after < best;
        });
        return met;
    }

    bool sameGram(std::size_t before, std::size_t after) const {
        return std::ranges::equal(before_.subspan(before, effort_.gram),
                                  after_.subspan(after, effort_.gram));
    }

    // `take` is given a hash of each gram in the items from `begin` to `end`, and where it begins,
    // until it returns false.
    template <class Take>
    void eachGram(std::span<const Item> items, std::size_t begin, std::size_t end, Take take) {
        constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;
        std::uint64_t oldest = 1; // the factor of the item that leaves the gram
        for (std::size_t i = 1; i < effort_.gram; ++i) {
            oldest *= factor;
        }
        std::uint64_t hash = 0;
        for (std::size_t at = begin; at < end; ++at) {
            if (at - begin >= effort_.gram) {
                hash -= oldest * items[at - effort_.gram];
            }
            hash = hash * factor + items[at];
            if (at - begin + 1 >= effort_.gram && !take(hash, at + 1 - effort_.gram)) {
                return;
            }
        }
    }

    // What lies between two places has little in common. Where its sizes are alike, words or lines
    // may still have kept their order.
    void bridge(Place at, Place end) {
        while (at.before < end.before && at.after < end.after) {
            const std::size_t before = end.before - at.before;
            const std::size_t after = end.after - at.after;
            if (std::max(before, after) / 4 > std::min(before, after) + mostEdits) {
                break;
            }
            at = *shortWay(at, end, true);
            at = behindEqual(at, end);
        }
        tell(at, end);
    }

    std::span<const Item> before_;
    std::span<const Item> after_;
    Effort effort_;
    const Report &report_;
    std::array<Row, mostEdits + 1> rows_; // each is cleared before it is used
    std::vector<std::pair<std::uint64_t, std::size_t>> grams_;
};

// The beginnings of the lines, and the end of the last.
std::vector<std::size_t> linesOf(std::u16string_view text) {
    std::vector<std::size_t> begins{0};
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool inPair = text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n';
        if (text[at] == u'\n' || (text[at] == u'\r' && !inPair)) {
            begins.push_back(at + 1);
        }
    }
    if (begins.back() != text.size()) {
        begins.push_back(text.size());
    }
    return begins;
}

std::u16string_view withoutBreak(std::u16string_view line) {
    while (!line.empty() && (line.back() == u'\n' || line.back() == u'\r')) {
        line.remove_suffix(1);
    }
    return line;
}

// A number for each different line.
class LineNumbers {
  public:
    std::vector<std::uint32_t> of(std::u16string_view text,
                                  const std::vector<std::size_t> &begins) {
        std::vector<std::uint32_t> numbers;
        numbers.reserve(begins.size() - 1);
        for (std::size_t line = 0; line + 1 < begins.size(); ++line) {
            const auto known =
                numbers_.try_emplace(text.substr(begins[line], begins[line + 1] - begins[line]),
                                     static_cast<std::uint32_t>(numbers_.size()));
            numbers.push_back(known.first->second);
        }
        return numbers;
    }

  private:
    std::unordered_map<std::u16string_view, std::uint32_t> numbers_;
};

bool holdsEveryLine(std::u16string_view text, const std::vector<std::size_t> &begins,
                    std::u16string_view of, const std::vector<std::size_t> &ofBegins) {
    const auto line = [](std::u16string_view whole, const std::vector<std::size_t> &at,
                         std::size_t number) {
        return withoutBreak(whole.substr(at[number], at[number + 1] - at[number]));
    };
    std::unordered_set<std::u16string_view> lines;
    for (std::size_t number = 0; number + 1 < begins.size(); ++number) {
        lines.insert(line(text, begins, number));
    }
    for (std::size_t number = 0; number + 1 < ofBegins.size(); ++number) {
        if (!lines.contains(line(of, ofBegins, number))) {
            return false;
        }
    }
    return true;
}

// Whether the first line of `after` that `before` does not go on with stands nowhere in it: then
// the lines need not be looked at one by one. Not every such line is found.
bool bringsANewLine(std::u16string_view before, std::u16string_view after) {
    constexpr UnitSet breaks(u"\n\r");
    const std::size_t last =
        after.substr(0, sameAtBegin(before, after)).find_last_of(std::u16string_view(u"\n\r"));
    const std::size_t begin = last == std::u16string_view::npos ? 0 : last + 1;
    const std::u16string_view line = after.substr(begin, findUnit(after, begin, breaks) - begin);
    for (std::size_t at = 0; at <= before.size(); at = findUnit(before, at, breaks) + 1) {
        if (before.substr(at).starts_with(line)) {
            return false;
        }
    }
    return true;
}

// Lines that were moved or left out as a whole are compared as such. False where it was otherwise.
bool compareLines(std::u16string_view before, std::u16string_view after, const Report &report) {
    if (bringsANewLine(before, after)) {
        return false;
    }
    const std::vector<std::size_t> old = linesOf(before);
    const std::vector<std::size_t> now = linesOf(after);
    if (old.size() < 3 || now.size() < 2 || !holdsEveryLine(before, old, after, now)) {
        return false;
    }
    LineNumbers numbers;
    const std::vector<std::uint32_t> oldLines = numbers.of(before, old);
    const std::vector<std::uint32_t> newLines = numbers.of(after, now);
    const Report inUnits = [&](Change part) {
        report({{old[part.before.begin], old[part.before.end]},
                {now[part.after.begin], now[part.after.end]}});
    };
    Comparison<std::uint32_t>(oldLines, newLines, forLines, inUnits).run();
    return true;
}

} // namespace

bool cutsPair(std::u16string_view text, std::size_t at) {
    return at > 0 && at < text.size() && (text[at - 1] & 0xFC00) == 0xD800 &&
           (text[at] & 0xFC00) == 0xDC00;
}

Difference differenceOf(std::u16string_view before, std::u16string_view after,
                        std::size_t mostListed) {
    ChangeList list(before, after, mostListed);
    if (sameUnits(before, after)) {
        return list.take();
    }
    const Report add = [&](Change part) { list.add(part); };
    const std::size_t begin = sameAtBegin(before, after);
    if (begin == after.size()) { // its end was cut off
        add({{begin, before.size()}, {begin, begin}});
        return list.take();
    }
    if (!compareLines(before, after, add)) {
        const std::size_t same = sameAtEnd(before.substr(begin), after.substr(begin));
        Comparison<char16_t>(before.substr(0, before.size() - same),
                             after.substr(0, after.size() - same), forUnits, add)
            .run();
    }
    return list.take();
}

std::vector<Change> composed(const std::vector<Change> &first, const std::vector<Change> &second) {
    std::vector<Change> result;
    auto one = first.begin();
    auto two = second.begin();
    // Behind the changes passed so far: from places of the second text to the first and the third.
    std::size_t toFirst = 0;
    std::size_t toThird = 0;
    while (one != first.end() || two != second.end()) {
        const std::size_t begin =
            std::min(one != first.end() ? one->after.begin : two->before.begin,
                     two != second.end() ? two->before.begin : one->after.begin);
        Change change{{begin + toFirst, 0}, {begin + toThird, 0}};
        std::size_t end = begin;
        for (;;) {
            if (one != first.end() && one->after.begin <= end) {
                end = std::max(end, one->after.end);
                toFirst = one->before.end - one->after.end;
                ++one;
            } else if (two != second.end() && two->before.begin <= end) {
                end = std::max(end, two->before.end);
                toThird = two->after.end - two->before.end;
                ++two;
            } else {
                break;
            }
        }
        change.before.end = end + toFirst;
        change.after.end = end + toThird;
        result.push_back(change);
    }
    return result;
}

} // namespace nerlo::text

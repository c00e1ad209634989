#include "engine/Sorting.h"

#include "engine/Whitespace.h"
#include "text/Collation.h"
#include "text/Distinct.h"

#include <algorithm>
#include <array>
#include <random>
#include <utility>

namespace nerlo::engine {

namespace {

using text::Items;

constexpr std::int64_t lineSeparator = 0;
constexpr std::int64_t customSeparatorIndex = 8;

// Entry 0 stands for line breaks, which are all LF by then; entry 8 is replaced by the user's own
// separator.
constexpr std::array<std::u16string_view, 9> separators{
    u"return", u".", u". ", u",", u", ", u";", u"; ", u"\t", u"Custom",
};

struct SortOption {
    std::int64_t option;
    std::u16string (*order)(const Items &items, const std::string &locale);
};

template <text::Strength strength, bool descending>
std::u16string byLocale(const Items &items, const std::string &locale) {
    return text::sortedByLocale(items, locale, strength, descending);
}

template <bool descending>
std::u16string byCodeUnits(const Items &items, const std::string &) {
    return text::sortedByCodeUnits(items, descending);
}

std::u16string reversed(const Items &items, const std::string &) {
    std::u16string result(items.text().size(), u'\0');
    std::size_t at = result.size();
    const auto put = [&](std::u16string_view units) {
        at -= units.size();
        units.copy(result.data() + at, units.size());
    };
    items.forEach([&](std::size_t, std::u16string_view item) {
        put(item);
        if (at > 0) {
            put(items.separator());
        }
    });
    return result;
}

std::u16string shuffled(const Items &items, const std::string &) {
    std::vector<std::size_t> begins;
    std::size_t count = 0;
    items.forEach([&](std::size_t, std::u16string_view) { ++count; });
    begins.reserve(count);
    items.forEach([&](std::size_t begin, std::u16string_view) { begins.push_back(begin); });
    text::Joiner joiner(items);
    for (const std::size_t begin : shuffleArray(std::move(begins))) {
        joiner.add(items.at(begin));
    }
    return joiner.take();
}

std::u16string withoutDuplicates(const Items &items, const std::string &) {
    return removeDuplicates(items);
}

// Any other option orders like the first.
constexpr SortOption sortOptions[] = {
    {0, byLocale<text::Strength::IgnoreCase, false>}, // A-Z (Aa-Zz/aA-zZ)
    {1, byLocale<text::Strength::IgnoreCase, true>},  // Z-A (zZ-aA/Zz-Aa)
    {2, byLocale<text::Strength::Full, false>},       // A-Z (aA-zZ)
    {3, byLocale<text::Strength::Full, true>},        // Z-A (Zz-Aa)
    {4, byCodeUnits<false>},                          // A-Za-z
    {5, byCodeUnits<true>},                           // z-aZ-A
    {6, reversed},
    {7, shuffled},
    {removeDuplicatesOption, withoutDuplicates},
};

} // namespace

std::u16string sortLines(std::u16string text, std::int64_t option, std::int64_t separator,
                         std::u16string_view customSeparator, const std::string &locale) {
    if (separator < 0 || separator > customSeparatorIndex) {
        return text;
    }
    std::u16string_view between = separators[static_cast<std::size_t>(separator)];
    if (separator == customSeparatorIndex) {
        between = customSeparator;
    } else if (separator == lineSeparator) {
        between = u"\n";
        text = changeAllBreaks(std::move(text));
    }
    if (between.empty()) {
        return text;
    }
    const auto row = std::ranges::find(sortOptions, option, &SortOption::option);
    return (row == std::end(sortOptions) ? sortOptions[0] : *row)
        .order(Items(text, between), locale);
}

std::vector<std::size_t> shuffleArray(std::vector<std::size_t> items) {
    std::random_device source;
    std::seed_seq seed{source(), source(), source(), source()};
    std::mt19937_64 random(seed);
    for (std::size_t left = items.size(); left > 1; --left) {
        const auto drawn = std::uniform_int_distribution<std::size_t>(0, left - 1)(random);
        std::swap(items[left - 1], items[drawn]);
    }
    return items;
}

std::u16string removeDuplicates(const text::Items &items) {
    return text::distinct(items);
}

} // namespace nerlo::engine

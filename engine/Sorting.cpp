#include "engine/Sorting.h"

#include "engine/Whitespace.h"
#include "text/Collation.h"
#include "text/Distinct.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <array>
#include <random>
#include <utility>

namespace nerlo::engine {

namespace {

using Items = std::vector<std::u16string_view>;

constexpr std::int64_t lineSeparator = 0;
constexpr std::int64_t customSeparatorIndex = 8;

// Entries 0 and 8 are stand-ins: lines are split at LF, and the custom separator is the user's.
constexpr std::array<std::u16string_view, 9> separators{
    u"return", u".", u". ", u",", u", ", u";", u"; ", u"\t", u"Custom",
};

struct SortOption {
    std::int64_t option;
    void (*order)(Items &items, const std::string &locale);
};

template <text::Strength strength, bool descending>
void byLocale(Items &items, const std::string &locale) {
    text::sortByLocale(items, locale, strength, descending);
}

template <bool descending>
void byCodeUnits(Items &items, const std::string &) {
    text::sortByCodeUnits(items, descending);
}

// Any other option orders like the first.
constexpr SortOption sortOptions[] = {
    {0, byLocale<text::Strength::IgnoreCase, false>}, // A-Z (Aa-Zz/aA-zZ)
    {1, byLocale<text::Strength::IgnoreCase, true>},  // Z-A (zZ-aA/Zz-Aa)
    {2, byLocale<text::Strength::Full, false>},       // A-Z (aA-zZ)
    {3, byLocale<text::Strength::Full, true>},        // Z-A (Zz-Aa)
    {4, byCodeUnits<false>},                          // A-Za-z
    {5, byCodeUnits<true>},                           // z-aZ-A
    {6, [](Items &items, const std::string &) { std::ranges::reverse(items); }},
    {7, [](Items &items, const std::string &) { items = shuffleArray(std::move(items)); }},
    {removeDuplicatesOption,
     [](Items &items, const std::string &) { items = removeDuplicates(items); }},
};

Items split(std::u16string_view text, std::u16string_view separator) {
    Items items;
    std::size_t begin = 0;
    for (std::size_t at = text::findUnit(text, 0, separator.front()); at < text.size();) {
        if (text.substr(at).starts_with(separator)) {
            items.push_back(text.substr(begin, at - begin));
            begin = at + separator.size();
            at = text::findUnit(text, begin, separator.front());
        } else {
            at = text::findUnit(text, at + 1, separator.front());
        }
    }
    items.push_back(text.substr(begin));
    return items;
}

std::u16string join(const Items &items, std::u16string_view separator, std::size_t sizeHint) {
    std::u16string text;
    text.reserve(sizeHint);
    for (const std::u16string_view item : items) {
        text.append(item).append(separator);
    }
    text.resize(text.size() - separator.size());
    return text;
}

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
    Items items = split(text, between);
    const auto row = std::ranges::find(sortOptions, option, &SortOption::option);
    (row == std::end(sortOptions) ? sortOptions[0] : *row).order(items, locale);
    return join(items, between, text.size() + between.size());
}

std::vector<std::u16string_view> shuffleArray(std::vector<std::u16string_view> items) {
    std::random_device source;
    std::seed_seq seed{source(), source(), source(), source()};
    std::mt19937_64 random(seed);
    for (std::size_t left = items.size(); left > 1; --left) {
        const auto drawn = std::uniform_int_distribution<std::size_t>(0, left - 1)(random);
        std::swap(items[left - 1], items[drawn]);
    }
    return items;
}

std::vector<std::u16string_view> removeDuplicates(const std::vector<std::u16string_view> &items) {
    return text::distinct(items);
}

} // namespace nerlo::engine

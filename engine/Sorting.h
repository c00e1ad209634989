// Sorting lines or separated items, and removing repeated ones.
//
// Texts are UTF-16. Every function may run on any thread and never fails.
#pragma once

#include "text/Items.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::engine {

inline constexpr std::int64_t removeDuplicatesOption = 10;

// Splits at the separator of that index, orders the items by the option (10 removes repeated ones)
// and joins them again. An unknown separator, or an empty custom one, changes nothing.
std::u16string sortLines(std::u16string text, std::int64_t option, std::int64_t separator,
                         std::u16string_view customSeparator, const std::string &locale);

// The same items, by their places, in random order; the source needs no seed.
std::vector<std::size_t> shuffleArray(std::vector<std::size_t> items);

// The first of every item, compared unit by unit, in the order of the input, joined again.
std::u16string removeDuplicates(const text::Items &items);

} // namespace nerlo::engine

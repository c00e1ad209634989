// Ordering of texts by a locale's rules.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nerlo::text {

enum class Strength {
    IgnoreCase, // accents still count
    Full,       // the locale's order as it comes
};

// Puts the items in the locale's order; items that compare equal keep theirs. `locale` is an ICU
// locale id; unknown locales have the root's order. The texts behind the items must stay alive.
void sortByLocale(std::vector<std::u16string_view> &items, const std::string &locale,
                  Strength strength, bool descending);

// Puts the items in the order of their code units.
void sortByCodeUnits(std::vector<std::u16string_view> &items, bool descending);

} // namespace nerlo::text

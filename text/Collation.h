// Ordering of items by a locale's rules.
#pragma once

#include "text/Items.h"

#include <string>

namespace nerlo::text {

enum class Strength {
    IgnoreCase, // accents still count
    Full,       // the locale's order as it comes
};

// The items in the locale's order, joined again; those that compare equal keep theirs. `locale` is
// an ICU locale id; unknown locales have the root's order. Any thread.
std::u16string sortedByLocale(const Items &items, const std::string &locale, Strength strength,
                              bool descending);

// The items in the order of their code units, joined again. Any thread.
std::u16string sortedByCodeUnits(const Items &items, bool descending);

} // namespace nerlo::text

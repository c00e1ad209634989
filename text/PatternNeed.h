// What every match of a pattern must hold, so that a text is searched only where that stands.
//
// Units are UTF-16. Any thread.
#pragma once

#include "text/PatternTree.h"

#include <string>

namespace nerlo::text {

struct PatternNeed {
    std::u16string literal; // is in every match; empty if none is known, or none that is rare
    std::size_t rarest = 0; // the place of its rarest unit
    std::size_t second = 0; // and of the one after that; the same in a literal of one unit
    unsigned places = 0;    // how often these two are met together, in ten thousand
    CodePoints around;      // the characters that matches consist of
};
PatternNeed neededBy(const PatternTree &tree);

// How often a unit is met in ordinary text, in ten thousand.
unsigned commonness(char16_t unit);

} // namespace nerlo::text

// What every match of a pattern must hold, so that a text is searched only where that stands.
//
// Units are UTF-16. Any thread.
#pragma once

#include "text/PatternLiteral.h"
#include "text/PatternTree.h"

namespace nerlo::text {

struct PatternNeed {
    Literal literal;   // is in every match
    CodePoints around; // the characters that matches consist of
};
PatternNeed neededBy(const PatternTree &tree);

} // namespace nerlo::text

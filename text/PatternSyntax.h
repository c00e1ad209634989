// What shows in a pattern without compiling it, in ICU's syntax.
//
// Each answer errs on the safe side: where a pattern is not understood, the plain way of searching
// is taken. Patterns are UTF-16. Any thread.
#pragma once

#include "text/UnitScan.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace nerlo::text {

// Units of which one begins every match, where that shows at the pattern's own beginning: in most
// patterns that people write, a character or a class, neither of them optional. ICU tries each
// position of a text by itself; these are found many at a time. The pattern must not be empty.
std::optional<UnitSet> firstUnits(std::u16string_view pattern);

// A pattern that has the same matches when they are sought one after another from the start of a
// text, but begins fewer of them in vain. Where a pattern starts with X* or X+ for one character X,
// as ".*word" does, and does not match at some place, it does not match behind an X that follows
// either: what it would find from there it has found already.
std::u16string withFewerStarts(std::u16string_view pattern);

// Whether a matcher of this pattern may look far ahead or back without saving a state on the way.
enum class FarLooks : std::uint8_t {
    Never,
    AcrossMarks, // only where combining or format characters follow each other
    Anywhere,
};
FarLooks farLooks(std::u16string_view pattern);

} // namespace nerlo::text

// Letters and their marks in one form.
//
// Texts are UTF-16. Any thread; never fails; takes time in proportion to the text.
#pragma once

#include <cstddef>
#include <string>

namespace nerlo::text {

// In Unicode's form NFC: letters with marks as one character where there is one. Adds the number of
// places that changed to `count`. A letter with more than `mostMarks` units of marks is left as it
// is: no language has such, and to order them would take very long.
inline constexpr std::size_t mostMarks = 256;
std::u16string composed(std::u16string text, std::size_t &count);

} // namespace nerlo::text

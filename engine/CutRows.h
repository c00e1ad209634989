// Rows that a screen cut at its last column, put together again.
//
// Texts are UTF-16. Pure, any thread, never fails, takes time in proportion to the text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace nerlo::engine {

// Empty if nothing was cut. Lines that are not one of the cut ones stay as they are; what of code
// and of tables was cut is joined only where it is prose once it is whole. `screen` is the columns
// of the screen, where a frame or padding showed them, or 0.
std::u16string joinCutRows(std::u16string_view text, std::size_t screen);

} // namespace nerlo::engine

// Telling equal texts apart from new ones.
#pragma once

#include <string_view>
#include <vector>

namespace nerlo::text {

// The first of every text, compared unit by unit, in the order of the input. Linear in the number
// of units also on texts chosen to collide: the hash is keyed anew in every process.
std::vector<std::u16string_view> distinct(const std::vector<std::u16string_view> &texts);

} // namespace nerlo::text

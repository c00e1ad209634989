// Numbers for people.
#pragma once

#include <cstdint>
#include <string>

namespace nerlo::text {

// Decimal, with the digits and grouping of `locale`, an ICU locale id.
std::u16string formatNumber(std::uint64_t number, const std::string &locale);

} // namespace nerlo::text

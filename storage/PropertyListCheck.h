// The checks that come before libplist reads a property list from outside.
#pragma once

#include <string>
#include <string_view>

namespace nerlo::storage {

// The years 0 to 9999 in seconds since 2001; dates outside cannot be written as XML.
inline constexpr double firstDate = -63145526400.0;
inline constexpr double lastDate = 252423993599.0;

// Each returns what is wrong (English, with the place as a byte offset), or the empty string when
// libplist may be given these bytes. They accept a subset of what libplist accepts.
std::string whatIsWrongWithXml(std::string_view bytes);
std::string whatIsWrongWithBinary(std::string_view bytes);

} // namespace nerlo::storage

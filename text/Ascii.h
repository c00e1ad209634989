// Letters, digits and names in ASCII: formats, key names, identifiers. Other characters are neither
// letters nor digits here, and have no letter case. A unit may be of any width.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace nerlo::text {

template <class Unit>
constexpr bool isAsciiDigit(Unit unit) {
    return unit >= Unit('0') && unit <= Unit('9');
}

template <class Unit>
constexpr bool isAsciiLetter(Unit unit) {
    return (unit >= Unit('a') && unit <= Unit('z')) || (unit >= Unit('A') && unit <= Unit('Z'));
}

template <class Unit>
constexpr bool isAsciiLetterOrDigit(Unit unit) {
    return isAsciiLetter(unit) || isAsciiDigit(unit);
}

template <class Unit>
constexpr Unit asciiLower(Unit unit) {
    return unit >= Unit('A') && unit <= Unit('Z') ? static_cast<Unit>(unit | 0x20) : unit;
}

inline std::string asciiLower(std::string name) {
    std::ranges::transform(name, name.begin(), [](char c) { return asciiLower(c); });
    return name;
}

constexpr bool equalIgnoringAsciiCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) { return asciiLower(x) == asciiLower(y); });
}

} // namespace nerlo::text

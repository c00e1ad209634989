// Letters and names in ASCII: formats, key names, identifiers. Bytes above 0x7F stand for
// themselves.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace nerlo::text {

constexpr char asciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

inline std::string asciiLower(std::string name) {
    std::ranges::transform(name, name.begin(), [](char c) { return asciiLower(c); });
    return name;
}

constexpr bool equalIgnoringAsciiCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) { return asciiLower(x) == asciiLower(y); });
}

} // namespace nerlo::text

// What a row of a screen shows. Texts are UTF-16.
#pragma once

#include "text/Characters.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace nerlo::engine {

// Blanks in front, in units.
inline std::size_t indentOf(std::u16string_view row) {
    return std::min(row.find_first_not_of(u' '), row.size());
}

// The size without the blanks at the end.
inline std::size_t inkEnd(std::u16string_view row) {
    return row.find_last_not_of(u" \u00A0") + 1; // npos + 1 is 0
}

// The columns that the row takes.
inline std::size_t columnsOf(std::u16string_view row) {
    std::size_t columns = 0;
    for (std::size_t at = 0; at < row.size();) {
        const char32_t character = text::characterAt(row, at);
        if (character == U'\t') {
            columns = columns / 8 * 8 + 8;
        } else {
            columns += character < 0x80 ? 1 : text::columnsOf(character);
        }
        at += text::sizeOf(character);
    }
    return columns;
}

} // namespace nerlo::engine

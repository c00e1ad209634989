#include "shell/TextDiff.h"

#include "text/Ascii.h"

#include <algorithm>
#include <cstdint>

namespace nerlo::shell {

namespace {

using Tokens = std::vector<std::u16string_view>;

// The table of common lengths has at most this many cells, of two bytes each.
constexpr std::size_t mostCells = 1'000'000;

enum class Kind { word, space, mark };

Kind kindOf(char16_t unit) {
    if (unit == u' ' || unit == u'\u00a0') {
        return Kind::space;
    }
    const bool ascii = unit < 0x80;
    // Beyond ASCII, the general punctuation and its like stand alone; a character of two units
    // stays whole because both units count as letters.
    const bool punctuation = (unit >= 0x2010 && unit <= 0x206f) || (unit >= 0x80 && unit < 0xc0) ||
                             (unit >= 0x3000 && unit <= 0x303f);
    return text::isAsciiLetterOrDigit(unit) || (!ascii && !punctuation) ? Kind::word : Kind::mark;
}

// Words are whole; spaces and marks come one by one.
Tokens split(std::u16string_view text) {
    Tokens tokens;
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at + 1;
        if (kindOf(text[at]) == Kind::word) {
            while (end < text.size() && kindOf(text[end]) == Kind::word) {
                ++end;
            }
        }
        tokens.push_back(text.substr(at, end - at));
        at = end;
    }
    return tokens;
}

void mark(std::vector<TextSpan> &spans, std::u16string_view text, std::u16string_view token) {
    const auto start = static_cast<std::size_t>(token.data() - text.data());
    if (!spans.empty() && spans.back().start + spans.back().length == start) {
        spans.back().length += token.size();
    } else {
        spans.push_back({start, token.size()});
    }
}

} // namespace

TextDifferences differences(std::u16string_view before, std::u16string_view after) {
    const Tokens old = split(before);
    const Tokens now = split(after);
    const auto same = std::ranges::mismatch(old, now);
    const auto first = static_cast<std::size_t>(same.in1 - old.begin());
    std::size_t last = 0; // tokens at the end that are the same
    while (last < std::min(old.size(), now.size()) - first &&
           old[old.size() - 1 - last] == now[now.size() - 1 - last]) {
        ++last;
    }
    const std::size_t rows = old.size() - first - last;
    const std::size_t columns = now.size() - first - last;

    TextDifferences result;
    const auto removed = [&](std::size_t row) { mark(result.removed, before, old[first + row]); };
    const auto added = [&](std::size_t column) { mark(result.added, after, now[first + column]); };
    std::size_t row = 0;
    std::size_t column = 0;
    if ((rows + 1) <= mostCells / (columns + 1)) {
        // common[r][c]: the most tokens that the rests from r and c share.
        std::vector<std::uint16_t> common((rows + 1) * (columns + 1));
        const auto at = [&](std::size_t r, std::size_t c) -> std::uint16_t & {
            return common[r * (columns + 1) + c];
        };
        for (std::size_t r = rows; r-- > 0;) {
            for (std::size_t c = columns; c-- > 0;) {
                // Fits into 16 bits: the shorter side has at most 1000 tokens.
                at(r, c) = old[first + r] == now[first + c]
                               ? static_cast<std::uint16_t>(at(r + 1, c + 1) + 1)
                               : std::max(at(r + 1, c), at(r, c + 1));
            }
        }
        while (row < rows && column < columns) {
            if (old[first + row] == now[first + column]) {
                ++row;
                ++column;
            } else if (at(row + 1, column) >= at(row, column + 1)) {
                removed(row++);
            } else {
                added(column++);
            }
        }
    }
    while (row < rows) {
        removed(row++);
    }
    while (column < columns) {
        added(column++);
    }
    return result;
}

} // namespace nerlo::shell

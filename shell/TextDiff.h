// Which parts of two texts differ, word by word, to be marked for a reader.
//
// Lengths and places are UTF-16 code units. Any thread; time and memory are bounded, so that long
// texts that differ much are marked more coarsely.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace nerlo::shell {

struct TextSpan {
    std::size_t start = 0;
    std::size_t length = 0;
    bool operator==(const TextSpan &) const = default;
};

struct TextDifferences {
    std::vector<TextSpan> removed; // of the first text
    std::vector<TextSpan> added;   // of the second text
};

TextDifferences differences(std::u16string_view before, std::u16string_view after);

} // namespace nerlo::shell

// A part of a text.
#pragma once

#include <cstddef>

namespace nerlo::text {

// In UTF-16 code units; the end is not part of it.
struct Range {
    std::size_t begin = 0;
    std::size_t end = 0;
    bool operator==(const Range &) const = default;
};

} // namespace nerlo::text

// How much of a property list from outside is taken.
#pragma once

#include <cstddef>

namespace nerlo::storage {

struct PropertyListLimits {
    static constexpr std::size_t bytes = std::size_t{64}
                                         << 20;      // of a file, and of its texts and data
    static constexpr std::size_t values = 1'000'000; // shared ones counted at every use
    static constexpr int depth = 128;                // containers within containers
};

} // namespace nerlo::storage

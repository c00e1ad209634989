#include "platform/linux/ProcessMemory.h"

#include <fstream>

#include <malloc.h>

namespace nerlo::platform {

void giveBackLargeMemory() {
    // A threshold that is set does not grow; left alone, it does with each large text that is
    // freed.
    constexpr int largeBytes = 1 << 20;
    mallopt(M_MMAP_THRESHOLD, largeBytes);
    mallopt(M_TRIM_THRESHOLD, largeBytes);
}

bool keepOutOfCoreDumps() {
    std::ofstream filter("/proc/self/coredump_filter");
    filter << "0" << std::flush;
    return filter.good();
}

} // namespace nerlo::platform

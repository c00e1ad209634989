#include "cli/Failure.h"

#include <unistd.h>

namespace nerlo::cli {

void report(const std::string &message) {
    const std::string line = "nerlo: " + message + "\n";
    // In one piece, so that the lines of several threads or programs do not mix. Nobody is left to
    // be told when this fails.
    [[maybe_unused]] const auto written = write(STDERR_FILENO, line.data(), line.size());
}

} // namespace nerlo::cli

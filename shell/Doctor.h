// What the program found on this desktop, for a person who wonders why something does not work.
#pragma once

#include "shell/Desktop.h"

#include <optional>
#include <string>
#include <vector>

namespace nerlo::shell {

// What only a running program knows.
struct RunningState {
    bool automatic = false;
    std::vector<std::string> hotKeyFindings; // a line for each shortcut that is set
};

// English lines, UTF-8. `running` is nothing when the program does not run.
std::string doctorReport(const Desktop &desktop, bool sessionBus,
                         const std::optional<RunningState> &running);

} // namespace nerlo::shell

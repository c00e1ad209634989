// What the program found on this desktop, for a person who wonders why something does not work.
#pragma once

#include "settings/SettingsPaths.h"
#include "shell/Desktop.h"

#include <optional>
#include <string>
#include <vector>

namespace nerlo::shell {

// What only a running program knows.
struct RunningState {
    bool automatic = false;
    bool chooserLeavesFocus = false;
    bool chooserAtPointer = false;
    std::vector<std::string> hotKeyFindings; // a line for each shortcut that is set
};

// English lines, UTF-8: what serves each purpose, with a line "but" for each gap. `running` is
// nothing when the program does not run. Main thread; asks the session bus, for a second at most.
std::string doctorReport(const Desktop &desktop, const settings::SettingsPaths &paths,
                         bool sessionBus, const std::optional<RunningState> &running);

} // namespace nerlo::shell

// What the program found on this desktop, for a person who wonders why something does not work.
#pragma once

#include "platform/backends/Backends.h"

#include <optional>
#include <string>
#include <vector>

namespace nerlo::shell {

// English lines, UTF-8. `automatic` is nothing when the program does not run.
std::string doctorReport(const platform::Chosen<platform::Pasteboard> &clipboard,
                         const platform::Chosen<platform::ActiveApplication> &activeApplication,
                         const platform::Chosen<platform::HotKeyService> &hotKeys,
                         const std::vector<std::string> &hotKeyFindings,
                         const platform::Chosen<platform::PopupLayer> &popupLayer, bool sessionBus,
                         std::optional<bool> automatic);

} // namespace nerlo::shell

// The application in front in GNOME on Wayland, by the program's own extension of the Shell.
#pragma once

#include "platform/ActiveApplication.h"
#include "platform/Created.h"

namespace nerlo::platform {

// Declines in other desktops. While the extension does not run, `otherwise` serves in its place, if
// there is one. Main thread, with an event loop.
Created<ActiveApplication> createGnomeActiveApplication(Created<ActiveApplication> otherwise);

} // namespace nerlo::platform

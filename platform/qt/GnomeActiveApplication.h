// The application in front in GNOME on Wayland, by the program's own extension of the Shell.
#pragma once

#include "platform/ActiveApplication.h"
#include "platform/Created.h"

namespace nerlo::platform {

// Declines where the extension does not run. Main thread, with an event loop.
Created<ActiveApplication> createGnomeActiveApplication();

} // namespace nerlo::platform

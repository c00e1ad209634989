// Where the pointer is in GNOME on Wayland, by the program's own extension of the Shell.
#pragma once

#include "platform/Created.h"
#include "platform/PointerPlace.h"

namespace nerlo::platform {

// Declines in other desktops. While the extension does not run, nothing is known. Main thread, with
// an event loop; find() needs the toolkit's application object.
Created<PointerPlace> createGnomePointer();

} // namespace nerlo::platform

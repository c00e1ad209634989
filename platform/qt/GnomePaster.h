// Pasting in GNOME on Wayland, by the program's own extension of the Shell.
#pragma once

#include "platform/Created.h"
#include "platform/KeyboardLayout.h"
#include "platform/MainQueue.h"
#include "platform/Paster.h"

namespace nerlo::platform {

// Declines in other desktops. While the extension does not run, `otherwise` serves in its place, if
// there is one. The references must outlive the result. Main thread, with an event loop.
Created<Paster> createGnomePaster(MainQueue &mainQueue, const KeyboardLayout &layout,
                                  Created<Paster> otherwise);

} // namespace nerlo::platform

// Hot keys in GNOME on Wayland, by the program's own extension of the Shell: it takes them as the
// Shell's own, at their places on the keyboard, without a question.
//
// Nothing waits: hot keys are "pending" until the extension has answered.
#pragma once

#include "platform/Created.h"
#include "platform/HotKeyService.h"

#include <memory>

namespace nerlo::platform {

// Declines in other desktops. While the extension does not run, `otherwise`, which is not null,
// serves in its place; it is taken over unless this declines. Main thread, with an event loop.
Created<HotKeyService> createGnomeHotKeys(std::unique_ptr<HotKeyService> &otherwise);

} // namespace nerlo::platform

// The clipboard of GNOME on Wayland, by the program's own extension of the Shell.
#pragma once

#include "platform/Created.h"
#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"

namespace nerlo::platform {

// Waits for the extension's first answer, for at most the stall limit. Declines where the extension
// does not run, and in X11 sessions, which have a better way. The extension listens to the owner of
// the program's name on the session bus alone; for any other process the result is there to be
// described. `mainQueue` must outlive the result. Main thread, with an event loop.
Created<Pasteboard> createGnomePasteboard(MainQueue &mainQueue);

} // namespace nerlo::platform

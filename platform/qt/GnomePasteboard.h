// The clipboard of GNOME on Wayland, by the program's own extension of the Shell.
#pragma once

#include "platform/Created.h"
#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"

#include <functional>

namespace nerlo::platform {

// Waits for the extension's first answer, for at most the stall limit. Declines in other desktops.
// While the extension does not run, what `otherwise` opens serves in its place; where that declines
// as well, this does at the start. The extension listens to the owner of the program's name on the
// session bus alone; for any other process the result is there to be described. `mainQueue` must
// outlive the result. Main thread, with an event loop.
Created<Pasteboard> createGnomePasteboard(MainQueue &mainQueue,
                                          std::function<Created<Pasteboard>()> otherwise);

// Whether the extension runs, by a connection to the session bus of its own.
bool gnomeExtensionRuns();

} // namespace nerlo::platform

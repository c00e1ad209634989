// The clipboard of a Wayland desktop, without a surface and without the focus, where the compositor
// has ext-data-control-v1 or wlr-data-control-unstable-v1. Only the first seat's clipboard is
// served.
#pragma once

#include "platform/Created.h"
#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"
#include "platform/linux/IoThread.h"

#include <string>

namespace nerlo::platform {

// Waits for the compositor's first answers, for at most twice the stall limit. `display` is the
// name of a compositor's socket; empty for the one that the environment names. Both references must
// outlive the result.
Created<Pasteboard> createWaylandPasteboard(MainQueue &mainQueue, IoThread &io,
                                            const std::string &display = {});

} // namespace nerlo::platform

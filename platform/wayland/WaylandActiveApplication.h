// The application in front on a Wayland desktop whose compositor tells of the windows of others: by
// foreign-toplevel management, or KWin's own protocol.
#pragma once

#include "platform/ActiveApplication.h"
#include "platform/Created.h"
#include "platform/MainQueue.h"
#include "platform/linux/IoThread.h"

#include <string>

namespace nerlo::platform {

// Waits for the compositor's first answers, for at most the clipboard's stall limit. `display` is
// the name of a compositor's socket; empty for the one that the environment names. Both references
// must outlive the result.
Created<ActiveApplication> createWaylandActiveApplication(MainQueue &mainQueue, IoThread &io,
                                                          const std::string &display = {});

} // namespace nerlo::platform

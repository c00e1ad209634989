// Popups as surfaces of a compositor that has the layer shell.
#pragma once

#include "platform/Created.h"
#include "platform/MainQueue.h"
#include "platform/PopupLayer.h"
#include "platform/linux/IoThread.h"

#include <string>

namespace nerlo::platform {

// Waits for the compositor's first answer, for at most the clipboard's stall limit. `display` is
// the name of a compositor's socket; empty for the one that the environment names. Both references
// must outlive the result and what it shows.
Created<PopupLayer> createWaylandPopupLayer(MainQueue &mainQueue, IoThread &io,
                                            const std::string &display = {});

} // namespace nerlo::platform

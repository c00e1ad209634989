// Popups as surfaces of a compositor that has the layer shell.
#pragma once

#include "platform/Created.h"
#include "platform/MainQueue.h"
#include "platform/PopupLayer.h"

#include <string>

namespace nerlo::platform {

// Waits for the compositor's first answer, for at most the clipboard's stall limit. `display` is
// the name of a compositor's socket; empty for the one that the environment names. The main queue
// must outlive the result and what it shows.
Created<PopupLayer> createWaylandPopupLayer(MainQueue &mainQueue, const std::string &display = {});

} // namespace nerlo::platform

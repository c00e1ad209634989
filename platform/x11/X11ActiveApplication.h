// The frontmost window of an X display, from the window manager's _NET_ACTIVE_WINDOW.
#pragma once

#include "platform/ActiveApplication.h"
#include "platform/Created.h"
#include "platform/MainQueue.h"

namespace nerlo::platform {

// For the display in $DISPLAY; under Xwayland only X windows are seen. The connection lasts only as
// long as a handler is set. The main queue must outlive the result.
Created<ActiveApplication> createX11ActiveApplication(MainQueue &mainQueue);

} // namespace nerlo::platform

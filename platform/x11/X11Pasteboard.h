// The clipboard of an X display, by a connection and a thread of our own. Works without windows,
// window manager or focus, and under Xwayland as far as the compositor shares its clipboard there.
#pragma once

#include "platform/Created.h"
#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"

namespace nerlo::platform {

// For the display in $DISPLAY. The main queue must outlive the pasteboard.
Created<Pasteboard> createX11Pasteboard(MainQueue &mainQueue);

} // namespace nerlo::platform

// The clipboard of an X display, by a connection of its own. Works without windows,
// window manager or focus, and under Xwayland as far as the compositor shares its clipboard there.
#pragma once

#include "platform/Created.h"
#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"
#include "platform/linux/IoThread.h"

namespace nerlo::platform {

// For the display in $DISPLAY. Both references must outlive the pasteboard.
Created<Pasteboard> createX11Pasteboard(MainQueue &mainQueue, IoThread &io);

} // namespace nerlo::platform

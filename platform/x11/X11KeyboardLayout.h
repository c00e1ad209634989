// The keyboard layout of an X11 desktop, followed as it changes.
#pragma once

#include "platform/Created.h"
#include "platform/KeyboardLayout.h"
#include "platform/MainQueue.h"

namespace nerlo::platform {

// On the display in $DISPLAY. The main queue must outlive the result.
Created<KeyboardLayout> createX11KeyboardLayout(MainQueue &mainQueue);

} // namespace nerlo::platform
